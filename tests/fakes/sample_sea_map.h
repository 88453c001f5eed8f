#pragma once
// A small sea map: open sea all around the globe but for a few shores that tests know by heart.

#include <string>
#include <vector>

#include "fakes/fake_files.h"
#include "map/tiles/SeaMap.h"

namespace fakes {

inline constexpr const char* kSampleSeaMap = "C:\\kavrel\\SeaMap";

/// A ring by the degrees of its points, longitude and latitude in turn.
[[nodiscard]] map::Ring ring_of(bool water, const std::vector<double>& degrees);

/// The text of a tile's file.
[[nodiscard]] std::string tile_text(const map::Tile& tile, const std::vector<map::Ring>& rings);

/// All 33 tiles in kSampleSeaMap. Land is from 30 to 36 N between 130 and 142 E, cut at 140 E, with
/// a lake from 32 to 34 N and 133 to 136 E; a triangle about 170 E, 20 N; and a rock of two points
/// at 150 E, 25 N.
void add_sea_map(FakeFiles& files);

/// From now on the tiles of this folder of the computer are taken instead: for pictures of screens.
void take_tiles_from(const std::string& folder);

/// The small sea map in files of its own.
struct SampleSeaMap {
  SampleSeaMap() { add_sea_map(files); }
  FakeFiles files;
  map::SeaMap sea_map{files, kSampleSeaMap};
};

}  // namespace fakes
