#include "platform/posix/program_folder.h"

#include <filesystem>

namespace platform::posix {

std::string program_path(const std::string& executable) {
  namespace fs = std::filesystem;
  const fs::path whole = executable;
  if (whole.parent_path().filename() != "bin") return executable;
  const fs::path installed = whole.parent_path().parent_path() / "share" / "kavrel";
  std::error_code error;
  return fs::is_directory(installed, error) ? (installed / whole.filename()).string() : executable;
}

}  // namespace platform::posix
