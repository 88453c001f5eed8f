#include "elements/form/field_codes.h"

#include "codetables/tables/cloud_base.h"
#include "codetables/tables/humidity_figures.h"
#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/pressure_tendency.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "codetables/tables/temperature_figures.h"
#include "codetables/tables/wave_height.h"
#include "codetables/tables/wind_figures.h"

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
  if (is_wave_height(field)) return codetables::half_metre_figures(shown);
  if (field == Field::kh) return codetables::cloud_base_code(shown);
  if (field == Field::kppp) return codetables::tendency_stored(shown);
  return std::string(shown);
}

std::string shown_from_record(Field field, const Struct_Weather& record) {
  if (field == Field::kPPPP) return codetables::pressure_shown(record.PPPP);
  if (field == Field::kWetBulb)
    return codetables::temperature_shown(codetables::wet_bulb_value_sign(record.Sw, record.TbTbTb),
                                         record.TbTbTb);
  if (field == Field::kTwTwTw)
    return codetables::temperature_shown(codetables::is_below_zero(record.Ss) ? "1" : "0",
                                         record.TwTwTw);
  if (field == Field::kff) return codetables::speed_shown(record.ff, record.fff);
  if (field == Field::kHumidity) return codetables::humidity_of_logbook(record.LogExtra);
  std::string W::*const member = member_of(field);
  if (member == nullptr) return {};
  const std::string& figures = record.*member;
  if (is_wave_height(field)) return codetables::metres_of_figures(figures);
  if (field == Field::kh) return figures == "/" ? figures : codetables::cloud_base_metres(figures);
  if (field == Field::kppp) return codetables::tendency_shown(figures);
  return figures;
}

void store_pppp(Struct_Weather& record, const std::string& pppp) {
  if (!pppp.empty() && pppp != record.PPPP) record.a.clear();
  record.PPPP = pppp;
}

}  // namespace elements
