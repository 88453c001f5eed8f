#pragma once
// The sea map: its tiles, read when they are needed, and what they say of a place.

#include <list>
#include <memory>
#include <string>
#include <vector>

#include "map/tiles/coast.h"
#include "platform/ports.h"

namespace map {

/// A coast counts as land up to here, in nautical miles: as far off as the data and a position in
/// whole minutes may be.
inline constexpr double kCoastalMiles = 2.0;

enum class Land {
  kNo,
  kYes,       ///< on land or in a coastal region
  kNotKnown,  ///< a tile that decides it cannot be used
};

/// A tile that cannot be used, or the whole folder where it is not there.
struct TileTrouble {
  std::string path;
  platform::FileError error = platform::FileError::kNone;  ///< kNone: read, but damaged
};

class SeaMap {
 public:
  /// Folder of the tiles, without a backslash at its end.
  SeaMap(const platform::Files& files, std::string folder);

  /// Land that lies within kCoastalMiles of the place counts, also that of a neighbouring tile. The
  /// answer is the data's: lakes, river ports and canals are land, ice shelves are sea.
  [[nodiscard]] Land at(Place place);
  /// The tile; nothing when it cannot be used. Read once, and kept while it is among the few asked
  /// for last; one that could not be used is not tried again.
  [[nodiscard]] std::shared_ptr<const Coast> coast(const Tile& tile);
  /// Tiles that could not be used and were not told yet.
  [[nodiscard]] std::vector<TileTrouble> take_troubles();

 private:
  struct Kept {
    Tile tile;
    std::shared_ptr<const Coast> coast;
  };

  [[nodiscard]] std::shared_ptr<const Coast> read(const Tile& tile);

  const platform::Files& files_;
  std::string folder_;
  std::list<Kept> kept_;  ///< the one asked for last comes first
  std::vector<Tile> unusable_;
  std::vector<TileTrouble> troubles_;
  bool folder_told_ = false;
};

}  // namespace map
