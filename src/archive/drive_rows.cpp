#include "archive/drive_rows.h"

#include <algorithm>

namespace archive {

using platform::DriveType;

std::vector<DriveRow> drive_rows(const platform::Drives& drives) {
  const std::vector<platform::Drive> there = drives.drives();
  std::vector<DriveRow> rows;
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const auto drive = std::find_if(there.begin(), there.end(),
                                    [&](const platform::Drive& d) { return d.letter == letter; });
    // Nothing can be saved to a drive of unknown type, or one that is not there.
    if (drive == there.end() || drive->type < DriveType::kRemovable ||
        drive->type > DriveType::kRamDisk) {
      continue;
    }
    rows.push_back({std::string(1, letter) + ":\\",
                    drive->type == DriveType::kRemote || drive->type == DriveType::kCdRom});
  }
  return rows;
}

}  // namespace archive
