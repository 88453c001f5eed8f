#include "map/tiles/SeaMap.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/paths.h"

namespace map {
namespace {

// A view of the map holds parts of two rows at most, where it goes around the globe all of both.
constexpr std::size_t kKept = 18;
// The largest has some 700 kB. What is much larger is none, and would take memory for nothing.
constexpr std::uint64_t kLargestTile = 2U << 20U;

}  // namespace

SeaMap::SeaMap(const platform::Files& files, std::string folder)
    : files_(files), folder_(std::move(folder)) {}

Land SeaMap::at(Place place) {
  const auto here = coast(tile_of(place));
  if (here != nullptr && here->is_land(place)) return Land::kYes;
  bool known = here != nullptr;
  for (const Tile& tile : all_tiles()) {
    if (miles_to(tile, place) > kCoastalMiles) continue;
    const auto there = coast(tile);
    if (there == nullptr)
      known = false;
    else if (there->is_near(place, kCoastalMiles))
      return Land::kYes;
  }
  return known ? Land::kNo : Land::kNotKnown;
}

std::shared_ptr<const Coast> SeaMap::coast(const Tile& tile) {
  const auto at =
      std::find_if(kept_.begin(), kept_.end(), [&](const Kept& kept) { return kept.tile == tile; });
  if (at != kept_.end()) {
    kept_.splice(kept_.begin(), kept_, at);
    return kept_.front().coast;
  }
  if (std::find(unusable_.begin(), unusable_.end(), tile) != unusable_.end()) return nullptr;
  auto read_now = read(tile);
  if (read_now == nullptr) {
    unusable_.push_back(tile);
    return nullptr;
  }
  kept_.push_front({tile, std::move(read_now)});
  if (kept_.size() > kKept) kept_.pop_back();
  return kept_.front().coast;
}

std::shared_ptr<const Coast> SeaMap::read(const Tile& tile) {
  const std::string path = platform::join(folder_, file_name(tile));
  const auto text = files_.read(path, kLargestTile);
  auto coast = text.ok() ? parse_coast(*text.value, tile) : std::nullopt;
  if (coast) return std::make_shared<const Coast>(*std::move(coast));
  // Without the folder there is one thing to tell, not one for each tile.
  const bool of_folder = text.error == platform::FileError::kNotFound && !files_.is_folder(folder_);
  if (!of_folder || !folder_told_) troubles_.push_back({of_folder ? folder_ : path, text.error});
  folder_told_ = folder_told_ || of_folder;
  return nullptr;
}

std::vector<TileTrouble> SeaMap::take_troubles() {
  return std::exchange(troubles_, {});
}

}  // namespace map
