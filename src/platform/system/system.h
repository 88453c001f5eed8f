#pragma once
// The computer that the program runs on, whichever system it has: all ports in one bundle, made by
// the room of that system (platform/posix, platform/win32). The printer and the windows are a front
// end's.

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ports.h"

namespace platform {

/// Paths are this computer's; an empty option means the usual one.
struct SystemOptions {
  std::string root;     ///< folder that is C:; else KAVREL_ROOT, else the system's usual one
  std::string program;  ///< program folder; else that of the executable
  std::string locale;   ///< "en", "ja" or a locale name; else the session's
  std::string clock;    ///< "2014-11-15T11:50", UTC, stands still; else the computer's clock
};

/// Between the program's paths and this computer's.
class PathMap {
 public:
  virtual ~PathMap() = default;
  /// A program path as this computer's. A path without a drive letter starts at `current_folder`.
  /// "/" parts names as "\" does; "." and empty names are dropped; ".." never climbs above the
  /// drive's own folder. kMediumMissing when there is no such drive or no medium in it, kNotFound
  /// for a path that no file can have, and the computer's reason when one cannot tell about the
  /// drive's folder.
  [[nodiscard]] virtual Result<std::string> to_os(
      const std::string& path, const std::string& current_folder = "C:\\") const = 0;
  /// A path of this computer (relative ones start at the process's folder) as the program's, on the
  /// drive that holds it. Nothing for a path that the program cannot say.
  [[nodiscard]] virtual std::optional<std::string> to_program(const std::string& os_path) const = 0;
};

/// The same for who has no use for the reason: empty for a path that the other side cannot say.
struct Paths {
  std::function<std::string(const std::string&)> to_system;
  std::function<std::string(const std::string&)> from_system;
};
/// The map must outlive them.
[[nodiscard]] inline Paths paths_by(const PathMap& map) {
  return {[&map](const std::string& path) { return map.to_os(path).value.value_or(""); },
          [&map](const std::string& path) { return map.to_program(path).value_or(""); }};
}

/// Help pages by the paths under which the program knows them.
class HelpPages : public HelpViewer {
 public:
  /// The file of this computer that holds the page of a help path, or nothing when there is none.
  [[nodiscard]] virtual std::optional<std::string> page(const std::string& path) const = 0;
};

class System {
 public:
  virtual ~System() = default;

  /// "--clock: ...": one line for each option or line of drives.txt that could not be followed.
  [[nodiscard]] virtual const std::vector<std::string>& problems() const = 0;

  [[nodiscard]] virtual Clock& clock() = 0;
  [[nodiscard]] virtual Locale& locale() = 0;
  [[nodiscard]] virtual Drives& drives() = 0;
  [[nodiscard]] virtual Files& files() = 0;
  [[nodiscard]] virtual CodePage& code_page() = 0;
  /// Shows pages with whatever this computer shows them with.
  [[nodiscard]] virtual HelpPages& help() = 0;
  [[nodiscard]] virtual const PathMap& map() const = 0;
};

/// Makes the folder of C: where it is one of the program's own and missing. What could not be done
/// is told by problems(); the object is usable all the same, with the usual in place of what was
/// wrong.
[[nodiscard]] std::unique_ptr<System> make_system(const SystemOptions& options);

/// Files alone, for who needs no more; makes no folder and looks for no media.
class SystemFiles {
 public:
  virtual ~SystemFiles() = default;
  [[nodiscard]] virtual Files& files() = 0;
  [[nodiscard]] virtual const PathMap& map() const = 0;
};
/// `root` as SystemOptions::root.
[[nodiscard]] std::unique_ptr<SystemFiles> open_files(const std::string& root);

/// Code page 932 as this computer converts it.
[[nodiscard]] std::unique_ptr<CodePage> make_code_page();

}  // namespace platform
