#pragma once
// What the tests of this room write into the ship's file and screens.

#include "fakes/sample_ship.h"

namespace ship_test {

/// A card of type "1" with a correction of its own in every field that it uses.
[[nodiscard]] inline BarometerCard card_one() {
  return {"2014/08/09", "YOKOHAMA", CardType::kHeightAndTemperature,
          "+0.0",       "-0.3",     LoadingState::kFullLoad,
          "10",         "+1.0",     "20",
          "+2.0"};
}

/// A ship in ballast with that card, which every field of the fixed data accepts.
[[nodiscard]] inline ShipFixedData valid_ship() {
  ShipFixedData ship = fakes::sample_ship();
  ship.call_sign = "JCCX";
  ship.card = card_one();
  ship.card.loading_state = LoadingState::kInBallast;
  ship.wind_speed_method = WindSpeedMethod::kAnemometer;
  ship.vosclim_cargo_height = "07";
  ship.vosclim_load_line_departure = "-12";
  ship.aws_fitted = true;
  ship.aws_manufacturer = "AWS CO.";
  return ship;
}

}  // namespace ship_test
