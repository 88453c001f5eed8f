#include "observation/Struct_Weather.h"

#include <gtest/gtest.h>

#include <set>
#include <type_traits>

#include "observation/field_text.h"
#include "records.h"

namespace {

using records::fresh;
using records::with;

static_assert(std::has_virtual_destructor_v<Struct_Weather>);

TEST(Struct_Weather, HasSixtyNineTextFieldsAndFourteenWorkingValues) {
  EXPECT_EQ(weather_fields().size(), 69U);
  EXPECT_EQ(weather_fields().size() + 2 + fresh().Selection.size(), 83U);
  std::set<std::string_view> names;
  for (const WeatherField& field : weather_fields()) {
    names.insert(field.name);
    EXPECT_EQ(find_weather_field(field.name), &field) << field.name;
  }
  EXPECT_EQ(names.size(), 69U);
  EXPECT_EQ(weather_fields().front().name, "Year");
  EXPECT_EQ(weather_fields().back().name, "LogExtra");
  EXPECT_EQ(find_weather_field("yy"), nullptr);
}

TEST(Struct_Weather, EveryNameLeadsToAFieldOfItsOwn) {
  for (const WeatherField& field : weather_fields()) {
    Struct_Weather record = fresh();
    record.*field.member = "?";
    for (const WeatherField& other : weather_fields())
      EXPECT_EQ(record.*other.member == "?", other.name == field.name)
          << field.name << " " << other.name;
    EXPECT_FALSE(record == fresh()) << field.name;
  }
}

TEST(Struct_Weather, EqualityCountsTheWorkingValuesToo) {
  Struct_Weather record = fresh();
  record.Selection[11] = 1;
  EXPECT_FALSE(record == fresh());
  record = fresh();
  record.WorkLatitude = 1;
  EXPECT_FALSE(record == fresh());
  EXPECT_TRUE(fresh() == fresh());
}

TEST(Struct_Weather, ConstructionSetsFiveFieldsAndLeavesTheRestEmpty) {
  const Struct_Weather record = fresh();
  for (const WeatherField& field : weather_fields()) {
    std::string_view expected;
    if (field.name == "iw") expected = "4";
    if (field.name == "iR") expected = "4";
    if (field.name == "iX") expected = "1";
    if (field.name == "CallSign") expected = "JXKV";
    if (field.name == "ShipFixed") expected = "9074729";
    EXPECT_EQ(record.*field.member, expected) << field.name;
  }
  EXPECT_EQ(record.WorkLatitude, 0);
  EXPECT_EQ(record.WorkLongitude, 0);
  for (const int value : record.Selection) EXPECT_EQ(value, 0);
}

TEST(Struct_Weather, WindIndicatorFollowsTheSpeedMethod) {
  ShipFixedData ship;
  ship.wind_speed_method = WindSpeedMethod::kBeaufortScale;
  EXPECT_EQ(Struct_Weather(ship, {}).iw, "3");
  ship.wind_speed_method = WindSpeedMethod::kAnemometer;
  EXPECT_EQ(Struct_Weather(ship, {}).iw, "4");
}

TEST(Struct_Weather, WeatherIndicatorIsThreeOnlyWhenNeitherWeatherIsObserved) {
  struct Row {
    bool present, past;
    const char* expected;
  };
  for (const Row& row : {Row{true, true, "1"}, Row{true, false, "1"}, Row{false, true, "1"},
                         Row{false, false, "3"}}) {
    KeyObservationItems items;
    items.set_observed(ObservationItem::ww, row.present);
    items.set_observed(ObservationItem::W1W2, row.past);
    EXPECT_EQ(Struct_Weather(ShipFixedData(), items).iX, row.expected)
        << row.present << " " << row.past;
  }
}

TEST(Struct_Weather, CompletenessNeedsEveryNamedField) {
  struct Row {
    std::initializer_list<std::string_view> fields;
    bool (Struct_Weather::*test)() const;
  };
  const Row rows[] = {
      {{"YY", "GG", "iw"}, &Struct_Weather::has_day_hour_indicator},
      {{"LaDeg", "LaMin"}, &Struct_Weather::has_latitude},
      {{"Qc", "LoDeg", "LoMin"}, &Struct_Weather::has_longitude},
      {{"gg", "GGExact"}, &Struct_Weather::has_exact_time},
      {{"Sw", "TbTbTb"}, &Struct_Weather::has_wet_bulb},
  };
  for (const Row& row : rows) {
    Struct_Weather record = fresh();
    for (const auto name : row.fields) records::set(record, {{name, "1"}});
    EXPECT_TRUE((record.*row.test)()) << *row.fields.begin();
    for (const auto name : row.fields) {
      Struct_Weather lacking = record;
      records::set(lacking, {{name, ""}});
      EXPECT_FALSE((lacking.*row.test)()) << name;
    }
  }
}

TEST(Struct_Weather, VosClimIsCompleteWithoutRegistrationOrWithAllSevenTexts) {
  ShipFixedData ship;
  EXPECT_TRUE(fresh().has_vosclim(ship));
  ship.vosclim = true;
  ship.vosclim_cargo_height = "12";
  ship.vosclim_load_line_departure = "+05";
  const Struct_Weather record = records::full();
  EXPECT_TRUE(record.has_vosclim(ship));
  for (const auto name : {"VosClim1", "VosClim2", "VosClim3", "VosClim4", "VosClim5"}) {
    Struct_Weather lacking = record;
    records::set(lacking, {{name, ""}});
    EXPECT_FALSE(lacking.has_vosclim(ship)) << name;
  }
  ShipFixedData no_height = ship;
  no_height.vosclim_cargo_height.clear();
  EXPECT_FALSE(record.has_vosclim(no_height));
  ShipFixedData no_departure = ship;
  no_departure.vosclim_load_line_departure.clear();
  EXPECT_FALSE(record.has_vosclim(no_departure));
}

TEST(Struct_Weather, PositionIsInTenthsTruncated) {
  Struct_Weather record =
      with({{"Qc", "7"}, {"LaDeg", "35"}, {"LaMin", "59"}, {"LoDeg", "165"}, {"LoMin", "5"}});
  const auto position = record.position();
  ASSERT_TRUE(position);
  EXPECT_EQ(position->quadrant, 7);
  EXPECT_EQ(position->latitude, 359);
  EXPECT_EQ(position->longitude, 1650);
  for (int minute = 0; minute < 60; ++minute) {
    record.LoMin = std::to_string(minute);
    EXPECT_EQ(record.position()->longitude, 1650 + minute / 6) << minute;
  }
}

TEST(Struct_Weather, PositionNeedsEveryPart) {
  for (const auto name : {"Qc", "LaDeg", "LaMin", "LoDeg", "LoMin"}) {
    Struct_Weather record = records::full();
    records::set(record, {{name, ""}});
    EXPECT_FALSE(record.position()) << name;
  }
}

TEST(Struct_Weather, CallSignIsCutForTheReportAndPaddedForTheLogbook) {
  struct Row {
    const char *call_sign, *report, *logbook;
  };
  for (const Row& row :
       {Row{"", "", "       "}, Row{"JXKV", "JXKV", "JXKV   "},
        Row{"ABCDEFG", "ABCDEFG", "ABCDEFG"}, Row{"ABCDEFGH", "ABCDEFG", "ABCDEFGH"},
        Row{"ABCDEFGHI", "ABCDEFG", "ABCDEFGHI"}}) {
    const Struct_Weather record = with({{"CallSign", row.call_sign}});
    EXPECT_EQ(record.call_sign_for_report(), row.report) << row.call_sign;
    EXPECT_EQ(record.call_sign_for_logbook(), row.logbook) << row.call_sign;
  }
}

TEST(FieldText, NormaliserRemovesSpacesAndNeitherCutsNorFills) {
  EXPECT_EQ(observation::normalised("", 3), "***");
  EXPECT_EQ(observation::normalised("   ", 2), "**");
  EXPECT_EQ(observation::normalised(" 1 2 ", 3), "12");
  EXPECT_EQ(observation::normalised("12345", 3), "12345");
  EXPECT_EQ(observation::normalised("//", 2), "//");
}

TEST(FieldText, RightJustifiersPadOnTheLeft) {
  using observation::Spaces;
  EXPECT_EQ(observation::right_justified("5", 3), "  5");
  EXPECT_EQ(observation::right_justified("5", 3, Spaces::kToSolidus), "//5");
  EXPECT_EQ(observation::zero_justified("5", 3), "005");
  EXPECT_EQ(observation::zero_justified("5 6", 4, Spaces::kToSolidus), "05/6");
  EXPECT_EQ(observation::right_justified("12345", 3), "12345");
  EXPECT_EQ(observation::zero_justified("12345", 3), "12345");
  EXPECT_EQ(observation::right_justified("", 2), "  ");
}

}  // namespace
