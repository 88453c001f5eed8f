#pragma once
// Which years observations are made in.

namespace elements {

/// Years that an observation may bear, both included: those of the report's form, up to the next
/// one, since a ship's clock may run ahead at new year. `this_year` is the clock's, UTC.
struct Years {
  int first = 0;
  int last = 0;
};
[[nodiscard]] constexpr Years observation_years(int this_year) {
  return {2000, this_year + 1};
}

}  // namespace elements
