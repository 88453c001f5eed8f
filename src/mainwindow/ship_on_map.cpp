#include "mainwindow/ship_on_map.h"

#include <optional>
#include <string>

#include "elements/form/position_review.h"
#include "text/numbers.h"

namespace mainwindow {
namespace {

using elements::Field;

std::optional<int> figures(const std::string& text) {
  if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos)
    return std::nullopt;
  return text::leading_int(text);
}

// Code table 0700: eighths of the circle from north-east (1) to north (8). 0 is a ship that lies
// still, 9 one whose course is not known.
std::optional<double> course_of(const std::string& ds) {
  constexpr int kNorth = 8;
  constexpr double kEighth = 45.0;
  const auto eighth = figures(ds);
  if (!eighth || *eighth < 1 || *eighth > kNorth) return std::nullopt;
  return *eighth * kEighth;
}

// Code table 4451: classes of five knots, 0 for none; the last one is open.
std::optional<double> speed_of(const std::string& vs) {
  constexpr int kClass = 5;
  constexpr int kFromMiddle = 2;
  const auto code = figures(vs);
  if (!code) return std::nullopt;
  return *code == 0 ? 0.0 : *code * kClass - kFromMiddle;
}

}  // namespace

map::ShipOnMap ship_on_map(const elements::ObservationForm& form,
                           const std::vector<codetables::TenthsPosition>& earlier) {
  map::ShipOnMap ship;
  const auto here = elements::signed_position(form.record());
  if (!here) return ship;
  ship.at = {here->latitude, here->longitude};
  const std::string& course = form.entered(Field::kCourse);
  const std::string& speed = form.entered(Field::kShipSpeed);
  if (!course.empty() && !speed.empty()) {
    ship.course = text::leading_number(course);
    ship.speed = text::leading_number(speed);
  } else {
    ship.course = course_of(form.record().Ds);
    ship.speed = speed_of(form.record().Vs);
  }
  constexpr double kTenths = 10.0;
  for (auto at = earlier.rbegin(); at != earlier.rend(); ++at) {
    ship.track.push_back(
        {codetables::signed_latitude(*at) / kTenths, codetables::signed_longitude(*at) / kTenths});
  }
  return ship;
}

}  // namespace mainwindow
