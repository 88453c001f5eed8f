#include "elements/form/field_words.h"

#include <algorithm>

#include "codetables/tables/code_tables.h"
#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/wind_figures.h"
#include "elements/form/entry_check.h"
#include "elements/form/field_codes.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

namespace id = text::id;
using observation::Group;
using observation::GroupRow;
using observation::Symbol;
using W = Struct_Weather;

// Figures of a measured value that are no number of it.
struct SpecialRow {
  std::string_view shown;
  text::Id words;
  Field field;
};
constexpr SpecialRow kSpecial[] = {
    {"00", id::kWordsNoWaves, Field::kPwPw},   {"99", id::kWordsConfusedSea, Field::kPwPw},
    {"00", id::kWordsNoWaves, Field::kPwaPwa}, {"99", id::kWordsConfusedSea, Field::kPwaPwa},
    {"00", id::kNoSwell, Field::kPw1Pw1},      {"00", id::kNoSwell, Field::kPw2Pw2},
};

bool is_missing(std::string_view shown) {
  return shown.find_first_not_of('/') == std::string_view::npos;
}

std::string with_unit(const FieldRow& row, std::string_view value, text::Language language) {
  std::string text(value);
  if (const std::string_view unit = text::resolve(row.unit, language); !unit.empty())
    text.append(" ").append(unit);
  return text;
}

std::string code_words(const FieldRow& row, const codetables::CodeTable& table,
                       std::string_view shown, text::Language language) {
  const std::string figures = figures_of(row.field, shown);
  const auto words = codetables::meaning(table, figures, language);
  std::string says(words ? text::trim(*words) : text::bilingual(id::kWordsNoCode, language));
  // Long lines of a table are broken for their dialog.
  std::replace(says.begin(), says.end(), '\n', ' ');
  // The base of the clouds is entered in metres, its class goes out.
  return row.codec != Codec::kCloudBase || is_missing(shown)
             ? says
             : with_unit(row, shown, language).append(" (").append(says).append(")");
}

std::string_view name_of_member(std::string W::*member) {
  for (const WeatherField& field : weather_fields()) {
    if (field.member == member) return field.name;
  }
  return {};
}

// A sign stands in words only where it tells more than the value behind it: how the sea's
// temperature was taken, and whether the bulb was iced.
bool says_nothing_more(std::string W::*member) {
  return member == &W::SnT || member == &W::SnTd;
}

std::string symbol_words(const Symbol& symbol, const W& record, const ShipFixedData& ship,
                         text::Language language) {
  const std::string& figures = record.*symbol.field;
  if (figures.empty() || says_nothing_more(symbol.field)) return {};
  const auto field = field_of(symbol.field, ship);
  if (field && row_of(*field).member == symbol.field)
    return words_of(*field, shown_from_record(*field, record), language);
  // The speed of a gale stands beside a 99.
  if (symbol.field == &W::fff) return words_of(Field::kff, figures, language);
  const codetables::CodeTable* const table = codetables::table_of(name_of_member(symbol.field));
  if (table == nullptr) return {};
  return std::string(codetables::meaning(*table, figures, language)
                         .value_or(std::string(text::bilingual(id::kWordsNoCode, language))));
}

std::string bound(const Editor& editor, double value) {
  return editor.accepts == Accepts::kNumber
             ? text::format_fixed(value, 1)
             : text::format_int(static_cast<long long>(value), static_cast<int>(editor.width), '0');
}

void add(std::string& list, std::string_view item) {
  if (!list.empty()) list.append(", ");
  list.append(item);
}

}  // namespace

std::string words_of(Field field, std::string_view shown, text::Language language) {
  if (shown.empty()) return {};
  const FieldRow& row = row_of(field);
  const auto* const special = std::find_if(
      std::begin(kSpecial), std::end(kSpecial),
      [&](const SpecialRow& each) { return each.field == field && each.shown == shown; });
  if (special != std::end(kSpecial)) return std::string(text::bilingual(special->words, language));
  if (const codetables::CodeTable* const table = codetables::table_of(row.name))
    return code_words(row, *table, shown, language);
  if (is_missing(shown)) return std::string(text::bilingual(id::kWordsNotObserved, language));
  std::string words = with_unit(row, shown, language);
  const auto knots = text::number_at_start(shown);
  if (field == Field::kff && knots)
    words.append(" (")
        .append(text::fill(text::bilingual(id::kWordsBeaufort, language),
                           {text::format_int(codetables::beaufort_force({*knots}))}))
        .append(")");
  return words;
}

std::string words_of(Group group, const W& record, const ShipFixedData& ship,
                     text::Language language) {
  std::string words;
  for (const Symbol& symbol : observation::row_of(group).used()) {
    const std::string says = symbol_words(symbol, record, ship, language);
    if (says.empty()) continue;
    if (!words.empty()) words.append("; ");
    words.append(name_of_member(symbol.field)).append(": ").append(says);
  }
  return words;
}

std::string accepted_texts(Field field, const W& record, const platform::Clock& clock,
                           text::Language language) {
  const Editor& editor = row_of(field).editor;
  return accepted_texts(
      field, bounds_of(field, record, clock).value_or(Bounds{editor.low, editor.high}), language);
}

std::string accepted_texts(Field field, Bounds bounds, text::Language language) {
  const FieldRow& row = row_of(field);
  const Editor& editor = row.editor;
  // A reading is judged by the pressure that it gives.
  if (field == Field::kPPPP || field == Field::kReading)
    bounds = {codetables::kLowestPressure, codetables::kBeyondPressures - 0.1};
  std::string list;
  if (bounds.low <= bounds.high)
    list = with_unit(row,
                     text::fill(text::bilingual(id::kWordsRange, language),
                                {bound(editor, bounds.low), bound(editor, bounds.high)}),
                     language);
  std::string_view also = editor.also;
  while (!also.empty()) {
    const std::string_view word = also.substr(0, also.find(' '));
    also.remove_prefix(std::min(word.size() + 1, also.size()));
    // "3" is "03" typed short.
    if (editor.width == 0 || word.size() == editor.width) add(list, word);
  }
  return list;
}

std::optional<Group> group_of(Field field) {
  const FieldRow& row = row_of(field);
  if (row.member == nullptr) return std::nullopt;
  for (const GroupRow& group : observation::group_rows()) {
    for (const Symbol& symbol : group.used()) {
      if (symbol.field == row.member) return group.group;
    }
  }
  return std::nullopt;
}

}  // namespace elements
