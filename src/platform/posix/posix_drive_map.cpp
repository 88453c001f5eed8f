#include "platform/posix/posix_drive_map.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "platform/posix/posix_files.h"

namespace platform::posix {

namespace {

FileError why_no_medium(const std::string& folder) {
  struct stat about {};
  if (::stat(folder.c_str(), &about) == 0)
    return S_ISDIR(about.st_mode) ? FileError::kNone : FileError::kMediumMissing;
  return errno == ENOENT || errno == ENOTDIR ? FileError::kMediumMissing : file_error(errno);
}

bool is_absolute(std::string_view path) {
  return path.starts_with('/');
}

std::optional<std::string> normal(const std::string& path) {
  namespace fs = std::filesystem;
  std::error_code error;
  fs::path absolute = fs::absolute(path, error);
  if (error) return std::nullopt;
  // Only the file system knows what ".." behind a link means.
  if (std::find(absolute.begin(), absolute.end(), "..") != absolute.end())
    absolute = fs::weakly_canonical(absolute, error);
  if (error) return std::nullopt;
  return absolute.lexically_normal().string();
}

}  // namespace

const ComputerPaths& computer_paths() {
  static const ComputerPaths paths{'/', false, is_absolute, normal, why_no_medium, nullptr};
  return paths;
}

PosixDriveMap::PosixDriveMap(const std::string& root, std::function<std::vector<Medium>()> find)
    : DriveMap(computer_paths(),
               {{"C", 'C', DriveType::kFixed, kFixedMedium, root},
                {"Z", 'Z', DriveType::kFixed, kFixedMedium, ""}},
               std::move(find)) {}

}  // namespace platform::posix
