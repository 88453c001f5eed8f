#include "explain/doubts/doubts.h"

#include <cmath>
#include <optional>
#include <utility>

#include "explain/doubts/rules.h"
#include "text/ids.h"
#include "text/numbers.h"

namespace explain {
namespace {

namespace id = text::id;
using W = Struct_Weather;
using V = observation::Values;
using enum DoubtKind;

// How a text tells a value.
std::string tenths(std::optional<double> value, int decimals = 1) {
  return value ? text::format_fixed(*value, decimals) : std::string();
}
std::string whole(std::optional<double> value) {
  return tenths(value, 0);
}
std::string figure(std::optional<int> code) {
  return code ? text::format_int(*code) : std::string();
}
std::string figures(std::optional<int> code) {
  return code ? text::format_int(*code, 2, '0') : std::string();
}

// Of Vs (code table 4451) in knots: "11-15".
std::string knots_of_class(std::optional<int> Vs) {
  constexpr int kClass = 5;
  constexpr int kOpenClass = 9;
  if (!Vs) return {};
  if (*Vs == 0) return "0";
  if (*Vs == kOpenClass) return "40+";
  std::string knots = text::format_int(kClass * (*Vs - 1) + 1);
  knots.push_back('-');
  knots.append(text::format_int(kClass * *Vs));
  return knots;
}
// Of Ds (code table 0700) in degrees: "45".
std::string degrees_of_class(std::optional<int> Ds) {
  constexpr int kClass = 45;
  return Ds ? text::format_int(kClass * *Ds) : std::string();
}

DoubtWords words(std::string one, std::string two = {}, std::string three = {},
                 std::string four = {}) {
  return {std::move(one), std::move(two), std::move(three), std::move(four)};
}

DoubtWords jump_words(std::optional<double> last, const Before& before, std::optional<double> now,
                      int decimals = 1) {
  return words(tenths(last, decimals), text::format_int(before.hours), tenths(now, decimals));
}

DoubtWords tendency_words(const V& now, const Before& before) {
  const double then = before.three_hours_ago->pressure.value_or(0.0);
  const double change = now.change.value_or(0.0);
  return words(tenths(then), tenths(change), tenths(then + change), tenths(now.pressure));
}

constexpr DoubtRow kRows[] = {
    {"ship_too_fast",
     kAgainstThePast,
     id::kDoubtShipTooFast,
     rules::ship_too_fast,
     [](const V& now, const Before& before) {
       return words(whole(rules::knots_between(now, before)));
     },
     "MQCS-7, time sequence: latitude and longitude; 40 knots: own choice, no ship that observes "
     "is faster",
     {&W::LaDeg, &W::LaMin, &W::LoDeg, &W::LoMin, &W::Qc}},
    {"north_for_south",
     kAgainstThePast,
     id::kDoubtNorthForSouth,
     rules::north_for_south,
     [](const V& now, const Before& before) {
       return words(whole(rules::knots_between(now, before)));
     },
     "MQCS-7, time sequence: latitude and longitude; 25 knots from the other hemisphere: own "
     "choice",
     {&W::Qc, &W::LaDeg, &W::LaMin}},
    {"east_for_west",
     kAgainstThePast,
     id::kDoubtEastForWest,
     rules::east_for_west,
     [](const V& now, const Before& before) {
       return words(whole(rules::knots_between(now, before)));
     },
     "MQCS-7, time sequence: latitude and longitude; 25 knots from the other hemisphere: own "
     "choice",
     {&W::Qc, &W::LoDeg, &W::LoMin}},
    {"speed_against_positions",
     kAgainstThePast,
     id::kDoubtSpeedAgainstPositions,
     rules::speed_against_positions,
     [](const V& now, const Before& before) {
       return words(whole(rules::knots_between(now, before)), knots_of_class(now.speed),
                    figure(now.speed));
     },
     "WMO-No. 306, code table 4451; five knots to either side: own choice, for the tenths of the "
     "positions",
     {&W::LaDeg, &W::LoDeg, &W::Vs}},
    {"course_against_positions",
     kAgainstThePast,
     id::kDoubtCourseAgainstPositions,
     rules::course_against_positions,
     [](const V& now, const Before& before) {
       return words(whole(rules::bearing_between(now, before)), degrees_of_class(now.course),
                    figure(now.course));
     },
     "WMO-No. 306, code table 0700; a right angle: own choice, for ships that turn",
     {&W::LaDeg, &W::LoDeg, &W::Ds}},
    {"tendency_against_last",
     kAgainstThePast,
     id::kDoubtTendencyAgainstLast,
     rules::tendency_against_last,
     [](const V& now, const Before& before) { return tendency_words(now, before); },
     "WMO-No. 305, chapter 6, pressure and tendency; 1.5 hPa: own choice, for two readings that "
     "are rounded",
     {&W::PPPP, &W::a, &W::ppp}},
    {"tendency_against_six_hours",
     kAgainstThePast,
     id::kDoubtTendencyAgainstSixHours,
     rules::tendency_against_six_hours,
     [](const V& now, const Before& before) {
       return words(tenths(before.last->pressure), tenths(now.change), tenths(now.pressure));
     },
     "WMO-No. 305, chapter 6, pressure and tendency; twice the change and 9 hPa: own choice, for "
     "ships that report every six hours",
     {&W::PPPP, &W::a, &W::ppp}},
    {"pressure_jump",
     kAgainstThePast,
     id::kDoubtPressureJump,
     rules::pressure_jump,
     [](const V& now, const Before& before) {
       return jump_words(before.last->pressure, before, now.pressure);
     },
     "WMO-No. 305, chapter 6, time consistency; 8 hPa and 2.5 more an hour: own choice, above the "
     "fall of deep lows",
     {&W::PPPP}},
    {"air_sign_beside_last",
     kAgainstThePast,
     id::kDoubtAirSignBesideLast,
     rules::air_sign_beside_last,
     [](const V& now, const Before& before) {
       return jump_words(before.last->air, before, now.air);
     },
     "WMO-No. 305, chapter 6, time consistency; limits: own choice",
     {&W::TTT}},
    {"air_jump",
     kAgainstThePast,
     id::kDoubtAirJump,
     rules::air_jump,
     [](const V& now, const Before& before) {
       return jump_words(before.last->air, before, now.air);
     },
     "WMO-No. 305, chapter 6, time consistency; 8 °C and 0.7 more an hour: own choice, above "
     "fronts at sea",
     {&W::TTT}},
    {"sea_jump",
     kAgainstThePast,
     id::kDoubtSeaJump,
     rules::sea_jump,
     [](const V& now, const Before& before) {
       return jump_words(before.last->sea, before, now.sea);
     },
     "WMO-No. 305, chapter 6, time consistency; 6 °C and 0.5 more an hour: own choice, above most "
     "edges of currents",
     {&W::TwTwTw}},
    {"wind_jump",
     kAgainstThePast,
     id::kDoubtWindJump,
     rules::wind_jump,
     [](const V& now, const Before& before) {
       return jump_words(observation::knots_of(*before.last), before, observation::knots_of(now),
                         0);
     },
     "WMO-No. 305, chapter 6, time consistency; 34 knots and 2 more an hour: own choice, above "
     "fronts",
     {&W::ff}},
    {"same_as_last",
     kAgainstThePast,
     id::kDoubtSameAsLast,
     rules::same_as_last,
     [](const V& /*now*/, const Before& before) { return words(text::format_int(before.hours)); },
     "MQCS-7, duplicates; the comparison with the last hour: own choice",
     {&W::PPPP, &W::TTT, &W::TwTwTw, &W::dd, &W::ff}},
    {"actual_time_far_from_hour",
     kBetweenElements,
     id::kDoubtActualTimeFarFromHour,
     rules::actual_time_far_from_hour,
     [](const V& now, const Before& /*before*/) {
       return words(text::format_int(now.actual_hour.value_or(0), 2, '0'),
                    text::format_int(now.actual_minute.value_or(0), 2, '0'),
                    text::format_int(now.hour.value_or(0) % 24, 2, '0'));
     },
     "WMO-No. 306, FM 13, actual and standard time of observation; 90 minutes: own choice, for "
     "local time entered for UTC",
     {&W::GGExact, &W::gg}},
    {"air_sign_beside_sea",
     kBetweenElements,
     id::kDoubtAirSignBesideSea,
     rules::air_sign_beside_sea,
     [](const V& now, const Before& /*before*/) { return words(tenths(now.air), tenths(now.sea)); },
     "WMO-No. 305, chapter 6, consistency of temperatures; limits: own choice",
     {&W::TTT, &W::TwTwTw}},
    {"air_far_from_sea",
     kBetweenElements,
     id::kDoubtAirFarFromSea,
     rules::air_far_from_sea,
     [](const V& now, const Before& /*before*/) { return words(tenths(now.air), tenths(now.sea)); },
     "WMO-No. 305, chapter 6, consistency of temperatures; 15 °C warmer, 25 °C colder: own choice, "
     "beyond desert coasts and winter outbreaks",
     {&W::TTT, &W::TwTwTw}},
    {"dew_point_sign",
     kBetweenElements,
     id::kDoubtDewPointSign,
     rules::dew_point_sign,
     [](const V& now, const Before& /*before*/) {
       return words(tenths(now.dew_point), tenths(now.air));
     },
     "WMO-No. 305, chapter 6, consistency of temperatures; limits: own choice",
     {&W::TdTdTd, &W::TTT}},
    {"dew_point_far_below_air",
     kBetweenElements,
     id::kDoubtDewPointFarBelowAir,
     rules::dew_point_far_below_air,
     [](const V& now, const Before& /*before*/) {
       return words(tenths(now.dew_point), tenths(now.air));
     },
     "WMO-No. 305, chapter 6, consistency of temperatures; 25 °C: own choice, beyond air off "
     "deserts",
     {&W::TdTdTd, &W::TTT}},
    {"all_whole",
     kBetweenElements,
     id::kDoubtAllWhole,
     rules::all_whole,
     [](const V& now, const Before& /*before*/) {
       return words(tenths(now.pressure), tenths(now.air), tenths(now.sea));
     },
     "Own choice: one is whole every tenth time, all once in a thousand",
     {&W::PPPP, &W::TTT, &W::TwTwTw}},
    {"tendency_without_amount",
     kBetweenElements,
     id::kDoubtTendencyWithoutAmount,
     rules::tendency_without_amount,
     [](const V& now, const Before& /*before*/) { return words(figure(now.tendency)); },
     "MQCS-7, elements a and ppp",
     {&W::a, &W::ppp}},
    {"fog_in_good_visibility",
     kBetweenElements,
     id::kDoubtFogInGoodVisibility,
     rules::fog_in_good_visibility,
     [](const V& now, const Before& /*before*/) {
       return words(figures(now.weather), figures(now.visibility));
     },
     "WMO-No. 306, code tables 4677 and 4377: fog is a visibility below 1 km",
     {&W::ww, &W::VV}},
    {"poor_visibility_without_cause",
     kBetweenElements,
     id::kDoubtPoorVisibilityWithoutCause,
     rules::poor_visibility_without_cause,
     [](const V& now, const Before& /*before*/) {
       return words(figures(now.visibility), figures(now.weather));
     },
     "WMO-No. 306, code table 4677: what hides the view has a code of its own",
     {&W::VV, &W::ww}},
    {"mist_in_good_visibility",
     kBetweenElements,
     id::kDoubtMistInGoodVisibility,
     rules::mist_in_good_visibility,
     [](const V& now, const Before& /*before*/) { return words(figures(now.visibility)); },
     "WMO-No. 407, mist; 10 km: own choice",
     {&W::ww, &W::VV}},
    {"heavy_snow_in_good_visibility",
     kBetweenElements,
     id::kDoubtHeavySnowInGoodVisibility,
     rules::heavy_snow_in_good_visibility,
     [](const V& now, const Before& /*before*/) {
       return words(figures(now.weather), figures(now.visibility));
     },
     "WMO-No. 8, intensity of snow by visibility; 4 km: own choice, far beyond it",
     {&W::ww, &W::VV}},
    {"fog_in_dry_air",
     kBetweenElements,
     id::kDoubtFogInDryAir,
     rules::fog_in_dry_air,
     [](const V& now, const Before& /*before*/) {
       return words(figures(now.weather), tenths(now.dew_point), tenths(now.air));
     },
     "WMO-No. 407, fog is nearly saturated air; 4 °C: own choice, for thermometers and wick",
     {&W::ww, &W::TdTdTd, &W::TTT}},
    {"rain_in_dry_air",
     kBetweenElements,
     id::kDoubtRainInDryAir,
     rules::rain_in_dry_air,
     [](const V& now, const Before& /*before*/) {
       return words(figures(now.weather), tenths(now.dew_point), tenths(now.air));
     },
     "Own choice: what falls moistens the air; 12 °C is less than half of saturation",
     {&W::ww, &W::TdTdTd, &W::TTT}},
    {"hidden_sky_without_cause",
     kBetweenElements,
     id::kDoubtHiddenSkyWithoutCause,
     rules::hidden_sky_without_cause,
     [](const V& now, const Before& /*before*/) {
       return words(figures(now.visibility), figures(now.weather));
     },
     "WMO-No. 306, code table 2700: 9 is a sky hidden by fog or the like",
     {&W::N, &W::VV, &W::ww}},
    {"hidden_sky_with_amount",
     kBetweenElements,
     id::kDoubtHiddenSkyWithAmount,
     rules::hidden_sky_with_amount,
     [](const V& now, const Before& /*before*/) { return words(figure(now.low_cloud)); },
     "MQCS-7, elements N and Nh",
     {&W::N, &W::Nh}},
    {"visible_sky_in_fog",
     kBetweenElements,
     id::kDoubtVisibleSkyInFog,
     rules::visible_sky_in_fog,
     [](const V& now, const Before& /*before*/) {
       return words(figures(now.weather), figure(now.cloud));
     },
     "WMO-No. 306, code tables 4677 and 2700: a sky that cannot be seen is N 9",
     {&W::N, &W::ww}},
    {"clear_sky_with_CL",
     kBetweenElements,
     id::kDoubtClearSkyWithCL,
     rules::clear_sky_with_CL,
     [](const V& now, const Before& /*before*/) { return words("CL", figure(now.CL)); },
     "MQCS-7, elements N, Nh, CL, CM, CH",
     {&W::N, &W::CL}},
    {"clear_sky_with_CM",
     kBetweenElements,
     id::kDoubtClearSkyWithCM,
     rules::clear_sky_with_CM,
     [](const V& now, const Before& /*before*/) { return words("CM", figure(now.CM)); },
     "MQCS-7, elements N, Nh, CL, CM, CH",
     {&W::N, &W::CM}},
    {"clear_sky_with_CH",
     kBetweenElements,
     id::kDoubtClearSkyWithCH,
     rules::clear_sky_with_CH,
     [](const V& now, const Before& /*before*/) { return words("CH", figure(now.CH)); },
     "MQCS-7, elements N, Nh, CL, CM, CH",
     {&W::N, &W::CH}},
    {"weather_without_cloud",
     kBetweenElements,
     id::kDoubtWeatherWithoutCloud,
     rules::weather_without_cloud,
     [](const V& now, const Before& /*before*/) { return words(figures(now.weather)); },
     "WMO-No. 305, chapter 6, consistency of cloud and present weather",
     {&W::N, &W::ww}},
    {"shower_without_cumulus",
     kBetweenElements,
     id::kDoubtShowerWithoutCumulus,
     rules::shower_without_cumulus,
     [](const V& now, const Before& /*before*/) {
       return words(figures(now.weather), figure(now.CL));
     },
     "WMO-No. 407, showers fall from convective clouds",
     {&W::ww, &W::CL}},
    {"thunder_without_cumulonimbus",
     kBetweenElements,
     id::kDoubtThunderWithoutCumulonimbus,
     rules::thunder_without_cumulonimbus,
     [](const V& now, const Before& /*before*/) {
       return words(figures(now.weather), figure(now.CL));
     },
     "WMO-No. 407, thunder comes from Cumulonimbus",
     {&W::ww, &W::CL}},
    {"CM_above_overcast",
     kBetweenElements,
     id::kDoubtCMAboveOvercast,
     rules::CM_above_overcast,
     [](const V& now, const Before& /*before*/) { return words("CM", figure(now.CM)); },
     "WMO-No. 306, code tables 0515 and 0509: a solidus for clouds hidden by lower ones",
     {&W::Nh, &W::CM}},
    {"CH_above_overcast",
     kBetweenElements,
     id::kDoubtCHAboveOvercast,
     rules::CH_above_overcast,
     [](const V& now, const Before& /*before*/) { return words("CH", figure(now.CH)); },
     "WMO-No. 306, code tables 0515 and 0509: a solidus for clouds hidden by lower ones",
     {&W::Nh, &W::CH}},
    {"low_base_of_CH",
     kBetweenElements,
     id::kDoubtLowBaseOfCH,
     rules::low_base_of_CH,
     [](const V& now, const Before& /*before*/) {
       return words(figure(now.CH), figure(now.cloud_base));
     },
     "WMO-No. 407, heights of the layers",
     {&W::h, &W::CH}},
    {"low_base_of_CM",
     kBetweenElements,
     id::kDoubtLowBaseOfCM,
     rules::low_base_of_CM,
     [](const V& now, const Before& /*before*/) {
       return words(figure(now.CM), figure(now.cloud_base));
     },
     "WMO-No. 407, heights of the layers",
     {&W::h, &W::CM}},
    {"high_base_of_CL",
     kBetweenElements,
     id::kDoubtHighBaseOfCL,
     rules::high_base_of_CL,
     [](const V& now, const Before& /*before*/) { return words(figure(now.CL)); },
     "WMO-No. 407, heights of the layers",
     {&W::h, &W::CL}},
    {"snow_in_warm_air",
     kBetweenElements,
     id::kDoubtSnowInWarmAir,
     rules::snow_in_warm_air,
     [](const V& now, const Before& /*before*/) {
       return words(figures(now.weather), tenths(now.air));
     },
     "WMO-No. 305, chapter 6, consistency of weather and temperature; 6 °C: own choice",
     {&W::ww, &W::TTT}},
    {"freezing_rain_in_warm_air",
     kBetweenElements,
     id::kDoubtFreezingRainInWarmAir,
     rules::freezing_rain_in_warm_air,
     [](const V& now, const Before& /*before*/) {
       return words(figures(now.weather), tenths(now.air));
     },
     "WMO-No. 305, chapter 6, consistency of weather and temperature; 3 °C: own choice",
     {&W::ww, &W::TTT}},
    {"rain_in_frost",
     kBetweenElements,
     id::kDoubtRainInFrost,
     rules::rain_in_frost,
     [](const V& now, const Before& /*before*/) {
       return words(figures(now.weather), tenths(now.air));
     },
     "WMO-No. 305, chapter 6, consistency of weather and temperature; -5 °C: own choice",
     {&W::ww, &W::TTT}},
    {"snow_in_tropics",
     kBetweenElements,
     id::kDoubtSnowInTropics,
     rules::snow_in_tropics,
     [](const V& now, const Before& /*before*/) { return words(figures(now.weather)); },
     "MQCS-7, element ww, latitude below 20°",
     {&W::ww, &W::LaDeg}},
    {"past_weather_in_wrong_order",
     kBetweenElements,
     id::kDoubtPastWeatherInWrongOrder,
     rules::past_weather_in_wrong_order,
     [](const V& now, const Before& /*before*/) {
       return words(figure(now.past_weather1), figure(now.past_weather2));
     },
     "MQCS-7, elements W1 and W2",
     {&W::W1, &W::W2}},
    {"waves_without_wind",
     kBetweenElements,
     id::kDoubtWavesWithoutWind,
     rules::waves_without_wind,
     [](const V& now, const Before& /*before*/) {
       return words(tenths(now.wind_waves.height), whole(observation::knots_of(now)));
     },
     "WMO-No. 702, the sea that a wind raises in the end; three times that and 2 m: own choice",
     {&W::HwHw, &W::ff}},
    {"wind_without_waves",
     kBetweenElements,
     id::kDoubtWindWithoutWaves,
     rules::wind_without_waves,
     [](const V& now, const Before& /*before*/) {
       return words(whole(observation::knots_of(now)), tenths(now.wind_waves.height));
     },
     "WMO-No. 702, sea and wind; 28 knots and half a metre: own choice",
     {&W::HwHw, &W::ff}},
    {"wind_waves_too_steep",
     kBetweenElements,
     id::kDoubtWindWavesTooSteep,
     rules::wind_waves_too_steep,
     [](const V& now, const Before& /*before*/) {
       return words(tenths(now.wind_waves.height), figure(now.wind_waves.period));
     },
     "WMO-No. 702, steepness of breaking waves; a second more: own choice",
     {&W::PwPw, &W::HwHw}},
    {"swell1_too_steep",
     kBetweenElements,
     id::kDoubtSwell1TooSteep,
     rules::swell1_too_steep,
     [](const V& now, const Before& /*before*/) {
       return words(tenths(now.swell1.height), figure(now.swell1.period));
     },
     "WMO-No. 702, steepness of breaking waves; a second more: own choice",
     {&W::Pw1Pw1, &W::Hw1Hw1}},
    {"swell2_too_steep",
     kBetweenElements,
     id::kDoubtSwell2TooSteep,
     rules::swell2_too_steep,
     [](const V& now, const Before& /*before*/) {
       return words(tenths(now.swell2.height), figure(now.swell2.period));
     },
     "WMO-No. 702, steepness of breaking waves; a second more: own choice",
     {&W::Pw2Pw2, &W::Hw2Hw2}},
    {"measured_waves_too_steep",
     kBetweenElements,
     id::kDoubtMeasuredWavesTooSteep,
     rules::measured_waves_too_steep,
     [](const V& now, const Before& /*before*/) {
       return words(tenths(now.measured_waves.height), figure(now.measured_waves.period));
     },
     "WMO-No. 702, steepness of breaking waves; a second more: own choice",
     {&W::PwaPwa, &W::HwaHwa}},
    {"second_swell_is_the_first",
     kBetweenElements,
     id::kDoubtSecondSwellIsTheFirst,
     rules::second_swell_is_the_first,
     [](const V& now, const Before& /*before*/) {
       return words(figure(now.swell2.direction), figure(now.swell2.period),
                    tenths(now.swell2.height));
     },
     "WMO-No. 306, FM 13, groups 4 and 5 of section 2: two different swells",
     {&W::dw2dw2, &W::Pw2Pw2, &W::Hw2Hw2}},
    {"icing_in_warm_air",
     kBetweenElements,
     id::kDoubtIcingInWarmAir,
     rules::icing_in_warm_air,
     [](const V& now, const Before& /*before*/) {
       return words(figure(now.ice_rate), tenths(now.air));
     },
     "WMO-No. 305, chapter 6; 3 °C: own choice, spray freezes below -2 °C",
     {&W::Rs, &W::TTT}},
    {"sea_ice_in_warm_water",
     kBetweenElements,
     id::kDoubtSeaIceInWarmWater,
     rules::sea_ice_in_warm_water,
     [](const V& now, const Before& /*before*/) { return words(figure(now.ci), tenths(now.sea)); },
     "WMO-No. 305, chapter 6; 6 °C: own choice, ice edges melt in less",
     {&W::ci, &W::TwTwTw}},
    {"icebergs_in_warm_water",
     kBetweenElements,
     id::kDoubtIcebergsInWarmWater,
     rules::icebergs_in_warm_water,
     [](const V& now, const Before& /*before*/) { return words(figure(now.bi), tenths(now.sea)); },
     "Own choice: icebergs melt within days above 18 °C",
     {&W::bi, &W::TwTwTw}},
    {"sea_ice_far_from_the_poles",
     kBetweenElements,
     id::kDoubtSeaIceFarFromThePoles,
     rules::sea_ice_far_from_the_poles,
     [](const V& now, const Before& /*before*/) {
       return words(figure(now.ci),
                    tenths(now.latitude ? std::optional(std::abs(*now.latitude)) : std::nullopt));
     },
     "Own choice: no sea freezes nearer to the equator than 36°",
     {&W::ci, &W::LaDeg}},
};

}  // namespace

std::span<const DoubtRow> doubt_rows() {
  return kRows;
}

Before before_of(const V& now, std::span<const observation::PastObservation> past) {
  constexpr int kTendency = 3;
  Before before;
  if (!now.hour) return before;
  for (std::size_t i = past.size(); i > 0; --i) {
    const observation::PastObservation& one = past[i - 1];
    const int hours = *now.hour - one.hour;
    if (hours <= 0) continue;
    if (hours > kLongestPast) break;
    if (before.last == nullptr) {
      before.last = &one.values;
      before.hours = hours;
    }
    if (hours == kTendency) before.three_hours_ago = &one.values;
    if (hours >= kTendency) break;
  }
  return before;
}

std::vector<Doubt> doubts_of(const V& now, const Before& before, text::Language language) {
  std::vector<Doubt> doubts;
  for (const DoubtRow& row : kRows) {
    if (!row.raised(now, before)) continue;
    const DoubtWords named = row.words(now, before);
    doubts.push_back({&row, text::fill(text::bilingual(row.text, language),
                                       {named[0], named[1], named[2], named[3]})});
  }
  return doubts;
}

std::vector<Doubt> doubts_of(const V& now, std::span<const observation::PastObservation> past,
                             text::Language language) {
  return doubts_of(now, before_of(now, past), language);
}

}  // namespace explain
