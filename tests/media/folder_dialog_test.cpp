#include <gtest/gtest.h>

#include "archive/CCreateDir.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "media/CLogDiskSavePathDlg.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using Mode = CLogDiskSavePathDlg::Mode;
using Names = std::vector<std::string>;

struct FolderDialog : testing::Test {
  FolderDialog() {
    files.add_folder("C:\\kavrel\\data");
    files.add_folder("C:\\out\\old");
    files.add_folder("C:\\log");
  }
  CLogDiskSavePathDlg::Write write() {
    return [this](std::string_view key, std::string_view folder) {
      written.push_back(std::string(key) + "=" + std::string(folder));
    };
  }

  fakes::FakeFiles files;
  fakes::World world{files};
  Names written;
};

struct TextRow {
  Mode mode;
  const char* title;
  const char* prompt;
  const char* current;
};

TEST_F(FolderDialog, HasTheTextsOfItsMode) {
  const TextRow rows[] = {
      {Mode::kReport, "Specify the folder to save weather reports",
       "Please specify the drive and the folder to save weather reports.",
       "Current folder to save weather reports"},
      {Mode::kLogbook, "Specify the folder to save marine meteorological logbook",
       "Please specify the drive and the folder to save marine meteorological logbook.",
       "Current folder to save marine meteorological logbook"},
      {Mode::kReportCopy, "Copy weather reports",
       "Please specify the folder to copy weather reports.",
       "Current folder to copy weather reports"},
      {Mode::kLogbookCopy, "Copy marine meteorological logbook",
       "Please specify the folder to copy marine meteorological logbook.",
       "Current folder to copy marine meteorological logbook"},
  };
  for (const TextRow& row : rows) {
    world.texts.language = text::Language::kEnglish;
    CLogDiskSavePathDlg dialog(world.services, row.mode, {}, write());
    EXPECT_EQ(dialog.title(), row.title);
    EXPECT_EQ(dialog.caption(dialog.prompt), row.prompt);
    EXPECT_EQ(dialog.caption(dialog.current), row.current);
    EXPECT_EQ(dialog.caption(dialog.create_folder), "Create folder");
    EXPECT_EQ(dialog.caption(dialog.ok), "OK");
    EXPECT_EQ(dialog.caption(dialog.cancel), "Cancel");
    world.japanese();
    EXPECT_EQ(dialog.caption(dialog.create_folder), "新規フォルダの作成");
    for (const ui::Control* control :
         {static_cast<ui::Control*>(&dialog.prompt), static_cast<ui::Control*>(&dialog.current)}) {
      EXPECT_NE(dialog.caption(*control), dialog.english_caption(*control));
      EXPECT_NE(dialog.caption(*control), "");
    }
  }
}

TEST_F(FolderDialog, OkWritesTheFolderUnderTheKeyOfTheMode) {
  const std::pair<Mode, const char*> rows[] = {{Mode::kReport, "TLX"},
                                               {Mode::kLogbook, "LOG"},
                                               {Mode::kReportCopy, "TLXC"},
                                               {Mode::kLogbookCopy, "LOGC"}};
  for (const auto& [mode, key] : rows) {
    written.clear();
    CLogDiskSavePathDlg dialog(world.services, mode, {"", "", "C:\\log\\"}, write());
    dialog.open();
    ASSERT_TRUE(dialog.reveal(dialog.tree, "C:\\out\\old"));
    dialog.press(dialog.ok);
    EXPECT_EQ(dialog.result(), ui::kOk);
    EXPECT_EQ(dialog.folder(), "C:\\out\\old\\");
    EXPECT_EQ(written, Names{std::string(key) + "=C:\\out\\old\\"});
  }
}

TEST_F(FolderDialog, OpensOnTheProposedFolderAndShowsTheCurrentOne) {
  CLogDiskSavePathDlg first(world.services, Mode::kReport, {"", "C:\\kavrel\\data", ""}, write());
  first.open();
  EXPECT_EQ(first.current.content, "");
  EXPECT_EQ(first.chosen.content, "C:\\kavrel\\data\\");
  EXPECT_EQ(first.tree.selected_text(), "C:\\kavrel\\data");
  EXPECT_EQ(first.drives.content, "C:\\");
  first.key(ui::Key::kEnter);
  EXPECT_EQ(first.folder(), "C:\\kavrel\\data\\");

  CLogDiskSavePathDlg later(world.services, Mode::kReport, {"C:\\out\\", "", ""}, write());
  later.open();
  EXPECT_EQ(later.current.content, "C:\\out\\");
  EXPECT_EQ(later.chosen.content, "C:\\out\\");
}

TEST_F(FolderDialog, CancelAndTheCloseBoxWriteNothing) {
  for (int way = 0; way < 3; ++way) {
    CLogDiskSavePathDlg dialog(world.services, Mode::kReport, {"", "C:\\out", ""}, write());
    dialog.open();
    if (way == 0) dialog.press(dialog.cancel);
    if (way == 1) dialog.close_box();
    if (way == 2) dialog.key(ui::Key::kEscape);
    EXPECT_EQ(dialog.result(), ui::kCancel);
    EXPECT_EQ(dialog.folder(), "");
  }
  EXPECT_TRUE(written.empty());
}

TEST_F(FolderDialog, DriveListOpensTheDriveInTheTreeAndFollowsIt) {
  world.drives.list = {{'C', platform::DriveType::kFixed, 12},
                       {'D', platform::DriveType::kFixed, 12}};
  files.add_folder("D:\\copy");
  CLogDiskSavePathDlg dialog(world.services, Mode::kReport, {"", "C:\\out", ""}, write());
  dialog.open();
  dialog.choose(dialog.drives, 1);
  EXPECT_EQ(dialog.chosen.content, "D:\\");
  EXPECT_EQ(dialog.tree.rows.back().path, "D:\\copy");
  ASSERT_TRUE(dialog.reveal(dialog.tree, "C:\\log"));
  EXPECT_EQ(dialog.drives.content, "C:\\");
}

TEST_F(FolderDialog, NewFolderIsShownAndChosen) {
  CLogDiskSavePathDlg dialog(world.services, Mode::kReport, {"", "C:\\out", ""}, write());
  dialog.open();
  world.windows.expect_screen("CCreateDir", [](ui::Screen& screen) {
    fakes::enter(screen, *screen.find("folder_name"), "new");
    screen.press(*screen.find("ok"));
  });
  dialog.press(dialog.create_folder);
  EXPECT_TRUE(files.is_folder("C:\\out\\new"));
  EXPECT_EQ(dialog.chosen.content, "C:\\out\\new\\");
  EXPECT_EQ(dialog.focused(), &dialog.tree);
}

TEST_F(FolderDialog, CancelledNewFolderChangesNothing) {
  CLogDiskSavePathDlg dialog(world.services, Mode::kReport, {"", "C:\\out", ""}, write());
  dialog.open();
  const auto rows = dialog.tree.rows.size();
  const std::string before = fakes::dump(dialog);
  world.windows.expect_screen("CCreateDir",
                              [](ui::Screen& screen) { screen.press(*screen.find("cancel")); });
  dialog.press(dialog.create_folder);
  EXPECT_EQ(fakes::dump(dialog), before);
  EXPECT_EQ(dialog.tree.rows.size(), rows);
}

struct RefusalRow {
  const char* what;
  Mode mode;
  CLogDiskSavePathDlg::Folders folders;
  const char* choose;
  text::Id message;
};

TEST_F(FolderDialog, RefusesInBothLanguagesAndChangesNothing) {
  files.add_folder("C:\\a;b");
  const RefusalRow rows[] = {
      {"nothing chosen", Mode::kReport, {}, "", id::kNoFolderChosen},
      {"My Computer", Mode::kReport, {"", "C:\\out", ""}, "My Computer", id::kNoFolderChosen},
      {"a name that would be cut", Mode::kReport, {}, "C:\\a;b", id::kBadFolderName},
      {"the report folder as copy",
       Mode::kReportCopy,
       {"", "", "C:\\out\\"},
       "C:\\out",
       id::kChooseAnotherFolder},
      {"the logbook folder as copy",
       Mode::kLogbookCopy,
       {"", "", "c:\\LOG"},
       "C:\\log",
       id::kChooseAnotherFolder},
  };
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    world.texts.language = language;
    for (const RefusalRow& row : rows) {
      CLogDiskSavePathDlg dialog(world.services, row.mode, row.folders, write());
      dialog.open();
      if (row.choose == std::string("My Computer")) {
        dialog.choose(dialog.tree, 0);
      } else if (*row.choose != '\0') {
        ASSERT_TRUE(dialog.reveal(dialog.tree, row.choose)) << row.what;
      }
      const std::string before = fakes::dump(dialog);
      world.windows.expect(row.message);
      dialog.press(dialog.ok);
      EXPECT_FALSE(dialog.result()) << row.what;
      EXPECT_EQ(fakes::dump(dialog), before) << row.what;
      EXPECT_EQ(dialog.folder(), "") << row.what;
      EXPECT_EQ(world.windows.boxes.back().text, text::bilingual(row.message, language));
    }
  }
  EXPECT_TRUE(written.empty());
  EXPECT_EQ(text::bilingual(id::kChooseAnotherFolder, text::Language::kEnglish),
            "Please specify another folder to copy. ");
  EXPECT_EQ(text::bilingual(id::kChooseAnotherFolder, text::Language::kJapanese),
            "保存フォルダとは別のフォルダをコピー先に指定してください。");
}

TEST_F(FolderDialog, SourceIsTakenWhereNothingIsCopied) {
  for (const Mode mode : {Mode::kReport, Mode::kLogbook}) {
    CLogDiskSavePathDlg dialog(world.services, mode, {"", "C:\\out", "C:\\out"}, write());
    dialog.open();
    dialog.press(dialog.ok);
    EXPECT_EQ(dialog.result(), ui::kOk);
  }
}

TEST_F(FolderDialog, VanishedFolderIsRefusedButAnAbsentDiskIsTaken) {
  world.drives.list = {{'A', platform::DriveType::kRemovable, 2},
                       {'C', platform::DriveType::kFixed, 12}};
  files.add_folder("A:\\tlx");
  CLogDiskSavePathDlg dialog(world.services, Mode::kReport, {"", "C:\\log", ""}, write());
  dialog.open();
  ASSERT_EQ(files.remove("C:\\log"), platform::FileError::kNone);
  world.windows.expect(id::kFolderGone);
  dialog.press(dialog.ok);
  EXPECT_FALSE(dialog.result());
  EXPECT_TRUE(written.empty());
  ASSERT_TRUE(dialog.reveal(dialog.tree, "A:\\tlx"));
  files.set_medium_missing('A');
  dialog.press(dialog.ok);
  EXPECT_EQ(written, Names{"TLX=A:\\tlx\\"});
}

TEST_F(FolderDialog, FolderThatCannotBeLookedAtIsRefusedWithTheReasonInBothLanguages) {
  const struct {
    bool japanese;
    const char* told;
  } rows[] = {{false, "The folder C:\\log\\ cannot be checked (not permitted)."},
              {true, "フォルダ C:\\log\\ を確認できません（許可されていません）。"}};
  for (const auto& row : rows) {
    if (row.japanese) world.japanese();
    CLogDiskSavePathDlg dialog(world.services, Mode::kReport, {"", "C:\\log", ""}, write());
    dialog.open();
    files.fail_look("C:\\log", platform::FileError::kAccessDenied);
    world.windows.expect_text(row.told);
    dialog.press(dialog.ok);
    EXPECT_FALSE(dialog.result());
    EXPECT_EQ(dialog.focused(), &dialog.tree);
    EXPECT_TRUE(written.empty());
    files.heal();
    dialog.press(dialog.ok);
    EXPECT_EQ(written, Names{"TLX=C:\\log\\"});
    written.clear();
  }
}

TEST_F(FolderDialog, UnreadableDriveIsReported) {
  world.drives.list = {{'A', platform::DriveType::kRemovable, 2}};
  files.set_medium_missing('A');
  CLogDiskSavePathDlg dialog(world.services, Mode::kReport, {}, write());
  dialog.open();
  world.windows.expect_text("The folder cannot be read.\nA:\\ (no such drive or no medium in it)");
  dialog.expand(dialog.tree, 1);
  EXPECT_FALSE(dialog.tree.rows[1].expanded);
}

TEST_F(FolderDialog, CreateFolderNeedsAFolderToCreateItIn) {
  CLogDiskSavePathDlg dialog(world.services, Mode::kReport, {}, write());
  dialog.open();
  world.windows.expect(id::kNoFolderChosen);
  dialog.press(dialog.create_folder);
  EXPECT_FALSE(dialog.result());
}

}  // namespace
