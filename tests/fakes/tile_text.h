#pragma once
// Files of tiles, made up.

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

#include "map/tiles/coast.h"
#include "text/checksum.h"

namespace tile_text {

/// The text with the last line that it should have, whatever else is wrong with it.
inline std::string ended(std::string text, int rings, int points) {
  ::text::Checksum sum;
  sum.add(text);
  std::array<char, 64> end{};
  std::snprintf(end.data(), end.size(), "end %d %d %016llx\n", rings, points,
                static_cast<unsigned long long>(sum.value()));
  return text.append(end.data());
}

/// The first two lines.
inline std::string head(const map::Tile& tile) {
  std::string text = "kavrel sea map 1\ntile ";
  text.append(map::file_name(tile));
  for (const int limit : {tile.west, tile.north, tile.east, tile.south})
    text.append(" ").append(std::to_string(limit));
  return text.append("\n");
}

/// A tile with one ring of land, "longitude latitude longitude latitude ..." as written.
inline std::string land(const map::Tile& tile, const std::string& points) {
  const auto blanks = static_cast<int>(std::count(points.begin(), points.end(), ' '));
  const int count = (blanks + 1) / 2;
  return ended(head(tile) + "land " + std::to_string(count) + "\n" + points + "\n", 1, count);
}

/// A tile without land.
inline std::string open_sea(const map::Tile& tile) {
  return ended(head(tile), 0, 0);
}

}  // namespace tile_text
