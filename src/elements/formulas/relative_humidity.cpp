#include "elements/formulas/relative_humidity.h"

#include "codetables/tables/temperature_figures.h"
#include "elements/formulas/psychrometer.h"
#include "elements/formulas/rounding.h"
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

HumidityCheck check_humidity(std::string_view text, bool whole_percent) {
  const double value = text::leading_number(text);
  const bool negative = text.starts_with('-');
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  std::string digits(text);
  // A humidity of the form may carry its decimal ("53.0"); in whole percent it must then be 0.
  if (const auto point = digits.find('.'); point != std::string::npos) {
    if (point == 0 || point + 1 == digits.size()) return HumidityCheck::kNotANumber;
    if (whole_percent && digits.find_first_not_of('0', point + 1) != std::string::npos)
      return HumidityCheck::kNotANumber;
    digits.erase(point, 1);
  }
  if (!text::is_all_digits(digits)) return HumidityCheck::kNotANumber;
  return !negative && value <= 100.0 ? HumidityCheck::kAccepted : HumidityCheck::kOutOfRange;
}

std::string shown_humidity(std::string_view text, bool whole_percent) {
  text = text::trim(text);
  if (text.empty()) return {};
  if (whole_percent) return text::format_int(text::leading_int(text), 2, '0');
  return text::format_fixed(text::leading_number(text), 1, 4, '0');
}

std::optional<HumidityTexts> humidity_of_texts(std::string_view air, std::string_view dew_point) {
  const auto t = text::number_at_start(air);
  const auto td = text::number_at_start(dew_point);
  if (!t || !td) return std::nullopt;
  const Percent humidity = relative_humidity({*t}, {*td});
  if (humidity.value == kNotComputable) return std::nullopt;
  return humidity_texts(humidity);
}

}  // namespace elements
