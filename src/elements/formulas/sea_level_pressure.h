#pragma once
// From the barometer reading as typed to the figures PPPP of the report.

#include <optional>
#include <string>
#include <string_view>

#include "codetables/tables/pressure_figures.h"
#include "elements/formulas/barometer_correction.h"
#include "elements/formulas/units.h"
#include "ship/data/ShipFixedData.h"

namespace elements {

/// A reading as the two fields of the pressure screen show it.
struct ReadingParts {
  std::string whole;
  std::string tenths;
  bool operator==(const ReadingParts&) const = default;
};

/// Empty text gives two empty parts; else the value in tenths, cut toward zero, is divided. A whole
/// part longer than four characters becomes "0".
[[nodiscard]] ReadingParts split_reading(std::string_view reading);

/// The trimmed reading cut one character behind its first point ("1013.25" becomes "1013.2").
[[nodiscard]] std::string cut_to_one_decimal(std::string_view reading);

/// True for digits with at most one point, which stands neither first nor last and has exactly one
/// digit behind it. Six digits without a point are refused: that is a reading in tenths or pascals.
[[nodiscard]] bool is_reading(std::string_view reading);

/// A reading reduced to sea level.
struct SeaLevelPressure {
  Hectopascal value;  ///< not rounded; the range test works on it
  codetables::PressureRange range = codetables::PressureRange::kRefused;
  std::string reading;  ///< the reading as it is shown
  std::string display;  ///< the pressure at sea level as it is shown
  std::string pppp;     ///< four figures, thousands dropped
};

/// Reading plus total correction.
[[nodiscard]] Hectopascal sea_level_pressure(Hectopascal reading, const BarometerCard& card,
                                             std::optional<Celsius> air);

/// Reduces a typed reading, cut to one decimal first. Nothing when it is empty or no reading: then
/// PPPP is emptied (empty text) or stays as it is (refused text).
[[nodiscard]] std::optional<SeaLevelPressure> reduce_reading(std::string_view reading,
                                                             const BarometerCard& card,
                                                             std::optional<Celsius> air);

}  // namespace elements
