// What the figures of a record say as numbers.

#include "observation/values.h"

#include <gtest/gtest.h>

#include "observation/records.h"

namespace {

using observation::Values;
using observation::values_of;

Values of(std::initializer_list<records::Setting> settings) {
  return values_of(records::with(settings));
}

TEST(Values, AreThoseOfAWholeObservation) {
  const Values v = values_of(records::full());
  // 14 whole years with the leap days of 2000, 2004, 2008 and 2012, 318 days of 2014, 12 hours.
  EXPECT_EQ(v.hour, ((14 * 365 + 4) + 318) * 24 + 12);
  EXPECT_DOUBLE_EQ(v.latitude.value(), 35.7);
  EXPECT_DOUBLE_EQ(v.longitude.value(), 165.3);
  EXPECT_EQ(v.wind_direction, 270);
  EXPECT_DOUBLE_EQ(v.wind_speed.value(), 105.0);
  EXPECT_TRUE(v.wind_in_knots);
  EXPECT_TRUE(v.wind_measured);
  EXPECT_DOUBLE_EQ(v.air.value(), 15.2);
  EXPECT_DOUBLE_EQ(v.dew_point.value(), 10.8);
  EXPECT_DOUBLE_EQ(v.wet_bulb.value(), 13.0);
  EXPECT_DOUBLE_EQ(v.sea.value(), 17.8);
  EXPECT_EQ(v.sea_method, 0);
  EXPECT_DOUBLE_EQ(v.pressure.value(), 1013.2);
  EXPECT_DOUBLE_EQ(v.change.value(), 1.4);
  EXPECT_EQ(v.weather, 15);
  EXPECT_EQ(v.swell1, (observation::WaveValues{250, 9, 2.5}));
  EXPECT_EQ(v.swell2, (observation::WaveValues{310, 11, 1.5}));
  EXPECT_EQ(v.measured_waves, (observation::WaveValues{{}, 7, 3.0}));
  EXPECT_EQ(v.ice_thickness, 2);
  EXPECT_EQ(v.actual_hour, 11);
  EXPECT_EQ(v.actual_minute, 50);
}

TEST(Values, HaveTheirSigns) {
  const Values v = of({{"SnT", "1"},
                       {"TTT", "018"},
                       {"SnTd", "1"},
                       {"TdTdTd", "105"},
                       {"Ss", "3"},
                       {"TwTwTw", "012"},
                       {"Qc", "5"},
                       {"LaDeg", "35"},
                       {"LaMin", "42"},
                       {"LoDeg", "165"},
                       {"LoMin", "18"},
                       {"Sw", "2"},
                       {"TbTbTb", "021"}});
  EXPECT_DOUBLE_EQ(v.air.value(), -1.8);
  EXPECT_DOUBLE_EQ(v.dew_point.value(), -10.5);
  EXPECT_DOUBLE_EQ(v.sea.value(), -1.2);
  EXPECT_EQ(v.sea_method, 1);
  EXPECT_DOUBLE_EQ(v.latitude.value(), -35.7);
  EXPECT_DOUBLE_EQ(v.longitude.value(), -165.3);
  EXPECT_DOUBLE_EQ(v.wet_bulb.value(), -2.1);
  EXPECT_TRUE(v.wet_bulb_iced);
}

TEST(Values, OfPressureAndItsChange) {
  EXPECT_DOUBLE_EQ(of({{"PPPP", "9987"}}).pressure.value(), 998.7);
  EXPECT_DOUBLE_EQ(of({{"PPPP", "0000"}}).pressure.value(), 1000.0);
  EXPECT_DOUBLE_EQ(of({{"a", "7"}, {"ppp", "023"}}).change.value(), -2.3);
  EXPECT_DOUBLE_EQ(of({{"a", "4"}, {"ppp", "000"}}).change.value(), 0.0);
  EXPECT_FALSE(of({{"ppp", "023"}}).change) << "without a nobody knows whether it rose";
  EXPECT_FALSE(of({{"a", "/"}, {"ppp", "023"}}).change);
}

TEST(Values, OfTheWindAreInItsUnit) {
  const Values slow = of({{"iw", "1"}, {"dd", "36"}, {"ff", "10"}});
  EXPECT_EQ(slow.wind_direction, 360);
  EXPECT_NEAR(observation::knots_of(slow).value(), 19.438, 0.001);
  EXPECT_DOUBLE_EQ(observation::metres_per_second_of(slow).value(), 10.0);
  const Values knots = of({{"iw", "3"}, {"dd", "99"}, {"ff", "03"}});
  EXPECT_FALSE(knots.wind_measured);
  EXPECT_TRUE(knots.wind_variable);
  EXPECT_FALSE(knots.wind_direction);
  EXPECT_DOUBLE_EQ(observation::knots_of(knots).value(), 3.0);
  EXPECT_NEAR(observation::metres_per_second_of(knots).value(), 1.543, 0.001);
  EXPECT_TRUE(of({{"dd", "00"}, {"ff", "00"}}).wind_calm);
  EXPECT_FALSE(observation::knots_of(of({{"ff", "//"}})));
}

TEST(Values, OfAConfusedSeaAreNone) {
  const Values v = of({{"PwPw", "99"}, {"HwHw", "06"}, {"dw1dw1", "99"}, {"Pw1Pw1", "99"}});
  EXPECT_EQ(v.wind_waves, (observation::WaveValues{{}, {}, 3.0}));
  EXPECT_EQ(v.swell1, observation::WaveValues{});
}

TEST(Values, AreNothingWhereAnythingIsMissing) {
  // Whatever form of missing stands in a field, no number may come of it.
  const Values nothing = [] {
    Struct_Weather record = records::fresh();
    for (const WeatherField& field : weather_fields()) record.*field.member = "";
    return values_of(record);
  }();
  for (const char* const missing : {"", "*", "/", "//", "///", "1/", "*2", "x", "-1"}) {
    Struct_Weather record = records::fresh();
    for (const WeatherField& field : weather_fields()) record.*field.member = missing;
    EXPECT_EQ(values_of(record), nothing) << missing;
  }
  EXPECT_FALSE(of({{"Year", "1999"}, {"Month", "12"}, {"YY", "31"}, {"GG", "23"}}).hour);
  EXPECT_EQ(of({{"Year", "2000"}, {"Month", "01"}, {"YY", "02"}, {"GG", "03"}}).hour, 27);
}

}  // namespace
