#include "observation/Struct_Weather.h"

#include <algorithm>
#include <array>

#include "codetables/tables/minutes.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace {

using W = Struct_Weather;

// In record order; the names are those of observation files.
constexpr WeatherField kFields[] = {
    {"Year", &W::Year},
    {"Month", &W::Month},
    {"YY", &W::YY},
    {"GG", &W::GG},
    {"iw", &W::iw},
    {"Qc", &W::Qc},
    {"LoDeg", &W::LoDeg},
    {"LaDeg", &W::LaDeg},
    {"LaMin", &W::LaMin},
    {"LoMin", &W::LoMin},
    {"h", &W::h},
    {"VV", &W::VV},
    {"iR", &W::iR},
    {"iX", &W::iX},
    {"N", &W::N},
    {"dd", &W::dd},
    {"ff", &W::ff},
    {"fff", &W::fff},
    {"SnT", &W::SnT},
    {"TTT", &W::TTT},
    {"SnTd", &W::SnTd},
    {"TdTdTd", &W::TdTdTd},
    {"PPPP", &W::PPPP},
    {"a", &W::a},
    {"ppp", &W::ppp},
    {"ww", &W::ww},
    {"W1", &W::W1},
    {"W2", &W::W2},
    {"Nh", &W::Nh},
    {"CL", &W::CL},
    {"CM", &W::CM},
    {"CH", &W::CH},
    {"gg", &W::gg},
    {"GGExact", &W::GGExact},
    {"Ds", &W::Ds},
    {"Vs", &W::Vs},
    {"Ss", &W::Ss},
    {"TwTwTw", &W::TwTwTw},
    {"PwaPwa", &W::PwaPwa},
    {"HwaHwa", &W::HwaHwa},
    {"PwPw", &W::PwPw},
    {"HwHw", &W::HwHw},
    {"dw1dw1", &W::dw1dw1},
    {"dw2dw2", &W::dw2dw2},
    {"Pw1Pw1", &W::Pw1Pw1},
    {"Hw1Hw1", &W::Hw1Hw1},
    {"Pw2Pw2", &W::Pw2Pw2},
    {"Hw2Hw2", &W::Hw2Hw2},
    {"Is", &W::Is},
    {"EsEs", &W::EsEs},
    {"Rs", &W::Rs},
    {"Sw", &W::Sw},
    {"TbTbTb", &W::TbTbTb},
    {"ci", &W::ci},
    {"Si", &W::Si},
    {"bi", &W::bi},
    {"Di", &W::Di},
    {"zi", &W::zi},
    {"VosClim1", &W::VosClim1},
    {"VosClim2", &W::VosClim2},
    {"VosClim3", &W::VosClim3},
    {"VosClim4", &W::VosClim4},
    {"VosClim5", &W::VosClim5},
    {"CallSign", &W::CallSign},
    {"LogText1", &W::LogText1},
    {"LogText2", &W::LogText2},
    {"LogText3", &W::LogText3},
    {"ShipFixed", &W::ShipFixed},
    {"LogExtra", &W::LogExtra},
};

constexpr std::size_t kCallSignWidth = 7;

bool all_set(std::initializer_list<const std::string*> fields) {
  return std::none_of(fields.begin(), fields.end(),
                      [](const std::string* field) { return field->empty(); });
}

int tenths(const std::string& degrees, const std::string& minutes) {
  return text::leading_int(degrees) * 10 +
         codetables::tenths_of_minutes(text::leading_int(minutes));
}

}  // namespace

Struct_Weather::Struct_Weather(const ShipFixedData& ship, const KeyObservationItems& items)
    // Knots only (3 and 4); the figures for metres per second are not offered.
    : iw(ship.wind_speed_method == WindSpeedMethod::kAnemometer ? "4" : "3"),
      // Precipitation is not measured, so there never is a group 6RRRtR.
      iR("4"),
      // 1: the group 7wwW1W2 is there, for which one of the two is enough; 3: not observed.
      iX(items.observed(ObservationItem::ww) || items.observed(ObservationItem::W1W2) ? "1" : "3"),
      CallSign(ship.call_sign),
      ShipFixed(ship.imo_number) {}

bool Struct_Weather::has_day_hour_indicator() const {
  return all_set({&YY, &GG, &iw});
}

bool Struct_Weather::has_latitude() const {
  return all_set({&LaDeg, &LaMin});
}

bool Struct_Weather::has_longitude() const {
  return all_set({&Qc, &LoDeg, &LoMin});
}

bool Struct_Weather::has_exact_time() const {
  return all_set({&gg, &GGExact});
}

bool Struct_Weather::has_wet_bulb() const {
  return all_set({&Sw, &TbTbTb});
}

bool Struct_Weather::has_vosclim(const ShipFixedData& ship) const {
  return !ship.vosclim || all_set({&ship.vosclim_cargo_height, &ship.vosclim_load_line_departure,
                                   &VosClim1, &VosClim2, &VosClim3, &VosClim4, &VosClim5});
}

std::optional<TenthsPosition> Struct_Weather::position() const {
  // A part that was entered as not observed ("//") is no place to compute with.
  for (const std::string* part : {&Qc, &LaDeg, &LaMin, &LoDeg, &LoMin}) {
    if (!text::is_all_digits(*part)) return std::nullopt;
  }
  return TenthsPosition{text::leading_int(Qc), tenths(LaDeg, LaMin), tenths(LoDeg, LoMin)};
}

std::string Struct_Weather::call_sign_for_report() const {
  return CallSign.substr(0, kCallSignWidth);
}

std::string Struct_Weather::call_sign_for_logbook() const {
  std::string padded = CallSign;
  if (padded.size() < kCallSignWidth) padded.resize(kCallSignWidth, ' ');
  return padded;
}

bool Struct_Weather::operator==(const Struct_Weather& other) const {
  return WorkLatitude == other.WorkLatitude && WorkLongitude == other.WorkLongitude &&
         Selection == other.Selection &&
         std::all_of(std::begin(kFields), std::end(kFields), [&](const WeatherField& field) {
           return this->*field.member == other.*field.member;
         });
}

std::span<const WeatherField> weather_fields() {
  return kFields;
}

const WeatherField* find_weather_field(std::string_view name) {
  const auto* const at =
      std::find_if(std::begin(kFields), std::end(kFields),
                   [&](const WeatherField& field) { return field.name == name; });
  return at == std::end(kFields) ? nullptr : at;
}
