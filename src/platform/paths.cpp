#include "platform/paths.h"

namespace platform {
namespace {

std::string_view stripped(std::string_view folder) {
  while (folder.ends_with('\\')) folder.remove_suffix(1);
  return folder;
}

}  // namespace

std::string with_backslash(std::string_view folder) {
  return folder.empty() ? std::string() : std::string(stripped(folder)) + '\\';
}

std::string without_backslash(std::string_view folder) {
  folder = stripped(folder);
  // "A:" alone would be the current folder of that drive, not its root.
  return folder.ends_with(':') ? std::string(folder) + '\\' : std::string(folder);
}

std::string join(std::string_view folder, std::string_view name) {
  return with_backslash(folder).append(name);
}

std::string_view folder_part(std::string_view path) {
  const auto at = path.find_last_of("\\/:");
  return at == std::string_view::npos ? std::string_view() : path.substr(0, at + 1);
}

std::string_view name_part(std::string_view path) {
  return path.substr(folder_part(path).size());
}

std::string_view first_part(std::string_view& rest) {
  while (rest.starts_with('\\')) rest.remove_prefix(1);
  const std::string_view part = rest.substr(0, rest.find('\\'));
  rest.remove_prefix(part.size());
  return part;
}

}  // namespace platform
