#include "media/removable_disk.h"

#include <algorithm>
#include <utility>

#include "text/ids.h"

namespace media {
namespace {

namespace id = text::id;

char drive_of(const std::string& folder) {
  const char letter = folder.size() > 1 && folder[1] == ':' ? folder.front() : '\0';
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

}  // namespace

bool is_on_removable_drive(const platform::Drives& drives, const std::string& folder) {
  const auto all = drives.drives();
  return std::any_of(all.begin(), all.end(), [&](const platform::Drive& drive) {
    return drive.letter == drive_of(folder) && drive.type == platform::DriveType::kRemovable;
  });
}

bool disk_is_ready(ui::Services& services, const std::string& folder, std::uint64_t bytes) {
  if (!is_on_removable_drive(services.drives, folder)) return true;
  text::Id insert = id::kInsertDisk;
  // Looked for anew after every answer, for the disk may have been exchanged.
  while (true) {
    text::Id asked;
    if (!services.drives.medium_present(drive_of(folder))) {
      asked = std::exchange(insert, id::kInsertDiskAgain);
    } else if (const auto room = services.files.free_space(folder); room && *room < bytes) {
      asked = id::kDiskFull;
    } else {
      return true;
    }
    if (services.messages.question(asked, ui::QuestionMode::kOkCancel) != ui::kOk) return false;
  }
}

}  // namespace media
