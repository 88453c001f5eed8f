#include "media/floppy_drive.h"

#include <gtest/gtest.h>

#include "fakes/fake_ports.h"

namespace {

using platform::DriveType;

TEST(FloppyDrive, MediumKindsOtherThanUnknownRemovableAndFixedAreFloppies) {
  const struct {
    int media_type;
    bool floppy;
  } rows[] = {{0, false},  {1, true},  {2, true},  {10, true}, {11, false},
              {12, false}, {13, true}, {22, true}, {-1, true}};
  for (const auto& row : rows)
    EXPECT_EQ(media::is_floppy_medium(row.media_type), row.floppy) << row.media_type;
}

TEST(FloppyDrive, DeviceKindsTwoAndSevenAreFloppiesOnOlderSystems) {
  for (int kind = 0; kind <= 9; ++kind)
    EXPECT_EQ(media::is_floppy_device(kind), kind == 2 || kind == 7) << kind;
}

TEST(FloppyDrive, FirstRemovableDriveWithAFloppyMediumIsTaken) {
  fakes::FakeDrives drives;
  drives.list = {{'A', DriveType::kFixed, 2},     {'C', DriveType::kFixed, 12},
                 {'D', DriveType::kCdRom, 2},     {'E', DriveType::kRemovable, 11},
                 {'F', DriveType::kRemovable, 2}, {'G', DriveType::kRemovable, 5}};
  EXPECT_EQ(media::find_floppy_drive(drives), 'F');
  drives.list.resize(4);
  EXPECT_EQ(media::find_floppy_drive(drives), std::nullopt);
  drives.list.clear();
  EXPECT_EQ(media::find_floppy_drive(drives), std::nullopt);
}

TEST(FloppyDrive, OlderSystemIsAskedForTheDeviceKindOfTheDriveNumber) {
  fakes::FakeDrives drives;
  drives.list = {{'A', DriveType::kRemovable, 2},
                 {'B', DriveType::kRemovable, 0},
                 {'C', DriveType::kFixed, 12}};
  drives.older = {{1, 5}, {2, 7}, {3, 2}};
  EXPECT_EQ(media::find_floppy_drive(drives), 'B') << "the medium kind does not count there";
}

}  // namespace
