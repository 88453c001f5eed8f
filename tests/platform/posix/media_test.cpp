// Media that the kernel tells of.

#include <gtest/gtest.h>

#include "fakes/temp_folder.h"
#include "platform/posix/removable_media.h"

namespace {

using platform::DriveType;
using platform::posix::removable_media;

class KernelMedia : public ::testing::Test {
 protected:
  fakes::TempFolder temp;
  std::string mounts = "21 1 8:1 / / rw - ext4 /dev/sda1 rw\n";

  void device(const std::string& name, const std::string& numbers, const std::string& size,
              const std::string& removable) const {
    temp.write("block/" + name + "/dev", numbers + "\n");
    temp.write("block/" + name + "/size", size + "\n");
    temp.write("block/" + name + "/removable", removable + "\n");
  }
  std::vector<platform::Medium> media() const {
    temp.write("mounts", mounts);
    return removable_media({temp / "block", temp / "mounts"});
  }
};

TEST_F(KernelMedia, FixedDisksGetNoLetter) {
  device("sda", "8:0", "1000000", "0");
  temp.write("block/sda/sda1/dev", "8:1\n");
  EXPECT_TRUE(media().empty());
}

TEST_F(KernelMedia, FloppyDrivesAreThereWithOrWithoutTheirMedium) {
  device("fd0", "2:0", "2880", "1");
  device("fd1", "2:1", "0", "1");
  mounts += "30 21 2:0 / /mnt/floppy\\040disk rw - vfat /dev/fd0 rw\n";
  const auto found = media();
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].letter, 'A');
  EXPECT_EQ(found[0].media_type, 2);
  EXPECT_EQ(found[0].folder, "/mnt/floppy disk");
  EXPECT_EQ(found[1].letter, 'B');
  EXPECT_EQ(found[1].type, DriveType::kRemovable);
  EXPECT_EQ(found[1].folder, std::nullopt);
}

TEST_F(KernelMedia, MountedPartitionsOfRemovableDisksAreMedia) {
  device("sdb", "8:16", "31116288", "1");
  temp.write("block/sdb/sdb1/dev", "8:17\n");
  temp.write("block/sdb/sdb2/dev", "8:18\n");
  temp.write("block/sdb/queue/dev", "8:17\n");
  mounts += "31 21 8:17 / /media/stick rw - vfat /dev/sdb1 rw\n";
  const auto found = media();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].device, "sdb1");
  EXPECT_EQ(found[0].letter, 0);
  EXPECT_EQ(found[0].type, DriveType::kRemovable);
  EXPECT_EQ(found[0].media_type, 11);
  EXPECT_EQ(found[0].folder, "/media/stick");
}

TEST_F(KernelMedia, CdRomsAreTheirOwnType) {
  device("sr0", "11:0", "1234567", "1");
  mounts += "32 21 11:0 / /media/cd ro - iso9660 /dev/sr0 ro\n";
  const auto found = media();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].type, DriveType::kCdRom);
  EXPECT_EQ(found[0].media_type, 11);
}

TEST_F(KernelMedia, RemovableDiskOfAFloppysSizeIsAFloppy) {
  const struct {
    const char* sectors;
    int media_type;
  } rows[] = {{"2400", 1}, {"2880", 2}, {"5760", 3},  {"41040", 4}, {"1440", 5},
              {"720", 6},  {"640", 7},  {"2881", 11}, {"", 11},     {"x", 11}};
  mounts += "33 21 8:32 / /media/usb rw - vfat /dev/sdc rw\n";
  for (const auto& row : rows) {
    device("sdc", "8:32", row.sectors, "1");
    const auto found = media();
    ASSERT_EQ(found.size(), 1U) << row.sectors;
    EXPECT_EQ(found[0].media_type, row.media_type) << row.sectors;
  }
}

TEST_F(KernelMedia, NothingIsFoundWhereNothingIsTold) {
  EXPECT_TRUE(removable_media({temp / "none", temp / "none"}).empty());
  device("sdb", "8:16", "", "1");
  mounts = "\n\xFF\xFE\n31\n31 21\n31 21 8:16 /\n";
  EXPECT_TRUE(media().empty());
}

}  // namespace
