#include "platform/ports.h"

namespace platform {

FileError why_no_file(const Look& found) {
  switch (found.there) {
    case There::kNo:
      return FileError::kNotFound;
    case There::kFile:
      return FileError::kNone;
    case There::kFolder:
    case There::kOther:
      return FileError::kNotAFile;
    case There::kCannotTell:
      break;
  }
  return found.error == FileError::kNone || found.error == FileError::kNotFound ? FileError::kOther
                                                                                : found.error;
}

FileError Files::replace(const std::string& path, std::string_view content) {
  const auto staged = stage(path, content);
  if (!staged.ok()) return staged.error;
  const FileError error = commit(*staged.value);
  if (error != FileError::kNone) discard(*staged.value);
  return error;
}

bool Files::is_file(const std::string& path) const {
  return look(path).there == There::kFile;
}

bool Files::is_folder(const std::string& path) const {
  return look(path).there == There::kFolder;
}

std::optional<std::uint64_t> Files::size(const std::string& path) const {
  const Look found = look(path);
  return found.there == There::kFile ? std::optional(found.size) : std::nullopt;
}

}  // namespace platform
