// Nothing that the computer does wrong leaves the port as an exception: it becomes an error value,
// or what was known before stays.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <new>

#include "fakes/temp_folder.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/system.h"

namespace {

using platform::FileError;
using platform::posix::System;

/// Memory runs out while a file or a folder is read.
class NoMemory : public platform::posix::SystemCalls {
 public:
  int open_files = 0;
  int open_folders = 0;
  int open(const char* path, int flags, mode_t mode) override {
    const int file = SystemCalls::open(path, flags, mode);
    if (file != -1) ++open_files;
    return file;
  }
  int close(int file) override {
    --open_files;
    return SystemCalls::close(file);
  }
  ssize_t read(int, void*, std::size_t) override { throw std::bad_alloc(); }
  ssize_t read_at(int, void*, std::size_t, off_t) override { throw std::bad_alloc(); }
  DIR* opendir(const char* path) override {
    ++open_folders;
    return SystemCalls::opendir(path);
  }
  dirent* readdir(DIR*) override { throw std::bad_alloc(); }
  int closedir(DIR* folder) override {
    --open_folders;
    return SystemCalls::closedir(folder);
  }
};

platform::SystemOptions rooted(const fakes::TempFolder& temp) {
  platform::SystemOptions options;
  options.root = temp.path();
  return options;
}

TEST(NoException, MemoryThatRunsOutIsAnErrorAndLeavesNothingOpen) {
  const fakes::TempFolder temp;
  temp.write("a", "content");
  NoMemory calls;
  const platform::posix::PosixDriveMap drives(temp.path());
  const platform::posix::PosixFiles files(drives, calls);
  EXPECT_EQ(files.read("C:\\a").error, FileError::kNoMemory);
  EXPECT_EQ(files.read_part("C:\\a", 0, 1).error, FileError::kNoMemory);
  EXPECT_EQ(files.list("C:\\").error, FileError::kNoMemory);
  EXPECT_EQ(calls.open_files, 0);
  EXPECT_EQ(calls.open_folders, 0);
}

TEST(NoException, FolderInPlaceOfTheListOfDrivesIsAProblemToldByName) {
  const fakes::TempFolder temp;
  std::filesystem::create_directory(temp / "drives.txt");
  const System system(rooted(temp));
  ASSERT_EQ(system.problems().size(), 1U);
  EXPECT_EQ(system.problems()[0], "drives.txt: cannot be read: a folder or a device, not a file");
}

TEST(NoException, PipeInPlaceOfTheListOfDrivesIsNotWaitedFor) {
  const fakes::TempFolder temp;
  ASSERT_EQ(::mkfifo((temp / "drives.txt").c_str(), 0600), 0);
  const System system(rooted(temp));
  ASSERT_EQ(system.problems().size(), 1U);
}

TEST(NoException, ListOfDrivesThatCannotBeReadAnyMoreLeavesTheDrivesAsTheyWere) {
  const fakes::TempFolder temp;
  temp.write("drives.txt", "A removable floppy absent\nE removable other absent\n");
  System system(rooted(temp));
  ASSERT_TRUE(system.problems().empty());
  const auto letters = [&] {
    std::string all;
    for (const platform::Drive& drive : system.drives().drives()) all += drive.letter;
    return all;
  };
  ASSERT_EQ(letters(), "ACEZ");
  std::filesystem::remove(temp / "drives.txt");
  std::filesystem::create_directory(temp / "drives.txt");
  EXPECT_EQ(letters(), "ACEZ");
  // A link that leads nowhere: what it names may only be away.
  std::filesystem::remove(temp / "drives.txt");
  std::filesystem::create_symlink("away", temp / "drives.txt");
  EXPECT_EQ(letters(), "ACEZ");
}

}  // namespace
