#include "elements/formulas/true_wind_rules.h"

#include "text/numbers.h"

namespace elements {

double true_wind_speed(std::string_view speed) {
  return text::number_at_start(speed).value_or(kUnknownSpeed);
}

std::string true_wind_direction(std::string_view direction) {
  return direction == "0" ? "00" : std::string(direction);
}

TrueWindRule check_true_wind(std::string_view direction, std::string_view speed) {
  const double value = true_wind_speed(speed);
  const std::string shown = true_wind_direction(direction);
  // From half a knot the speed is sent as 1, and a calm has none.
  if (shown == "00") return value >= 0.5 ? TrueWindRule::kCalmWithSpeed : TrueWindRule::kKept;
  if (shown == "//" || shown == "  ") return TrueWindRule::kKept;
  if (value == 0.0) return TrueWindRule::kDirectionWithoutSpeed;
  return value > 0.0 && value < 0.5 ? TrueWindRule::kDirectionBelowOneKnot : TrueWindRule::kKept;
}

}  // namespace elements
