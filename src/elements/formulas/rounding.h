#pragma once
// Doubles to whole numbers for values that come from typed text and may be of any size.

namespace elements {

/// The integer part, toward zero. Clamped to +-1e15, where every whole number is still exact; NaN
/// gives 0.
[[nodiscard]] constexpr long long truncated(double value) {
  constexpr double kLimit = 1e15;
  if (value >= kLimit) return static_cast<long long>(kLimit);
  if (value <= -kLimit) return static_cast<long long>(-kLimit);
  return value == value ? static_cast<long long>(value) : 0;
}

}  // namespace elements
