#pragma once
// No system of ours shows compiled help files. A help file "help\Kavrel_E.CHM" is looked for
// unpacked: topic "X.htm" as help/Kavrel_E/X.htm or help/X.htm, the file itself as
// help/Kavrel_E/index.htm or help/Kavrel_E.htm.

#include <functional>
#include <optional>
#include <string>

#include "platform/system/system.h"

namespace platform {

class UnpackedHelp : public HelpPages {
 public:
  using IsFile = bool (*)(const std::string& os_path);
  /// Opens a page of this computer; true when something was opened.
  using Open = std::function<bool(const std::string& os_path)>;
  /// `map` must outlive the object.
  UnpackedHelp(const PathMap& map, IsFile is_file, Open open)
      : map_(map), is_file_(is_file), open_(std::move(open)) {}
  /// False when there is no such page or nothing to show it with.
  bool show(const std::string& path) override;
  [[nodiscard]] std::optional<std::string> page(const std::string& path) const override;

 private:
  const PathMap& map_;
  IsFile is_file_;
  Open open_;
};

}  // namespace platform
