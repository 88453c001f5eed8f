#include "elements/formulas/psychrometer.h"

#include <cmath>

#include "elements/formulas/sea_level_pressure.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

constexpr double kZeroCelsiusInKelvin = 273.15;
constexpr double kTriplePoint = 273.16;      // K
constexpr double kStandardReading = 1013.2;  // hPa, where there is no reading

double power_of_ten(double exponent) {
  return std::pow(10.0, exponent);
}

Hectopascal vapour_pressure(Celsius dry, Celsius wet, Hectopascal sea_level, bool iced) {
  const double depression = dry.value - wet.value;
  const double saturated =
      iced ? vapour_pressure_over_ice(wet).value : vapour_pressure_over_water(wet).value;
  // Sprung's psychrometer constants over water and ice. They are per degree, so pressure and
  // vapour pressure only have to be in the same unit.
  return {saturated - depression * (iced ? 0.44 : 0.5) * sea_level.value / 755.0};
}

// Finds the temperature at which the vapour pressure over water is e. The lower end moves up to the
// middle when the root is above it, and the upper end then stands half a step further on.
DewPointSearch search(double e) {
  constexpr int kTooManyPasses = 100;
  constexpr double kCloseEnough = 0.00001;  // hPa
  double lower = -40.0;
  double upper = 50.0;
  double result = lower;
  double at_lower = 0.0;
  int passes = 0;
  do {
    if (++passes >= kTooManyPasses) return {{kNotComputable}, passes};
    at_lower = vapour_pressure_over_water({lower}).value;
    const double at_upper = vapour_pressure_over_water({upper}).value;
    if ((at_upper - e) * (at_lower - e) < 0.0) {
      upper = upper - (upper - lower) * 0.5;
    } else {
      const double step = upper - lower;
      lower = upper;
      result = upper;
      upper = upper + step * 0.5;
    }
    // Tests the end that this pass began with, a move late; earlier reports were computed so.
  } while (std::fabs(at_lower - e) > kCloseEnough);
  // The lower end itself is the edge of the search, not a result.
  if (passes == 1) return {{kNotComputable}, passes};
  return {{result}, passes};
}

}  // namespace

bool can_be_iced(Celsius wet) {
  return wet.value < 0.1;
}

WetBulbState toggled_wet_bulb(WetBulbState state, Celsius wet) {
  if (!can_be_iced(wet) || state == WetBulbState::kIced) return WetBulbState::kNotSet;
  return WetBulbState::kIced;
}

Hectopascal vapour_pressure_over_water(Celsius t) {
  const double kelvin = t.value + kZeroCelsiusInKelvin;
  if (kelvin <= 0.0) return {0.0};
  const double cold = kTriplePoint / kelvin;
  const double warm = kelvin / kTriplePoint;
  const double exponent = 10.79574 * (1.0 - cold) - 5.028 * std::log10(warm) +
                          0.000150475 * (1.0 - power_of_ten(-8.2969 * (warm - 1.0))) +
                          0.00042873 * (power_of_ten(4.76955 * (1.0 - cold)) - 1.0) + 0.78614;
  return {power_of_ten(exponent)};
}

Hectopascal vapour_pressure_over_ice(Celsius t) {
  const double kelvin = t.value + kZeroCelsiusInKelvin;
  if (kelvin <= 0.0) return {0.0};
  const double cold = kTriplePoint / kelvin;
  const double warm = kelvin / kTriplePoint;
  const double exponent =
      -9.09685 * (cold - 1.0) - 3.56654 * std::log10(cold) + 0.87682 * (1.0 - warm) + 0.78614;
  return {power_of_ten(exponent)};
}

DewPointSearch search_dew_point(Celsius dry, Celsius wet, Hectopascal sea_level,
                                WetBulbState state) {
  const bool iced = state == WetBulbState::kIced;
  // Both are midpoints of the search, which steps past a root that it meets exactly.
  if (!iced && dry.value == wet.value && (dry.value == 27.5 || dry.value == 5.0)) return {dry, 0};
  const Hectopascal e = vapour_pressure(dry, wet, sea_level, iced);
  if (e.value < 0.0) return {};
  return search(e.value);
}

Celsius dew_point(Celsius dry, Celsius wet, Hectopascal sea_level, WetBulbState state) {
  return search_dew_point(dry, wet, sea_level, state).dew_point;
}

std::optional<Celsius> dew_point_of_texts(std::string_view dry, std::string_view wet,
                                          std::string_view reading, const BarometerCard& card,
                                          WetBulbState state) {
  const auto dry_degrees = text::number_at_start(dry);
  const auto wet_degrees = text::number_at_start(wet);
  if (!dry_degrees || !wet_degrees) return std::nullopt;
  const Celsius dry_bulb{*dry_degrees};
  const Celsius wet_bulb{*wet_degrees};
  // The standard stands in for a reading, not for the pressure at sea level: it is corrected too.
  const Hectopascal read{text::number_at_start(reading).value_or(kStandardReading)};
  const Hectopascal sea_level = sea_level_pressure(read, card, dry_bulb);
  const Celsius result = dew_point(dry_bulb, wet_bulb, sea_level, state);
  if (wet_bulb.value > dry_bulb.value || result.value == kNotComputable) return std::nullopt;
  return result;
}

}  // namespace elements
