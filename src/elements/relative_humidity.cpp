#include "elements/relative_humidity.h"

#include "elements/psychrometer.h"
#include "elements/rounding.h"
#include "elements/temperature_figures.h"
#include "text/numbers.h"
#include "text/strings.h"

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
  return {static_cast<double>(truncated(ratio * 100.0 + 0.5))};
}

HumidityTexts humidity_texts(Percent humidity) {
  HumidityTexts texts;
  texts.display = zero_filled_tenths(humidity.value);
  texts.logbook = texts.display.size() == 4 ? "0" + texts.display : texts.display;
  std::erase(texts.logbook, '.');
  return texts;
}

std::optional<HumidityTexts> humidity_of_texts(std::string_view air, std::string_view dew_point) {
  air = text::trim(air);
  dew_point = text::trim(dew_point);
  if (air.empty() || dew_point.empty()) return std::nullopt;
  const Percent humidity =
      relative_humidity({text::leading_number(air)}, {text::leading_number(dew_point)});
  if (humidity.value == kNotComputable) return std::nullopt;
  return humidity_texts(humidity);
}

}  // namespace elements
