#include "explain/logbook_list.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include "codetables/tables/code_tables.h"
#include "observation/logbook_reader.h"
#include "observation/report_file.h"
#include "observation/values.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"
#include "ui/printer.h"

namespace explain {
namespace {

namespace id = text::id;
using observation::LogbookLine;
using observation::LogbookRecord;
using observation::Values;

// Behind all others.
constexpr double kUnknown = std::numeric_limits<double>::max();

// ---- The columns of a row

struct Column {
  text::Id heading;
  std::size_t width;
  bool right;  ///< numbers stand to the right
  std::string (*text)(const LogbookRecord& read, const Values& values);
};

std::string fixed(std::optional<double> value, int decimals) {
  return value ? text::format_fixed(*value, decimals) : std::string();
}

std::string degrees(std::optional<double> value, char positive, char negative, int width) {
  if (!value) return {};
  std::string text = text::format_fixed(std::abs(*value), 1, width);
  text.push_back(*value < 0 ? negative : positive);
  return text;
}

std::string position(const Values& values) {
  std::string text = degrees(values.latitude, 'N', 'S', 4);
  if (!text.empty()) text.append("  ").append(degrees(values.longitude, 'E', 'W', 5));
  return text;
}

std::string date_and_hour(const Struct_Weather& record) {
  std::string text = record.Year;
  text.append("/").append(record.Month).append("/").append(record.YY);
  text.append(" ").append(record.GG);
  return text;
}

// Where the wind comes from and how strong it is: "270 18", "var 3", "0" for calm.
std::string wind(const Values& values) {
  std::string text;
  if (values.wind_direction)
    text = text::format_int(*values.wind_direction, 3, '0');
  else if (values.wind_variable)
    text.assign("var");
  const auto knots = observation::knots_of(values);
  if (!knots) return text;
  std::string speed = text::format_fixed(*knots, 0, 3);
  return text.append(" ").append(speed);
}

// Height and period.
std::string waves(const observation::WaveValues& values) {
  std::string text = fixed(values.height, 1);
  if (values.period) text.append("/").append(text::format_int(*values.period));
  return text;
}

const observation::WaveValues& wind_waves(const Values& values) {
  return values.wind_waves.height ? values.wind_waves : values.measured_waves;
}

constexpr Column kColumns[] = {
    {id::kLogListDate, 13, false,
     [](const LogbookRecord& read, const Values& /*values*/) {
       return date_and_hour(read.record);
     }},
    {id::kLogListPosition, 13, false,
     [](const LogbookRecord& /*read*/, const Values& values) { return position(values); }},
    {id::kLogListWind, 7, false,
     [](const LogbookRecord& /*read*/, const Values& values) { return wind(values); }},
    {id::kLogListPressure, 6, true,
     [](const LogbookRecord& /*read*/, const Values& values) { return fixed(values.pressure, 1); }},
    {id::kLogListAir, 5, true,
     [](const LogbookRecord& /*read*/, const Values& values) { return fixed(values.air, 1); }},
    {id::kLogListSea, 5, true,
     [](const LogbookRecord& /*read*/, const Values& values) { return fixed(values.sea, 1); }},
    {id::kLogListWaves, 7, true,
     [](const LogbookRecord& /*read*/, const Values& values) { return waves(wind_waves(values)); }},
    {id::kLogListSwell, 7, true,
     [](const LogbookRecord& /*read*/, const Values& values) { return waves(values.swell1); }},
    {id::kLogListVisibility, 2, false,
     [](const LogbookRecord& read, const Values& /*values*/) { return read.record.VV; }},
};
constexpr std::string_view kGap = "  ";

void add_cell(std::string& row, std::string_view text, const Column& column) {
  const std::size_t has = ui::columns_of(text);
  const std::size_t blanks = has < column.width ? column.width - has : 0;
  if (!row.empty()) row.append(kGap);
  if (column.right) row.append(blanks, ' ');
  row.append(text);
  if (!column.right) row.append(blanks, ' ');
}

// Words that do not fit are cut off: a row is one line on a small screen with large letters, and
// plain words tell the rest.
constexpr std::size_t kRemarkColumns = 46;

std::string cut(std::string text) {
  if (ui::columns_of(text) <= kRemarkColumns) return text;
  constexpr std::string_view kMore = "...";
  while (ui::columns_of(text) + kMore.size() > kRemarkColumns) {
    // A whole character, its continuing bytes included.
    while ((static_cast<unsigned char>(text.back()) & 0xC0U) == 0x80U) text.pop_back();
    text.pop_back();
  }
  return text.append(kMore);
}

// Present weather in figures and words, behind what cannot be read.
std::string remarks(const LogbookRecord& read, const text::Texts& texts) {
  std::string text;
  if (!read.unread.empty())
    text =
        text::fill(texts.get(id::kLogListDamaged), {text::format_int(read.unread.front()->first)});
  const std::string& ww = read.record.ww;
  if (!text::is_all_digits(ww)) return cut(std::move(text));
  if (!text.empty()) text.append(kGap);
  text.append(ww);
  const auto words = codetables::meaning(*codetables::table_of("ww"), ww, texts.language);
  if (words) text.append(" ").append(*words);
  return cut(std::move(text));
}

double or_unknown(std::optional<double> value, double sign) {
  return value ? sign * *value : kUnknown;
}

double highest_wave(const Values& values) {
  double highest = -1;
  for (const auto* waves :
       {&values.measured_waves, &values.wind_waves, &values.swell1, &values.swell2})
    highest = std::max(highest, waves->height.value_or(-1));
  return highest < 0 ? kUnknown : -highest;
}

}  // namespace

LogbookList::LogbookList(platform::Files& files, const std::string& folder,
                         const ShipFixedData& ship, const KeyObservationItems& items)
    : ship_(ship), items_(items) {
  if (folder.empty()) return;
  path_ = observation::logbook_path(folder);
  error_ = observation::for_each_line(files, path_,
                                      [this](std::string_view line) { lines_.emplace_back(line); });
  order_.resize(lines_.size());
  sort(LogOrder::kNewest);
}

void LogbookList::sort(LogOrder order) {
  std::iota(order_.begin(), order_.end(), 0U);
  if (order == LogOrder::kInFile) return;
  std::vector<double> keys(lines_.size());
  for (const std::uint32_t at : order_) keys[at] = key(at, order);
  std::stable_sort(order_.begin(), order_.end(),
                   [&](std::uint32_t a, std::uint32_t b) { return keys[a] < keys[b]; });
}

// What comes first has the smallest. Hour and layout are seen in the line itself, so that a long
// logbook opens at once; other values are read when they are asked for.
double LogbookList::key(std::uint32_t at, LogOrder order) const {
  const std::string& line = lines_[at];
  const auto columns = LogbookLine::of(line);
  if (order == LogOrder::kNewest || order == LogOrder::kOldest) {
    const auto hour = columns ? columns->hour() : std::nullopt;
    if (!hour) return kUnknown;
    return order == LogOrder::kNewest ? -*hour : *hour;
  }
  const auto read = observation::record_of_line(line, ship_, items_);
  if (order == LogOrder::kDamaged) return read && read->unread.empty() ? 1 : 0;
  if (!read) return kUnknown;
  const Values values = observation::values_of(read->record);
  switch (order) {
    case LogOrder::kNorth:
      return or_unknown(values.latitude, -1);
    case LogOrder::kEast:
      return or_unknown(values.longitude, 1);
    case LogOrder::kWind:
      return or_unknown(observation::knots_of(values), -1);
    case LogOrder::kPressure:
      return or_unknown(values.pressure, 1);
    case LogOrder::kWaves:
      return highest_wave(values);
    default:
      return 0;
  }
}

const std::string& LogbookList::line(std::size_t place) const {
  return lines_[order_[place]];
}

std::uint64_t LogbookList::number(std::size_t place) const {
  return std::uint64_t{order_[place]} + 1;
}

std::optional<LogbookRecord> LogbookList::record(std::size_t place) const {
  return observation::record_of_line(line(place), ship_, items_);
}

std::string LogbookList::text(std::size_t place, const text::Texts& texts) const {
  const auto read = record(place);
  if (!read)
    return text::fill(texts.get(id::kLogListNoLine),
                      {text::format_int(static_cast<long long>(number(place)))});
  const Values values = observation::values_of(read->record);
  std::string row;
  for (const Column& column : kColumns) add_cell(row, column.text(*read, values), column);
  row.append(kGap).append(remarks(*read, texts));
  row.erase(row.find_last_not_of(' ') + 1);
  return row;
}

std::string LogbookList::heading(const text::Texts& texts) {
  std::string row;
  for (const Column& column : kColumns) add_cell(row, texts.get(column.heading), column);
  return row.append(kGap).append(texts.get(id::kLogListRemarks));
}

}  // namespace explain
