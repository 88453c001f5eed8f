// An observation beside those that the ship made before.

#include <algorithm>
#include <cmath>

#include "explain/doubts/rules.h"

namespace explain::rules {
namespace {

constexpr double kPi = 3.14159265358979;
constexpr double kDegreesInAHalf = 180.0;
constexpr double kMilesInADegree = 60.0;
// Positions go out in tenths of a degree, cut: two of them may be so many miles off together.
constexpr double kPositionsUnsure = 8.5;

double radians(double degrees) {
  return degrees * kPi / kDegreesInAHalf;
}
double degrees(double radians) {
  return radians * kDegreesInAHalf / kPi;
}

bool has_position(const Values& values) {
  return values.latitude && values.longitude;
}

// Along the great circle, in sea miles.
double miles(const Values& from, const Values& to) {
  const double north = std::sin(radians(*to.latitude - *from.latitude) / 2.0);
  const double east = std::sin(radians(*to.longitude - *from.longitude) / 2.0);
  const double chord = north * north + std::cos(radians(*from.latitude)) *
                                           std::cos(radians(*to.latitude)) * east * east;
  return degrees(2.0 * std::asin(std::sqrt(std::min(1.0, chord)))) * kMilesInADegree;
}

double bearing(const Values& from, const Values& to) {
  constexpr double kCircle = 360.0;
  const double turn = radians(*to.longitude - *from.longitude);
  const double there = radians(*to.latitude);
  const double here = radians(*from.latitude);
  const double angle = degrees(std::atan2(
      std::sin(turn) * std::cos(there),
      std::cos(here) * std::sin(there) - std::sin(here) * std::cos(there) * std::cos(turn)));
  return angle < 0.0 ? angle + kCircle : angle;
}

// How far two values may lie apart: so much at once, and more for each hour, which says nothing
// any more after half a day.
struct Jump {
  double at_once;
  double an_hour;
};
bool jumps(std::optional<double> now, std::optional<double> last, int hours, Jump most) {
  constexpr int kLongest = 12;
  if (!now || !last || hours > kLongest) return false;
  return above(std::abs(*now - *last), most.at_once + most.an_hour * hours);
}

// Miles and hours between the last position and this one.
struct Leg {
  double run;
  double hours;
};
std::optional<Leg> leg(const Values& now, const Before& before) {
  if (before.last == nullptr || !has_position(now) || !has_position(*before.last))
    return std::nullopt;
  return Leg{miles(*before.last, now), static_cast<double>(before.hours)};
}

bool is_out_of_reach(const Values& now, const Before& before) {
  constexpr double kFastest = 40.0;
  const auto run = leg(now, before);
  return run && (run->run - kPositionsUnsure) / run->hours > kFastest;
}

// A ship of usual speed comes to the same place of the other hemisphere, and none to the one that
// was entered. Never so of both hemispheres: in a rectangle the squares of the ways from a point to
// two opposite corners and to the other two are the same, and twice 25 squared is less than 40
// squared.
bool is_of_the_other_side(const Values& now, const Before& before,
                          std::optional<double> Values::*angle) {
  constexpr double kUsual = 25.0;
  if (!is_out_of_reach(now, before)) return false;
  Values mirrored;
  mirrored.latitude = now.latitude;
  mirrored.longitude = now.longitude;
  mirrored.*angle = -(now.*angle).value_or(0.0);
  const auto run = leg(mirrored, before);
  return run && (run->run - kPositionsUnsure) / run->hours <= kUsual;
}

// Course and speed are those of the three hours before the observation. They say something of six
// hours too, from one main hour to the next, where more may have happened.
constexpr int kHoursOfCourse = 3;
constexpr int kTwiceThat = 6;

}  // namespace

std::optional<double> knots_between(const Values& now, const Before& before) {
  const auto run = leg(now, before);
  if (!run) return std::nullopt;
  return run->run / run->hours;
}

std::optional<double> bearing_between(const Values& now, const Before& before) {
  if (!leg(now, before)) return std::nullopt;
  return bearing(*before.last, now);
}

bool ship_too_fast(const Values& now, const Before& before) {
  return is_out_of_reach(now, before) && !north_for_south(now, before) &&
         !east_for_west(now, before);
}

bool north_for_south(const Values& now, const Before& before) {
  return is_of_the_other_side(now, before, &Values::latitude);
}

bool east_for_west(const Values& now, const Before& before) {
  return is_of_the_other_side(now, before, &Values::longitude);
}

// Code table 4451: 0 is less than a knot, 1 from 1 to less than 6, and so on; 9 has no upper bound.
bool speed_against_positions(const Values& now, const Before& before) {
  constexpr double kClass = 5.0;
  constexpr int kOpenClass = 9;
  const auto run = leg(now, before);
  if (!run || before.hours > kTwiceThat || !now.speed || is_out_of_reach(now, before)) return false;
  const double unsure = before.hours > kHoursOfCourse ? 10.0 : 5.0;
  const double lowest = *now.speed == 0 ? 0.0 : 1.0 + kClass * (*now.speed - 1);
  const double highest = 1.0 + kClass * *now.speed;
  const double knots = run->run / run->hours;
  return knots < lowest - unsure || (*now.speed != kOpenClass && knots > highest + unsure);
}

// Code table 0700: 1 north-east and so on round to 8, north. An officer may give the course that
// the ship steers now, so a turn of less than a right angle is let pass.
bool course_against_positions(const Values& now, const Before& before) {
  constexpr double kClass = 45.0;
  constexpr double kFarEnough = 25.0;
  constexpr double kCircle = 360.0;
  constexpr int kNorth = 8;
  const auto run = leg(now, before);
  if (!run || before.hours > kTwiceThat || !now.course || *now.course < 1 || *now.course > kNorth ||
      run->run < kFarEnough || is_out_of_reach(now, before))
    return false;
  const double most = before.hours > kHoursOfCourse ? 120.0 : 90.0;
  const double apart = std::abs(bearing(*before.last, now) - kClass * *now.course);
  return std::min(apart, kCircle - apart) > most;
}

// The pressure of three hours ago and the change since give the pressure of now; each is rounded,
// and the ship's two readings are never quite the same hour.
bool tendency_against_last(const Values& now, const Before& before) {
  constexpr double kMost = 1.5;
  if (before.three_hours_ago == nullptr) return false;
  const auto then = before.three_hours_ago->pressure;
  if (!now.pressure || !now.change || !then) return false;
  return above(std::abs(*now.pressure - *then - *now.change), kMost);
}

// What the pressure did in the three hours before these is not known; it is seldom quite another
// thing.
bool tendency_against_six_hours(const Values& now, const Before& before) {
  constexpr double kMost = 9.0;
  if (before.hours != kTwiceThat || !now.pressure || !now.change || !before.last->pressure)
    return false;
  return above(std::abs(*now.pressure - *before.last->pressure - 2.0 * *now.change), kMost);
}

bool pressure_jump(const Values& now, const Before& before) {
  constexpr Jump kMost = {8.0, 2.5};
  return before.last != nullptr && !tendency_against_last(now, before) &&
         !tendency_against_six_hours(now, before) &&
         jumps(now.pressure, before.last->pressure, before.hours, kMost);
}

// With the other sign it would be the air of six hours ago or less.
bool air_sign_beside_last(const Values& now, const Before& before) {
  constexpr double kFar = 6.0;
  constexpr double kNear = 2.0;
  constexpr int kRecent = 6;
  if (before.last == nullptr || before.hours > kRecent || !now.air || !before.last->air)
    return false;
  const double last = *before.last->air;
  return above(std::abs(*now.air - last), kFar) && std::abs(-*now.air - last) < kNear;
}

bool air_jump(const Values& now, const Before& before) {
  constexpr Jump kMost = {8.0, 0.7};
  return before.last != nullptr && !air_sign_beside_last(now, before) &&
         jumps(now.air, before.last->air, before.hours, kMost);
}

bool sea_jump(const Values& now, const Before& before) {
  constexpr Jump kMost = {6.0, 0.5};
  return before.last != nullptr && jumps(now.sea, before.last->sea, before.hours, kMost);
}

bool wind_jump(const Values& now, const Before& before) {
  constexpr Jump kMost = {34.0, 2.0};
  return before.last != nullptr && jumps(observation::knots_of(now),
                                         observation::knots_of(*before.last), before.hours, kMost);
}

// All that is measured or looked at, to the last figure; only the time and the place went on.
bool same_as_last(const Values& now, const Before& before) {
  if (before.last == nullptr || !now.pressure || !now.air || !now.wind_speed ||
      !now.wind_direction || !now.sea)
    return false;
  Values as_now = *before.last;
  as_now.hour = now.hour;
  as_now.actual_hour = now.actual_hour;
  as_now.actual_minute = now.actual_minute;
  as_now.latitude = now.latitude;
  as_now.longitude = now.longitude;
  as_now.course = now.course;
  as_now.speed = now.speed;
  // No report carries it.
  as_now.humidity = now.humidity;
  return as_now == now;
}

}  // namespace explain::rules
