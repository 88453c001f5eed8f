#include <gtest/gtest.h>

#include "archive/CBrowseForFolder.h"
#include "archive/CCreateDir.h"
#include "archive/CDirectoryDrawList.h"
#include "archive/CDrvListBox.h"
#include "archive/CFindFile.h"
#include "archive/CShowStatusDlg.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "platform/paths.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using platform::DriveType;
using platform::FileError;
using Names = std::vector<std::string>;

TEST(Paths, JoinPutsOneBackslashBetween) {
  const Names rows[] = {{"C:\\a", "b", "C:\\a\\b"},
                        {"C:\\a\\", "b", "C:\\a\\b"},
                        {"C:\\", "b", "C:\\b"},
                        {"C:", "b", "C:\\b"},
                        {"", "b", "b"},
                        {"\\", "b", "\\b"},
                        {"C:\\a\\\\", "b", "C:\\a\\b"}};
  for (const Names& row : rows) EXPECT_EQ(platform::join(row[0], row[1]), row[2]) << row[0];
}

TEST(Paths, BackslashAtTheEndIsPutOrTakenButKeptForADrive) {
  EXPECT_EQ(platform::with_backslash("C:\\a"), "C:\\a\\");
  EXPECT_EQ(platform::with_backslash("C:\\"), "C:\\");
  EXPECT_EQ(platform::with_backslash(""), "");
  EXPECT_EQ(platform::without_backslash("C:\\a\\"), "C:\\a");
  EXPECT_EQ(platform::without_backslash("C:\\"), "C:\\");
  EXPECT_EQ(platform::without_backslash(""), "");
}

// ---- Files of a folder

// A file system whose folder lists what an older one lists, in an order of its own.
class OrderedFiles : public fakes::NoFiles {
 public:
  std::vector<platform::FolderEntry> entries;
  FileError error = FileError::kNone;
  mutable std::string current_while_listing;
  std::string current = "C:\\before";
  [[nodiscard]] platform::Result<std::vector<platform::FolderEntry>> list(
      const std::string&) const override {
    current_while_listing = current;
    if (error != FileError::kNone) return error;
    return entries;
  }
  [[nodiscard]] std::string current_folder() const override { return current; }
  void set_current_folder(const std::string& folder) override { current = folder; }
};

TEST(CFindFile, ListsWhatHoldsThePatternAnywhereInTheOrderOfTheFileSystem) {
  OrderedFiles files;
  files.entries = {{".", true},          {"..", true},     {"b.tlx", false}, {"a.tlx", false},
                   {"x.tlx.bak", false}, {"A.TLX", false}, {"sub.tlx", true}};
  Names found = {"kept"};
  EXPECT_EQ(CFindFile(files).find("C:\\out\\", ".tlx", found), FileError::kNone);
  EXPECT_EQ(found, (Names{"kept", "C:\\out\\b.tlx", "C:\\out\\a.tlx", "C:\\out\\x.tlx.bak"}));
}

TEST(CFindFile, LogbookPatternFindsAnyNameThatHoldsIt) {
  OrderedFiles files;
  files.entries = {{"old immt5.log.1", false}, {"IMMT5.LOG", false}, {"immt5.log", false}};
  Names found;
  EXPECT_EQ(CFindFile(files).find("C:\\out", "immt5.log", found), FileError::kNone);
  EXPECT_EQ(found, (Names{"C:\\out\\old immt5.log.1", "C:\\out\\immt5.log"}));
}

TEST(CFindFile, LeavesFilesInSubfoldersOut) {
  fakes::FakeFiles files;
  files.add_file("C:\\out\\14111512.tlx", "");
  files.add_file("C:\\out\\old\\14111412.tlx", "");
  Names found;
  EXPECT_EQ(CFindFile(files).find("C:\\out", ".tlx", found), FileError::kNone);
  EXPECT_EQ(found, (Names{"C:\\out\\14111512.tlx"}));
}

TEST(CFindFile, FolderIsTheCurrentOneWhileItIsSearchedAndNotAfterwards) {
  OrderedFiles files;
  Names found;
  EXPECT_EQ(CFindFile(files).find("C:\\out\\", ".tlx", found), FileError::kNone);
  EXPECT_EQ(files.current_while_listing, "C:\\out\\");
  EXPECT_EQ(files.current, "C:\\before");
}

TEST(CFindFile, UnreadableFolderAddsNothingAndSaysWhy) {
  OrderedFiles files;
  files.error = FileError::kMediumMissing;
  Names found = {"kept"};
  EXPECT_EQ(CFindFile(files).find("A:\\", ".tlx", found), FileError::kMediumMissing);
  EXPECT_EQ(found, Names{"kept"});
  EXPECT_EQ(files.current, "C:\\before");
}

// ---- Drives

class TestScreen : public ui::Screen {
 public:
  explicit TestScreen(ui::Services& services) : Screen(services, "TestScreen", {}) {}
  ui::DropDown drives{*this, "drives"};
  ui::Tree tree{*this, "tree"};
};

struct Folders : testing::Test {
  fakes::FakeFiles files;
  fakes::World world{files};
  TestScreen screen{world.services};

  Names texts() const {
    Names result;
    for (const ui::TreeRow& row : screen.tree.rows)
      result.push_back(std::string(static_cast<std::size_t>(row.depth), ' ') + row.text +
                       (row.marked ? "*" : ""));
    return result;
  }
};

TEST_F(Folders, DriveListShowsTypes2To6AndMarksRemoteAndCdRom) {
  world.drives.list = {{'A', DriveType::kRemovable, 2}, {'C', DriveType::kFixed, 12},
                       {'D', DriveType::kCdRom, 11},    {'E', DriveType::kUnknown, 0},
                       {'F', DriveType::kNone, 0},      {'N', DriveType::kRemote, 0},
                       {'Z', DriveType::kRamDisk, 12}};
  CDrvListBox list(screen.drives, world.drives);
  list.fill();
  EXPECT_EQ(screen.drives.items, (Names{"A:\\", "C:\\", "D:\\", "N:\\", "Z:\\"}));
  EXPECT_EQ(screen.drives.item_marked, (std::vector<bool>{false, false, true, true, false}));
}

TEST_F(Folders, DriveListTries26LettersOnly) {
  world.drives.list.clear();
  for (int c = 0x30; c < 0x7f; ++c)
    world.drives.list.push_back({static_cast<char>(c), DriveType::kFixed, 12});
  CDrvListBox list(screen.drives, world.drives);
  list.fill();
  EXPECT_EQ(screen.drives.items.size(), 26U);
  EXPECT_EQ(screen.drives.items.front(), "A:\\");
  EXPECT_EQ(screen.drives.items.back(), "Z:\\");
}

TEST_F(Folders, DriveListFollowsAPathAndKeepsItsChoiceWhenFilledAgain) {
  world.drives.list = {{'A', DriveType::kRemovable, 2}, {'C', DriveType::kFixed, 12}};
  CDrvListBox list(screen.drives, world.drives);
  list.fill();
  list.select("c:\\kavrel\\data\\");
  EXPECT_EQ(list.root(), "C:\\");
  world.drives.list.erase(world.drives.list.begin());
  list.fill();
  EXPECT_EQ(list.root(), "C:\\");
  list.select("Q:\\x");
  EXPECT_EQ(list.root(), "");
}

// ---- Tree

TEST_F(Folders, TreeRootIsMyComputerWithTheDrivesBeneath) {
  world.drives.list = {{'A', DriveType::kRemovable, 2},
                       {'C', DriveType::kFixed, 12},
                       {'D', DriveType::kCdRom, 11},
                       {'X', DriveType::kNone, 0}};
  CDirectoryDrawList tree(screen.tree, files, world.drives, world.texts);
  tree.fill();
  EXPECT_EQ(texts(), (Names{"My Computer", " A:\\", " C:\\", " D:\\*"}));
  EXPECT_EQ(tree.folder(), "");
  EXPECT_TRUE(files.log().empty());
  world.japanese();
  tree.fill();
  EXPECT_EQ(screen.tree.rows[0].text, "マイ コンピュータ");
}

// A drive with a folder of ten thousand, each with folders of its own; counts what is asked.
class ManyFolders : public fakes::NoFiles {
 public:
  mutable Names listed;
  [[nodiscard]] platform::Result<std::vector<platform::FolderEntry>> list(
      const std::string& folder) const override {
    listed.push_back(folder);
    if (folder == "C:\\") return std::vector<platform::FolderEntry>{{"many", true}};
    std::vector<platform::FolderEntry> entries;
    for (int i = 9999; i >= 0; --i) entries.push_back({"f" + std::to_string(100000 + i), true});
    return entries;
  }
  [[nodiscard]] platform::Look look(const std::string& path) const override {
    ADD_FAILURE() << "asked about " << path;
    return {platform::There::kFolder};
  }
};

TEST_F(Folders, ExpandingReadsExactlyOneLevelOfTenThousandFolders) {
  const ManyFolders many;
  CDirectoryDrawList tree(screen.tree, many, world.drives, world.texts);
  tree.fill();
  screen.open();
  screen.expand(screen.tree, 1);
  EXPECT_EQ(many.listed, Names{"C:\\"});
  EXPECT_EQ(screen.tree.rows.size(), 3U);
  screen.expand(screen.tree, 2);
  EXPECT_EQ(many.listed, (Names{"C:\\", "C:\\many"}));
  ASSERT_EQ(screen.tree.rows.size(), 10003U);
  EXPECT_EQ(screen.tree.rows[3].path, "C:\\many\\f100000");
  EXPECT_EQ(screen.tree.rows[10002].path, "C:\\many\\f109999");
  EXPECT_TRUE(screen.reveal(screen.tree, "C:\\many\\F105000"));
  EXPECT_EQ(tree.folder(), "C:\\many\\f105000");
  screen.collapse(screen.tree, 2);
  EXPECT_EQ(screen.tree.rows.size(), 3U);
  EXPECT_EQ(many.listed.size(), 2U);
}

TEST_F(Folders, ExpandingShowsSubfoldersByNameAndNoFiles) {
  files.add_file("C:\\file.tlx", "");
  files.add_folder("C:\\zeta");
  files.add_folder("C:\\Alpha");
  files.add_folder("C:\\beta");
  CDirectoryDrawList tree(screen.tree, files, world.drives, world.texts);
  tree.fill();
  screen.open();
  screen.expand(screen.tree, 1);
  EXPECT_EQ(texts(), (Names{"My Computer", " C:\\", "  Alpha", "  beta", "  zeta"}));
  // Nothing lies below: the row has nothing to open any more.
  screen.expand(screen.tree, 2);
  EXPECT_FALSE(screen.tree.rows[2].can_expand);
  EXPECT_FALSE(screen.tree.rows[2].expanded);
}

TEST_F(Folders, UnreadableLevelStaysClosedAndCanBeTriedAgain) {
  world.drives.list = {{'A', DriveType::kRemovable, 2}};
  files.add_folder("A:\\out");
  files.set_medium_missing('A');
  CDirectoryDrawList tree(screen.tree, files, world.drives, world.texts);
  Names told;
  tree.on_unreadable = [&](const std::string& path, FileError error) {
    EXPECT_EQ(error, FileError::kMediumMissing);
    told.push_back(path);
  };
  tree.fill();
  screen.open();
  screen.expand(screen.tree, 1);
  EXPECT_EQ(told, Names{"A:\\"});
  EXPECT_EQ(texts(), (Names{"My Computer", " A:\\"}));
  EXPECT_TRUE(screen.tree.rows[1].can_expand);
  EXPECT_FALSE(screen.tree.rows[1].expanded);
  files.set_medium_missing('A', false);
  screen.expand(screen.tree, 1);
  EXPECT_EQ(texts(), (Names{"My Computer", " A:\\", "  out"}));
}

TEST_F(Folders, RevealOpensOnlyTheLevelsAboveAndSelects) {
  files.add_folder("C:\\kavrel\\data\\deep");
  files.add_folder("C:\\other\\x");
  CDirectoryDrawList tree(screen.tree, files, world.drives, world.texts);
  tree.fill();
  screen.open();
  int changes = 0;
  screen.tree.on_change = [&] { ++changes; };
  files.clear_log();
  EXPECT_TRUE(screen.reveal(screen.tree, "c:\\KAVREL\\data\\"));
  EXPECT_EQ(files.log(), (Names{"list C:\\", "list C:\\kavrel"}));
  EXPECT_EQ(tree.folder(), "C:\\kavrel\\data");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(texts(), (Names{"My Computer", " C:\\", "  kavrel", "   data", "  other"}));
  // A row that is visible is chosen without reading anything.
  files.clear_log();
  EXPECT_TRUE(screen.reveal(screen.tree, "C:\\other"));
  EXPECT_TRUE(files.log().empty());
  EXPECT_EQ(tree.folder(), "C:\\other");
}

TEST_F(Folders, RevealOfWhatIsNotThereChangesNothingAndSaysNothing) {
  files.add_folder("C:\\kavrel\\data");
  CDirectoryDrawList tree(screen.tree, files, world.drives, world.texts);
  tree.on_unreadable = [](const std::string& path, FileError) { ADD_FAILURE() << path; };
  tree.fill();
  screen.open();
  ASSERT_TRUE(screen.reveal(screen.tree, "C:\\"));
  files.fail_path("C:\\kavrel", FileError::kAccessDenied);
  const Names before = texts();
  for (const char* path :
       {"Q:\\", "C:\\none", "C:\\kavrel\\none", "C:\\kavrel\\data", "nonsense", "C:\\\xff"}) {
    EXPECT_FALSE(screen.reveal(screen.tree, path)) << path;
    EXPECT_EQ(texts(), before) << path;
    EXPECT_EQ(tree.folder(), "C:\\") << path;
  }
}

TEST_F(Folders, LookThatDidNotComeToItsEndDoesNotLeaveTheTreeSilent) {
  files.add_folder("C:\\kavrel\\data");
  CDirectoryDrawList tree(screen.tree, files, world.drives, world.texts);
  Names told;
  tree.on_unreadable = [&](const std::string& path, FileError) { told.push_back(path); };
  tree.fill();
  screen.open();
  files.kill_before(1);
  EXPECT_THROW((void)tree.reveal("C:\\kavrel\\data"), fakes::FakeFiles::Killed);
  files.heal();
  tree.fill();
  files.fail_path("C:\\", FileError::kAccessDenied);
  screen.expand(screen.tree, 1);
  EXPECT_EQ(told, Names{"C:\\"});
}

TEST_F(Folders, ReadingAgainShowsAFolderThatWasJustCreated) {
  files.add_folder("C:\\out");
  CDirectoryDrawList tree(screen.tree, files, world.drives, world.texts);
  tree.fill();
  ASSERT_TRUE(tree.reveal("C:\\out"));
  tree.open_selected();
  ASSERT_EQ(files.create_folder("C:\\out\\new"), FileError::kNone);
  tree.read_again("C:\\out");
  EXPECT_EQ(texts(), (Names{"My Computer", " C:\\", "  out", "   new"}));
  EXPECT_EQ(tree.folder(), "C:\\out");
}

// ---- New folder

TEST_F(Folders, NewFolderIsCreatedBeneathTheChosenOne) {
  for (const std::string parent : {"C:\\", "C:\\out"}) {
    files.add_folder(parent);
    CCreateDir dialog(world.services, parent);
    dialog.open();
    EXPECT_EQ(dialog.focused(), &dialog.folder_name);
    fakes::enter(dialog, dialog.folder_name, " log ");
    dialog.press(dialog.ok);
    EXPECT_EQ(dialog.result(), ui::kOk);
    EXPECT_EQ(dialog.path(), platform::join(parent, "log"));
    EXPECT_TRUE(files.is_folder(dialog.path()));
  }
  EXPECT_TRUE(files.is_folder("C:\\out\\log"));
}

TEST_F(Folders, ExistingFolderIsNotCreatedAgain) {
  files.add_folder("C:\\out\\log");
  CCreateDir dialog(world.services, "C:\\out");
  dialog.open();
  fakes::enter(dialog, dialog.folder_name, "log");
  files.clear_log();
  dialog.key(ui::Key::kEnter);
  EXPECT_EQ(dialog.result(), ui::kOk);
  EXPECT_EQ(dialog.path(), "C:\\out\\log");
  EXPECT_TRUE(files.log().empty());
}

TEST_F(Folders, NewFolderWithoutAGoodNameIsRefusedAndNothingIsCreated) {
  struct Row {
    std::string name;
    text::Id message;
  };
  std::vector<Row> rows = {{"", id::kNoValueInput},      {"  ", id::kNoValueInput},
                           {".", id::kBadFolderName},    {"..", id::kBadFolderName},
                           {"a\tb", id::kBadFolderName}, {"a.log", id::kFolderNotCreated}};
  for (const char c : std::string("\\/:*?\"<>|;"))
    rows.push_back({std::string("a") + c, id::kBadFolderName});
  files.add_file("C:\\out\\a.log", "");
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    world.texts.language = language;
    for (const Row& row : rows) {
      CCreateDir dialog(world.services, "C:\\out");
      dialog.open();
      fakes::enter(dialog, dialog.folder_name, row.name);
      // Enter leaves the focus on OK, from where a refusal brings it back.
      const auto before = files.snapshot();
      const std::string state = fakes::dump(dialog);
      world.windows.expect(row.message);
      dialog.press(dialog.ok);
      EXPECT_FALSE(dialog.result()) << row.name;
      EXPECT_EQ(fakes::dump(dialog), state) << row.name;
      EXPECT_EQ(dialog.focused(), &dialog.folder_name) << row.name;
      EXPECT_EQ(dialog.path(), "");
      EXPECT_EQ(files.snapshot(), before) << row.name;
      const auto reason = world.texts.get(id::kReasonNotPermitted);
      EXPECT_EQ(world.windows.boxes.back().text,
                text::fill(world.texts.get(row.message), {"C:\\out\\" + row.name, reason}));
      dialog.press(dialog.cancel);
      EXPECT_EQ(dialog.result(), ui::kCancel);
    }
  }
}

TEST_F(Folders, NewFolderTextsExistInBothLanguages) {
  CCreateDir dialog(world.services, "C:\\");
  EXPECT_EQ(dialog.caption(dialog.folder_name), "New folder name");
  EXPECT_EQ(dialog.caption(dialog.ok), "OK");
  EXPECT_EQ(dialog.caption(dialog.cancel), "Cancel");
  world.japanese();
  EXPECT_EQ(dialog.caption(dialog.folder_name), "新しいフォルダ名");
}

// ---- The system's browser and the busy notice

TEST_F(Folders, BrowserGivesTheFolderChosenOrNothing) {
  const CBrowseForFolder browser(world.windows, "caption", "C:\\");
  EXPECT_EQ(browser.show(), std::nullopt);
  world.windows.browse_answer = "";
  EXPECT_EQ(browser.show(), std::nullopt);
  world.windows.browse_answer = "C:\\out\\";
  EXPECT_EQ(browser.show(), "C:\\out");
  world.windows.browse_answer = "C:\\";
  EXPECT_EQ(browser.show(), "C:\\");
}

TEST_F(Folders, BusyNoticeStandsAsLongAsItLives) {
  {
    CShowStatusDlg notice(world.services);
    EXPECT_EQ(notice.caption(notice.status), "IN CALCULATING");
    EXPECT_EQ(notice.status.font, "MS Gothic");
    world.japanese();
    EXPECT_EQ(notice.caption(notice.status), "計算中");
    EXPECT_EQ(world.windows.notices, Names{"show CShowStatusDlg"});
  }
  EXPECT_EQ(world.windows.notices, (Names{"show CShowStatusDlg", "hide CShowStatusDlg"}));
}

}  // namespace
