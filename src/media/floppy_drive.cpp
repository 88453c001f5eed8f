#include "media/floppy_drive.h"

namespace media {

namespace {

bool is_floppy_drive(const platform::Drive& drive, const platform::Drives& drives) {
  if (drive.type != platform::DriveType::kRemovable) return false;
  const auto older = drives.older_device_type(drive.letter - 'A' + 1);
  return older ? is_floppy_device(*older) : is_floppy_medium(drive.media_type);
}

}  // namespace

bool is_floppy_medium(int media_type) {
  constexpr int kRemovableOther = 11;
  constexpr int kFixed = 12;
  // The kinds of floppies lie on both sides of these two.
  return media_type != 0 && (media_type < kRemovableOther || media_type > kFixed);
}

bool is_floppy_device(int device_type) {
  constexpr int kSmallFloppy = 2;
  constexpr int kLargeFloppy = 7;
  return device_type == kSmallFloppy || device_type == kLargeFloppy;
}

std::optional<char> find_floppy_drive(const platform::Drives& drives) {
  for (const platform::Drive& drive : drives.drives())
    if (is_floppy_drive(drive, drives)) return drive.letter;
  return std::nullopt;
}

}  // namespace media
