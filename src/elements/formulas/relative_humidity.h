#pragma once
// Relative humidity from air temperature and dew point.

#include <optional>
#include <string_view>

#include "codetables/tables/humidity_figures.h"
#include "elements/formulas/units.h"

namespace elements {

/// Relative humidity in whole percent: the ratio of the vapour pressures over water at the dew
/// point and at the air temperature. kNotComputable when a temperature lies outside -40 to 50
/// degrees or the dew point is above the air temperature.
[[nodiscard]] Percent relative_humidity(Celsius air, Celsius dew_point);

/// Both texts from the texts of air temperature and dew point; nothing when one is no number
/// (empty, "///") or the humidity cannot be computed, and the form's humidity is then empty.
[[nodiscard]] std::optional<codetables::HumidityTexts> humidity_of_texts(
    std::string_view air, std::string_view dew_point);

}  // namespace elements
