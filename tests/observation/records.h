#pragma once
// Records for the tests of this room and for its benchmark.

#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "fakes/sample_ship.h"
#include "observation/Struct_Weather.h"

namespace records {

using Setting = std::pair<std::string_view, std::string_view>;

/// Sets fields by name; a wrong name ends the test.
inline void set(Struct_Weather& record, std::initializer_list<Setting> settings) {
  for (const auto& [name, value] : settings) {
    const WeatherField* field = find_weather_field(name);
    if (field == nullptr) throw std::invalid_argument("no field " + std::string(name));
    record.*field->member = value;
  }
}

/// A ship with an anemometer, everything observed.
inline ShipFixedData ship() {
  ShipFixedData ship = fakes::sample_ship();
  ship.wind_speed_method = WindSpeedMethod::kAnemometer;
  return ship;
}

inline Struct_Weather fresh() {
  return {ship(), KeyObservationItems()};
}

inline Struct_Weather with(std::initializer_list<Setting> settings) {
  Struct_Weather record = fresh();
  set(record, settings);
  return record;
}

/// Every element of a North Pacific observation of 15 November 2014, 12 UTC.
inline Struct_Weather full() {
  return with({
      {"Year", "2014"},     {"Month", "11"},    {"YY", "15"},      {"GG", "12"},
      {"Qc", "1"},          {"LaDeg", "35"},    {"LaMin", "42"},   {"LoDeg", "165"},
      {"LoMin", "18"},      {"h", "4"},         {"VV", "97"},      {"N", "6"},
      {"dd", "27"},         {"ff", "99"},       {"fff", "105"},    {"SnT", "0"},
      {"TTT", "152"},       {"SnTd", "0"},      {"TdTdTd", "108"}, {"PPPP", "0132"},
      {"a", "2"},           {"ppp", "014"},     {"ww", "15"},      {"W1", "8"},
      {"W2", "2"},          {"Nh", "4"},        {"CL", "5"},       {"CM", "3"},
      {"CH", "1"},          {"gg", "50"},       {"GGExact", "11"}, {"Ds", "2"},
      {"Vs", "3"},          {"Ss", "0"},        {"TwTwTw", "178"}, {"PwaPwa", "07"},
      {"HwaHwa", "06"},     {"PwPw", "06"},     {"HwHw", "04"},    {"dw1dw1", "25"},
      {"dw2dw2", "31"},     {"Pw1Pw1", "09"},   {"Hw1Hw1", "05"},  {"Pw2Pw2", "11"},
      {"Hw2Hw2", "03"},     {"Is", "1"},        {"EsEs", "02"},    {"Rs", "3"},
      {"Sw", "0"},          {"TbTbTb", "130"},  {"ci", "1"},       {"Si", "2"},
      {"bi", "3"},          {"Di", "4"},        {"zi", "5"},       {"VosClim1", "085"},
      {"VosClim2", "12.5"}, {"VosClim3", "16"}, {"VosClim4", "7"}, {"VosClim5", "230.4"},
      {"LogExtra", "0530"},
  });
}

}  // namespace records
