#pragma once
// Saturation vapour pressure and the dew point from dry and wet bulb.

#include <optional>
#include <string>
#include <string_view>

#include "codetables/tables/temperature_figures.h"
#include "elements/formulas/units.h"
#include "ship/data/ShipFixedData.h"

namespace elements {

using codetables::WetBulbState;

/// Ice can be on a bulb below 0.1 degrees only.
[[nodiscard]] bool can_be_iced(Celsius wet);

/// State after the form's "Freeze" button: iced and not set take turns below 0.1 degrees; from 0.1
/// up the state is not set.
[[nodiscard]] WetBulbState toggled_wet_bulb(WetBulbState state, Celsius wet);

/// Saturation vapour pressure over water (Goff-Gratch form, as the WMO technical regulations give
/// it). 0 at and below absolute zero, where the formula has no value; never NaN.
[[nodiscard]] Hectopascal vapour_pressure_over_water(Celsius t);

/// Saturation vapour pressure over ice (Goff-Gratch form). Its coefficients are the program's own
/// and differ slightly from the published ones; observations made with it stay comparable.
[[nodiscard]] Hectopascal vapour_pressure_over_ice(Celsius t);

/// Result of the search for the dew point, with the passes it took.
struct DewPointSearch {
  Celsius dew_point{kNotComputable};
  int passes = 0;  ///< 0 when a shortcut or a negative vapour pressure made the search needless
};

/// Dew point from dry and wet bulb and the pressure at sea level (psychrometer formula with the
/// constants 0.5 and 0.44 for a ventilated bulb at 755 hPa). kNotComputable when the air is so dry
/// that the vapour pressure is negative, or the dew point lies outside -40 to 50 degrees.
///
/// Two exact readings are answered without a search (a bulb that is not iced only): dry and wet
/// both 27.5, and both 5.0. At another exact midpoint of the search (both -17.5) the result is one
/// step too high, which is the program's known behaviour.
[[nodiscard]] DewPointSearch search_dew_point(Celsius dry, Celsius wet, Hectopascal sea_level,
                                              WetBulbState state);

/// The dew point of that search.
[[nodiscard]] Celsius dew_point(Celsius dry, Celsius wet, Hectopascal sea_level,
                                WetBulbState state);

/// The dew point from the fields' texts: a barometer reading that is missing counts as 1013.2 hPa,
/// the reading gets its total correction with the dry bulb as air temperature. Nothing when dry or
/// wet bulb is no number (empty, "///"), the wet bulb is above the dry bulb, or it cannot be
/// computed.
[[nodiscard]] std::optional<Celsius> dew_point_of_texts(std::string_view dry, std::string_view wet,
                                                        std::string_view reading,
                                                        const BarometerCard& card,
                                                        WetBulbState state);

}  // namespace elements
