#include "elements/formulas/true_wind.h"

#include <algorithm>
#include <cmath>

#include "codetables/tables/wind_figures.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

constexpr double kRadiansPerDegree = 0.017453292522222223;  // 3.141592654 / 180

// Direction that a wind vector (x north, y east) comes from. With the north component first,
// atan2 gives the mathematical angle; the two halves cancel, so the direction is cut.
int from_direction(double x, double y) {
  if (x == 0.0 && y == 0.0) return 0;
  const double angle = std::atan2(x, y) / kRadiansPerDegree;
  double degrees = 90.0 - (angle + 0.5 + 180.0);
  if (degrees < 0.0) degrees += 360.0;
  return static_cast<int>(text::truncated(degrees + 0.5));
}

}  // namespace

TrueWind true_wind(const ApparentWind& apparent) {
  const double wind = codetables::whole_units(apparent.speed);
  const double ship = codetables::whole_units(apparent.ship_speed);
  // In doubles: typed degrees may be of any size, and their sum must not overflow.
  double blows_from = static_cast<double>(apparent.heading.value) + apparent.direction.value;
  if (blows_from > 360.0) blows_from -= 360.0;
  const double wind_angle = (blows_from + 180.0) * kRadiansPerDegree;
  const double ship_angle = apparent.course.value * kRadiansPerDegree;
  const double x = wind * std::cos(wind_angle) + ship * std::cos(ship_angle);
  const double y = wind * std::sin(wind_angle) + ship * std::sin(ship_angle);

  TrueWind result;
  const double speed = std::floor(std::sqrt(x * x + y * y) + 0.5);
  result.speed = static_cast<int>(std::min(speed, codetables::kLargestSpeed));
  result.direction = {from_direction(x, y)};
  // A speed that rounds to 0 is a calm, wherever what is left of it comes from.
  result.code = result.speed == 0 ? 0 : codetables::direction_code(result.direction);
  return result;
}

std::optional<TrueWindTexts> true_wind_of_texts(const ApparentWindTexts& texts) {
  const auto missing = [](const std::string& typed) { return !text::number_at_start(typed); };
  const std::string direction = text::without_spaces(texts.direction);
  const std::string speed = text::without_spaces(texts.speed);
  std::string heading = text::without_spaces(texts.heading);
  std::string course = text::without_spaces(texts.course);
  const std::string ship_speed = text::without_spaces(texts.ship_speed);
  if (missing(heading)) heading = course;
  if (missing(course)) course = heading;
  if (missing(direction) || missing(speed) || missing(heading) || missing(ship_speed))
    return std::nullopt;
  const TrueWind wind = true_wind({.course = {text::leading_int(course)},
                                   .heading = {text::leading_int(heading)},
                                   .ship_speed = {text::leading_number(ship_speed)},
                                   .direction = {text::leading_int(direction)},
                                   .speed = {text::leading_number(speed)}});
  return TrueWindTexts{text::format_int(wind.code), text::format_int(wind.speed)};
}

}  // namespace elements
