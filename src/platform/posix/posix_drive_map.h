#pragma once
// Drive letters on this operating system:
//
//   C:  the officer's disk, a folder of the user's
//   Z:  the whole file system
//   A:, B:  floppy drives; D: to Y:  other removable media, as they are found

#include <functional>
#include <string>
#include <vector>

#include "platform/system/drive_map.h"

namespace platform::posix {

/// What paths are like here.
[[nodiscard]] const ComputerPaths& computer_paths();

class PosixDriveMap : public DriveMap {
 public:
  /// `root` is an absolute folder of this computer and becomes C:.
  explicit PosixDriveMap(const std::string& root,
                         std::function<std::vector<Medium>()> find_media = {});
};

}  // namespace platform::posix
