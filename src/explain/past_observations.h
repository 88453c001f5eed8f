#pragma once
// What the ship has reported before: the reports of its folder and the lines of its logbook.

#include <string>
#include <vector>

#include "observation/past_observation.h"
#include "platform/ports.h"
#include "ship/data/KeyObservationItems.h"
#include "ship/data/ShipFixedData.h"

namespace explain {

/// Where a ship keeps what it has reported.
struct Archive {
  std::string reports;  ///< folder of the reports, as the settings have it; empty: none
  std::string logbook;  ///< folder of the logbook; empty: none
};

/// The ship's observations from hour `first` up to and without hour `beyond`, both since the beginning of
/// 2000, the oldest first, one for each hour: the report of that name, else the last line of the logbook
/// for that hour that bears the ship's call sign. What cannot be read is passed over.
[[nodiscard]] std::vector<observation::PastObservation> past_observations(
    platform::Files& files, const Archive& archive, const ShipFixedData& ship,
    const KeyObservationItems& items, int first, int beyond);

}  // namespace explain
