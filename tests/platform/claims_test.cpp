// A place among files that is one copy of the program's alone: in memory and on the real files.

#include <gtest/gtest.h>

#include "fakes/fake_files.h"
#include "platform/port_under_test.h"

namespace {

using platform::FileError;

constexpr const char* kClaim = "C:\\out\\a.LCK";

/// One copy of the program at the files of a computer.
struct Place : tests::PortUnderTest {
  Place() { temp.folder("out"); }
};

void is_one_copys_alone(platform::Files& files) {
  auto claim = files.claim(kClaim);
  ASSERT_TRUE(claim.ok());
  EXPECT_TRUE((*claim.value)->is_locked());
  EXPECT_EQ(files.claim(kClaim).error, FileError::kLocked);
  EXPECT_TRUE(files.claim("C:\\out\\b.LCK").ok());
  claim.value.reset();
  EXPECT_TRUE(files.list("C:\\out").value->empty()) << "nothing stays of a claim given up";
  EXPECT_TRUE(files.claim(kClaim).ok());
  EXPECT_EQ(files.claim("C:\\nowhere\\a.LCK").error, FileError::kNotFound);
}

TEST(Claim, IsOneCopysAloneUntilItIsGivenUp) {
  fakes::FakeFiles in_memory;
  in_memory.add_folder("C:\\out");
  is_one_copys_alone(in_memory);
  Place place;
  is_one_copys_alone(place.files);
}

TEST(Claim, CannotBeMadeInAFolderThatNobodyMayWrite) {
  fakes::FakeFiles in_memory;
  in_memory.add_folder("C:\\out");
  in_memory.set_read_only("C:\\out");
  EXPECT_EQ(in_memory.claim(kClaim).error, FileError::kAccessDenied);
  Place place;
  place.read_only("C:\\out");
  EXPECT_EQ(place.files.claim(kClaim).error, FileError::kAccessDenied);
}

void is_made_without_a_lock(platform::Files& files) {
  const auto claim = files.claim(kClaim);
  ASSERT_TRUE(claim.ok());
  EXPECT_FALSE((*claim.value)->is_locked());
  EXPECT_TRUE(files.claim(kClaim).ok()) << "nobody is kept out";
}

// As a logbook there is saved without a lock.
TEST(Claim, IsMadeWithoutALockWhereTheFileSystemHasNone) {
  fakes::FakeFiles in_memory;
  in_memory.add_folder("C:\\out");
  in_memory.set_lockless();
  is_made_without_a_lock(in_memory);
  for (const auto error_number : tests::kNoLocks) {
    SCOPED_TRACE(error_number);
    Place place;
    place.calls.fail_all(tests::kClaimLock, error_number);
    is_made_without_a_lock(place.files);
  }
}

TEST(Claim, IsMadeOrNotWhicheverCallFails) {
  Place place;
  ASSERT_TRUE(place.files.claim(kClaim).ok());
  const int calls = place.calls.count();
  ASSERT_GT(calls, 3);
  for (int n = 1; n <= calls; ++n) {
    place.calls.fail_at(n, tests::kBrokenDisk);
    auto claim = place.files.claim(kClaim);
    place.calls.heal();
    // Who has it, has it alone; and whoever has not got it stands in nobody's way.
    EXPECT_EQ(place.files.claim(kClaim).ok(), !claim.ok()) << n;
    claim.value.reset();
    EXPECT_TRUE(place.files.claim(kClaim).ok()) << n;
  }
}

}  // namespace
