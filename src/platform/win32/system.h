#pragma once
// All ports of Windows in one bundle.
//
// C: is the computer's own, and what the program keeps lies in C:\kavrel, which any user may make on
// a computer as it is delivered. Where he may not, or may not write there, C:\kavrel is kept in his
// own data, %LOCALAPPDATA%\kavrel\drive_c\kavrel, and called the same.
//
// A folder that is given as C: (--root, KAVREL_ROOT) takes the place of the computer's C: whole, so
// that nothing of the computer's own is touched; see win32_drive_map.h for the other drives.

#include <memory>
#include <string>
#include <vector>

#include "platform/system/system.h"
#include "platform/win32/code_page.h"
#include "platform/win32/win32_drive_map.h"
#include "platform/win32/win32_files.h"
#include "platform/win32/win32_ports.h"

namespace platform::win32 {

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
  void prepare_root();
  void choose_clock(const SystemOptions& options);
  /// Those of drives.txt beside the given root, else those that the computer tells of; the ones
  /// found last where one cannot tell what drives.txt says.
  [[nodiscard]] std::vector<Medium> find_media() const;

  std::string root_;  ///< empty where C: is the computer's own
  mutable DriveCalls drive_calls_;
  mutable ComputerDrives computer_drives_{drive_calls_};
  mutable std::vector<Medium> media_;  ///< as found last
  std::vector<std::string> problems_;
  SystemCalls calls_;
  std::unique_ptr<DriveMap> map_;
  std::unique_ptr<Win32Clock> clock_;
  std::unique_ptr<Win32Locale> locale_;
  std::unique_ptr<Win32Drives> drives_;
  std::unique_ptr<Win32Files> files_;
  std::unique_ptr<Win32Help> help_;
  Win32CodePage code_page_;
};

/// The folder that is C:: the given one, else that of the environment (KAVREL_ROOT), absolute; empty
/// for the computer's own.
[[nodiscard]] std::string root_of(const std::string& given);

/// What becomes of C:\kavrel where there is none yet.
enum class FirstTime {
  kMake,  ///< it is made, in its place or elsewhere
  kPass,  ///< nothing is made, and it is not elsewhere
};
/// Where C:\kavrel is kept when `folder`, its proper place, can neither be made nor written; nothing
/// when it can. `own` is the user's data folder.
[[nodiscard]] std::optional<Elsewhere> elsewhere_of(const std::string& folder,
                                                    const std::string& own, FirstTime first);

}  // namespace platform::win32
