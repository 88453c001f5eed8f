#include <gtest/gtest.h>

#include "fakes/temp_folder.h"
#include "platform/posix/drives_file.h"
#include "platform/posix/removable_media.h"

namespace {

using platform::DriveType;
using platform::posix::read_drives;
using platform::posix::removable_media;

// ---- Media that the kernel tells of

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
  std::vector<platform::posix::Medium> media() const {
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

// ---- Media given by hand

TEST(GivenDrives, LinesGiveLetterTypeMediumAndFolder) {
  const auto given = read_drives(
      "\xEF\xBB\xBF# drives of the test, saved by an editor that marks its texts\n"
      "\n"
      "A removable floppy floppies/one\r\n"
      "  b\tremovable   floppy  absent\n"
      "E removable other /media/my stick\n"
      "F cdrom 11 /cd\n"
      "G remote fixed /net\n"
      "H ramdisk unknown /ram",
      "/root");
  EXPECT_TRUE(given.problems.empty());
  const struct {
    char letter;
    DriveType type;
    int media_type;
    std::optional<std::string> folder;
  } rows[] = {
      {'A', DriveType::kRemovable, 2, "/root/floppies/one"},
      {'B', DriveType::kRemovable, 2, std::nullopt},
      {'E', DriveType::kRemovable, 11, "/media/my stick"},
      {'F', DriveType::kCdRom, 11, "/cd"},
      {'G', DriveType::kRemote, 12, "/net"},
      {'H', DriveType::kRamDisk, 0, "/ram"},
  };
  ASSERT_EQ(given.media.size(), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(given.media[i].letter, rows[i].letter) << i;
    EXPECT_EQ(given.media[i].type, rows[i].type) << i;
    EXPECT_EQ(given.media[i].media_type, rows[i].media_type) << i;
    EXPECT_EQ(given.media[i].folder, rows[i].folder) << i;
  }
}

TEST(GivenDrives, LinesThatSayNothingAreNamed) {
  for (const char* wrong :
       {"A", "A removable", "A removable floppy", "AB removable floppy x", "1 removable floppy x",
        "C removable floppy x", "Z removable floppy x", "A floppy floppy x", "A removable tape x",
        "A removable -1 x", "\xFF\xFE", "A removable floppy \t"}) {
    const auto given = read_drives(std::string("# one\n") + wrong + "\nB fixed fixed x\n", "/root");
    EXPECT_EQ(given.media.size(), 1U) << wrong;
    ASSERT_EQ(given.problems.size(), 1U) << wrong;
    EXPECT_EQ(given.problems[0].substr(0, 8), "line 2: ") << wrong;
  }
}

}  // namespace
