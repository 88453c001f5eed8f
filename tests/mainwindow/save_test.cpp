// Saving from the menu and on the way out, and the review of the position.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "window.h"

namespace {

namespace id = text::id;
using main_window::Opened;

void enter_date(Opened& opened) {
  opened.type("Year", "2014");
  opened.type("Month", "11");
  opened.type("YY", "15");
  opened.type("GG", "12");
}

// The report lacks most of its groups; the officer saves it as it is.
void expect_save(Opened& opened) {
  opened.world.windows.expect_screen(
      "CSaveErrorInfoDlg", [](ui::Screen& screen) { screen.press(*screen.find("save_as")); });
  opened.world.windows.expect(id::kSaved);
}

TEST(Save, WritesBothFilesKeepsTheEntriesAndSaysSoInTheTitle) {
  const auto opened = std::make_unique<Opened>();
  EXPECT_EQ("KAVREL for WIN", opened->window.title());
  enter_date(*opened);
  EXPECT_EQ("KAVREL for WIN - report not saved *", opened->window.title());
  const auto entries = opened->window.record_fields();
  expect_save(*opened);
  opened->menu("Save weather report");
  EXPECT_EQ("KAVREL for WIN - report saved", opened->window.title());
  EXPECT_EQ(entries, opened->window.record_fields());
  EXPECT_FALSE(opened->window.unsaved());
  EXPECT_EQ(opened->window.report(), opened->files.content("C:\\out\\14111512.tlx"));
  EXPECT_TRUE(opened->files.content("C:\\log\\immt5.log").has_value());
  opened->type("VV", "97");
  EXPECT_EQ("KAVREL for WIN - report not saved *", opened->window.title());
}

TEST(Save, TakesWhatIsStillBeingTyped) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("VV"), "97"));
  expect_save(*opened);
  opened->menu("Save weather report");
  EXPECT_NE(std::string::npos, opened->files.content("C:\\out\\14111512.tlx")->find("41/97"));
}

TEST(Save, StopsAtARefusedEntryAndGoesBackToIt) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("VV"), "7"));
  opened->world.windows.expect(id::kVisibilityRange);
  opened->menu("Save weather report");
  EXPECT_EQ("VV", opened->window.focused()->name);
  EXPECT_EQ("7", opened->shown("VV"));
  EXPECT_TRUE(opened->files.snapshot().empty());
}

TEST(ExitAndSave, ClosesWhenTheSaveSucceeds) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  opened->world.windows.expect(id::kAskSaveOnExit, "yes");
  expect_save(*opened);
  opened->window.close_box();
  EXPECT_TRUE(opened->window.result().has_value());
  EXPECT_TRUE(opened->files.content("C:\\out\\14111512.tlx").has_value());
}

TEST(ExitAndSave, StaysOpenWhenACheckFails) {
  const auto opened = std::make_unique<Opened>();
  opened->type("VV", "97");  // and no date
  const std::string before = opened->state();
  opened->world.windows.expect(id::kAskSaveOnExit, "yes");
  opened->world.windows.expect(id::kNoDateEntered);
  opened->window.close_box();
  EXPECT_FALSE(opened->window.result().has_value());
  EXPECT_EQ(before, opened->state());
  EXPECT_FALSE(opened->window.exiting());
  EXPECT_FALSE(opened->window.command_in_progress());
}

TEST(ExitAndSave, StaysOpenWhenTheSaveIsGivenUp) {
  for (const char* const button : {"no_save", "correct"}) {
    const auto opened = std::make_unique<Opened>();
    enter_date(*opened);
    const std::string before = opened->state();
    opened->world.windows.expect(id::kAskSaveOnExit, "yes");
    opened->world.windows.expect_screen(
        "CSaveErrorInfoDlg", [&](ui::Screen& screen) { screen.press(*screen.find(button)); });
    opened->window.close_box();
    EXPECT_FALSE(opened->window.result().has_value()) << button;
    EXPECT_EQ(before, opened->state()) << button;
    EXPECT_TRUE(opened->files.snapshot().empty()) << button;
  }
}

TEST(ExitAndSave, IsUnderWayUntilItsLastQuestionIsAnswered) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  opened->world.windows.expect(id::kAskSaveOnExit, "yes");
  opened->world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& screen) {
    EXPECT_TRUE(opened->window.exiting());
    EXPECT_TRUE(opened->window.command_in_progress());
    // What the windowing system may still send does nothing now.
    opened->window.close_box();
    opened->window.run({0, 0, mainwindow::Command::kVersion, {}});
    EXPECT_EQ(1U, opened->world.windows.boxes.size());
    screen.press(*screen.find("correct"));
  });
  opened->menu("File/Exit");
  EXPECT_FALSE(opened->window.exiting());
  EXPECT_FALSE(opened->window.command_in_progress());
  EXPECT_FALSE(opened->window.result().has_value());
}

TEST(ExitAndSave, StaysOpenWhenTheSaveFails) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  opened->files.fail_next(fakes::FakeFiles::Operation::kStage, platform::FileError::kNoSpace);
  opened->world.windows.expect(id::kAskSaveOnExit, "yes");
  opened->world.windows.expect_screen(
      "CSaveErrorInfoDlg", [](ui::Screen& screen) { screen.press(*screen.find("save_as")); });
  opened->world.windows.expect(id::kSaveFailed);
  opened->window.close_box();
  EXPECT_FALSE(opened->window.result().has_value());
  EXPECT_TRUE(opened->window.unsaved());
}

TEST(CorrectReports, AsksToSaveAnUnsavedReportFirst) {
  struct Row {
    const char* answer;
    bool goes_on;
  };
  for (const Row& row : {Row{"yes", true}, Row{"no", true}, Row{"cancel", false}}) {
    const auto opened = std::make_unique<Opened>();
    enter_date(*opened);
    opened->world.windows.expect(id::kAskSaveBeforeCorrecting, row.answer);
    if (std::string(row.answer) == "yes") expect_save(*opened);
    if (row.goes_on)
      opened->world.windows.expect_screen(
          "CQFModifyDlg", [](ui::Screen& screen) { screen.press(*screen.find("cancel")); });
    opened->menu("File/Correct weather reports");
    EXPECT_EQ("Do you want to save this report? ", opened->world.windows.boxes.at(0).text);
  }
}

// ---- Review of the position

void enter_position(Opened& opened, const char* degrees, bool warns) {
  opened.type("LaDeg", degrees);
  opened.type("LaMin", "00");
  opened.choose("north_south", 0);
  opened.type("LoDeg", "140");
  opened.type("LoMin", "00");
  if (warns) {
    opened.world.windows.expect_screen("CHour3ErrorDlg", [](ui::Screen& screen) {
      EXPECT_NE(std::string::npos, screen.find("warnings")->content.find("0.7<Change of latitude"));
      screen.press(*screen.find("ok"));
    });
  }
  opened.choose("east_west", 0);
}

TEST(PositionReview, WarnsOfAMovementThatCannotBeAndKeepsTheEntry) {
  for (const bool warns : {true, false}) {
    const auto opened = std::make_unique<Opened>();
    opened->files.add_file("C:\\out\\14111509.tlx", "BBXX JXKV 15094 99300 11400 41498 .....");
    enter_date(*opened);
    enter_position(*opened, warns ? "35" : "31", warns);
    EXPECT_EQ("1", opened->window.form().record().Qc);
    EXPECT_EQ(warns ? "35" : "31", opened->window.form().record().LaDeg);
  }
}

}  // namespace
