#include "elements/formulas/relative_humidity.h"

#include "elements/formulas/psychrometer.h"
#include "text/numbers.h"

namespace elements {
namespace {

bool within_formula(Celsius t) {
  return t.value >= -40.0 && t.value <= 50.0;
}

}  // namespace

Percent relative_humidity(Celsius air, Celsius dew_point) {
  if (!within_formula(air) || !within_formula(dew_point) || dew_point.value > air.value)
    return {kNotComputable};
  const double ratio =
      vapour_pressure_over_water(dew_point).value / vapour_pressure_over_water(air).value;
  return {static_cast<double>(text::truncated(ratio * 100.0 + 0.5))};
}

std::optional<codetables::HumidityTexts> humidity_of_texts(std::string_view air,
                                                           std::string_view dew_point) {
  const auto t = text::number_at_start(air);
  const auto td = text::number_at_start(dew_point);
  if (!t || !td) return std::nullopt;
  const Percent humidity = relative_humidity({*t}, {*td});
  if (humidity.value == kNotComputable) return std::nullopt;
  return codetables::humidity_texts(humidity);
}

}  // namespace elements
