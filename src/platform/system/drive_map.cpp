#include "platform/system/drive_map.h"

#include <algorithm>
#include <string_view>

namespace platform {

namespace {

bool is_separator(char c) {
  return c == '\\' || c == '/';
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

bool same_character(char a, char b, bool ignores_case) {
  const auto lower = [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  };
  return a == b || (ignores_case && lower(a) == lower(b));
}

}  // namespace

char drive_letter(char c) {
  if (c >= 'A' && c <= 'Z') return c;
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : '\0';
}

DriveMap::DriveMap(const ComputerPaths& paths, std::vector<Medium> always,
                   std::function<std::vector<Medium>()> find_media)
    : paths_(paths), always_(std::move(always)), find_media_(std::move(find_media)) {
  for (Medium& medium : always_)
    if (medium.folder) medium.folder = without_final_separator(*medium.folder);
  look();
}

// "" is the top of a file system that has one.
std::string DriveMap::without_final_separator(std::string folder) const {
  while (!folder.empty() && folder.back() == paths_.separator) folder.pop_back();
  return folder;
}

// The folder of a whole drive is kept without what parts names, and is no folder then.
std::string DriveMap::top(const std::string& folder) const {
  return folder + paths_.separator;
}

bool DriveMap::same_name(std::string_view a, std::string_view b) const {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](char first, char second) {
    return same_character(first, second, paths_.ignores_case);
  });
}

/// What of `path` lies below `folder` (both without a final separator), or nothing.
std::optional<std::string_view> DriveMap::below(std::string_view path,
                                                std::string_view folder) const {
  if (!same_name(path.substr(0, folder.size()), folder)) return std::nullopt;
  const auto rest = path.substr(folder.size());
  if (!rest.empty() && rest.front() != paths_.separator) return std::nullopt;
  return rest;
}

void DriveMap::look() const {
  std::vector<Medium> media = always_;
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
    if (medium.folder) medium.folder = without_final_separator(*medium.folder);
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
  return medium != nullptr && medium->folder &&
         paths_.why_no_medium(top(*medium->folder)) == FileError::kNone;
}

Result<std::string> DriveMap::to_os(const std::string& path,
                                    const std::string& current_folder) const {
  const bool has_drive = path.size() >= 2 && path[1] == ':';
  const bool from_top = !path.empty() && is_separator(path.front());
  std::string whole = path;
  // From the top is on the current folder's drive, as the officer's system has it.
  if (!has_drive) whole = (from_top ? current_folder.substr(0, 2) : current_folder + "\\") + path;
  if (paths_.is_share != nullptr && (paths_.is_share(path) || paths_.is_share(whole))) {
    std::string share = paths_.is_share(path) ? path : whole;
    std::replace(share.begin(), share.end(), '/', '\\');
    return share;
  }
  if (whole.size() < 2 || whole[1] != ':' || whole.find('\0') != std::string::npos)
    return FileError::kNotFound;

  const Medium* medium = find(whole[0]);
  if (medium == nullptr || !medium->folder) {
    look();  // it may have come since
    medium = find(whole[0]);
  }
  if (medium == nullptr || !medium->folder) return FileError::kMediumMissing;
  if (const FileError error = paths_.why_no_medium(top(*medium->folder)); error != FileError::kNone)
    return error;
  auto names = names_of(std::string_view(whole).substr(2));
  // A name that holds ":" would be another drive, or a part of a file that nobody sees.
  if (paths_.separator == '\\' && std::any_of(names.begin(), names.end(), [](auto name) {
        return name.find(':') != std::string_view::npos;
      }))
    return FileError::kBadName;
  std::string result = *medium->folder;
  if (elsewhere_ && medium->letter == elsewhere_->letter && !names.empty() &&
      same_name(names.front(), elsewhere_->name)) {
    result = elsewhere_->folder;
    names.erase(names.begin());
  }
  for (const std::string_view name : names) {
    result.push_back(paths_.separator);
    result.append(name);
  }
  const bool is_top = result.find(paths_.separator) == std::string::npos;
  return is_top ? top(result) : result;
}

std::optional<std::string> DriveMap::to_program(const std::string& os_path) const {
  if (os_path.empty() || os_path.find('\0') != std::string::npos) return std::nullopt;
  const auto normal = paths_.normal(os_path);
  if (!normal) return std::nullopt;
  if (paths_.is_share != nullptr && paths_.is_share(*normal)) return normal;
  const std::string path = without_final_separator(*normal);
  if (paths_.separator != '\\' && path.find('\\') != std::string::npos) return std::nullopt;

  const auto in_words = [&](std::string result, std::string_view rest) {
    for (const char c : rest) result.push_back(c == paths_.separator ? '\\' : c);
    return result;
  };
  if (elsewhere_)
    if (const auto rest = below(path, elsewhere_->folder))
      return in_words(std::string(1, elsewhere_->letter) + ":\\" + elsewhere_->name, *rest);
  // One drive may hold everything, and a medium may lie below C:.
  const Medium* nearest = nullptr;
  for (const Medium& medium : media_) {
    if (!medium.folder || !below(path, *medium.folder)) continue;
    if (nearest == nullptr || medium.folder->size() > nearest->folder->size()) nearest = &medium;
  }
  if (nearest == nullptr) return std::nullopt;
  const auto rest = *below(path, *nearest->folder);
  return in_words(std::string(1, nearest->letter) + (rest.empty() ? ":\\" : ":"), rest);
}

}  // namespace platform
