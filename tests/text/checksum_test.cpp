#include "text/checksum.h"

#include <gtest/gtest.h>

namespace {

std::uint64_t sum_of(std::string_view content) {
  text::Checksum sum;
  sum.add(content);
  return sum.value();
}

// The values that the sum's authors publish for these texts.
TEST(Checksum, IsThePublishedOne) {
  EXPECT_EQ(sum_of(""), 0xcbf29ce484222325U);
  EXPECT_EQ(sum_of("a"), 0xaf63dc4c8601ec8cU);
  EXPECT_EQ(sum_of("foobar"), 0x85944171f73967e8U);
}

TEST(Checksum, PiecesGiveTheSumOfTheWhole) {
  text::Checksum sum;
  for (const char* const piece : {"fo", "", "ob", "ar"}) sum.add(piece);
  EXPECT_EQ(sum.value(), sum_of("foobar"));
  EXPECT_NE(sum_of(std::string_view("\0", 1)), sum_of(""));
}

}  // namespace
