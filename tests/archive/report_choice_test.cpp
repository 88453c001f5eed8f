#include <gtest/gtest.h>

#include "archive/CTlxSelectDlg.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using Names = std::vector<std::string>;

std::vector<archive::ListedReport> listed(int count) {
  std::vector<archive::ListedReport> result;
  for (int i = 0; i < count; ++i) {
    archive::ListedReport report;
    report.name = "report" + std::to_string(i) + ".tlx";
    report.path = "C:\\tlx\\" + report.name;
    result.push_back(report);
  }
  return result;
}

Names chosen(const CTlxSelectDlg& dialog) {
  Names names;
  for (const auto& report : dialog.chosen_reports()) names.push_back(report.name);
  return names;
}

TEST(ReportChoice, HasItsTextsInBothLanguages) {
  fakes::World world;
  CTlxSelectDlg dialog(world.services, listed(2));
  EXPECT_EQ(dialog.title(), "Please select a Tlx file");
  EXPECT_EQ(dialog.caption(dialog.cancel), "Cancel");
  EXPECT_EQ(dialog.caption(dialog.help), "Help");
  world.japanese();
  EXPECT_EQ(dialog.title(), "ファイルを選択してください。");
}

TEST(ReportChoice, AllAreChosenAsItOpens) {
  fakes::World world;
  CTlxSelectDlg dialog(world.services, listed(3));
  dialog.open();
  EXPECT_EQ(dialog.focused(), &dialog.reports);
  EXPECT_EQ(dialog.count.content, "To be copied: 3 of 3");
  dialog.key(ui::Key::kEnter);
  EXPECT_EQ(dialog.result(), ui::kOk);
  EXPECT_EQ(chosen(dialog), (Names{"report0.tlx", "report1.tlx", "report2.tlx"}));
}

TEST(ReportChoice, SpaceTicksTheLineThatTheArrowsLeadTo) {
  fakes::World world;
  CTlxSelectDlg dialog(world.services, listed(3));
  dialog.open();
  dialog.key(ui::Key::kDown);
  dialog.key(ui::Key::kSpace);
  EXPECT_EQ(dialog.count.content, "To be copied: 2 of 3");
  dialog.press(dialog.ok);
  EXPECT_EQ(chosen(dialog), (Names{"report0.tlx", "report2.tlx"}));
}

TEST(ReportChoice, ButtonsTickAllOrNone) {
  fakes::World world;
  CTlxSelectDlg dialog(world.services, listed(3));
  dialog.open();
  dialog.press(dialog.select_none);
  EXPECT_EQ(dialog.count.content, "To be copied: 0 of 3");
  EXPECT_EQ(dialog.reports.item_ticked, std::vector<bool>(3, false));
  dialog.press(dialog.select_all);
  EXPECT_EQ(dialog.reports.item_ticked, std::vector<bool>(3, true));
  dialog.tick_line(dialog.reports, 0, false);
  dialog.press(dialog.ok);
  EXPECT_EQ(chosen(dialog), (Names{"report1.tlx", "report2.tlx"}));
}

TEST(ReportChoice, NothingChosenIsRefusedInBothLanguages) {
  for (const bool japanese : {false, true}) {
    for (const int count : {0, 3}) {
      fakes::World world;
      if (japanese) world.japanese();
      CTlxSelectDlg dialog(world.services, listed(count));
      dialog.open();
      dialog.press(dialog.select_none);
      const std::string before = fakes::dump(dialog);
      world.windows.expect_text(japanese ? "ファイルが選択されていません。" : "No file selected");
      dialog.press(dialog.ok);
      EXPECT_FALSE(dialog.result());
      EXPECT_EQ(fakes::dump(dialog), before);
      EXPECT_EQ(world.windows.boxes.back().title, "KAVREL for WIN");
      EXPECT_TRUE(chosen(dialog).empty());
    }
  }
}

TEST(ReportChoice, CancelChoosesNothing) {
  for (int way = 0; way < 3; ++way) {
    fakes::World world;
    CTlxSelectDlg dialog(world.services, listed(3));
    dialog.open();
    if (way == 0) dialog.press(dialog.cancel);
    if (way == 1) dialog.key(ui::Key::kEscape);
    if (way == 2) dialog.close_box();
    EXPECT_EQ(dialog.result(), ui::kCancel);
    EXPECT_TRUE(chosen(dialog).empty());
  }
}

TEST(ReportChoice, HelpThenOkChoosesWhatIsTicked) {
  fakes::World world;
  CTlxSelectDlg dialog(world.services, listed(2));
  dialog.open();
  dialog.press(dialog.help);
  EXPECT_EQ(world.help_viewer.shown, Names{"C:\\program\\help\\Kavrel_E.CHM::/Capter8_E.htm"});
  dialog.press(dialog.ok);
  EXPECT_EQ(chosen(dialog).size(), 2U);
}

}  // namespace
