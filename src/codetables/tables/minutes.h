#pragma once
// Minutes of an arc in the report: the tenths of a degree LaLaLa and LoLoLoLo end in.

#include <string>

namespace codetables {

/// Tenths of a degree that minutes make, cut: 59' is 9, 5' none.
[[nodiscard]] constexpr int tenths_of_minutes(int minutes) {
  return minutes / 6;
}

/// The first minute that gives the tenth, as two figures: '7' is "42". `tenth` is a digit.
[[nodiscard]] inline std::string minutes_of_tenth(char tenth) {
  const int minutes = (tenth - '0') * 6;
  return {static_cast<char>('0' + minutes / 10), static_cast<char>('0' + minutes % 10)};
}

}  // namespace codetables
