#pragma once
// A temperature as the form shows it and as the report's groups take it: tenths of a degree without
// sign, and a sign of its own (code table 3845; 3855 for the wet bulb, where ice has a figure).

#include <optional>
#include <string>
#include <string_view>

#include "codetables/tables/units.h"

namespace codetables {

/// What a group of the report takes for a sign: of table 3845 not the 9, which makes a dew point a
/// humidity, and of table 3855 the figures of a bulb that is read, not computed.
inline constexpr std::string_view kTemperatureSigns = "01";
inline constexpr std::string_view kWetBulbSigns = "012";

/// One decimal with two figures before the point and no blanks: "05.0", "12.3", "-01.8", "-12.3".
/// What rounds to zero has no sign: "00.0".
[[nodiscard]] std::string zero_filled_tenths(double value);

struct TemperatureFigures {
  std::string text;     ///< "-01.8"
  std::string sign;     ///< code table 3845: "0", or "1" when the text begins with "-"
  std::string figures;  ///< tenths of a degree, three figures: "018"
  bool operator==(const TemperatureFigures&) const = default;
};

/// Texts for the fields SnT/TTT, SnTd/TdTdTd, TbTbTb and TwTwTw. What rounds to zero is zero, from
/// whichever side: sign "0".
[[nodiscard]] TemperatureFigures temperature_figures(Celsius t);

/// The same for a dew point that was computed: one that is printed "-0.0" keeps its sign "1", as
/// this computation has always given it.
[[nodiscard]] TemperatureFigures computed_dew_point_figures(Celsius td);

/// The way back: "-1.8" of "1" and "018"; figures that are no number ("///") come back as they are.
[[nodiscard]] std::string temperature_shown(std::string_view sign, std::string_view figures);

/// Tenths of a degree with their sign; nothing when sign or figures are missing.
[[nodiscard]] std::optional<int> signed_tenths(std::string_view sign, std::string_view figures);

/// State of the wet bulb. Only an iced bulb takes the formula for ice.
enum class WetBulbState { kNotSet = -1, kIced = 0, kNotIced = 1 };

/// Sign and type of the wet bulb, Sw (code table 3855, measured values): "0" and "1" by sign for a
/// bulb that is not iced, "2" for an iced one.
[[nodiscard]] std::string wet_bulb_sign(const TemperatureFigures& wet, WetBulbState state);

/// True for the sign of an iced bulb.
[[nodiscard]] bool is_iced(std::string_view Sw);

/// True for an iced bulb whose temperature is there: the table tells how a temperature was measured
/// that is reported, so a missing one ("2" and "///") has no state.
[[nodiscard]] bool has_iced_bulb(std::string_view Sw, std::string_view TbTbTb);

/// The sign by code table 3845 that a wet bulb's value has: an iced bulb has no sign of its own, it
/// is below zero or at 0.0. A sign that is missing ("", "/") stays as it is.
[[nodiscard]] std::string wet_bulb_value_sign(std::string_view Sw, std::string_view TbTbTb);

/// A temperature of two fields, whole degrees with sign and tenths. Empty whole degrees are no
/// temperature; empty tenths count as "0". Zero has no minus: "-0" and "0" give "0.0".
[[nodiscard]] std::string joined_temperature(std::string_view whole, std::string_view tenths);

/// Too high or too low for the sea, so that the question is asked: whole degrees above 40 or below
/// -25. Tenths do not count: 40.9 passes.
enum class TemperatureRange { kUsual, kAbove, kBelow };
[[nodiscard]] TemperatureRange temperature_range(std::string_view text);

}  // namespace codetables
