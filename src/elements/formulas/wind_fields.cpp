#include "elements/formulas/wind_fields.h"

#include <string>

#include "text/numbers.h"
#include "text/strings.h"

namespace elements {

bool is_speed(std::string_view text) {
  std::string digits(text::trim(text));
  if (const auto point = digits.find('.'); point != std::string::npos) digits.erase(point, 1);
  return text::is_all_digits(digits);
}

bool is_degrees(std::string_view text, int lowest) {
  text = text::trim(text);
  const int degrees = text::leading_int(text);
  return text::is_all_digits(text) && degrees >= lowest && degrees <= 360;
}

bool is_true_direction(std::string_view text) {
  text = text::trim(text);
  if (text == "//") return true;
  const int tens = text::leading_int(text);
  return text::is_all_digits(text) && text.size() <= 2 && (tens <= 36 || tens == 99);
}

}  // namespace elements
