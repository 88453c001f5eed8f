#pragma once
// True wind: direction dd in tens of degrees (code table 0877), speed ff and fff in whole units.

#include <optional>
#include <string>
#include <string_view>

#include "codetables/tables/units.h"

namespace codetables {

/// The largest speed that fff holds.
inline constexpr double kLargestSpeed = 999.0;

/// Code of a wind direction: tens of degrees, 36 for north (below 5 and from 355 up).
[[nodiscard]] int direction_code(Degree direction);

/// A true direction as it is entered: 0 to 36, or 99 (variable), one or two digits, blanks around
/// let pass; "//" too.
[[nodiscard]] bool is_true_direction(std::string_view text);

/// The integer part, plus 1 when the fraction is 0.5 or more.
[[nodiscard]] double whole_units(Knot speed);

/// The form's true direction and speed as the record's figures: two for the direction, two for the
/// whole speed; from 99 units up ff is "99" and fff has the speed in three. "//" stays, empty too.
struct WindFigures {
  std::string dd, ff, fff;
  bool operator==(const WindFigures&) const = default;
};
[[nodiscard]] WindFigures wind_figures(std::string_view direction, std::string_view speed);

/// True when iw (code table 1855) says that the speeds beside it are in metres a second.
[[nodiscard]] inline bool is_metres_per_second(std::string_view iw) {
  return iw == "0" || iw == "1";
}

/// The two units that a wind is reported in, from one to the other: a knot is 1852 metres an hour.
[[nodiscard]] constexpr double knots_of_metres_a_second(double speed) {
  return speed * 3600.0 / 1852.0;
}
[[nodiscard]] constexpr double metres_a_second_of(Knot speed) {
  return speed.value * 1852.0 / 3600.0;
}

/// A wind speed of the record in knots: `speed` is in the unit that iw tells (code table 1855; metres
/// a second for "0" and "1", knots for any other). Nothing when it is no number.
[[nodiscard]] std::optional<Knot> knots_of(std::string_view speed, std::string_view iw);

/// Beaufort force 0 to 12 of a wind, by whole knots.
[[nodiscard]] int beaufort_force(Knot wind);

/// The speed of the figures as the form shows it: fff where it is set.
[[nodiscard]] inline const std::string& speed_shown(const std::string& ff, const std::string& fff) {
  return fff.empty() ? ff : fff;
}

}  // namespace codetables
