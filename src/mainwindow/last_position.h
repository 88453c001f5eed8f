#pragma once
// Where the ship was at its last saved reports.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "observation/Struct_Weather.h"
#include "platform/ports.h"

namespace mainwindow {

/// Positions of the newest reports in the folder, by the date in their names, the newest first and
/// at most `count`; a report without a readable position is passed over. With `before`, the name of
/// a report without its folder, only of those that are older than it. The folder is as the settings
/// have it.
[[nodiscard]] std::vector<TenthsPosition> last_saved_positions(platform::Files& files,
                                                               const std::string& folder,
                                                               std::size_t count,
                                                               std::string_view before = {});

}  // namespace mainwindow
