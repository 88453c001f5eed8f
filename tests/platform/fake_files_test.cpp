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
  EXPECT_EQ(files.append("C:\\out\\immt5.log", "x").error, FileError::kNotFound);
  EXPECT_TRUE(files.snapshot().empty());
}

TEST(FakeFiles, AppendIsTakenBackUnlessSomebodyAppendedMore) {
  auto files = with_folder();
  const auto created = files.append("C:\\out\\immt5.log", "1\n");
  ASSERT_TRUE(created.ok());
  EXPECT_EQ(files.take_back(*created.value), FileError::kNone);
  EXPECT_FALSE(files.is_file("C:\\out\\immt5.log"));

  files.add_file("C:\\out\\immt5.log", "1\n");
  const auto second = files.append("C:\\out\\immt5.log", "2\n");
  ASSERT_TRUE(files.append("C:\\out\\immt5.log", "3\n").ok());
  EXPECT_EQ(files.take_back(*second.value), FileError::kOther);
  EXPECT_EQ(files.content("C:\\out\\immt5.log"), "1\n2\n3\n");
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
