#include "elements/form/field_codes.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "codetables/tables/code_metres.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "elements/formulas/pressure_tendency.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

using W = Struct_Weather;

struct MemberRow {
  Field field;
  std::string W::*member;
};

constexpr MemberRow kMembers[] = {
    {Field::kYear, &W::Year},
    {Field::kMonth, &W::Month},
    {Field::kYY, &W::YY},
    {Field::kGG, &W::GG},
    {Field::kGGExact, &W::GGExact},
    {Field::kgg, &W::gg},
    {Field::kLaDeg, &W::LaDeg},
    {Field::kLaMin, &W::LaMin},
    {Field::kLoDeg, &W::LoDeg},
    {Field::kLoMin, &W::LoMin},
    {Field::kDs, &W::Ds},
    {Field::kVs, &W::Vs},
    {Field::ka, &W::a},
    {Field::kppp, &W::ppp},
    {Field::kdd, &W::dd},
    {Field::kPwPw, &W::PwPw},
    {Field::kHwHw, &W::HwHw},
    {Field::kdw1dw1, &W::dw1dw1},
    {Field::kPw1Pw1, &W::Pw1Pw1},
    {Field::kHw1Hw1, &W::Hw1Hw1},
    {Field::kdw2dw2, &W::dw2dw2},
    {Field::kPw2Pw2, &W::Pw2Pw2},
    {Field::kHw2Hw2, &W::Hw2Hw2},
    {Field::kPwaPwa, &W::PwaPwa},
    {Field::kHwaHwa, &W::HwaHwa},
    {Field::kVV, &W::VV},
    {Field::kww, &W::ww},
    {Field::kW1, &W::W1},
    {Field::kW2, &W::W2},
    {Field::kN, &W::N},
    {Field::kNh, &W::Nh},
    {Field::kCH, &W::CH},
    {Field::kCM, &W::CM},
    {Field::kCL, &W::CL},
    {Field::kh, &W::h},
    {Field::kIs, &W::Is},
    {Field::kEsEs, &W::EsEs},
    {Field::kRs, &W::Rs},
    {Field::kci, &W::ci},
    {Field::kSi, &W::Si},
    {Field::kbi, &W::bi},
    {Field::kDi, &W::Di},
    {Field::kzi, &W::zi},
};

bool is_wave_height(Field field) {
  return field == Field::kHwHw || field == Field::kHw1Hw1 || field == Field::kHw2Hw2 ||
         field == Field::kHwaHwa;
}

}  // namespace

std::string Struct_Weather::*member_of(Field field) {
  for (const MemberRow& row : kMembers) {
    if (row.field == field) return row.member;
  }
  return nullptr;
}

std::string figures_of(Field field, std::string_view shown) {
  if (is_wave_height(field)) return half_metre_figures(shown);
  if (field == Field::kh) return cloud_base_code(shown);
  if (field == Field::kppp) return tendency_stored(shown);
  return std::string(shown);
}

// An iced bulb (2) has no sign of its own: it is below zero, or at 0.0.
bool wet_bulb_is_negative(const Struct_Weather& record) {
  return record.Sw == "1" || (record.Sw == "2" && record.TbTbTb != "000");
}

std::string shown_from_record(Field field, const Struct_Weather& record) {
  if (field == Field::kPPPP) return pressure_shown(record.PPPP);
  if (field == Field::kWetBulb)
    return temperature_shown(wet_bulb_is_negative(record) ? "1" : "0", record.TbTbTb);
  if (field == Field::kTwTwTw) {
    return temperature_shown(is_below_zero(record.Ss) ? "1" : "0", record.TwTwTw);
  }
  if (field == Field::kff) return record.fff.empty() ? record.ff : record.fff;
  if (field == Field::kHumidity) {
    if (!text::is_all_digits(record.LogExtra)) return {};
    return text::format_fixed(text::leading_int(record.LogExtra) / 10.0, 1, 4, '0');
  }
  std::string W::*const member = member_of(field);
  if (member == nullptr) return {};
  const std::string& figures = record.*member;
  if (is_wave_height(field)) return metres_of_figures(figures);
  if (field == Field::kh) return figures == "/" ? figures : cloud_base_metres(figures);
  if (field == Field::kppp) return tendency_shown(figures);
  return figures;
}

std::string temperature_shown(std::string_view sign, std::string_view figures) {
  if (!text::is_all_digits(figures)) return std::string(figures);
  const std::string value = text::format_fixed(text::leading_int(figures) / 10.0, 1);
  return sign == "1" ? "-" + value : value;
}

std::string pressure_shown(std::string_view pppp) {
  if (!text::is_all_digits(pppp)) return std::string(pppp);
  const int tenths = text::leading_int(pppp);
  // The thousands are dropped in the report; pressures at sea level lie between 870 and 1070 hPa.
  constexpr int kNoThousands = 5000;
  return text::format_fixed((tenths < kNoThousands ? tenths + 10000 : tenths) / 10.0, 1, 6, '0');
}

std::string cloud_base_code(std::string_view metres) {
  if (!text::is_all_digits(metres)) return std::string(metres);
  static constexpr std::array kLowerLimits = {50, 100, 200, 300, 600, 1000, 1500, 2000, 2500};
  const auto above =
      std::upper_bound(kLowerLimits.begin(), kLowerLimits.end(), text::leading_int(metres));
  return text::format_int(std::distance(kLowerLimits.begin(), above));
}

std::string quadrant_of(int north_south, int east_west) {
  if (north_south < 0 || east_west < 0) return {};
  if (north_south == 0) return east_west == 0 ? "1" : "7";
  return east_west == 0 ? "3" : "5";
}

int north_south_of(std::string_view quadrant) {
  if (quadrant == "1" || quadrant == "7") return 0;
  return quadrant == "3" || quadrant == "5" ? 1 : -1;
}

int east_west_of(std::string_view quadrant) {
  if (quadrant == "1" || quadrant == "3") return 0;
  return quadrant == "5" || quadrant == "7" ? 1 : -1;
}

}  // namespace elements
