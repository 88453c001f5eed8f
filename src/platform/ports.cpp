#include "platform/ports.h"

namespace platform {

FileError Files::replace(const std::string& path, std::string_view content) {
  const auto staged = stage(path, content);
  if (!staged.ok()) return staged.error;
  const FileError error = commit(*staged.value);
  if (error != FileError::kNone) discard(*staged.value);
  return error;
}

}  // namespace platform
