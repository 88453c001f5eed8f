// "Correct weather reports": the reports of the folder and which of them is chosen.

#include <gtest/gtest.h>

#include "archive/CQFModifyDlg.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
constexpr const char* kFolder = "C:\\tlx\\";

struct Opened {
  explicit Opened(bool japanese = false, std::string folder = kFolder)
      : folder_(std::move(folder)) {
    files.add_folder(kFolder);
    if (japanese) world.japanese();
  }
  CQFModifyDlg& open() {
    screen.emplace(world.services, folder_);
    screen->open();
    return *screen;
  }
  void put(const char* name) {
    files.add_file(std::string(kFolder) + name, "BBXX JXKV 15124 99357 11653 41/97 /2718 .....");
  }
  fakes::FakeFiles files;
  fakes::World world{files};
  std::optional<CQFModifyDlg> screen;

 private:
  std::string folder_;
};

TEST(ModifyDialog, ListsTheReportsWithoutTheirExtensionTheNewestFirst) {
  for (const bool japanese : {false, true}) {
    Opened opened(japanese);
    for (const char* const name :
         {"14111506.tlx", "14111512.tlx", "14111512.tlx.bak", "immt5.log", "note.tlx", "A.TLX"})
      opened.put(name);
    CQFModifyDlg& dialog = opened.open();
    EXPECT_EQ(dialog.title(),
              japanese ? "船舶気象報の訂正" : "Correcting of ships' weather reports");
    std::vector<std::string> names;
    for (const std::string& line : dialog.reports.items) names.push_back(line.substr(0, 12));
    EXPECT_EQ(names, (std::vector<std::string>{"14111512    ", "14111506    ", "note        "}));
    EXPECT_EQ(dialog.reports.items[0],
              "14111512       2014/11/15 12   35.7N  165.3E   2014/11/15  12:00");
    EXPECT_EQ(dialog.reports.selected, -1);
    EXPECT_EQ(dialog.focused(), &dialog.reports);
    EXPECT_NE(dialog.heading.literal_caption, "");
    EXPECT_FALSE(dialog.remark.visible);
  }
}

TEST(ModifyDialog, RefusesAnOkWithNothingChosen) {
  for (const bool japanese : {false, true}) {
    Opened opened(japanese);
    opened.put("14111512.tlx");
    CQFModifyDlg& dialog = opened.open();
    const std::string before = fakes::dump(dialog);
    opened.world.windows.expect(id::kModifyNothingChosen);
    dialog.press(dialog.ok);
    EXPECT_EQ(opened.world.windows.boxes.at(0).text,
              japanese ? "ファイルを選択して下さい" : "Please select file");
    EXPECT_EQ(fakes::dump(dialog), before);
    EXPECT_EQ(dialog.focused(), &dialog.reports);
    EXPECT_FALSE(dialog.result());
    EXPECT_EQ(dialog.chosen(), "");
  }
}

TEST(ModifyDialog, GivesThePathByOkEnterAndDoubleClickAndNoneByCancel) {
  for (const char* const way : {"ok", "enter", "double click", "cancel", "escape", "close box"}) {
    SCOPED_TRACE(way);
    Opened opened;
    opened.put("14111506.tlx");
    opened.put("14111512.tlx");
    CQFModifyDlg& dialog = opened.open();
    const std::string_view by = way;
    if (by == "enter") {
      for (const char* const figure : {"1", "4", "1", "1", "1", "5", "0", "6"})
        dialog.find_line(figure);
      dialog.key(ui::Key::kEnter);
    } else {
      dialog.choose(dialog.reports, 1);
    }
    if (by == "ok") dialog.press(dialog.ok);
    if (by == "double click") dialog.press(dialog.reports);
    if (by == "cancel") dialog.press(dialog.cancel);
    if (by == "escape") dialog.key(ui::Key::kEscape);
    if (by == "close box") dialog.close_box();
    const bool taken = by == "ok" || by == "enter" || by == "double click";
    EXPECT_EQ(dialog.result(), taken ? ui::kOk : ui::kCancel);
    EXPECT_EQ(dialog.chosen(), taken ? "C:\\tlx\\14111506.tlx" : "");
  }
}

TEST(ModifyDialog, WithoutAFolderIsEmptyAndDoesNothing) {
  Opened opened(false, "");
  CQFModifyDlg& dialog = opened.open();
  EXPECT_TRUE(dialog.reports.items.empty());
  EXPECT_EQ(dialog.remark.content, "");
  dialog.press(dialog.ok);
  EXPECT_FALSE(dialog.result());
  dialog.press(dialog.cancel);
  EXPECT_EQ(dialog.result(), ui::kCancel);
}

TEST(ModifyDialog, SaysWhyAFolderCannotBeRead) {
  for (const bool japanese : {false, true}) {
    Opened opened(japanese);
    opened.files.fail_next(fakes::FakeFiles::Operation::kList, platform::FileError::kAccessDenied);
    CQFModifyDlg& dialog = opened.open();
    EXPECT_TRUE(dialog.reports.items.empty());
    EXPECT_TRUE(dialog.remark.visible);
    EXPECT_EQ(
        dialog.remark.content.find(japanese ? "気象電報のフォルダを読み込めません。\nC:\\tlx\\"
                                            : "The folder of the weather reports cannot be "
                                              "read:\nC:\\tlx\\"),
        0U)
        << dialog.remark.content;
  }
}

// A press of Help, or F1, has no topic to show.
TEST(ModifyDialog, HasNoHelpTopic) {
  Opened opened;
  CQFModifyDlg& dialog = opened.open();
  EXPECT_EQ(dialog.find("help"), nullptr);
  dialog.key(ui::Key::kF1);
  EXPECT_TRUE(opened.world.help_viewer.shown.empty());
}

}  // namespace
