#pragma once
// Everything that an observation form holds, as values: what is kept of an observation that was
// not saved is made of it and taken over from it.

#include <array>
#include <optional>
#include <string>

#include "elements/form/fields.h"
#include "elements/formulas/psychrometer.h"
#include "observation/Struct_Weather.h"
#include "ship/data/ShipFixedData.h"

namespace elements {

/// What one entry of a person can change, so that a refusal half-way can put it back.
struct FormEntries {
  Struct_Weather record{ShipFixedData(), KeyObservationItems()};
  std::array<std::string, kFields> texts;  ///< what each field shows
  std::array<bool, kFields> typed{};       ///< a text that was typed and is not accepted
  std::array<bool, kFields> error{};       ///< marked wrong
  WetBulbState wet_bulb = WetBulbState::kNotSet;
  int north_south = -1;
  int east_west = -1;
};

/// A whole form. Two forms of the same state behave alike from then on.
struct FormState {
  FormEntries entries;
  std::array<std::string, kFields> before_typing;  ///< what stood there; empty where not `typed`
  std::array<std::optional<std::string>, kFields>
      put_aside;  ///< entries of elements that were switched off, of a recorder that is not there
  std::string pppp_of_reading;     ///< what the barometer reading gave
  std::string dew_point_of_bulbs;  ///< SnTd and TdTdTd as the bulbs gave them
  DewPointMethod dew_point_method = DewPointMethod::kDirect;  ///< the texts are made for it
  SeaTemperatureMethod sea_temperature_method = SeaTemperatureMethod::kIntake;  ///< Ss is for it
  bool error_flag = false;
  bool modified = false;
  bool review_due = false;
  bool doubled_pressure_due = false;
};

}  // namespace elements
