#pragma once
// The globe cut into the 33 tiles of the sea map, and their names.

#include <string>
#include <vector>

namespace map {

/// In a degree of latitude.
inline constexpr double kMilesOfLatitudeDegree = 60.0;
/// Degrees of longitude around the globe, and of latitude to a pole.
inline constexpr int kAround = 360;
inline constexpr int kPole = 90;

/// A place in degrees, north and east positive.
struct Place {
  double latitude = 0;   ///< -90 to 90
  double longitude = 0;  ///< -180 to 180
  bool operator==(const Place&) const = default;
};

/// A tile by its edges, in whole degrees.
struct Tile {
  int west = 0;   ///< -180 to 140
  int north = 0;  ///< 90, 40, -10 or -60
  int east = 0;   ///< greater than `west`, at most 180
  int south = 0;
  bool operator==(const Tile&) const = default;
};

/// All tiles, from the north, and in each row from the date line to the east.
[[nodiscard]] std::vector<Tile> all_tiles();

/// The tile of a place. One on a limit belongs to the tile whose west or north edge it is: 180
/// degrees, east or west, to the first tile of the row, and the south pole to the last row. A
/// longitude beyond the date line is taken round the globe, a latitude beyond a pole is the pole.
[[nodiscard]] Tile tile_of(Place place);

/// The tiles that hold a part of a range of latitude and longitude, its edges included; `west` to
/// `east` may lead over the date line (170 to 190, or -190 to -170), at most once around the globe.
[[nodiscard]] std::vector<Tile> tiles_within(double west, double south, double east, double north);

/// How far it is from a place to the nearest point of a tile, in nautical miles; 0 within it. Exact
/// enough for a few miles: the globe is taken for flat, with degrees of longitude as short as they
/// are at the place.
[[nodiscard]] double miles_to(const Tile& tile, Place place);

/// "W020N40.src": the north-west corner.
[[nodiscard]] std::string file_name(const Tile& tile);

/// How much shorter a degree of longitude is there than one of latitude: the cosine of the latitude,
/// but never nothing.
[[nodiscard]] double shortening(double latitude);

/// The same longitude from -180 up to but not including 180.
[[nodiscard]] double wrapped(double longitude);

}  // namespace map
