#pragma once
// A tile of the sea map with land as a test wants it.

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "fakes/fake_files.h"
#include "map/tiles/coast.h"
#include "text/checksum.h"
#include "text/numbers.h"

namespace fakes {

/// The first two lines of a tile's file.
inline std::string beginning_of(const map::Tile& tile) {
  std::string text = "kavrel sea map 1\ntile ";
  text.append(map::file_name(tile));
  for (const int edge : {tile.west, tile.north, tile.east, tile.south})
    text.append(" ").append(text::format_int(edge));
  return text.append("\n");
}

/// The lines and the one that ends a tile's file.
inline std::string with_end(std::string text, std::size_t rings, std::size_t points) {
  text::Checksum sum;
  sum.add(text);
  constexpr const char* kFigures = "0123456789abcdef";
  std::string hexadecimal;
  for (int shift = 60; shift >= 0; shift -= 4)
    hexadecimal.push_back(kFigures[(sum.value() >> shift) & 15U]);
  text.append("end ").append(text::format_int(static_cast<long long>(rings)));
  text.append(" ").append(text::format_int(static_cast<long long>(points)));
  return text.append(" ").append(hexadecimal).append("\n");
}

/// Corners of a ring as text: "139.5 35 140 35 140 36".
struct SampleRing {
  const char* kind = "land";
  const char* corners = "";
};

/// The file of a tile with these rings.
inline std::string tile_text(const map::Tile& tile, const std::vector<SampleRing>& rings) {
  std::string text = beginning_of(tile);
  std::size_t points = 0;
  for (const SampleRing& ring : rings) {
    const std::string corners = ring.corners;
    const auto count =
        (static_cast<std::size_t>(std::count(corners.begin(), corners.end(), ' ')) + 1) / 2;
    text.append(ring.kind)
        .append(" ")
        .append(text::format_int(static_cast<long long>(count)))
        .append("\n");
    text.append(corners).append("\n");
    points += count;
  }
  return with_end(std::move(text), rings.size(), points);
}

/// Puts the tile of a place into a folder.
inline void add_tile(FakeFiles& files, const std::string& folder, map::Place place,
                     const std::vector<SampleRing>& rings) {
  const map::Tile tile = map::tile_of(place);
  files.add_file(folder + "\\" + map::file_name(tile), tile_text(tile, rings));
}

}  // namespace fakes
