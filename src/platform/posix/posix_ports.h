#pragma once
// Clock, locale, drives and help viewer on this operating system.

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ports.h"
#include "platform/posix/drive_map.h"

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

/// "2014-11-15T11:50" or with ":SS"; nothing for any other text and for a time that does not exist.
[[nodiscard]] std::optional<DateTime> parse_date_time(std::string_view text);

/// 0x0411 when the language of a locale name ("ja_JP.UTF-8", "ja") is Japanese, else 0x0409.
[[nodiscard]] unsigned locale_id_of(std::string_view name);
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

/// This system has no viewer for compiled help files. A help file "help\Kavrel_E.CHM" is looked for
/// unpacked: topic "X.htm" as help/Kavrel_E/X.htm or help/X.htm, the file itself as
/// help/Kavrel_E/index.htm or help/Kavrel_E.htm. The page is handed to the person's browser.
class PosixHelp : public HelpViewer {
 public:
  /// Opens a page of this computer; true when something was opened.
  using Open = std::function<bool(const std::string& os_path)>;
  explicit PosixHelp(const DriveMap& map, Open open = open_in_browser)
      : map_(map), open_(std::move(open)) {}
  /// False when there is no such page or nothing to show it with.
  bool show(const std::string& path) override;
  /// The page for a help path, or nothing when there is none.
  [[nodiscard]] std::optional<std::string> page(const std::string& path) const;

  static bool open_in_browser(const std::string& os_path);

 private:
  const DriveMap& map_;
  Open open_;
};

}  // namespace platform::posix
