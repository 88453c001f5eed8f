#include "fakes/doubt_examples.h"

#include <gtest/gtest.h>

#include "fakes/sample_ship.h"
#include "observation/values.h"

namespace doubt_examples {
namespace {

constexpr std::string_view kAtNoon = "Year=2014 Month=11 YY=15 GG=12 iw=4 ";
constexpr std::string_view kPlace = "Qc=1 LaDeg=35 LaMin=00 LoDeg=165 LoMin=00";

constexpr Example kExamples[] = {
    // 2.5 degrees of latitude are 150 miles: 50 knots. Two degrees are 40.
    {"ship_too_fast", "Qc=1 LaDeg=37 LaMin=30 LoDeg=165 LoMin=00",
     "Qc=1 LaDeg=37 LaMin=00 LoDeg=165 LoMin=00", kPlace},
    // Across the date line: twelve minutes of longitude each side.
    {"ship_too_fast", "Qc=1 LaDeg=40 LaMin=00 LoDeg=179 LoMin=48",
     "Qc=7 LaDeg=35 LaMin=00 LoDeg=179 LoMin=48", "Qc=1 LaDeg=35 LaMin=00 LoDeg=179 LoMin=48"},
    // South for north: 70 degrees off, and half a degree from where she was.
    {"north_for_south", "Qc=3 LaDeg=35 LaMin=30 LoDeg=165 LoMin=00",
     "Qc=1 LaDeg=35 LaMin=30 LoDeg=165 LoMin=00", kPlace},
    // West for east: 29 degrees off across the date line.
    {"east_for_west", "Qc=7 LaDeg=35 LaMin=00 LoDeg=165 LoMin=30",
     "Qc=1 LaDeg=35 LaMin=00 LoDeg=165 LoMin=30", kPlace},
    // 60 miles: 20 knots, code 4; code 2 ends at 11.
    {"speed_against_positions", "Qc=1 LaDeg=36 LaMin=00 LoDeg=165 LoMin=00 Vs=2",
     "Qc=1 LaDeg=36 LaMin=00 LoDeg=165 LoMin=00 Vs=3", kPlace},
    {"speed_against_positions", "Qc=1 LaDeg=36 LaMin=00 LoDeg=165 LoMin=00 Vs=6",
     "Qc=1 LaDeg=36 LaMin=00 LoDeg=165 LoMin=00 Vs=5", kPlace},
    {"speed_against_positions", "Qc=1 LaDeg=35 LaMin=00 LoDeg=165 LoMin=00 Vs=3",
     "Qc=1 LaDeg=35 LaMin=00 LoDeg=165 LoMin=00 Vs=0", kPlace},
    // North all the way: 8. East is a right angle off, south-east more.
    {"course_against_positions", "Qc=1 LaDeg=36 LaMin=00 LoDeg=165 LoMin=00 Ds=3",
     "Qc=1 LaDeg=36 LaMin=00 LoDeg=165 LoMin=00 Ds=1", kPlace},
    // East across the date line: 2.
    {"course_against_positions", "Qc=7 LaDeg=35 LaMin=00 LoDeg=179 LoMin=24 Ds=6",
     "Qc=7 LaDeg=35 LaMin=00 LoDeg=179 LoMin=24 Ds=2", "Qc=1 LaDeg=35 LaMin=00 LoDeg=179 LoMin=24"},
    // 1013.2 and risen 1.4 is 1014.6.
    {"tendency_against_last", "PPPP=0162 a=2 ppp=014", "PPPP=0161 a=2 ppp=014", "PPPP=0132"},
    {"tendency_against_last", "PPPP=0146 a=7 ppp=014", "PPPP=0146 a=2 ppp=014", "PPPP=0132"},
    {"tendency_against_last", "PPPP=0007 a=7 ppp=014", "PPPP=9991 a=7 ppp=014", "PPPP=0005"},
    // 1013.2 and twice 1.4 is 1016.0; nine more are 1025.0.
    {"tendency_against_six_hours", "PPPP=0251 a=2 ppp=014", "PPPP=0250 a=2 ppp=014", "PPPP=0132",
     6},
    {"pressure_jump", "PPPP=0290", "PPPP=0287", "PPPP=0132"},
    {"pressure_jump", "PPPP=0363", "PPPP=0362", "PPPP=0132", 6},
    {"air_sign_beside_last", "SnT=1 TTT=041", "SnT=0 TTT=041", "SnT=0 TTT=035"},
    {"air_sign_beside_last", "SnT=0 TTT=041", "SnT=1 TTT=041", "SnT=1 TTT=035"},
    {"air_jump", "SnT=0 TTT=252", "SnT=0 TTT=251", "SnT=0 TTT=150"},
    {"sea_jump", "Ss=0 TwTwTw=226", "Ss=0 TwTwTw=225", "Ss=0 TwTwTw=150"},
    {"wind_jump", "dd=27 ff=61", "dd=27 ff=60", "dd=27 ff=20 iw=4"},
    {"same_as_last", "dd=27 ff=20 SnT=0 TTT=152 Ss=0 TwTwTw=163 PPPP=0132",
     "dd=27 ff=20 SnT=0 TTT=152 Ss=0 TwTwTw=163 PPPP=0133",
     "dd=27 ff=20 SnT=0 TTT=152 Ss=0 TwTwTw=163 PPPP=0132"},

    {"actual_time_far_from_hour", "GGExact=10 gg=29", "GGExact=10 gg=30"},
    {"actual_time_far_from_hour", "GGExact=21 gg=00", "GGExact=12 gg=00"},
    {"air_sign_beside_sea", "SnT=1 TTT=121 Ss=0 TwTwTw=130", "SnT=0 TTT=121 Ss=0 TwTwTw=130"},
    {"air_far_from_sea", "SnT=0 TTT=281 Ss=0 TwTwTw=130", "SnT=0 TTT=280 Ss=0 TwTwTw=130"},
    {"air_far_from_sea", "SnT=1 TTT=241 Ss=0 TwTwTw=010", "SnT=1 TTT=240 Ss=0 TwTwTw=010"},
    {"dew_point_sign", "SnT=0 TTT=121 SnTd=1 TdTdTd=101", "SnT=0 TTT=121 SnTd=0 TdTdTd=101"},
    {"dew_point_far_below_air", "SnT=0 TTT=301 SnTd=0 TdTdTd=050",
     "SnT=0 TTT=300 SnTd=0 TdTdTd=050"},
    {"all_whole", "PPPP=0130 SnT=0 TTT=150 Ss=0 TwTwTw=160",
     "PPPP=0130 SnT=0 TTT=150 Ss=0 TwTwTw=161"},
    {"tendency_without_amount", "a=2 ppp=000", "a=2 ppp=001"},
    {"tendency_without_amount", "a=7 ppp=000", "a=5 ppp=000"},

    {"fog_in_good_visibility", "ww=45 VV=94", "ww=45 VV=93"},
    {"fog_in_good_visibility", "ww=42 VV=97", "ww=41 VV=97"},
    {"poor_visibility_without_cause", "ww=02 VV=93", "ww=02 VV=94"},
    {"poor_visibility_without_cause", "ww=10 VV=93", "ww=05 VV=93"},
    {"mist_in_good_visibility", "ww=10 VV=97", "ww=10 VV=96"},
    {"heavy_snow_in_good_visibility", "ww=75 VV=96", "ww=73 VV=96"},
    {"fog_in_dry_air", "ww=45 SnT=0 TTT=152 SnTd=0 TdTdTd=111",
     "ww=45 SnT=0 TTT=152 SnTd=0 TdTdTd=112"},
    {"rain_in_dry_air", "ww=61 SnT=0 TTT=202 SnTd=0 TdTdTd=081",
     "ww=61 SnT=0 TTT=202 SnTd=0 TdTdTd=082"},
    {"hidden_sky_without_cause", "N=9 VV=96 ww=02", "N=9 VV=96 ww=05"},
    {"hidden_sky_with_amount", "N=9 Nh=8", "N=9 Nh=9"},
    {"visible_sky_in_fog", "N=8 ww=45", "N=9 ww=45"},
    {"visible_sky_in_fog", "N=0 ww=43", "N=0 ww=42"},
    {"visible_sky_in_fog", "N=5 ww=47", "N=/ ww=47"},
    {"visible_sky_in_fog", "N=3 ww=49", "ww=49"},
    {"clear_sky_with_CL", "N=0 CL=1", "N=0 CL=0"},
    {"clear_sky_with_CM", "N=0 CM=3", "N=1 CM=3"},
    {"clear_sky_with_CH", "N=0 CH=1", "N=0 CH=0"},
    {"weather_without_cloud", "N=0 ww=61", "N=1 ww=61"},
    {"weather_without_cloud", "N=0 ww=17", "N=0 ww=13"},
    {"weather_without_cloud", "N=0 ww=77", "N=0 ww=76"},
    {"shower_without_cumulus", "ww=80 CL=5", "ww=80 CL=8"},
    {"shower_without_cumulus", "ww=85 CL=0 CM=7", "ww=85 CL=0 CM=8"},
    {"thunder_without_cumulonimbus", "ww=95 CL=2", "ww=95 CL=3"},
    {"thunder_without_cumulonimbus", "ww=17 CL=5", "ww=91 CL=5"},
    {"CM_above_overcast", "Nh=8 CL=5 CM=3", "Nh=8 CL=0 CM=3"},
    {"CH_above_overcast", "Nh=8 CL=5 CH=3", "Nh=7 CL=5 CH=3"},
    {"low_base_of_CH", "CL=0 CM=0 CH=1 h=7", "CL=0 CM=0 CH=1 h=8"},
    {"low_base_of_CM", "CL=0 CM=3 h=5", "CL=0 CM=3 h=6"},
    {"low_base_of_CM", "CL=0 CM=7 h=4", "CL=0 CM=2 h=4"},
    {"high_base_of_CL", "CL=5 h=9", "CL=5 h=8"},
    {"snow_in_warm_air", "ww=71 SnT=0 TTT=061", "ww=71 SnT=0 TTT=060"},
    {"freezing_rain_in_warm_air", "ww=66 SnT=0 TTT=031", "ww=66 SnT=0 TTT=030"},
    {"rain_in_frost", "ww=61 SnT=1 TTT=051", "ww=61 SnT=1 TTT=050"},
    {"snow_in_tropics", "ww=71 Qc=5 LaDeg=19 LaMin=54 LoDeg=165 LoMin=00",
     "ww=71 Qc=5 LaDeg=20 LaMin=00 LoDeg=165 LoMin=00"},
    {"past_weather_in_wrong_order", "W1=2 W2=6", "W1=6 W2=6"},
    // Six knots are 3.1 m/s: 0.2 m in the end.
    {"course_against_positions", "Qc=1 LaDeg=37 LaMin=00 LoDeg=165 LoMin=00 Ds=4",
     "Qc=1 LaDeg=37 LaMin=00 LoDeg=165 LoMin=00 Ds=2", kPlace, 6},
    {"speed_against_positions", "Qc=1 LaDeg=37 LaMin=00 LoDeg=165 LoMin=00 Vs=1",
     "Qc=1 LaDeg=37 LaMin=00 LoDeg=165 LoMin=00 Vs=2", kPlace, 6},
    {"waves_without_wind", "dd=27 ff=06 PwPw=06 HwHw=06", "dd=27 ff=06 PwPw=06 HwHw=05"},
    {"wind_without_waves", "dd=27 ff=28 PwPw=03 HwHw=01", "dd=27 ff=27 PwPw=03 HwHw=01"},
    {"wind_without_waves", "dd=27 ff=35 PwPw=02 HwHw=01", "dd=27 ff=35 PwPw=02 HwHw=01 ci=3"},
    // Three seconds, and one more: 25 m long, 3.6 m high.
    {"wind_waves_too_steep", "PwPw=03 HwHw=08", "PwPw=03 HwHw=07"},
    {"swell1_too_steep", "dw1dw1=27 Pw1Pw1=03 Hw1Hw1=08", "dw1dw1=27 Pw1Pw1=03 Hw1Hw1=07"},
    {"swell2_too_steep", "dw2dw2=27 Pw2Pw2=03 Hw2Hw2=08", "dw2dw2=27 Pw2Pw2=03 Hw2Hw2=07"},
    {"measured_waves_too_steep", "PwaPwa=03 HwaHwa=08", "PwaPwa=03 HwaHwa=07"},
    {"second_swell_is_the_first", "dw1dw1=27 Pw1Pw1=08 Hw1Hw1=04 dw2dw2=27 Pw2Pw2=08 Hw2Hw2=04",
     "dw1dw1=27 Pw1Pw1=08 Hw1Hw1=04 dw2dw2=27 Pw2Pw2=08 Hw2Hw2=03"},
    {"icing_in_warm_air", "Is=1 EsEs=05 Rs=1 SnT=0 TTT=031", "Is=1 EsEs=05 Rs=1 SnT=0 TTT=030"},
    {"icing_in_warm_air", "Is=1 EsEs=05 Rs=2 SnT=0 TTT=051", "Is=1 EsEs=05 Rs=3 SnT=0 TTT=051"},
    {"sea_ice_in_warm_water", "ci=2 Ss=0 TwTwTw=061", "ci=1 Ss=0 TwTwTw=061"},
    {"icebergs_in_warm_water", "bi=1 Ss=0 TwTwTw=181", "bi=1 Ss=0 TwTwTw=180"},
    {"sea_ice_far_from_the_poles", "ci=3 Qc=1 LaDeg=35 LaMin=54 LoDeg=165 LoMin=00",
     "ci=3 Qc=1 LaDeg=36 LaMin=00 LoDeg=165 LoMin=00"},
};

}  // namespace

std::span<const Example> examples() {
  return kExamples;
}

Struct_Weather record_of(std::string_view fields) {
  Struct_Weather record(fakes::sample_ship(), KeyObservationItems());
  std::string all(kAtNoon);
  all.append(fields).push_back(' ');
  std::string_view rest = all;
  for (std::size_t end = rest.find(' '); end != std::string_view::npos; end = rest.find(' ')) {
    const std::string_view word = rest.substr(0, end);
    rest.remove_prefix(end + 1);
    if (word.empty()) continue;
    const std::size_t equals = word.find('=');
    const auto* const field = find_weather_field(word.substr(0, equals));
    if (field == nullptr || equals == std::string_view::npos) {
      ADD_FAILURE() << word << " is no field with a value";
      continue;
    }
    record.*field->member = word.substr(equals + 1);
  }
  return record;
}

std::vector<observation::PastObservation> past_of(const Example& example) {
  if (example.before.empty()) return {};
  observation::PastObservation past;
  past.values = observation::values_of(record_of(example.before));
  past.hour = past.values.hour.value() - example.hours;
  past.values.hour = past.hour;
  return {past};
}

}  // namespace doubt_examples
