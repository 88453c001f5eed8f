// Figures to value and value to figures: every figure of each table, every value of each quantity.

#include <gtest/gtest.h>

#include <string>

#include "codetables/tables/cloud_base.h"
#include "codetables/tables/humidity_figures.h"
#include "codetables/tables/minutes.h"
#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/quadrant.h"
#include "codetables/tables/temperature_figures.h"
#include "codetables/tables/visibility.h"
#include "codetables/tables/wind_figures.h"
#include "text/numbers.h"

namespace {

using namespace codetables;

TEST(Quadrant, StandsForItsTwoHemispheres) {
  struct Row {
    const char* quadrant;
    int north_south;
    int east_west;
  };
  for (const Row& row : {Row{"1", 0, 0}, Row{"3", 1, 0}, Row{"5", 1, 1}, Row{"7", 0, 1}}) {
    EXPECT_EQ(quadrant_of(row.north_south, row.east_west), row.quadrant);
    EXPECT_EQ(north_south_of(row.quadrant), row.north_south);
    EXPECT_EQ(east_west_of(row.quadrant), row.east_west);
    EXPECT_NE(kQuadrants.find(row.quadrant), std::string_view::npos);
  }
  EXPECT_EQ(kQuadrants.size(), 4U);
}

TEST(Quadrant, IsEmptyWhereAHemisphereIsNotChosenAndNoneOfAnythingElse) {
  for (const auto& [north_south, east_west] : {std::pair{-1, 0}, {0, -1}, {-1, -1}, {2, 0}})
    EXPECT_EQ(quadrant_of(north_south, east_west), "");
  for (const char* none : {"", "0", "2", "4", "6", "8", "9", "/", "*", "11", " 1", "x", "\xff"}) {
    EXPECT_EQ(north_south_of(none), -1) << none;
    EXPECT_EQ(east_west_of(none), -1) << none;
  }
}

TEST(Quadrant, SignsAPosition) {
  for (const int quadrant : {1, 3, 5, 7}) {
    const TenthsPosition at{quadrant, 359, 1405};
    EXPECT_EQ(signed_latitude(at), quadrant == 3 || quadrant == 5 ? -359 : 359) << quadrant;
    EXPECT_EQ(signed_longitude(at), quadrant == 5 || quadrant == 7 ? -1405 : 1405) << quadrant;
  }
}

TEST(Minutes, AreCutToTenthsAndATenthIsItsFirstMinute) {
  EXPECT_EQ(tenths_of_minutes(59), 9);
  EXPECT_EQ(tenths_of_minutes(5), 0);
  EXPECT_EQ(minutes_of_tenth('0'), "00");
  EXPECT_EQ(minutes_of_tenth('7'), "42");
  for (char tenth = '0'; tenth <= '9'; ++tenth) {
    const int first = text::leading_int(minutes_of_tenth(tenth));
    EXPECT_EQ(minutes_of_tenth(tenth).size(), 2U);
    EXPECT_EQ(tenths_of_minutes(first), tenth - '0');
    if (first > 0) {
      EXPECT_EQ(tenths_of_minutes(first - 1), tenth - '0' - 1);
    }
  }
}

// The classes as the WMO tables print them: lower limit included, upper one not.
struct Class {
  int from;
  int below;
  const char* code;
};

TEST(CloudBaseClasses, IsTheClassThatHoldsTheHeight) {
  for (const Class& row :
       {Class{0, 50, "0"}, Class{50, 100, "1"}, Class{100, 200, "2"}, Class{200, 300, "3"},
        Class{300, 600, "4"}, Class{600, 1000, "5"}, Class{1000, 1500, "6"}, Class{1500, 2000, "7"},
        Class{2000, 2500, "8"}, Class{2500, 10000, "9"}}) {
    for (int metres = row.from; metres < row.below; ++metres)
      ASSERT_EQ(cloud_base_code(text::format_int(metres)), row.code) << metres;
    EXPECT_EQ(cloud_base_code(cloud_base_metres(row.code)), row.code);
  }
  for (const char* kept : {"/", "", "x", "-1", "1.5"}) EXPECT_EQ(cloud_base_code(kept), kept);
}

TEST(VisibilityClasses, IsTheClassThatHoldsTheDistance) {
  for (const Class& row :
       {Class{0, 50, "90"}, Class{50, 200, "91"}, Class{200, 500, "92"}, Class{500, 1000, "93"},
        Class{1000, 2000, "94"}, Class{2000, 4000, "95"}, Class{4000, 10000, "96"},
        Class{10000, 20000, "97"}, Class{20000, 50000, "98"}, Class{50000, 100000, "99"}}) {
    for (int metres = row.from; metres < row.below; metres += 1)
      ASSERT_EQ(visibility_code(text::format_int(metres)), row.code) << metres;
    EXPECT_EQ(visibility_code(visibility_metres(row.code)), row.code);
  }
  for (const char* kept : {"//", "", "x"}) EXPECT_EQ(visibility_code(kept), kept);
}

TEST(TemperatureFigures, EveryTenthComesBackThroughSignAndFigures) {
  for (int tenths = -999; tenths <= 999; ++tenths) {
    const TemperatureFigures there = temperature_figures({tenths / 10.0});
    EXPECT_EQ(signed_tenths(there.sign, there.figures), tenths);
    EXPECT_EQ(temperature_shown(there.sign, there.figures), text::format_fixed(tenths / 10.0, 1));
  }
  for (const char* missing : {"", "/", "*"}) EXPECT_FALSE(signed_tenths(missing, "018")) << missing;
  for (const char* missing : {"", "///", "***", "1/8"}) {
    EXPECT_FALSE(signed_tenths("1", missing)) << missing;
    EXPECT_EQ(temperature_shown("1", missing), missing);
  }
}

TEST(WetBulb, SignIsBySignAndIceAndComesBackAsTheSignOfItsValue) {
  struct Row {
    double value;
    WetBulbState state;
    const char* Sw;
    const char* sign;
  };
  for (const Row& row :
       {Row{1.8, WetBulbState::kNotIced, "0", "0"}, Row{0.0, WetBulbState::kNotSet, "0", "0"},
        Row{-0.04, WetBulbState::kNotIced, "0", "0"}, Row{-1.8, WetBulbState::kNotSet, "1", "1"},
        Row{-1.8, WetBulbState::kIced, "2", "1"}, Row{0.0, WetBulbState::kIced, "2", "0"}}) {
    const TemperatureFigures wet = temperature_figures({row.value});
    const std::string Sw = wet_bulb_sign(wet, row.state);
    EXPECT_EQ(Sw, row.Sw) << row.value;
    EXPECT_EQ(is_iced(Sw), row.state == WetBulbState::kIced) << row.value;
    EXPECT_EQ(wet_bulb_value_sign(Sw, wet.figures), row.sign) << row.value;
  }
  for (const char* kept : {"", "/", "*"}) EXPECT_EQ(wet_bulb_value_sign(kept, "018"), kept);
}

// 8700 to 9999 and 0000 to 0700 are the pressures there are; the thousands come back.
TEST(PressureFigures, EveryPossiblePressureComesBackThroughItsFigures) {
  for (int tenths = 8700; tenths <= 10700; ++tenths) {
    const std::string shown = pressure_text({tenths / 10.0});
    EXPECT_EQ(shown.size(), 6U);
    EXPECT_EQ(pppp_of(shown), text::format_digits(tenths % 10000, 4));
    EXPECT_EQ(pressure_shown(pppp_of(shown)), shown);
  }
  for (const char* kept : {"", "////", "x"}) EXPECT_EQ(pressure_shown(kept), kept);
}

TEST(PressureFigures, AreJudgedAsTheirPressureButForTheHighest) {
  for (int pppp = 0; pppp <= 9999; ++pppp) {
    const double pressure = text::leading_number(pressure_shown(text::format_digits(pppp, 4)));
    const PressureRange expected = pppp == 700 ? PressureRange::kAsks : pressure_range({pressure});
    EXPECT_EQ(pppp_range(pppp), expected) << pppp;
  }
  EXPECT_EQ(pressure_range({1070.0}), PressureRange::kRefused);
  EXPECT_EQ(pressure_range({kLowestPressure * 1.0}), PressureRange::kAsks);
  EXPECT_EQ(pressure_range({kLowestPressure - 0.1}), PressureRange::kRefused);
  for (const int none : {-1, 10000}) EXPECT_EQ(pppp_range(none), PressureRange::kRefused);
}

TEST(HumidityFigures, EveryTenthComesBackThroughTheLogbook) {
  for (int tenths = 0; tenths <= 1000; ++tenths) {
    const HumidityTexts texts = humidity_texts({tenths / 10.0});
    EXPECT_EQ(texts.logbook, text::format_digits(tenths, 4));
    EXPECT_EQ(humidity_of_logbook(texts.logbook), texts.display);
    EXPECT_EQ(shown_humidity(texts.display, false), texts.display);
  }
  for (const char* none : {"", "////", "x"}) EXPECT_EQ(humidity_of_logbook(none), "");
}

TEST(WindFigures, EverySpeedComesBackThroughFfAndFff) {
  for (int speed = 0; speed <= 999; ++speed) {
    const WindFigures figures = wind_figures("18", text::format_int(speed));
    EXPECT_EQ(figures.ff, text::format_digits(std::min(speed, 99), 2));
    EXPECT_EQ(figures.fff, speed < 99 ? "" : text::format_digits(speed, 3));
    EXPECT_EQ(text::leading_int(speed_shown(figures.ff, figures.fff)), speed);
  }
}

}  // namespace
