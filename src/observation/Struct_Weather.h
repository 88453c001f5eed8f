#pragma once
// One surface observation while it is being entered.

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "codetables/tables/quadrant.h"
#include "ship/data/KeyObservationItems.h"
#include "ship/data/ShipFixedData.h"

using codetables::TenthsPosition;

/// Every member named by a code symbol holds that symbol's code figures exactly as they will be
/// printed. Three forms of a missing value are kept apart: empty (not entered), "*" (a masked
/// digit, inside the encoder only) and "/" (entered as not observed). A field holds no padding: the
/// encoders pad.
class Struct_Weather {
 public:
  /// Everything empty but iw, iR, iX, CallSign and ShipFixed, which follow from the ship and its
  /// observation items.
  Struct_Weather(const ShipFixedData& ship, const KeyObservationItems& items);
  virtual ~Struct_Weather() = default;
  Struct_Weather(const Struct_Weather&) = default;
  Struct_Weather& operator=(const Struct_Weather&) = default;
  Struct_Weather(Struct_Weather&&) = default;
  Struct_Weather& operator=(Struct_Weather&&) = default;

  std::string Year, Month;   ///< for the logbook record
  std::string YY, GG;        ///< day and hour, UTC
  std::string iw;            ///< code table 1855
  std::string Qc;            ///< code table 3333
  std::string LoDeg, LaDeg;  ///< whole degrees
  std::string LaMin, LoMin;  ///< minutes 0-59 as entered
  int WorkLatitude = 0;      ///< working values of the position entry
  int WorkLongitude = 0;
  std::string h;   ///< code table 1600
  std::string VV;  ///< code table 4377
  std::string iR, iX;
  std::string N;             ///< code table 2700
  std::string dd, ff, fff;   ///< true wind; ff "99" and fff set from 99 units up
  std::string SnT, TTT;      ///< air temperature, tenths
  std::string SnTd, TdTdTd;  ///< dew point, tenths
  std::string PPPP;          ///< sea-level pressure, tenths of hPa without the thousands
  std::string a, ppp;  ///< tendency; ppp is three figures in tenths of hPa without a point ("052")
  std::string ww, W1, W2;  ///< code tables 4677 and 4561
  std::string Nh, CL, CM, CH;
  std::string gg, GGExact;  ///< exact time; the group exists only when gg is set
  std::string Ds, Vs;       ///< code tables 0700 and 4451
  std::string Ss, TwTwTw;   ///< code table 3850; tenths
  std::string PwaPwa,
      HwaHwa;              ///< waves by instrument; heights are half-metre figures ("03" is 1.5 m)
  std::string PwPw, HwHw;  ///< wind waves
  std::string dw1dw1, dw2dw2;  ///< swell directions, tens of degrees
  std::string Pw1Pw1, Hw1Hw1, Pw2Pw2, Hw2Hw2;
  std::string Is, EsEs, Rs;        ///< ice accretion
  std::string Sw, TbTbTb;          ///< code table 3855; wet bulb, tenths
  std::string ci, Si, bi, Di, zi;  ///< sea ice
  std::string VosClim1, VosClim2, VosClim3, VosClim4, VosClim5;
  std::array<int, 12> Selection{};  ///< working values of the element dialogs
  std::string CallSign;             ///< as in the ship fixed data
  std::string LogText1, LogText2, LogText3;
  std::string ShipFixed;  ///< IMO number
  std::string LogExtra;   ///< relative humidity for the logbook, four figures ("0530")

  // Completeness: true when every field named is non-empty.
  [[nodiscard]] bool has_day_hour_indicator() const;
  [[nodiscard]] bool has_latitude() const;
  [[nodiscard]] bool has_longitude() const;
  [[nodiscard]] bool has_exact_time() const;
  [[nodiscard]] bool has_wet_bulb() const;
  /// True when the ship is not a VOSClim ship; else when both fixed texts and all five VOSClim
  /// fields are set.
  [[nodiscard]] bool has_vosclim(const ShipFixedData& ship) const;

  /// Quadrant and position in tenths (minutes / 6, truncated), or nothing when a part is missing
  /// (empty, or "//").
  [[nodiscard]] std::optional<TenthsPosition> position() const;

  [[nodiscard]] std::string call_sign_for_report() const;   ///< cut to its first 7 characters
  [[nodiscard]] std::string call_sign_for_logbook() const;  ///< padded on the right to 7

  bool operator==(const Struct_Weather& other) const;
};

/// A text field of the record by its name; the table is in record order.
struct WeatherField {
  std::string_view name;
  std::string Struct_Weather::*member;
};
[[nodiscard]] std::span<const WeatherField> weather_fields();
/// The field of that name, or nullptr.
[[nodiscard]] const WeatherField* find_weather_field(std::string_view name);
