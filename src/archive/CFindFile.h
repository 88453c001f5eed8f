#pragma once
// Files of one folder by a part of their name.

#include <string>
#include <string_view>
#include <vector>

#include "platform/ports.h"

class CFindFile {
 public:
  explicit CFindFile(platform::Files& files) : files_(files) {}

  /// Appends every file of the folder whose name holds the pattern, in the order the file system
  /// gives them, as the folder joined with the name. A plain substring test, case as stored:
  /// ".tlx" also finds "x.tlx.bak" and does not find "A.TLX". Folders and what lies in them are
  /// left out. The folder is the current one while it is searched. A folder that cannot be read
  /// adds nothing, and the reason comes back.
  platform::FileError find(const std::string& folder, std::string_view pattern,
                           std::vector<std::string>& result);

 private:
  platform::Files& files_;
};
