// Drives given by hand.

#include "platform/system/drives_file.h"

#include <gtest/gtest.h>

namespace {

using platform::DriveType;
using platform::read_drives;

bool starts_with_slash(std::string_view path) {
  return path.starts_with('/');
}

platform::ComputerPaths paths() {
  platform::ComputerPaths result;
  result.is_absolute = starts_with_slash;
  return result;
}
const platform::ComputerPaths kPaths = paths();

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
      "/root", kPaths);
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
    const auto given =
        read_drives(std::string("# one\n") + wrong + "\nB fixed fixed x\n", "/root", kPaths);
    EXPECT_EQ(given.media.size(), 1U) << wrong;
    ASSERT_EQ(given.problems.size(), 1U) << wrong;
    EXPECT_EQ(given.problems[0].substr(0, 8), "line 2: ") << wrong;
  }
}

TEST(GivenDrives, AFileThatIsNotThereIsNoProblemButOneThatCannotBeReadIs) {
  using platform::FileError;
  using Problems = std::vector<std::string>;
  const auto problems = [](const platform::Result<std::string>& text) {
    return platform::problems_of_drives(text, "/root", kPaths);
  };
  EXPECT_EQ(problems(FileError::kNotFound), Problems{});
  EXPECT_EQ(problems(std::string("A removable floppy absent\n")), Problems{});
  EXPECT_EQ(problems(FileError::kNotAFile),
            Problems{"drives.txt: cannot be read: a folder or a device, not a file"});
  const auto told = problems(std::string("A removable floppy absent\nnonsense\n"));
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].substr(0, 20), "drives.txt: line 2: ");
}

}  // namespace
