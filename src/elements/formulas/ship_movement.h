#pragma once
// Is the ship's movement over three hours possible?

#include "codetables/tables/quadrant.h"

namespace elements {

enum class MovementWarning { kNone, kLatitude, kLongitude };

/// Compares two positions three hours apart, in exact tenths of a degree with the signs of their
/// quadrants. A latitude change above 0.7 degrees an hour warns; a longitude change warns above a
/// limit that grows with the current latitude, and then replaces the other. The bands leave gaps
/// (39.9, 49.9, 59.9, 69.9 and from 79.9 up), where longitude never warns; crossing the date line
/// counts as a very large change.
[[nodiscard]] MovementWarning check_movement(const codetables::TenthsPosition& current,
                                             const codetables::TenthsPosition& three_hours_earlier);

}  // namespace elements
