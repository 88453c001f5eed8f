#include "elements/form/derivation.h"

#include <utility>

#include "codetables/tables/humidity_figures.h"
#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "elements/form/field_codes.h"
#include "elements/form/vosclim_fields.h"
#include "elements/formulas/barometer_correction.h"
#include "elements/formulas/psychrometer.h"
#include "elements/formulas/relative_humidity.h"
#include "elements/formulas/sea_level_pressure.h"

namespace elements {
namespace {

const std::string& air_temperature(const Entries& entries, const ShipFixedData& ship) {
  return entries.entered(*field_of(&Struct_Weather::TTT, ship));
}

// False when the reading gives an impossible pressure: that one is not stored.
bool reduce(Entries& entries, const ShipFixedData& ship) {
  const auto reduced = reduce_reading(entries.entered(Field::kReading), ship.card,
                                      air_temperature_of(air_temperature(entries, ship)));
  // A reading that is not there gives no pressure, but none that is impossible either.
  if (!reduced) return true;
  if (reduced->range == codetables::PressureRange::kRefused) return false;
  store_pppp(entries.record, reduced->pppp);
  entries.pppp_of_reading = entries.record.PPPP;
  return true;
}

// Air temperature, card or loading state changed after the reading was entered: the same reading is
// reduced with what is known now. The barometer itself did not change, so the tendency that was
// read from it stays.
void reduce_again(Entries& entries, const ShipFixedData& ship) {
  if (entries.entered(Field::kReading).empty() || entries.record.PPPP != entries.pppp_of_reading)
    return;
  const std::string tendency = entries.record.a;
  const bool possible = reduce(entries, ship);
  entries.record.a = tendency;
  Entry& reading = entries[Field::kReading];
  // While another reading is being typed, its own editor says whether it is wrong.
  if (!reading.before_typing) reading.wrong = !possible;
  entries.error_flag = entries.error_flag || !possible;
}

void set_humidity(Entries& entries, codetables::HumidityTexts humidity) {
  entries[Field::kHumidity].show(std::move(humidity.display));
  entries.record.LogExtra = std::move(humidity.logbook);
}

void compute_humidity(Entries& entries, const ShipFixedData& ship) {
  if (ship.humidity_method != HumidityMethod::kComputed) return;
  // Beside bulbs the dew point stands in no field, in the record only.
  const std::string dew_point =
      ship.dew_point_method == DewPointMethod::kComputed
          ? codetables::temperature_shown(entries.record.SnTd, entries.record.TdTdTd)
          : entries.entered(Field::kDewPoint);
  set_humidity(entries, humidity_of_texts(air_temperature(entries, ship), dew_point)
                            .value_or(codetables::HumidityTexts{}));
}

bool both_bulbs_are_read(const Entries& entries) {
  return air_temperature_of(entries.entered(Field::kDryBulb)) &&
         air_temperature_of(entries.entered(Field::kWetBulb));
}

void compute_dew_point(Entries& entries, const ShipFixedData& ship) {
  if (ship.dew_point_method != DewPointMethod::kComputed) return;
  Struct_Weather& record = entries.record;
  const auto td = dew_point_of_bulbs(entries, ship);
  if (!td && both_bulbs_are_read(entries)) {
    // Too dry for the formula: the earlier dew point stays, and the list of a save names it. Its
    // humidity was that of other bulbs.
    if (ship.humidity_method == HumidityMethod::kComputed) set_humidity(entries, {});
    return;
  }
  if (td) {
    const codetables::TemperatureFigures figures = codetables::computed_dew_point_figures(*td);
    const std::string earlier = record.SnTd + record.TdTdTd;
    record.SnTd = figures.sign;
    record.TdTdTd = figures.figures;
    entries.dew_point_of_bulbs = figures.sign + figures.figures;
    // Told when it gives another dew point, not with every entry beside it.
    if (ship.card.type == CardType::kNotChosen && earlier != entries.dew_point_of_bulbs)
      entries.doubled_pressure_due = true;
  } else {
    // A dew point does not outlive the bulbs that gave it; one that was typed as a group stays.
    if (dew_point_is_of_bulbs(entries)) {
      record.SnTd.clear();
      record.TdTdTd.clear();
    }
    entries.dew_point_of_bulbs.clear();
  }
  compute_humidity(entries, ship);
}

void compute_true_wind(Entries& entries, const ShipFixedData& ship) {
  if (ship.wind_input_method != WindInputMethod::kApparentWind) return;
  const auto wind = true_wind_of(entries);
  if (!wind) {
    // A true wind that stayed would be that of inputs which have gone.
    for (const Field field : {Field::kdd, Field::kff}) {
      clear(entries, field);
      entries[field].show({});
    }
    return;
  }
  const auto take = [&](Field field, const std::string& figures) {
    entries[field].show(figures.size() == 1 ? "0" + figures : figures);
    store(entries, field, entries[field].text, ship);
  };
  take(Field::kdd, wind->direction);
  take(Field::kff, wind->speed);
}

}  // namespace

Entries derived(Entries entries, const ShipFixedData& ship, Follows what) {
  if (has(what, Follows::kReview)) entries.review_due = true;
  if (has(what, Follows::kReduction)) reduce(entries, ship);
  if (has(what, Follows::kReductionAgain)) reduce_again(entries, ship);
  if (has(what, Follows::kDewPoint)) compute_dew_point(entries, ship);
  if (has(what, Follows::kHumidity)) compute_humidity(entries, ship);
  if (has(what, Follows::kTrueWind)) compute_true_wind(entries, ship);
  // Behind the true wind, which brings the record back to knots.
  if (!entries.vosclim_as_sent) set_vosclim(entries, ship);
  return entries;
}

std::optional<Celsius> dew_point_of_bulbs(const Entries& entries, const ShipFixedData& ship) {
  return dew_point_of_texts(entries.entered(Field::kDryBulb), entries.entered(Field::kWetBulb),
                            entries.entered(Field::kReading), ship.card, entries.wet_bulb);
}

bool dew_point_is_of_bulbs(const Entries& entries) {
  return !entries.dew_point_of_bulbs.empty() &&
         entries.record.SnTd + entries.record.TdTdTd == entries.dew_point_of_bulbs;
}

std::optional<TrueWindTexts> true_wind_of(const Entries& entries) {
  return true_wind_of_texts({entries.entered(Field::kApparentDirection),
                             entries.entered(Field::kApparentSpeed),
                             entries.entered(Field::kHeading), entries.entered(Field::kCourse),
                             entries.entered(Field::kShipSpeed)});
}

}  // namespace elements
