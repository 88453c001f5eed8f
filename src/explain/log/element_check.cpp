#include "explain/log/element_check.h"

#include <algorithm>
#include <optional>
#include <string>

#include "codetables/tables/code_tables.h"
#include "codetables/tables/quadrant.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "elements/form/entry_check.h"
#include "elements/form/field_codes.h"
#include "elements/form/field_editors.h"
#include "elements/form/fields.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace explain {
namespace {

namespace id = text::id;
using elements::Codec;
using elements::Field;
using elements::FieldRow;
using elements::Verdict;
using W = Struct_Weather;
using Member = std::string W::*;

// ---- Where members stand whose columns have a rule of their own

struct Place {
  Member member;
  ColumnRange columns;
};
constexpr Place kPlaces[] = {
    {&W::LaDeg, {13, 15}},       {&W::LaMin, {13, 15}},    {&W::LoDeg, {16, 19}},
    {&W::LoMin, {16, 19}},       {&W::SnTd, {34, 34}},     {&W::Ss, {50, 50}},
    {&W::PwPw, {56, 57}},        {&W::HwHw, {58, 59}},     {&W::PwaPwa, {56, 57}},
    {&W::HwaHwa, {58, 59}},      {&W::Pw1Pw1, {62, 63}},   {&W::Hw1Hw1, {64, 65}},
    {&W::dw2dw2, {99, 100}},     {&W::Pw2Pw2, {101, 102}}, {&W::Hw2Hw2, {103, 104}},
    {&W::ShipFixed, {166, 172}},
};

// ---- What is tested

// Signs and indicators: single figures beside the fields of the form.
struct Indicator {
  Member member;
  std::string_view allowed;  ///< empty: those of its code table
};
constexpr Indicator kIndicators[] = {
    {&W::iw, {}},
    {&W::iX, {}},
    {&W::Qc, codetables::kQuadrants},
    {&W::SnT, codetables::kTemperatureSigns},
    {&W::SnTd, codetables::kTemperatureSigns},
    {&W::Sw, codetables::kWetBulbSigns},
};

// What stands in the logbook only, and the field whose limits are those of its figures.
struct OfField {
  Member member;
  Field field;
};
constexpr OfField kLogbookOnly[] = {
    {&W::VosClim1, Field::kApparentDirection},
    {&W::VosClim2, Field::kApparentSpeed},
    {&W::VosClim3, Field::kHeading},
    {&W::VosClim4, Field::kShipSpeed},
    {&W::VosClim5, Field::kCourse},
};

/// One element: its figures, and the sign that is a part of the value.
struct Element {
  Member member = nullptr;
  Member sign = nullptr;
  const FieldRow* field = nullptr;  ///< none for an indicator
  const Indicator* indicator = nullptr;
};

bool has_sign(const FieldRow& row) {
  return row.codec == Codec::kTemperature || row.codec == Codec::kWetBulb ||
         row.codec == Codec::kSeaTemperature;
}

// The date is judged as a whole, the minutes with their degrees, and the exact time has no column.
// Two fields of the form show the air temperature.
bool is_tested(const FieldRow& row) {
  constexpr Field kOthers[] = {Field::kYear,  Field::kMonth, Field::kYY,      Field::kGG,
                               Field::kLaMin, Field::kLoMin, Field::kGGExact, Field::kgg};
  return row.codec != Codec::kNone && row.shown_with != DewPointMethod::kComputed &&
         std::ranges::find(kOthers, row.field) == std::end(kOthers);
}

std::vector<Element> make_elements() {
  std::vector<Element> elements;
  for (const Indicator& row : kIndicators) elements.push_back({row.member, nullptr, nullptr, &row});
  for (const FieldRow& row : elements::field_rows())
    if (is_tested(row))
      elements.push_back({row.member, has_sign(row) ? row.beside : nullptr, &row, nullptr});
  for (const OfField& row : kLogbookOnly)
    elements.push_back({row.member, nullptr, &elements::row_of(row.field), nullptr});
  const auto column = [](const Element& element) { return columns_of(element.member).first; };
  std::stable_sort(elements.begin(), elements.end(),
                   [&](const Element& a, const Element& b) { return column(a) < column(b); });
  return elements;
}

const std::vector<Element>& elements_of_a_line() {
  static const std::vector<Element> elements = make_elements();
  return elements;
}

const codetables::CodeTable* code_table_of(const Element& element) {
  return codetables::table_of(symbol_of(element.member));
}

// ---- The tests

ElementFault judge_indicator(const Element& element, std::string_view figures) {
  const Indicator& row = *element.indicator;
  const bool held = row.allowed.empty()
                        ? codetables::holds(*code_table_of(element), figures)
                        : figures.size() == 1 && row.allowed.find(figures) != std::string::npos;
  return held ? ElementFault::kNone : ElementFault::kCode;
}

// As the form would show the figures, and with the form's own test of that.
bool is_accepted(const Element& element, std::string_view sign, const std::string& figures) {
  const FieldRow& row = *element.field;
  if (row.codec == Codec::kPressure)
    return elements::check_pressure(figures).answer.kind != elements::Answer::Kind::kRefused;
  std::string shown = figures;
  if (row.member == element.member) {
    W record({}, {});
    record.*row.member = figures;
    if (element.sign != nullptr) record.*element.sign = sign;
    shown = elements::shown_from_record(row.field, record);
  }
  // What stands for nothing may be listed there as well, filled like the others.
  if (row.editor.accepts == elements::Accepts::kFigures && row.editor.width == 0)
    shown = text::format_int(text::leading_int(shown));
  return elements::check_field(row.editor, shown).verdict != Verdict::kRefused;
}

ElementFault judge_field(const Element& element, std::string_view sign, std::string_view figures) {
  if (!text::is_all_digits(figures)) return ElementFault::kIncomplete;
  if (element.sign != nullptr && sign.empty()) return ElementFault::kNoSign;
  const codetables::CodeTable* const table = code_table_of(element);
  // The dialogs offer whole tables of one figure, also what the form's field does not take.
  if (table != nullptr && figures.size() == 1)
    return codetables::holds(*table, figures) ? ElementFault::kNone : ElementFault::kCode;
  if (is_accepted(element, sign, std::string(figures))) return ElementFault::kNone;
  return table != nullptr ? ElementFault::kCode : ElementFault::kLimit;
}

ElementFault judge_element(const Element& element, std::string_view sign,
                           std::string_view figures) {
  return element.indicator != nullptr ? judge_indicator(element, figures)
                                      : judge_field(element, sign, figures);
}

// A place in the memory for figures of up to four digits with one of eight signs or none.
std::optional<std::size_t> place_of(std::string_view sign, std::string_view figures) {
  constexpr std::size_t kMost = 4;
  constexpr std::size_t kSigns = 9;
  if (figures.size() > kMost || !text::is_all_digits(figures)) return std::nullopt;
  std::size_t place = sign.empty() ? 8 : static_cast<std::size_t>(sign.front() - '0');
  if (sign.size() > 1 || place >= kSigns) return std::nullopt;
  // "05" and "005" are two texts of one number, but no element has both.
  std::size_t number = 0;
  for (const char figure : figures) number = number * 10 + static_cast<std::size_t>(figure - '0');
  place += kSigns * number;
  return place;
}

}  // namespace

ColumnRange columns_of(std::string Struct_Weather::*member) {
  for (const Place& place : kPlaces)
    if (place.member == member) return place.columns;
  const auto columns = observation::logbook_columns();
  const auto at = std::ranges::find(columns, member, &observation::LogbookColumn::field);
  if (at == columns.end()) return {};
  return {at->first, at->last};
}

std::string_view symbol_of(std::string Struct_Weather::*member) {
  const auto fields = weather_fields();
  const auto at = std::ranges::find(fields, member, &WeatherField::member);
  return at == fields.end() ? std::string_view() : at->name;
}

ElementCheck::ElementCheck() : memory_(elements_of_a_line().size()) {}

ElementFault ElementCheck::judge(std::size_t row, std::string_view sign, std::string_view figures) {
  const Element& element = elements_of_a_line()[row];
  const auto place = place_of(sign, figures);
  if (!place) return judge_element(element, sign, figures);
  auto& faults = memory_[row].faults;
  if (faults.size() <= *place) faults.resize(*place + 1, 0);
  std::uint8_t& known = faults[*place];
  if (known == 0) known = static_cast<std::uint8_t>(judge_element(element, sign, figures)) + 1U;
  return static_cast<ElementFault>(known - 1);
}

void ElementCheck::check(const Struct_Weather& record,
                         const std::function<void(const ElementFinding&)>& found) {
  const auto& elements = elements_of_a_line();
  for (std::size_t row = 0; row < elements.size(); ++row) {
    const Element& element = elements[row];
    const std::string& figures = record.*element.member;
    if (figures.find_first_not_of('/') == std::string::npos) continue;
    const std::string_view sign =
        element.sign == nullptr ? std::string_view() : std::string_view(record.*element.sign);
    const ElementFault fault = judge(row, sign, figures);
    if (fault == ElementFault::kNone) continue;
    ElementFinding finding{fault, element.member, figures, {}, element.field};
    if (const auto* const table = code_table_of(element)) finding.code_table = table->number;
    found(finding);
  }
}

}  // namespace explain
