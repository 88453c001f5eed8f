#pragma once
// The quadrant of the globe Qc (code table 3333) and the hemispheres that it stands for.

#include <string>
#include <string_view>

namespace codetables {

/// Every figure of the table.
inline constexpr std::string_view kQuadrants = "1357";

/// Quadrant of hemispheres: 0 north or east, 1 south or west; empty when one is not chosen (-1).
[[nodiscard]] std::string quadrant_of(int north_south, int east_west);

/// And back; -1 for anything but a quadrant.
[[nodiscard]] int north_south_of(std::string_view quadrant);
[[nodiscard]] int east_west_of(std::string_view quadrant);

/// Position in tenths of a degree, without sign, and the quadrant that signs it.
struct TenthsPosition {
  int quadrant = 0;
  int latitude = 0;
  int longitude = 0;
};

/// The same, north and east positive. A quadrant that is not of the table counts as north and east.
[[nodiscard]] int signed_latitude(const TenthsPosition& at);
[[nodiscard]] int signed_longitude(const TenthsPosition& at);

}  // namespace codetables
