#include "app/CIniEx.h"

#include <algorithm>

#include "platform/paths.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace app {

using platform::FileError;

namespace {

// ASCII alone: no locale may decide which key is meant.
char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool is_one_line(std::string_view text) {
  return text.find_first_of("\r\n") == std::string_view::npos;
}

/// A path cut into its folder (with the "\"), the name without its extension, and that.
struct NameParts {
  std::string folder;
  std::string stem;
  std::string extension;
};

NameParts parts_of(const std::string& path) {
  const auto name_at = platform::folder_part(path).size();
  const auto point = path.rfind('.');
  const bool has_extension = point != std::string::npos && point >= name_at;
  const auto stem_end = has_extension ? point : path.size();
  return {path.substr(0, name_at), path.substr(name_at, stem_end - name_at),
          has_extension ? path.substr(point + 1) : std::string()};
}

/// Number of a backup's extension, 0 when it is none.
int backup_number(const std::string& extension) {
  constexpr std::size_t kMostDigits = 9;  // more would not be a number of this program's
  if (!text::is_all_digits(extension) || extension.size() > kMostDigits) return 0;
  return text::leading_int(extension);
}

}  // namespace

CIniEx::~CIniEx() {
  if (options_.auto_save) (void)save();  // nobody is left to tell
}

void CIniEx::clear() {
  path_.clear();
  options_ = {};
  sections_.clear();
  modified_ = false;
}

FileError CIniEx::open(const std::string& path, Options options) {
  if (const FileError error = save(); error != FileError::kNone) return error;
  clear();
  (void)files_.clear_read_only(path);  // what cannot be cleared shows when it is saved
  auto content = files_.read(path);
  // A link that leads nowhere reads as missing too, and what it names may only be away.
  if (content.error == FileError::kNotFound && options.create &&
      files_.look(path).there == platform::There::kNo) {
    if (const FileError error = files_.replace(path, ""); error != FileError::kNone) return error;
    content = std::string();
  }
  if (!content.ok()) return content.error;
  path_ = path;
  options_ = options;
  sections_ = parse_ini(*content.value);
  return FileError::kNone;
}

bool CIniEx::equal(std::string_view a, std::string_view b) const {
  if (!options_.case_insensitive) return a == b;
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lower(x) == lower(y); });
}

const IniEntry* CIniEx::find(std::string_view section, std::string_view key) const {
  for (std::size_t i = sections_.size(); i-- > 0;) {
    if (!equal(sections_[i].name, section)) continue;
    const auto& entries = sections_[i].entries;
    const auto entry = std::find_if(entries.rbegin(), entries.rend(),
                                    [&](const IniEntry& one) { return equal(one.key, key); });
    if (entry != entries.rend()) return &*entry;
  }
  return nullptr;
}

std::string CIniEx::value(std::string_view section, std::string_view key,
                          std::string_view otherwise) const {
  const IniEntry* entry = find(section, key);
  return std::string(entry == nullptr ? otherwise : without_comment(entry->value));
}

IniSection& CIniEx::section_named(std::string_view name) {
  const auto last = std::find_if(sections_.rbegin(), sections_.rend(),
                                 [&](const IniSection& each) { return equal(each.name, name); });
  if (last != sections_.rend()) return *last;
  // The section without a name is the first one and has no header.
  if (name.empty()) return *sections_.emplace(sections_.begin());
  return sections_.emplace_back(IniSection{true, std::string(name), {}});
}

bool CIniEx::set_value(std::string_view section, std::string_view key, std::string_view value) {
  if (!is_one_line(section) || !is_one_line(key) || !is_one_line(value) ||
      key.find('=') != std::string_view::npos)
    return false;
  if (const IniEntry* entry = find(section, key)) {
    // The same value keeps the comment behind it, and the file stays as it is.
    if (without_comment(entry->value) == value) return true;
    const_cast<IniEntry*>(entry)->value = value;
  } else {
    section_named(section).entries.push_back({std::string(key), std::string(value)});
  }
  modified_ = true;
  return true;
}

FileError CIniEx::back_up() const {
  const FileError error = platform::why_no_file(files_.look(path_));
  if (error == FileError::kNotFound) return FileError::kNone;
  if (error != FileError::kNone) return error;
  const NameParts own = parts_of(path_);
  const auto entries = files_.list(own.folder.empty() ? files_.current_folder() : own.folder);
  if (!entries.ok()) return entries.error;
  int largest = 0;
  for (const auto& entry : *entries.value) {
    const NameParts other = parts_of(entry.name);
    if (!entry.is_folder && other.stem == own.stem)
      largest = std::max(largest, backup_number(other.extension));
  }
  return files_.copy(path_, own.folder + own.stem + "." + text::format_digits(largest + 1, 3));
}

FileError CIniEx::save() {
  if (!modified_) return FileError::kNone;
  if (options_.keep_backup)
    if (const FileError error = back_up(); error != FileError::kNone) return error;
  const FileError error = files_.replace(path_, write_ini(sections_));
  if (error == FileError::kNone) modified_ = false;
  return error;
}

}  // namespace app
