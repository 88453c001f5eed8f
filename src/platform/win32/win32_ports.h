#pragma once
// Clock, locale, drives and help viewer on Windows.

#include <optional>
#include <string>
#include <string_view>

#include "platform/ports.h"
#include "platform/system/drive_map.h"
#include "platform/system/help_pages.h"

namespace platform::win32 {

/// The computer's clock, or one that stands still.
class Win32Clock : public Clock {
 public:
  Win32Clock() = default;
  /// Stands at this UTC; the local time is that in the system's zone.
  explicit Win32Clock(const DateTime& utc) : stopped_(utc) {}
  [[nodiscard]] DateTime local() const override;
  [[nodiscard]] DateTime utc() const override;

 private:
  std::optional<DateTime> stopped_;
};

class Win32Locale : public Locale {
 public:
  /// Of the name, or the user's own when there is none.
  explicit Win32Locale(std::string_view name);
  [[nodiscard]] unsigned locale_id() const override { return id_; }

 private:
  unsigned id_;
};

class Win32Drives : public Drives {
 public:
  /// `map` must outlive the object.
  Win32Drives(const DriveMap& map, std::string system_folder, std::string program_path)
      : map_(map),
        system_folder_(std::move(system_folder)),
        program_path_(std::move(program_path)) {}
  [[nodiscard]] std::vector<Drive> drives() const override { return map_.drives(); }
  /// Every system that the program runs on tells the medium kind.
  [[nodiscard]] std::optional<int> older_device_type(int) const override { return std::nullopt; }
  [[nodiscard]] bool medium_present(char letter) const override {
    return map_.medium_present(letter);
  }
  [[nodiscard]] std::string system_folder() const override { return system_folder_; }
  [[nodiscard]] std::string program_path() const override { return program_path_; }

 private:
  const DriveMap& map_;
  std::string system_folder_;
  std::string program_path_;
};

/// Help pages in whatever the person reads pages with.
class Win32Help : public UnpackedHelp {
 public:
  explicit Win32Help(const PathMap& map, Open open = open_in_viewer);

  static bool open_in_viewer(const std::string& os_path);
};

}  // namespace platform::win32
