#include "cli/file_reasons.h"

namespace cli {

std::string_view reason_of(platform::FileError error) {
  using platform::FileError;
  // A switch, so that the compiler misses a reason that has no words.
  switch (error) {
    case FileError::kNone:
      return "";
    case FileError::kNotFound:
      return "no such folder";
    case FileError::kAccessDenied:
      return "not permitted";
    case FileError::kNoSpace:
      return "no space left";
    case FileError::kMediumMissing:
      return "no such drive or no medium in it";
    case FileError::kNotAFile:
      return "a pipe or a device, not a file";
    case FileError::kBadLink:
      return "a link that leads nowhere or in a circle";
    case FileError::kTooManyOpen:
      return "too many open files";
    case FileError::kBadName:
      return "a name that is too long or has a character it may not have";
    case FileError::kLocked:
      return "another program holds it";
    case FileError::kExists:
      return "it exists already";
    case FileError::kOther:
      return "input or output error";
  }
  return "";
}

}  // namespace cli
