#include "fakes/fake_files.h"

#include <gtest/gtest.h>

namespace {

using fakes::FakeFiles;
using platform::FileError;

FakeFiles with_folder() {
  FakeFiles files;
  files.add_folder("C:\\out\\");
  return files;
}

TEST(FakeFiles, ReplaceStagesBesideAndCommits) {
  auto files = with_folder();
  EXPECT_EQ(files.replace("C:\\out\\A.tlx", "new"), FileError::kNone);
  EXPECT_EQ(files.content("c:/OUT/a.tlx"), "new");
  EXPECT_EQ(files.snapshot().size(), 1U);
  EXPECT_EQ(files.log(),
            (std::vector<std::string>{"stage C:\\out\\A.tlx", "commit C:\\out\\A.tlx"}));
}

TEST(FakeFiles, NothingIsWrittenIntoAMissingFolder) {
  FakeFiles files;
  EXPECT_EQ(files.replace("C:\\out\\a.tlx", "new"), FileError::kNotFound);
  EXPECT_EQ(files.lock_log("C:\\out\\immt5.log").error, FileError::kNotFound);
  EXPECT_TRUE(files.snapshot().empty());
}

TEST(FakeFiles, AKilledProgramTidiesNothing) {
  auto files = with_folder();
  files.kill_before(2);
  const auto append = [&] {
    const auto log = files.lock_log("C:\\out\\immt5.log");
    (void)(*log.value)->append("x");
  };
  EXPECT_THROW(append(), FakeFiles::Killed);
  EXPECT_EQ(files.content("C:\\out\\immt5.log"), "") << "the empty file stays";
  files.heal();
  EXPECT_TRUE(files.lock_log("C:\\out\\immt5.log").ok()) << "the lock does not";
}

TEST(FakeFiles, ScriptedErrorsComeOnceAndChangeNothing) {
  auto files = with_folder();
  files.fail_next(FakeFiles::Operation::kStage, FileError::kNoSpace);
  files.fail_at(2, FileError::kAccessDenied);
  EXPECT_EQ(files.stage("C:\\out\\a", "x").error, FileError::kNoSpace);
  EXPECT_EQ(files.create_folder("C:\\out\\b"), FileError::kAccessDenied);
  EXPECT_TRUE(files.snapshot().empty());
  EXPECT_FALSE(files.is_folder("C:\\out\\b"));
  EXPECT_EQ(files.create_folder("C:\\out\\b"), FileError::kNone);
  EXPECT_EQ(files.log().front(), "stage C:\\out\\a !");
}

TEST(FakeFiles, AKillLeavesWhatWasDoneBeforeIt) {
  auto files = with_folder();
  files.kill_after(1);
  EXPECT_THROW((void)files.replace("C:\\out\\a.tlx", "x"), FakeFiles::Killed);
  EXPECT_FALSE(files.is_file("C:\\out\\a.tlx"));
  EXPECT_EQ(files.snapshot().size(), 1U) << "the staged file is left over";
}

TEST(FakeFiles, DrivesWithoutMediumOrRoomSaySo) {
  auto files = with_folder();
  files.set_medium_missing('D');
  files.set_free_space('c', 2);
  EXPECT_EQ(files.read("D:\\a").error, FileError::kMediumMissing);
  EXPECT_FALSE(files.is_folder("D:\\"));
  EXPECT_EQ(files.replace("C:\\out\\a", "abc"), FileError::kNoSpace);
}

}  // namespace
