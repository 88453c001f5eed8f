#pragma once
// One tile of the sea map as it is read from its file: rings of land and of water, and the coast
// between them. A text that a person can read:
//
//   # comment lines, anywhere
//   kavrel sea map 1
//   tile W020N40.src -20 40 20 -10       west, north, east, south, in whole degrees
//   land 4                               a ring of so many points
//   -17.123 14.7 -17.1 14.702 ...        longitude and latitude in degrees, at most three decimals
//   water 12                             water within land, or land within water: "land" again
//   ...
//   end 2 16 0123456789abcdef            rings, points, and the checksum of all lines above
//
// A line has at most 600 characters. A ring is closed: its last point is joined with its first one.
// It lies within its tile, limits included, and was cut there: an edge that runs along a limit is no
// coast. Rings stand in the order in which they are painted over each other, and a place within an
// odd number of them is land.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "map/tiles/tile_grid.h"

namespace map {

/// Longest line of a tile's file, without its end.
inline constexpr std::size_t kLongestLine = 600;

/// A place in thousandths of a degree, as the files have it.
struct CoastPoint {
  std::int32_t longitude = 0;
  std::int32_t latitude = 0;
  bool operator==(const CoastPoint&) const = default;
};
inline constexpr int kUnitsOfDegree = 1000;

struct Ring {
  bool water = false;
  std::vector<CoastPoint> points;
  // What it spans.
  CoastPoint south_west;
  CoastPoint north_east;
};

class Coast {
 public:
  Coast(const Tile& tile, std::vector<Ring> rings);

  [[nodiscard]] const Tile& tile() const { return tile_; }
  [[nodiscard]] const std::vector<Ring>& rings() const { return rings_; }
  /// True of an edge that was made by cutting the ring at a limit of the tile.
  [[nodiscard]] bool is_cut(CoastPoint from, CoastPoint to) const;

  /// True when the place, of this tile, lies on land. No answer is made for a place elsewhere.
  [[nodiscard]] bool is_land(Place place) const;
  /// True when a coast of this tile lies within so many nautical miles of the place, which may be of
  /// another tile; its longitude may be a turn off.
  [[nodiscard]] bool is_near(Place place, double miles) const;

 private:
  struct Edge {
    CoastPoint from;
    CoastPoint to;
  };

  [[nodiscard]] std::size_t band_of(double latitude) const;

  Tile tile_;
  std::vector<Ring> rings_;
  // The edges that touch each band of latitude, one band's behind the other's.
  std::vector<Edge> edges_;
  std::vector<std::size_t> band_begins_;
};

/// Reads a tile's file. Nothing when anything in it is not as told above: another tile, a line that
/// is too long, a number that is none or lies outside the tile, a ring that is cut short, a count or
/// the checksum that does not fit.
[[nodiscard]] std::optional<Coast> parse_coast(std::string_view text, const Tile& tile);

}  // namespace map
