// Time, temperatures, pressure, waves and ice within one observation.

#include <algorithm>
#include <cmath>

#include "explain/doubts/rules.h"

namespace explain::rules {
namespace {

using observation::WaveValues;

constexpr double kGravity = 9.81;

// Whole in tenths: 15.0, but not 15.1.
bool is_whole(double value) {
  return std::lround(value * 10.0) % 10 == 0;
}

// Breaking waves are no steeper than a seventh of their length (9.81 / 2 pi times the period
// squared in deep water). Eyes count short waves out, so the period may be a second longer.
bool is_too_steep(const WaveValues& waves) {
  constexpr double kPi = 3.14159265358979;
  constexpr double kSteepest = 1.0 / 7.0;
  constexpr double kPeriodUnsure = 1.0;
  if (!waves.period || !waves.height) return false;
  const double period = *waves.period + kPeriodUnsure;
  return *waves.height > kSteepest * kGravity / (2.0 * kPi) * period * period;
}

// Minutes of the day, the shorter way round.
int minutes_apart(int one, int other) {
  constexpr int kDay = 24 * 60;
  const int apart = std::abs(one - other) % kDay;
  return std::min(apart, kDay - apart);
}

bool is_ice_of_the_sea(const Values& now) {
  // Code table 0639: 2 to 9, the ship is in ice or within half a mile of its edge.
  return now.ci && *now.ci >= 2;
}

}  // namespace

// An observation is made in the ten minutes before its hour; an hour and a half is local time
// entered for UTC, or another slip.
bool actual_time_far_from_hour(const Values& now, const Before& /*before*/) {
  constexpr int kHoursInADay = 24;
  constexpr int kMinutesInAnHour = 60;
  constexpr int kLongest = 90;
  if (!now.hour || !now.actual_hour || !now.actual_minute) return false;
  return minutes_apart(*now.actual_hour * kMinutesInAnHour + *now.actual_minute,
                       *now.hour % kHoursInADay * kMinutesInAnHour) > kLongest;
}

// The other sign would bring the air near the sea, and as it is it lies further off than air over
// sea ever comes.
bool air_sign_beside_sea(const Values& now, const Before& /*before*/) {
  constexpr double kFar = 18.0;
  constexpr double kNear = 4.0;
  if (!now.air || !now.sea) return false;
  return above(std::abs(*now.air - *now.sea), kFar) && std::abs(-*now.air - *now.sea) < kNear;
}

// The sea soon warms or cools the air above it: warm air off deserts is some ten degrees warmer,
// the coldest outbreaks off ice and winter coasts are some twenty colder.
bool air_far_from_sea(const Values& now, const Before& before) {
  constexpr double kWarmer = 15.0;
  constexpr double kColder = 25.0;
  if (!now.air || !now.sea || air_sign_beside_sea(now, before)) return false;
  return above(*now.air - *now.sea, kWarmer) || above(*now.sea - *now.air, kColder);
}

bool dew_point_sign(const Values& now, const Before& /*before*/) {
  constexpr double kFar = 12.0;
  constexpr double kNear = 5.0;
  if (!now.air || !now.dew_point || *now.dew_point >= 0.0) return false;
  // With the other sign it must not be above the air.
  return above(*now.air - *now.dew_point, kFar) && -*now.dew_point <= *now.air &&
         *now.air + *now.dew_point < kNear;
}

bool dew_point_far_below_air(const Values& now, const Before& before) {
  constexpr double kFar = 25.0;
  if (!now.air || !now.dew_point || dew_point_sign(now, before)) return false;
  return above(*now.air - *now.dew_point, kFar);
}

// One of them is whole every tenth time, all three once in a thousand. Whoever reads his
// thermometers to whole degrees does so in the observation before as well.
bool all_whole(const Values& now, const Before& before) {
  const auto whole = [](std::optional<double> value) { return value && is_whole(*value); };
  if (!whole(now.pressure) || !whole(now.air) || !whole(now.sea)) return false;
  if (now.dew_point && !is_whole(*now.dew_point)) return false;
  return before.last == nullptr || !whole(before.last->air) || !whole(before.last->sea);
}

// Without a change only 0, 4 and 5 are left: risen and fallen again, steady, fallen and risen again.
bool tendency_without_amount(const Values& now, const Before& /*before*/) {
  if (!now.tendency || !now.change || *now.change != 0.0) return false;
  return *now.tendency != 0 && *now.tendency != 4 && *now.tendency != 5;
}

// Wind waves three times as high as the wind raises in the end, and two metres more for a wind that
// has just gone down; where the wind of hours ago is known, that one raised them too. The sea of a
// wind that blew for days is 0.21 U squared / g high.
bool waves_without_wind(const Values& now, const Before& before) {
  constexpr int kRecent = 12;
  auto wind = observation::metres_per_second_of(now);
  if (!wind || !now.wind_waves.height) return false;
  if (before.last != nullptr && before.hours <= kRecent)
    wind = std::max(*wind, observation::metres_per_second_of(*before.last).value_or(0.0));
  const double in_the_end = 0.21 * *wind * *wind / kGravity;
  return *now.wind_waves.height > 2.0 + 3.0 * in_the_end;
}

// A near gale that raises no sea. Ice in sight holds the waves down.
bool wind_without_waves(const Values& now, const Before& /*before*/) {
  constexpr double kNearGale = 28.0;
  constexpr double kLowest = 0.5;
  const auto wind = observation::knots_of(now);
  if (!wind || !now.wind_waves.height || now.ci.value_or(0) > 0) return false;
  return *wind >= kNearGale && *now.wind_waves.height <= kLowest;
}

bool wind_waves_too_steep(const Values& now, const Before& /*before*/) {
  return is_too_steep(now.wind_waves);
}
bool swell1_too_steep(const Values& now, const Before& /*before*/) {
  return is_too_steep(now.swell1);
}
bool swell2_too_steep(const Values& now, const Before& /*before*/) {
  return is_too_steep(now.swell2);
}
bool measured_waves_too_steep(const Values& now, const Before& /*before*/) {
  return is_too_steep(now.measured_waves);
}

bool second_swell_is_the_first(const Values& now, const Before& /*before*/) {
  return now.swell2.direction && now.swell2.period && now.swell2.height && now.swell2 == now.swell1;
}

// Ice that builds up (code table 3551, 1 and 2).
bool icing_in_warm_air(const Values& now, const Before& /*before*/) {
  constexpr double kWarmest = 3.0;
  return (now.ice_rate == 1 || now.ice_rate == 2) && now.air && *now.air > kWarmest;
}

bool sea_ice_in_warm_water(const Values& now, const Before& /*before*/) {
  constexpr double kWarmest = 6.0;
  return is_ice_of_the_sea(now) && now.sea && *now.sea > kWarmest;
}

// Icebergs drift far: off Newfoundland into water of fifteen degrees.
bool icebergs_in_warm_water(const Values& now, const Before& /*before*/) {
  constexpr double kWarmest = 18.0;
  return now.bi && *now.bi > 0 && now.sea && *now.sea > kWarmest;
}

// The gulf of Bohai, at 37 degrees, is the nearest to the equator that freezes.
bool sea_ice_far_from_the_poles(const Values& now, const Before& /*before*/) {
  constexpr double kNearest = 36.0;
  return is_ice_of_the_sea(now) && now.latitude && std::abs(*now.latitude) < kNearest;
}

}  // namespace explain::rules
