#include "app/CIniEx.h"

#include <gtest/gtest.h>

#include <memory>

#include "fakes/fake_files.h"

namespace {

using app::CIniEx;
using fakes::FakeFiles;
using platform::FileError;

constexpr const char* kPath = "C:\\kavrel\\kavrel.ini";
constexpr CIniEx::Options kUsual{.auto_save = true, .create = true, .case_insensitive = true};
constexpr CIniEx::Options kByHand{.create = true, .case_insensitive = true};

class Ini : public ::testing::Test {
 protected:
  FakeFiles files;

  void SetUp() override { files.add_folder("C:\\kavrel"); }
  std::unique_ptr<CIniEx> opened(const std::string& text, CIniEx::Options options = kUsual) {
    files.add_file(kPath, text);
    auto ini = std::make_unique<CIniEx>(files);
    EXPECT_EQ(ini->open(kPath, options), FileError::kNone);
    return ini;
  }
  /// What the file holds after one change and a save.
  std::string saved(const std::string& text, const std::string& key = "X") {
    auto ini = opened(text);
    EXPECT_TRUE(ini->set_value("S", key, "changed"));
    ini.reset();
    return *files.content(kPath);
  }
};

TEST_F(Ini, ValueIsWhatFollowsTheFirstEqualSign) {
  const struct {
    const char* line;
    const char* key;
    const char* value;
  } rows[] = {
      {"A=b", "A", "b"},         {"A=b=c", "A", "b=c"},
      {"A=", "A", ""},           {"A", "A", ""},
      {" A = b ", " A ", " b "}, {"A=C:\\OBS;old", "A", "C:\\OBS"},
      {"A=1;2;3", "A", "1;2"},   {"A=;all", "A", ""},
      {"A=b\r", "A", "b"},       {"=b", "", "b"},
      {"; note", "; note", ""},  {"A=[b]", "A", "[b]"},
      {"[A", "[A", ""},          {"A=\xE8\xA6\xB3\xFF\x01", "A", "\xE8\xA6\xB3\xFF\x01"},
  };
  for (const auto& row : rows) {
    const auto ini = opened(std::string("[S]\n") + row.line + "\n");
    EXPECT_EQ(ini->value("S", row.key, "(default)"), row.value) << row.line;
  }
}

TEST_F(Ini, AByteOrderMarkInFrontIsPassedOver) {
  const std::string mark = "\xEF\xBB\xBF";
  EXPECT_EQ(opened(mark + "[S]\nA=1\n")->value("S", "A", ""), "1");
  EXPECT_EQ(opened(mark + "A=1\n")->value("", "A", ""), "1");
  EXPECT_EQ(saved(mark + "[S]\nX=1\n"), "[S]\nX=changed\n");
  EXPECT_EQ(opened("[S]\n" + mark + "A=1\n")->value("S", "A", "none"), "none") << "elsewhere";
}

TEST_F(Ini, DefaultComesBackForAMissingSectionOrKey) {
  const auto ini = opened("[S]\nA=1\n");
  EXPECT_EQ(ini->value("S", "B", "d"), "d");
  EXPECT_EQ(ini->value("T", "A", "d"), "d");
  EXPECT_EQ(ini->value("", "A", "d"), "d");
  EXPECT_EQ(opened("")->value("S", "A", "d"), "d");
}

TEST_F(Ini, LastOfTwoEqualKeysWins) {
  auto ini = opened("[S]\nA=1\na=2\nB=3\n");
  EXPECT_EQ(ini->value("S", "A"), "2");
  EXPECT_TRUE(ini->set_value("S", "A", "new"));
  ini.reset();
  EXPECT_EQ(files.content(kPath), "[S]\nA=1\na=new\nB=3\n");
}

TEST_F(Ini, SectionsOfOneNameCountAsOne) {
  const auto ini = opened("[S]\nA=1\n[T]\nA=9\n[s]\nB=2\n");
  EXPECT_EQ(ini->value("S", "A", ""), "1");
  EXPECT_EQ(ini->value("S", "B"), "2");
}

TEST_F(Ini, NamesCompareWithoutCaseOnlyWhenAsked) {
  EXPECT_EQ(opened("[Kavrel]\nlang=JPN\n")->value("KAVREL", "LANG"), "JPN");
  EXPECT_EQ(opened("[Kavrel]\nlang=JPN\n", {})->value("KAVREL", "LANG", "d"), "d");
  EXPECT_EQ(opened("[Kavrel]\nlang=JPN\n", {})->value("Kavrel", "lang"), "JPN");
}

TEST_F(Ini, LinesBeforeTheFirstHeaderAreTheUnnamedSection) {
  EXPECT_EQ(opened("A=1\n[S]\nA=2\n")->value("", "A", ""), "1");
  EXPECT_EQ(saved("A=1\n[S]\nX=2\n"), "A=1\n[S]\nX=changed\n");
  auto ini = opened("[S]\nA=2\n");
  EXPECT_TRUE(ini->set_value("", "A", "0"));
  ini.reset();
  EXPECT_EQ(files.content(kPath), "A=0\n[S]\nA=2\n");
}

TEST_F(Ini, LineWithoutEqualSignComesBackWithOneAfterAChange) {
  EXPECT_EQ(saved("[S]\nNOTE\nX=1\n"), "[S]\nNOTE=\nX=changed\n");
  EXPECT_EQ(saved("; note\n\n[S]\n\nX=1"), "; note=\n\n[S]\n\nX=changed\n");
}

TEST_F(Ini, EverythingElseOfTheFileIsKept) {
  EXPECT_EQ(saved("[S]\r\nA=1;why\r\n[T]\r\nB = 2 \r\n[]\nC=3\n[S]\nX=1\n"),
            "[S]\nA=1;why\n[T]\nB = 2 \n[]\nC=3\n[S]\nX=changed\n");
}

TEST_F(Ini, SectionAndKeyAreCreatedWhenMissing) {
  EXPECT_EQ(saved("[T]\nA=1\n"), "[T]\nA=1\n[S]\nX=changed\n");
  EXPECT_EQ(saved("[S]\nA=1\n[T]\n"), "[S]\nA=1\nX=changed\n[T]\n");
  EXPECT_EQ(saved(""), "[S]\nX=changed\n");
}

TEST_F(Ini, UnchangedFileIsLeftUntouched) {
  const std::string text = "NOTE\r\n[S]\nA=1;why";
  auto ini = opened(text);
  EXPECT_TRUE(ini->set_value("S", "A", "1")) << "the value that is read";
  EXPECT_FALSE(ini->modified());
  EXPECT_EQ(ini->save(), FileError::kNone);
  ini.reset();
  EXPECT_EQ(files.content(kPath), text);
  for (const auto& operation : files.log()) EXPECT_EQ(operation.find("stage"), std::string::npos);
}

TEST_F(Ini, TextThatWouldNotComeBackIsRefused) {
  auto ini = opened("[S]\nA=1\n");
  EXPECT_FALSE(ini->set_value("S", "A", "x\ny"));
  EXPECT_FALSE(ini->set_value("S", "A", "x\r"));
  EXPECT_FALSE(ini->set_value("S", "A=B", "x"));
  EXPECT_FALSE(ini->set_value("S\n", "A", "x"));
  EXPECT_FALSE(ini->modified());
  EXPECT_EQ(ini->value("S", "A", ""), "1");
}

TEST_F(Ini, AutoSaveSavesWhenTheObjectGoes) {
  EXPECT_EQ(saved("[S]\nX=1\n"), "[S]\nX=changed\n");
  auto ini = opened("[S]\nX=1\n", kByHand);
  EXPECT_TRUE(ini->set_value("S", "X", "changed"));
  ini.reset();
  EXPECT_EQ(files.content(kPath), "[S]\nX=1\n") << "without auto-save nothing happens";
}

TEST_F(Ini, MissingFileIsCreatedOnlyWhenAsked) {
  CIniEx ini(files);
  EXPECT_EQ(ini.open(kPath, {}), FileError::kNotFound);
  EXPECT_FALSE(files.is_file(kPath));
  EXPECT_EQ(ini.open(kPath, kByHand), FileError::kNone);
  EXPECT_EQ(files.content(kPath), "");
}

TEST_F(Ini, ReadOnlyAttributeIsClearedFirst) {
  files.add_file(kPath, "[S]\nX=1\n");
  files.set_read_only(kPath);
  CIniEx ini(files);
  EXPECT_EQ(ini.open(kPath, kByHand), FileError::kNone);
  EXPECT_TRUE(ini.set_value("S", "X", "2"));
  EXPECT_EQ(ini.save(), FileError::kNone);
  EXPECT_EQ(files.content(kPath), "[S]\nX=2\n");
}

TEST_F(Ini, OpeningAnotherFileSavesAndClearsTheFirst) {
  auto ini = opened("[S]\nX=1\n", kByHand);
  EXPECT_TRUE(ini->set_value("S", "X", "2"));
  EXPECT_EQ(ini->open("C:\\kavrel\\other.ini", kByHand), FileError::kNone);
  EXPECT_EQ(files.content(kPath), "[S]\nX=2\n");
  EXPECT_EQ(ini->value("S", "X", "d"), "d");
}

TEST_F(Ini, FirstFileStaysOpenWhenItCannotBeSaved) {
  auto ini = opened("[S]\nX=1\n", kByHand);
  EXPECT_TRUE(ini->set_value("S", "X", "2"));
  files.fail_next(FakeFiles::Operation::kStage, FileError::kNoSpace);
  EXPECT_EQ(ini->open("C:\\kavrel\\other.ini", kByHand), FileError::kNoSpace);
  EXPECT_EQ(ini->path(), kPath);
  EXPECT_EQ(ini->value("S", "X"), "2");
  EXPECT_TRUE(ini->modified());
}

TEST_F(Ini, UnreadableFileIsNotOpenedAndNeverWritten) {
  files.add_file(kPath, "[S]\nX=1\n");
  files.fail_path(kPath, FileError::kAccessDenied);
  {
    CIniEx ini(files);
    EXPECT_EQ(ini.open(kPath, kUsual), FileError::kAccessDenied);
    EXPECT_EQ(ini.path(), "");
  }
  files.heal();
  EXPECT_EQ(files.content(kPath), "[S]\nX=1\n");
}

TEST_F(Ini, ClearForgetsChanges) {
  auto ini = opened("[S]\nX=1\n");
  EXPECT_TRUE(ini->set_value("S", "X", "2"));
  ini->clear();
  ini.reset();
  EXPECT_EQ(files.content(kPath), "[S]\nX=1\n");
}

// ---- Backups

TEST_F(Ini, BackupsAreNumberedOnePastTheLargest) {
  const struct {
    std::vector<const char*> there;
    const char* backup;
  } rows[] = {
      {{}, "kavrel.001"},
      {{"kavrel.001", "kavrel.007", "kavrel.003"}, "kavrel.008"},
      {{"kavrel.099"}, "kavrel.100"},
      {{"kavrel.1234"}, "kavrel.1235"},
      {{"other.050", "kavrel.old", "kavrel.12x", "kavrel.b.044"}, "kavrel.001"},
      {{"kavrel.99999999999999999999"}, "kavrel.001"},
  };
  for (const auto& row : rows) {
    files = FakeFiles();
    for (const char* name : row.there) files.add_file(std::string("C:\\kavrel\\") + name, "?");
    auto ini = opened("[S]\nX=1\n", {.keep_backup = true});
    EXPECT_TRUE(ini->set_value("S", "X", "2"));
    EXPECT_EQ(ini->save(), FileError::kNone);
    EXPECT_EQ(files.content(std::string("C:\\kavrel\\") + row.backup), "[S]\nX=1\n") << row.backup;
    EXPECT_EQ(files.content(kPath), "[S]\nX=2\n");
    EXPECT_EQ(files.snapshot().size(), row.there.size() + 2) << row.backup;
  }
}

TEST_F(Ini, NoBackupWithoutAChange) {
  auto ini = opened("[S]\nX=1\n", {.keep_backup = true});
  EXPECT_EQ(ini->save(), FileError::kNone);
  EXPECT_EQ(files.snapshot().size(), 1U);
}

TEST_F(Ini, FileIsNotReplacedWithoutItsBackup) {
  auto ini = opened("[S]\nX=1\n", {.keep_backup = true});
  EXPECT_TRUE(ini->set_value("S", "X", "2"));
  files.fail_next(FakeFiles::Operation::kCopy, FileError::kNoSpace);
  EXPECT_EQ(ini->save(), FileError::kNoSpace);
  EXPECT_EQ(files.content(kPath), "[S]\nX=1\n");
  EXPECT_EQ(ini->save(), FileError::kNone) << "the change still waits";
  EXPECT_EQ(files.content(kPath), "[S]\nX=2\n");
}

// ---- Files that must not be lost

TEST_F(Ini, WhereOneCannotTellWhetherThereIsAFileItIsNeitherCreatedNorReplacedWithoutBackup) {
  auto ini = opened("[S]\nX=1\n", {.keep_backup = true});
  EXPECT_TRUE(ini->set_value("S", "X", "2"));
  files.fail_look(kPath, FileError::kAccessDenied);
  EXPECT_EQ(ini->save(), FileError::kAccessDenied);
  EXPECT_EQ(files.content(kPath), "[S]\nX=1\n");
  ini->clear();
  // What a link that leads nowhere reads as.
  files.fail_look(kPath, FileError::kBadLink);
  files.fail_path(kPath, FileError::kNotFound);
  EXPECT_EQ(ini->open(kPath, {.create = true}), FileError::kNotFound);
  EXPECT_EQ(files.snapshot().size(), 1U);
  EXPECT_EQ(files.content(kPath), "[S]\nX=1\n");
}

TEST_F(Ini, AnyFailureOfASaveLeavesTheOldFileAndTheChange) {
  for (const auto operation : {FakeFiles::Operation::kStage, FakeFiles::Operation::kCommit}) {
    files = FakeFiles();
    auto ini = opened("[S]\nX=1\n", kByHand);
    EXPECT_TRUE(ini->set_value("S", "X", "2"));
    files.fail_next(operation, FileError::kNoSpace);
    EXPECT_EQ(ini->save(), FileError::kNoSpace);
    EXPECT_EQ(files.snapshot(), (std::map<std::string, std::string>{{kPath, "[S]\nX=1\n"}}));
    EXPECT_EQ(ini->save(), FileError::kNone);
    EXPECT_EQ(files.content(kPath), "[S]\nX=2\n");
  }
}

TEST_F(Ini, AKillAtAnyStepLeavesTheOldFileOrTheNewOne) {
  for (int step = 1; step <= 2; ++step) {
    for (const bool after : {false, true}) {
      files = FakeFiles();
      auto ini = opened("[S]\nX=1\n", kByHand);
      EXPECT_TRUE(ini->set_value("S", "X", "2"));
      after ? files.kill_after(step) : files.kill_before(step);
      EXPECT_THROW((void)ini->save(), FakeFiles::Killed);
      const bool renamed = step == 2 && after;
      EXPECT_EQ(files.content(kPath), renamed ? "[S]\nX=2\n" : "[S]\nX=1\n") << step << after;
    }
  }
}

}  // namespace
