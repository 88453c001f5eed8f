#pragma once
// The tiles that are delivered, as the tests see them.

#include <string>

#include "map/tiles/SeaMap.h"
#include "platform/posix/posix_files.h"

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
  platform::posix::DriveMap drives_{"/"};
  platform::posix::SystemCalls calls_;
  platform::posix::PosixFiles files_{drives_, calls_};
  map::SeaMap map_{files_, std::string("Z:").append(KAVREL_SOURCE).append("/resources/SeaMap")};
};

}  // namespace kept_tiles
