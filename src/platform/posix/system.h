#pragma once
// All ports of this operating system in one bundle.

#include <memory>
#include <string>
#include <vector>

#include "platform/posix/code_page.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_ports.h"
#include "platform/system/system.h"

namespace platform::posix {

class System : public platform::System {
 public:
  explicit System(const SystemOptions& options = {});

  [[nodiscard]] const std::vector<std::string>& problems() const override { return problems_; }
  [[nodiscard]] Clock& clock() override { return *clock_; }
  [[nodiscard]] Locale& locale() override { return *locale_; }
  [[nodiscard]] Drives& drives() override { return *drives_; }
  [[nodiscard]] Files& files() override { return *files_; }
  [[nodiscard]] CodePage& code_page() override { return code_page_; }
  [[nodiscard]] HelpPages& help() override { return *help_; }
  [[nodiscard]] const PathMap& map() const override { return *map_; }

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
  std::unique_ptr<PosixDriveMap> map_;
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
