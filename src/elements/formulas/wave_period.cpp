#include "elements/formulas/wave_period.h"

#include <cmath>
#include <numbers>

namespace elements {

Second deep_water_period(Metre length) {
  constexpr double kGravity = 9.80665;  // m/s2
  return {std::sqrt(2.0 * std::numbers::pi * length.value / kGravity)};
}

}  // namespace elements
