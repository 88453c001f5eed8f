#pragma once
// The elements of a logbook's line and their values as a person calls them.

#include <string>

#include "explain/log/element_check.h"
#include "observation/Struct_Weather.h"
#include "text/texts.h"

namespace explain {

/// "visibility (VV)", "first swell, wave height (Hw1Hw1)"; the symbol alone for what has no name.
[[nodiscard]] std::string named(std::string Struct_Weather::*member, text::Language language);

/// What the record holds of it, short: "15.2 °C" of a measured value, the figures of a code.
[[nodiscard]] std::string value_of(std::string Struct_Weather::*member,
                                   const Struct_Weather& record, text::Language language);

/// The value and the limits of a fault kLimit: "41.1 °C", "-25.0 to 40.0 °C".
struct LimitWords {
  std::string value, accepted;
};
[[nodiscard]] LimitWords limit_words(const ElementFinding& found, const Struct_Weather& record,
                                     text::Language language);

}  // namespace explain
