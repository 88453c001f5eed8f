#pragma once
// The ship's fixed data: what does not change from one observation to the next.

#include <string>

#include "codetables/tables/sea_temperature_figures.h"

/// Kinds of barometer correction card. Card type "1" reduces with height and temperature; card type
/// "2" is one fixed total correction.
enum class CardType { kNotChosen = -1, kHeightAndTemperature = 0, kTotalCorrection = 1 };
enum class LoadingState { kNotChosen = -1, kFullLoad = 0, kInBallast = 1 };
enum class WindInputMethod { kTrueWind = 0, kApparentWind = 1 };
enum class WindSpeedMethod { kBeaufortScale = 0, kAnemometer = 1 };
using codetables::SeaTemperatureMethod;
enum class DewPointMethod { kDirect = 0, kComputed = 1 };
enum class HumidityMethod { kDirect = 0, kComputed = 1 };

/// Barometer correction card, as the port meteorological officer left it. Corrections are signed
/// decimal texts in hPa ("+0.0"), heights whole metres; which of them count depends on the card
/// type.
struct BarometerCard {
  std::string check_date = "yyyy/mm/dd";  ///< "yyyy/mm/dd", 2000/01/01 to today
  std::string check_port;  ///< at most 12 characters when entered, 24 bytes in the file
  CardType type = CardType::kNotChosen;
  std::string total_correction = "+0.0";         ///< card type "2": -50 to 80 hPa
  std::string instrumental_correction = "+0.0";  ///< card type "1": -50 to 50 hPa
  LoadingState loading_state = LoadingState::kNotChosen;
  std::string height_full_load = "0";               ///< 0 to 200 m
  std::string total_correction_full_load = "+0.0";  ///< -50 to 80 hPa
  std::string height_ballast = "0";                 ///< 0 to 200 m, not less than at full load
  std::string total_correction_ballast = "+0.0";    ///< -50 to 80 hPa, not less than at full load

  bool operator==(const BarometerCard&) const = default;
};

/// Everything the ship fixed data dialog edits and FIXDATA.DAT keeps. The defaults are those the
/// dialog shows when there is no file.
struct ShipFixedData {
  std::string call_sign = "*******";  ///< 1-7 of A-Z 0-9; seven asterisks count as not entered
  BarometerCard card;
  WindInputMethod wind_input_method = WindInputMethod::kTrueWind;
  WindSpeedMethod wind_speed_method = WindSpeedMethod::kBeaufortScale;
  SeaTemperatureMethod sea_temperature_method = SeaTemperatureMethod::kIntake;
  DewPointMethod dew_point_method = DewPointMethod::kDirect;
  bool wave_recorder = false;        ///< a wave recorder is fitted
  bool vosclim = false;              ///< registered as a VOSClim ship of WMO
  double temperature_unit = 0.1;     ///< 0.1, 0.5 or 1.0 degree Celsius
  std::string vosclim_cargo_height;  ///< two digits, metres; logbook columns 141-142
  std::string
      vosclim_load_line_departure;  ///< sign and two digits, metres; logbook columns 143-145
  std::string imo_number;           ///< empty or seven digits
  HumidityMethod humidity_method = HumidityMethod::kDirect;
  double humidity_unit = 0.1;    ///< 0.1 or 1.0 percent; the computed method forces 1.0
  bool aws_fitted = false;       ///< an automatic weather station is fitted
  std::string aws_manufacturer;  ///< at most 60 of A-Z 0-9 space . ,

  bool operator==(const ShipFixedData&) const = default;
};
