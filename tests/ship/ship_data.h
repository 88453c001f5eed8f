#pragma once
// What the tests of this room write into the ship's file and screens, and what they press there.

#include <gtest/gtest.h>

#include <string>

#include "fakes/sample_ship.h"
#include "ui/screen.h"

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

/// Fails the test when there is no such control.
inline void press(ui::Screen& screen, const std::string& name) {
  ui::Control* const control = screen.find(name);
  ASSERT_NE(control, nullptr) << name;
  screen.press(*control);
}

}  // namespace ship_test
