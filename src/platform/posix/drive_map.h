#pragma once
// The map from drive letters to the computer's folders, the only place that joins a "/".
//
//   C:  the officer's disk, a folder of the user's
//   Z:  the whole file system
//   A:, B:  floppy drives; D: to Y:  other removable media, as they are found
//
// What is found comes from a function (see removable_media.h and drives_file.h); a medium keeps its
// letter for as long as the program runs.

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/ports.h"

namespace platform::posix {

/// A drive with or without its medium.
struct Medium {
  std::string device;  ///< what it is known by from one look to the next
  char letter = 0;     ///< 0: the next free one
  DriveType type = DriveType::kRemovable;
  int media_type = 11;                ///< as Drive::media_type
  std::optional<std::string> folder;  ///< where the medium is mounted; nothing when there is none
};

class DriveMap {
 public:
  /// `root` is an absolute folder of this computer and becomes C:.
  explicit DriveMap(std::string root, std::function<std::vector<Medium>()> find_media = {});

  /// All drives in letter order; looks anew for media.
  [[nodiscard]] std::vector<Drive> drives() const;
  [[nodiscard]] bool medium_present(char letter) const;

  /// A program path as this computer's. A path without a drive letter starts at `current_folder`.
  /// "/" parts names as "\" does; "." and empty names are dropped; ".." never climbs above the
  /// drive's own folder. kMediumMissing when there is no such drive or no medium in it, kNotFound
  /// for a path that no file can have, and the computer's reason when one cannot tell about the
  /// drive's folder.
  [[nodiscard]] Result<std::string> to_os(const std::string& path,
                                          const std::string& current_folder = "C:\\") const;

  /// A path of this computer (relative ones start at the process's folder) as the program's: on C:
  /// or another drive when it lies there, else on Z:. Nothing for a name that holds a "\".
  [[nodiscard]] std::optional<std::string> to_program(const std::string& os_path) const;

 private:
  void look() const;
  [[nodiscard]] const Medium* find(char letter) const;
  [[nodiscard]] char free_letter(const std::vector<Medium>& taken) const;

  std::string root_;
  std::function<std::vector<Medium>()> find_media_;
  mutable std::vector<Medium> media_;  ///< in letter order, C: and Z: among them
  mutable std::map<std::string, char> letters_;
};

/// The upper-case letter, or 0 for a character that names no drive.
[[nodiscard]] char drive_letter(char c);

}  // namespace platform::posix
