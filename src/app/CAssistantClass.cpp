#include "app/CAssistantClass.h"

namespace app {

std::string CAssistantClass::program_folder() const {
  const std::string path = drives_.program_path();
  const auto at = path.rfind('\\');
  if (at != std::string::npos) return path.substr(0, at);
  std::string folder = files_.current_folder();
  if (folder.ends_with('\\')) folder.pop_back();
  return folder;
}

std::optional<std::uint64_t> CAssistantClass::free_space(char letter) const {
  if (!drives_.medium_present(letter)) return std::nullopt;
  return files_.free_space(std::string(1, letter) + ":\\");
}

SystemFamily CAssistantClass::system_family() const {
  constexpr int kDriveA = 1;
  return drives_.older_device_type(kDriveA) ? SystemFamily::kOlder : SystemFamily::kCurrent;
}

}  // namespace app
