#pragma once
// What formulas take and give.

#include "codetables/tables/units.h"

namespace elements {

using codetables::Celsius;
using codetables::Degree;
using codetables::Hectopascal;
using codetables::Knot;
using codetables::Metre;
using codetables::Percent;
using codetables::Second;

/// What a formula returns when it cannot compute.
inline constexpr double kNotComputable = -999.0;

}  // namespace elements
