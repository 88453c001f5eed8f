#pragma once
// The tests behind the rows of doubts.cpp. Each is false where anything that it needs is missing.

#include <optional>

#include "explain/doubts/doubts.h"

namespace explain::rules {

using observation::Values;

/// True when a value in tenths is above the limit, also where it came of a difference of tenths,
/// which is never quite exact.
[[nodiscard]] constexpr bool above(double value, double limit) {
  constexpr double kHalfATenth = 0.05;
  return value > limit + kHalfATenth;
}

// Between elements: weather, visibility, clouds.
bool fog_in_good_visibility(const Values& now, const Before& before);
bool poor_visibility_without_cause(const Values& now, const Before& before);
bool mist_in_good_visibility(const Values& now, const Before& before);
bool heavy_snow_in_good_visibility(const Values& now, const Before& before);
bool fog_in_dry_air(const Values& now, const Before& before);
bool rain_in_dry_air(const Values& now, const Before& before);
bool hidden_sky_without_cause(const Values& now, const Before& before);
bool hidden_sky_with_amount(const Values& now, const Before& before);
bool visible_sky_in_fog(const Values& now, const Before& before);
bool clear_sky_with_CL(const Values& now, const Before& before);
bool clear_sky_with_CM(const Values& now, const Before& before);
bool clear_sky_with_CH(const Values& now, const Before& before);
bool weather_without_cloud(const Values& now, const Before& before);
bool shower_without_cumulus(const Values& now, const Before& before);
bool thunder_without_cumulonimbus(const Values& now, const Before& before);
bool CM_above_overcast(const Values& now, const Before& before);
bool CH_above_overcast(const Values& now, const Before& before);
bool low_base_of_CH(const Values& now, const Before& before);
bool low_base_of_CM(const Values& now, const Before& before);
bool high_base_of_CL(const Values& now, const Before& before);
bool snow_in_warm_air(const Values& now, const Before& before);
bool freezing_rain_in_warm_air(const Values& now, const Before& before);
bool rain_in_frost(const Values& now, const Before& before);
bool snow_in_tropics(const Values& now, const Before& before);
bool past_weather_in_wrong_order(const Values& now, const Before& before);

// Between elements: time, temperatures, pressure, waves, ice.
bool actual_time_far_from_hour(const Values& now, const Before& before);
bool air_sign_beside_sea(const Values& now, const Before& before);
bool air_far_from_sea(const Values& now, const Before& before);
bool dew_point_sign(const Values& now, const Before& before);
bool dew_point_far_below_air(const Values& now, const Before& before);
bool all_whole(const Values& now, const Before& before);
bool tendency_without_amount(const Values& now, const Before& before);
bool waves_without_wind(const Values& now, const Before& before);
bool wind_without_waves(const Values& now, const Before& before);
bool wind_waves_too_steep(const Values& now, const Before& before);
bool swell1_too_steep(const Values& now, const Before& before);
bool swell2_too_steep(const Values& now, const Before& before);
bool measured_waves_too_steep(const Values& now, const Before& before);
bool second_swell_is_the_first(const Values& now, const Before& before);
bool icing_in_warm_air(const Values& now, const Before& before);
bool sea_ice_in_warm_water(const Values& now, const Before& before);
bool icebergs_in_warm_water(const Values& now, const Before& before);
bool sea_ice_far_from_the_poles(const Values& now, const Before& before);

// Against the past.
bool ship_too_fast(const Values& now, const Before& before);
bool north_for_south(const Values& now, const Before& before);
bool east_for_west(const Values& now, const Before& before);
bool speed_against_positions(const Values& now, const Before& before);
bool course_against_positions(const Values& now, const Before& before);
bool tendency_against_last(const Values& now, const Before& before);
bool tendency_against_six_hours(const Values& now, const Before& before);
bool pressure_jump(const Values& now, const Before& before);
bool air_sign_beside_last(const Values& now, const Before& before);
bool air_jump(const Values& now, const Before& before);
bool sea_jump(const Values& now, const Before& before);
bool wind_jump(const Values& now, const Before& before);
bool same_as_last(const Values& now, const Before& before);

/// Of those that name it in their text; nothing where a position is missing.
std::optional<double> knots_between(const Values& now, const Before& before);
/// Degrees 0 to 360, whither.
std::optional<double> bearing_between(const Values& now, const Before& before);

}  // namespace explain::rules
