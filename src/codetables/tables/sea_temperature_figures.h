#pragma once
// Sea-surface temperature between its text and the figures of the report: tenths of a degree, and
// sign and method in one figure (code table 3850).

#include <optional>
#include <string>
#include <string_view>

#include "codetables/tables/units.h"

namespace codetables {

/// In the order of the table.
enum class SeaTemperatureMethod { kIntake = 0, kBucket = 1, kHullContactSensor = 2, kOther = 3 };

/// The figures of table 3850.
inline constexpr std::string_view kSeaTemperatureSigns = "01234567";

/// A plain decimal number (sign, digits, point) from -2 to 37.0 degrees, blanks around let pass;
/// else nothing.
[[nodiscard]] std::optional<Celsius> sea_temperature(std::string_view text);

/// The record's fields.
struct SeaTemperatureFigures {
  std::string Ss;      ///< code table 3850: twice the method, plus 1 below zero
  std::string TwTwTw;  ///< tenths of a degree without sign, three figures
  bool operator==(const SeaTemperatureFigures&) const = default;
};

/// Rounded to tenths and signed as every temperature of the report is (temperature_figures()).
[[nodiscard]] SeaTemperatureFigures sea_temperature_figures(Celsius t, SeaTemperatureMethod method);

/// The way back: "-1.8" of "1" and "018"; empty when TwTwTw is no figures. An Ss that is not of the
/// table counts as zero or above.
[[nodiscard]] std::string sea_temperature_text(std::string_view Ss, std::string_view TwTwTw);

/// Ss of a method: even figures at zero and above, odd ones below.
[[nodiscard]] std::string sea_temperature_sign(SeaTemperatureMethod method, bool below_zero);
/// False for figures that are not of the table, and for a missing one.
[[nodiscard]] bool is_below_zero(std::string_view Ss);

/// The method in Ss, nothing when it is not of the table.
[[nodiscard]] std::optional<SeaTemperatureMethod> sea_temperature_method(std::string_view Ss);

}  // namespace codetables
