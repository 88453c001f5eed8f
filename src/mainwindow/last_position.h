#pragma once
// Where the ship was at its last saved report.

#include <optional>
#include <string>

#include "observation/Struct_Weather.h"
#include "platform/ports.h"

namespace mainwindow {

/// Position of the newest report in the folder, by the date in its name; a report without a
/// readable position is passed over for the one before it. Nothing when there is none. The folder
/// is as the settings have it.
[[nodiscard]] std::optional<TenthsPosition> last_saved_position(platform::Files& files,
                                                                const std::string& folder);

}  // namespace mainwindow
