#include "platform/system/help_pages.h"

#include <array>

namespace platform {

std::optional<std::string> UnpackedHelp::page(const std::string& path) const {
  constexpr std::string_view kEnding = ".CHM";
  constexpr std::string_view kTopicMark = "::/";
  const auto mark = path.find(kTopicMark);
  const std::string topic = mark == std::string::npos ? "" : path.substr(mark + kTopicMark.size());
  std::string base = path.substr(0, mark);
  if (base.ends_with(kEnding)) base.resize(base.size() - kEnding.size());
  const auto slash = base.rfind('\\');
  const std::string folder = slash == std::string::npos ? "" : base.substr(0, slash + 1);
  const std::array<std::string, 2> pages = topic.empty()
                                               ? std::array{base + "\\index.htm", base + ".htm"}
                                               : std::array{base + "\\" + topic, folder + topic};
  for (const std::string& each : pages)
    if (auto os_path = map_.to_os(each); os_path.ok() && is_file_(*os_path.value))
      return *os_path.value;
  return std::nullopt;
}

bool UnpackedHelp::show(const std::string& path) {
  const auto found = page(path);
  return found && open_(*found);
}

}  // namespace platform
