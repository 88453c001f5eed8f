#pragma once
// Relative humidity from air temperature and dew point, and its two texts.

#include <optional>
#include <string>
#include <string_view>

#include "elements/formulas/units.h"

namespace elements {

/// Relative humidity in whole percent: the ratio of the vapour pressures over water at the dew
/// point and at the air temperature. kNotComputable when a temperature lies outside -40 to 50
/// degrees or the dew point is above the air temperature.
[[nodiscard]] Percent relative_humidity(Celsius air, Celsius dew_point);

/// A humidity as the form shows it ("53.0", "05.0", "100.0") and as the logbook takes it: four
/// figures in tenths of a percent ("0530", "0050", "1000").
struct HumidityTexts {
  std::string display;
  std::string logbook;
  bool operator==(const HumidityTexts&) const = default;
};
[[nodiscard]] HumidityTexts humidity_texts(Percent humidity);

/// Both texts from the texts of air temperature and dew point; nothing when one is no number
/// (empty,
/// "///") or the humidity cannot be computed, and the form's humidity is then empty.
[[nodiscard]] std::optional<HumidityTexts> humidity_of_texts(std::string_view air,
                                                             std::string_view dew_point);

enum class HumidityCheck { kAccepted, kNotANumber, kOutOfRange };

/// A humidity read directly, not empty: digits, in tenths of a percent also one point among them;
/// 0 to 100 percent. A sign in front makes it out of range, not unreadable.
[[nodiscard]] HumidityCheck check_humidity(std::string_view text, bool whole_percent);

/// It as shown: "%02d" in whole percent, "%04.1f" in tenths. Empty stays empty.
[[nodiscard]] std::string shown_humidity(std::string_view text, bool whole_percent);

}  // namespace elements
