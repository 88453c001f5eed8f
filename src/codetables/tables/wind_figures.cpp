#include "codetables/tables/wind_figures.h"

#include <algorithm>
#include <cmath>
#include <iterator>

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

std::optional<Knot> knots_of(std::string_view speed, std::string_view iw) {
  const auto value = text::number_at_start(speed);
  if (!value) return std::nullopt;
  return Knot{is_metres_per_second(iw) ? knots_of_metres_a_second(*value) : *value};
}

int beaufort_force(Knot wind) {
  // Where force 1, 2 … 12 begins, by the scale that WMO's manuals give in whole knots.
  static constexpr double kFrom[] = {1, 4, 7, 11, 17, 22, 28, 34, 41, 48, 56, 64};
  const double knots = whole_units(wind);
  const auto* const above = std::upper_bound(std::begin(kFrom), std::end(kFrom), knots);
  return static_cast<int>(above - std::begin(kFrom));
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
