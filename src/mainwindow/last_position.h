#pragma once
// Where the ship was at its last saved reports.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "observation/Struct_Weather.h"
#include "platform/ports.h"

namespace mainwindow {

struct SavedPosition {
  TenthsPosition at;
  int hour = 0;  ///< since the beginning of 2000
};

/// Positions of the newest reports in the folder, by the date in their names, the newest first and
/// at most `count`; a report without a readable position is passed over. With `before`, the name of
/// a report without its folder, only of those that are older than it. The folder is as the settings
/// have it.
[[nodiscard]] std::vector<SavedPosition> last_saved_positions(platform::Files& files,
                                                              const std::string& folder,
                                                              std::size_t count,
                                                              std::string_view before = {});

/// The track of a ship whose observation has that report name (empty while it has no date): the
/// positions of the two days before it, or before the newest of them. The newest first.
[[nodiscard]] std::vector<TenthsPosition> track_of(const std::vector<SavedPosition>& saved,
                                                   std::string_view observation);

}  // namespace mainwindow
