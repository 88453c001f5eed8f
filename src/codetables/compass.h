#pragma once
// Places on drawings that have the ship in the middle and north at the top.

#include <cmath>
#include <numbers>

#include "ui/drawing.h"

namespace codetables {

inline constexpr double kRadiansInADegree = std::numbers::pi / 180;

/// Degrees from the north clockwise, and the distance from the ship.
[[nodiscard]] inline ui::Point at_bearing(double degrees, double away) {
  return {away * std::sin(degrees * kRadiansInADegree),
          away * std::cos(degrees * kRadiansInADegree)};
}

}  // namespace codetables
