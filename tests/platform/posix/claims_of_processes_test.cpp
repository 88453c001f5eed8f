// A claim of another process.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/port_under_test.h"

namespace {

using platform::FileError;

constexpr const char* kClaim = "C:\\out\\a.LCK";

TEST(Claim, OfAnotherProcessIsRespectedAndEndsWithIt) {
  tests::PortUnderTest place;
  place.temp.folder("out");
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

}  // namespace
