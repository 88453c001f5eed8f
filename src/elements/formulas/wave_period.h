#pragma once
// The period of waves whose length was seen.

#include "elements/formulas/units.h"

namespace elements {

/// The period of a train of waves of this length from crest to crest, in deep water:
/// T = sqrt(2 pi L / g), with the standard acceleration of gravity g = 9.80665 m/s2. It is the
/// dispersion relation of linear wave theory (WMO-No. 702, Guide to Wave Analysis and Forecasting,
/// section 1.2); it holds where the water is deeper than half the length. The length is positive.
[[nodiscard]] Second deep_water_period(Metre length);

}  // namespace elements
