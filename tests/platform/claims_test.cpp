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
  ASSERT_NE(claim, nullptr);
  EXPECT_EQ(files.claim(kClaim), nullptr);
  EXPECT_NE(files.claim("C:\\out\\b.LCK"), nullptr);
  claim.reset();
  EXPECT_TRUE(files.list("C:\\out").value->empty()) << "nothing stays of a claim given up";
  EXPECT_NE(files.claim(kClaim), nullptr);
  EXPECT_EQ(files.claim("C:\\nowhere\\a.LCK"), nullptr);
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
  EXPECT_EQ(in_memory.claim(kClaim), nullptr);
  const Place place;
  std::filesystem::permissions(
      place.temp / "out", std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
  PosixFiles files(place.map, const_cast<tests::FailingCalls&>(place.calls));
  EXPECT_EQ(files.claim(kClaim), nullptr);
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
    char c = claim != nullptr ? 'y' : 'n';
    (void)!::write(ready[1], &c, 1);
    (void)!::read(done[0], &c, 1);
    ::_exit(0);  // nothing is given up: a kill
  }
  char held = 'n';
  ASSERT_EQ(::read(ready[0], &held, 1), 1);
  EXPECT_EQ(held, 'y');
  EXPECT_EQ(place.files.claim(kClaim), nullptr);
  ASSERT_EQ(::write(done[1], "x", 1), 1);
  int status = 0;
  ASSERT_EQ(::waitpid(other, &status, 0), other);
  EXPECT_EQ(place.temp.names("out"), std::vector<std::string>{"a.LCK"});
  EXPECT_NE(place.files.claim(kClaim), nullptr) << "the file that a kill leaves stops nobody";
  for (const int end : {ready[0], ready[1], done[0], done[1]}) ::close(end);
}

TEST(Claim, IsMadeOrNotWhicheverCallFails) {
  Place place;
  ASSERT_NE(place.files.claim(kClaim), nullptr);
  const int calls = place.calls.count();
  ASSERT_GT(calls, 3);
  for (int n = 1; n <= calls; ++n) {
    place.calls.fail_at(n, EIO);
    auto claim = place.files.claim(kClaim);
    place.calls.heal();
    // Who has it, has it alone; and whoever has not got it stands in nobody's way.
    EXPECT_EQ(place.files.claim(kClaim) != nullptr, claim == nullptr) << n;
    claim.reset();
    EXPECT_NE(place.files.claim(kClaim), nullptr) << n;
  }
}

}  // namespace
