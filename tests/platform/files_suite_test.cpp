// What every Files does, the one in memory and the real one alike.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "fakes/fake_files.h"
#include "fakes/temp_folder.h"
#include "platform/posix/posix_files.h"

namespace {

using platform::FileError;
using platform::There;

class InMemory {
 public:
  platform::Files& files() { return files_; }
  void read_only(const std::string& path) { files_.set_read_only(path); }
  void pipe(const std::string& path) { files_.add_other(path); }
  void cannot_tell(const std::string& path) { files_.fail_look(path, FileError::kBadLink); }

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
  platform::Files& files() { return files_; }
  void read_only(const std::string& path) {
    std::filesystem::permissions(*map_.to_os(path).value, std::filesystem::perms::owner_read |
                                                              std::filesystem::perms::owner_exec);
  }
  void pipe(const std::string& path) {
    constexpr mode_t kMode = 0600;
    ASSERT_EQ(::mkfifo(map_.to_os(path).value->c_str(), kMode), 0);
  }
  void cannot_tell(const std::string& path) {
    std::filesystem::create_symlink("leads-nowhere", *map_.to_os(path).value);
  }

 private:
  fakes::TempFolder temp_;
  platform::posix::SystemCalls calls_;
  platform::posix::DriveMap map_{temp_.path()};
  platform::posix::PosixFiles files_{map_, calls_};
};

template <class Kind>
class FilesSuite : public ::testing::Test {
 protected:
  FilesSuite() { EXPECT_EQ(files().create_folder("C:\\out"), FileError::kNone); }
  platform::Files& files() { return kind_.files(); }
  void read_only(const std::string& path) { kind_.read_only(path); }
  void pipe(const std::string& path) { kind_.pipe(path); }
  void cannot_tell(const std::string& path) { kind_.cannot_tell(path); }
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
  EXPECT_EQ(this->files().append("C:\\none\\a", "x").error, FileError::kNotFound);
  EXPECT_EQ(this->files().create_folder("C:\\none\\sub"), FileError::kNotFound);
  EXPECT_EQ(this->files().list("C:\\none").error, FileError::kNotFound);
  this->read_only("C:\\out");
  EXPECT_EQ(this->files().replace("C:\\out\\a", "x"), FileError::kAccessDenied);
  EXPECT_EQ(this->files().append("C:\\out\\a", "x").error, FileError::kAccessDenied);
  EXPECT_EQ(this->files().create_folder("C:\\out\\sub"), FileError::kAccessDenied);
  EXPECT_EQ(this->names(), Names{});
}

TYPED_TEST(FilesSuite, ReadOnlyFileIsRefusedUntilCleared) {
  EXPECT_EQ(this->files().replace("C:\\out\\a", "old"), FileError::kNone);
  this->read_only("C:\\out\\a");
  EXPECT_EQ(this->files().replace("C:\\out\\a", "new"), FileError::kAccessDenied);
  EXPECT_EQ(this->files().append("C:\\out\\a", "new").error, FileError::kAccessDenied);
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
  EXPECT_EQ(this->files().append("C:\\out\\sub", "x").error, FileError::kAccessDenied);
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
  const struct {
    const char* path;
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
      {"C:\\out\\pipe", There::kOther, FileError::kNone, 0},
      {"C:\\out\\hidden", There::kCannotTell, FileError::kBadLink, 0},
      {"A:\\x", There::kCannotTell, FileError::kMediumMissing, 0},
  };
  this->pipe("C:\\out\\pipe");
  this->cannot_tell("C:\\out\\hidden");
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

TYPED_TEST(FilesSuite, AppendCreatesAndAdds) {
  const auto first = this->files().append("C:\\out\\log", "1\n");
  ASSERT_TRUE(first.ok());
  EXPECT_FALSE(first.value->existed);
  EXPECT_EQ(first.value->new_size, 2U);
  const auto second = this->files().append("C:\\out\\log", "22\n");
  ASSERT_TRUE(second.ok());
  EXPECT_TRUE(second.value->existed);
  EXPECT_EQ(second.value->old_size, 2U);
  EXPECT_EQ(second.value->new_size, 5U);
  EXPECT_EQ(this->content("C:\\out\\log"), "1\n22\n");
}

TYPED_TEST(FilesSuite, AppendIsTakenBack) {
  const auto first = this->files().append("C:\\out\\log", "1\n");
  const auto second = this->files().append("C:\\out\\log", "2\n");
  EXPECT_EQ(this->files().take_back(*first.value), FileError::kOther) << "somebody appended since";
  EXPECT_EQ(this->content("C:\\out\\log"), "1\n2\n");
  EXPECT_EQ(this->files().take_back(*second.value), FileError::kNone);
  EXPECT_EQ(this->content("C:\\out\\log"), "1\n");
  EXPECT_EQ(this->files().take_back(*first.value), FileError::kNone);
  EXPECT_FALSE(this->files().is_file("C:\\out\\log")) << "the append had created it";
  EXPECT_EQ(this->files().take_back(*first.value), FileError::kNotFound);
}

TYPED_TEST(FilesSuite, ReadRefusesWhatIsMissingOrTooLarge) {
  EXPECT_EQ(this->files().read("C:\\out\\a").error, FileError::kNotFound);
  EXPECT_EQ(this->files().replace("C:\\out\\a", "12345"), FileError::kNone);
  EXPECT_EQ(this->files().read("C:\\out\\a", 4).error, FileError::kOther);
  EXPECT_EQ(*this->files().read("C:\\out\\a", 5).value, "12345");
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
