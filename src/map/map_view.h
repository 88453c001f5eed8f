#pragma once
// What part of the globe a map shows, and what the ship does on it.

#include <optional>
#include <vector>

#include "map/tiles/tile_grid.h"

namespace map {

/// What the map shows of the ship.
struct ShipOnMap {
  std::optional<Place> at;        ///< nothing: the map is empty
  std::optional<double> course;   ///< degrees, 0 to 360 true
  std::optional<double> speed;    ///< knots
  std::vector<Place> track = {};  ///< positions of the last reports, oldest first, without `at`
  bool operator==(const ShipOnMap&) const = default;
};

/// Without positions that are none, which have no place on a map.
[[nodiscard]] ShipOnMap on_globe(ShipOnMap ship);

/// How much of the globe is shown around the ship, from south to north, the widest first.
enum class Step { kTile, kTenDegrees, kFiveDegrees, kOneDegree };
inline constexpr int kSteps = 4;

/// A plate carree: meridians and parallels are straight, and shapes are kept in the middle.
struct MapView {
  double west = 0;  ///< degrees; may lie beyond the date line, at most a turn from `east`
  double east = 0;
  double south = 0;  ///< may lie somewhat beyond a pole, where nothing is
  double north = 0;
  double x_unit = 1;    ///< length of a degree of longitude in the middle, in degrees of latitude
  int arrow_hours = 0;  ///< the ship's arrow is the run of so many hours

  [[nodiscard]] double height() const { return north - south; }
  [[nodiscard]] double middle() const { return (west + east) / 2; }
  /// The longitude, or one some turns off, that is nearest to the middle.
  [[nodiscard]] double near_middle(double longitude) const;
};

/// The ship is in the middle, but with kTile only between west and east: from south to north the map
/// keeps its tile as long as the ship is well within. Nor is much of what is beyond a pole shown,
/// where nothing is. The view is wider than high; what shows it may cut the sides off.
[[nodiscard]] MapView view_around(Place ship, Step step);

/// Where the arrow of the ship ends: in the direction in which the map shows the course, as far as
/// the run of the view's hours, but no shorter and no longer than can be read. Nothing without a
/// course or a speed, or when the ship lies still.
struct Arrow {
  Place end;            ///< its longitude may be some turns off
  bool is_run = false;  ///< as long as the run, neither stretched nor cut
};
[[nodiscard]] std::optional<Arrow> arrow_of(const ShipOnMap& ship, const MapView& view);

}  // namespace map
