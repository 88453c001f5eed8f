#include "fakes/sample_sea_map.h"

#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string_view>

#include "fakes/tile_text.h"
#include "text/numbers.h"

namespace fakes {
namespace {

// Where real tiles are taken from; empty: those of this file.
std::string real_tiles;

std::string degrees(std::int32_t units) {
  return text::format_fixed(static_cast<double>(units) / map::kUnitsOfDegree, 3);
}

}  // namespace

map::Ring ring_of(bool water, const std::vector<double>& degrees) {
  const auto units = [](double value) {
    return static_cast<std::int32_t>(std::lround(value * map::kUnitsOfDegree));
  };
  map::Ring ring;
  ring.water = water;
  for (std::size_t i = 0; i + 1 < degrees.size(); i += 2)
    ring.points.push_back({units(degrees[i]), units(degrees[i + 1])});
  return ring;
}

std::string tile_text(const map::Tile& tile, const std::vector<map::Ring>& rings) {
  std::string text = ::tile_text::head(tile);
  std::size_t points = 0;
  for (const map::Ring& ring : rings) {
    text.append(ring.water ? "water " : "land ");
    text.append(text::format_int(static_cast<long long>(ring.points.size()))).push_back('\n');
    for (const map::CoastPoint point : ring.points) {
      // A line each: none is too long.
      text.append(degrees(point.longitude)).append(" ");
      text.append(degrees(point.latitude)).push_back('\n');
    }
    points += ring.points.size();
  }
  return ::tile_text::ended(text, static_cast<int>(rings.size()), static_cast<int>(points));
}

void take_tiles_from(const std::string& folder) {
  real_tiles = folder;
}

void add_sea_map(FakeFiles& files) {
  for (const map::Tile& tile : map::all_tiles()) {
    const std::string path = std::string(kSampleSeaMap) + "\\" + map::file_name(tile);
    if (!real_tiles.empty()) {
      std::ifstream file(real_tiles + "/" + map::file_name(tile), std::ios::binary);
      files.add_file(path, {std::istreambuf_iterator<char>(file), {}});
      continue;
    }
    std::vector<map::Ring> rings;
    if (map::file_name(tile) == "E100N40.src") {
      rings = {ring_of(false, {130, 30, 140, 30, 140, 36, 130, 36}),
               ring_of(true, {133, 32, 136, 32, 136, 34, 133, 34})};
    } else if (map::file_name(tile) == "E140N40.src") {
      rings = {ring_of(false, {140, 30, 142, 30, 142, 36, 140, 36}),
               ring_of(false, {169, 19, 171, 19, 170, 21}), ring_of(false, {150, 25, 150.001, 25})};
    }
    files.add_file(path, tile_text(tile, rings));
  }
}

}  // namespace fakes
