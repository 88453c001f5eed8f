#pragma once
// Drives given by hand, for tests, demonstrations and machines that do not tell of their media: the
// file "drives.txt" in the folder that is C:. One drive a line, "#" starts a comment:
//
//   LETTER TYPE MEDIUM FOLDER
//   A removable floppy floppy_a       a folder beneath C:, or an absolute one, plays the medium
//   B removable floppy absent         the drive is there, its medium is not
//   E removable other /media/stick
//   F cdrom other /media/cd with blanks
//
// TYPE is removable, fixed, remote, cdrom or ramdisk; MEDIUM is floppy, other (removable but no
// floppy), fixed, unknown, or a medium kind's number. FOLDER may come and go while the program
// runs. Where there is the file, it says it all: the computer is not asked.

#include <string>
#include <string_view>
#include <vector>

#include "platform/system/drive_map.h"

namespace platform {

struct GivenDrives {
  std::vector<Medium> media;
  /// "line 3: ..." for every line that says nothing; such a line gives no drive.
  std::vector<std::string> problems;
};

/// Reads the text of the file; `root` is where relative folders start, and `paths` what absolute ones
/// are like.
[[nodiscard]] GivenDrives read_drives(std::string_view text, const std::string& root,
                                      const ComputerPaths& paths);

/// What was wrong with the file, one line each: with reading it, which is fine where it is not there,
/// or with its own lines.
[[nodiscard]] std::vector<std::string> problems_of_drives(const Result<std::string>& text,
                                                          const std::string& root,
                                                          const ComputerPaths& paths);

}  // namespace platform
