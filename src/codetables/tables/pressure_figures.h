#pragma once
// Pressure at sea level: what is possible, and the figures PPPP of the report.

#include <string>
#include <string_view>

#include "codetables/tables/units.h"

namespace codetables {

/// Possible pressures at sea level, from the lowest up to but not the second.
inline constexpr int kLowestPressure = 870;
inline constexpr int kBeyondPressures = 1070;

/// What is to be done with a pressure at sea level.
enum class PressureRange {
  kAccepted,
  kAsks,     ///< unusual: the Yes/No question, kept on Yes
  kRefused,  ///< impossible
};

/// 930.0 to 1050.0 hPa is accepted, any other possible pressure asks.
[[nodiscard]] PressureRange pressure_range(Hectopascal sea_level);

/// The same for a typed four-digit PPPP, where the thousands are missing: 0-500 and 9300-9999 are
/// accepted, 501-700 and 8700-9299 ask. Anything outside 0-9999 is refused. Unlike a pressure in
/// hPa, the code takes 1070.0 itself (700).
[[nodiscard]] PressureRange pppp_range(int pppp);

/// "%06.1f", as the form shows a pressure and a reading.
[[nodiscard]] std::string pressure_text(Hectopascal pressure);

/// PPPP of a pressure text: without its point, the last four figures, zeros in front up to four.
[[nodiscard]] std::string pppp_of(std::string_view pressure);

/// The way back: "1015.6" from "0156", "0998.7" from "9987". What is no figures stays.
[[nodiscard]] std::string pressure_shown(std::string_view pppp);

}  // namespace codetables
