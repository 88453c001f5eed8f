#pragma once
// Drive letters on Windows are the computer's own. Where a folder is given as C:, the computer's own
// drive of that letter is Z:, if nothing else is; all others stay as they are.

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/system/drive_map.h"

namespace platform::win32 {

/// What paths are like here.
[[nodiscard]] const ComputerPaths& computer_paths();

/// What the computer says of its drives; a test says something else.
class DriveCalls {
 public:
  virtual ~DriveCalls() = default;
  /// Bit 0 is A:.
  virtual unsigned logical_drives();
  virtual DriveType type(char letter);
  /// Drive::media_type by the geometry of the medium, or of what the drive takes where there is
  /// none; nothing where the drive tells neither.
  virtual std::optional<int> media_type(char letter);
};

/// The computer's drives, each on its own top folder. A floppy drive keeps its kind for as long as
/// it is there, so it is asked, and turns, once.
class ComputerDrives {
 public:
  explicit ComputerDrives(DriveCalls& calls) : calls_(calls) {}
  [[nodiscard]] std::vector<Medium> find();

 private:
  DriveCalls& calls_;
  std::map<char, int> floppies_;
};

/// The drives as they are where `root` is C:, which is not among them.
[[nodiscard]] std::vector<Medium> beside_root(std::vector<Medium> drives);

}  // namespace platform::win32
