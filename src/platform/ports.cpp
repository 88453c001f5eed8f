#include "platform/ports.h"

#include "platform/paths.h"

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
  // "Not there" is never an answer where one cannot tell, whatever the error was.
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

namespace {

constexpr std::string_view kBegin = ".kavrel-";
constexpr std::string_view kEnd = ".part";

}  // namespace

std::string staged_name(std::uint64_t process, unsigned number) {
  std::string name(kBegin);
  name.append(std::to_string(process)).append("-").append(std::to_string(number)).append(kEnd);
  return name;
}

std::optional<std::uint64_t> staged_by(std::string_view name) {
  // No number that could wrap: a file of another program is not taken for a staged one.
  constexpr std::size_t kMostFigures = 9;
  if (!name.starts_with(kBegin) || !name.ends_with(kEnd) ||
      name.size() < kBegin.size() + kEnd.size())
    return std::nullopt;
  name = name.substr(kBegin.size(), name.size() - kBegin.size() - kEnd.size());
  const auto dash = name.find('-');
  if (dash == std::string_view::npos) return std::nullopt;
  std::uint64_t process = 0;
  for (const std::string_view figures : {name.substr(0, dash), name.substr(dash + 1)}) {
    if (figures.empty() || figures.size() > kMostFigures) return std::nullopt;
    for (const char c : figures)
      if (c < '0' || c > '9') return std::nullopt;
  }
  for (const char c : name.substr(0, dash)) process = process * 10 + static_cast<unsigned>(c - '0');
  return process;
}

void clear_staged(Files& files, const std::string& folder) {
  const auto entries = files.list(folder);
  if (!entries.ok()) return;
  for (const FolderEntry& entry : *entries.value) {
    const auto process = staged_by(entry.name);
    if (!process || entry.is_folder || files.is_running(*process)) continue;
    const std::string path = join(folder, entry.name);
    files.discard({path, path});
  }
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
