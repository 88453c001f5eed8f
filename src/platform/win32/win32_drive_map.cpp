#include "platform/win32/win32_drive_map.h"

#include <windows.h>
#include <winioctl.h>

#include <algorithm>
#include <array>

#include "platform/win32/wide.h"
#include "platform/win32/win32_files.h"

namespace platform::win32 {

namespace {

bool is_separator(char c) {
  return c == '\\' || c == '/';
}

bool is_share(std::string_view path) {
  return path.size() > 2 && is_separator(path[0]) && is_separator(path[1]) &&
         !is_separator(path[2]) && path[2] != '?' && path[2] != '.';
}

bool is_absolute(std::string_view path) {
  return (path.size() > 2 && drive_letter(path[0]) != 0 && path[1] == ':' &&
          is_separator(path[2])) ||
         (!path.empty() && is_separator(path[0]));
}

std::optional<std::string> normal(const std::string& path) {
  const auto given = to_wide(path);
  if (!given) return std::nullopt;
  const DWORD needed = ::GetFullPathNameW(given->c_str(), 0, nullptr, nullptr);
  std::wstring whole(needed, L'\0');
  const DWORD length = ::GetFullPathNameW(given->c_str(), needed, whole.data(), nullptr);
  if (needed == 0 || length == 0 || length >= needed) return std::nullopt;
  whole.resize(length);
  auto result = to_utf8(whole);
  while (result && result->size() > 1 && result->back() == '\\') result->pop_back();
  return result;
}

FileError why_no_medium(const std::string& folder) {
  const auto path = wide_path(folder);
  if (!path.ok()) return path.error;
  // Asked of a drive without a medium, the system would ask the person in a window of its own; see
  // prepare_process().
  const DWORD found = ::GetFileAttributesW(path.value->c_str());
  if (found != INVALID_FILE_ATTRIBUTES)
    return (found & FILE_ATTRIBUTE_DIRECTORY) != 0 ? FileError::kNone : FileError::kMediumMissing;
  const FileError error = file_error(::GetLastError());
  return error == FileError::kNotFound ? FileError::kMediumMissing : error;
}

/// A drive as a device, for questions that need no right.
class Device {
 public:
  explicit Device(char letter) {
    const std::wstring name = std::wstring(L"\\\\.\\") + static_cast<wchar_t>(letter) + L":";
    handle_ = ::CreateFileW(name.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_EXISTING, 0, nullptr);
  }
  ~Device() {
    if (handle_ != INVALID_HANDLE_VALUE) (void)::CloseHandle(handle_);
  }
  Device(const Device&) = delete;
  Device& operator=(const Device&) = delete;

  /// How many geometries the answer to the question holds.
  template <std::size_t kMost>
  std::size_t ask(DWORD question, std::array<DISK_GEOMETRY, kMost>& answer) const {
    DWORD bytes = 0;
    if (handle_ == INVALID_HANDLE_VALUE ||
        ::DeviceIoControl(handle_, question, nullptr, 0, answer.data(),
                          static_cast<DWORD>(sizeof answer), &bytes, nullptr) == 0)
      return 0;
    return bytes / sizeof(DISK_GEOMETRY);
  }

 private:
  HANDLE handle_;
};

}  // namespace

const ComputerPaths& computer_paths() {
  static const ComputerPaths paths{'\\', true, is_absolute, normal, why_no_medium, is_share};
  return paths;
}

unsigned DriveCalls::logical_drives() {
  return ::GetLogicalDrives();
}

DriveType DriveCalls::type(char letter) {
  const std::wstring top = std::wstring(1, static_cast<wchar_t>(letter)) + L":\\";
  const UINT type = ::GetDriveTypeW(top.c_str());
  // The numbers are the system's own.
  return type <= static_cast<UINT>(DriveType::kRamDisk) ? static_cast<DriveType>(type)
                                                        : DriveType::kUnknown;
}

std::optional<int> DriveCalls::media_type(char letter) {
  const Device device(letter);
  constexpr std::size_t kMost = 20;
  std::array<DISK_GEOMETRY, kMost> geometries{};
  std::size_t count = device.ask(IOCTL_DISK_GET_DRIVE_GEOMETRY, geometries);
  // Without a medium: what the drive takes, the largest last.
  if (count == 0) count = device.ask(IOCTL_DISK_GET_MEDIA_TYPES, geometries);
  if (count == 0) return std::nullopt;
  return static_cast<int>(geometries.at(std::min(count, kMost) - 1).MediaType);
}

std::vector<Medium> ComputerDrives::find() {
  constexpr int kRemovableMedium = 11;
  std::vector<Medium> media;
  const unsigned there = calls_.logical_drives();
  for (unsigned bit = 0; bit < 26; ++bit) {
    if ((there >> bit & 1U) == 0) continue;
    Medium medium;
    medium.letter = static_cast<char>('A' + bit);
    medium.device = std::string(1, medium.letter) + ":";
    medium.folder = medium.device;
    medium.type = calls_.type(medium.letter);
    medium.media_type = medium.type == DriveType::kFixed   ? kFixedMedium
                        : medium.type == DriveType::kCdRom ? kRemovableMedium
                                                           : 0;
    if (medium.type != DriveType::kRemovable) {
      floppies_.erase(medium.letter);
    } else if (const auto known = floppies_.find(medium.letter); known != floppies_.end()) {
      medium.media_type = known->second;
    } else {
      medium.media_type = calls_.media_type(medium.letter).value_or(0);
      const bool is_floppy = medium.media_type != 0 && medium.media_type != kRemovableMedium &&
                             medium.media_type != kFixedMedium;
      if (is_floppy) floppies_[medium.letter] = medium.media_type;
    }
    media.push_back(std::move(medium));
  }
  return media;
}

std::vector<Medium> beside_root(std::vector<Medium> drives) {
  const bool has_z = std::any_of(drives.begin(), drives.end(),
                                 [](const Medium& each) { return each.letter == 'Z'; });
  for (Medium& each : drives)
    if (each.letter == 'C' && !has_z) each.letter = 'Z';
  const auto is_c = [](const Medium& each) { return each.letter == 'C'; };
  drives.erase(std::remove_if(drives.begin(), drives.end(), is_c), drives.end());
  return drives;
}

}  // namespace platform::win32
