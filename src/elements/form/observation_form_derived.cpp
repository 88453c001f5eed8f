// What follows from an entry: pressure at sea level, dew point, humidity, true wind, the review of
// the position.

#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "elements/form/field_codes.h"
#include "elements/form/observation_form.h"
#include "elements/formulas/barometer_correction.h"
#include "elements/formulas/psychrometer.h"
#include "elements/formulas/relative_humidity.h"
#include "elements/formulas/sea_level_pressure.h"
#include "elements/formulas/true_wind.h"
#include "text/strings.h"

namespace elements {

void ObservationForm::follow(Field field) {
  switch (field) {
    case Field::kYear:
    case Field::kMonth:
    case Field::kYY:
    case Field::kGG:
    case Field::kLaDeg:
    case Field::kLaMin:
    case Field::kLoDeg:
    case Field::kLoMin:
      review_due_ = true;
      break;
    case Field::kReading:
      reduce_reading(false);
      compute_dew_point();
      break;
    case Field::kDryBulb:
      reduce_again();
      compute_dew_point();
      break;
    case Field::kWetBulb:
      compute_dew_point();
      break;
    case Field::kAirTemperature:
      reduce_again();
      compute_humidity();
      break;
    case Field::kDewPoint:
      compute_humidity();
      break;
    case Field::kApparentDirection:
    case Field::kApparentSpeed:
    case Field::kHeading:
    case Field::kCourse:
    case Field::kShipSpeed:
      compute_true_wind();
      break;
    default:
      break;
  }
}

// False when the reading gives an impossible pressure: that one is not stored.
bool ObservationForm::reduce_reading(bool keep_tendency) {
  const auto reduced = elements::reduce_reading(entered(Field::kReading), ship_.card,
                                                air_temperature_of(entered(air_field())));
  if (!reduced) return true;
  if (reduced->range == codetables::PressureRange::kRefused) return false;
  const std::string tendency = record_.a;
  store_pppp(record_, reduced->pppp);
  if (keep_tendency) record_.a = tendency;
  pppp_of_reading_ = record_.PPPP;
  return true;
}

// Air temperature, card or loading state changed after the reading was entered: the same reading is
// reduced with what is known now. The barometer itself did not change, so the tendency that was
// read from it stays.
void ObservationForm::reduce_again() {
  // A pressure that was typed over the reduced one stays.
  if (entered(Field::kReading).empty() || record_.PPPP != pppp_of_reading_) return;
  const Struct_Weather before = record_;
  const bool possible = reduce_reading(true);
  if (!typed_[at(Field::kReading)]) error_[at(Field::kReading)] = !possible;
  error_flag_ = error_flag_ || !possible;
  show_changes(before);
  touch(before);
}

void ObservationForm::card_changed() {
  const Struct_Weather before = record_;
  reduce_again();
  compute_dew_point();
  touch(before);
}

std::optional<Celsius> ObservationForm::dew_point_of_bulbs() const {
  return dew_point_of_texts(entered(Field::kDryBulb), entered(Field::kWetBulb),
                            entered(Field::kReading), ship_.card, wet_bulb_);
}

bool ObservationForm::dew_point_is_of_bulbs() const {
  return !dew_point_of_bulbs_.empty() && record_.SnTd + record_.TdTdTd == dew_point_of_bulbs_;
}

void ObservationForm::compute_dew_point() {
  if (ship_.dew_point_method != DewPointMethod::kComputed) return;
  const auto td = dew_point_of_bulbs();
  if (!td) {
    // Bulbs that are there but too dry for the formula leave the earlier dew point, which the list
    // of a save then names. Its humidity was that of other bulbs.
    if (air_temperature_of(entered(Field::kDryBulb)) &&
        air_temperature_of(entered(Field::kWetBulb))) {
      if (ship_.humidity_method == HumidityMethod::kComputed) set_humidity({}, {});
    } else {
      forget_dew_point();
    }
    return;
  }
  const codetables::TemperatureFigures figures = codetables::computed_dew_point_figures(*td);
  const std::string earlier = record_.SnTd + record_.TdTdTd;
  record_.SnTd = figures.sign;
  record_.TdTdTd = figures.figures;
  dew_point_of_bulbs_ = figures.sign + figures.figures;
  if (ship_.card.type == CardType::kNotChosen && earlier != dew_point_of_bulbs_)
    doubled_pressure_due_ = !messages_suppressed;
  compute_humidity();
}

// A dew point does not outlive the bulbs that gave it; one that was typed as a group stays.
void ObservationForm::forget_dew_point() {
  if (ship_.dew_point_method != DewPointMethod::kComputed) return;
  if (dew_point_is_of_bulbs()) {
    record_.SnTd.clear();
    record_.TdTdTd.clear();
  }
  dew_point_of_bulbs_.clear();
  compute_humidity();
}

void ObservationForm::compute_humidity() {
  if (ship_.humidity_method != HumidityMethod::kComputed) return;
  const std::string dew_point = ship_.dew_point_method == DewPointMethod::kComputed
                                    ? codetables::temperature_shown(record_.SnTd, record_.TdTdTd)
                                    : entered(Field::kDewPoint);
  if (const auto humidity = humidity_of_texts(entered(air_field()), dew_point)) {
    set_humidity(humidity->display, humidity->logbook);
  } else {
    set_humidity({}, {});
  }
}

void ObservationForm::set_humidity(std::string display, std::string logbook) {
  slot(Field::kHumidity) = std::move(display);
  record_.LogExtra = std::move(logbook);
  typed_[at(Field::kHumidity)] = error_[at(Field::kHumidity)] = false;
}

ApparentWindTexts ObservationForm::apparent_wind() const {
  return {entered(Field::kApparentDirection), entered(Field::kApparentSpeed),
          entered(Field::kHeading), entered(Field::kCourse), entered(Field::kShipSpeed)};
}

void ObservationForm::compute_true_wind() {
  if (ship_.wind_input_method != WindInputMethod::kApparentWind) return;
  const auto wind = true_wind_of_texts(apparent_wind());
  if (!wind) {
    clear(Field::kdd);
    clear(Field::kff);
    return;
  }
  const auto two_figures = [](const std::string& figures) {
    return figures.size() == 1 ? "0" + figures : figures;
  };
  slot(Field::kdd) = two_figures(wind->direction);
  slot(Field::kff) = two_figures(wind->speed);
  store(Field::kdd, slot(Field::kdd));
  store(Field::kff, slot(Field::kff));
  for (const Field field : {Field::kdd, Field::kff}) typed_[at(field)] = error_[at(field)] = false;
}

}  // namespace elements
