#pragma once
// Is the ship on land? A position of which the officer has said that it is right all the same (a
// harbour, a strait) is not asked about again.

#include <optional>

#include "map/tiles/SeaMap.h"

namespace mainwindow {

class LandWatch {
 public:
  /// Without a map no land is known. It must outlive the watch.
  explicit LandWatch(map::SeaMap* sea_map) : sea_map_(sea_map) {}

  /// On land or in a coastal region, as far as the map knows.
  [[nodiscard]] bool is_land(map::Place place) const {
    return sea_map_ != nullptr && sea_map_->at(place) == map::Land::kYes;
  }
  [[nodiscard]] bool is_confirmed(map::Place place) const { return confirmed_ == place; }
  /// The officer said Yes to this position; of another one he has said nothing any more. The next
  /// start of the program asks anew.
  void confirm(map::Place place) { confirmed_ = place; }

 private:
  map::SeaMap* sea_map_;
  std::optional<map::Place> confirmed_;
};

}  // namespace mainwindow
