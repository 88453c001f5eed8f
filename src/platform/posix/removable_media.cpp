#include "platform/posix/removable_media.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

namespace platform::posix {

namespace {

namespace fs = std::filesystem;

constexpr int kRemovableMedium = 11;
constexpr int kUsualFloppy = 2;

/// Sizes of the floppy forms in sectors of 512 bytes, with their medium kinds.
struct FloppyForm {
  long sectors;
  int media_type;
};
constexpr FloppyForm kFloppyForms[] = {
    {2400, 1},   // 5.25", 1.2 MB
    {2880, 2},   // 3.5", 1.44 MB
    {5760, 3},   // 3.5", 2.88 MB
    {41040, 4},  // 3.5", 20.8 MB
    {1440, 5},   // 3.5", 720 kB
    {720, 6},    // 5.25", 360 kB
    {640, 7},    // 5.25", 320 kB
};

// Of /proc/self/mountinfo, whose device numbers match those of the block devices; the names of
// devices that other lists hold may be anything.
struct Mount {
  std::string device;  ///< "8:1"
  std::string folder;
};

std::string first_line(const fs::path& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  return line;
}

/// The kernel writes blanks in names as "\040".
std::string unescaped(const std::string& text) {
  const auto octal = [](char c) { return c >= '0' && c <= '7'; };
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\' && i + 3 < text.size() && octal(text[i + 1]) && octal(text[i + 2]) &&
        octal(text[i + 3])) {
      result.push_back(static_cast<char>((text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 +
                                         (text[i + 3] - '0')));
      i += 3;
    } else {
      result.push_back(text[i]);
    }
  }
  return result;
}

std::vector<Mount> read_mounts(const std::string& path) {
  std::vector<Mount> mounts;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    std::istringstream fields(line);
    std::string id;
    std::string parent;
    std::string root;
    Mount mount;
    if (fields >> id >> parent >> mount.device >> root >> mount.folder) {
      mount.folder = unescaped(mount.folder);
      mounts.push_back(std::move(mount));
    }
  }
  return mounts;
}

std::optional<std::string> mounted_at(const std::string& device, const std::vector<Mount>& mounts) {
  const auto at = std::find_if(mounts.begin(), mounts.end(),
                               [&](const Mount& mount) { return mount.device == device; });
  return at == mounts.end() ? std::nullopt : std::optional(at->folder);
}

int media_type_of(const fs::path& device, int otherwise) {
  std::istringstream text(first_line(device / "size"));
  long sectors = 0;
  text >> sectors;
  const auto* const form =
      std::find_if(std::begin(kFloppyForms), std::end(kFloppyForms),
                   [&](const FloppyForm& each) { return each.sectors == sectors; });
  return form == std::end(kFloppyForms) ? otherwise : form->media_type;
}

bool is_floppy_drive(const std::string& name) {
  return name.size() == 3 && name.starts_with("fd") && (name[2] == '0' || name[2] == '1');
}

/// What lies in a folder, in the order of the names. A folder that cannot be read, or not to its
/// end, gives what was seen of it.
std::vector<fs::path> entries_of(const fs::path& folder) {
  std::vector<fs::path> entries;
  std::error_code error;
  for (fs::directory_iterator at(folder, error); !error && at != fs::directory_iterator();
       at.increment(error))
    entries.push_back(at->path());
  std::sort(entries.begin(), entries.end());
  return entries;
}

/// The mounted media of one disk: the disk itself and its partitions, which are folders in its own.
void add_mounted(const fs::path& disk, const std::vector<Mount>& mounts,
                 std::vector<Medium>& media) {
  const std::string name = disk.filename().string();
  const DriveType type = name.starts_with("sr") ? DriveType::kCdRom : DriveType::kRemovable;
  std::vector<fs::path> parts{disk};
  for (fs::path& entry : entries_of(disk))
    if (entry.filename().string().starts_with(name)) parts.push_back(std::move(entry));
  for (const fs::path& part : parts)
    if (auto folder = mounted_at(first_line(part / "dev"), mounts))
      media.push_back({part.filename().string(), 0, type, media_type_of(disk, kRemovableMedium),
                       std::move(folder)});
}

}  // namespace

std::vector<Medium> removable_media(const KernelFolders& kernel) {
  const auto mounts = read_mounts(kernel.mounts);
  std::vector<Medium> media;
  for (const fs::path& disk : entries_of(kernel.block)) {
    const std::string name = disk.filename().string();
    if (is_floppy_drive(name)) {
      media.push_back({name, static_cast<char>('A' + (name[2] - '0')), DriveType::kRemovable,
                       media_type_of(disk, kUsualFloppy),
                       mounted_at(first_line(disk / "dev"), mounts)});
    } else if (first_line(disk / "removable") == "1") {
      add_mounted(disk, mounts, media);
    }
  }
  return media;
}

}  // namespace platform::posix
