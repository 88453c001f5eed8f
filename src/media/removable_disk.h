#pragma once
// A folder on a drive whose disk may be away, full, or exchanged while the program waits.

#include <cstdint>
#include <string>

#include "ui/services.h"

namespace media {

/// By the drive letter, in either case; the disk need not be in.
[[nodiscard]] bool is_on_removable_drive(const platform::Drives& drives, const std::string& folder);

/// Asks until a disk with room for so many bytes lies in the folder's drive; false when the officer
/// gives up. At once true for a drive that is not removable.
[[nodiscard]] bool disk_is_ready(ui::Services& services, const std::string& folder,
                                 std::uint64_t bytes);

}  // namespace media
