// For any record that the program can hold: what a report carries comes back when it is read, and
// encoding that again gives the same report byte for byte.

#include <gtest/gtest.h>

#include <algorithm>

#include "observation/logbook_encoder.h"
#include "observation/observation_file.h"
#include "observation/report_encoder.h"
#include "observation/report_reader.h"
#include "random_records.h"
#include "records.h"

namespace {

using observation::Figures;
using observation::Group;
using observation::GroupRow;
using observation::Symbol;
using records::Random;
using records::random_record;

constexpr int kRecords = 4000;

std::string encode(const Struct_Weather& record, bool wet_bulb) {
  std::string message;
  std::string missing;
  observation::encode_report(record, message, missing, wet_bulb, text::Language::kEnglish);
  return message;
}

Struct_Weather blank() {
  Struct_Weather record({}, {});
  for (const WeatherField& field : weather_fields()) (record.*field.member).clear();
  return record;
}

std::string carried(const std::string& field, const Symbol& symbol) {
  if (symbol.figures == Figures::kTenths) {
    if (field.empty()) return "";
    const int minutes = std::stoi(field) / 6 * 6;
    return (minutes < 10 ? "0" : "") + std::to_string(minutes);
  }
  return field.empty() ? std::string(symbol.width, '/') : field;
}

/// The fields that the report carries, as it carries them.
Struct_Weather expected(const Struct_Weather& record, bool wet_bulb) {
  Struct_Weather result = blank();
  result.CallSign = record.CallSign.substr(0, 7);
  std::replace(result.CallSign.begin(), result.CallSign.end(), '*', '/');
  for (const Group group : observation::make_report(record, wet_bulb).written.in_order())
    for (const Symbol& symbol : observation::row_of(group).used())
      result.*symbol.field = carried(record.*symbol.field, symbol);
  if (record.dw2dw2 == "00" && record.dw1dw1 != "00" && !result.dw2dw2.empty())
    result.dw2dw2 = "//";
  return result;
}

TEST(RoundTrip, ReportGivesBackTheFieldsItCarries) {
  Random random(20141115);
  for (int i = 0; i < kRecords; ++i) {
    const Struct_Weather record = random_record(random);
    const bool wet_bulb = random.one_in(2);
    const std::string message = encode(record, wet_bulb);
    const auto report = observation::read_report(message, blank());
    ASSERT_TRUE(report) << message;
    EXPECT_TRUE(report->unplaced.empty()) << message << " " << report->unplaced.front().text;
    const Struct_Weather wanted = expected(record, wet_bulb);
    for (const WeatherField& field : weather_fields())
      ASSERT_EQ(report->record.*field.member, wanted.*field.member) << field.name << " " << message;
    ASSERT_EQ(encode(report->record, report->has_wet_bulb), message);
  }
}

TEST(RoundTrip, TelexLinesChangeNothing) {
  Random random(7);
  for (int i = 0; i < kRecords / 4; ++i) {
    const Struct_Weather record = random_record(random);
    const std::string message = encode(record, true);
    std::string wrapped = "ZCZC 123\r\nFROM SHIP\r\n";
    for (const char c : message) {
      wrapped.append(c == ' ' && random.one_in(4) ? "\r\n" : std::string(1, c));
      if (c == ' ' && random.one_in(6)) wrapped.append("  ");
    }
    wrapped.append("\r\n\r\nNNNN\r\n");
    const auto report = observation::read_report(wrapped, blank());
    ASSERT_TRUE(report) << wrapped;
    EXPECT_EQ(report->unplaced.size(), 1U) << "the telex heading alone: " << wrapped;
    ASSERT_EQ(encode(report->record, true), message) << wrapped;
  }
}

TEST(RoundTrip, GroupTornByALineBreakIsOneGroup) {
  const std::string message = encode(records::full(), true);
  for (std::size_t at = message.find("15124"); at < message.find("ICE"); ++at) {
    std::string torn = message;
    torn.insert(at, "\r\n");
    const auto report = observation::read_report(torn, blank());
    ASSERT_TRUE(report);
    EXPECT_EQ(encode(report->record, true), message) << torn;
  }
}

TEST(RoundTrip, ObservationLinesGiveBackTheRecord) {
  Random random(3);
  for (int i = 0; i < kRecords / 4; ++i) {
    const Struct_Weather record = random_record(random);
    const Struct_Weather fresh({}, {});
    std::string lines;
    observation::write_observation(lines, record, fresh);
    observation::ObservationReader reader;
    for (std::size_t at = 0; at < lines.size();) {
      const auto end = lines.find('\n', at);
      ASSERT_EQ(reader.take(std::string_view(lines).substr(at, end - at)),
                observation::ObservationReader::Step::kMore)
          << lines.substr(at, end - at);
      at = end + 1;
    }
    ASSERT_EQ(reader.finish(), observation::ObservationReader::Step::kObservation);
    ASSERT_TRUE(reader.record() == record) << lines;
  }
}

TEST(RoundTrip, EveryRecordMakesALogbookLineOf172Columns) {
  Random random(172);
  for (int i = 0; i < kRecords; ++i) {
    const Struct_Weather record = random_record(random);
    ShipFixedData ship;
    ship.dew_point_method = random.one_in(2) ? DewPointMethod::kComputed : DewPointMethod::kDirect;
    KeyObservationItems items;
    items.set_observed(ObservationItem::PwHw, random.one_in(2));
    const std::string line = observation::encode_logbook(record, ship, items);
    ASSERT_EQ(line.size(), observation::kLogbookColumns);
    ASSERT_EQ(line.find('*'), record.CallSign == "*******" ? 71U : std::string::npos) << line;
  }
}

}  // namespace
