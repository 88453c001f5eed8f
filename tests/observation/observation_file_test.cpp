#include "observation/observation_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "observation/ship_values.h"
#include "records.h"

namespace {

using observation::ObservationFault;
using observation::ObservationReader;
using observation::Stored;
using Step = ObservationReader::Step;

/// All records of a text; the test fails on an error.
std::vector<Struct_Weather> read(std::string_view text) {
  ObservationReader reader;
  std::vector<Struct_Weather> records;
  bool more = true;
  while (more) {
    const auto end = text.find('\n');
    more = end != std::string_view::npos;
    const Step step = more ? reader.take(text.substr(0, end)) : reader.take(text);
    if (more) text.remove_prefix(end + 1);
    EXPECT_NE(step, Step::kError);
    if (step == Step::kObservation) records.push_back(reader.record());
  }
  if (reader.finish() == Step::kObservation) records.push_back(reader.record());
  return records;
}

TEST(ObservationFile, BlankLineOrEndEndsAnObservation) {
  const auto records = read("YY=15\nGG=12\n\n  \t\nYY=16\n\n# nothing\n\nYY=17");
  ASSERT_EQ(records.size(), 3U);
  EXPECT_EQ(records[0].YY, "15");
  EXPECT_EQ(records[0].GG, "12");
  EXPECT_EQ(records[1].YY, "16");
  EXPECT_EQ(records[1].GG, "") << "nothing is kept from the one before";
  EXPECT_EQ(records[2].YY, "17");
}

TEST(ObservationFile, EverythingBehindTheFirstEqualsIsTheValue) {
  const auto records = read("  LogText1 = a = b \r\n TTT=\t152 \r\nVV=\r\n");
  ASSERT_EQ(records.size(), 1U);
  EXPECT_EQ(records[0].LogText1, "a = b");
  EXPECT_EQ(records[0].TTT, "152");
  EXPECT_EQ(records[0].VV, "");
}

TEST(ObservationFile, ShipAndItemsStayInForceAndBuildTheRecord) {
  const auto records = read(
      "ship.call_sign=JXKV\nship.wind_speed_method=1\nitem.ww=1\nitem.W1W2=1\n\n"
      "YY=15\n\nYY=16\nship.imo_number=9074729\niw=3\n\nYY=17\n");
  ASSERT_EQ(records.size(), 3U) << "a block of ship lines alone is no observation";
  for (const auto& record : records) {
    EXPECT_EQ(record.CallSign, "JXKV");
    EXPECT_EQ(record.iX, "3");
  }
  EXPECT_EQ(records[0].iw, "4");
  EXPECT_EQ(records[0].ShipFixed, "");
  EXPECT_EQ(records[1].iw, "3") << "fields are set after the record is built";
  EXPECT_EQ(records[1].ShipFixed, "9074729") << "wherever the ship line stands in its block";
  EXPECT_EQ(records[2].iw, "4");
  EXPECT_EQ(records[2].ShipFixed, "9074729");
}

TEST(ObservationFile, EveryFieldCanBeSetByName) {
  for (const WeatherField& field : weather_fields()) {
    const auto records = read(std::string(field.name) + "=7");
    ASSERT_EQ(records.size(), 1U) << field.name;
    EXPECT_EQ(records[0].*field.member, "7") << field.name;
  }
}

TEST(ObservationFile, LastValueOfANameCounts) {
  EXPECT_EQ(read("YY=15\nYY=16\n").at(0).YY, "16");
}

TEST(ObservationFile, FaultsTellLineReasonAndName) {
  struct Row {
    const char* line;
    ObservationFault fault;
    const char* name;
  };
  const std::string long_line = "YY=" + std::string(observation::kLongestLine, '1');
  const Row rows[] = {
      {"YY", ObservationFault::kNoEquals, "YY"},
      {"yy=15", ObservationFault::kUnknownName, "yy"},
      {"=15", ObservationFault::kUnknownName, ""},
      {"WorkLatitude=1", ObservationFault::kUnknownName, "WorkLatitude"},
      {"ship.callsign=A", ObservationFault::kUnknownName, "ship.callsign"},
      {"ship.=A", ObservationFault::kUnknownName, "ship."},
      {"item.x=1", ObservationFault::kUnknownName, "item.x"},
      {"item.ww=2", ObservationFault::kNotStorable, "item.ww"},
      {"item.ww=yes", ObservationFault::kBadNumber, "item.ww"},
      {"item.ww=", ObservationFault::kBadNumber, "item.ww"},
      {"ship.card_type=x", ObservationFault::kBadNumber, "ship.card_type"},
      {"ship.temperature_unit=0.2", ObservationFault::kNotStorable, "ship.temperature_unit"},
      {"TTT=1\x01", ObservationFault::kNotStorable, "TTT"},
      {"TTT=\xEF\xBC\x91", ObservationFault::kNotStorable, "TTT"},
      {"TTT=1*2", ObservationFault::kNotStorable, "TTT"},
      {"CallSign=A B", ObservationFault::kNotStorable, "CallSign"},
      {"CallSign=A=B", ObservationFault::kNotStorable, "CallSign"},
      {long_line.c_str(), ObservationFault::kLineTooLong, ""},
  };
  for (const Row& row : rows) {
    ObservationReader reader;
    ASSERT_EQ(reader.take("# first"), Step::kMore);
    ASSERT_EQ(reader.take("YY=15"), Step::kMore);
    EXPECT_EQ(reader.take(row.line), Step::kError) << row.line;
    EXPECT_EQ(reader.error().line, 3U) << row.line;
    EXPECT_EQ(reader.error().fault, row.fault) << row.line;
    EXPECT_EQ(reader.error().name, row.name) << row.line;
    EXPECT_EQ(reader.take(""), Step::kError) << "no observation comes after a fault";
    EXPECT_EQ(reader.finish(), Step::kError);
  }
}

TEST(ObservationFile, ObservationThatNeverEndsIsRefused) {
  ObservationReader reader;
  const std::string line = "LogText1=" + std::string(500, 'x');
  Step step = Step::kMore;
  std::size_t lines = 0;
  while (step == Step::kMore && lines < 1000) {
    step = reader.take(line);
    ++lines;
  }
  EXPECT_EQ(step, Step::kError);
  EXPECT_EQ(reader.error().fault, ObservationFault::kRecordTooLong);
  EXPECT_EQ(lines, observation::kLongestBlock / line.size() + 1);
}

TEST(ObservationFile, PlaceholderCallSignIsStorable) {
  EXPECT_EQ(read("CallSign=*******").at(0).CallSign, "*******");
  EXPECT_EQ(read("CallSign=").at(0).CallSign, "");
}

TEST(ObservationFile, WrittenRecordReadsBackTheSame) {
  for (Struct_Weather record : {records::fresh(), records::full(), Struct_Weather({}, {})}) {
    const Struct_Weather fresh = records::fresh();
    std::string lines;
    observation::write_observation(lines, record, fresh);
    ObservationReader reader(records::ship());
    Step step = Step::kMore;
    for (std::size_t at = 0; at < lines.size();) {
      const auto end = lines.find('\n', at);
      step = reader.take(std::string_view(lines).substr(at, end - at));
      ASSERT_EQ(step, Step::kMore);
      at = end + 1;
    }
    ASSERT_EQ(reader.finish(), Step::kObservation);
    EXPECT_TRUE(reader.record() == record) << lines;
  }
}

// ---- Names of the ship's data

struct ShipRow {
  const char *name, *value;
  bool (*holds)(const ShipFixedData& ship);
};

TEST(ObservationFile, ThePageOnItNamesEveryFieldAndGivesValuesThatAreTaken) {
  std::ifstream in(std::string(KAVREL_SOURCE) + "/docs/observation-files.md");
  std::string page;
  std::set<std::string> ship_and_items;
  ObservationReader reader;
  for (std::string line; std::getline(in, line);) {
    page += line + "\n";
    if (!line.starts_with("    ")) continue;
    EXPECT_EQ(reader.take(line), Step::kMore) << line;
    if (line.find('#') == std::string::npos)
      ship_and_items.insert(line.substr(4, line.find('=') - 4));
  }
  constexpr std::size_t kShipNames = 25;
  EXPECT_EQ(ship_and_items.size(), kShipNames + kObservationItems);
  for (const WeatherField& field : weather_fields())
    EXPECT_NE(page.find("`" + std::string(field.name) + "`"), std::string::npos) << field.name;
}

TEST(ShipValues, EveryNameSetsItsItem) {
  using Ship = ShipFixedData;
  const ShipRow rows[] = {
      {"call_sign", "JXKV", [](const Ship& s) { return s.call_sign == "JXKV"; }},
      {"call_sign", "ABCDEFGHI", [](const Ship& s) { return s.call_sign == "ABCDEFGHI"; }},
      {"barometer_check_date", "2014/10/01",
       [](const Ship& s) { return s.card.check_date == "2014/10/01"; }},
      {"barometer_check_port", "横浜", [](const Ship& s) { return s.card.check_port == "横浜"; }},
      {"card_type", "0",
       [](const Ship& s) { return s.card.type == CardType::kHeightAndTemperature; }},
      {"card_type", "1", [](const Ship& s) { return s.card.type == CardType::kTotalCorrection; }},
      {"card_type", "-1", [](const Ship& s) { return s.card.type == CardType::kNotChosen; }},
      {"total_correction", "-50", [](const Ship& s) { return s.card.total_correction == "-50"; }},
      {"total_correction", "+80.0",
       [](const Ship& s) { return s.card.total_correction == "+80.0"; }},
      {"instrumental_correction", "-0.3",
       [](const Ship& s) { return s.card.instrumental_correction == "-0.3"; }},
      {"loading_state", "1",
       [](const Ship& s) { return s.card.loading_state == LoadingState::kInBallast; }},
      {"height_full_load", "200", [](const Ship& s) { return s.card.height_full_load == "200"; }},
      {"total_correction_full_load", "+2.1",
       [](const Ship& s) { return s.card.total_correction_full_load == "+2.1"; }},
      {"height_ballast", "0", [](const Ship& s) { return s.card.height_ballast == "0"; }},
      {"total_correction_ballast", "3",
       [](const Ship& s) { return s.card.total_correction_ballast == "3"; }},
      {"wind_input_method", "1",
       [](const Ship& s) { return s.wind_input_method == WindInputMethod::kApparentWind; }},
      {"wind_speed_method", "1",
       [](const Ship& s) { return s.wind_speed_method == WindSpeedMethod::kAnemometer; }},
      {"sea_temperature_method", "2",
       [](const Ship& s) {
         return s.sea_temperature_method == SeaTemperatureMethod::kHullContactSensor;
       }},
      {"sea_temperature_method", "-1",
       [](const Ship& s) { return static_cast<int>(s.sea_temperature_method) == -1; }},
      {"dew_point_method", "1",
       [](const Ship& s) { return s.dew_point_method == DewPointMethod::kComputed; }},
      {"wave_recorder", "0", [](const Ship& s) { return s.wave_recorder; }},
      {"wave_recorder", "1", [](const Ship& s) { return !s.wave_recorder; }},
      {"vosclim", "0", [](const Ship& s) { return s.vosclim; }},
      {"vosclim", "1", [](const Ship& s) { return !s.vosclim; }},
      {"temperature_unit", "0.5", [](const Ship& s) { return s.temperature_unit == 0.5; }},
      {"temperature_unit", "1", [](const Ship& s) { return s.temperature_unit == 1.0; }},
      {"vosclim_cargo_height", "12", [](const Ship& s) { return s.vosclim_cargo_height == "12"; }},
      {"vosclim_load_line_departure", "-05",
       [](const Ship& s) { return s.vosclim_load_line_departure == "-05"; }},
      {"vosclim_load_line_departure", "+12",
       [](const Ship& s) { return s.vosclim_load_line_departure == "+12"; }},
      {"vosclim_load_line_departure", "",
       [](const Ship& s) { return s.vosclim_load_line_departure.empty(); }},
      {"imo_number", "9074729", [](const Ship& s) { return s.imo_number == "9074729"; }},
      {"imo_number", "", [](const Ship& s) { return s.imo_number.empty(); }},
      {"humidity_method", "1",
       [](const Ship& s) { return s.humidity_method == HumidityMethod::kComputed; }},
      {"humidity_unit", "1.0", [](const Ship& s) { return s.humidity_unit == 1.0; }},
      {"aws_fitted", "1", [](const Ship& s) { return s.aws_fitted; }},
      {"aws_fitted", "0", [](const Ship& s) { return !s.aws_fitted; }},
      {"aws_manufacturer", "MAKER CO., LTD",
       [](const Ship& s) { return s.aws_manufacturer == "MAKER CO., LTD"; }},
  };
  for (const ShipRow& row : rows) {
    ShipFixedData ship;
    ship.imo_number = "1";
    ship.wave_recorder = std::string_view(row.value) == "1";
    ship.vosclim = ship.wave_recorder;
    ship.aws_fitted = std::string_view(row.value) == "0";
    EXPECT_EQ(observation::store_ship_value(ship, row.name, row.value), Stored::kStored)
        << row.name << "=" << row.value;
    EXPECT_TRUE(row.holds(ship)) << row.name << "=" << row.value;
  }
}

TEST(ShipValues, WhatCannotBeStoredChangesNothing) {
  struct Row {
    const char *name, *value;
    Stored expected;
  };
  const std::string long_text(61, 'A');
  for (const Row& row : {
           Row{"call_sign", "A B", Stored::kNotStorable},
           Row{"call_sign", "コール", Stored::kNotStorable},
           Row{"barometer_check_date", "2014-10-01", Stored::kNotStorable},
           Row{"barometer_check_port", long_text.c_str(), Stored::kNotStorable},
           Row{"card_type", "2", Stored::kNotStorable},
           Row{"card_type", "-2", Stored::kNotStorable},
           Row{"card_type", "1.0", Stored::kBadNumber},
           Row{"card_type", "", Stored::kBadNumber},
           Row{"total_correction", "80.1", Stored::kNotStorable},
           Row{"total_correction", "-50.1", Stored::kNotStorable},
           Row{"total_correction", "1,5", Stored::kBadNumber},
           Row{"instrumental_correction", "50.1", Stored::kNotStorable},
           Row{"instrumental_correction", "1e1", Stored::kBadNumber},
           Row{"loading_state", "2", Stored::kNotStorable},
           Row{"height_full_load", "201", Stored::kNotStorable},
           Row{"height_full_load", "-1", Stored::kBadNumber},
           Row{"height_ballast", "0012", Stored::kNotStorable},
           Row{"total_correction_full_load", "x", Stored::kBadNumber},
           Row{"total_correction_ballast", "99", Stored::kNotStorable},
           Row{"wind_input_method", "2", Stored::kNotStorable},
           Row{"wind_speed_method", "-1", Stored::kNotStorable},
           Row{"sea_temperature_method", "4", Stored::kNotStorable},
           Row{"dew_point_method", "99999999999999", Stored::kNotStorable},
           Row{"wave_recorder", "2", Stored::kNotStorable},
           Row{"vosclim", "yes", Stored::kBadNumber},
           Row{"temperature_unit", "0.3", Stored::kNotStorable},
           Row{"temperature_unit", "0.1x", Stored::kBadNumber},
           Row{"humidity_unit", "0.5", Stored::kNotStorable},
           Row{"vosclim_cargo_height", "123", Stored::kNotStorable},
           Row{"vosclim_cargo_height", "1x", Stored::kBadNumber},
           Row{"vosclim_load_line_departure", "+005", Stored::kNotStorable},
           Row{"vosclim_load_line_departure", "+", Stored::kBadNumber},
           Row{"vosclim_load_line_departure", "-5", Stored::kNotStorable},
           Row{"vosclim_load_line_departure", "005", Stored::kNotStorable},
           Row{"vosclim_load_line_departure", "+ 5", Stored::kBadNumber},
           Row{"imo_number", "12345678", Stored::kNotStorable},
           Row{"imo_number", "IMO9074", Stored::kBadNumber},
           Row{"humidity_method", "2", Stored::kNotStorable},
           Row{"aws_fitted", "-1", Stored::kNotStorable},
           Row{"aws_manufacturer", long_text.c_str(), Stored::kNotStorable},
           Row{"", "1", Stored::kUnknownName},
           Row{"callsign", "JXKV", Stored::kUnknownName},
       }) {
    ShipFixedData ship = records::ship();
    EXPECT_EQ(observation::store_ship_value(ship, row.name, row.value), row.expected)
        << row.name << "=" << row.value;
    EXPECT_EQ(ship, records::ship()) << row.name << "=" << row.value;
  }
}

TEST(ShipValues, ItemsHaveTheirOrderAndOneMeansNotObserved) {
  constexpr const char* kNames[] = {"h",         "VV",        "N",        "Nh",
                                    "CLCMCH",    "ww",        "W1W2",     "PwHw",
                                    "dw1Pw1Hw1", "dw2Pw2Hw2", "IsEsEsRs", "ciSibiDizi"};
  for (std::size_t i = 0; i < std::size(kNames); ++i) {
    KeyObservationItems items;
    EXPECT_EQ(observation::store_item_value(items, kNames[i], "1"), Stored::kStored);
    for (std::size_t other = 0; other < kObservationItems; ++other)
      EXPECT_EQ(items.not_observed[other], other == i) << kNames[i];
    EXPECT_EQ(observation::store_item_value(items, kNames[i], "0"), Stored::kStored);
    EXPECT_EQ(items, KeyObservationItems()) << kNames[i];
  }
}

}  // namespace
