// What every Files does, the one in memory and the real one alike.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "fakes/fake_files.h"
#include "platform/port_under_test.h"

namespace {

using platform::FileError;
using platform::There;

class InMemory {
 public:
  platform::Files& files() { return files_; }
  void read_only(const std::string& path) { files_.set_read_only(path); }
  std::string other() {
    files_.add_other("C:\\out\\pipe.tlx");
    return "C:\\out\\pipe.tlx";
  }
  std::pair<std::string, FileError> hidden() {
    files_.fail_look("C:\\out\\hidden", FileError::kBadLink);
    return {"C:\\out\\hidden", FileError::kBadLink};
  }

 private:
  /// A: holds no medium in either world.
  static fakes::FakeFiles without_floppy() {
    fakes::FakeFiles files;
    files.set_medium_missing('A');
    return files;
  }
  fakes::FakeFiles files_ = without_floppy();
};

class Real {
 public:
  platform::Files& files() { return port_.files; }
  void read_only(const std::string& path) { port_.read_only(path); }
  std::string other() { return port_.other("C:\\out"); }
  std::pair<std::string, FileError> hidden() { return port_.hidden("C:\\out"); }

 private:
  tests::PortUnderTest port_;
};

template <class Kind>
class FilesSuite : public ::testing::Test {
 protected:
  FilesSuite() { EXPECT_EQ(files().create_folder("C:\\out"), FileError::kNone); }
  platform::Files& files() { return kind_.files(); }
  void read_only(const std::string& path) { kind_.read_only(path); }
  /// Path in C:\out of something that is neither a file nor a folder.
  std::string other() { return kind_.other(); }
  /// Path in C:\out of which one cannot tell what lies there, and why.
  std::pair<std::string, FileError> hidden() { return kind_.hidden(); }
  std::string content(const std::string& path) {
    auto read = files().read(path);
    return read.ok() ? *read.value : "(none)";
  }
  /// Names in C:\out, sorted: whatever lies beside is seen.
  std::vector<std::string> names() {
    std::vector<std::string> result;
    const auto listed = files().list("C:\\out");
    for (const auto& entry : *listed.value) result.push_back(entry.name);
    std::sort(result.begin(), result.end());
    return result;
  }

 private:
  Kind kind_;
};

using Kinds = ::testing::Types<InMemory, Real>;
TYPED_TEST_SUITE(FilesSuite, Kinds);

using Names = std::vector<std::string>;

TYPED_TEST(FilesSuite, ReplaceCreatesAndOverwritesAndLeavesNothingBeside) {
  const std::string any_bytes("a\0\r\n\xFF\xFE", 6);
  EXPECT_EQ(this->files().replace("C:\\out\\a.tlx", "old"), FileError::kNone);
  EXPECT_EQ(this->files().replace("C:\\out\\a.tlx", any_bytes), FileError::kNone);
  EXPECT_EQ(this->content("C:\\out\\a.tlx"), any_bytes);
  EXPECT_EQ(this->names(), Names{"a.tlx"});
  EXPECT_EQ(this->files().replace("C:\\out\\a.tlx", ""), FileError::kNone);
  EXPECT_EQ(this->files().size("C:\\out\\a.tlx"), 0U);
}

TYPED_TEST(FilesSuite, StagedFileIsNotInItsPlaceUntilCommitted) {
  EXPECT_EQ(this->files().replace("C:\\out\\a", "old"), FileError::kNone);
  const auto staged = this->files().stage("C:\\out\\a", "new");
  ASSERT_TRUE(staged.ok());
  EXPECT_EQ(this->content("C:\\out\\a"), "old");
  EXPECT_EQ(this->content(staged.value->temporary), "new");
  EXPECT_EQ(this->files().commit(*staged.value), FileError::kNone);
  EXPECT_EQ(this->content("C:\\out\\a"), "new");
  EXPECT_EQ(this->names(), Names{"a"});
}

TYPED_TEST(FilesSuite, DiscardLeavesTheOldFile) {
  EXPECT_EQ(this->files().replace("C:\\out\\a", "old"), FileError::kNone);
  const auto staged = this->files().stage("C:\\out\\a", "new");
  this->files().discard(*staged.value);
  EXPECT_EQ(this->content("C:\\out\\a"), "old");
  EXPECT_EQ(this->names(), Names{"a"});
  EXPECT_EQ(this->files().commit(*staged.value), FileError::kNotFound);
  EXPECT_EQ(this->content("C:\\out\\a"), "old");
}

TYPED_TEST(FilesSuite, NothingGoesIntoAMissingOrReadOnlyFolder) {
  EXPECT_EQ(this->files().replace("C:\\none\\a", "x"), FileError::kNotFound);
  EXPECT_EQ(this->files().lock_log("C:\\none\\a").error, FileError::kNotFound);
  EXPECT_EQ(this->files().create_folder("C:\\none\\sub"), FileError::kNotFound);
  EXPECT_EQ(this->files().list("C:\\none").error, FileError::kNotFound);
  this->read_only("C:\\out");
  EXPECT_EQ(this->files().replace("C:\\out\\a", "x"), FileError::kAccessDenied);
  EXPECT_EQ(this->files().lock_log("C:\\out\\a").error, FileError::kAccessDenied);
  EXPECT_EQ(this->files().create_folder("C:\\out\\sub"), FileError::kAccessDenied);
  EXPECT_EQ(this->names(), Names{});
}

TYPED_TEST(FilesSuite, ReadOnlyFileIsRefusedUntilCleared) {
  EXPECT_EQ(this->files().replace("C:\\out\\a", "old"), FileError::kNone);
  this->read_only("C:\\out\\a");
  EXPECT_EQ(this->files().replace("C:\\out\\a", "new"), FileError::kAccessDenied);
  EXPECT_EQ(this->files().lock_log("C:\\out\\a").error, FileError::kAccessDenied);
  EXPECT_EQ(this->files().remove("C:\\out\\a"), FileError::kAccessDenied);
  EXPECT_EQ(this->content("C:\\out\\a"), "old");
  EXPECT_EQ(this->names(), Names{"a"});
  EXPECT_EQ(this->files().clear_read_only("C:\\out\\a"), FileError::kNone);
  EXPECT_EQ(this->files().replace("C:\\out\\a", "new"), FileError::kNone);
  EXPECT_EQ(this->content("C:\\out\\a"), "new");
  EXPECT_EQ(this->files().clear_read_only("C:\\out\\none"), FileError::kNotFound);
}

TYPED_TEST(FilesSuite, FolderIsNotTakenForAFile) {
  EXPECT_EQ(this->files().create_folder("C:\\out\\sub"), FileError::kNone);
  EXPECT_EQ(this->files().create_folder("C:\\out\\sub"), FileError::kNone) << "it is there";
  EXPECT_EQ(this->files().read("C:\\out\\sub").error, FileError::kAccessDenied);
  EXPECT_EQ(this->files().replace("C:\\out\\sub", "x"), FileError::kAccessDenied);
  EXPECT_EQ(this->files().lock_log("C:\\out\\sub").error, FileError::kAccessDenied);
  EXPECT_EQ(this->files().copy("C:\\out\\sub", "C:\\out\\b"), FileError::kAccessDenied);
  EXPECT_TRUE(this->files().is_folder("C:\\out\\sub\\"));
  EXPECT_FALSE(this->files().is_file("C:\\out\\sub"));
  EXPECT_EQ(this->files().size("C:\\out\\sub"), std::nullopt);
  EXPECT_EQ(this->files().replace("C:\\out\\a", "x"), FileError::kNone);
  EXPECT_EQ(this->files().create_folder("C:\\out\\a"), FileError::kAccessDenied);
  EXPECT_FALSE(this->files().is_folder("C:\\out\\a"));
}

TYPED_TEST(FilesSuite, ALookTellsWhatIsThereAndWhenItCannotTell) {
  EXPECT_EQ(this->files().replace("C:\\out\\a", "123"), FileError::kNone);
  const std::string other = this->other();
  const auto [hidden, why] = this->hidden();
  const struct {
    std::string path;
    There there;
    FileError error;
    std::uint64_t size;
  } rows[] = {
      {"C:\\out\\a", There::kFile, FileError::kNone, 3},
      {"C:\\out\\", There::kFolder, FileError::kNone, 0},
      {"C:\\", There::kFolder, FileError::kNone, 0},
      {"C:\\out\\none", There::kNo, FileError::kNone, 0},
      {"C:\\none\\a", There::kNo, FileError::kNone, 0},
      {"C:\\out\\a\\b", There::kNo, FileError::kNone, 0},
      {other, There::kOther, FileError::kNone, 0},
      {hidden, There::kCannotTell, why, 0},
      {"A:\\x", There::kCannotTell, FileError::kMediumMissing, 0},
  };
  for (const auto& row : rows) {
    const platform::Look found = this->files().look(row.path);
    EXPECT_EQ(found.there, row.there) << row.path;
    EXPECT_EQ(found.error, row.error) << row.path;
    EXPECT_EQ(found.size, row.size) << row.path;
    EXPECT_EQ(this->files().is_file(row.path), row.there == There::kFile) << row.path;
    EXPECT_EQ(this->files().is_folder(row.path), row.there == There::kFolder) << row.path;
    EXPECT_EQ(this->files().size(row.path).has_value(), row.there == There::kFile) << row.path;
  }
}

TYPED_TEST(FilesSuite, ALockedLogGrowsIsReadAndIsCutBack) {
  const std::string path = "C:\\out\\log";
  {
    const auto log = this->files().lock_log(path);
    ASSERT_TRUE(log.ok());
    EXPECT_TRUE((*log.value)->created());
    EXPECT_TRUE((*log.value)->is_locked());
    EXPECT_EQ((*log.value)->append("1\n"), FileError::kNone);
    EXPECT_EQ((*log.value)->size(), 2U);
  }
  {
    const auto log = this->files().lock_log(path);
    ASSERT_TRUE(log.ok());
    EXPECT_FALSE((*log.value)->created());
    EXPECT_EQ((*log.value)->size(), 2U);
    EXPECT_EQ((*log.value)->append("22\n"), FileError::kNone);
    EXPECT_EQ(this->content(path), "1\n22\n");
    EXPECT_EQ(*(*log.value)->read(2, 2).value, "22");
    EXPECT_EQ(*(*log.value)->read(4, 100).value, "\n") << "what there is";
    EXPECT_EQ(*(*log.value)->read(5, 1).value, "");
    EXPECT_EQ((*log.value)->cut(2), FileError::kNone);
    EXPECT_EQ((*log.value)->append("3\n"), FileError::kNone) << "behind the new end";
  }
  EXPECT_EQ(this->content(path), "1\n3\n");
}

TYPED_TEST(FilesSuite, AnEmptyLogThatTheLockCreatedGoesWithIt) {
  const std::string path = "C:\\out\\log";
  { EXPECT_TRUE(this->files().lock_log(path).ok()); }
  EXPECT_EQ(this->names(), Names{});
  {
    const auto log = this->files().lock_log(path);
    EXPECT_EQ((*log.value)->append("1\n"), FileError::kNone);
    EXPECT_EQ((*log.value)->cut(0), FileError::kNone);
  }
  EXPECT_EQ(this->names(), Names{}) << "as it was before";
  EXPECT_EQ(this->files().replace(path, ""), FileError::kNone);
  { EXPECT_TRUE(this->files().lock_log(path).ok()); }
  EXPECT_EQ(this->names(), Names{"log"}) << "it was there before";
  {
    const auto log = this->files().lock_log(path);
    (*log.value)->drop_if_empty();
  }
  EXPECT_EQ(this->names(), Names{});
}

TYPED_TEST(FilesSuite, ALogIsHeldByOneAtATime) {
  const std::string path = "C:\\out\\log";
  {
    const auto log = this->files().lock_log(path);
    ASSERT_TRUE(log.ok());
    EXPECT_EQ(this->files().lock_log(path).error, FileError::kLocked);
    EXPECT_TRUE(this->files().lock_log(path + "2").ok());
  }
  EXPECT_TRUE(this->files().lock_log(path).ok());
}

TYPED_TEST(FilesSuite, OnlyRegularFilesAreReadAndWritten) {
  const std::string pipe = this->other();
  EXPECT_EQ(this->files().read(pipe).error, FileError::kNotAFile);
  EXPECT_EQ(this->files().stage(pipe, "x").error, FileError::kNotAFile);
  EXPECT_EQ(this->files().note(pipe, "x"), FileError::kNotAFile);
  EXPECT_EQ(this->files().lock_log(pipe).error, FileError::kNotAFile);
  EXPECT_EQ(this->files().copy(pipe, "C:\\out\\a"), FileError::kNotAFile);
  EXPECT_EQ(this->files().replace("C:\\out\\a", "x"), FileError::kNone);
  EXPECT_EQ(this->files().copy("C:\\out\\a", pipe), FileError::kNotAFile);
  EXPECT_EQ(this->names(), Names{"a"}) << "a pipe is not offered either";
  EXPECT_EQ(this->files().look(pipe).there, There::kOther) << "it is still there";
}

TYPED_TEST(FilesSuite, ACommitMayBeForbiddenToReplace) {
  EXPECT_EQ(this->files().replace("C:\\out\\a", "old"), FileError::kNone);
  const auto staged = this->files().stage("C:\\out\\a", "new");
  ASSERT_TRUE(staged.ok());
  EXPECT_EQ(this->files().commit(*staged.value, platform::Over::kRefuse), FileError::kExists);
  EXPECT_EQ(this->content("C:\\out\\a"), "old");
  EXPECT_EQ(this->content(staged.value->temporary), "new");
  EXPECT_EQ(this->files().remove("C:\\out\\a"), FileError::kNone);
  EXPECT_EQ(this->files().commit(*staged.value, platform::Over::kRefuse), FileError::kNone);
  EXPECT_EQ(this->content("C:\\out\\a"), "new");
  EXPECT_EQ(this->names(), Names{"a"});
}

TYPED_TEST(FilesSuite, ANoteIsWrittenWholeOverAnOldOne) {
  EXPECT_EQ(this->files().note("C:\\out\\.note", "1"), FileError::kNone);
  EXPECT_EQ(this->files().note("C:\\out\\.note", "22"), FileError::kNone);
  EXPECT_EQ(this->content("C:\\out\\.note"), "22");
  EXPECT_EQ(this->names(), Names{".note"});
  EXPECT_EQ(this->files().note("C:\\none\\.note", "1"), FileError::kNotFound);
}

TYPED_TEST(FilesSuite, AStagedNameTellsItsProcess) {
  const auto staged = this->files().stage("C:\\out\\a", "x");
  ASSERT_TRUE(staged.ok());
  const std::string& path = staged.value->temporary;
  const auto process = platform::staged_by(path.substr(path.rfind('\\') + 1));
  ASSERT_TRUE(process);
  EXPECT_TRUE(this->files().is_running(*process));
  EXPECT_FALSE(this->files().is_running(999999999)) << "no system counts so far";
}

TEST(StagedName, IsKnownByItsWholeForm) {
  EXPECT_EQ(platform::staged_by(".kavrel-12-0.part"), 12U);
  for (const char* name :
       {"", ".kavrel-12-0.par", "kavrel-12-0.part", ".kavrel--0.part", ".kavrel-12-.part",
        ".kavrel-12.part", ".kavrel-1a-0.part", ".kavrel-12-0-0.part", ".kavrel-12-x.part",
        ".kavrel-12-../0.part", "a.kavrel-12-0.part", ".kavrel-1234567890-0.part", ".kavrel-.part",
        ".kavrel-12-0.part\n"})
    EXPECT_EQ(platform::staged_by(name), std::nullopt) << name;
}

TYPED_TEST(FilesSuite, ReadRefusesWhatIsMissingOrTooLarge) {
  EXPECT_EQ(this->files().read("C:\\out\\a").error, FileError::kNotFound);
  EXPECT_EQ(this->files().replace("C:\\out\\a", "12345"), FileError::kNone);
  EXPECT_EQ(this->files().read("C:\\out\\a", 4).error, FileError::kOther);
  EXPECT_EQ(*this->files().read("C:\\out\\a", 5).value, "12345");
}

TYPED_TEST(FilesSuite, APartIsWhatThereIsOfIt) {
  const std::string path = "C:\\out\\a";
  EXPECT_EQ(this->files().read_part(path, 0, 1).error, FileError::kNotFound);
  // Longer than any block in which it may be read.
  std::string whole;
  for (int i = 0; i < 50000; ++i) whole += std::to_string(i % 7919) + "\n";
  EXPECT_EQ(this->files().replace(path, whole), FileError::kNone);
  constexpr std::uint64_t kAll = ~std::uint64_t{0};
  const std::uint64_t size = whole.size();
  for (const auto& [from, count] :
       std::initializer_list<std::pair<std::uint64_t, std::uint64_t>>{{0, 0},
                                                                      {0, 1},
                                                                      {0, size},
                                                                      {0, kAll},
                                                                      {1, kAll},
                                                                      {65535, 2},
                                                                      {1, 65536},
                                                                      {100, 150000},
                                                                      {size - 1, 1},
                                                                      {size - 1, kAll}}) {
    const auto part = this->files().read_part(path, from, count);
    ASSERT_TRUE(part.ok()) << from << " " << count;
    EXPECT_EQ(*part.value, whole.substr(from, count)) << from << " " << count;
  }
  for (const std::uint64_t from : {size, size + 1, kAll / 2, kAll})
    EXPECT_EQ(this->files().read_part(path, from, kAll).value, "") << from;
}

TYPED_TEST(FilesSuite, APartIsReadOfRegularFilesOnly) {
  EXPECT_EQ(this->files().read_part(this->other(), 0, 1).error, FileError::kNotAFile);
  EXPECT_EQ(this->files().read_part("C:\\out", 0, 1).error, FileError::kAccessDenied);
  EXPECT_EQ(this->files().read_part("A:\\x", 0, 1).error, FileError::kMediumMissing);
}

TYPED_TEST(FilesSuite, PiecesAreStagedOneBehindTheOtherUntilOneIsEmpty) {
  const std::vector<std::string> pieces = {"one", std::string(100000, 'x'), "two", "", "never"};
  std::size_t at = 0;
  const auto staged =
      this->files().stage_pieces("C:\\out\\a", [&] { return platform::Result(pieces[at++]); });
  ASSERT_TRUE(staged.ok());
  EXPECT_EQ(at, 4U);
  EXPECT_EQ(this->content("C:\\out\\a"), "(none)");
  const std::string whole = "one" + std::string(100000, 'x') + "two";
  EXPECT_EQ(this->content(staged.value->temporary), whole);
  EXPECT_EQ(this->files().commit(*staged.value), FileError::kNone);
  EXPECT_EQ(this->content("C:\\out\\a"), whole);
  EXPECT_EQ(this->names(), Names{"a"});
}

TYPED_TEST(FilesSuite, APieceThatCannotBeHadLeavesNothingStaged) {
  EXPECT_EQ(this->files().replace("C:\\out\\a", "old"), FileError::kNone);
  int asked = 0;
  const auto next = [&]() -> platform::Result<std::string> {
    if (++asked == 1) return std::string("piece");
    return FileError::kMediumMissing;
  };
  EXPECT_EQ(this->files().stage_pieces("C:\\out\\a", next).error, FileError::kMediumMissing);
  EXPECT_EQ(this->names(), Names{"a"});
  EXPECT_EQ(this->content("C:\\out\\a"), "old");
  const auto nothing = [] { return platform::Result(std::string()); };
  EXPECT_EQ(this->files().stage_pieces(this->other(), nothing).error, FileError::kNotAFile);
  EXPECT_EQ(this->files().stage_pieces("C:\\none\\a", nothing).error, FileError::kNotFound);
  this->read_only("C:\\out\\a");
  EXPECT_EQ(this->files().stage_pieces("C:\\out\\a", nothing).error, FileError::kAccessDenied);
}

TYPED_TEST(FilesSuite, OnlyWhatDeadProcessesStagedIsCleared) {
  for (const char* const name :
       {"a.tlx", ".kavrel-x.part", ".kavrel-save", ".kavrel-999999999-0.part"})
    EXPECT_EQ(this->files().replace(std::string("C:\\out\\") + name, "x"), FileError::kNone);
  const auto living = this->files().stage("C:\\out\\b", "x");
  ASSERT_TRUE(living.ok());
  const std::string name = living.value->temporary.substr(living.value->temporary.rfind('\\') + 1);
  for (const char* const folder : {"C:\\out", "C:\\out\\", "C:\\none"}) {
    platform::clear_staged(this->files(), folder);
    Names left = {".kavrel-save", ".kavrel-x.part", "a.tlx", name};
    std::sort(left.begin(), left.end());
    EXPECT_EQ(this->names(), left) << folder;
  }
}

TYPED_TEST(FilesSuite, CopyReplacesItsTarget) {
  EXPECT_EQ(this->files().replace("C:\\out\\a", "new"), FileError::kNone);
  EXPECT_EQ(this->files().replace("C:\\out\\b", "old"), FileError::kNone);
  EXPECT_EQ(this->files().copy("C:\\out\\a", "C:\\out\\b"), FileError::kNone);
  EXPECT_EQ(this->content("C:\\out\\b"), "new");
  EXPECT_EQ(this->files().copy("C:\\out\\a", "C:\\out\\a"), FileError::kNone);
  EXPECT_EQ(this->content("C:\\out\\a"), "new");
  EXPECT_EQ(this->files().copy("C:\\out\\none", "C:\\out\\b"), FileError::kNotFound);
  EXPECT_EQ(this->content("C:\\out\\b"), "new");
  EXPECT_EQ(this->names(), (Names{"a", "b"}));
}

TYPED_TEST(FilesSuite, RemoveTakesFilesAndEmptyFolders) {
  EXPECT_EQ(this->files().create_folder("C:\\out\\sub"), FileError::kNone);
  EXPECT_EQ(this->files().replace("C:\\out\\sub\\a", "x"), FileError::kNone);
  EXPECT_EQ(this->files().remove("C:\\out\\sub"), FileError::kOther);
  EXPECT_EQ(this->files().remove("C:\\out\\sub\\a"), FileError::kNone);
  EXPECT_EQ(this->files().remove("C:\\out\\sub"), FileError::kNone);
  EXPECT_EQ(this->files().remove("C:\\out\\sub"), FileError::kNotFound);
  EXPECT_EQ(this->names(), Names{});
}

TYPED_TEST(FilesSuite, ListTellsFoldersFromFiles) {
  EXPECT_EQ(this->files().create_folder("C:\\out\\sub"), FileError::kNone);
  EXPECT_EQ(this->files().replace("C:\\out\\a", "x"), FileError::kNone);
  EXPECT_EQ(this->files().replace("C:\\out\\sub\\deeper", "x"), FileError::kNone);
  auto entries = *this->files().list("C:\\out\\").value;
  ASSERT_EQ(entries.size(), 2U);
  for (const auto& entry : entries) EXPECT_EQ(entry.is_folder, entry.name == "sub") << entry.name;
}

TYPED_TEST(FilesSuite, SameSeesThroughSpellings) {
  EXPECT_EQ(this->files().replace("C:\\out\\a", "x"), FileError::kNone);
  EXPECT_TRUE(this->files().same("C:\\out\\a", "c:/out\\\\a"));
  EXPECT_TRUE(this->files().same("C:\\out", "C:\\out\\"));
  EXPECT_TRUE(this->files().same("C:\\out\\none", "C:\\out\\\\none"));
  EXPECT_FALSE(this->files().same("C:\\out\\a", "C:\\out\\b"));
}

TYPED_TEST(FilesSuite, PathsWithoutADriveStartAtTheCurrentFolder) {
  this->files().set_current_folder("C:\\out");
  EXPECT_EQ(this->files().current_folder(), "C:\\out");
  EXPECT_EQ(this->files().replace("a", "x"), FileError::kNone);
  EXPECT_EQ(this->content("C:\\out\\a"), "x");
  EXPECT_EQ(this->names(), Names{"a"});
}

TYPED_TEST(FilesSuite, FreeSpaceAndTimeAreToldOfWhatIsThere) {
  EXPECT_EQ(this->files().replace("C:\\out\\a", "x"), FileError::kNone);
  EXPECT_GT(this->files().free_space("C:\\out").value_or(0), 0U);
  EXPECT_GE(this->files().modified("C:\\out\\a")->year, 2014);
  EXPECT_EQ(this->files().modified("C:\\out\\none"), std::nullopt);
}

}  // namespace
