#include "elements/formulas/ship_movement.h"

#include <gtest/gtest.h>

namespace {

using elements::check_movement;
using elements::MovementWarning;

TEST(ShipMovement, LongitudeLimitGrowsInBandsWithGaps) {
  struct Row {
    int latitude;
    int largest;  // tenths over three hours that still pass; -1: never warns
  };
  const Row rows[] = {{0, 21},   {300, 21}, {398, 21}, {399, -1}, {400, 30}, {450, 30},
                      {498, 30}, {499, -1}, {500, 42}, {598, 42}, {599, -1}, {600, 60},
                      {698, 60}, {699, -1}, {700, 81}, {798, 81}, {799, -1}, {900, -1}};
  for (const Row& row : rows) {
    const auto moved = [&](int tenths) {
      return check_movement({1, row.latitude, 500 + tenths}, {1, row.latitude, 500});
    };
    if (row.largest < 0) {
      EXPECT_EQ(moved(1300), MovementWarning::kNone) << row.latitude;
      continue;
    }
    EXPECT_EQ(moved(row.largest), MovementWarning::kNone) << row.latitude;
    EXPECT_EQ(moved(-row.largest), MovementWarning::kNone) << row.latitude;
    EXPECT_EQ(moved(row.largest + 1), MovementWarning::kLongitude) << row.latitude;
    EXPECT_EQ(moved(-row.largest - 1), MovementWarning::kLongitude) << row.latitude;
  }
}

TEST(ShipMovement, TheThreeExamples) {
  // 0.9 degrees of longitude an hour.
  EXPECT_EQ(check_movement({1, 450, 527}, {1, 450, 500}), MovementWarning::kNone);
  EXPECT_EQ(check_movement({1, 399, 527}, {1, 399, 500}), MovementWarning::kNone);
  EXPECT_EQ(check_movement({1, 300, 527}, {1, 300, 500}), MovementWarning::kLongitude);
}

TEST(ShipMovement, LatitudeWarnsAbove21TenthsAndLongitudeReplacesIt) {
  EXPECT_EQ(check_movement({1, 321, 500}, {1, 300, 500}), MovementWarning::kNone);
  EXPECT_EQ(check_movement({1, 322, 500}, {1, 300, 500}), MovementWarning::kLatitude);
  EXPECT_EQ(check_movement({1, 278, 500}, {1, 300, 500}), MovementWarning::kLatitude);
  EXPECT_EQ(check_movement({1, 322, 600}, {1, 300, 500}), MovementWarning::kLongitude);
  // In a gap the latitude's result stands.
  EXPECT_EQ(check_movement({1, 399, 600}, {1, 300, 500}), MovementWarning::kLatitude);
}

TEST(ShipMovement, QuadrantsSignThePositions) {
  // Across the equator: 1.0 north and 1.2 south are 2.2 apart.
  EXPECT_EQ(check_movement({1, 10, 500}, {3, 12, 500}), MovementWarning::kLatitude);
  EXPECT_EQ(check_movement({7, 10, 500}, {5, 11, 500}), MovementWarning::kNone);
  // Across Greenwich.
  EXPECT_EQ(check_movement({1, 100, 10}, {7, 100, 11}), MovementWarning::kNone);
  EXPECT_EQ(check_movement({3, 100, 11}, {5, 100, 11}), MovementWarning::kLongitude);
  // The date line is no exception.
  EXPECT_EQ(check_movement({1, 100, 1799}, {7, 100, 1799}), MovementWarning::kLongitude);
  // The bands look at the latitude without its sign.
  EXPECT_EQ(check_movement({3, 450, 527}, {3, 450, 500}), MovementWarning::kNone);
}

}  // namespace
