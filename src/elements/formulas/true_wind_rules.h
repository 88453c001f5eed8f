#pragma once
// Which true directions and speeds go together. Both the true-wind screen and the form's editors
// ask here.

#include <string>
#include <string_view>

namespace elements {

/// Speed that stands for one that is unknown.
inline constexpr double kUnknownSpeed = -9999.9;

/// The speed's number; kUnknownSpeed when there is none (empty, blanks, "//").
[[nodiscard]] double true_wind_speed(std::string_view speed);

/// A direction of "0" is "00"; every other text stays.
[[nodiscard]] std::string true_wind_direction(std::string_view direction);

enum class TrueWindRule {
  kKept,
  kCalmWithSpeed,          ///< direction 00 with a speed of 0.5 or more
  kDirectionWithoutSpeed,  ///< a real direction with speed 0
  kDirectionBelowOneKnot,  ///< a real direction with a speed below 0.5
};

/// The rule that direction and speed break. A real direction is any but "00", "//" and two blanks;
/// an empty one counts as real.
[[nodiscard]] TrueWindRule check_true_wind(std::string_view direction, std::string_view speed);

}  // namespace elements
