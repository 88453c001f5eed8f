#pragma once
// Clock, locale, drives and help viewer on this operating system.

#include <optional>
#include <string>
#include <string_view>

#include "platform/ports.h"
#include "platform/system/drive_map.h"
#include "platform/system/help_pages.h"
#include "platform/system/options.h"

namespace platform::posix {

/// The computer's clock, or one that stands still.
class PosixClock : public Clock {
 public:
  PosixClock() = default;
  /// Stands at this UTC; the local time is that in the system's zone.
  explicit PosixClock(const DateTime& utc);
  [[nodiscard]] DateTime local() const override;
  [[nodiscard]] DateTime utc() const override;

 private:
  std::optional<long long> stopped_;  ///< seconds since 1970-01-01 00:00 UTC
};

/// The name in force for messages: LC_ALL, LC_MESSAGES or LANG, the first that is not empty.
[[nodiscard]] std::string environment_locale();

class PosixLocale : public Locale {
 public:
  explicit PosixLocale(std::string_view name) : id_(locale_id_of(name)) {}
  [[nodiscard]] unsigned locale_id() const override { return id_; }

 private:
  unsigned id_;
};

class PosixDrives : public Drives {
 public:
  PosixDrives(const DriveMap& map, std::string program_path)
      : map_(map), program_path_(std::move(program_path)) {}
  [[nodiscard]] std::vector<Drive> drives() const override { return map_.drives(); }
  /// This system tells the medium kind, as current systems do.
  [[nodiscard]] std::optional<int> older_device_type(int) const override { return std::nullopt; }
  [[nodiscard]] bool medium_present(char letter) const override {
    return map_.medium_present(letter);
  }
  [[nodiscard]] std::string system_folder() const override { return "C:\\system"; }
  [[nodiscard]] std::string program_path() const override { return program_path_; }

 private:
  const DriveMap& map_;
  std::string program_path_;
};

/// Help pages in the person's browser.
class PosixHelp : public UnpackedHelp {
 public:
  explicit PosixHelp(const PathMap& map, Open open = open_in_browser);

  static bool open_in_browser(const std::string& os_path);
};

}  // namespace platform::posix
