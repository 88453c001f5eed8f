#pragma once
// What the figures of an observation say as numbers and codes, for whoever reckons with them: an
// observation beside the last ones, a curve, a message in another code. Nothing is checked here: a
// pressure that no weather has is a number all the same.

#include <optional>

#include "observation/Struct_Weather.h"

namespace observation {

/// A swell or waves; each part may be missing.
struct WaveValues {
  std::optional<int> direction;  ///< whence, degrees 10 to 360; nothing for a confused sea
  std::optional<int> period;     ///< seconds; nothing for a confused sea
  std::optional<double> height;  ///< metres, in steps of a half
  bool operator==(const WaveValues&) const = default;
};

/// Nothing for what is missing in any form (empty, "*", "/"), for figures that are no number, and
/// for a value of several figures some of which are missing.
struct Values {
  std::optional<int> hour;                         ///< since the beginning of 2000, UTC
  std::optional<int> actual_hour, actual_minute;   ///< GGExact and gg
  std::optional<double> latitude, longitude;       ///< degrees and tenths, north and east positive
  std::optional<int> course, speed;                ///< Ds and Vs as codes (0700, 4451)
  std::optional<int> wind_direction;               ///< whence, degrees 10 to 360
  bool wind_variable = false;                      ///< dd 99
  bool wind_calm = false;                          ///< dd 00 without a speed, or with speed 0
  std::optional<double> wind_speed;                ///< in the unit that iw tells
  bool wind_in_knots = false;                      ///< iw 3 or 4, or any but 0 and 1
  bool wind_measured = false;                      ///< iw 1 or 4
  std::optional<double> air, dew_point, wet_bulb;  ///< degrees Celsius
  bool wet_bulb_iced = false;
  std::optional<double> sea;            ///< degrees Celsius
  std::optional<int> sea_method;        ///< 0 to 3, as in code table 3850
  std::optional<double> pressure;       ///< hPa at sea level; PPPP from 5000 is below 1000
  std::optional<int> tendency;          ///< a (code table 0200)
  std::optional<double> change;         ///< hPa in three hours, with the sign that a gives;
                                        ///< nothing without a
  std::optional<double> humidity;       ///< percent (LogExtra)
  std::optional<int> visibility;        ///< VV (4377)
  std::optional<int> cloud, low_cloud;  ///< N and Nh (2700)
  std::optional<int> cloud_base;        ///< h (1600)
  std::optional<int> CL, CM, CH;        ///< 0513, 0515, 0509
  std::optional<int> weather;           ///< ww (4677)
  std::optional<int> past_weather1, past_weather2;  ///< W1 and W2 (4561)
  WaveValues measured_waves, wind_waves, swell1, swell2;
  std::optional<int> ice_cause, ice_rate;  ///< Is (1751), Rs (3551)
  std::optional<int> ice_thickness;        ///< EsEs, cm
  std::optional<int> ci, Si, bi, Di, zi;   ///< 0639, 3739, 0439, 0739, 5239
  bool operator==(const Values&) const = default;
};

[[nodiscard]] Values values_of(const Struct_Weather& record);

/// The speed in knots, whatever the unit it was reported in.
[[nodiscard]] std::optional<double> knots_of(const Values& values);
/// And in metres a second.
[[nodiscard]] std::optional<double> metres_per_second_of(const Values& values);

}  // namespace observation
