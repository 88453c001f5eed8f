#pragma once
// Quantities by name, so that a height cannot be handed over where a temperature is meant.

namespace codetables {

struct Hectopascal {
  double value = 0.0;
};
/// Air, wet-bulb or dew-point temperature, degrees Celsius.
struct Celsius {
  double value = 0.0;
};
struct Metre {
  double value = 0.0;
};
struct Knot {
  double value = 0.0;
};
struct Second {
  double value = 0.0;
};
/// Whole degrees clockwise; from north unless said otherwise.
struct Degree {
  int value = 0;
};
struct Percent {
  double value = 0.0;
};

}  // namespace codetables
