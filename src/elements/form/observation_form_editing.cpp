// What happens when a field is left: its test, the rules it must keep, and storing.

#include <algorithm>
#include <array>
#include <utility>

#include "codetables/tables/humidity_figures.h"
#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/pressure_tendency.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "codetables/tables/wind_figures.h"
#include "elements/form/field_codes.h"
#include "elements/form/observation_form.h"
#include "elements/formulas/barometer_correction.h"
#include "elements/formulas/observation_years.h"
#include "elements/formulas/sea_level_pressure.h"
#include "elements/formulas/true_wind.h"
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
bool is_pppp_code(const std::string& value) {
  return text::is_all_digits(value) && value.size() == 4;
}

// The notice shows the message's text; where a field has none, its check text.
text::Id range_message(Field field) {
  const EditorRow& row = editor_of(field);
  return row.message ? row.message : row.check_text;
}

bool beyond(const std::string& degrees, const std::string& minutes, int limit) {
  return text::leading_int(degrees) == limit && text::leading_int(minutes) > 0;
}

}  // namespace

bool ObservationForm::refuse(text::Id message) const {
  if (!messages_suppressed) messages_.error(message);
  return false;
}

// Bounds that depend on the day, as the message names them.
std::array<std::string, 2> ObservationForm::named_bounds(Field field) const {
  const auto bounds = bounds_of(field);
  if (!bounds) return {};
  const std::string high = text::format_int(static_cast<int>(bounds->high));
  if (field == Field::kYY) return {high, {}};
  // The text says "low < year <= high".
  return {text::format_int(static_cast<int>(bounds->low) - 1), high};
}

bool ObservationForm::refuse_range(Field field) const {
  if (messages_suppressed) return false;
  const auto bounds = named_bounds(field);
  const EditorRow& row = editor_of(field);
  messages_.error_filled(range_message(field), {bounds[0], bounds[1]},
                         row.shows_check ? language_.get(row.check_text) : std::string_view());
  return false;
}

bool ObservationForm::ask(text::Id question) const {
  return messages_suppressed ||
         messages_.question(question, text::QuestionMode::kYesNo) == text::kYes;
}

std::optional<Bounds> ObservationForm::bounds_of(Field field) const {
  if (field == Field::kYY) return Bounds{1, static_cast<double>(days_of_month(record_))};
  if (field == Field::kYear) {
    const Years years = observation_years(clock_.utc().year);
    return Bounds{static_cast<double>(years.first), static_cast<double>(years.last)};
  }
  return std::nullopt;
}

bool ObservationForm::leave(Field field) {
  if (switched_off(field)) return true;
  if (!typed_[at(field)]) return !impossible(field) || refuse_entry(field);
  const std::string typed(text::trim(slot(field)));
  std::string value;
  if (!typed.empty()) {
    const auto accepted = accept(field, typed);
    if (!accepted) {
      error_[at(field)] = error_flag_ = true;
      return false;
    }
    value = *accepted;
  }
  take(field, value);
  if (!messages_suppressed) error_flag_ = false;
  return true;
}

// Stores an accepted or emptied entry with all that follows from it.
void ObservationForm::take(Field field, const std::string& value) {
  const Struct_Weather before = record_;
  if (value.empty() && field == Field::kReading && before_typing_[at(field)].empty()) {
    slot(field).clear();  // there was no reading: a pressure that was typed by hand is not of one
  } else if (value.empty()) {
    clear(field);
  } else {
    store(field, value);
  }
  slot(field) = value;
  typed_[at(field)] = error_[at(field)] = false;
  follow(field);
  show_changes(before, field);
  // Not everything that is entered goes into the record (the apparent wind).
  modified_ = modified_ || value != before_typing_[at(field)];
  touch(before);
}

std::optional<std::string> ObservationForm::accept(Field field, const std::string& typed) {
  const EditorRow& row = editor_of(field);
  // Their own tests: digits cut behind the point, code figures, the reduced pressure.
  if (field == Field::kReading || field == Field::kPPPP) {
    std::string value = typed;
    if (!pressure_accepted(field, value)) return std::nullopt;
    return value;
  }
  Checked checked = check_field(row, typed, bounds_of(field));
  if (field == Field::kHumidity) {
    const bool whole = ship_.humidity_unit == 1.0;
    checked = {codetables::check_humidity(typed, whole) == codetables::HumidityCheck::kAccepted
                   ? Verdict::kAccepted
                   : Verdict::kRefused,
               codetables::shown_humidity(typed, whole)};
  }
  if (checked.verdict == Verdict::kRefused) {
    refuse_range(field);
    return std::nullopt;
  }
  if (field == Field::kff) {
    // Below one knot the decimals decide which rule is broken, so the rule is asked before they go;
    // and they go once: 0.49 is no knot, though to one decimal it is 0.5.
    if (!record_.dd.empty() &&
        check_true_wind(record_.dd, typed) == TrueWindRule::kDirectionBelowOneKnot) {
      refuse(id::kDirectionBelowOneKnot);
      return std::nullopt;
    }
    checked.text = text::format_int(
        static_cast<int>(codetables::whole_units(Knot{text::leading_number(typed)})), 2, '0');
  }
  if (field == Field::kppp) checked.text = codetables::tendency_amount_text(checked.text);
  if (!follows_rules(field, checked.text)) return std::nullopt;
  // Asked last: nobody confirms a value that is then refused.
  if (checked.verdict == Verdict::kAsks && !ask(row.warning)) return std::nullopt;
  if (!confirmed(field, checked.text)) return std::nullopt;
  return checked.text;
}

// The rules that this field's editor raises, tested on the form as it would be.
bool ObservationForm::follows_rules(Field field, const std::string& value) {
  const FormEntries before = entries();
  store(field, value);
  const CrossRule* const rule = broken_by(field, record_);
  const bool nowhere = impossible(field) && (field == Field::kLaMin || field == Field::kLoMin);
  restore(before);
  if (rule != nullptr) return refuse(rule->message);
  return !nowhere || refuse_range(field);
}

// What a change of the month or year, or of the degrees, has made impossible: the day that the
// month does not have, and minutes beyond the pole and the date line. The entry that was changed is
// right; it is this one that is to be corrected.
bool ObservationForm::impossible(Field field) const {
  switch (field) {
    case Field::kYY:
      return text::is_all_digits(record_.YY) &&
             text::leading_int(record_.YY) > days_of_month(record_);
    case Field::kLaMin:
      return beyond(record_.LaDeg, record_.LaMin, kPole);
    case Field::kLoMin:
      return beyond(record_.LoDeg, record_.LoMin, kDateLine);
    default:
      return false;
  }
}

bool ObservationForm::refuse_entry(Field field) {
  error_flag_ = true;
  if (field == Field::kYY) return refuse(id::kDateInvalid);
  return refuse_range(field);
}

std::vector<std::string> ObservationForm::remarks() const {
  std::vector<std::string> messages;
  for (std::size_t i = 0; i < kFields; ++i) {
    const auto field = static_cast<Field>(i);
    // A date that does not exist stops a save in its own way.
    if (!error_[i] && (field == Field::kYY || !impossible(field))) continue;
    const auto bounds = named_bounds(field);
    messages.push_back(text::fill(language_.get(range_message(field)), {bounds[0], bounds[1]}));
  }
  if (ship_.dew_point_method == DewPointMethod::kComputed && dew_point_is_of_bulbs()) {
    if (!dew_point_of_bulbs()) {
      messages.emplace_back(language_.get(id::kDewPointOfEarlierBulbs));
    } else if (ship_.card.type == CardType::kNotChosen) {
      messages.emplace_back(language_.get(id::kDoubledPressure));
    }
  }
  return messages;
}

bool ObservationForm::confirmed(Field field, const std::string& value) {
  if (field == Field::kppp)
    return codetables::check_tendency("/", value) != codetables::TendencyCheck::kAsks ||
           ask(id::kTendencyAmountQuestion);
  if (field == Field::kGGExact)
    return !is_far_from_hour(value, record_.gg) || ask(id::kExactTimeQuestion);
  if (field == Field::kgg)
    return !is_far_from_hour(record_.GGExact, value) || ask(id::kExactTimeQuestion);
  return true;
}

// The exact time stands beside the nominal hour; more than half an hour away it is probably another
// hour's.
bool ObservationForm::is_far_from_hour(const std::string& hour, const std::string& minute) const {
  if (!text::is_all_digits(record_.GG) || !text::is_all_digits(hour) ||
      !text::is_all_digits(minute))
    return false;
  constexpr int kDay = 24 * 60;
  constexpr int kFar = 30;
  const int exact = text::leading_int(hour) * 60 + text::leading_int(minute);
  const int apart = (exact - text::leading_int(record_.GG) * 60 + kDay) % kDay;
  return std::min(apart, kDay - apart) > kFar;
}

bool ObservationForm::pressure_accepted(Field field, std::string& value) {
  codetables::PressureRange range = codetables::PressureRange::kRefused;
  if (field == Field::kReading) {
    const auto reduced =
        elements::reduce_reading(value, ship_.card, air_temperature_of(entered(air_field())));
    if (!reduced) return refuse(id::kBarometerReadingRange);
    range = reduced->range;
    value = reduced->reading;
  } else if (is_pppp_code(value)) {
    range = codetables::pppp_range(text::leading_int(value));
    value = codetables::pressure_shown(value);
  } else if (const auto number = text::strict_number(value)) {
    range = codetables::pressure_range(Hectopascal{*number});
    value = codetables::pressure_text({*number});
  } else {
    return refuse(id::kSeaLevelPressureRange);
  }
  if (range == codetables::PressureRange::kRefused) return refuse(id::kSeaLevelPressureRange);
  return range == codetables::PressureRange::kAccepted || ask(id::kPressureQuestion);
}

void ObservationForm::clear(Field field) {
  slot(field).clear();
  if (std::string Struct_Weather::*const member = member_of(field)) (record_.*member).clear();
  switch (field) {
    case Field::kReading:
    case Field::kPPPP:
      record_.PPPP.clear();
      if (field == Field::kReading) slot(Field::kPPPP).clear();
      break;
    case Field::kDryBulb:
      forget_dew_point();
      [[fallthrough]];
    case Field::kAirTemperature:
      record_.SnT.clear();
      record_.TTT.clear();
      break;
    case Field::kWetBulb:
      forget_dew_point();
      record_.Sw.clear();
      record_.TbTbTb.clear();
      wet_bulb_ = WetBulbState::kNotSet;
      break;
    case Field::kDewPoint:
      record_.SnTd.clear();
      record_.TdTdTd.clear();
      break;
    case Field::kHumidity:
      record_.LogExtra.clear();
      break;
    case Field::kff:
      record_.ff.clear();
      record_.fff.clear();
      break;
    case Field::kTwTwTw:
      record_.Ss.clear();
      record_.TwTwTw.clear();
      break;
    default:
      break;
  }
}

void ObservationForm::store(Field field, const std::string& value) {
  if (std::string Struct_Weather::*const member = member_of(field)) {
    record_.*member = figures_of(field, value);
    return;
  }
  switch (field) {
    case Field::kPPPP:
      store_pppp(record_, codetables::pppp_of(value));
      break;
    case Field::kff:
      store_true_speed(value);
      break;
    case Field::kHumidity:
      record_.LogExtra = codetables::humidity_texts(Percent{text::leading_number(value)}).logbook;
      break;
    case Field::kDryBulb:
    case Field::kWetBulb:
    case Field::kAirTemperature:
    case Field::kDewPoint:
    case Field::kTwTwTw:
      store_temperature(field, value);
      break;
    default:
      break;
  }
}

void ObservationForm::store_temperature(Field field, const std::string& value) {
  if (!text::number_at_start(value)) return;  // "///": its group has stored it
  const codetables::TemperatureFigures t =
      codetables::temperature_figures(Celsius{text::leading_number(value)});
  switch (field) {
    case Field::kDewPoint:
      record_.SnTd = t.sign;
      record_.TdTdTd = t.figures;
      break;
    case Field::kWetBulb:
      if (wet_bulb_ == WetBulbState::kIced && !can_be_iced(Celsius{text::leading_number(value)}))
        wet_bulb_ = WetBulbState::kNotSet;
      record_.Sw = codetables::wet_bulb_sign(t, wet_bulb_);
      record_.TbTbTb = t.figures;
      break;
    case Field::kTwTwTw: {
      const auto method = codetables::sea_temperature_method(record_.Ss);
      record_.Ss = codetables::sea_temperature_sign(method.value_or(ship_.sea_temperature_method),
                                                    t.sign == "1");
      record_.TwTwTw = t.figures;
      break;
    }
    default:
      record_.SnT = t.sign;
      record_.TTT = t.figures;
      break;
  }
}

void ObservationForm::store_true_speed(const std::string& value) {
  const codetables::WindFigures figures = codetables::wind_figures({}, value);
  record_.ff = figures.ff;
  record_.fff = figures.fff;
}

}  // namespace elements
