#include "elements/form/cross_rules.h"

#include "codetables/tables/pressure_tendency.h"
#include "codetables/tables/temperature_figures.h"
#include "codetables/tables/wind_figures.h"
#include "elements/formulas/true_wind_rules.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

namespace id = text::id;
using W = Struct_Weather;

bool is_zero(const std::string& figures) {
  return figures == "0";
}

// 1 to 9: 9 is a sky that cannot be seen, which is not "no clouds" either.
bool is_some_cloud(const std::string& figures) {
  return text::is_all_digits(figures) && !is_zero(figures);
}

bool steady_with_amount(const W& r) {
  return text::is_all_digits(r.ppp) &&
         codetables::check_tendency(r.a, codetables::tendency_shown(r.ppp)) ==
             codetables::TendencyCheck::kSteadyWithAmount;
}

bool lowest_above_total(const W& r) {
  return text::is_all_digits(r.N) && text::is_all_digits(r.Nh) &&
         text::leading_int(r.Nh) > text::leading_int(r.N);
}

bool cover_without_types(const W& r) {
  return is_some_cloud(r.N) && is_zero(r.CL) && is_zero(r.CM) && is_zero(r.CH);
}

bool types_without_amount(const W& r) {
  return is_zero(r.Nh) && (is_some_cloud(r.CL) || is_some_cloud(r.CM));
}

bool amount_without_types(const W& r) {
  return is_zero(r.CL) && is_zero(r.CM) && is_some_cloud(r.Nh);
}

// The record's speed is in whole units; fff holds one of 99 and more.
TrueWindRule wind_rule(const W& r) {
  const std::string& speed = codetables::speed_shown(r.ff, r.fff);
  // Half a wind is not judged yet: the rules would take an empty direction for a real one.
  if (r.dd.empty() || speed.empty()) return TrueWindRule::kKept;
  return check_true_wind(r.dd, speed);
}

bool calm_with_speed(const W& r) {
  return wind_rule(r) == TrueWindRule::kCalmWithSpeed;
}
bool direction_without_speed(const W& r) {
  return wind_rule(r) == TrueWindRule::kDirectionWithoutSpeed;
}

bool above_air(std::optional<int> other, const W& r) {
  const auto air = codetables::signed_tenths(r.SnT, r.TTT);
  return air && other && *other > *air;
}

bool dew_point_above_air(const W& r) {
  return above_air(codetables::signed_tenths(r.SnTd, r.TdTdTd), r);
}
bool wet_bulb_above_air(const W& r) {
  return above_air(
      codetables::signed_tenths(codetables::wet_bulb_value_sign(r.Sw, r.TbTbTb), r.TbTbTb), r);
}

// Wind waves, swells and the wave recorder alike.
template <std::string W::*period, std::string W::*height>
bool no_waves_with_height(const W& r) {
  return r.*period == "00" && text::is_all_digits(r.*height) && text::leading_int(r.*height) != 0;
}

// The group of the actual time would go out with two figures for four.
bool half_an_exact_time(const W& r) {
  return r.gg.empty() != r.GGExact.empty();
}

constexpr CrossRule kRules[] = {
    {id::kSteadyWithAmount, {}, steady_with_amount, {Field::ka, Field::kppp}},
    {id::kLowestAboveTotal, id::kCheckLowestCloud, lowest_above_total, {Field::kN, Field::kNh}},
    {id::kCloudTypesAllZero,
     {},
     cover_without_types,
     {Field::kN, Field::kCL, Field::kCM, Field::kCH}},
    {id::kNoLowestCloudWithTypes, {}, types_without_amount, {Field::kNh, Field::kCL, Field::kCM}},
    {id::kLowestCloudWithoutTypes, {}, amount_without_types, {Field::kNh, Field::kCL, Field::kCM}},
    // Raised by the speed alone: the direction is entered first, beside the speed of before.
    {id::kCalmDirectionWithSpeed, {}, calm_with_speed, {Field::kff}, {Field::kdd}},
    {id::kDirectionWithoutSpeed, {}, direction_without_speed, {Field::kff}, {Field::kdd}},
    {id::kDewPointAboveAir, {}, dew_point_above_air, {Field::kAirTemperature, Field::kDewPoint}},
    {id::kWetBulbAboveAir, {}, wet_bulb_above_air, {Field::kDryBulb, Field::kWetBulb}},
    {id::kPeriodNeedsHeight,
     {},
     no_waves_with_height<&W::PwPw, &W::HwHw>,
     {Field::kPwPw, Field::kHwHw}},
    {id::kPeriodNeedsHeight,
     {},
     no_waves_with_height<&W::Pw1Pw1, &W::Hw1Hw1>,
     {Field::kPw1Pw1, Field::kHw1Hw1}},
    {id::kPeriodNeedsHeight,
     {},
     no_waves_with_height<&W::Pw2Pw2, &W::Hw2Hw2>,
     {Field::kPw2Pw2, Field::kHw2Hw2}},
    {id::kPeriodNeedsHeight,
     {},
     no_waves_with_height<&W::PwaPwa, &W::HwaHwa>,
     {Field::kPwaPwa, Field::kHwaHwa}},
    // No field raises it, for hour and minute are entered one by one; the list of a save names it.
    {id::kHalfAnExactTime, {}, half_an_exact_time, {}, {Field::kGGExact, Field::kgg}},
};

}  // namespace

std::span<const CrossRule> cross_rules() {
  return kRules;
}

std::vector<const CrossRule*> broken_rules(const Struct_Weather& record) {
  std::vector<const CrossRule*> broken;
  for (const CrossRule& rule : kRules) {
    if (rule.broken(record)) broken.push_back(&rule);
  }
  return broken;
}

const CrossRule* broken_by(Field field, const Struct_Weather& record) {
  for (const CrossRule& rule : kRules) {
    if (rule.raised_by.contains(field) && rule.broken(record)) return &rule;
  }
  return nullptr;
}

}  // namespace elements
