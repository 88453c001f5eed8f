#pragma once
// Copying a file so that its copy is whole or not there, and deleting what was copied.
//
//   copy_file()      reads the source and writes it beside the copy's place, flushed (a ".part",
//                    which no search of the program matches); reads that back and compares it with
//                    the source; renames it into its place. What was there is replaced only when it
//                    is what the caller had looked at.
//   remove_copied()  compares the source with its copy once more and removes the source.
//
// Killed or failed anywhere, the source is untouched and the copy's place holds the old file or the
// new one; a ".part" that a killed program left is cleared by platform::clear_staged(), which who
// copies into a folder calls once, for its list may be long. One moment is left: another program
// that puts a file into the place between the last look and the
// rename is not noticed when a file was to be replaced.
//
// Nothing is held whole: a logbook may have some hundred megabytes.

#include <cstdint>
#include <optional>
#include <string>

#include "platform/ports.h"

namespace media {

/// What a file holds, as far as it takes to know it again.
struct Content {
  std::uint64_t length = 0;
  std::uint64_t checksum = 0;
  bool operator==(const Content&) const = default;
};

/// What lies where a copy is to go.
struct Place {
  std::optional<Content> content;  ///< of the file there; nothing: there is none
};
/// An error where something lies there that is no file, or where one cannot tell.
[[nodiscard]] platform::Result<Place> look_at_place(const platform::Files& files,
                                                    const std::string& path);

enum class CopyOutcome {
  kDone,
  kSameFile,      ///< both paths name one file
  kPlaceChanged,  ///< the copy's place does not hold (any more) what the caller had looked at
  kDiffers,       ///< source and copy are not equal
  kFailed,
};
struct CopyResult {
  CopyOutcome outcome = CopyOutcome::kDone;
  platform::FileError error = platform::FileError::kNone;  ///< why, of kFailed
  std::string failed = {};  ///< the file that it was; of kDiffers the copy; else empty
};

/// Unless it is kDone, nothing has been changed. `place` is what may be replaced.
[[nodiscard]] CopyResult copy_file(platform::Files& files, const std::string& from,
                                   const std::string& to, const Place& place);

/// Unless it is kDone, both files are as they were. Who writes into the source is to be kept out by
/// the caller meanwhile.
[[nodiscard]] CopyResult remove_copied(platform::Files& files, const std::string& from,
                                       const std::string& copy);

}  // namespace media
