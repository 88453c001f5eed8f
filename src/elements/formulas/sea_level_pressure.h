#pragma once
// From the barometer reading as typed to the figures PPPP of the report.

#include <optional>
#include <string>
#include <string_view>

#include "elements/formulas/barometer_correction.h"
#include "elements/formulas/units.h"
#include "observation/Struct_Weather.h"
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

/// What is to be done with a pressure at sea level.
enum class PressureRange {
  kAccepted,
  kAsks,     ///< unusual: the Yes/No question, kept on Yes
  kRefused,  ///< impossible
};

/// 930.0 to 1050.0 hPa is accepted, 870.0 up to but not 1070.0 asks.
[[nodiscard]] PressureRange pressure_range(Hectopascal sea_level);

/// The same for a typed four-digit PPPP, where the thousands are missing: 0-500 and 9300-9999 are
/// accepted, 501-700 and 8700-9299 ask. Anything outside 0-9999 is refused.
[[nodiscard]] PressureRange pppp_range(int pppp);

/// A reading reduced to sea level.
struct SeaLevelPressure {
  Hectopascal value;  ///< not rounded; the range test works on it
  PressureRange range = PressureRange::kRefused;
  std::string reading;  ///< the reading rewritten as "%06.1f"
  std::string display;  ///< the pressure at sea level as "%06.1f"
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

/// PPPP of a pressure text: without its point, the last four figures, zeros in front up to four.
[[nodiscard]] std::string pppp_of(std::string_view pressure);

/// Stores PPPP. A changed pressure invalidates the characteristic of the tendency, so `a` is
/// cleared; the same value again, or an emptied one, leaves it.
void store_pppp(Struct_Weather& record, const std::string& pppp);

}  // namespace elements
