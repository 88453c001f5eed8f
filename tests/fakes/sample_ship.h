#pragma once
// The ship of the tests, of the benchmarks and of the fuzz targets. Who needs another one says in a
// line each what is different about it.

#include <string>
#include <utility>

#include "ship/data/ShipFixedData.h"

namespace fakes {

/// A card of type "1": heights and corrections for both loading states; the ship is at full load.
[[nodiscard]] inline BarometerCard height_card() {
  return {"2014/10/01", "YOKOHAMA", CardType::kHeightAndTemperature,
          "+0.0",       "+0.0",     LoadingState::kFullLoad,
          "20",         "+2.4",     "30",
          "+3.6"};
}

/// A card of type "2": one correction, a signed decimal text in hPa.
[[nodiscard]] inline BarometerCard total_card(std::string correction = "+0.0") {
  BarometerCard card;
  card.check_date = "2014/10/01";
  card.check_port = "YOKOHAMA";
  card.type = CardType::kTotalCorrection;
  card.total_correction = std::move(correction);
  return card;
}

/// A ship that lacks nothing: the height card, all else as the fixed data are at first (true wind,
/// Beaufort scale, intake, dew point and humidity read directly).
[[nodiscard]] inline ShipFixedData sample_ship() {
  ShipFixedData ship;
  ship.call_sign = "JXKV";
  ship.imo_number = "9074729";
  ship.card = height_card();
  return ship;
}

/// The same ship with a psychrometer, so that dew point and humidity are computed, and with a
/// barometer that needs no correction.
[[nodiscard]] inline ShipFixedData psychrometer_ship() {
  ShipFixedData ship = sample_ship();
  ship.card = total_card();
  ship.dew_point_method = DewPointMethod::kComputed;
  ship.humidity_method = HumidityMethod::kComputed;
  ship.humidity_unit = 1.0;
  return ship;
}

}  // namespace fakes
