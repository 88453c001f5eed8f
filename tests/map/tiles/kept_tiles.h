#pragma once
// The tiles that are delivered, as the tests see them.

#include <string>

#include "fakes/real_files.h"
#include "map/tiles/SeaMap.h"

namespace kept_tiles {

/// Their folder, with a slash at its end.
inline std::string folder() {
  return std::string(KAVREL_SOURCE).append("/resources/SeaMap/");
}

/// The sea map of the tiles, with real files.
class Map {
 public:
  map::SeaMap& operator*() { return map_; }
  map::SeaMap* operator->() { return &map_; }

 private:
  fakes::RealFiles real_{KAVREL_SOURCE};
  map::SeaMap map_{real_.files(), "C:\\resources\\SeaMap"};
};

}  // namespace kept_tiles
