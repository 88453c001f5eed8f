#include "explain/log/logbook_check.h"

#include <algorithm>
#include <iterator>

#include "elements/form/cross_rules.h"
#include "elements/form/entry_check.h"
#include "explain/doubts/doubts.h"
#include "explain/log/element_words.h"
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
  kImoNumber,
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
  kOtherImo,
  kImoChanged,
  kOtherSign,
  kSignChanged,
  kSignChangedAgain,
  kStrayLine,
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
    {"imo_number", kError, id::kLogImoNumber, id::kMendImoNumber},
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
    {"other_imo_number", kError, id::kLogOtherImoNumber, id::kMendIdentity},
    {"imo_number_changed", kDoubt, id::kLogImoNumberChanged, id::kMendIdentity},
    {"other_call_sign", kError, id::kLogOtherCallSign, id::kMendIdentity},
    {"call_sign_changed", kNote, id::kLogCallSignChanged, id::kMendCallSignChanged},
    {"call_sign_changed_again", kDoubt, id::kLogCallSignChangedAgain, id::kMendIdentity},
    {"other_ship", kDoubt, id::kLogOtherShip, id::kMendOtherShip},
};
static_assert(std::size(kKinds) == kStrayLine + 1);

/// What was found of a line's identity, in the order of IdentityFault.
constexpr Kind kIdentityKinds[] = {kOtherImo,    kImoChanged,       kOtherSign,
                                   kSignChanged, kSignChangedAgain, kStrayLine};

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

// The messages of the rules begin with "Error:" in either language; in a list of errors each is one.
std::string_view without_heading(std::string_view message) {
  constexpr std::string_view kColons[] = {": ", "\uFF1A"};
  for (const std::string_view colon : kColons)
    if (const auto at = message.find(colon); at != std::string_view::npos)
      return message.substr(at + colon.size());
  return message;
}

void append_word(std::string& words, std::string_view word, std::string_view between) {
  if (word.empty()) return;
  if (!words.empty()) words.append(between);
  words.append(word);
}

LinePlace place_of(const LogbookColumn& column, text::Language language) {
  LinePlace place{{{column.first, column.last}}, {}, {}};
  if (column.field == nullptr) return place;
  place.symbols = symbol_of(column.field);
  place.named = named(column.field, language);
  return place;
}

LinePlace in_columns(std::uint8_t first, std::uint8_t last) {
  return {{{first, last}}, {}, {}};
}

constexpr std::pair<std::uint8_t, std::uint8_t> kDateColumns{2, 11};
LinePlace place_of_date() {
  return in_columns(kDateColumns.first, kDateColumns.second);
}

// The members that a rule of the form is about, in the order of the form.
std::vector<std::string W::*> about(const elements::CrossRule& rule) {
  std::vector<std::string W::*> members;
  for (const elements::FieldRow& row : elements::field_rows()) {
    if (!rule.raised_by.contains(row.field) && !rule.also_about.contains(row.field)) continue;
    if (row.member != nullptr && std::ranges::find(members, row.member) == members.end())
      members.push_back(row.member);
  }
  return members;
}

std::span<std::string W::*const> about(const DoubtRow& row) {
  const auto end = std::ranges::find(row.about, nullptr);
  return {row.about.begin(), end};
}

// A place that the ship cannot have come to.
bool is_elsewhere(const Doubt& doubt) {
  constexpr std::string_view kDoubts[] = {"ship_too_fast", "north_for_south", "east_for_west"};
  return std::ranges::find(kDoubts, doubt.row->name) != std::end(kDoubts);
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

// In the order of the line, those that stand side by side as one.
std::string columns_text(std::vector<ColumnRange> columns) {
  std::ranges::sort(columns, {}, &ColumnRange::first);
  std::vector<ColumnRange> joined;
  for (const ColumnRange& range : columns) {
    if (!joined.empty() && joined.back().last + 1 == range.first)
      joined.back().last = range.last;
    else
      joined.push_back(range);
  }
  std::string text;
  for (const ColumnRange& range : joined) {
    append_word(text, text::format_int(range.first), ", ");
    if (range.last != range.first) text.append("-").append(text::format_int(range.last));
  }
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
  std::string key = finding.place.symbols;
  key.append("|").append(finding.rule);
  for (const ColumnRange& range : finding.place.columns)
    key.append("|").append(text::format_int(range.first, 3));
  Group& group = groups_[{finding.kind, std::move(key)}];
  if (group.count++ == 0) {
    group.kind = finding.kind;
    group.first = finding;
  }
  group.same_text = group.same_text && group.first.text == finding.text;
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
  const Finding& first = group.first;
  std::string where = first.place.named;
  if (!first.place.columns.empty())
    append_word(where,
                text::fill(text::bilingual(id::kSummaryColumns, language_),
                           {columns_text(first.place.columns)}),
                ", ");
  const std::string count = number(group.count);
  // The figures of one line are not those of the others.
  const std::string text = group.same_text
                               ? first.text
                               : text::fill(text::bilingual(id::kSummaryExample, language_),
                                            {number(first.line), first.text});
  if (where.empty())
    append_filled(out, id::kSummaryGroupOfLine, language_, {count, text});
  else
    append_filled(out, id::kSummaryGroup, language_, {count, where, text});
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

void LogbookCheck::find(std::size_t kind, LinePlace place,
                        std::initializer_list<std::string_view> words, std::string_view rule) {
  const FindingKind& row = kKinds[kind];
  error_ = error_ || row.severity == kError;
  doubt_ = doubt_ || row.severity == kDoubt;
  tell({summary_.lines_, &row, std::string(rule), std::move(place),
        in_one_line(text::fill(text::bilingual(row.text, language_), words)),
        hour_ ? when_of(read_->record) : std::string()});
}

// The line was counted by what had been found of it until then.
void LogbookCheck::find_in_passed(std::size_t kind, const PassedLine& line, LinePlace place,
                                  std::initializer_list<std::string_view> words) {
  constexpr std::size_t kMostPassed = 64;
  const FindingKind& row = kKinds[kind];
  tell({line.line,
        &row,
        {},
        std::move(place),
        in_one_line(text::fill(text::bilingual(row.text, language_), words)),
        line.when});
  auto at = std::ranges::find(passed_, line.line, &PassedLine::line);
  if (at == passed_.end()) {
    if (passed_.size() == kMostPassed) passed_.pop_front();
    passed_.push_back(line);
    at = std::prev(passed_.end());
  }
  if (row.severity == kError && !at->error) {
    at->error = true;
    ++summary_.errors_;
    if (at->doubt) --summary_.doubts_;
  } else if (row.severity == kDoubt && !at->error && !at->doubt) {
    at->doubt = true;
    ++summary_.doubts_;
  }
}

LinePlace LogbookCheck::place_of(Members members) const {
  LinePlace place;
  for (const auto member : members) {
    append_word(place.symbols, symbol_of(member), " ");
    const ColumnRange range = columns_of(member);
    // The minutes stand in the columns of their degrees.
    if (range.first != 0 &&
        std::ranges::find(place.columns, range.first, &ColumnRange::first) != place.columns.end())
      continue;
    append_word(place.named, named(member, language_), ", ");
    if (range.first != 0) place.columns.push_back(range);
  }
  return place;
}

LinePlace LogbookCheck::place_of(std::string W::*member) const {
  return place_of(Members(&member, 1));
}

void LogbookCheck::tell(const Finding& finding) {
  summary_.add(finding);
  if (found_) found_(finding);
}

void LogbookCheck::take(std::string_view text) {
  ++summary_.lines_;
  refused_.clear();
  error_ = false;
  doubt_ = false;
  const auto line = LogbookLine::of(text);
  const auto read = line ? observation::record_of_line(text, {}, {}) : std::nullopt;
  read_ = read ? &*read : nullptr;
  hour_ = read ? line->hour() : std::nullopt;
  if (!line || (text.size() != observation::kLogbookColumns && (!read || !has_a_gap_alone(*read))))
    find(kLength, {}, {characters(text.size(), language_)});
  else if (!read)
    // Every column of it would be wrong, and none of it is the officer's doing.
    find(kShifted, {}, {});
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
    find(kDate, place_of_date(), {printable(text.substr(line.lacks(1) ? 0 : 1, 10))});
  else if (!read.record.CallSign.empty())
    check_sequence(text, read, *hour_);
  // Last, for it says nothing of the values, which go on to speak of the next line.
  check_identity(read.record);
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
    if (line.lacks(first)) find(kGap, in_columns(first, first), {text::format_int(first)});
  for (const LogbookColumn* const column : read.unread) check_column(line, *column);
}

void LogbookCheck::check_column(const LogbookLine& line, const LogbookColumn& column) {
  const std::string_view text = line.text_of(column);
  // Told as what it makes of the line.
  if (column.field == &W::Year || column.field == &W::Month) return;
  const bool blank = text.find_first_not_of(' ') == std::string_view::npos;
  if (blank && column.field == &W::CallSign) return;
  LinePlace place = explain::place_of(column, language_);
  if (column.writer == Writer::kText)
    find(kFixedText, std::move(place), {printable(text), column.text});
  else if (blank)
    find(kBlank, std::move(place), {});
  else
    find(kUnreadable, std::move(place), {printable(text)});
}

void LogbookCheck::check_elements(const LogbookLine& line, const LogbookRecord& read) {
  const W& record = read.record;
  if (line.call_sign().find_first_not_of('*') == std::string_view::npos)
    find(kCallSign, place_of(&W::CallSign), {});
  if (!has_position(record)) find(kPosition, in_columns(12, 19), {});
  constexpr std::string W::*kLatitude[] = {&W::LaDeg, &W::LaMin};
  constexpr std::string W::*kLongitude[] = {&W::LoDeg, &W::LoMin};
  if (elements::is_impossible(elements::Field::kLaMin, record))
    find(kBeyond, place_of(kLatitude), {});
  if (elements::is_impossible(elements::Field::kLoMin, record))
    find(kBeyond, place_of(kLongitude), {});
  elements_.check(record, [&](const ElementFinding& found) { tell_element(found, record); });
}

void LogbookCheck::tell_element(const ElementFinding& found, const Struct_Weather& record) {
  refused_.push_back(found.member);
  LinePlace place = place_of(found.member);
  switch (found.fault) {
    case ElementFault::kCode:
      find(kCode, std::move(place), {found.figures, found.code_table});
      break;
    case ElementFault::kLimit: {
      const LimitWords words = limit_words(found, record, language_);
      find(kLimit, std::move(place), {words.value, words.accepted});
      break;
    }
    case ElementFault::kIncomplete:
      find(kIncomplete, std::move(place), {found.figures});
      break;
    case ElementFault::kNoSign:
      find(kNoSign, std::move(place), {found.figures});
      break;
    case ElementFault::kNone:
      break;
  }
}

void LogbookCheck::check_rules(const Struct_Weather& record) {
  for (const elements::CrossRule* const rule : elements::broken_rules(record)) {
    const auto members = about(*rule);
    std::string values;
    for (const auto member : members) {
      std::string value(symbol_of(member));
      value.append(" ").append(value_of(member, record, language_));
      append_word(values, value, ", ");
    }
    find(kContradiction, place_of(members),
         {without_heading(text::bilingual(rule->message, language_)), values},
         text::format_int(rule->message.number));
  }
}

void LogbookCheck::check_sequence(std::string_view line, const LogbookRecord& read, int hour) {
  const std::string& call_sign = read.record.CallSign;
  std::string when = when_of(read.record);
  summary_.count_ship(call_sign, when);
  check_told(line, call_sign, hour);
  Ship& ship = ships_.of(call_sign);
  check_order(ship, hour);
  Ship::Past now{hour,
                 {summary_.lines_, std::move(when), error_, doubt_},
                 observation::values_of(read.record)};
  std::vector<Doubt> doubts = doubts_of(now.values, before_line(ship, hour, true), language_);
  now.elsewhere = std::ranges::any_of(doubts, is_elsewhere);
  if (const Before earlier = now.elsewhere ? before_line(ship, hour, false) : Before();
      earlier.last != nullptr) {
    // Back where the ship was before: it was the line between that is elsewhere.
    std::vector<Doubt> without = doubts_of(now.values, earlier, language_);
    now.elsewhere = std::ranges::any_of(without, is_elsewhere);
    if (!now.elsewhere) doubts = std::move(without);
  }
  for (const Doubt& doubt : doubts) {
    // A value that was refused is not doubted as well.
    if (std::ranges::any_of(about(*doubt.row), [this](const auto member) {
          return std::ranges::find(refused_, member) != refused_.end();
        }))
      continue;
    find(kOfDoubts, place_of(about(*doubt.row)), {doubt.text}, doubt.row->name);
  }
  now.at.doubt = doubt_;
  ship.last_line = now.at.line;
  // Of one hour the last line counts, as in the reports that are written over.
  const auto at = std::ranges::lower_bound(ship.past, hour, {}, &Ship::Past::hour);
  if (at != ship.past.end() && at->hour == hour)
    *at = std::move(now);
  else
    ship.past.insert(at, std::move(now));
  if (ship.past.size() > kMostPast) ship.past.pop_front();
}

// What was refused says nothing of the next line, nor what was doubted of a place, unless it stays.
Before LogbookCheck::before_line(const Ship& ship, int hour, bool with_those_elsewhere) {
  Before before;
  for (const Ship::Past& past : ship.past) {
    if (past.at.error || past.hour >= hour || hour - past.hour > kLongestPast) continue;
    if (past.elsewhere && !with_those_elsewhere) continue;
    before.last = &past.values;
    before.hours = hour - past.hour;
    if (before.hours == 3) before.three_hours_ago = &past.values;
  }
  return before;
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
  find(at->second.mark == mark ? kSavedTwice : kSameHour, place_of_date(),
       {number(at->second.line)});
  at->second = {summary_.lines_, mark};
}

// A date that is wrong by years would put every line behind it in the wrong: where the line before
// goes on from the one before that, and this one does as well, it is that line which is out of order.
void LogbookCheck::check_order(Ship& ship, int hour) {
  if (ship.past.empty() || ship.past.back().hour <= hour) return;
  const Ship::Past& last = ship.past.back();
  const bool last_is_wrong = ship.past.size() > 1 && last.at.line == ship.last_line &&
                             ship.past[ship.past.size() - 2].hour < hour;
  if (!last_is_wrong) {
    find(kOrder, place_of_date(), {number(last.at.line)});
    return;
  }
  find_in_passed(kLater, last.at, place_of_date(), {number(summary_.lines_)});
  ship.past.pop_back();
}

// ---- Whose line it is

void LogbookCheck::check_identity(const Struct_Weather& record) {
  const std::string& imo_number = record.ShipFixed;
  if (!imo_number.empty() && !is_sound_imo_number(imo_number))
    find(kImoNumber, place_of(&W::ShipFixed), {imo_number});
  const auto passed = [&] {
    return PassedLine{summary_.lines_, hour_ ? when_of(record) : std::string(), error_, doubt_};
  };
  identity_.take(record, passed, [this](const IdentityFinding& found) { tell_identity(found); });
}

void LogbookCheck::tell_identity(const IdentityFinding& found) {
  const bool of_imo_number = found.fault == IdentityFault::kOtherImoNumber ||
                             found.fault == IdentityFault::kImoNumberChanged;
  find_in_passed(kIdentityKinds[static_cast<std::size_t>(found.fault)], found.at,
                 place_of(of_imo_number ? &W::ShipFixed : &W::CallSign),
                 {found.has, found.others, found.of});
}

const Summary& LogbookCheck::finish() {
  identity_.finish([this](const IdentityFinding& found) { tell_identity(found); });
  return summary_;
}

}  // namespace explain
