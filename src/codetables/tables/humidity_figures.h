#pragma once
// Relative humidity: percent as it is entered and shown, tenths of a percent in the logbook.

#include <string>
#include <string_view>

#include "codetables/tables/units.h"

namespace codetables {

/// A humidity as the form shows it ("53.0", "05.0", "100.0") and as the logbook takes it: four
/// figures in tenths of a percent ("0530", "0050", "1000").
struct HumidityTexts {
  std::string display;
  std::string logbook;
  bool operator==(const HumidityTexts&) const = default;
};
[[nodiscard]] HumidityTexts humidity_texts(Percent humidity);

/// The form's text of the logbook's figures: "53.0" of "0530". Empty for what is no figures.
[[nodiscard]] std::string humidity_of_logbook(std::string_view figures);

enum class HumidityCheck { kAccepted, kNotANumber, kOutOfRange };

/// A humidity read directly, not empty: digits, in tenths of a percent also one point among them;
/// 0 to 100 percent. A sign in front makes it out of range, not unreadable.
[[nodiscard]] HumidityCheck check_humidity(std::string_view text, bool whole_percent);

/// It as shown: "%02d" in whole percent, "%04.1f" in tenths. Empty stays empty.
[[nodiscard]] std::string shown_humidity(std::string_view text, bool whole_percent);

}  // namespace codetables
