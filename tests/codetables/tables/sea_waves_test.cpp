#include "codetables/tables/sea_waves.h"

#include <gtest/gtest.h>

#include "codetables/tables/wave_height.h"
#include "codetables/tables/wind_figures.h"

namespace {

using codetables::CheckedWave;
using codetables::WaveCheck;

// The check of each text, and what is kept of it.
struct Row {
  const char* typed;
  WaveCheck check;
  const char* kept;
};

void expect(const CheckedWave& checked, const Row& row) {
  EXPECT_EQ(checked.check, row.check) << "\"" << row.typed << "\"";
  EXPECT_EQ(checked.text, row.kept) << "\"" << row.typed << "\"";
}

TEST(SwellDirection, IsTensOfDegreesUnknownOrNoneAndOnlyTheFirstIsConfused) {
  for (const bool first : {true, false}) {
    for (const Row& row :
         {Row{"01", WaveCheck::kTaken, "01"},
          {"36", WaveCheck::kTaken, "36"},
          {"5", WaveCheck::kTaken, "05"},
          {" 18 ", WaveCheck::kTaken, "18"},
          {"00", WaveCheck::kTaken, "00"},
          {"0", WaveCheck::kTaken, "00"},
          {"//", WaveCheck::kTaken, "//"},
          {"99", first ? WaveCheck::kTaken : WaveCheck::kOutOfRange, first ? "99" : ""},
          {"37", WaveCheck::kOutOfRange, ""},
          {"98", WaveCheck::kOutOfRange, ""},
          {"-1", WaveCheck::kOutOfRange, ""},
          {"1.", WaveCheck::kOutOfRange, ""},
          {"", WaveCheck::kNoNumber, ""},
          {"  ", WaveCheck::kNoNumber, ""},
          {"*", WaveCheck::kNoNumber, ""},
          {"/", WaveCheck::kNoNumber, ""},
          {"x", WaveCheck::kNoNumber, ""},
          {"1x", WaveCheck::kNoNumber, ""},
          {"\xff", WaveCheck::kNoNumber, ""}})
      expect(codetables::check_swell_direction(row.typed, first), row);
  }
}

TEST(WavePeriod, IsUnderThirtySecondsAndDoubtedBeyondTheLines) {
  for (const bool wind : {true, false}) {
    for (const Row& row :
         {Row{"00", WaveCheck::kTaken, "00"},
          {"1", WaveCheck::kTaken, "01"},
          {"25", WaveCheck::kTaken, "25"},
          {"26", WaveCheck::kDoubted, "26"},
          {"29", WaveCheck::kDoubted, "29"},
          {"30", WaveCheck::kOutOfRange, ""},
          {"//", WaveCheck::kTaken, "//"},
          {"99", wind ? WaveCheck::kTaken : WaveCheck::kOutOfRange, wind ? "99" : ""},
          {"98", WaveCheck::kOutOfRange, ""},
          {".5", WaveCheck::kOutOfRange, ""},
          {"", WaveCheck::kNoNumber, ""},
          {"*", WaveCheck::kNoNumber, ""},
          {"/", WaveCheck::kNoNumber, ""}})
      expect(codetables::check_wave_period(row.typed, wind), row);
  }
}

TEST(WaveHeight, IsMetresWithOneDecimalUpToTheHighestThatTheReportHas) {
  for (const Row& row : {Row{"0.5", WaveCheck::kTaken, "0.5"}, {"14.5", WaveCheck::kTaken, "14.5"},
                         {"2", WaveCheck::kTaken, "2.0"},      {".5", WaveCheck::kTaken, "0.5"},
                         {"1.3", WaveCheck::kTaken, "1.3"},    {"00", WaveCheck::kTaken, "00"},
                         {"0", WaveCheck::kTaken, "0.0"},      {"-0", WaveCheck::kTaken, "0.0"},
                         {"0.2", WaveCheck::kTaken, "0.2"},    {"<0.25", WaveCheck::kTaken, "0.2"},
                         {"< 0.25", WaveCheck::kTaken, "0.2"}, {"//", WaveCheck::kTaken, "//"},
                         {"14.6", WaveCheck::kOutOfRange, ""}, {"15", WaveCheck::kOutOfRange, ""},
                         {"-1", WaveCheck::kOutOfRange, ""},   {"", WaveCheck::kNoNumber, ""},
                         {"*", WaveCheck::kNoNumber, ""},      {"/", WaveCheck::kNoNumber, ""},
                         {"x", WaveCheck::kNoNumber, ""},      {"<0.5", WaveCheck::kNoNumber, ""},
                         {"1,5", WaveCheck::kNoNumber, ""}})
    expect(codetables::check_wave_height(row.typed), row);
}

TEST(WaveLines, AreAllTakenByTheirChecksAsTheyStand) {
  for (const bool first : {true, false}) {
    for (const std::string& line : codetables::swell_direction_lines(first))
      expect(codetables::check_swell_direction(line, first),
             {line.c_str(), WaveCheck::kTaken, line.c_str()});
  }
  for (const std::string& line : codetables::swell_period_lines())
    expect(codetables::check_wave_period(line, false),
           {line.c_str(), WaveCheck::kTaken, line.c_str()});
  for (const std::string& line : codetables::wind_wave_period_lines())
    expect(codetables::check_wave_period(line, true),
           {line.c_str(), WaveCheck::kTaken, line.c_str()});
  for (const std::string& line : codetables::wave_height_lines("<0.25")) {
    const std::string kept = line == "<0.25" ? "0.2" : line;
    expect(codetables::check_wave_height(line), {line.c_str(), WaveCheck::kTaken, kept.c_str()});
  }
}

TEST(WaveLines, AreThoseOfTheLists) {
  const auto first = codetables::swell_direction_lines(true);
  ASSERT_EQ(first.size(), 39U);
  EXPECT_EQ(first.front(), "01");
  EXPECT_EQ(first[35], "36");
  EXPECT_EQ(first[36] + first[37] + first[38], "99//00");
  const auto second = codetables::swell_direction_lines(false);
  ASSERT_EQ(second.size(), 38U);
  EXPECT_EQ(second[36] + second[37], "//00");
  const auto periods = codetables::swell_period_lines();
  ASSERT_EQ(periods.size(), 26U);
  EXPECT_EQ(periods[0] + periods[24] + periods[25], "0125//");
  const auto of_wind = codetables::wind_wave_period_lines();
  ASSERT_EQ(of_wind.size(), 27U);
  EXPECT_EQ(of_wind[25] + of_wind[26], "//99");
  const auto heights = codetables::wave_height_lines("< 0.25");
  ASSERT_EQ(heights.size(), 31U);
  EXPECT_EQ(heights[0] + heights[1] + heights[2] + heights[29] + heights[30], "< 0.250.51.014.5//");
}

TEST(WaveHeight, BelowAQuarterOfAMetreIsShownSoAndIsZeroInTheReport) {
  EXPECT_EQ(codetables::wave_height_shown("0.2", "", "<0.25"), "<0.25");
  // Half metres of 00 beside a period are waves, though hardly any.
  EXPECT_EQ(codetables::wave_height_shown("0.0", "05", "<0.25"), "<0.25");
  EXPECT_EQ(codetables::wave_height_shown("00", "05", "< 0.25"), "< 0.25");
  for (const char* const period : {"00", "//", "99", "", "*", "30"})
    EXPECT_EQ(codetables::wave_height_shown("0.0", period, "<0.25"), "0.0") << period;
  for (const char* const height : {"", "//", "0.5", "*", "/", "14.5", "49.5"})
    EXPECT_EQ(codetables::wave_height_shown(height, "05", "<0.25"), height);
  EXPECT_EQ(codetables::half_metre_figures(codetables::kSmallestHeight), "00");
}

TEST(NoWaves, AreBothPeriodAndHeightOfZero) {
  EXPECT_TRUE(codetables::are_no_waves("00", "00"));
  EXPECT_TRUE(codetables::are_no_waves("00", "0.0"));
  for (const auto& [period, height] : {std::pair{"00", ""},
                                       {"00", "//"},
                                       {"00", "0.2"},
                                       {"05", "0.0"},
                                       {"", "00"},
                                       {"", ""},
                                       {"//", "00"}})
    EXPECT_FALSE(codetables::are_no_waves(period, height)) << period << height;
}

TEST(ProbableWaveHeight, FollowsTheBeaufortForce) {
  const char* const heights[] = {" -",  "0.1", "0.2", "0.6", "1.0",  "2.0", "3.0",
                                 "4.0", "5.5", "7.0", "9.0", "11.5", "14.0"};
  for (int force = 0; force <= 12; ++force)
    EXPECT_EQ(codetables::probable_wave_height(force), heights[force]) << force;
}

TEST(BeaufortForce, ChangesAtItsLowerLimitsInWholeKnots) {
  const double from[] = {0, 1, 4, 7, 11, 17, 22, 28, 34, 41, 48, 56, 64};
  for (int force = 0; force <= 12; ++force) {
    EXPECT_EQ(codetables::beaufort_force({from[force]}), force);
    if (force == 0) continue;
    EXPECT_EQ(codetables::beaufort_force({from[force] - 1}), force - 1);
    EXPECT_EQ(codetables::beaufort_force({from[force] - 0.5}), force);
    EXPECT_EQ(codetables::beaufort_force({from[force] - 0.6}), force - 1);
  }
  EXPECT_EQ(codetables::beaufort_force({999}), 12);
}

TEST(WindInKnots, FollowsTheUnitOfTheRecord) {
  EXPECT_EQ(codetables::knots_of("20", "4")->value, 20);
  EXPECT_EQ(codetables::knots_of("20", "3")->value, 20);
  EXPECT_EQ(codetables::knots_of("20", "")->value, 20);
  // A knot is a nautical mile of 1852 m an hour: 20 m/s are 72000 m an hour.
  EXPECT_NEAR(codetables::knots_of("20", "0")->value, 38.877, 0.001);
  EXPECT_NEAR(codetables::knots_of("20", "1")->value, 38.877, 0.001);
  for (const char* const none : {"", "//", "/", "*", "x"})
    EXPECT_FALSE(codetables::knots_of(none, "4")) << none;
}

}  // namespace
