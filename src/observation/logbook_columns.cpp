#include "observation/logbook_columns.h"

#include <algorithm>
#include <cmath>

#include "codetables/tables/minutes.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "observation/field_text.h"
#include "observation/logbook_fields.h"
#include "observation/logbook_record.h"
#include "observation/report_groups.h"
#include "observation/report_text.h"
#include "observation/ship_values.h"
#include "text/strings.h"

namespace observation {
namespace {

using W = Struct_Weather;

using Column = LogbookColumn;
using Source = LogbookSource;
using Text = std::string_view;

constexpr Column of(std::uint8_t first, std::uint8_t last, std::string W::*field,
                    Writer writer = Writer::kLeft) {
  return {first, last, writer, ColumnTells::kReport, field, {}, nullptr, nullptr};
}
constexpr Column beyond_report(std::uint8_t first, std::uint8_t last, std::string W::*field,
                               Writer writer = Writer::kLeft) {
  return {first, last, writer, ColumnTells::kMore, field, {}, nullptr, nullptr};
}
constexpr Column fixed(std::uint8_t first, std::uint8_t last, std::string_view text) {
  return {first, last, Writer::kText, ColumnTells::kNothing, nullptr, text, nullptr, nullptr};
}
constexpr Column rule(std::uint8_t first, std::uint8_t last,
                      void (*special)(std::string&, const Source&),
                      void (*take)(LogbookRecord&, Text)) {
  return {first, last, Writer::kSpecial, ColumnTells::kReport, nullptr, {}, special, take};
}
constexpr Column of_ship(std::uint8_t first, std::uint8_t last,
                         void (*special)(std::string&, const Source&),
                         void (*take)(LogbookRecord&, Text)) {
  return {first, last, Writer::kSpecial, ColumnTells::kShip, nullptr, {}, special, take};
}

// 0.1 has no exact binary form, so a unit is never compared exactly.
bool nearly(double a, double b) {
  return std::abs(a - b) < 1e-6;
}

bool is_blank(Text text) {
  return text.find_first_not_of(' ') == Text::npos;
}

// "/" is what an empty field is filled with.
bool is_missing(Text text) {
  return text.find_first_not_of('/') == Text::npos;
}

// Figures as they stand; nothing of what is missing, and of letters.
std::string told(Text text) {
  return is_missing(text) || !is_figures(text) ? std::string() : std::string(text);
}

Text without_padding(Text text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

// ---- Columns with a rule of their own, each with its way back

// Indicator iT: temperatures to tenths (3), halves (4) or whole degrees (5).
void temperature_unit(std::string& line, const Source& source) {
  const double tenths = source.ship.temperature_unit * 10;
  if (nearly(tenths, 1)) line.push_back('3');
  if (nearly(tenths, 5)) line.push_back('4');
  if (nearly(tenths, 10)) line.push_back('5');
}

void take_temperature_unit(LogbookRecord& into, Text text) {
  into.ship.temperature_unit = text == "3" ? 0.1 : text == "4" ? 0.5 : text == "5" ? 1.0 : 0.0;
}

// The last figures of a report group, so that report and logbook cannot differ. A group of fewer
// figures (one figure of degrees) is padded as every other column is.
void end_of_group(std::string& line, const Struct_Weather& record, Group group, std::size_t count) {
  const std::size_t start = line.size();
  append_group(line, record, group);
  const std::size_t size = line.size() - start;
  if (size > count)
    line.erase(start, size - count);
  else
    line.append(count - size, '/');
}

void latitude(std::string& line, const Source& source) {
  const auto& record = source.record;
  // The report sends degrees alone ("9935/"); the logbook has a whole latitude or none.
  if (is_unset(record.LaDeg) || is_unset(record.LaMin))
    line.append("///");
  else
    end_of_group(line, record, Group::k99LaLaLa, 3);
}

// Whole degrees and one figure of tenths, which becomes the first minute that gives it.
void take_position(std::string& degrees, std::string& minutes, Text text) {
  const char tenth = text.back();
  const Text whole = text.substr(0, text.size() - 1);
  if (tenth < '0' || tenth > '9' || !is_figures(whole)) return;
  degrees = whole;
  minutes = codetables::minutes_of_tenth(tenth);
}

void take_latitude(LogbookRecord& into, Text text) {
  take_position(into.record.LaDeg, into.record.LaMin, text);
}

void longitude(std::string& line, const Source& source) {
  const auto& record = source.record;
  // Qc is of the longitude's group, so without it there is no longitude; latitude does not ask.
  if (is_unset(record.LoDeg) || is_unset(record.LoMin) || is_unset(record.Qc))
    line.append("////");
  else
    end_of_group(line, record, Group::kQcLoLoLoLo, 4);
}

void take_longitude(LogbookRecord& into, Text text) {
  take_position(into.record.LoDeg, into.record.LoMin, text);
  // Without a quadrant nothing would have been written, so the one that was is a solidus.
  if (!into.record.LoDeg.empty() && into.record.Qc.empty()) into.record.Qc.assign(1, '/');
}

// A computed dew point carries the kind of wet bulb that it was computed from.
void dew_point_sign(std::string& line, const Source& source) {
  const auto& record = source.record;
  // 5, 6 and 7 tell a computed dew point: 0 and above, below by a water bulb, below by ice.
  if (source.ship.dew_point_method != DewPointMethod::kComputed)
    write_left(line, record.SnTd, 1, true);
  else if (record.SnTd == "0")
    // The sign comes first: 5 beside an iced bulb as well. One that is missing counts as below.
    line.push_back('5');
  else
    line.push_back(codetables::is_iced(record.Sw) ? '7' : '6');
}

void take_dew_point_sign(LogbookRecord& into, Text text) {
  const bool computed = text == "5" || text == "6" || text == "7";
  into.ship.dew_point_method = computed ? DewPointMethod::kComputed : DewPointMethod::kDirect;
  if (!computed)
    into.record.SnTd = told(text);
  else if (text == "5")
    into.record.SnTd.assign(1, '0');
  else if (!into.record.TdTdTd.empty())
    // A sign that is missing was written as one below zero; without a dew point it is none.
    into.record.SnTd.assign(1, '1');
}

void sea_temperature_sign(std::string& line, const Source& source) {
  const std::string& sign = source.record.Ss;
  // The column has no figure for a sign that is missing: an empty Ss writes "1", as below zero.
  const bool positive =
      codetables::sea_temperature_method(sign) && !codetables::is_below_zero(sign);
  line.push_back(positive ? '0' : '1');
}

void take_sea_temperature_sign(LogbookRecord& into, Text text) {
  const bool below = text == "1";
  // The figure of a temperature below zero is that of a missing sign as well.
  if ((!below && text != "0") || (below && into.record.TwTwTw.empty())) return;
  const SeaTemperatureMethod method = into.ship.sea_temperature_method;
  const bool known =
      method >= SeaTemperatureMethod::kIntake && method <= SeaTemperatureMethod::kOther;
  into.record.Ss =
      codetables::sea_temperature_sign(known ? method : SeaTemperatureMethod::kOther, below);
}

void sea_temperature_method(std::string& line, const Source& source) {
  // The ship's method, also where this observation's Ss names another. The layout counts them
  // otherwise than Ss does: here 0 is the bucket and 1 the intake.
  switch (source.ship.sea_temperature_method) {
    case SeaTemperatureMethod::kIntake:
      line.push_back('1');
      break;
    case SeaTemperatureMethod::kBucket:
      line.push_back('0');
      break;
    case SeaTemperatureMethod::kHullContactSensor:
      line.push_back('3');
      break;
    case SeaTemperatureMethod::kOther:
      line.push_back('7');
      break;
  }
}

void take_sea_temperature_method(LogbookRecord& into, Text text) {
  into.ship.sea_temperature_method = text == "1"   ? SeaTemperatureMethod::kIntake
                                     : text == "0" ? SeaTemperatureMethod::kBucket
                                     : text == "3" ? SeaTemperatureMethod::kHullContactSensor
                                     : text == "7" ? SeaTemperatureMethod::kOther
                                                   : SeaTemperatureMethod{-1};
}

// Waves measured by instrument stand in where wind waves are not observed.
void wind_wave_period(std::string& line, const Source& source) {
  const auto& record = source.record;
  const bool observed = source.items.observed(ObservationItem::PwHw);
  write_left(line, observed ? record.PwPw : record.PwaPwa, 2, true);
}

void wind_wave_height(std::string& line, const Source& source) {
  const auto& record = source.record;
  const bool observed = source.items.observed(ObservationItem::PwHw);
  write_left(line, observed ? record.HwHw : record.HwaHwa, 2, true);
}

void take_wind_wave_period(LogbookRecord& into, Text text) {
  const bool observed = into.items.observed(ObservationItem::PwHw);
  (observed ? into.record.PwPw : into.record.PwaPwa) = told(text);
}

void take_wind_wave_height(LogbookRecord& into, Text text) {
  const bool observed = into.items.observed(ObservationItem::PwHw);
  (observed ? into.record.HwHw : into.record.HwaHwa) = told(text);
}

void first_swell(std::string& line, const Source& source) {
  const auto& record = source.record;
  // No first swell: whatever its period and height hold, they are of nothing.
  if (record.dw1dw1 == "00") {
    line.append("0000");
    return;
  }
  write_left(line, record.Pw1Pw1, 2, true);
  write_left(line, record.Hw1Hw1, 2, true);
}

void take_first_swell(LogbookRecord& into, Text text) {
  if (into.record.dw1dw1 == "00") return;
  into.record.Pw1Pw1 = told(text.substr(0, 2));
  into.record.Hw1Hw1 = told(text.substr(2, 2));
}

void second_swell(std::string& line, const Source& source) {
  const auto& record = source.record;
  if (record.dw1dw1 == "00") {
    line.append("000000");
  } else if (record.dw2dw2 == "00") {
    // No second swell is blank: zeros here would say that there is no swell at all.
    line.append("      ");
  } else {
    write_left(line, record.dw2dw2, 2, true);
    write_left(line, record.Pw2Pw2, 2, true);
    write_left(line, record.Hw2Hw2, 2, true);
  }
}

void take_second_swell(LogbookRecord& into, Text text) {
  if (into.record.dw1dw1 == "00" || is_blank(text)) {
    into.record.dw2dw2.assign(2, '0');
    return;
  }
  // Zeros beside a first swell are written by nobody, and would say that there is no second one.
  const Text direction = text.substr(0, 2);
  if (direction != "00") into.record.dw2dw2 = told(direction);
  into.record.Pw2Pw2 = told(text.substr(2, 2));
  into.record.Hw2Hw2 = told(text.substr(4, 2));
}

// The loading is what the ship's data hold, registered or not, and what they hold now, also in the
// line of a report that is corrected.
void cargo_height(std::string& line, const Source& source) {
  write_zero(line, source.ship.vosclim_cargo_height, 2, false);
}

void take_cargo_height(LogbookRecord& into, Text text) {
  into.ship.vosclim_cargo_height = text::is_all_digits(text) ? text : Text();
}

// "+05" is written "005", "-05" is written "105".
void load_line_departure(std::string& line, const Source& source) {
  const std::string& departure = source.ship.vosclim_load_line_departure;
  const std::size_t start = line.size();
  write_zero(line, departure, 3, false);
  for (std::size_t at = start; at < line.size(); ++at) {
    if (line[at] == '+') line[at] = '0';
    if (line[at] == '-') line[at] = '1';
  }
}

void take_load_line_departure(LogbookRecord& into, Text text) {
  std::string& departure = into.ship.vosclim_load_line_departure;
  departure.clear();
  if (!text::is_all_digits(text) || text.front() > '1') return;
  departure = text;
  departure.front() = text.front() == '0' ? '+' : '-';
}

void humidity_indicator(std::string& line, const Source& source) {
  // 0 and 1: read from a hygrometer, in tenths and in whole percent; 3 and 4: computed, the same.
  const bool tenths = nearly(source.ship.humidity_unit, 0.1);
  if (source.ship.humidity_method != HumidityMethod::kDirect)
    line.push_back(tenths ? '3' : '4');
  else
    line.push_back(tenths ? '0' : '1');
}

void take_humidity_indicator(LogbookRecord& into, Text text) {
  into.ship.humidity_method =
      text == "3" || text == "4" ? HumidityMethod::kComputed : HumidityMethod::kDirect;
  into.ship.humidity_unit = text == "0" || text == "3" ? 0.1 : 1.0;
}

void station_indicator(std::string& line, const Source& source) {
  // With an automatic station: 1 when it observes alone, 2 when people observe something beside it.
  if (!source.ship.aws_fitted)
    line.push_back('0');
  else
    line.push_back(source.items.none_observed() ? '1' : '2');
}

void take_station_indicator(LogbookRecord& into, Text text) {
  into.ship.aws_fitted = text == "1" || text == "2";
  if (text == "1") into.items.not_observed.fill(true);
  // Somebody observes something: what the reader's own ship does not is not to be told of this one.
  if (text == "2" && into.items.none_observed()) into.items.not_observed.fill(false);
}

void imo_number(std::string& line, const Source& source) {
  write_left(line, source.ship.imo_number, 7, false);
}

void take_imo_number(LogbookRecord& into, Text text) {
  const Text number = without_padding(text);
  into.ship.imo_number = text::is_all_digits(number) ? number : Text();
  into.record.ShipFixed = into.ship.imo_number;
}

// ---- The line

constexpr Column kColumns[] = {
    of_ship(1, 1, temperature_unit, take_temperature_unit),
    // A date that is missing is blank here, not "/": day and hour behind it are.
    of(2, 5, &W::Year, Writer::kLeftPlain),
    of(6, 7, &W::Month, Writer::kLeftPlain),
    of(8, 9, &W::YY),
    of(10, 11, &W::GG),
    of(12, 12, &W::Qc),
    rule(13, 15, latitude, take_latitude),
    rule(16, 19, longitude, take_longitude),
    // How height of cloud base and visibility are had: 0, both estimated.
    fixed(20, 20, "0"),
    of(21, 21, &W::h),
    of(22, 23, &W::VV),
    of(24, 24, &W::N),
    of(25, 26, &W::dd),
    of(27, 27, &W::iw),
    of(28, 29, &W::ff),
    of(30, 30, &W::SnT),
    of(31, 33, &W::TTT),
    rule(34, 34, dew_point_sign, take_dew_point_sign),
    of(35, 37, &W::TdTdTd),
    of(38, 41, &W::PPPP),
    of(42, 43, &W::ww),
    of(44, 44, &W::W1),
    of(45, 45, &W::W2),
    of(46, 46, &W::Nh),
    of(47, 47, &W::CL),
    of(48, 48, &W::CM),
    of(49, 49, &W::CH),
    rule(50, 50, sea_temperature_sign, take_sea_temperature_sign),
    of(51, 53, &W::TwTwTw),
    of_ship(54, 54, sea_temperature_method, take_sea_temperature_method),
    // How waves are had: 0, estimated. It stays so where a wave recorder's figures stand behind it.
    fixed(55, 55, "0"),
    rule(56, 57, wind_wave_period, take_wind_wave_period),
    rule(58, 59, wind_wave_height, take_wind_wave_height),
    of(60, 61, &W::dw1dw1),
    rule(62, 65, first_swell, take_first_swell),
    of(66, 66, &W::Is),
    of(67, 68, &W::EsEs),
    of(69, 69, &W::Rs),
    // Source of the observation: 4, an electronic logbook. The kind of ship behind it is not given.
    fixed(70, 70, "4"),
    fixed(71, 71, " "),
    of(72, 78, &W::CallSign, Writer::kLeftPlain),
    // The country that recruited the ship, a figure for national use, 0: no quality control yet.
    fixed(79, 82, "JP30"),
    of(83, 83, &W::iX),
    // iR: no precipitation group; its amount and period are the four blanks.
    fixed(84, 84, "4"),
    fixed(85, 88, "    "),
    of(89, 89, &W::Sw),
    of(90, 92, &W::TbTbTb),
    of(93, 93, &W::a),
    of(94, 96, &W::ppp),
    of(97, 97, &W::Ds),
    of(98, 98, &W::Vs),
    rule(99, 104, second_swell, take_second_swell),
    of(105, 105, &W::ci),
    of(106, 106, &W::Si),
    of(107, 107, &W::bi),
    of(108, 108, &W::Di),
    of(109, 109, &W::zi),
    // Version 8 of FM 13 and 5 of this layout; then the flags of the quality control, which is done
    // ashore: 0 is "not yet", and the last one is left blank.
    fixed(110, 132, "8500000000000000000000 "),
    // VOSClim: heading, course and speed over ground. Course and wind speed may have decimals, for
    // which there is no column: they are cut off.
    beyond_report(133, 135, &W::VosClim3, Writer::kZero),
    beyond_report(136, 138, &W::VosClim5, Writer::kInteger),
    beyond_report(139, 140, &W::VosClim4, Writer::kZero),
    of_ship(141, 142, cargo_height, take_cargo_height),
    of_ship(143, 145, load_line_departure, take_load_line_departure),
    // Relative wind, direction and speed.
    beyond_report(146, 148, &W::VosClim1, Writer::kZero),
    beyond_report(149, 151, &W::VosClim2, Writer::kInteger),
    // Quality flags again, of the columns from 133 on.
    fixed(152, 159, "0000 000"),
    beyond_report(160, 163, &W::LogExtra),
    of_ship(164, 164, humidity_indicator, take_humidity_indicator),
    of_ship(165, 165, station_indicator, take_station_indicator),
    of_ship(166, 172, imo_number, take_imo_number),
};

constexpr bool columns_follow_each_other() {
  std::size_t next = 1;
  for (const Column& column : kColumns) {
    if (column.first != next || column.last < column.first) return false;
    if (column.writer == Writer::kText && column.text.size() != column.width()) return false;
    next = column.last + 1U;
  }
  return next == kLogbookColumns + 1;
}
static_assert(columns_follow_each_other());

}  // namespace

std::span<const LogbookColumn> logbook_columns() {
  return kColumns;
}

void write_column(std::string& line, const LogbookColumn& column, const LogbookSource& source) {
  switch (column.writer) {
    case Writer::kText:
      line.append(column.text);
      break;
    case Writer::kLeft:
      write_left(line, source.record.*column.field, column.width(), true);
      break;
    case Writer::kLeftPlain:
      write_left(line, source.record.*column.field, column.width(), false);
      break;
    case Writer::kZero:
      write_zero(line, source.record.*column.field, column.width(), true);
      break;
    case Writer::kInteger:
      write_integer(line, source.record.*column.field, column.width(), true);
      break;
    case Writer::kSpecial:
      column.special(line, source);
      break;
  }
}

void take_column(LogbookRecord& into, const LogbookColumn& column, std::string_view text) {
  if (column.take != nullptr) {
    column.take(into, text);
  } else if (column.field == &W::CallSign) {
    const Text sign = without_padding(text);
    // Asterisks stand for a call sign that nobody entered, as a ship without any has it.
    into.record.CallSign = is_report_call_sign(sign) ? sign : Text();
    into.ship.call_sign = into.record.CallSign;
  } else if (column.writer == Writer::kLeftPlain) {
    const Text figures = without_padding(text);
    into.record.*column.field = text::is_all_digits(figures) ? figures : Text();
  } else if (column.field != nullptr) {
    into.record.*column.field = told(text);
  }
}

}  // namespace observation
