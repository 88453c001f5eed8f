#include "platform/system/patience.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using platform::Patience;

TEST(Patience, PausesTwiceAsLongEachTimeUpToFifty) {
  Patience patience(1000);
  std::vector<int> pauses;
  for (int i = 0; i < 9; ++i) pauses.push_back(patience.next_pause(0));
  EXPECT_EQ(pauses, (std::vector<int>{1, 2, 4, 8, 16, 32, 50, 50, 50}));
}

TEST(Patience, EndsWithItsTime) {
  Patience patience(1000);
  EXPECT_EQ(patience.next_pause(999), 1);
  EXPECT_EQ(patience.next_pause(1000), 0);
  EXPECT_EQ(patience.next_pause(5000), 0);
}

TEST(Patience, ThatIsUpFromTheStartAllowsNoPause) {
  Patience patience(0);
  EXPECT_EQ(patience.next_pause(0), 0);
}

}  // namespace
