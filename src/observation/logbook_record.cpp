#include "observation/logbook_record.h"

#include <algorithm>
#include <string>

#include "platform/calendar.h"
#include "text/numbers.h"

namespace observation {
namespace {

constexpr std::size_t kGaps = 2;

// The column of a field, for what is asked of a line without making a record of it.
std::string_view text_of_field(const LogbookLine& line, std::string Struct_Weather::*field) {
  const auto columns = logbook_columns();
  const auto at = std::ranges::find(columns, field, &LogbookColumn::field);
  return line.text_of(*at);
}

// Before the columns whose rules ask what others hold.
bool comes_first(const LogbookColumn& column) {
  return column.tells == ColumnTells::kShip || column.writer != Writer::kSpecial;
}

// Such a column is read as if it were empty, so that nothing of it is told in part.
void forget(LogbookRecord& read, const LogbookColumn& column) {
  if (column.field != nullptr) (read.record.*column.field).clear();
  read.unread.push_back(&column);
}

}  // namespace

LogbookRecord::LogbookRecord(const ShipFixedData& given_ship,
                             const KeyObservationItems& given_items)
    : record(given_ship, given_items), ship(given_ship), items(given_items) {}

std::optional<LogbookLine> LogbookLine::of(std::string_view line) {
  if (line.size() == kLogbookColumns) return LogbookLine(line, false, false);
  if (line.size() == kLogbookColumns - kGaps) return LogbookLine(line, true, true);
  if (line.size() != kLogbookColumns - 1) return std::nullopt;
  // One of the two lacks. The fixed text between them, or what begins the line, tells which.
  const LogbookLine without_unit(line, true, false);
  const LogbookLine without_method(line, false, true);
  constexpr std::string_view kUnits = "345";
  const bool begins_with_unit = kUnits.find(line.front()) != std::string_view::npos;
  const bool first = without_unit.is_in_place();
  const bool second = without_method.is_in_place();
  if (first == second) return begins_with_unit ? without_method : without_unit;
  return first ? without_unit : without_method;
}

std::string_view LogbookLine::text_of(const LogbookColumn& column) const {
  if (lacks(column.first)) return {};
  std::size_t at = column.first - 1U;
  if (unit_lacks_ && column.first > kTemperatureUnitColumn) --at;
  if (method_lacks_ && column.first > kSeaMethodColumn) --at;
  return line_.substr(at, column.width());
}

bool LogbookLine::lacks(std::uint8_t first) const {
  return (first == kTemperatureUnitColumn && unit_lacks_) ||
         (first == kSeaMethodColumn && method_lacks_);
}

bool LogbookLine::is_in_place() const {
  return std::ranges::all_of(logbook_columns(), [&](const LogbookColumn& column) {
    return column.writer != Writer::kText || text_of(column) == column.text;
  });
}

std::optional<int> LogbookLine::hour() const {
  constexpr int kFirstYear = 2000;
  constexpr int kHours = 24;
  const auto number = [this](std::string Struct_Weather::*field) {
    return text::whole_number(text_of_field(*this, field), 0, 9999).value_or(-1);
  };
  const int year = number(&Struct_Weather::Year);
  const int month = number(&Struct_Weather::Month);
  const int day = number(&Struct_Weather::YY);
  const int hour = number(&Struct_Weather::GG);
  if (year < kFirstYear || hour < 0 || hour >= kHours ||
      !platform::is_calendar_date(year, month, day))
    return std::nullopt;
  return platform::day_number(year, month, day) * kHours + hour;
}

std::string_view LogbookLine::call_sign() const {
  const std::string_view padded = text_of_field(*this, &Struct_Weather::CallSign);
  return padded.substr(0, padded.find_last_not_of(' ') + 1);
}

std::optional<LogbookRecord> record_of_line(std::string_view line, const ShipFixedData& ship,
                                            const KeyObservationItems& items) {
  std::optional<LogbookRecord> read;
  const auto columns = LogbookLine::of(line);
  if (!columns) return read;
  read.emplace(ship, items);
  for (const bool first : {true, false}) {
    for (const LogbookColumn& column : logbook_columns())
      if (comes_first(column) == first) take_column(*read, column, columns->text_of(column));
  }
  // What the record does not give again was not written by it.
  const LogbookSource again{read->record, read->ship, read->items};
  std::string text;
  for (const LogbookColumn& column : logbook_columns()) {
    text.clear();
    write_column(text, column, again);
    if (text != columns->text_of(column)) forget(*read, column);
  }
  constexpr std::ptrdiff_t kFixedTextsWrong = 1;
  if (std::ranges::count(read->unread, Writer::kText, &LogbookColumn::writer) > kFixedTextsWrong)
    read.reset();
  return read;
}

}  // namespace observation
