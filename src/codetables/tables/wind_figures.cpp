#include "codetables/tables/wind_figures.h"

#include <algorithm>
#include <cmath>

#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {

int direction_code(Degree direction) {
  if (direction.value < 5 || direction.value >= 355) return 36;
  return (direction.value + 5) / 10;
}

bool is_true_direction(std::string_view text) {
  text = text::trim(text);
  if (text == "//" || text == "99") return true;
  return text.size() <= 2 && text::whole_number(text, 0, 36);
}

double whole_units(Knot speed) {
  const double whole = std::trunc(speed.value);
  return speed.value - whole >= 0.5 ? whole + 1.0 : whole;
}

WindFigures wind_figures(std::string_view direction, std::string_view speed) {
  direction = text::trim(direction);
  speed = text::trim(speed);
  WindFigures figures{std::string(direction), std::string(speed), {}};
  if (text::is_all_digits(direction))
    figures.dd = text::format_digits(text::leading_int(direction), 2);
  if (speed.empty() || speed == "//") return figures;
  const long long units =
      text::truncated(std::min(whole_units({text::leading_number(speed)}), kLargestSpeed));
  figures.ff = text::format_digits(std::min(units, 99LL), 2);
  if (units >= 99) figures.fff = text::format_digits(units, 3);
  return figures;
}

}  // namespace codetables
