#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <vector>

#include "codetables/tables/temperature_figures.h"
#include "elements/formulas/psychrometer.h"
#include "elements/formulas/relative_humidity.h"
#include "fakes/sample_ship.h"

namespace {

using elements::Celsius;
using elements::dew_point;
using elements::kNotComputable;
using elements::relative_humidity;
using elements::search_dew_point;
using elements::vapour_pressure_over_ice;
using elements::vapour_pressure_over_water;
using elements::WetBulbState;

TEST(VapourPressure, OverWaterAgreesWithPublishedTables) {
  struct Row {
    double t;
    double hectopascal;
    double within;
  };
  // Meteorological tables; the last row of the range is the least certain.
  for (const Row& row :
       {Row{-20, 1.254, 0.001}, Row{-10, 2.863, 0.001}, Row{0, 6.107, 0.001}, Row{5, 8.718, 0.001},
        Row{10, 12.27, 0.01}, Row{15, 17.04, 0.01}, Row{20, 23.37, 0.01}, Row{25, 31.67, 0.01},
        Row{30, 42.43, 0.01}, Row{40, 73.77, 0.02}}) {
    EXPECT_NEAR(vapour_pressure_over_water({row.t}).value, row.hectopascal, row.within) << row.t;
  }
}

TEST(VapourPressure, OverIceLiesNearThePublishedTables) {
  struct Row {
    double t;
    double hectopascal;
  };
  // The program's own coefficients: near, not equal.
  for (const Row& row : {Row{0, 6.107}, Row{-5, 4.015}, Row{-10, 2.597}, Row{-20, 1.032}})
    EXPECT_NEAR(vapour_pressure_over_ice({row.t}).value, row.hectopascal, row.hectopascal * 0.005)
        << row.t;
}

// Worked out with 40 decimal digits by a program of its own, so that no coefficient can slip.
TEST(VapourPressure, AgreesWithAWorkingIn40Digits) {
  struct Row {
    double t;
    double water;
    double ice;
  };
  for (const Row& row : {Row{-30, 0.50868046, 0.37971459}, Row{-10, 2.86221982, 2.59661737},
                         Row{0, 6.10695096, 6.10635936}, Row{5, 8.71812131, 9.14870567},
                         Row{20, 23.37080198, 28.29351643}, Row{35, 56.23294306, 78.24389320}}) {
    EXPECT_NEAR(vapour_pressure_over_water({row.t}).value, row.water, 1e-8) << row.t;
    EXPECT_NEAR(vapour_pressure_over_ice({row.t}).value, row.ice, 1e-8) << row.t;
  }
}

TEST(DewPoint, AgreesWithAWorkingIn40Digits) {
  struct Row {
    double dry;
    double wet;
    double water;
    double ice;
  };
  for (const Row& row : {Row{-2, -3, -4.962, -5.152}, Row{-10, -10.5, -12.127, -13.348},
                         Row{0, -1.2, -3.299, -3.212}}) {
    EXPECT_NEAR(dew_point({row.dry}, {row.wet}, {1013.2}, WetBulbState::kNotIced).value, row.water,
                0.001);
    EXPECT_NEAR(dew_point({row.dry}, {row.wet}, {1013.2}, WetBulbState::kNotSet).value, row.water,
                0.001);
    EXPECT_NEAR(dew_point({row.dry}, {row.wet}, {1013.2}, WetBulbState::kIced).value, row.ice,
                0.001);
  }
}

TEST(VapourPressure, RisesWithTemperatureAndIsNeverNaN) {
  for (double t = -90.0; t < 60.0; t += 0.1) {
    EXPECT_LT(vapour_pressure_over_water({t}).value, vapour_pressure_over_water({t + 0.1}).value);
    EXPECT_LT(vapour_pressure_over_ice({t}).value, vapour_pressure_over_ice({t + 0.1}).value);
  }
  for (const double wild : {-273.15, -273.1499999, -300.0, 1e308, -1e308, 1e6}) {
    EXPECT_FALSE(std::isnan(vapour_pressure_over_water({wild}).value)) << wild;
    EXPECT_FALSE(std::isnan(vapour_pressure_over_ice({wild}).value)) << wild;
  }
}

// An independent road to the dew point: plain bisection, and the vapour pressure written again.
double vapour(Celsius dry, Celsius wet, double pressure, bool iced) {
  const double saturated =
      iced ? vapour_pressure_over_ice(wet).value : vapour_pressure_over_water(wet).value;
  return saturated - (dry.value - wet.value) * (iced ? 0.44 : 0.5) * pressure / 755.0;
}
double bisect(double e) {
  double low = -40.0;
  double high = 50.0;
  for (int i = 0; i < 60; ++i) {
    const double middle = (low + high) / 2.0;
    (vapour_pressure_over_water({middle}).value < e ? low : high) = middle;
  }
  return (low + high) / 2.0;
}

TEST(DewPoint, AgreesWithABisectionWhereTheSearchBracketsAndIsTheSentinelElsewhere) {
  const double lowest = vapour_pressure_over_water({-40.0}).value;
  const double highest = vapour_pressure_over_water({50.0}).value;
  int compared = 0;
  int refused = 0;
  for (const bool iced : {false, true}) {
    for (const double pressure : {900.0, 960.0, 1013.2, 1050.0}) {
      for (int dry = -250; dry < 400; dry += 7) {
        for (int depression = 0; depression < 140; ++depression) {
          const Celsius t{dry / 10.0};
          const Celsius tw{(dry - depression) / 10.0};
          if (!iced && depression == 0) continue;  // exact midpoints: tests of their own
          const double e = vapour(t, tw, pressure, iced);
          const double found =
              dew_point(t, tw, {pressure}, iced ? WetBulbState::kIced : WetBulbState::kNotIced)
                  .value;
          if (e > lowest + 0.00001 && e < highest) {
            ASSERT_NEAR(found, bisect(e), 0.01) << t.value << ' ' << tw.value << ' ' << pressure;
            ++compared;
          } else {
            ASSERT_EQ(found, kNotComputable) << t.value << ' ' << tw.value << ' ' << pressure;
            ++refused;
          }
        }
      }
    }
  }
  EXPECT_GE(compared + refused, 100000);
  EXPECT_GT(compared, 20000);
  EXPECT_GT(refused, 20000);
}

TEST(DewPoint, WorkedExampleTakes24Passes) {
  const auto found = search_dew_point({10.0}, {5.0}, {1013.2}, WetBulbState::kNotIced);
  EXPECT_NEAR(found.dew_point.value, -1.77, 0.01);
  EXPECT_EQ(found.passes, 24);
}

TEST(DewPoint, TwoExactReadingsNeedNoSearch) {
  for (const WetBulbState state : {WetBulbState::kNotSet, WetBulbState::kNotIced}) {
    for (const double exact : {27.5, 5.0}) {
      const auto found = search_dew_point({exact}, {exact}, {1013.2}, state);
      EXPECT_EQ(found.dew_point.value, exact);
      EXPECT_EQ(found.passes, 0);
    }
  }
  EXPECT_GT(search_dew_point({27.5}, {27.4}, {1013.2}, WetBulbState::kNotIced).passes, 1);
  EXPECT_GT(search_dew_point({5.0}, {5.0}, {1013.2}, WetBulbState::kIced).passes, 1);
}

TEST(DewPoint, AnotherExactMidpointKeepsItsOddResult) {
  // The lower end meets the root, nothing brackets any more, and the last pass steps on.
  EXPECT_EQ(dew_point({-17.5}, {-17.5}, {1013.2}, WetBulbState::kNotIced).value, -6.25);
}

TEST(DewPoint, SaturatedAirHasItsOwnTemperatureElsewhere) {
  for (int tenths = -390; tenths < 490; ++tenths) {
    if (tenths == -175) continue;
    const Celsius t{tenths / 10.0};
    EXPECT_NEAR(dew_point(t, t, {1013.2}, WetBulbState::kNotIced).value, t.value, 0.01);
  }
}

TEST(DewPoint, VeryDryAirHasNone) {
  EXPECT_EQ(dew_point({30.0}, {5.0}, {1013.2}, WetBulbState::kNotIced).value, kNotComputable);
  EXPECT_EQ(search_dew_point({30.0}, {5.0}, {1013.2}, WetBulbState::kNotIced).passes, 0);
}

TEST(DewPoint, WildInputsGiveASentinelOrANumber) {
  const double wild[] = {-1e308, -300.0, -273.15, -40.0, 0.0, 50.0, 100.0, 1e308};
  for (const double t : wild) {
    for (const double tw : wild) {
      for (const double pressure : {-1e308, 0.0, 1013.2, 1e308}) {
        for (const WetBulbState state : {WetBulbState::kIced, WetBulbState::kNotIced})
          EXPECT_FALSE(std::isnan(dew_point({t}, {tw}, {pressure}, state).value));
      }
    }
  }
}

TEST(DewPointOfTexts, CountsAnEmptyReadingAsStandardPressure) {
  const auto standard = elements::dew_point_of_texts(" 10.0 ", "5.0", "", fakes::total_card("+0.0"),
                                                     WetBulbState::kNotSet);
  const auto read = elements::dew_point_of_texts("10.0", "5.0", "1012.2", fakes::total_card("+1.0"),
                                                 WetBulbState::kNotSet);
  ASSERT_TRUE(standard && read);
  EXPECT_EQ(standard->value, read->value);
  EXPECT_EQ(codetables::temperature_figures(*standard).figures, "018");
}

TEST(DewPointOfTexts, GivesNothingWhereTheRecordIsToStay) {
  const auto of = [](const char* dry, const char* wet) {
    return elements::dew_point_of_texts(dry, wet, "1013.2", fakes::total_card("+0.0"),
                                        WetBulbState::kNotIced);
  };
  EXPECT_FALSE(of("", "5.0"));
  EXPECT_FALSE(of("5.0", "  "));
  EXPECT_FALSE(of("5.0", "5.1"));   // wet above dry
  EXPECT_FALSE(of("30.0", "5.0"));  // too dry
  EXPECT_TRUE(of("5.0", "5.0"));
}

TEST(RelativeHumidity, IsTheRatioInWholePercent) {
  struct Row {
    double air;
    double dew;
    double percent;
  };
  for (const Row& row :
       {Row{20.0, 10.0, 53}, Row{20.0, 20.0, 100}, Row{20.0, 20.1, kNotComputable},
        Row{50.0, 50.0, 100}, Row{50.1, 20.0, kNotComputable}, Row{-40.0, -40.0, 100},
        Row{20.0, -40.1, kNotComputable}, Row{50.0, -40.0, 0}, Row{30.0, 20.0, 55}}) {
    EXPECT_EQ(relative_humidity({row.air}, {row.dew}).value, row.percent)
        << row.air << ' ' << row.dew;
  }
}

TEST(RelativeHumidity, LiesBetween0And100AndRisesWithTheDewPoint) {
  for (int air = -400; air <= 500; air += 7) {
    double before = 0.0;
    for (int dew = -400; dew <= air; dew += 3) {
      const double percent = relative_humidity({air / 10.0}, {dew / 10.0}).value;
      ASSERT_GE(percent, before);
      ASSERT_LE(percent, 100.0);
      before = percent;
    }
  }
}

TEST(RelativeHumidity, TextsForFormAndLogbook) {
  using codetables::HumidityTexts;
  struct Row {
    double percent;
    HumidityTexts texts;
  };
  for (const Row& row :
       {Row{53, {"53.0", "0530"}}, Row{5, {"05.0", "0050"}}, Row{100, {"100.0", "1000"}},
        Row{0, {"00.0", "0000"}}, Row{67.5, {"67.5", "0675"}}}) {
    EXPECT_EQ(codetables::humidity_texts({row.percent}), row.texts) << row.percent;
  }
  EXPECT_EQ(elements::humidity_of_texts(" 20.0", "10.0 ")->display, "53.0");
  EXPECT_FALSE(elements::humidity_of_texts("", "10.0"));
  EXPECT_FALSE(elements::humidity_of_texts("20.0", ""));
  EXPECT_FALSE(elements::humidity_of_texts("20.0", "20.1"));
}

TEST(TemperatureFigures, SignAndTenths) {
  struct Row {
    double t;
    codetables::TemperatureFigures figures;
  };
  const Row rows[] = {
      {-1.77, {"-01.8", "1", "018"}},
      {0.0, {"00.0", "0", "000"}},
      {5.25, {"05.2", "0", "052"}},
      {9.96, {"10.0", "0", "100"}},
      {12.3, {"12.3", "0", "123"}},
      {-9.94, {"-09.9", "1", "099"}},
      {-9.96, {"-10.0", "1", "100"}},
      {-12.3, {"-12.3", "1", "123"}},
      // What rounds to zero is zero, from below too: a 1 before 000 would speak of frost.
      {-0.04, {"00.0", "0", "000"}},
      {-0.0, {"00.0", "0", "000"}},
      {-0.06, {"-00.1", "1", "001"}},
      {0.04, {"00.0", "0", "000"}},
  };
  for (const Row& row : rows) EXPECT_EQ(codetables::temperature_figures({row.t}), row.figures);
  // A computed dew point that is printed with a minus keeps it; all others are the same.
  for (const Row& row : rows) {
    const bool minus_zero = row.t <= 0.0 && std::signbit(row.t) && row.t > -0.05;
    const codetables::TemperatureFigures kept{"-0.0", "1", "000"};
    EXPECT_EQ(codetables::computed_dew_point_figures({row.t}), minus_zero ? kept : row.figures);
  }
}

TEST(TemperatureFigures, AreThreeFiguresHoweverWildTheValue) {
  for (const double wild : {1e308, -1e308, 1000.0, -1000.0, 99.99}) {
    EXPECT_EQ(codetables::temperature_figures({wild}).figures.size(), 3U) << wild;
  }
}

TEST(TemperatureFigures, WetBulbSignTellsIceFirst) {
  const auto sign = [](double t, WetBulbState state) {
    return codetables::wet_bulb_sign(codetables::temperature_figures({t}), state);
  };
  EXPECT_EQ(sign(1.0, WetBulbState::kNotIced), "0");
  EXPECT_EQ(sign(-1.0, WetBulbState::kNotIced), "1");
  EXPECT_EQ(sign(-1.0, WetBulbState::kNotSet), "1");
  EXPECT_EQ(sign(-1.0, WetBulbState::kIced), "2");
}

TEST(TemperatureFigures, EmptyTenthsCountAsZeroEmptyDegreesAsNoTemperature) {
  EXPECT_EQ(codetables::joined_temperature(" -5 ", ""), "-5.0");
  EXPECT_EQ(codetables::joined_temperature("12", "3"), "12.3");
  EXPECT_EQ(codetables::joined_temperature("", "3"), "");
}

TEST(TemperatureRange, AsksByWholeDegreesOnly) {
  using codetables::TemperatureRange;
  struct Row {
    const char* text;
    TemperatureRange range;
  };
  for (const Row& row :
       {Row{"40.9", TemperatureRange::kUsual}, Row{"41.0", TemperatureRange::kAbove},
        Row{"-25.9", TemperatureRange::kUsual}, Row{"-26.0", TemperatureRange::kBelow},
        Row{"", TemperatureRange::kUsual}, Row{"99999999999999", TemperatureRange::kAbove},
        Row{"-99999999999999", TemperatureRange::kBelow}}) {
    EXPECT_EQ(codetables::temperature_range(row.text), row.range) << row.text;
  }
}

}  // namespace
