#include "explain/log/logbook_check.h"

#include <algorithm>
#include <iterator>

#include "elements/form/cross_rules.h"
#include "elements/form/entry_check.h"
#include "explain/doubts/doubts.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace explain {
namespace {

namespace id = text::id;
using observation::LogbookColumn;
using observation::LogbookLine;
using observation::LogbookRecord;
using observation::Writer;
using W = Struct_Weather;
using enum Severity;

/// In the order of the table.
enum Kind : std::uint8_t {
  kLength,
  kShifted,
  kGap,
  kFixedText,
  kBlank,
  kUnreadable,
  kDate,
  kCallSign,
  kPosition,
  kBeyond,
  kCode,
  kLimit,
  kIncomplete,
  kNoSign,
  kContradiction,
  kOfDoubts,
  kSavedTwice,
  kSameHour,
  kOrder,
  kLater,
};
constexpr FindingKind kKinds[] = {
    {"length", kError, id::kLogLength, id::kMendDamaged},
    {"shifted", kError, id::kLogShifted, id::kMendDamaged},
    {"gap", kError, id::kLogGap, id::kMendGap},
    {"fixed_text", kError, id::kLogFixedText, id::kMendDamaged},
    {"blank", kError, id::kLogBlank, id::kMendFromReport},
    {"unreadable", kError, id::kLogUnreadable, id::kMendFromReport},
    {"date", kError, id::kLogDate, id::kMendDamaged},
    {"call_sign", kError, id::kLogCallSign, id::kMendCallSign},
    {"position", kError, id::kLogPosition, id::kMendFromReport},
    {"beyond", kError, id::kLogBeyond, id::kMendCorrect},
    {"code", kError, id::kLogCode, id::kMendCorrect},
    {"limit", kError, id::kLogLimit, id::kMendCorrect},
    {"incomplete", kError, id::kLogIncomplete, id::kMendCorrect},
    {"no_sign", kError, id::kLogNoSign, id::kMendCorrect},
    {"contradiction", kError, id::kLogContradiction, id::kMendCorrect},
    {"doubt", kDoubt, id::kLogDoubt, id::kMendDoubt},
    {"saved_twice", kNote, id::kLogSavedTwice, id::kMendSavedTwice},
    {"same_hour", kNote, id::kLogSameHour, id::kMendSameHour},
    {"order", kDoubt, id::kLogOrder, id::kMendOrder},
    {"later", kDoubt, id::kLogLater, id::kMendOrder},
};
static_assert(std::size(kKinds) == kLater + 1);

/// Of a ship so many observations are kept: those of the last day and more.
constexpr std::size_t kMostPast = 12;

// So that a terminal obeys nothing of it and a list can be read: every byte beyond printable ASCII
// by its number.
std::string printable(std::string_view text) {
  constexpr char kHex[] = "0123456789ABCDEF";
  std::string result;
  for (const char c : text) {
    if (c >= ' ' && c < '\x7f') {
      result.push_back(c);
      continue;
    }
    const auto byte = static_cast<unsigned char>(c);
    result.append("\\x");
    result.push_back(kHex[byte >> 4U]);
    result.push_back(kHex[byte & 15U]);
  }
  return result;
}

std::string in_one_line(std::string_view text) {
  std::string result(text);
  std::ranges::replace_if(result, text::is_control, ' ');
  return result;
}

// FNV-1a: two lines of one hour are told apart by it, and nothing else depends on it.
std::uint64_t mark_of(std::string_view line) {
  std::uint64_t mark = 14695981039346656037U;
  for (const char c : line) {
    mark ^= static_cast<unsigned char>(c);
    mark *= 1099511628211U;
  }
  return mark;
}

ColumnRange range_of(const LogbookColumn& column) {
  return {column.first, column.last};
}

std::string_view name_of(const LogbookColumn& column) {
  return column.field == nullptr ? std::string_view() : symbol_of(column.field);
}

void append_word(std::string& words, std::string_view word) {
  if (word.empty()) return;
  if (!words.empty()) words.push_back(' ');
  words.append(word);
}

// The symbols that a rule of the form is about, in the order of the form, and the first's columns.
std::pair<std::string, ColumnRange> about(const elements::CrossRule& rule) {
  std::string symbols;
  ColumnRange columns;
  for (const elements::FieldRow& row : elements::field_rows()) {
    if (!rule.raised_by.contains(row.field) && !rule.also_about.contains(row.field)) continue;
    if (row.member == nullptr) continue;
    if (symbols.empty()) columns = columns_of(row.member);
    append_word(symbols, symbol_of(row.member));
  }
  return {std::move(symbols), columns};
}

std::pair<std::string, ColumnRange> about(const DoubtRow& row) {
  std::string symbols;
  ColumnRange columns;
  for (const auto member : row.about) {
    if (member == nullptr) break;
    if (symbols.empty()) columns = columns_of(member);
    append_word(symbols, symbol_of(member));
  }
  return {std::move(symbols), columns};
}

std::string when_of(const W& record) {
  std::string when(record.Year);
  when.append("-").append(record.Month).append("-").append(record.YY);
  when.append(" ").append(record.GG).append(" UTC");
  return when;
}

bool is_reported(std::string_view figures) {
  return figures.find_first_not_of('/') != std::string_view::npos;
}

bool has_position(const W& record) {
  return is_reported(record.Qc) && is_reported(record.LaDeg) && is_reported(record.LoDeg);
}

std::string columns_text(const ColumnRange& columns) {
  std::string text = text::format_int(columns.first);
  if (columns.last != columns.first) text.append("-").append(text::format_int(columns.last));
  return text;
}

void append_filled(std::string& out, text::Id format, text::Language language,
                   std::initializer_list<std::string_view> words) {
  out.append(text::fill(text::bilingual(format, language), words)).append("\n");
}

std::string number(std::uint64_t n) {
  return text::format_int(static_cast<long long>(n));
}

// "1 character", "90 characters", "1000+ characters".
std::string characters(std::size_t count, text::Language language) {
  constexpr std::size_t kLongestTold = 1000;
  const std::string figures = count > kLongestTold ? std::string("1000+") : number(count);
  return text::fill(
      text::bilingual(count == 1 ? id::kLogOneCharacter : id::kLogCharacters, language), {figures});
}

}  // namespace

std::string_view name_of(Severity severity) {
  constexpr std::string_view kNames[] = {"error", "doubt", "note"};
  return kNames[static_cast<std::size_t>(severity)];
}

std::span<const FindingKind> finding_kinds() {
  return kKinds;
}

// ---- The summary

void Summary::add(const Finding& finding) {
  std::string key = finding.element;
  key.append("|").append(finding.rule).append("|");
  key.append(text::format_int(finding.columns.first, 3));
  Group& group = groups_[{finding.kind, std::move(key)}];
  if (group.count++ == 0) {
    group.kind = finding.kind;
    group.first = finding;
  }
  if (group.lines.size() < kLinesNamed &&
      (group.lines.empty() || group.lines.back() != finding.line)) {
    group.lines.push_back(finding.line);
    group.hours.push_back(finding.when);
  }
}

void Summary::count_ship(std::string_view call_sign, const std::string& when) {
  const auto at = std::ranges::find(ships_, call_sign, &Ship::call_sign);
  if (at != ships_.end()) {
    ++at->lines;
    at->first = std::min(at->first, when);
    at->last = std::max(at->last, when);
  } else if (ships_.size() < kShipsNamed) {
    ships_.push_back({std::string(call_sign), 1, when, when});
  } else {
    ++other_ships_;
  }
}

void Summary::append_group(std::string& out, const Group& group) const {
  std::string where = group.first.element;
  if (group.first.columns.first != 0) {
    if (!where.empty()) where.append(", ");
    where.append(text::fill(text::bilingual(id::kSummaryColumns, language_),
                            {columns_text(group.first.columns)}));
  }
  const std::string count = number(group.count);
  if (where.empty())
    append_filled(out, id::kSummaryGroupOfLine, language_, {count, group.first.text});
  else
    append_filled(out, id::kSummaryGroup, language_, {count, where, group.first.text});
  std::string lines;
  // Who mends it looks for the report of the hour, and not for a line.
  for (std::size_t i = 0; i < group.lines.size(); ++i) {
    if (!lines.empty()) lines.append(", ");
    lines.append(number(group.lines[i]));
    if (!group.hours[i].empty()) lines.append(" (").append(group.hours[i]).append(")");
  }
  if (group.count > group.lines.size()) lines.append(", ...");
  append_filled(out, id::kSummaryWhere, language_, {lines});
  append_filled(out, id::kSummaryMend, language_, {text::bilingual(group.kind->mend, language_)});
}

std::string Summary::words() const {
  std::string out;
  const std::uint64_t sound = lines_ - errors_ - doubts_;
  append_filled(out, lines_ == 0 ? id::kSummaryEmpty : id::kSummaryLines, language_,
                {number(lines_), number(sound), number(errors_), number(doubts_)});
  for (const Ship& ship : ships_)
    append_filled(out, id::kSummaryShip, language_,
                  {ship.call_sign, number(ship.lines), ship.first, ship.last});
  if (other_ships_ > 0)
    append_filled(out, id::kSummaryOtherShips, language_, {number(other_ships_)});
  constexpr std::pair<Severity, text::Id> kHeadings[] = {
      {kError, id::kSummaryErrors}, {kDoubt, id::kSummaryDoubts}, {kNote, id::kSummaryNotes}};
  for (const auto& [severity, heading] : kHeadings) {
    bool first = true;
    for (const auto& [key, group] : groups_) {
      if (group.kind->severity != severity) continue;
      if (std::exchange(first, false)) {
        out.append("\n");
        append_filled(out, heading, language_, {});
      }
      append_group(out, group);
    }
  }
  return out;
}

// ---- The check

LogbookCheck::LogbookCheck(text::Language language, Found found)
    : language_(language), found_(std::move(found)), summary_(language) {}

void LogbookCheck::find(std::size_t kind, ColumnRange columns, std::string element,
                        std::initializer_list<std::string_view> words, std::string_view rule) {
  const FindingKind& row = kKinds[kind];
  error_ = error_ || row.severity == kError;
  doubt_ = doubt_ || row.severity == kDoubt;
  tell({summary_.lines_, &row, std::string(rule), columns, std::move(element),
        in_one_line(text::fill(text::bilingual(row.text, language_), words)),
        hour_ ? when_of(read_->record) : std::string()});
}

void LogbookCheck::tell(const Finding& finding) {
  summary_.add(finding);
  if (found_) found_(finding);
}

void LogbookCheck::take(std::string_view text) {
  ++summary_.lines_;
  error_ = false;
  doubt_ = false;
  const auto line = LogbookLine::of(text);
  const auto read = line ? observation::record_of_line(text, {}, {}) : std::nullopt;
  read_ = read ? &*read : nullptr;
  hour_ = read ? line->hour() : std::nullopt;
  if (!line || (text.size() != observation::kLogbookColumns && (!read || !has_a_gap_alone(*read))))
    find(kLength, {}, {}, {characters(text.size(), language_)});
  else if (!read)
    // Every column of it would be wrong, and none of it is the officer's doing.
    find(kShifted, {}, {}, {});
  else
    check_read(text, *line, *read);
  read_ = nullptr;
  hour_.reset();
  if (error_)
    ++summary_.errors_;
  else if (doubt_)
    ++summary_.doubts_;
}

void LogbookCheck::check_read(std::string_view text, const LogbookLine& line,
                              const LogbookRecord& read) {
  check_layout(line, read);
  check_elements(line, read);
  check_rules(read.record);
  if (!hour_)
    find(kDate, {2, 11}, {}, {printable(text.substr(line.lacks(1) ? 0 : 1, 10))});
  else if (!read.record.CallSign.empty())
    check_sequence(text, read, *hour_);
}

// A column that the encoder leaves out; else a character is missing that nobody knows the place of.
bool LogbookCheck::has_a_gap_alone(const LogbookRecord& read) {
  if (!read.unread.empty()) return false;
  bool sound = true;
  elements_.check(read.record, [&](const ElementFinding& /*found*/) { sound = false; });
  return sound;
}

void LogbookCheck::check_layout(const LogbookLine& line, const LogbookRecord& read) {
  for (const std::uint8_t first :
       {observation::kTemperatureUnitColumn, observation::kSeaMethodColumn})
    if (line.lacks(first)) find(kGap, {first, first}, {}, {text::format_int(first)});
  for (const LogbookColumn* const column : read.unread) check_column(line, *column);
}

void LogbookCheck::check_column(const LogbookLine& line, const LogbookColumn& column) {
  const std::string_view text = line.text_of(column);
  // Told as what it makes of the line.
  if (column.field == &W::Year || column.field == &W::Month) return;
  const bool blank = text.find_first_not_of(' ') == std::string_view::npos;
  if (blank && column.field == &W::CallSign) return;
  std::string element(name_of(column));
  if (column.writer == Writer::kText)
    find(kFixedText, range_of(column), {}, {printable(text), column.text});
  else if (blank)
    find(kBlank, range_of(column), std::move(element), {});
  else
    find(kUnreadable, range_of(column), std::move(element), {printable(text)});
}

void LogbookCheck::check_elements(const LogbookLine& line, const LogbookRecord& read) {
  const W& record = read.record;
  if (line.call_sign().find_first_not_of('*') == std::string_view::npos)
    find(kCallSign, columns_of(&W::CallSign), "CallSign", {});
  if (!has_position(record)) find(kPosition, {12, 19}, {}, {});
  if (elements::is_impossible(elements::Field::kLaMin, record))
    find(kBeyond, columns_of(&W::LaDeg), "LaDeg LaMin", {});
  if (elements::is_impossible(elements::Field::kLoMin, record))
    find(kBeyond, columns_of(&W::LoDeg), "LoDeg LoMin", {});
  elements_.check(record, [&](const ElementFinding& found) {
    const ColumnRange columns = columns_of(found.member);
    std::string symbol(symbol_of(found.member));
    const std::string_view limits = text::bilingual(found.limits, language_);
    switch (found.fault) {
      case ElementFault::kCode:
        find(kCode, columns, std::move(symbol), {found.figures, found.code_table});
        break;
      case ElementFault::kLimit:
        find(kLimit, columns, std::move(symbol), {found.figures, limits});
        break;
      case ElementFault::kIncomplete:
        find(kIncomplete, columns, std::move(symbol), {found.figures});
        break;
      case ElementFault::kNoSign:
        find(kNoSign, columns, std::move(symbol), {found.figures});
        break;
      case ElementFault::kNone:
        break;
    }
  });
}

void LogbookCheck::check_rules(const Struct_Weather& record) {
  for (const elements::CrossRule* const rule : elements::broken_rules(record)) {
    auto [symbols, columns] = about(*rule);
    find(kContradiction, columns, std::move(symbols), {text::bilingual(rule->message, language_)},
         text::format_int(rule->message.number));
  }
}

void LogbookCheck::check_sequence(std::string_view line, const LogbookRecord& read, int hour) {
  const std::string& call_sign = read.record.CallSign;
  summary_.count_ship(call_sign, when_of(read.record));
  check_told(line, call_sign, hour);
  Ship& ship = ship_of(call_sign);
  check_order(ship, hour);
  Ship::Past now{hour, summary_.lines_, observation::values_of(read.record), error_, doubt_};
  Before before;
  for (const Ship::Past& past : ship.past) {
    // What was refused says nothing of the next line.
    if (past.error || past.hour >= hour || hour - past.hour > kLongestPast) continue;
    before.last = &past.values;
    before.hours = hour - past.hour;
    if (before.hours == 3) before.three_hours_ago = &past.values;
  }
  for (const Doubt& doubt : doubts_of(now.values, before, language_)) {
    auto [symbols, columns] = about(*doubt.row);
    find(kOfDoubts, columns, std::move(symbols), {doubt.text}, doubt.row->name);
  }
  now.doubt = doubt_;
  ship.last_line = now.line;
  // Of one hour the last line counts, as in the reports that are written over.
  const auto at = std::ranges::lower_bound(ship.past, hour, {}, &Ship::Past::hour);
  if (at != ship.past.end() && at->hour == hour)
    *at = std::move(now);
  else
    ship.past.insert(at, std::move(now));
  if (ship.past.size() > kMostPast) ship.past.pop_front();
}

void LogbookCheck::check_told(std::string_view line, const std::string& call_sign, int hour) {
  std::string key = text::format_int(hour);
  key.append(" ").append(call_sign);
  const std::uint64_t mark = mark_of(line);
  const auto [at, is_new] = told_.try_emplace(key, Told{summary_.lines_, mark});
  if (is_new) {
    told_order_.push_back(std::move(key));
    if (told_order_.size() > kMostHours) {
      told_.erase(told_order_.front());
      told_order_.pop_front();
    }
    return;
  }
  find(at->second.mark == mark ? kSavedTwice : kSameHour, {2, 11}, {}, {number(at->second.line)});
  at->second = {summary_.lines_, mark};
}

// A date that is wrong by years would put every line behind it in the wrong: where the line before
// goes on from the one before that, and this one does as well, it is that line which is out of order.
void LogbookCheck::check_order(Ship& ship, int hour) {
  if (ship.past.empty() || ship.past.back().hour <= hour) return;
  const Ship::Past& last = ship.past.back();
  const bool last_is_wrong = ship.past.size() > 1 && last.line == ship.last_line &&
                             ship.past[ship.past.size() - 2].hour < hour;
  if (!last_is_wrong) {
    find(kOrder, {2, 11}, {}, {number(last.line)});
    return;
  }
  const FindingKind& row = kKinds[kLater];
  tell({last.line,
        &row,
        {},
        {2, 11},
        {},
        text::fill(text::bilingual(row.text, language_), {number(summary_.lines_)}),
        {}});
  if (!last.error && !last.doubt) ++summary_.doubts_;
  ship.past.pop_back();
}

LogbookCheck::Ship& LogbookCheck::ship_of(const std::string& call_sign) {
  const auto at = by_call_sign_.find(call_sign);
  if (at != by_call_sign_.end()) {
    ships_.splice(ships_.begin(), ships_, at->second);
    return ships_.front();
  }
  ships_.push_front({call_sign, {}});
  by_call_sign_.emplace(call_sign, ships_.begin());
  if (ships_.size() > kMostShips) {
    by_call_sign_.erase(ships_.back().call_sign);
    ships_.pop_back();
  }
  return ships_.front();
}

}  // namespace explain
