#include "platform/posix/drive_map.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string_view>

#include "platform/posix/posix_files.h"

namespace platform::posix {

namespace {

constexpr int kFixedMedium = 12;

bool is_separator(char c) {
  return c == '\\' || c == '/';
}

bool is_os_folder(const std::string& path) {
  struct stat about {};
  return ::stat(path.c_str(), &about) == 0 && S_ISDIR(about.st_mode);
}

/// kMediumMissing only where the folder of a drive is not there: a refusal or an input error says
/// nothing about that.
FileError why_no_medium(const std::string& folder) {
  struct stat about {};
  if (::stat(folder.c_str(), &about) == 0)
    return S_ISDIR(about.st_mode) ? FileError::kNone : FileError::kMediumMissing;
  return errno == ENOENT || errno == ENOTDIR ? FileError::kMediumMissing : file_error(errno);
}

/// Without a final "/": "" for the root of the file system.
std::string without_final_slash(std::string folder) {
  while (!folder.empty() && folder.back() == '/') folder.pop_back();
  return folder;
}

/// Names of a path as the officer's system reads them: ".." is a matter of text, not of links.
std::vector<std::string_view> names_of(std::string_view path) {
  std::vector<std::string_view> names;
  while (!path.empty()) {
    const auto end = static_cast<std::size_t>(std::find_if(path.begin(), path.end(), is_separator) -
                                              path.begin());
    const auto name = path.substr(0, end);
    if (name == "..") {
      if (!names.empty()) names.pop_back();
    } else if (!name.empty() && name != ".") {
      names.push_back(name);
    }
    path.remove_prefix(std::min(path.size(), end + 1));
  }
  return names;
}

/// What of `path` lies below `folder` (both without a final "/"), or nothing.
std::optional<std::string_view> below(std::string_view path, std::string_view folder) {
  if (!path.starts_with(folder)) return std::nullopt;
  const auto rest = path.substr(folder.size());
  if (!rest.empty() && rest.front() != '/') return std::nullopt;
  return rest;
}

}  // namespace

char drive_letter(char c) {
  if (c >= 'A' && c <= 'Z') return c;
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : '\0';
}

DriveMap::DriveMap(std::string root, std::function<std::vector<Medium>()> find_media)
    : root_(without_final_slash(std::move(root))), find_media_(std::move(find_media)) {
  look();
}

void DriveMap::look() const {
  std::vector<Medium> media;
  media.push_back({"C", 'C', DriveType::kFixed, kFixedMedium, root_});
  media.push_back({"Z", 'Z', DriveType::kFixed, kFixedMedium, ""});
  auto found = find_media_ ? find_media_() : std::vector<Medium>();
  // Those that insist on a letter, or had one before, come before newcomers.
  for (Medium& medium : found)
    if (const auto at = letters_.find(medium.device); medium.letter == 0 && at != letters_.end())
      medium.letter = at->second;
  std::stable_partition(found.begin(), found.end(), [](const Medium& m) { return m.letter != 0; });
  for (Medium& medium : found) {
    if (medium.letter == 0) medium.letter = free_letter(media);
    const bool taken = std::any_of(media.begin(), media.end(),
                                   [&](const Medium& m) { return m.letter == medium.letter; });
    if (medium.letter == 0 || taken) continue;
    if (medium.folder) medium.folder = without_final_slash(*medium.folder);
    letters_[medium.device] = medium.letter;
    media.push_back(std::move(medium));
  }
  std::sort(media.begin(), media.end(),
            [](const Medium& a, const Medium& b) { return a.letter < b.letter; });
  media_ = std::move(media);
}

char DriveMap::free_letter(const std::vector<Medium>& taken) const {
  for (char letter = 'D'; letter < 'Z'; ++letter) {
    const bool in_use = std::any_of(taken.begin(), taken.end(),
                                    [&](const Medium& m) { return m.letter == letter; });
    const bool kept = std::any_of(letters_.begin(), letters_.end(),
                                  [&](const auto& each) { return each.second == letter; });
    if (!in_use && !kept) return letter;
  }
  return '\0';
}

const Medium* DriveMap::find(char letter) const {
  const char wanted = drive_letter(letter);
  const auto at = std::find_if(media_.begin(), media_.end(),
                               [&](const Medium& medium) { return medium.letter == wanted; });
  return at == media_.end() ? nullptr : &*at;
}

std::vector<Drive> DriveMap::drives() const {
  look();
  std::vector<Drive> result;
  result.reserve(media_.size());
  for (const Medium& medium : media_)
    result.push_back({medium.letter, medium.type, medium.media_type});
  return result;
}

bool DriveMap::medium_present(char letter) const {
  look();
  const Medium* medium = find(letter);
  // The folder of Z: is written "": the "/" makes it the root of the file system.
  return medium != nullptr && medium->folder && is_os_folder(*medium->folder + "/");
}

Result<std::string> DriveMap::to_os(const std::string& path,
                                    const std::string& current_folder) const {
  const bool has_drive = path.size() >= 2 && path[1] == ':';
  const bool from_top = !path.empty() && is_separator(path.front());
  std::string whole = path;
  // From the top is on the current folder's drive, as the officer's system has it.
  if (!has_drive) whole = (from_top ? current_folder.substr(0, 2) : current_folder + "\\") + path;
  if (whole.size() < 2 || whole[1] != ':' || whole.find('\0') != std::string::npos)
    return FileError::kNotFound;

  const Medium* medium = find(whole[0]);
  if (medium == nullptr || !medium->folder) {
    look();  // it may have come since
    medium = find(whole[0]);
  }
  if (medium == nullptr || !medium->folder) return FileError::kMediumMissing;
  if (const FileError error = why_no_medium(*medium->folder + "/"); error != FileError::kNone)
    return error;
  std::string result = *medium->folder;
  for (const std::string_view name : names_of(std::string_view(whole).substr(2)))
    result.append("/").append(name);
  return result.empty() ? std::string("/") : result;
}

std::optional<std::string> DriveMap::to_program(const std::string& os_path) const {
  namespace fs = std::filesystem;
  std::error_code error;
  fs::path absolute = fs::absolute(os_path, error);
  if (error || os_path.empty()) return std::nullopt;
  // Only the file system knows what ".." behind a link means.
  if (std::find(absolute.begin(), absolute.end(), "..") != absolute.end())
    absolute = fs::weakly_canonical(absolute, error);
  if (error) return std::nullopt;
  const std::string path = without_final_slash(absolute.lexically_normal().string());
  if (path.find('\\') != std::string::npos || path.find('\0') != std::string::npos)
    return std::nullopt;

  // Z: holds everything, and a medium may be mounted below C:.
  const Medium* nearest = nullptr;
  for (const Medium& medium : media_) {
    if (!medium.folder || !below(path, *medium.folder)) continue;
    if (nearest == nullptr || medium.folder->size() > nearest->folder->size()) nearest = &medium;
  }
  if (nearest == nullptr) return std::nullopt;
  std::string result = std::string(1, nearest->letter) + ":";
  const auto rest = *below(path, *nearest->folder);
  for (const char c : rest.empty() ? std::string_view("/") : rest)
    result.push_back(c == '/' ? '\\' : c);
  return result;
}

}  // namespace platform::posix
