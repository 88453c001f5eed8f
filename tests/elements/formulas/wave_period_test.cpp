#include "elements/formulas/wave_period.h"

#include <gtest/gtest.h>

namespace {

using elements::deep_water_period;

// The lengths that belong to whole periods in deep water: 1.5608 m times the square of the seconds.
TEST(WavePeriod, BelongsToTheLengthOfWavesInDeepWater) {
  for (const auto& [length, period] : {std::pair{1.5608, 1.0},
                                       {39.02, 5.0},
                                       {156.08, 10.0},
                                       {351.18, 15.0},
                                       {624.32, 20.0},
                                       {975.5, 25.0}})
    EXPECT_NEAR(deep_water_period({length}).value, period, 0.0005) << length;
}

TEST(WavePeriod, DoublesWhereTheLengthIsFourTimesAsLong) {
  for (const double length : {1.0, 10.0, 77.0, 250.0})
    EXPECT_NEAR(deep_water_period({4 * length}).value, 2 * deep_water_period({length}).value, 1e-9);
}

}  // namespace
