#include "archive/CBrowseForFolder.h"

#include "platform/paths.h"

std::optional<std::string> CBrowseForFolder::show() const {
  std::optional<std::string> chosen = windows_.browse_for_folder(caption_, initial_);
  if (!chosen || chosen->empty()) return std::nullopt;
  return platform::without_backslash(*chosen);
}
