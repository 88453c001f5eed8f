#pragma once
// Removable media as the kernel reports them.

#include <string>
#include <vector>

#include "platform/system/drive_map.h"

namespace platform::posix {

/// Where the kernel tells of its devices and mounts; a test builds its own.
struct KernelFolders {
  std::string block = "/sys/block";
  std::string mounts = "/proc/self/mountinfo";
};

/// Every floppy drive (fd0 is A:, fd1 is B:), with or without a medium, and every mounted medium of
/// a removable disk or CD-ROM drive. The medium kind comes from the device's size where that is a
/// floppy form, else it is 11 (removable, not floppy). Nothing on a system that does not tell.
[[nodiscard]] std::vector<Medium> removable_media(const KernelFolders& kernel = {});

}  // namespace platform::posix
