#pragma once
// All ports of this operating system in one bundle. The printer and the windows are a front end's.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/posix/code_page.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_ports.h"

namespace platform::posix {

/// Paths are this computer's; an empty option means the usual one.
struct SystemOptions {
  std::string root;     ///< folder that is C:; else KAVREL_ROOT, else the user's data folder
  std::string program;  ///< program folder; else that of the executable
  std::string locale;   ///< "en", "ja" or a locale name; else the session's
  std::string clock;    ///< "2014-11-15T11:50", UTC, stands still; else the computer's clock
};

class System {
 public:
  /// Creates the folder of C: when it is missing. What could not be done is told by problems(); the
  /// object is usable all the same, with the usual in place of what was wrong.
  explicit System(const SystemOptions& options = {});

  /// "--clock: ...": one line for each option or line of drives.txt that could not be followed.
  [[nodiscard]] const std::vector<std::string>& problems() const { return problems_; }

  [[nodiscard]] Clock& clock() { return *clock_; }
  [[nodiscard]] Locale& locale() { return *locale_; }
  [[nodiscard]] Drives& drives() { return *drives_; }
  [[nodiscard]] Files& files() { return *files_; }
  [[nodiscard]] CodePage& code_page() { return code_page_; }
  [[nodiscard]] PosixHelp& help() { return *help_; }
  [[nodiscard]] const DriveMap& map() const { return *map_; }

  /// A path from the command line as the program says it: "/home/x" is "Z:\home\x". Nothing for a
  /// name that holds a "\".
  [[nodiscard]] std::optional<std::string> program_path_of(const std::string& os_path) const {
    return map_->to_program(os_path);
  }

 private:
  void choose_root(const SystemOptions& options);
  void choose_clock(const SystemOptions& options);
  void choose_locale(const SystemOptions& options);
  [[nodiscard]] std::string choose_program(const SystemOptions& options);
  /// Those of drives.txt, else those that the computer tells of; the ones found last where one
  /// cannot tell what drives.txt says.
  [[nodiscard]] std::vector<Medium> find_media() const;

  std::string root_;
  mutable std::vector<Medium> media_;  ///< as found last
  std::vector<std::string> problems_;
  SystemCalls calls_;
  std::unique_ptr<DriveMap> map_;
  std::unique_ptr<PosixClock> clock_;
  std::unique_ptr<PosixLocale> locale_;
  std::unique_ptr<PosixDrives> drives_;
  std::unique_ptr<PosixFiles> files_;
  std::unique_ptr<PosixHelp> help_;
  PosixCodePage code_page_;
};

/// The folder that is C: when nothing else is said: $XDG_DATA_HOME/kavrel/drive_c, or
/// ~/.local/share/kavrel/drive_c.
[[nodiscard]] std::string default_root();
/// The folder that is C:: the given one, else that of the environment (KAVREL_ROOT), else
/// default_root(). Absolute.
[[nodiscard]] std::string root_of(const std::string& given);

}  // namespace platform::posix
