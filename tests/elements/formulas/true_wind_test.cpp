#include "elements/formulas/true_wind.h"

#include <gtest/gtest.h>

#include "codetables/tables/wind_figures.h"
#include "elements/formulas/true_wind_rules.h"
#include "text/numbers.h"

namespace {

using codetables::direction_code;
using elements::ApparentWind;
using elements::check_true_wind;
using elements::true_wind;
using elements::true_wind_of_texts;
using elements::TrueWindRule;
using elements::TrueWindTexts;

TEST(TrueWind, AgreesWithPlottedTriangles) {
  struct Row {
    const char* what;
    ApparentWind wind;
    int degrees;  // -1: not compared, the wind is calm
    int code;
    int speed;
  };
  const Row rows[] = {
      {"wind from ahead equals the ship's speed", {{0}, {0}, {20}, {0}, {20}}, -1, 0, 0},
      {"the same eastward, with tiny remainders", {{90}, {90}, {10}, {0}, {10}}, -1, 0, 0},
      {"beam wind at the ship's speed", {{0}, {0}, {10}, {90}, {10}}, 135, 14, 14},
      {"ship sailing astern of its wind", {{180}, {270}, {10}, {90}, {10}}, 360, 36, 20},
      {"wind on the bow", {{240}, {240}, {18}, {40}, {30}}, 315, 32, 20},
      {"drifting ship that cancels", {{45}, {225}, {3}, {180}, {3}}, -1, 0, 0},
      {"port 30 degrees", {{0}, {0}, {0}, {330}, {12}}, 330, 33, 12},
      {"full turn", {{0}, {350}, {0}, {20}, {7}}, 10, 1, 7},
      {"capped", {{0}, {0}, {0}, {90}, {2000}}, 90, 9, 999},
  };
  for (const Row& row : rows) {
    const auto found = true_wind(row.wind);
    if (row.degrees >= 0) {
      EXPECT_NEAR(found.direction.value, row.degrees, 1) << row.what;
    }
    EXPECT_EQ(found.code, row.code) << row.what;
    EXPECT_EQ(found.speed, row.speed) << row.what;
  }
}

TEST(TrueWind, DriftingShipCancelsExactly) {
  const auto found = true_wind({{0}, {0}, {0}, {123}, {0}});
  EXPECT_EQ(found.direction.value, 0);
  EXPECT_EQ(found.code, 0);
  EXPECT_EQ(found.speed, 0);
}

TEST(TrueWind, ShipAtRestFeelsTheTrueWind) {
  for (int heading = 1; heading <= 360; heading += 7) {
    for (int direction = 0; direction <= 360; ++direction) {
      for (const int speed : {1, 9, 40}) {
        const auto found =
            true_wind({{0}, {heading}, {0}, {direction}, {static_cast<double>(speed)}});
        EXPECT_EQ(found.speed, speed);
        const int expected = (heading + direction) % 360;
        // Cut, not rounded, and the angle factor leans one way: a degree less at most.
        const int off = (found.direction.value - expected + 540) % 360 - 180;
        EXPECT_TRUE(off == 0 || off == -1) << heading << ' ' << direction << ' ' << off;
      }
    }
  }
}

TEST(TrueWind, SpeedsAreBroughtToWholeUnitsFirst) {
  EXPECT_EQ(codetables::whole_units({10.4}), 10.0);
  EXPECT_EQ(codetables::whole_units({10.5}), 11.0);
  EXPECT_EQ(codetables::whole_units({0.0}), 0.0);
  EXPECT_EQ(true_wind({{0}, {0}, {9.5}, {0}, {10.4}}).speed, 0);
}

TEST(TrueWind, DirectionCodeIsTensOfDegrees) {
  for (int degrees = 5; degrees < 355; ++degrees) {
    const int code = direction_code({degrees});
    EXPECT_LE(10 * code - 5, degrees);
    EXPECT_LT(degrees, 10 * code + 5);
  }
  struct Row {
    int degrees;
    int code;
  };
  for (const Row& row : {Row{0, 36}, Row{4, 36}, Row{5, 1}, Row{14, 1}, Row{15, 2}, Row{344, 34},
                         Row{345, 35}, Row{354, 35}, Row{355, 36}, Row{360, 36}}) {
    EXPECT_EQ(direction_code({row.degrees}), row.code) << row.degrees;
  }
}

TEST(TrueWindOfTexts, NeedsEveryInputButOneOfHeadingAndCourse) {
  const TrueWindTexts expected{"14", "14"};
  EXPECT_EQ(true_wind_of_texts({"90", "10.0", "360", "0", "10.0"}), expected);
  EXPECT_EQ(true_wind_of_texts({" 9 0", " 10.0 ", "360", "", "10.0"}), expected);
  EXPECT_EQ(true_wind_of_texts({"90", "10.0", " ", "360", "10.0"}), expected);
  for (const elements::ApparentWindTexts& missing :
       {elements::ApparentWindTexts{"", "10.0", "360", "0", "10.0"},
        elements::ApparentWindTexts{"90", " ", "360", "0", "10.0"},
        elements::ApparentWindTexts{"90", "10.0", "", "", "10.0"},
        elements::ApparentWindTexts{"90", "10.0", "360", "0", ""}}) {
    EXPECT_FALSE(true_wind_of_texts(missing));
  }
}

TEST(TrueWindOfTexts, SurvivesWildTexts) {
  const char* const wild[] = {"1e308", "-1e308", "99999999999", "-99999999999", "x", "\xFF"};
  for (const char* angle : wild) {
    for (const char* speed : wild) {
      const auto found = true_wind_of_texts({angle, speed, angle, angle, speed});
      const bool numbers = text::number_at_start(angle) && text::number_at_start(speed);
      ASSERT_EQ(found.has_value(), numbers) << angle << " " << speed;
      if (!found) continue;
      EXPECT_LE(found->direction.size(), 2U);
      EXPECT_LE(found->speed.size(), 3U);
    }
  }
}

TEST(WindFigures, SpeedsFrom99UnitsUpGoToThreeFigures) {
  using codetables::WindFigures;
  struct Row {
    const char* direction;
    const char* speed;
    WindFigures figures;
  };
  for (const Row& row :
       {Row{"14", "14", {"14", "14", ""}}, Row{"0", "0", {"00", "00", ""}},
        Row{"5", "98", {"05", "98", ""}}, Row{"36", "98.4", {"36", "98", ""}},
        Row{"36", "98.5", {"36", "99", "099"}}, Row{"36", "99", {"36", "99", "099"}},
        Row{"36", "120", {"36", "99", "120"}}, Row{"36", "1e300", {"36", "99", "999"}},
        Row{"00", "0.3", {"00", "00", ""}}, Row{"//", "//", {"//", "//", ""}},
        Row{"", "", {"", "", ""}}}) {
    EXPECT_EQ(codetables::wind_figures(row.direction, row.speed), row.figures)
        << row.direction << ' ' << row.speed;
  }
}

TEST(TrueWindRules, DirectionAndSpeedGoTogether) {
  struct Row {
    const char* direction;
    const char* speed;
    TrueWindRule rule;
  };
  const Row rows[] = {
      {"00", "0", TrueWindRule::kKept},
      {"0", "0", TrueWindRule::kKept},
      {"00", "0.3", TrueWindRule::kKept},
      {"00", "0.5", TrueWindRule::kCalmWithSpeed},
      {"0", "12", TrueWindRule::kCalmWithSpeed},
      {"00", "//", TrueWindRule::kKept},
      {"00", "", TrueWindRule::kKept},
      {"18", "0", TrueWindRule::kDirectionWithoutSpeed},
      {"", "0", TrueWindRule::kDirectionWithoutSpeed},
      {"99", "0.0", TrueWindRule::kDirectionWithoutSpeed},
      {"18", "0.3", TrueWindRule::kDirectionBelowOneKnot},
      {"", "0.3", TrueWindRule::kDirectionBelowOneKnot},
      {"18", "0.5", TrueWindRule::kKept},
      {"18", "//", TrueWindRule::kKept},
      {"18", "", TrueWindRule::kKept},
      {"18", "   ", TrueWindRule::kKept},
      {"//", "0", TrueWindRule::kKept},
      {"//", "0.3", TrueWindRule::kKept},
      {"  ", "0", TrueWindRule::kKept},
      {"", "", TrueWindRule::kKept},
  };
  for (const Row& row : rows)
    EXPECT_EQ(check_true_wind(row.direction, row.speed), row.rule)
        << '"' << row.direction << "\" \"" << row.speed << '"';
}

}  // namespace
