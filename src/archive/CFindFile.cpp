#include "archive/CFindFile.h"

#include "platform/paths.h"

platform::FileError CFindFile::find(const std::string& folder, std::string_view pattern,
                                    std::vector<std::string>& result) {
  const std::string before = files_.current_folder();
  files_.set_current_folder(folder);
  const auto entries = files_.list(folder);
  files_.set_current_folder(before);
  if (!entries.ok()) return entries.error;
  for (const platform::FolderEntry& entry : *entries.value) {
    if (entry.is_folder || entry.name == "." || entry.name == "..") continue;
    // Anywhere in the name and in this case: "x.tlx.bak" is found, "A.TLX" is not.
    if (entry.name.find(pattern) == std::string::npos) continue;
    result.push_back(platform::join(folder, entry.name));
  }
  return platform::FileError::kNone;
}
