#include "paper/image.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace {

using paper::Image;

TEST(Image, HalfAsLargeIsTheMean) {
  const Image image{4,
                    2,
                    {0xFF000000, 0xFF000000, 0xFFFFFFFF, 0xFFFFFFFF,  //
                     0xFF000000, 0xFF000000, 0xFFFFFFFF, 0xFFFFFFFF}};
  const Image half = paper::scaled(image, 2, 1);
  ASSERT_EQ(half.pixels.size(), 2U);
  EXPECT_EQ(half.pixels[0] >> 24U, 0xFFU);
  EXPECT_LT(half.pixels[0] & 0xFFU, 0x30U);
  EXPECT_GT(half.pixels[1] & 0xFFU, 0xD0U);
  // Of one pixel alone, the mean of all.
  EXPECT_EQ(paper::scaled({2, 1, {0xFF000000, 0xFF0000FE}}, 1, 1).pixels,
            std::vector<std::uint32_t>{0xFF00007F});
}

TEST(Image, InItsOwnSizeStaysWhatItIs) {
  const Image image{2, 2, {0xFF123456, 0x80102030, 0, 0xFFFFFFFF}};
  EXPECT_EQ(paper::scaled(image, 2, 2).pixels, image.pixels);
}

TEST(Image, LargerHasTheSameColoursInItsCorners) {
  const Image image{2, 1, {0xFFFF0000, 0xFF0000FF}};
  const Image large = paper::scaled(image, 8, 4);
  ASSERT_EQ(large.pixels.size(), 32U);
  EXPECT_EQ(large.pixels.front(), 0xFFFF0000U);
  EXPECT_EQ(large.pixels.back(), 0xFF0000FFU);
  EXPECT_NE(large.pixels[4], large.pixels[7]);
}

TEST(Image, OfNothingIsNothing) {
  EXPECT_TRUE(paper::scaled({}, 5, 5).pixels.empty());
  EXPECT_EQ(paper::scaled({1, 1, {7}}, 0, -3).pixels.size(), 1U);
}

TEST(Image, LetsItsBackgroundThrough) {
  EXPECT_EQ(paper::on_background(0xFF112233, 0xABCDEF), 0x112233U);
  EXPECT_EQ(paper::on_background(0, 0xABCDEF), 0xABCDEFU);
  EXPECT_EQ(paper::on_background(0x80800000, 0xFFFFFF), 0xFF7F7FU);  // half of red on white
}

}  // namespace
