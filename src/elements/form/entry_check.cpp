#include "elements/form/entry_check.h"

#include <algorithm>
#include <utility>

#include "codetables/tables/code_tables.h"
#include "codetables/tables/humidity_figures.h"
#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/pressure_tendency.h"
#include "codetables/tables/wind_figures.h"
#include "elements/form/cross_rules.h"
#include "elements/form/field_codes.h"
#include "elements/formulas/barometer_correction.h"
#include "elements/formulas/observation_years.h"
#include "elements/formulas/sea_level_pressure.h"
#include "elements/formulas/true_wind_rules.h"
#include "platform/calendar.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

namespace id = text::id;

constexpr int kPole = 90;
constexpr int kDateLine = 180;

int days_of_month(const Struct_Weather& record) {
  const int month = text::leading_int(record.Month);
  if (month < 1 || month > 12) return 31;
  // Before the year is known a 29th of February may be right.
  constexpr int kSomeLeapYear = 2000;
  return platform::days_in_month(
      record.Year.empty() ? kSomeLeapYear : text::leading_int(record.Year), month);
}

// Four figures without a point are the code of the report ("9987"), never a pressure in hPa: "1013"
// is refused, "1013.0" and "998" are pressures.
bool is_pppp_code(std::string_view value) {
  return text::is_all_digits(value) && value.size() == 4;
}

bool beyond(const std::string& degrees, const std::string& minutes, int limit) {
  return text::leading_int(degrees) == limit && text::leading_int(minutes) > 0;
}

CheckedEntry by_range(codetables::PressureRange range, std::string value) {
  if (range == codetables::PressureRange::kRefused)
    return {refused(id::kSeaLevelPressureRange), {}};
  const bool asks = range == codetables::PressureRange::kAsks;
  return {asks ? Answer{Answer::Kind::kAsks, {id::kPressureQuestion}} : Answer{}, std::move(value)};
}

// A reading is right when the pressure is that it gives.
CheckedEntry check_reading(const Entries& entries, const ShipFixedData& ship,
                           std::string_view typed) {
  const Field air = *field_of(&Struct_Weather::TTT, ship);
  const auto reduced = reduce_reading(typed, ship.card, air_temperature_of(entries.entered(air)));
  if (!reduced) return {refused(id::kBarometerReadingRange), {}};
  return by_range(reduced->range, reduced->reading);
}

Checked check_read_humidity(std::string_view typed, const ShipFixedData& ship) {
  const bool whole = ship.humidity_unit == 1.0;
  const bool accepted =
      codetables::check_humidity(typed, whole) == codetables::HumidityCheck::kAccepted;
  return {accepted ? Verdict::kAccepted : Verdict::kRefused,
          codetables::shown_humidity(typed, whole)};
}

// A dialog offers every line of a code table, also those that its field does not take: the zeros of
// sea ice.
bool is_offered(const FieldRow& row, std::string_view text) {
  const codetables::CodeTable* const table =
      row.editor.width == 1 ? codetables::table_of(row.name) : nullptr;
  return table != nullptr && codetables::holds(*table, text);
}

// The rules that this field's editor raises, tested on the form as it would be.
Answer check_rules(Entries entries, const Surroundings& around, Field field,
                   const std::string& value) {
  store(entries, field, value, around.ship);
  if (const CrossRule* const rule = broken_by(field, entries.record)) return refused(rule->message);
  // Degrees at the pole are right; it is the minutes that then cannot be.
  if ((field == Field::kLaMin || field == Field::kLoMin) && is_impossible(field, entries.record))
    return refused(range_notice(field, entries.record, around.clock));
  return {};
}

// The exact time stands beside the nominal hour; more than half an hour away it is probably another
// hour's.
bool is_far_from_hour(const std::string& nominal, const std::string& hour,
                      const std::string& minute) {
  if (!text::is_all_digits(nominal) || !text::is_all_digits(hour) || !text::is_all_digits(minute))
    return false;
  constexpr int kDay = 24 * 60;
  constexpr int kFar = 30;
  const int exact = text::leading_int(hour) * 60 + text::leading_int(minute);
  const int apart = (exact - text::leading_int(nominal) * 60 + kDay) % kDay;
  return std::min(apart, kDay - apart) > kFar;
}

}  // namespace

CheckedEntry check_entry(const Entries& entries, const Surroundings& around, Field field,
                         std::string_view typed, Confirmed confirmed) {
  // Their own tests: digits cut behind the point, code figures, the reduced pressure.
  if (field == Field::kReading || field == Field::kPPPP) {
    CheckedEntry checked = field == Field::kReading ? check_reading(entries, around.ship, typed)
                                                    : check_pressure(typed);
    // These two ask one question only, so one Yes is all that they want.
    if (checked.answer.kind == Answer::Kind::kAsks && confirmed > 0) checked.answer = {};
    return checked;
  }
  const Struct_Weather& record = entries.record;
  const Editor& editor = row_of(field).editor;
  Checked checked = field == Field::kHumidity
                        ? check_read_humidity(typed, around.ship)
                        : check_field(editor, typed, bounds_of(field, record, around.clock));
  if (checked.verdict == Verdict::kRefused)
    return {refused(range_notice(field, record, around.clock)), {}};
  if (field == Field::kff) {
    // Below one knot the decimals decide which rule is broken, so the rule is asked before they go;
    // and they go once: 0.49 is no knot, though to one decimal it is 0.5.
    if (!record.dd.empty() &&
        check_true_wind(record.dd, typed) == TrueWindRule::kDirectionBelowOneKnot)
      return {refused(id::kDirectionBelowOneKnot), {}};
    checked.text = text::format_int(
        static_cast<int>(codetables::whole_units(Knot{text::leading_number(typed)})), 2, '0');
  }
  if (field == Field::kppp) checked.text = codetables::tendency_amount_text(checked.text);
  if (Answer answer = check_rules(entries, around, field, checked.text); !answer.accepted())
    return {std::move(answer), {}};
  std::vector<text::Id> questions;
  if (checked.verdict == Verdict::kAsks) questions.push_back(editor.question);
  if (const text::Id question = question_about(field, checked.text, record); question)
    questions.push_back(question);
  return {asked(questions, confirmed), checked.text};
}

std::optional<Bounds> bounds_of(Field field, const Struct_Weather& record,
                                const platform::Clock& clock) {
  if (field == Field::kYY) return Bounds{1, static_cast<double>(days_of_month(record))};
  if (field == Field::kYear) {
    const Years years = observation_years(clock.utc().year);
    return Bounds{static_cast<double>(years.first), static_cast<double>(years.last)};
  }
  return std::nullopt;
}

Notice range_notice(Field field, const Struct_Weather& record, const platform::Clock& clock) {
  const Editor& editor = row_of(field).editor;
  // Where a field has no message, its check text says what it accepts.
  Notice notice{editor.message ? editor.message : editor.check_text};
  if (editor.shows_check) notice.below = editor.check_text;
  const auto bounds = bounds_of(field, record, clock);
  if (!bounds) return notice;
  const std::string high = text::format_int(static_cast<int>(bounds->high));
  if (field == Field::kYY) {
    notice.bounds = {high, {}};
  } else {
    // The text says "low < year <= high".
    notice.bounds = {text::format_int(static_cast<int>(bounds->low) - 1), high};
  }
  return notice;
}

Answer asked(const std::vector<text::Id>& questions, Confirmed confirmed) {
  if (questions.size() <= static_cast<std::size_t>(confirmed)) return {};
  return {Answer::Kind::kAsks, {questions[static_cast<std::size_t>(confirmed)]}};
}

text::Id question_about(Field field, const std::string& value, const Struct_Weather& record) {
  if (field == Field::kppp)
    // "/": of a steady tendency the cross rules see to it, with a refusal.
    return codetables::check_tendency("/", value) == codetables::TendencyCheck::kAsks
               ? id::kTendencyAmountQuestion
               : text::Id();
  const bool far = (field == Field::kGGExact && is_far_from_hour(record.GG, value, record.gg)) ||
                   (field == Field::kgg && is_far_from_hour(record.GG, record.GGExact, value));
  return far ? id::kExactTimeQuestion : text::Id();
}

CheckedEntry check_pressure(std::string_view typed) {
  if (is_pppp_code(typed))
    return by_range(codetables::pppp_range(text::leading_int(typed)),
                    codetables::pressure_shown(typed));
  const auto number = text::strict_number(typed);
  if (!number) return {refused(id::kSeaLevelPressureRange), {}};
  return by_range(codetables::pressure_range(Hectopascal{*number}),
                  codetables::pressure_text({*number}));
}

bool is_acceptable(const Entries& entries, const Surroundings& around, Field field) {
  const std::string& text = entries.entered(field);
  const bool untested = field == Field::kYear || field == Field::kReading;
  if (untested || text.find_first_not_of('/') == std::string::npos) return true;
  if (field == Field::kPPPP) return check_pressure(text).answer.kind != Answer::Kind::kRefused;
  if (field == Field::kHumidity)
    return check_read_humidity(text, around.ship).verdict != Verdict::kRefused;
  if (is_offered(row_of(field), text)) return true;
  return check_field(row_of(field).editor, text, bounds_of(field, entries.record, around.clock))
             .verdict != Verdict::kRefused;
}

bool is_impossible(Field field, const Struct_Weather& record) {
  switch (field) {
    case Field::kYY:
      return text::is_all_digits(record.YY) && text::leading_int(record.YY) > days_of_month(record);
    case Field::kLaMin:
      return beyond(record.LaDeg, record.LaMin, kPole);
    case Field::kLoMin:
      return beyond(record.LoDeg, record.LoMin, kDateLine);
    default:
      return false;
  }
}

}  // namespace elements
