// What happens when a field is left: its test, the rules it must keep, and storing.

#include <algorithm>
#include <array>
#include <utility>

#include "elements/barometer_correction.h"
#include "elements/code_metres.h"
#include "elements/field_codes.h"
#include "elements/observation_form.h"
#include "elements/pressure_tendency.h"
#include "elements/relative_humidity.h"
#include "elements/sea_level_pressure.h"
#include "elements/temperature_figures.h"
#include "elements/true_wind.h"
#include "elements/true_wind_rules.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

namespace id = text::id;

int days_of_month(const Struct_Weather& record) {
  static constexpr std::array kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const int month = text::leading_int(record.Month);
  if (month < 1 || month > 12) return 31;
  const int year = text::leading_int(record.Year);
  // Before the year is known a 29th of February may be right.
  const bool leap = record.Year.empty() || (year % 4 == 0 && (year % 100 != 0 || year % 400 == 0));
  return month == 2 && leap ? 29 : kDays[static_cast<std::size_t>(month - 1)];
}

// Four figures without a point are the code of the report ("9987"), unless they read as a pressure
// in hPa, which no code of a possible pressure does.
bool is_pppp_code(const std::string& value) {
  constexpr int kLowest = 870;
  constexpr int kHighest = 1070;
  if (!text::is_all_digits(value) || value.size() != 4) return false;
  const int figures = text::leading_int(value);
  return figures < kLowest || figures > kHighest;
}

bool is_temperature(Field field) {
  return field == Field::kDryBulb || field == Field::kWetBulb || field == Field::kAirTemperature ||
         field == Field::kDewPoint;
}

}  // namespace

bool ObservationForm::refuse(int message, int check_text) const {
  // The notice shows the message's text; where a field has none, its check text.
  if (!messages_suppressed) messages_.error(message != 0 ? message : check_text);
  return false;
}

bool ObservationForm::refuse_range(Field field) const {
  const EditorRow& row = editor_of(field);
  if (messages_suppressed) return false;
  const auto bounds = bounds_of(field);
  if (field == Field::kYY && bounds) {
    messages_.error_filled(row.message, {text::format_int(static_cast<int>(bounds->high))});
  } else if (field == Field::kYear && bounds) {
    // The text says "low < year <= high".
    messages_.error_filled(row.message, {text::format_int(static_cast<int>(bounds->low) - 1),
                                         text::format_int(static_cast<int>(bounds->high))});
  } else {
    return refuse(row.message, row.check_text);
  }
  return false;
}

bool ObservationForm::ask(int question) const {
  return messages_suppressed ||
         messages_.question(question, text::QuestionMode::kYesNo) == text::kYes;
}

std::optional<Bounds> ObservationForm::bounds_of(Field field) const {
  if (field == Field::kYY) return Bounds{1, static_cast<double>(days_of_month(record_))};
  if (field == Field::kYear) return Bounds{2000, static_cast<double>(clock_.utc().year + 1)};
  return std::nullopt;
}

bool ObservationForm::leave(Field field) {
  if (switched_off(field) || !typed_[at(field)]) return true;
  const Struct_Weather before = record_;
  const std::string typed(text::trim(slot(field)));
  if (typed.empty()) {
    clear(field);
  } else {
    auto value = accept(field, typed);
    if (!value) {
      error_[at(field)] = true;
      return false;
    }
    slot(field) = *value;
    store(field, *value);
  }
  typed_[at(field)] = false;
  error_[at(field)] = false;
  follow(field);
  touch(before);
  return true;
}

std::optional<std::string> ObservationForm::accept(Field field, const std::string& typed) {
  Checked checked = check_field(editor_of(field), typed, bounds_of(field));
  if (field == Field::kReading || field == Field::kPPPP) {
    // Their own tests: digits cut behind the point, code figures, the reduced pressure.
    std::string value = typed;
    if (!pressure_accepted(field, value)) return std::nullopt;
    return value;
  }
  if (field == Field::kHumidity) {
    const bool whole = ship_.humidity_unit == 1.0;
    if (check_humidity(typed, whole) != HumidityCheck::kAccepted) {
      refuse_range(field);
      return std::nullopt;
    }
    return shown_humidity(typed, whole);
  }
  if (checked.verdict == Verdict::kRefused) {
    refuse_range(field);
    return std::nullopt;
  }
  if (checked.verdict == Verdict::kAsks && !ask(editor_of(field).warning)) return std::nullopt;
  if (field == Field::kff && checked.text != "//") {
    // Below one knot the decimals decide which rule is broken, so the rule is asked before they go.
    if (check_true_wind(record_.dd, checked.text) == TrueWindRule::kDirectionBelowOneKnot &&
        !record_.dd.empty()) {
      refuse(id::kDirectionBelowOneKnot);
      return std::nullopt;
    }
    checked.text = text::format_int(
        static_cast<int>(whole_units(Knot{text::leading_number(checked.text)})), 2, '0');
  }
  if (field == Field::kppp) checked.text = tendency_amount_text(checked.text);
  if (!follows_rules(field, checked.text)) return std::nullopt;
  return checked.text;
}

// The rules that this field's editor raises, tested on the record as it would be.
bool ObservationForm::follows_rules(Field field, const std::string& value) {
  if (!date_accepted(field, value) || !exact_time_accepted(field, value) ||
      !position_accepted(field, value) || !temperatures_accepted(field, value)) {
    return false;
  }
  const Struct_Weather before = record_;
  store(field, value);
  const CrossRule* const rule = broken_by(field, record_);
  const std::string amount = tendency_shown(record_.ppp);
  record_ = before;
  if (rule != nullptr) return refuse(rule->message, rule->check_text);
  if (field == Field::kppp && check_tendency("/", amount) == TendencyCheck::kAsks)
    return ask(id::kTendencyAmountQuestion);
  return true;
}

// A month or year must not make the day that is already there impossible.
bool ObservationForm::date_accepted(Field field, const std::string& value) {
  if (field != Field::kMonth && field != Field::kYear) return true;
  Struct_Weather trial = record_;
  trial.*member_of(field) = value;
  if (!text::is_all_digits(trial.YY) || text::leading_int(trial.YY) <= days_of_month(trial))
    return true;
  return refuse(id::kDateInvalid);
}

// The exact time stands beside the nominal hour; half an hour and more away it is probably another
// hour's.
bool ObservationForm::exact_time_accepted(Field field, const std::string& value) {
  if (field != Field::kgg || record_.GG.empty() || record_.GGExact.empty()) return true;
  constexpr int kDay = 24 * 60;
  constexpr int kFar = 30;
  const int exact = text::leading_int(record_.GGExact) * 60 + text::leading_int(value);
  const int apart = (exact - text::leading_int(record_.GG) * 60 + kDay) % kDay;
  return std::min(apart, kDay - apart) <= kFar || ask(id::kExactTimeQuestion);
}

// There is nothing beyond the pole and the date line.
bool ObservationForm::position_accepted(Field field, const std::string& value) {
  const auto beyond = [&](Field degrees, Field minutes, int limit) {
    if (field != degrees && field != minutes) return false;
    const std::string& deg = field == degrees ? value : record_.*member_of(degrees);
    const std::string& min = field == minutes ? value : record_.*member_of(minutes);
    return text::leading_int(deg) == limit && text::leading_int(min) > 0;
  };
  if (beyond(Field::kLaDeg, Field::kLaMin, 90) || beyond(Field::kLoDeg, Field::kLoMin, 180))
    return refuse_range(field);
  return true;
}

bool ObservationForm::temperatures_accepted(Field field, const std::string& value) {
  if (!is_temperature(field)) return true;
  const auto above = [&](Field lower, Field upper) {
    const std::string& low = field == lower ? value : text(lower);
    const std::string& high = field == upper ? value : text(upper);
    return !low.empty() && !high.empty() && text::leading_number(low) > text::leading_number(high);
  };
  if (field == Field::kDryBulb || field == Field::kWetBulb) {
    return !above(Field::kWetBulb, Field::kDryBulb) || refuse(id::kWetBulbAboveAir);
  }
  return !above(Field::kDewPoint, Field::kAirTemperature) || refuse(id::kDewPointAboveAir);
}

bool ObservationForm::pressure_accepted(Field field, std::string& value) {
  PressureRange range = PressureRange::kRefused;
  if (field == Field::kReading) {
    const auto reduced = elements::reduce_reading(
        value, ship_.card,
        air_temperature_of(text(ship_.dew_point_method == DewPointMethod::kComputed
                                    ? Field::kDryBulb
                                    : Field::kAirTemperature)));
    if (!reduced) return refuse(id::kBarometerReadingRange);
    range = reduced->range;
    value = reduced->reading;
  } else if (is_pppp_code(value)) {
    range = pppp_range(text::leading_int(value));
    value = pressure_shown(value);
  } else if (const auto number = strict_number(value)) {
    range = pressure_range(Hectopascal{*number});
    value = text::format_fixed(*number, 1, 6, '0');
  } else {
    return refuse(id::kSeaLevelPressureRange);
  }
  if (range == PressureRange::kRefused) return refuse(id::kSeaLevelPressureRange);
  return range == PressureRange::kAccepted || ask(id::kPressureQuestion);
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
    case Field::kAirTemperature:
      record_.SnT.clear();
      record_.TTT.clear();
      break;
    case Field::kWetBulb:
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
      store_pppp(record_, pppp_of(value));
      break;
    case Field::kff:
      store_true_speed(value);
      break;
    case Field::kHumidity:
      record_.LogExtra = humidity_texts(Percent{text::leading_number(value)}).logbook;
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
  const TemperatureFigures t = temperature_figures(Celsius{text::leading_number(value)});
  switch (field) {
    case Field::kDewPoint:
      record_.SnTd = t.sign;
      record_.TdTdTd = t.figures;
      break;
    case Field::kWetBulb:
      if (!can_be_iced(Celsius{text::leading_number(value)})) wet_bulb_ = WetBulbState::kNotSet;
      record_.Sw = wet_bulb_sign(t, wet_bulb_);
      record_.TbTbTb = t.figures;
      break;
    case Field::kTwTwTw: {
      // The sign stands with the method (code table 3850): even figures zero or above, odd below.
      const int kept = record_.Ss.size() == 1 && text::is_all_digits(record_.Ss)
                           ? text::leading_int(record_.Ss) / 2
                           : static_cast<int>(ship_.sea_temperature_method);
      record_.Ss = text::format_int(kept * 2 + (t.sign == "1" ? 1 : 0));
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
  if (!text::is_all_digits(value)) {
    record_.ff = value;
    record_.fff.clear();
    return;
  }
  constexpr int kTwoFigures = 99;
  const int speed = text::leading_int(value);
  record_.ff = text::format_int(std::min(speed, kTwoFigures), 2, '0');
  record_.fff = speed >= kTwoFigures ? text::format_int(speed, 3, '0') : std::string();
}

}  // namespace elements
