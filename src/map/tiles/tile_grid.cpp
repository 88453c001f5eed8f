#include "map/tiles/tile_grid.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>

#include "text/numbers.h"

namespace map {
namespace {

constexpr int kDateLine = 180;

struct Row {
  int north;
  int south;
  int width;
};
constexpr Row kRows[] = {{90, 40, 40}, {40, -10, 40}, {-10, -60, 40}, {-60, -90, 60}};

Tile tile_at(const Row& row, int column) {
  const int west = -kDateLine + column * row.width;
  return {west, row.north, west + row.width, row.south};
}

int columns_of(const Row& row) {
  return kAround / row.width;
}

}  // namespace

double wrapped(double longitude) {
  const double turned = std::fmod(longitude + kDateLine, kAround);
  return (turned < 0 ? turned + kAround : turned) - kDateLine;
}

double shortening(double latitude) {
  constexpr double kLeast = 1e-6;
  return std::max(std::cos(latitude * std::acos(-1.0) / kDateLine), kLeast);
}

std::vector<Tile> all_tiles() {
  std::vector<Tile> tiles;
  for (const Row& row : kRows) {
    for (int column = 0; column < columns_of(row); ++column) tiles.push_back(tile_at(row, column));
  }
  return tiles;
}

Tile tile_of(Place place) {
  const auto* const row =
      std::find_if(std::begin(kRows), std::prev(std::end(kRows)),
                   [&](const Row& candidate) { return place.latitude > candidate.south; });
  const double from_date_line = wrapped(place.longitude) + kDateLine;
  const int column = static_cast<int>(from_date_line / row->width);
  return tile_at(*row, std::clamp(column, 0, columns_of(*row) - 1));
}

std::vector<Tile> tiles_within(double west, double south, double east, double north) {
  std::vector<Tile> tiles;
  for (const Tile& tile : all_tiles()) {
    if (tile.south > north || tile.north < south) continue;
    // The range may be told one turn too far to either side.
    for (const int turn : {-kAround, 0, kAround}) {
      if (tile.west + turn > east || tile.east + turn < west) continue;
      tiles.push_back(tile);
      break;
    }
  }
  return tiles;
}

double miles_to(const Tile& tile, Place place) {
  const double middle = (tile.west + tile.east) / 2.0;
  const double beside = std::abs(wrapped(place.longitude - middle)) - (tile.east - tile.west) / 2.0;
  const double above = std::max(place.latitude - tile.north, tile.south - place.latitude);
  return kMilesOfLatitudeDegree *
         std::hypot(std::max(beside, 0.0) * shortening(place.latitude), std::max(above, 0.0));
}

std::string file_name(const Tile& tile) {
  std::string name(1, tile.west > 0 ? 'E' : 'W');
  name.append(text::format_int(std::abs(tile.west), 3, '0'));
  name.push_back(tile.north > 0 ? 'N' : 'S');
  name.append(text::format_int(std::abs(tile.north), 2, '0'));
  return name.append(".src");
}

}  // namespace map
