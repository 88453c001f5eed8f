#include "observation/values.h"

#include <string_view>

#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "codetables/tables/wind_figures.h"
#include "observation/report_file.h"
#include "text/numbers.h"

namespace observation {
namespace {

// Figures alone: nothing for any missing form, and for one figure that is missing among others.
std::optional<int> number(std::string_view figures) {
  return text::whole_number(figures, 0, 99999);
}

std::optional<double> tenths(std::optional<int> value) {
  if (!value) return std::nullopt;
  return *value / 10.0;
}

// In tens of degrees; calm, variable and confused are no direction.
std::optional<int> direction(std::string_view figures) {
  const auto tens = text::whole_number(figures, 1, 36);
  if (!tens) return std::nullopt;
  return *tens * 10;
}

WaveValues waves(std::string_view from, std::string_view period, std::string_view height) {
  WaveValues values;
  constexpr int kLongestPeriod = 98;  // 99 is a confused sea
  values.direction = direction(from);
  values.period = text::whole_number(period, 0, kLongestPeriod);
  if (const auto half_metres = number(height)) values.height = *half_metres / 2.0;
  return values;
}

std::optional<int> hour_of(const Struct_Weather& record) {
  constexpr int kFirstYear = 2000;
  if (!has_valid_date(record) || text::leading_int(record.Year) < kFirstYear) return std::nullopt;
  return hours_since_2000({record.Year, record.Month, record.YY, record.GG});
}

void add_wind(Values& values, const Struct_Weather& record) {
  values.wind_in_knots = !codetables::is_metres_per_second(record.iw);
  values.wind_measured = record.iw == "1" || record.iw == "4";
  values.wind_direction = direction(record.dd);
  values.wind_variable = record.dd == "99";
  if (const auto speed = number(codetables::speed_shown(record.ff, record.fff)))
    values.wind_speed = *speed;
  values.wind_calm = record.dd == "00" && values.wind_speed.value_or(0.0) == 0.0;
}

void add_pressure(Values& values, const Struct_Weather& record) {
  if (const auto pppp = number(record.PPPP)) {
    constexpr int kBelowThousand = 5000;
    constexpr double kThousand = 1000.0;
    values.pressure = *pppp / 10.0 + (*pppp < kBelowThousand ? kThousand : 0.0);
  }
  values.tendency = number(record.a);
  constexpr int kLastThatRises = 4;
  if (const auto ppp = number(record.ppp); ppp && values.tendency)
    values.change = (*values.tendency > kLastThatRises ? -*ppp : *ppp) / 10.0;
}

void add_temperatures(Values& values, const Struct_Weather& record) {
  values.air = tenths(codetables::signed_tenths(record.SnT, record.TTT));
  values.dew_point = tenths(codetables::signed_tenths(record.SnTd, record.TdTdTd));
  // A wet bulb that was computed (5 to 7) has its sign, and its ice, as a measured one (0 to 2).
  const std::string Sw = text::whole_number(record.Sw, 5, 7)
                             ? text::format_int(text::leading_int(record.Sw) - 5)
                             : record.Sw;
  values.wet_bulb = tenths(
      codetables::signed_tenths(codetables::wet_bulb_value_sign(Sw, record.TbTbTb), record.TbTbTb));
  values.wet_bulb_iced = codetables::has_iced_bulb(Sw, record.TbTbTb);
  if (const auto method = codetables::sea_temperature_method(record.Ss)) {
    values.sea_method = static_cast<int>(*method);
    if (const auto sea = number(record.TwTwTw))
      values.sea = (codetables::is_below_zero(record.Ss) ? -*sea : *sea) / 10.0;
  }
  values.humidity = tenths(number(record.LogExtra));
}

}  // namespace

Values values_of(const Struct_Weather& record) {
  Values values;
  values.hour = hour_of(record);
  values.actual_hour = number(record.GGExact);
  values.actual_minute = number(record.gg);
  if (const auto at = record.position()) {
    values.latitude = codetables::signed_latitude(*at) / 10.0;
    values.longitude = codetables::signed_longitude(*at) / 10.0;
  }
  values.course = number(record.Ds);
  values.speed = number(record.Vs);
  add_wind(values, record);
  add_temperatures(values, record);
  add_pressure(values, record);
  values.visibility = number(record.VV);
  values.cloud = number(record.N);
  values.low_cloud = number(record.Nh);
  values.cloud_base = number(record.h);
  values.CL = number(record.CL);
  values.CM = number(record.CM);
  values.CH = number(record.CH);
  values.weather = number(record.ww);
  values.past_weather1 = number(record.W1);
  values.past_weather2 = number(record.W2);
  values.measured_waves = waves({}, record.PwaPwa, record.HwaHwa);
  values.wind_waves = waves({}, record.PwPw, record.HwHw);
  values.swell1 = waves(record.dw1dw1, record.Pw1Pw1, record.Hw1Hw1);
  values.swell2 = waves(record.dw2dw2, record.Pw2Pw2, record.Hw2Hw2);
  values.ice_cause = number(record.Is);
  values.ice_rate = number(record.Rs);
  values.ice_thickness = number(record.EsEs);
  values.ci = number(record.ci);
  values.Si = number(record.Si);
  values.bi = number(record.bi);
  values.Di = number(record.Di);
  values.zi = number(record.zi);
  return values;
}

std::optional<double> knots_of(const Values& values) {
  if (!values.wind_speed) return std::nullopt;
  if (values.wind_in_knots) return values.wind_speed;
  return codetables::knots_of_metres_a_second(*values.wind_speed);
}

std::optional<double> metres_per_second_of(const Values& values) {
  if (!values.wind_speed) return std::nullopt;
  if (!values.wind_in_knots) return values.wind_speed;
  return codetables::metres_a_second_of({*values.wind_speed});
}

}  // namespace observation
