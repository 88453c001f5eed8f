#include "fakes/sample_days.h"

#include <cmath>

namespace fakes {
namespace {

using observation::Values;

double tenths(double value) {
  return std::round(value * 10) / 10;
}

double half_metres(double value) {
  return std::round(value * 2) / 2;
}

// Of a low that is nearest 30 hours before the observation that is being entered.
Values weather(int hours_before) {
  const double near = std::exp(-std::pow((hours_before - 30) / 22.0, 2));
  const double of_day = std::cos((hours_before % 24) * 3.14159 / 12);
  Values values;
  values.latitude = 35.7;
  values.longitude = 165.3;
  values.pressure = tenths(1016.4 - 28 * near + 0.6 * of_day);
  values.air = tenths(14.5 - 3 * near + 1.5 * of_day);
  values.sea = tenths(17.8 - hours_before * 0.01);
  const int turn = hours_before > 30 ? 18 : 29;
  values.wind_direction = 10 * (turn - static_cast<int>(4 * near));
  values.wind_speed = std::round(9 + 32 * near);
  values.wind_in_knots = true;
  values.wind_waves.height = half_metres(0.8 + 4 * near);
  values.swell1.height =
      half_metres(1.8 + 2.4 * std::exp(-std::pow((hours_before - 18) / 26.0, 2)));
  return values;
}

}  // namespace

explain::Days sample_days() {
  explain::Days days;
  days.last = kSampleHour;
  for (int before = explain::kHoursShown; before > 0; before -= 3) {
    if (before == 54 || (before > 84 && before < 99)) continue;
    Values values = weather(before);
    values.hour = days.last - before;
    if (before == 36) values.sea.reset();
    if (before == 105) {
      values.wind_calm = true;
      values.wind_direction.reset();
      values.wind_speed = 0;
    }
    if (before == 111) {
      values.wind_direction.reset();
      values.wind_variable = true;
      values.wind_speed = 4;
    }
    days.past.push_back({days.last - before, values});
  }
  days.entered = weather(0);
  days.entered->hour = days.last;
  return days;
}

}  // namespace fakes
