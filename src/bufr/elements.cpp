#include "bufr/elements.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "codetables/tables/quadrant.h"
#include "observation/report_groups.h"
#include "platform/calendar.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace bufr {
namespace {

constexpr double kFreezingPoint = 273.15;  // kelvin
constexpr double kPascalsInAHectopascal = 100.0;
constexpr double kMetresInAMile = 1852.0;
constexpr double kSecondsInAnHour = 3600.0;

constexpr Reading kMissing{};
constexpr Reading kOdd{std::nullopt, true};

// Half upward, as a person rounds. What is a half in decimals may be a hair less in binary.
double rounded(double value, int decimals) {
  constexpr double kHair = 1e-6;
  const double scale = std::pow(10.0, decimals);
  return std::floor(value * scale + 0.5 + kHair) / scale;
}

bool is_missing(std::string_view field) {
  return field.find_first_not_of("/* ") == std::string_view::npos;
}

bool is_solidi(std::string_view field) {
  return !field.empty() && field.find_first_not_of('/') == std::string_view::npos;
}

/// A code figure that goes into the message as it is, with `offset` added.
Reading coded(std::optional<int> code, int highest, int offset = 0) {
  if (!code) return kMissing;
  if (*code > highest) return kOdd;
  return {static_cast<double>(*code + offset)};
}

/// The line of a table that a code figure chooses.
template <std::size_t N>
Reading looked_up(std::optional<int> code, const double (&table)[N]) {
  if (!code) return kMissing;
  if (*code < 0 || std::cmp_greater_equal(*code, N)) return kOdd;
  return {table[*code]};
}

Reading times(std::optional<double> value, double factor, int decimals) {
  if (!value) return kMissing;
  return {rounded(*value * factor, decimals)};
}

Reading pascals(std::optional<double> hectopascals) {
  return times(hectopascals, kPascalsInAHectopascal, -1);
}

Reading kelvins(std::optional<double> celsius) {
  if (!celsius) return kMissing;
  return {rounded(*celsius + kFreezingPoint, 2)};
}

// Eighths of a circle, north as 360 (code tables 0700 and 0739).
constexpr int kDegreesInAnEighth = 45;

// --- when ---------------------------------------------------------------------------------------

struct Moment {
  int year, month, day, hour, minute;
};

bool has_actual_time(const observation::Values& values) {
  constexpr int kLastHour = 23;
  constexpr int kLastMinute = 59;
  return values.actual_hour && values.actual_minute && *values.actual_hour <= kLastHour &&
         *values.actual_minute <= kLastMinute;
}

/// When it was observed: the actual time when it is there, else the standard one.
Moment moment_of(const Source& source) {
  const Struct_Weather& record = source.record;
  Moment at{text::leading_int(record.Year), text::leading_int(record.Month),
            text::leading_int(record.YY), text::leading_int(record.GG), 0};
  if (!has_actual_time(source.values)) return at;
  // The date is that of the standard hour; 23:50 for 00 UTC was the day before.
  constexpr int kHalfADay = 12;
  const int later = *source.values.actual_hour - at.hour;
  at.hour = *source.values.actual_hour;
  at.minute = *source.values.actual_minute;
  if (later > kHalfADay && --at.day < 1) {
    if (--at.month < 1) {
      at.month = 12;
      --at.year;
    }
    at.day = platform::days_in_month(at.year, at.month);
  } else if (later < -kHalfADay && ++at.day > platform::days_in_month(at.year, at.month)) {
    at.day = 1;
    if (++at.month > 12) {
      at.month = 1;
      ++at.year;
    }
  }
  return at;
}

// Said once, beside the minute: a time that is not one is no time, and the standard one stands.
bool is_odd_time(const Source& source) {
  return source.values.actual_hour && source.values.actual_minute &&
         !has_actual_time(source.values);
}

// --- where --------------------------------------------------------------------------------------

constexpr double kPole = 90.0;
constexpr double kHalfCircle = 180.0;
constexpr double kMinutes = 60.0;

// One half of a position is none, so both are missing when one is.
Reading position(const Source& source, bool latitude) {
  const Struct_Weather& record = source.record;
  if (!record.position()) return kMissing;
  const auto degrees = [](const std::string& whole, const std::string& minutes) {
    return text::leading_int(whole) + text::leading_int(minutes) / kMinutes;
  };
  constexpr int kLastMinute = 59;
  const double north = degrees(record.LaDeg, record.LaMin);
  const double east = degrees(record.LoDeg, record.LoMin);
  if (codetables::kQuadrants.find(record.Qc) == std::string_view::npos || record.Qc.size() != 1 ||
      text::leading_int(record.LaMin) > kLastMinute ||
      text::leading_int(record.LoMin) > kLastMinute || north > kPole || east > kHalfCircle)
    return kOdd;
  const bool minus = latitude ? codetables::north_south_of(record.Qc) == 1
                              : codetables::east_west_of(record.Qc) == 1;
  const double value = rounded(latitude ? north : east, 2);
  // Nought has no sign.
  return {minus && value > 0.0 ? -value : value};
}

Reading course(const Source& source) {
  constexpr int kUnknown = 9;
  if (source.values.course == kUnknown) return kMissing;
  const Reading eighth = coded(source.values.course, kUnknown);
  return eighth.value ? Reading{*eighth.value * kDegreesInAnEighth} : eighth;
}

// The middle of each class of code table 4451 in knots; of the one above 40 its lower limit.
Reading speed(const Source& source) {
  constexpr double kKnots[] = {0, 3, 8, 13, 18, 23, 28, 33, 38, 40};
  const Reading knots = looked_up(source.values.speed, kKnots);
  return knots.value ? times(knots.value, kMetresInAMile / kSecondsInAnHour, 0) : knots;
}

// --- the station --------------------------------------------------------------------------------

// iX (code table 1860): 1 to 3 a manned station, 4 to 7 an automatic one.
constexpr int kLastManned = 3;
constexpr int kLastAutomatic = 7;

std::optional<int> weather_indicator(const Source& source) {
  return text::whole_number(source.record.iX, 1, kLastAutomatic);
}

Reading station_type(const Source& source) {
  constexpr double kAutomatic = 0;
  constexpr double kManned = 1;
  const auto iX = weather_indicator(source);
  if (!iX) return Reading{std::nullopt, !is_missing(source.record.iX)};
  return {*iX <= kLastManned ? kManned : kAutomatic};
}

// A height of nought is what the card holds before anyone entered one.
Reading barometer_height(const Source& source) {
  const BarometerCard& card = source.ship.card;
  if (card.type != CardType::kHeightAndTemperature) return kMissing;
  const bool ballast = card.loading_state == LoadingState::kInBallast;
  if (!ballast && card.loading_state != LoadingState::kFullLoad) return kMissing;
  constexpr int kHighest = 200;
  const auto metres =
      text::whole_number(ballast ? card.height_ballast : card.height_full_load, 1, kHighest);
  return metres ? Reading{static_cast<double>(*metres)} : kMissing;
}

// --- pressure and temperature -------------------------------------------------------------------

constexpr int kLastTendency = 8;

Reading change(const Source& source) {
  // The sign is the tendency's; steady with an amount has none.
  constexpr int kSteady = 4;
  const observation::Values& values = source.values;
  if (values.tendency > kLastTendency) return kMissing;
  if (values.tendency == kSteady && values.change != 0.0) return kMissing;
  return pascals(source.values.change);
}

/// Sign and type of the wet bulb by code table 3855.
struct WetBulb {
  bool known = false;
  bool below_zero = false;
  double method = 0;  ///< 0 02 039
};

WetBulb wet_bulb_type(std::string_view Sw) {
  if (Sw.size() != 1) return {};
  switch (Sw.front()) {
    case '0':
      return {true, false, 0};
    case '1':
      return {true, true, 0};
    case '2':
      return {true, true, 1};
    case '5':
      return {true, false, 2};
    case '6':
      return {true, true, 2};
    case '7':
      return {true, true, 3};
    default:
      return {};
  }
}

std::optional<int> wet_bulb_tenths(const Source& source) {
  constexpr int kHighest = 999;
  return text::whole_number(source.record.TbTbTb, 0, kHighest);
}

Reading wet_bulb(const Source& source) {
  const auto tenths = wet_bulb_tenths(source);
  if (!tenths) return kMissing;
  const WetBulb type = wet_bulb_type(source.record.Sw);
  if (!type.known) return Reading{std::nullopt, !is_missing(source.record.Sw)};
  return kelvins((type.below_zero ? -*tenths : *tenths) / 10.0);
}

// A method tells how a temperature was taken that is there.
Reading wet_bulb_method(const Source& source) {
  const WetBulb type = wet_bulb_type(source.record.Sw);
  if (!type.known || !wet_bulb_tenths(source)) return kMissing;
  return {type.method};
}

// Signs by code table 3845. Behind any other, 9 is one, stand figures of something else.
Reading signed_celsius(const std::string& sign, std::optional<double> celsius) {
  if (sign == "0" || sign == "1") return kelvins(celsius);
  return {std::nullopt, !is_missing(sign)};
}

constexpr double kHighestSea = 327.66;  // kelvin; what the element's bits hold

Reading sea(const Source& source) {
  if (source.values.sea) return kelvins(source.values.sea);
  return {std::nullopt, !is_missing(source.record.Ss) && !source.values.sea_method};
}

Reading sea_method(const Source& source) {
  constexpr double kMethods[] = {0, 1, 2, 14};  // intake, bucket, hull contact sensor, other
  const Reading kelvin = sea(source);
  if (!kelvin.value || *kelvin.value > kHighestSea) return kMissing;
  return looked_up(source.values.sea_method, kMethods);
}

// --- visibility, cloud and weather --------------------------------------------------------------

// The distance that the code figure stands for, which is the smallest of its class.
Reading visibility(const Source& source) {
  const auto code = source.values.visibility;
  if (!code) return kMissing;
  constexpr int kHundreds = 50;    // 00 to 50: hundreds of metres
  constexpr int kKilometres = 56;  // 56 to 80: 6 to 30 km
  constexpr int kFives = 80;       // 81 to 89: 35 to 70 km by fives, then above 70
  constexpr int kBeyondSeventy = 88;
  constexpr int kAtSea = 90;
  if (*code <= kHundreds) return {*code * 100.0};
  if (*code < kKilometres) return kOdd;
  if (*code <= kFives) return {(*code - kHundreds) * 1000.0};
  if (*code < kAtSea) return {30000.0 + (std::min(*code, kBeyondSeventy) - kFives) * 5000.0};
  constexpr double kSea[] = {0, 50, 200, 500, 1000, 2000, 4000, 10000, 20000, 50000};
  return looked_up(*code - kAtSea, kSea);
}

constexpr int kClear = 0;
constexpr int kObscured = 9;

// Oktas in percent, the halves upward; 113 is a sky that cannot be seen.
Reading cover(const Source& source) {
  constexpr double kPercent[] = {0, 13, 25, 38, 50, 63, 75, 88, 100, 113};
  return looked_up(source.values.cloud, kPercent);
}

Reading low_cloud_amount(const Source& source) {
  if (source.values.cloud == kClear || source.values.cloud == kObscured)
    return coded(source.values.cloud, kObscured);
  return coded(source.values.low_cloud, kObscured);
}

// Which clouds the amount and the height are of.
Reading cloud_significance(const Source& source) {
  constexpr double kByRules = 0;
  constexpr double kCeiling = 5;
  constexpr double kLow = 7;
  constexpr double kMiddle = 8;
  constexpr double kNotApplicable = 62;
  const observation::Values& values = source.values;
  if (values.cloud == kObscured) return {kCeiling};
  if (values.cloud == kClear) return {kNotApplicable};
  if (!values.CL) return kMissing;
  if (*values.CL > 0) return {kLow};
  if (!values.CM) return kMissing;
  if (*values.CM > 0) return {kMiddle};
  if (!values.CH || *values.CH == 0) return kMissing;
  return {kByRules};
}

Reading cloud_base(const Source& source) {
  constexpr double kLowerLimits[] = {0, 50, 100, 200, 300, 600, 1000, 1500, 2000, 2500};
  // Without a cloud there is no base; 9 says that as well.
  if (source.values.cloud == kClear) return kMissing;
  return looked_up(source.values.cloud_base, kLowerLimits);
}

/// A type of cloud: its table's figure behind `none`, the figure of no such clouds. A solidus
/// stands for clouds that cannot be seen where the sky was looked at, else for nobody's having
/// looked.
Reading cloud_type(const Source& source, const std::string& field, std::optional<int> type,
                   int none, double invisible) {
  const observation::Values& values = source.values;
  if (type) return coded(type, 9, none);
  if (values.cloud == kClear && is_missing(field)) return {static_cast<double>(none)};
  if (values.cloud == kObscured && is_missing(field)) return {invisible};
  const bool looked = values.low_cloud || values.CL || values.CM || values.CH;
  return looked && is_solidi(field) ? Reading{invisible} : kMissing;
}

bool is_automatic_code(const Source& source) {
  constexpr int kAutomaticTables = 7;
  return weather_indicator(source) == kAutomaticTables;
}

Reading present_weather(const Source& source) {
  constexpr int kLast = 99;
  constexpr int kFirstOfAutomatic = 100;
  const Struct_Weather& record = source.record;
  if (source.values.weather)
    return coded(source.values.weather, kLast, is_automatic_code(source) ? kFirstOfAutomatic : 0);
  // The indicator says why the group is not there.
  constexpr double kNothingSignificant = 508;
  constexpr double kNotObserved = 509;
  if (!is_missing(record.ww) || !is_missing(record.W1) || !is_missing(record.W2)) return kMissing;
  const auto iX = weather_indicator(source);
  if (iX == 2 || iX == 5) return {kNothingSignificant};
  if (iX == 3 || iX == 6) return {kNotObserved};
  return kMissing;
}

Reading past_weather(const Source& source, std::optional<int> figure) {
  constexpr int kFirstOfAutomatic = 10;
  return coded(figure, 9, is_automatic_code(source) ? kFirstOfAutomatic : 0);
}

// Six hours at the main standard times, three at those between; at any other hour the report does
// not say whether it is one or two.
Reading past_hours(const Source& source) {
  if (!source.values.past_weather1 && !source.values.past_weather2) return kMissing;
  const int hour = text::leading_int(source.record.GG);
  if (hour % 6 == 0) return {-6.0};
  if (hour % 3 == 0) return {-3.0};
  return kMissing;
}

// --- ice ----------------------------------------------------------------------------------------

// Flags: 8 spray, 4 fog, 2 rain (code table 1751).
Reading ice_cause(const Source& source) {
  constexpr double kFlags[] = {8, 4, 12, 2, 10};
  if (!source.values.ice_cause) return kMissing;
  return looked_up(*source.values.ice_cause - 1, kFlags);
}

/// A solidus in a group that says something is "unable to report"; in one that says nothing at all,
/// or none, it is a value nobody has.
Reading sea_ice(const Source& source, const std::string& field, std::optional<int> code,
                double unable) {
  const observation::Values& values = source.values;
  if (code) return coded(code, 9);
  const bool reported = values.ci || values.Si || values.bi || values.Di || values.zi;
  return reported && is_solidi(field) ? Reading{unable} : kMissing;
}

// 0 is a lead along the shore and 9 a ship in the ice: neither is a bearing.
Reading ice_edge(const Source& source) {
  const auto eighth = source.values.Di;
  if (eighth == 0 || eighth == 9) return kMissing;
  const Reading code = coded(eighth, 9);
  return code.value ? Reading{*code.value * kDegreesInAnEighth} : code;
}

// --- waves --------------------------------------------------------------------------------------

// A period of 99 is a confused sea, which has none.
Reading period(const std::string& figures, std::optional<int> seconds) {
  if (seconds) return {static_cast<double>(*seconds)};
  return {std::nullopt, text::is_all_digits(figures) && figures != "99"};
}

Reading height(std::optional<double> metres) {
  return metres ? Reading{rounded(*metres, 1)} : kMissing;
}

// 99 is a swell from everywhere; "00" as the second says that there is only one.
Reading swell_direction(const std::string& figures, std::optional<int> degrees, bool second) {
  if (degrees) return {static_cast<double>(*degrees)};
  const bool none = figures == "99" || (second && figures == "00");
  return {std::nullopt, text::is_all_digits(figures) && !none};
}

// "00" for the first swell, and none for the second, says that the sea has no swell.
bool is_no_swell(const Source& source) {
  const std::string& second = source.record.dw2dw2;
  return source.record.dw1dw1 == "00" && (second == "00" || is_missing(second));
}

// --- wind ---------------------------------------------------------------------------------------

/// The indicator says the unit of the speed (code table 1855).
bool has_unit(const Source& source) {
  const std::string& iw = source.record.iw;
  return iw == "0" || iw == "1" || iw == "3" || iw == "4";
}

Reading wind_speed(const Source& source) {
  const Struct_Weather& record = source.record;
  constexpr std::string_view kInThreeFigures = "99";
  if (is_missing(record.ff) && record.fff.empty()) return kMissing;
  // From 99 units on the speed has three figures, and ff says so; anything else contradicts itself.
  const bool three = record.ff == kInThreeFigures;
  constexpr int kFirst = 99;
  constexpr int kLast = 999;
  if (three != text::whole_number(record.fff, kFirst, kLast).has_value() ||
      (!three && !is_missing(record.fff)))
    return kOdd;
  if (!has_unit(source)) return {std::nullopt, !is_missing(record.iw)};
  const auto metres_per_second = observation::metres_per_second_of(source.values);
  return metres_per_second ? Reading{rounded(*metres_per_second, 1)} : kMissing;
}

Reading wind_direction(const Source& source) {
  const observation::Values& values = source.values;
  if (values.wind_direction) return {static_cast<double>(*values.wind_direction)};
  // A variable wind has no direction; the nought of calm means none but beside a speed of nought.
  if (values.wind_variable) return kMissing;
  if (values.wind_calm) return wind_speed(source).value ? Reading{0.0} : kMissing;
  return {std::nullopt, text::is_all_digits(source.record.dd)};
}

bool has_wind(const Source& source) {
  return wind_direction(source).value || wind_speed(source).value;
}

Reading with_wind(const Source& source, double value) {
  return has_wind(source) ? Reading{value} : kMissing;
}

// Flags: 8 instruments, 4 knots (code table 1855).
Reading wind_instruments(const Source& source) {
  if (!has_unit(source)) return {std::nullopt, !is_missing(source.record.iw)};
  return with_wind(source, (source.values.wind_measured ? 8.0 : 0.0) +
                               (source.values.wind_in_knots ? 4.0 : 0.0));
}

// ------------------------------------------------------------------------------------------------

using S = const Source&;

constexpr Element kElements[] = {
    {"001012", "#1#directionOfMotionOfMovingObservingPlatform", "Ds", 0, 360, course},
    {"001013", "#1#movingObservingPlatformSpeed", "Vs", 0, 1022, speed},
    {"002001", "#1#stationType", "iX", 0, 2, station_type},
    {"004001", "#1#year", "Year", 0, 4094,
     [](S s) { return Reading{static_cast<double>(moment_of(s).year)}; }},
    {"004002", "#1#month", "Month", 1, 12,
     [](S s) { return Reading{static_cast<double>(moment_of(s).month)}; }},
    {"004003", "#1#day", "YY", 1, 31,
     [](S s) { return Reading{static_cast<double>(moment_of(s).day)}; }},
    {"004004", "#1#hour", "GG GGExact", 0, 23,
     [](S s) { return Reading{static_cast<double>(moment_of(s).hour)}; }},
    {"004005", "#1#minute", "GGExact gg", 0, 59,
     [](S s) {
       return Reading{static_cast<double>(moment_of(s).minute), is_odd_time(s)};
     }},
    {"005002", "#1#latitude", "Qc LaDeg LaMin", -90, 90, [](S s) { return position(s, true); }},
    {"006002", "#1#longitude", "Qc LoDeg LoMin", -180, 180, [](S s) { return position(s, false); }},
    {"007031", "#1#heightOfBarometerAboveMeanSeaLevel", "", 1, 200, barometer_height},
    {"010051", "#1#pressureReducedToMeanSeaLevel", "PPPP", 10, 163820,
     [](S s) { return pascals(s.values.pressure); }},
    {"010061", "#1#3HourPressureChange", "a ppp", -5000, 5220, change},
    {"010063", "#1#characteristicOfPressureTendency", "a", 0, 8,
     [](S s) { return coded(s.values.tendency, kLastTendency); }},
    {"012101", "#1#airTemperature", "SnT TTT", 0, 655.34,
     [](S s) { return signed_celsius(s.record.SnT, s.values.air); }},
    {"002039", "#1#methodOfWetBulbTemperatureMeasurement", "Sw", 0, 3, wet_bulb_method},
    {"012102", "#1#wetBulbTemperature", "Sw TbTbTb", 0, 655.34, wet_bulb},
    {"012103", "#1#dewpointTemperature", "SnTd TdTdTd", 0, 655.34,
     [](S s) { return signed_celsius(s.record.SnTd, s.values.dew_point); }},
    {"013003", "#1#relativeHumidity", "LogExtra", 0, 100,
     [](S s) { return times(s.values.humidity, 1.0, 0); }},
    {"020001", "#1#horizontalVisibility", "VV", 0, 81900, visibility},
    {"020010", "#1#cloudCoverTotal", "N", 0, 113, cover},
    {"008002", "#1#verticalSignificanceSurfaceObservations", "N CL CM CH", 0, 62,
     cloud_significance},
    {"020011", "#1#cloudAmount", "N Nh", 0, 9, low_cloud_amount},
    {"020013", "#1#heightOfBaseOfCloud", "h", 0, 2500, cloud_base},
    {"020012", "#1#cloudType", "CL", 30, 62,
     [](S s) { return cloud_type(s, s.record.CL, s.values.CL, 30, 62); }},
    {"020012", "#2#cloudType", "CM", 20, 61,
     [](S s) { return cloud_type(s, s.record.CM, s.values.CM, 20, 61); }},
    {"020012", "#3#cloudType", "CH", 10, 60,
     [](S s) { return cloud_type(s, s.record.CH, s.values.CH, 10, 60); }},
    {"020031", "#1#iceDepositThickness", "EsEs", 0, 1.26,
     [](S s) { return times(s.values.ice_thickness, 0.01, 2); }},
    {"020032", "#1#rateOfIceAccretionEstimated", "Rs", 0, 4,
     [](S s) { return coded(s.values.ice_rate, 4); }},
    {"020033", "#1#causeOfIceAccretion", "Is", 2, 12, ice_cause},
    {"020034", "#1#seaIceConcentration", "ci", 0, 14,
     [](S s) { return sea_ice(s, s.record.ci, s.values.ci, 14); }},
    {"020035", "#1#amountAndTypeOfIce", "bi", 0, 14,
     [](S s) { return sea_ice(s, s.record.bi, s.values.bi, 14); }},
    {"020036", "#1#iceSituation", "zi", 0, 30,
     [](S s) { return sea_ice(s, s.record.zi, s.values.zi, 30); }},
    {"020037", "#1#iceDevelopment", "Si", 0, 30,
     [](S s) { return sea_ice(s, s.record.Si, s.values.Si, 30); }},
    {"020038", "#1#iceEdgeBearing", "Di", 45, 360, ice_edge},
    {"002038", "#1#methodOfWaterTemperatureAndOrOrSalinityMeasurement", "Ss", 0, 14, sea_method},
    {"022043", "#1#oceanographicWaterTemperature", "Ss TwTwTw", 0, kHighestSea, sea},
    {"022011", "#1#periodOfWaves", "PwaPwa", 0, 62,
     [](S s) { return period(s.record.PwaPwa, s.values.measured_waves.period); }},
    {"022021", "#1#heightOfWaves", "HwaHwa", 0, 102.2,
     [](S s) { return height(s.values.measured_waves.height); }},
    {"022012", "#1#periodOfWindWaves", "PwPw", 0, 62,
     [](S s) { return period(s.record.PwPw, s.values.wind_waves.period); }},
    {"022022", "#1#heightOfWindWaves", "HwHw", 0, 102.2,
     [](S s) { return height(s.values.wind_waves.height); }},
    {"022003", "#1#swellWavesDirection", "dw1dw1", 0, 360,
     [](S s) {
       return is_no_swell(s) ? Reading{0.0}
                             : swell_direction(s.record.dw1dw1, s.values.swell1.direction, false);
     }},
    {"022013", "#1#periodOfSwellWaves", "dw1dw1 Pw1Pw1", 0, 62,
     [](S s) {
       return is_no_swell(s) ? Reading{0.0} : period(s.record.Pw1Pw1, s.values.swell1.period);
     }},
    {"022023", "#1#heightOfSwellWaves", "dw1dw1 Hw1Hw1", 0, 102.2,
     [](S s) { return is_no_swell(s) ? Reading{0.0} : height(s.values.swell1.height); }},
    {"022003", "#2#swellWavesDirection", "dw2dw2", 10, 360,
     [](S s) { return swell_direction(s.record.dw2dw2, s.values.swell2.direction, true); }},
    {"022013", "#2#periodOfSwellWaves", "Pw2Pw2", 0, 62,
     [](S s) { return period(s.record.Pw2Pw2, s.values.swell2.period); }},
    {"022023", "#2#heightOfSwellWaves", "Hw2Hw2", 0, 102.2,
     [](S s) { return height(s.values.swell2.height); }},
    {"020003", "#1#presentWeather", "iX ww", 0, 509, present_weather},
    {"004024", "#1#timePeriod", "GG W1 W2", -6, -3, past_hours},
    {"020004", "#1#pastWeather1", "iX W1", 0, 19,
     [](S s) { return past_weather(s, s.values.past_weather1); }},
    {"020005", "#1#pastWeather2", "iX W2", 0, 19,
     [](S s) { return past_weather(s, s.values.past_weather2); }},
    {"002002", "#1#instrumentationForWindMeasurement", "iw", 0, 12, wind_instruments},
    // Averaged over the last ten minutes.
    {"008021", "#1#timeSignificance", "", 2, 2, [](S s) { return with_wind(s, 2); }},
    {"004025", "#8#timePeriod", "", -10, -10, [](S s) { return with_wind(s, -10); }},
    {"011001", "#1#windDirection", "dd", 0, 360, wind_direction},
    {"011002", "#1#windSpeed", "iw ff fff", 0, 409.4, wind_speed},
};

/// Calls `use` with the name and the text of each field.
template <class Use>
void for_each_field(const Element& element, const Struct_Weather& record, Use use) {
  std::string_view names = element.fields;
  while (!names.empty()) {
    const auto blank = std::min(names.find(' '), names.size());
    const std::string_view name = names.substr(0, blank);
    if (const WeatherField* field = find_weather_field(name)) use(name, record.*field->member);
    names.remove_prefix(std::min(blank + 1, names.size()));
  }
}

std::string shown_fields(const Element& element, const Struct_Weather& record) {
  std::string shown;
  for_each_field(element, record, [&](std::string_view name, const std::string& text) {
    if (!shown.empty()) shown.push_back(' ');
    shown.append(name).append("=").append(text);
  });
  return shown;
}

/// How many figures a field has where it has any; nothing for a field that is no element's.
std::optional<std::size_t> figures_of(const WeatherField& field) {
  constexpr std::size_t kHumidity = 4;
  if (field.member == &Struct_Weather::LogExtra) return kHumidity;
  if (field.member == &Struct_Weather::iR) return std::nullopt;
  for (const observation::GroupRow& row : observation::group_rows())
    for (const observation::Symbol& symbol : row.used())
      if (symbol.field == field.member) return symbol.width;
  return std::nullopt;
}

bool has_its_figures(const WeatherField& field, const std::string& text, std::size_t figures) {
  if (is_missing(text)) return true;
  if (text.find_first_not_of("0123456789/*") != std::string::npos) return false;
  // Minutes are entered, and only their tenth of a degree is sent; "5" and "05" are the same.
  const bool minutes =
      field.member == &Struct_Weather::LaMin || field.member == &Struct_Weather::LoMin;
  return minutes ? text.size() <= 2 : text.size() == figures;
}

/// The record without fields that hold too few or too many figures, or anything else: "7" for an
/// air temperature may be 0.7 or 7.0 degrees. Each is named in `odd`.
Struct_Weather with_whole_figures(const Struct_Weather& record, std::vector<std::string>& odd) {
  static const auto kFields = [] {
    std::vector<std::pair<const WeatherField*, std::size_t>> fields;
    for (const WeatherField& field : weather_fields())
      if (const auto figures = figures_of(field)) fields.emplace_back(&field, *figures);
    return fields;
  }();
  Struct_Weather result = record;
  for (const auto& [field, figures] : kFields) {
    std::string& text = result.*field->member;
    if (has_its_figures(*field, text, figures)) continue;
    odd.push_back(std::string(field->name).append("=").append(text));
    text.clear();
  }
  return result;
}

// A name that is not of the international alphabet, or that the element is too short for, would be
// another ship's.
bool fits_call_sign(std::string_view name) {
  constexpr std::size_t kLongest = 9;
  return name.size() <= kLongest &&
         std::all_of(name.begin(), name.end(), [](char c) { return c > ' ' && c < '\x7f'; });
}

}  // namespace

std::span<const Element> elements() {
  return kElements;
}

Contents contents_of(const Struct_Weather& record, const ShipFixedData& ship) {
  Contents contents{{},
                    text::leading_int(record.Year),
                    text::leading_int(record.Month),
                    text::leading_int(record.YY),
                    text::leading_int(record.GG),
                    {},
                    {}};
  // Asterisks alone are a ship whose call sign nobody entered.
  if (record.CallSign.find_first_not_of('*') != std::string::npos) {
    if (fits_call_sign(record.CallSign))
      contents.call_sign = record.CallSign;
    else
      contents.odd.push_back("CallSign=" + record.CallSign);
  }
  const Struct_Weather whole = with_whole_figures(record, contents.odd);
  const observation::Values values = observation::values_of(whole);
  const Source source{whole, values, ship};
  for (const Element& element : kElements) {
    const Reading reading = element.read(source);
    const bool fits =
        reading.value && *reading.value >= element.lowest && *reading.value <= element.highest;
    if (fits) contents.values.push_back({&element, *reading.value});
    if (reading.odd || (reading.value && !fits))
      contents.odd.push_back(shown_fields(element, whole));
  }
  return contents;
}

}  // namespace bufr
