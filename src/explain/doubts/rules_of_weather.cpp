// Weather, visibility and clouds within one observation.

#include <array>
#include <cstdlib>

#include "explain/doubts/rules.h"

namespace explain::rules {
namespace {

// Code table 4377.
constexpr int kFromOneKilometre = 94;
constexpr int kFromFourKilometres = 96;
constexpr int kFromTenKilometres = 97;

constexpr int kSkyHidden = 9;  // N and Nh, code table 2700
constexpr int kOvercast = 8;

bool between(std::optional<int> value, int first, int last) {
  return value && *value >= first && *value <= last;
}

template <std::size_t count>
bool is_one_of(std::optional<int> value, const std::array<int, count>& codes) {
  if (!value) return false;
  for (const int code : codes)
    if (code == *value) return true;
  return false;
}

// Code table 4677: fog at the ship, which is a visibility of less than 1 km. Not 40 (at a distance)
// and 41 (patches, between which one sees far).
bool is_fog(std::optional<int> weather) {
  return between(weather, 42, 49);
}

bool is_some_cloud(std::optional<int> type) {
  return type && *type > 0;
}

// What falls from clouds or is seen or heard of them. Lightning (13) may be below the horizon;
// diamond dust (76) falls from a clear sky.
bool needs_cloud(std::optional<int> weather) {
  return between(weather, 14, 17) || between(weather, 50, 75) || between(weather, 77, 99);
}

// Weather that takes nothing from visibility, or by its definition leaves at least 1 km.
bool leaves_visibility(std::optional<int> weather) {
  return between(weather, 0, 3) || weather == 10 || between(weather, 13, 16) ||
         between(weather, 20, 29) || weather == 40;
}

}  // namespace

bool fog_in_good_visibility(const Values& now, const Before& /*before*/) {
  return is_fog(now.weather) && now.visibility && *now.visibility >= kFromOneKilometre;
}

bool poor_visibility_without_cause(const Values& now, const Before& /*before*/) {
  return leaves_visibility(now.weather) && between(now.visibility, 90, kFromOneKilometre - 1);
}

bool mist_in_good_visibility(const Values& now, const Before& /*before*/) {
  constexpr int kMist = 10;
  return now.weather == kMist && now.visibility && *now.visibility >= kFromTenKilometres;
}

bool heavy_snow_in_good_visibility(const Values& now, const Before& /*before*/) {
  return between(now.weather, 74, 75) && now.visibility && *now.visibility >= kFromFourKilometres;
}

// Fog is saturated air; thermometers and a wet bulb that is not quite clean are let have four
// degrees. In hard frost the dew point over water lies far below air that is saturated over ice.
bool fog_in_dry_air(const Values& now, const Before& /*before*/) {
  constexpr double kLargestDepression = 4.0;
  constexpr double kIceFog = -10.0;
  return is_fog(now.weather) && now.air && now.dew_point && *now.air > kIceFog &&
         above(*now.air - *now.dew_point, kLargestDepression);
}

// Rain, drizzle and snow without showers moisten the air through which they fall.
bool rain_in_dry_air(const Values& now, const Before& /*before*/) {
  constexpr double kLargestDepression = 12.0;
  return between(now.weather, 50, 75) && now.air && now.dew_point &&
         above(*now.air - *now.dew_point, kLargestDepression);
}

bool hidden_sky_without_cause(const Values& now, const Before& /*before*/) {
  return now.cloud == kSkyHidden && leaves_visibility(now.weather) && now.visibility &&
         *now.visibility >= kFromFourKilometres;
}

bool hidden_sky_with_amount(const Values& now, const Before& /*before*/) {
  return now.cloud == kSkyHidden && now.low_cloud && *now.low_cloud != kSkyHidden;
}

// Code table 4677 has two figures for each kind of fog: the odd one from 43 on says that the sky
// cannot be seen.
bool visible_sky_in_fog(const Values& now, const Before& /*before*/) {
  constexpr std::array kSkyInvisible = {43, 45, 47, 49};
  return is_one_of(now.weather, kSkyInvisible) && now.cloud && *now.cloud != kSkyHidden;
}

bool clear_sky_with_CL(const Values& now, const Before& /*before*/) {
  return now.cloud == 0 && is_some_cloud(now.CL);
}
bool clear_sky_with_CM(const Values& now, const Before& /*before*/) {
  return now.cloud == 0 && is_some_cloud(now.CM);
}
bool clear_sky_with_CH(const Values& now, const Before& /*before*/) {
  return now.cloud == 0 && is_some_cloud(now.CH);
}

bool weather_without_cloud(const Values& now, const Before& /*before*/) {
  return now.cloud == 0 && needs_cloud(now.weather);
}

// Showers fall from Cumulus and Cumulonimbus, and from Altocumulus castellanus (CM 8).
bool shower_without_cumulus(const Values& now, const Before& /*before*/) {
  constexpr std::array kCumulus = {1, 2, 3, 8, 9};
  constexpr int kCastellanus = 8;
  return between(now.weather, 80, 90) && now.CL && !is_one_of(now.CL, kCumulus) &&
         now.CM != kCastellanus;
}

// Cumulonimbus is coded wherever there is thunder, even where its top is hidden.
bool thunder_without_cumulonimbus(const Values& now, const Before& /*before*/) {
  constexpr std::array kCumulonimbus = {3, 9};
  return (now.weather == 17 || between(now.weather, 95, 99)) && now.CL &&
         !is_one_of(now.CL, kCumulonimbus);
}

// Where clouds of the lowest layer cover the sky without a gap, those above cannot be seen.
bool CM_above_overcast(const Values& now, const Before& /*before*/) {
  return now.low_cloud == kOvercast && is_some_cloud(now.CL) && is_some_cloud(now.CM);
}
bool CH_above_overcast(const Values& now, const Before& /*before*/) {
  return now.low_cloud == kOvercast && is_some_cloud(now.CL) && is_some_cloud(now.CH);
}

// Cirrus is not below 3 km even near the poles; 2 km (code 8 begins there) lets an estimate be bad.
bool low_base_of_CH(const Values& now, const Before& /*before*/) {
  constexpr int kBelowTwoKilometres = 7;
  return now.CL == 0 && now.CM == 0 && is_some_cloud(now.CH) &&
         between(now.cloud_base, 0, kBelowTwoKilometres);
}

// Medium clouds begin at 2 km; below 1 km (code 5) only Nimbostratus, CM 2, comes down.
bool low_base_of_CM(const Values& now, const Before& /*before*/) {
  constexpr int kNimbostratus = 2;
  constexpr int kBelowOneKilometre = 5;
  return now.CL == 0 && is_some_cloud(now.CM) && now.CM != kNimbostratus &&
         between(now.cloud_base, 0, kBelowOneKilometre);
}

bool high_base_of_CL(const Values& now, const Before& /*before*/) {
  constexpr int kFrom2500OrNone = 9;
  return is_some_cloud(now.CL) && now.cloud_base == kFrom2500OrNone;
}

// Snow without rain, grains of snow, snow showers, at the time of observation.
bool snow_in_warm_air(const Values& now, const Before& /*before*/) {
  constexpr double kWarmest = 6.0;
  const bool snow =
      between(now.weather, 70, 75) || between(now.weather, 77, 78) || between(now.weather, 85, 86);
  return snow && now.air && *now.air > kWarmest;
}

// Drizzle and rain that freeze, fog that deposits rime.
bool freezing_rain_in_warm_air(const Values& now, const Before& /*before*/) {
  constexpr std::array kFreezing = {48, 49, 56, 57, 66, 67};
  constexpr double kWarmest = 3.0;
  return is_one_of(now.weather, kFreezing) && now.air && *now.air > kWarmest;
}

// Drizzle, rain and rain showers that are not coded as freezing.
bool rain_in_frost(const Values& now, const Before& /*before*/) {
  constexpr double kColdest = -5.0;
  const bool rain =
      between(now.weather, 50, 55) || between(now.weather, 58, 65) || between(now.weather, 80, 82);
  return rain && now.air && *now.air < kColdest;
}

bool snow_in_tropics(const Values& now, const Before& before) {
  constexpr std::array kWinter = {22, 23, 24, 26, 36, 37, 38, 39, 48, 49, 56, 57, 93, 94};
  constexpr double kTropics = 20.0;
  const bool winter = is_one_of(now.weather, kWinter) || between(now.weather, 66, 79) ||
                      between(now.weather, 83, 88);
  return winter && now.latitude && std::abs(*now.latitude) < kTropics &&
         !snow_in_warm_air(now, before) && !freezing_rain_in_warm_air(now, before);
}

bool past_weather_in_wrong_order(const Values& now, const Before& /*before*/) {
  return now.past_weather1 && now.past_weather2 && *now.past_weather1 < *now.past_weather2;
}

}  // namespace explain::rules
