#pragma once
// The drives that folder choosers show.

#include <string>
#include <vector>

#include "platform/ports.h"

namespace archive {

struct DriveRow {
  std::string root;     ///< "A:\"
  bool marked = false;  ///< remote or CD-ROM: set apart from the drives a ship usually saves on
};

/// The drives A to Z that exist and are removable, fixed, remote, CD-ROM or RAM disk (types 2 to
/// 6), in letter order.
[[nodiscard]] std::vector<DriveRow> drive_rows(const platform::Drives& drives);

}  // namespace archive
