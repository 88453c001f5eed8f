#include "platform/posix/posix_drive_map.h"

#include <gtest/gtest.h>

#include "fakes/temp_folder.h"

namespace {

using platform::DriveType;
using platform::FileError;
using DriveMap = platform::posix::PosixDriveMap;
using platform::Medium;

std::string letters(const DriveMap& map) {
  std::string result;
  for (const auto& drive : map.drives()) result.push_back(drive.letter);
  return result;
}

TEST(DriveMap, ProgramPathsBecomePathsOfThisComputer) {
  const fakes::TempFolder temp;
  const DriveMap map(temp.path() + "/");
  const struct {
    std::string path;
    std::string os_path;
  } rows[] = {
      {"C:\\", temp.path()},
      {"C:", temp.path()},
      {"c:\\kavrel\\file\\FIXDATA.DAT", temp / "kavrel/file/FIXDATA.DAT"},
      {"C:/kavrel/file/", temp / "kavrel/file"},
      {"C:\\\\kavrel\\.\\\\file\\\\", temp / "kavrel/file"},
      {"C:kavrel", temp / "kavrel"},
      {"C:\\a b\\\xE3\x81\x82\\\xFF\xFE", temp / "a b/\xE3\x81\x82/\xFF\xFE"},
      {"Z:\\", "/"},
      {"z:\\tmp\\x", "/tmp/x"},
      // ".." stays inside the drive, whatever it is asked.
      {"C:\\..\\..\\etc\\passwd", temp / "etc/passwd"},
      {"C:\\a\\..\\..\\b", temp / "b"},
      {"C:/../../x", temp / "x"},
      {"C:..", temp.path()},
      {"Z:\\..\\..", "/"},
      // Without a drive: from the current folder, or from the top of its drive.
      {"kavrel.ini", temp / "now/kavrel.ini"},
      {"\\kavrel.ini", temp / "kavrel.ini"},
      {"..\\..\\..\\x", temp / "x"},
      {"", temp / "now"},
      {"\\\\server\\share", temp / "server/share"},
  };
  for (const auto& row : rows) {
    const auto os_path = map.to_os(row.path, "C:\\now");
    ASSERT_TRUE(os_path.ok()) << row.path;
    EXPECT_EQ(*os_path.value, row.os_path) << row.path;
  }
}

TEST(DriveMap, PathsThatNoFileCanHaveAreRefused) {
  const fakes::TempFolder temp;
  const DriveMap map(temp.path());
  EXPECT_EQ(map.to_os("Q:\\x").error, FileError::kMediumMissing);
  EXPECT_EQ(map.to_os("1:\\x").error, FileError::kMediumMissing);
  EXPECT_EQ(map.to_os("\xFF:\\x").error, FileError::kMediumMissing);
  EXPECT_EQ(map.to_os(std::string("C:\\a\0b", 6)).error, FileError::kNotFound);
  EXPECT_EQ(map.to_os("x", "").error, FileError::kNotFound);
  EXPECT_EQ(map.to_os("\\x", "").error, FileError::kNotFound);
}

TEST(DriveMap, DriveThatCannotBeLookedAtIsNotTakenForAnAbsentOne) {
  const fakes::TempFolder temp;
  temp.folder("c");
  temp.write("file", "");
  std::filesystem::create_symlink("circle", temp / "circle");
  std::filesystem::create_symlink("gone", temp / "nowhere");
  const DriveMap map(temp / "c", [&] {
    return std::vector<Medium>{{"d", 'D', DriveType::kFixed, 12, temp / "circle"},
                               {"e", 'E', DriveType::kFixed, 12, temp / "nowhere"},
                               {"f", 'F', DriveType::kFixed, 12, temp / "file"}};
  });
  EXPECT_EQ(map.to_os("D:\\x").error, FileError::kBadLink);
  EXPECT_EQ(map.to_os("E:\\x").error, FileError::kMediumMissing);
  EXPECT_EQ(map.to_os("F:\\x").error, FileError::kMediumMissing);
}

TEST(DriveMap, PathsOfThisComputerBecomeProgramPathsOnTheNearestDrive) {
  const fakes::TempFolder temp;
  temp.folder("c/kavrel");
  temp.folder("stick");
  std::filesystem::create_directory_symlink(temp / "c/kavrel", temp / "link");
  const DriveMap map(temp / "c", [&] {
    return std::vector<Medium>{{"s", 0, DriveType::kRemovable, 11, temp / "stick/"}};
  });
  EXPECT_EQ(map.to_program("/tmp/x.tlx"), "Z:\\tmp\\x.tlx");
  EXPECT_EQ(map.to_program("/tmp/"), "Z:\\tmp");
  EXPECT_EQ(map.to_program("/"), "Z:\\");
  EXPECT_EQ(map.to_program(temp / "c"), "C:\\");
  EXPECT_EQ(map.to_program(temp / "c/kavrel/kavrel.ini"), "C:\\kavrel\\kavrel.ini");
  EXPECT_EQ(map.to_program(temp / "stick/a"), "D:\\a");
  EXPECT_EQ(map.to_program(temp / "cc")->substr(0, 3), "Z:\\") << "a folder that begins alike";
  EXPECT_EQ(map.to_program(temp / "c/kavrel/../x"), "C:\\x");
  EXPECT_EQ(map.to_program(temp / "link/../x"), "C:\\x")
      << "the folder above is the link's target's";
  EXPECT_EQ(map.to_program("/tmp/a\\b"), std::nullopt);
  EXPECT_EQ(map.to_program(""), std::nullopt);
}

TEST(DriveMap, MediaTakeFreeLettersAndKeepThem) {
  const fakes::TempFolder temp;
  std::vector<Medium> media{{"one", 0, DriveType::kRemovable, 11, temp.path()},
                            {"two", 0, DriveType::kCdRom, 11, temp.path()},
                            {"fd0", 'A', DriveType::kRemovable, 2, std::nullopt}};
  const DriveMap map(temp.path(), [&] { return media; });
  EXPECT_EQ(letters(map), "ACDEZ");
  const auto drives = map.drives();
  EXPECT_EQ(drives[0].type, DriveType::kRemovable);
  EXPECT_EQ(drives[0].media_type, 2);
  EXPECT_EQ(drives[1].type, DriveType::kFixed);
  EXPECT_EQ(drives[1].media_type, 12);
  EXPECT_EQ(drives[3].type, DriveType::kCdRom);

  media.erase(media.begin());
  EXPECT_EQ(letters(map), "ACEZ") << "the second medium keeps its letter";
  media.push_back({"three", 0, DriveType::kRemovable, 11, temp.path()});
  EXPECT_EQ(letters(map), "ACEFZ") << "the first one's is kept for it";
  media.push_back({"one", 0, DriveType::kRemovable, 11, temp.path()});
  EXPECT_EQ(letters(map), "ACDEFZ");
}

TEST(DriveMap, NoMediumTakesTheLettersOfTheOfficersDiskAndOfTheFileSystem) {
  const fakes::TempFolder temp;
  std::vector<Medium> media{{"c", 'C', DriveType::kRemovable, 2, "/"}};
  for (int i = 0; i < 30; ++i)
    media.push_back({std::to_string(i), 0, DriveType::kRemovable, 11, temp.path()});
  const DriveMap map(temp.path(), [&] { return media; });
  EXPECT_EQ(letters(map), "CDEFGHIJKLMNOPQRSTUVWXYZ");
  EXPECT_EQ(*map.to_os("C:\\x").value, temp / "x");
}

TEST(DriveMap, AMediumMayComeAndGo) {
  const fakes::TempFolder temp;
  std::vector<Medium> media{{"fd0", 'A', DriveType::kRemovable, 2, std::nullopt}};
  const DriveMap map(temp.path(), [&] { return media; });
  EXPECT_FALSE(map.medium_present('A'));
  EXPECT_EQ(map.to_os("A:\\x").error, FileError::kMediumMissing);
  temp.folder("floppy");
  media[0].folder = temp / "floppy";
  EXPECT_EQ(*map.to_os("A:\\x").value, temp / "floppy/x");
  EXPECT_TRUE(map.medium_present('a'));
  std::filesystem::remove(temp / "floppy");
  EXPECT_FALSE(map.medium_present('A'));
  EXPECT_EQ(map.to_os("A:\\x").error, FileError::kMediumMissing);
  EXPECT_TRUE(map.medium_present('Z'));
  EXPECT_FALSE(map.medium_present('Q'));
}

}  // namespace
