// A place among files that is one copy of the program's alone: in memory and on the real files.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "fakes/fake_files.h"
#include "fakes/temp_folder.h"
#include "platform/failing_calls.h"
#include "platform/posix/posix_files.h"

namespace {

using platform::FileError;
using platform::posix::DriveMap;
using platform::posix::PosixFiles;

constexpr const char* kClaim = "C:\\out\\a.LCK";

/// One copy of the program at the files of a computer.
struct Place {
  fakes::TempFolder temp;
  tests::FailingCalls calls;
  DriveMap map{temp.path()};
  PosixFiles files{map, calls};
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
  const Place place;
  std::filesystem::permissions(
      place.temp / "out", std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
  PosixFiles files(place.map, const_cast<tests::FailingCalls&>(place.calls));
  EXPECT_EQ(files.claim(kClaim).error, FileError::kAccessDenied);
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
  for (const int error_number : {ENOLCK, EOPNOTSUPP, ENOSYS, EINVAL}) {
    SCOPED_TRACE(error_number);
    Place place;
    place.calls.fail_all("try_lock", error_number);
    is_made_without_a_lock(place.files);
  }
}

TEST(Claim, OfAnotherProcessIsRespectedAndEndsWithIt) {
  Place place;
  int ready[2];
  int done[2];
  ASSERT_EQ(::pipe(ready), 0);
  ASSERT_EQ(::pipe(done), 0);
  const pid_t other = ::fork();
  if (other == 0) {
    const auto claim = place.files.claim(kClaim);
    char c = claim.ok() ? 'y' : 'n';
    (void)!::write(ready[1], &c, 1);
    (void)!::read(done[0], &c, 1);
    ::_exit(0);  // nothing is given up: a kill
  }
  char held = 'n';
  ASSERT_EQ(::read(ready[0], &held, 1), 1);
  EXPECT_EQ(held, 'y');
  EXPECT_EQ(place.files.claim(kClaim).error, FileError::kLocked);
  ASSERT_EQ(::write(done[1], "x", 1), 1);
  int status = 0;
  ASSERT_EQ(::waitpid(other, &status, 0), other);
  EXPECT_EQ(place.temp.names("out"), std::vector<std::string>{"a.LCK"});
  EXPECT_TRUE(place.files.claim(kClaim).ok()) << "the file that a kill leaves stops nobody";
  for (const int end : {ready[0], ready[1], done[0], done[1]}) ::close(end);
}

TEST(Claim, IsMadeOrNotWhicheverCallFails) {
  Place place;
  ASSERT_TRUE(place.files.claim(kClaim).ok());
  const int calls = place.calls.count();
  ASSERT_GT(calls, 3);
  for (int n = 1; n <= calls; ++n) {
    place.calls.fail_at(n, EIO);
    auto claim = place.files.claim(kClaim);
    place.calls.heal();
    // Who has it, has it alone; and whoever has not got it stands in nobody's way.
    EXPECT_EQ(place.files.claim(kClaim).ok(), !claim.ok()) << n;
    claim.value.reset();
    EXPECT_TRUE(place.files.claim(kClaim).ok()) << n;
  }
}

}  // namespace
