// A line of the logbook gives back the observation that it was written from, but for what the layout
// has no place for.

#include "observation/logbook_record.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>

#include "fakes/rounds.h"
#include "observation/logbook_encoder.h"
#include "records.h"

namespace {

using observation::LogbookColumn;
using observation::LogbookLine;
using observation::LogbookRecord;
using observation::record_of_line;

const int kRecords = fakes::rounds(100'000);

class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}
  int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(engine_); }
  bool one_in(int n) { return below(n) == 0; }
  std::string one_of(std::initializer_list<const char*> texts) {
    return *(texts.begin() + below(static_cast<int>(texts.size())));
  }
  std::string digits(std::size_t width) {
    std::string text;
    for (std::size_t i = 0; i < width; ++i) text.push_back(static_cast<char>('0' + below(10)));
    return text;
  }
  /// Nothing, figures, solidi, or figures of which some were not observed.
  std::string figures(std::size_t width) {
    const int kind = below(8);
    if (kind == 0) return "";
    if (kind == 1) return std::string(width, '/');
    std::string text = digits(width);
    if (kind == 2)
      for (char& c : text)
        if (one_in(2)) c = '/';
    return text;
  }

 private:
  std::mt19937 engine_;
};

struct Made {
  ShipFixedData ship;
  KeyObservationItems items;
  Struct_Weather record{ship, items};
};

ShipFixedData random_ship(Random& random) {
  ShipFixedData ship;
  ship.call_sign = random.one_of({"*******", "A", "JXKV", "7ABC", "ABCDEFG", ""});
  ship.temperature_unit = std::array{0.1, 0.5, 1.0}.at(static_cast<std::size_t>(random.below(3)));
  ship.sea_temperature_method = static_cast<SeaTemperatureMethod>(random.below(4));
  ship.dew_point_method = static_cast<DewPointMethod>(random.below(2));
  ship.humidity_method = static_cast<HumidityMethod>(random.below(2));
  ship.humidity_unit = random.one_in(2) ? 0.1 : 1.0;
  ship.aws_fitted = random.one_in(2);
  ship.imo_number = random.one_of({"", "9074729", "1234567"});
  ship.vosclim_cargo_height = random.one_of({"", "07", "99"});
  ship.vosclim_load_line_departure = random.one_of({"", "+05", "-12", "+00"});
  return ship;
}

Made random_made(Random& random) {
  Made made;
  made.ship = random_ship(random);
  for (bool& off : made.items.not_observed) off = random.one_in(2);
  if (random.one_in(8)) made.items.not_observed.fill(true);
  Struct_Weather& record = made.record = Struct_Weather(made.ship, made.items);
  using W = Struct_Weather;
  for (const auto field :
       {&W::h,  &W::N,  &W::SnT, &W::a,  &W::W1, &W::W2, &W::Nh, &W::CL, &W::CM, &W::CH, &W::Ds,
        &W::Vs, &W::Is, &W::Rs,  &W::ci, &W::Si, &W::bi, &W::Di, &W::zi, &W::iw, &W::iX})
    record.*field = random.figures(1);
  for (const auto field : {&W::YY, &W::GG, &W::VV, &W::dd, &W::ff, &W::ww, &W::PwaPwa, &W::HwaHwa,
                           &W::PwPw, &W::HwHw, &W::dw1dw1, &W::dw2dw2, &W::Pw1Pw1, &W::Hw1Hw1,
                           &W::Pw2Pw2, &W::Hw2Hw2, &W::EsEs, &W::gg, &W::GGExact})
    record.*field = random.figures(2);
  for (const auto field : {&W::TTT, &W::TdTdTd, &W::ppp, &W::TwTwTw, &W::TbTbTb, &W::fff})
    record.*field = random.figures(3);
  for (const auto field : {&W::PPPP, &W::LogExtra}) record.*field = random.figures(4);
  record.Year = random.one_of({"", "2014", "2099", "14"});
  record.Month = random.one_of({"", "01", "12", "7"});
  record.Qc = random.one_of({"", "1", "3", "5", "7", "/"});
  record.SnTd = random.one_of({"", "0", "1", "/"});
  record.Sw = random.one_of({"", "0", "1", "2", "/"});
  record.Ss = random.one_of({"", "0", "1", "2", "3", "4", "5", "6", "7", "/"});
  record.LaDeg = random.one_in(6) ? "" : random.digits(2);
  record.LoDeg = random.one_in(6) ? "" : random.digits(3);
  for (const auto minutes : {&W::LaMin, &W::LoMin})
    record.*minutes = random.one_in(6) ? "" : std::to_string(random.below(60));
  if (random.one_in(4)) record.dw1dw1 = random.one_of({"00", "27", "99"});
  if (random.one_in(4)) record.dw2dw2 = random.one_of({"00", "31"});
  record.VosClim1 = random.one_of({"", "5", "085", "360"});
  record.VosClim2 = random.one_of({"", "7", "12.5", "999"});
  record.VosClim3 = random.one_of({"", "16", "0"});
  record.VosClim4 = random.one_of({"", "7", "18"});
  record.VosClim5 = random.one_of({"", "230.4", "0.9", "12"});
  record.LogText1 = random.one_of({"", "note"});
  return made;
}

// ---- What comes back, said without the table of columns

bool is_solidi(const std::string& text) {
  return text.find_first_not_of('/') == std::string::npos;
}

std::string tenths_kept(const std::string& minutes) {
  const int first = std::stoi(minutes) / 6 * 6;
  return (first < 10 ? "0" : "") + std::to_string(first);
}

std::string zero_filled(std::string text, std::size_t width) {
  text = text.substr(0, text.find('.'));
  return text.empty() ? text : std::string(width - text.size(), '0') + text;
}

Struct_Weather expected(const Made& made) {
  Struct_Weather kept = made.record;
  const Struct_Weather& was = made.record;
  using W = Struct_Weather;
  // No column, one of another pair, or one that is the same in every line.
  for (const auto field : {&W::fff, &W::GGExact, &W::gg, &W::LogText1, &W::LogText2, &W::LogText3})
    (kept.*field).clear();
  kept.iR = "4";
  const bool wind_waves = made.items.observed(ObservationItem::PwHw);
  (wind_waves ? kept.PwaPwa : kept.PwPw).clear();
  (wind_waves ? kept.HwaHwa : kept.HwHw).clear();
  // Positions in tenths, whole or not at all.
  const bool north = !was.LaDeg.empty() && !was.LaMin.empty();
  kept.LaDeg = north ? was.LaDeg : "";
  kept.LaMin = north ? tenths_kept(was.LaMin) : "";
  const bool east = !was.LoDeg.empty() && !was.LoMin.empty() && !was.Qc.empty();
  kept.LoDeg = east ? was.LoDeg : "";
  kept.LoMin = east ? tenths_kept(was.LoMin) : "";
  // Signs.
  if (made.ship.dew_point_method == DewPointMethod::kComputed && was.SnTd != "0")
    kept.SnTd = is_solidi(was.TdTdTd) ? "" : "1";
  const bool zero_and_above = was.Ss == "0" || was.Ss == "2" || was.Ss == "4" || was.Ss == "6";
  const int figure = 2 * static_cast<int>(made.ship.sea_temperature_method);
  kept.Ss = zero_and_above          ? std::to_string(figure)
            : is_solidi(was.TwTwTw) ? ""
                                    : std::to_string(figure + 1);
  // No swell.
  if (was.dw1dw1 == "00") {
    for (const auto field : {&W::Pw1Pw1, &W::Hw1Hw1}) (kept.*field).clear();
    kept.dw2dw2 = "00";
  }
  if (kept.dw2dw2 == "00")
    for (const auto field : {&W::Pw2Pw2, &W::Hw2Hw2}) (kept.*field).clear();
  kept.VosClim1 = zero_filled(was.VosClim1, 3);
  kept.VosClim2 = zero_filled(was.VosClim2, 3);
  kept.VosClim3 = zero_filled(was.VosClim3, 3);
  kept.VosClim4 = zero_filled(was.VosClim4, 2);
  kept.VosClim5 = zero_filled(was.VosClim5, 3);
  // Not observed and not entered are one.
  for (const WeatherField& field : weather_fields())
    if (is_solidi(kept.*field.member)) (kept.*field.member).clear();
  // But that a longitude stands beside it tells that there was a quadrant to be observed.
  if (east) kept.Qc = was.Qc;
  return kept;
}

ShipFixedData expected_ship(const Made& made) {
  ShipFixedData ship;
  ship.call_sign = made.ship.call_sign;
  ship.temperature_unit = made.ship.temperature_unit;
  ship.sea_temperature_method = made.ship.sea_temperature_method;
  ship.dew_point_method = made.ship.dew_point_method;
  ship.humidity_method = made.ship.humidity_method;
  ship.humidity_unit = made.ship.humidity_unit;
  ship.aws_fitted = made.ship.aws_fitted;
  ship.imo_number = made.ship.imo_number;
  ship.vosclim_cargo_height = made.ship.vosclim_cargo_height;
  ship.vosclim_load_line_departure = made.ship.vosclim_load_line_departure;
  return ship;
}

std::string line_of(const Made& made) {
  return observation::encode_logbook(made.record, made.ship, made.items);
}

/// As a reader that knows nothing of the ship but whether wind waves are observed.
LogbookRecord read_back(const Made& made, const std::string& line) {
  KeyObservationItems known;
  known.set_observed(ObservationItem::PwHw, made.items.observed(ObservationItem::PwHw));
  auto read = record_of_line(line, {}, known);
  EXPECT_TRUE(read) << line;
  return read ? *read : LogbookRecord({}, {});
}

void expect_same_fields(const Struct_Weather& read, const Struct_Weather& wanted,
                        const std::string& line) {
  for (const WeatherField& field : weather_fields())
    ASSERT_EQ(read.*field.member, wanted.*field.member) << field.name << "\n" << line;
}

TEST(LogbookRecord, GivesBackEveryFieldThatTheLayoutKeeps) {
  Random random(172);
  for (int i = 0; i < kRecords; ++i) {
    const Made made = random_made(random);
    const std::string line = line_of(made);
    const LogbookRecord read = read_back(made, line);
    expect_same_fields(read.record, expected(made), line);
    if (HasFatalFailure()) return;
    ASSERT_TRUE(read.unread.empty()) << int{read.unread.front()->first} << "\n" << line;
    ASSERT_EQ(read.ship, expected_ship(made)) << line;
    ASSERT_EQ(made.ship.aws_fitted && made.items.none_observed(),
              read.items.none_observed() && read.ship.aws_fitted);
    ASSERT_EQ(observation::encode_logbook(read.record, read.ship, read.items), line);
  }
}

// Every field of the record is either kept or in the list of those that are not.
TEST(LogbookRecord, LosesOnlyWhatItsTableNames) {
  Random random(2);
  std::set<std::string_view> changed;
  for (int i = 0; i < 2000; ++i) {
    const Made made = random_made(random);
    const LogbookRecord read = read_back(made, line_of(made));
    for (const WeatherField& field : weather_fields())
      if (read.record.*field.member != made.record.*field.member &&
          !is_solidi(made.record.*field.member))
        changed.insert(field.name);
  }
  EXPECT_EQ(changed, (std::set<std::string_view>{
                         "fff",      "gg",       "GGExact",  "LaDeg",    "LaMin",    "LoDeg",
                         "LoMin",    "SnTd",     "Ss",       "PwPw",     "HwHw",     "PwaPwa",
                         "HwaHwa",   "dw2dw2",   "Pw1Pw1",   "Hw1Hw1",   "Pw2Pw2",   "Hw2Hw2",
                         "VosClim1", "VosClim2", "VosClim3", "VosClim4", "VosClim5", "LogText1"}));
}

// A unit or a method that the layout does not know leaves a gap, and the reader sees where.
TEST(LogbookRecord, ReadsLinesWithAGapAsTheyWereWritten) {
  Random random(54);
  for (int i = 0; i < 4000; ++i) {
    Made made = random_made(random);
    // A year of the calendar: "3.." in front would look like the unit.
    made.record.Year = "2014";
    const int gaps = 1 + i % 3;
    if ((gaps & 1) != 0) made.ship.temperature_unit = 0.0;
    if ((gaps & 2) != 0) made.ship.sea_temperature_method = SeaTemperatureMethod{-1};
    const std::string line = line_of(made);
    ASSERT_EQ(line.size(), gaps == 3 ? 170U : 171U);
    const auto columns = LogbookLine::of(line);
    ASSERT_TRUE(columns);
    EXPECT_EQ(columns->lacks(1), (gaps & 1) != 0) << line;
    EXPECT_EQ(columns->lacks(54), (gaps & 2) != 0) << line;
    EXPECT_TRUE(columns->is_in_place()) << line;
    const LogbookRecord read = read_back(made, line);
    ASSERT_TRUE(read.unread.empty()) << int{read.unread.front()->first} << "\n" << line;
    ASSERT_EQ(observation::encode_logbook(read.record, read.ship, read.items), line);
    EXPECT_EQ(read.record.TTT, expected(made).TTT);
    EXPECT_EQ(read.record.ppp, expected(made).ppp);
  }
}

TEST(LogbookRecord, TakesTheWavesForThoseThatTheReadersItemsName) {
  const std::string line = observation::encode_logbook(records::full(), records::ship(), {});
  KeyObservationItems items;
  EXPECT_EQ(record_of_line(line, {}, items)->record.PwPw, "06");
  items.set_observed(ObservationItem::PwHw, false);
  EXPECT_EQ(record_of_line(line, {}, items)->record.PwPw, "");
  EXPECT_EQ(record_of_line(line, {}, items)->record.PwaPwa, "06");
}

// One other byte in any column: either another record that gives this line, or the column is named,
// and the fields of all other columns are as they were.
TEST(LogbookRecord, NamesTheColumnsThatHoldWhatNoRecordGives) {
  const std::string line = observation::encode_logbook(records::full(), records::ship(), {});
  const auto sound = record_of_line(line, {}, {});
  ASSERT_TRUE(sound);
  for (const LogbookColumn& column : observation::logbook_columns()) {
    for (std::size_t at = column.first - 1U; at < column.last; ++at) {
      for (const char byte : {'x', '\0', '\xff', '*', '-', ' ', '/', '9'}) {
        std::string damaged = line;
        damaged[at] = byte;
        const auto read = record_of_line(damaged, {}, {});
        ASSERT_TRUE(read);
        for (const LogbookColumn& each : observation::logbook_columns()) {
          const bool named = std::ranges::find(read->unread, &each) != read->unread.end();
          std::string again;
          write_column(again, each, {read->record, read->ship, read->items});
          EXPECT_EQ(again != damaged.substr(each.first - 1U, each.width()), named)
              << int{each.first} << " " << int{byte} << " at " << at;
          if (named && each.field != nullptr) {
            EXPECT_EQ(read->record.*each.field, "") << int{each.first};
          }
        }
        if (column.writer == observation::Writer::kText) {
          EXPECT_EQ(LogbookLine::of(damaged)->is_in_place(), damaged == line);
        }
      }
    }
  }
}

TEST(LogbookRecord, IsNoneOfAnyOtherLength) {
  const std::string line = observation::encode_logbook(records::full(), records::ship(), {});
  for (const std::string& other : {std::string(), std::string("x"), line.substr(3), line + " ",
                                   std::string(169, '0'), std::string(5000, '2')})
    EXPECT_FALSE(record_of_line(other, {}, {})) << other.size();
}

TEST(LogbookRecord, SurvivesAnyBytes) {
  Random random(9);
  for (int i = 0; i < 20000; ++i) {
    std::string line(170U + static_cast<std::size_t>(random.below(3)), ' ');
    for (char& c : line) c = static_cast<char>(random.below(256));
    EXPECT_FALSE(record_of_line(line, {}, {})) << "its fixed texts are overwritten";
    if (line.size() != observation::kLogbookColumns) continue;
    for (const LogbookColumn& column : observation::logbook_columns())
      if (column.writer == observation::Writer::kText)
        line.replace(column.first - 1U, column.text.size(), column.text);
    EXPECT_TRUE(record_of_line(line, {}, {}));
  }
}

}  // namespace
