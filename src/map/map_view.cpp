#include "map/map_view.h"

#include <algorithm>
#include <cmath>

namespace map {
namespace {

constexpr double kHalfTurn = 180.0;
// Wider than the room of any map, which cuts the sides off.
constexpr double kWidthOfHeight = 2.4;
// So far from the middle, in heights of the map, the ship is not yet at its rim.
constexpr double kWellWithin = 0.2;
// So much of the height may lie beyond a pole, for a ship that is there and its arrow.
constexpr double kBeyondPole = 0.125;

double radians(double degrees) {
  return degrees * std::acos(-1.0) / kHalfTurn;
}

double height_of(const Tile& tile, Step step) {
  switch (step) {
    case Step::kTile:
      break;
    case Step::kTenDegrees:
      return 10.0;
    case Step::kFiveDegrees:
      return 5.0;
    case Step::kOneDegree:
      return 1.0;
  }
  return tile.north - tile.south;
}

// A ship of 15 knots has an arrow of a tenth to a quarter of the height.
int hours_for(double height) {
  constexpr struct {
    double height;
    int hours;
  } kRows[] = {{1, 1}, {5, 3}, {10, 6}};
  for (const auto& row : kRows) {
    if (height <= row.height) return row.hours;
  }
  return 24;  // the day's run
}

}  // namespace

ShipOnMap on_globe(ShipOnMap ship) {
  const auto is_none = [](const Place& place) {
    return !(std::abs(place.latitude) <= kPole) || !std::isfinite(place.longitude);
  };
  if (ship.at && is_none(*ship.at)) ship.at.reset();
  std::erase_if(ship.track, is_none);
  return ship;
}

double MapView::near_middle(double longitude) const {
  return middle() + wrapped(longitude - middle());
}

MapView view_around(Place ship, Step step) {
  const Tile tile = tile_of(ship);
  const double height = height_of(tile, step);
  const double room = step == Step::kTile ? kWellWithin * height : 0.0;
  const double farthest = kPole + (kBeyondPole - 0.5) * height;
  const double latitude = std::clamp(
      std::clamp((tile.north + tile.south) / 2.0, ship.latitude - room, ship.latitude + room),
      -farthest, farthest);
  MapView view;
  view.south = latitude - height / 2;
  view.north = latitude + height / 2;
  view.x_unit = std::cos(radians(latitude));
  constexpr double kTenths = 10.0;
  const double half =
      std::min(kHalfTurn, std::ceil(kWidthOfHeight / 2 * height / view.x_unit * kTenths) / kTenths);
  view.west = wrapped(ship.longitude) - half;
  view.east = wrapped(ship.longitude) + half;
  view.arrow_hours = hours_for(height);
  return view;
}

std::optional<Arrow> arrow_of(const ShipOnMap& ship, const MapView& view) {
  constexpr double kShortest = 0.1;  // in heights of the map
  constexpr double kLongest = 0.3;
  if (!ship.at || !ship.course || !ship.speed) return std::nullopt;
  if (!(*ship.speed > 0) || !std::isfinite(*ship.speed) || !std::isfinite(*ship.course))
    return std::nullopt;
  // North of the middle a mile to the east is longer on the map than one to the north: the arrow
  // shows the way that the map's coast goes by, the course only in the middle.
  const double here = std::max(std::cos(radians(ship.at->latitude)), 1e-6);
  const double right = std::sin(radians(*ship.course)) * view.x_unit / here;
  const double up = std::cos(radians(*ship.course));
  const double run = *ship.speed * view.arrow_hours / kMilesOfLatitudeDegree;
  const double length = std::clamp(run, kShortest * view.height(), kLongest * view.height());
  const double stretched = std::hypot(right, up);
  Arrow arrow;
  arrow.end = {ship.at->latitude + length * up / stretched,
               view.near_middle(ship.at->longitude) + length * right / stretched / view.x_unit};
  arrow.is_run = length == run;
  return arrow;
}

}  // namespace map
