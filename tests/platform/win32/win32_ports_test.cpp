#include "platform/win32/win32_ports.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <shellapi.h>

#include <cerrno>

#include "fakes/temp_folder.h"
#include "platform/system/process.h"
#include "platform/win32/system.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_program.h"

namespace {

using platform::DateTime;
using platform::DriveType;
using platform::Medium;
using platform::win32::beside_root;
using platform::win32::ComputerDrives;
using platform::win32::DriveCalls;
using platform::win32::System;

// ---- Drives

/// A bridge computer: two floppy drives, its disk, a stick, a CD drive, a share and one that a
/// formatting program has taken away.
class BridgeDrives : public DriveCalls {
 public:
  unsigned logical_drives() override { return 0b1111111; }
  DriveType type(char letter) override {
    switch (letter) {
      case 'C':
        return DriveType::kFixed;
      case 'E':
        return DriveType::kCdRom;
      case 'F':
        return DriveType::kRemote;
      case 'G':
        return DriveType::kNone;
      default:
        return DriveType::kRemovable;
    }
  }
  std::optional<int> media_type(char letter) override {
    asked += letter;
    if (letter == 'A') return 2;
    if (letter == 'D') return 11;
    return std::nullopt;
  }
  std::string asked;
};

TEST(ComputerDrives, HaveTheirOwnLettersTypesAndMediumKinds) {
  BridgeDrives calls;
  const auto media = ComputerDrives(calls).find();
  const struct {
    char letter;
    DriveType type;
    int media_type;
  } rows[] = {
      {'A', DriveType::kRemovable, 2}, {'B', DriveType::kRemovable, 0},
      {'C', DriveType::kFixed, 12},    {'D', DriveType::kRemovable, 11},
      {'E', DriveType::kCdRom, 11},    {'F', DriveType::kRemote, 0},
      {'G', DriveType::kNone, 0},
  };
  ASSERT_EQ(media.size(), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(media[i].letter, rows[i].letter);
    EXPECT_EQ(media[i].type, rows[i].type) << rows[i].letter;
    EXPECT_EQ(media[i].media_type, rows[i].media_type) << rows[i].letter;
    EXPECT_EQ(media[i].folder, std::string(1, rows[i].letter) + ":");
  }
}

TEST(ComputerDrives, AFloppyDriveTurnsForThisQuestionOnce) {
  BridgeDrives calls;
  ComputerDrives drives(calls);
  (void)drives.find();
  EXPECT_EQ(calls.asked, "ABD");
  EXPECT_EQ(drives.find().front().media_type, 2);
  EXPECT_EQ(calls.asked, "ABDBD") << "a stick may have been exchanged";
}

TEST(ComputerDrives, BesideAGivenRootTheComputersOwnDiskIsZ) {
  const auto letters = [](const std::vector<Medium>& media) {
    std::string result;
    for (const Medium& each : media) result += each.letter;
    return result;
  };
  BridgeDrives calls;
  auto media = beside_root(ComputerDrives(calls).find());
  EXPECT_EQ(letters(media), "ABZDEFG");
  EXPECT_EQ(media[2].folder, "C:");
  std::vector<Medium> with_z = ComputerDrives(calls).find();
  with_z.push_back({"Z:", 'Z', DriveType::kRemote, 0, "Z:"});
  EXPECT_EQ(letters(beside_root(with_z)), "ABDEFGZ") << "a drive keeps its letter";
}

TEST(DriveMap, PathsOfThisComputerAreThoseOfTheProgram) {
  BridgeDrives calls;
  ComputerDrives drives(calls);
  const platform::DriveMap map(platform::win32::computer_paths(), {},
                               [&] { return drives.find(); });
  EXPECT_EQ(*map.to_os("C:\\").value, "C:\\");
  EXPECT_EQ(*map.to_os("c:/a/..\\b\\").value, "C:\\b");
  EXPECT_EQ(*map.to_os("b", "C:\\a").value, "C:\\a\\b");
  EXPECT_EQ(*map.to_os("\\\\bridge\\reports\\x").value, "\\\\bridge\\reports\\x");
  EXPECT_EQ(*map.to_os("x", "\\\\bridge\\reports").value, "\\\\bridge\\reports\\x");
  EXPECT_EQ(map.to_os("Q:\\x").error, platform::FileError::kMediumMissing);
  EXPECT_EQ(map.to_os("C:\\a:b").error, platform::FileError::kBadName);
  EXPECT_EQ(map.to_program("c:\\a\\..\\B"), "C:\\B");
  EXPECT_EQ(map.to_program("C:\\"), "C:\\");
  EXPECT_EQ(map.to_program("\\\\bridge\\reports\\"), "\\\\bridge\\reports");
  EXPECT_EQ(map.to_program("Q:\\x"), std::nullopt);
}

TEST(DriveMap, AFolderThatLiesElsewhereIsCalledAsIfItDidNot) {
  const fakes::TempFolder temp;
  temp.folder("own/kavrel");
  platform::DriveMap map(platform::win32::computer_paths(), {}, [] {
    return std::vector<Medium>{{"C:", 'C', DriveType::kFixed, 12, "C:"}};
  });
  const std::string own = temp.path() + "\\own\\kavrel";
  map.set_elsewhere({'C', "kavrel", own});
  EXPECT_EQ(*map.to_os("C:\\KAVREL\\file").value, own + "\\file");
  EXPECT_EQ(*map.to_os("C:\\kavrel2").value, "C:\\kavrel2");
  EXPECT_EQ(map.to_program(own + "\\file"), "C:\\kavrel\\file");
}

// ---- Clock

TEST(Clock, AStoppedClockStands) {
  const DateTime utc{2014, 11, 15, 20, 50, 0};
  const platform::win32::Win32Clock clock(utc);
  EXPECT_EQ(clock.utc(), utc);
  // Whatever the zone is, it is less than a day away; sessions show the hour itself.
  EXPECT_GT(clock.local(), (DateTime{2014, 11, 14, 20, 50, 0}));
  EXPECT_LT(clock.local(), (DateTime{2014, 11, 16, 20, 50, 0}));
}

TEST(Clock, TheComputersClockGoesOn) {
  const platform::win32::Win32Clock clock;
  const auto before = clock.utc();
  EXPECT_GE(before.year, 2024);
  EXPECT_LE(before, clock.utc());
}

// ---- Locale

TEST(Locale, IsThatOfTheOptionElseTheUsers) {
  EXPECT_EQ(platform::win32::Win32Locale("ja").locale_id(), 0x0411U);
  EXPECT_EQ(platform::win32::Win32Locale("en").locale_id(), 0x0409U);
  EXPECT_EQ(platform::win32::Win32Locale("").locale_id(), LANGIDFROMLCID(::GetUserDefaultLCID()));
}

// ---- Programs

// Worked out by the rules of the function that takes a command line apart again.
TEST(CommandLine, WordsComeBackAsTheyWere) {
  for (const std::wstring word : {L"a", L"", L"two words", L"C:\\two words\\", L"a\"b", L"\\\"",
                                  L"\\\\", L"tab\there", L"C:\\x\\", L"\"", L"気象 通報"}) {
    const std::wstring line = L"program " + platform::win32::quoted(word) + L" end";
    int count = 0;
    LPWSTR* const words = ::CommandLineToArgvW(line.c_str(), &count);
    ASSERT_EQ(count, 3);
    EXPECT_EQ(words[1], word);
    ::LocalFree(words);
  }
}

TEST(CommandLine, AProgramThatIsNotThereIsTold) {
  EXPECT_EQ(platform::go_on_as_program_beside("no-such-program", {}), ENOENT);
}

// ---- Help

TEST(Help, PageIsLookedForInTheHelpFolder) {
  const fakes::TempFolder temp;
  temp.write("help/Kavrel_E/in.htm", "");
  const platform::DriveMap map(platform::win32::computer_paths(),
                               {{"C", 'C', DriveType::kFixed, 12, temp.path()}});
  std::vector<std::string> opened;
  platform::win32::Win32Help help(map, [&](const std::string& page) {
    opened.push_back(page);
    return true;
  });
  EXPECT_TRUE(help.show("C:\\help\\Kavrel_E.CHM::/in.htm"));
  EXPECT_FALSE(help.show("C:\\help\\Kavrel_E.CHM::/none.htm"));
  EXPECT_FALSE(help.show("C:\\help\\Kavrel_E.CHM"));
  EXPECT_EQ(opened, std::vector<std::string>{temp.path() + "\\help\\Kavrel_E\\in.htm"});
}

// ---- The bundle

TEST(System, OptionsChooseRootProgramLocaleAndClock) {
  const fakes::TempFolder temp;
  temp.folder("program");
  System system({temp / "new\\root", temp / "program", "ja", "2014-11-15T11:50"});
  EXPECT_TRUE(system.problems().empty());
  EXPECT_TRUE(std::filesystem::is_directory(temp / "new/root"));
  EXPECT_EQ(system.clock().utc(), (DateTime{2014, 11, 15, 11, 50, 0}));
  EXPECT_EQ(system.locale().locale_id(), 0x0411U);
  EXPECT_EQ(system.drives().system_folder().substr(0, 3), "C:\\");
  EXPECT_EQ(system.drives().program_path(), *system.map().to_program(temp / "program\\kavrel"));
  EXPECT_EQ(system.files().replace("C:\\x", "y"), platform::FileError::kNone);
  EXPECT_EQ(temp.content("new/root/x"), "y");
}

TEST(System, RootComesFromTheEnvironmentToo) {
  const fakes::TempFolder temp;
  ::SetEnvironmentVariableW(L"KAVREL_ROOT", platform::win32::to_wide(temp.path())->c_str());
  const System given;
  const System chosen({.root = temp / "chosen", .program = {}, .locale = {}, .clock = {}});
  ::SetEnvironmentVariableW(L"KAVREL_ROOT", nullptr);
  EXPECT_EQ(*given.map().to_os("C:\\").value, temp.path());
  EXPECT_EQ(*chosen.map().to_os("C:\\").value, temp.path() + "\\chosen");
}

TEST(System, WithoutARootTheComputersDrivesAreTheProgramsAndItsFolderCanBeWritten) {
  System system;
  EXPECT_TRUE(system.problems().empty());
  EXPECT_EQ(*system.map().to_os("C:\\x").value, "C:\\x");
  const std::string root = system.drives().system_folder().substr(0, 3);
  EXPECT_EQ(system.files().create_folder(root + "kavrel"), platform::FileError::kNone);
  EXPECT_EQ(system.files().replace(root + "kavrel\\trial", "x"), platform::FileError::kNone);
  EXPECT_EQ(system.files().remove(root + "kavrel\\trial"), platform::FileError::kNone);
}

TEST(System, AFolderThatMayNotBeMadeIsKeptInTheUsersOwnData) {
  const fakes::TempFolder temp;
  temp.write("kavrel", "a file, where nothing can be written into");
  using platform::win32::elsewhere_of;
  using platform::win32::FirstTime;
  EXPECT_EQ(elsewhere_of(temp / "kavrel", temp / "own", FirstTime::kPass), std::nullopt);
  EXPECT_EQ(temp.names(), std::vector<std::string>{"kavrel"}) << "nothing was made";
  const auto elsewhere = elsewhere_of(temp / "kavrel", temp / "own", FirstTime::kMake);
  ASSERT_TRUE(elsewhere);
  EXPECT_TRUE(elsewhere_of(temp / "kavrel", temp / "own", FirstTime::kPass)) << "it is there now";
  EXPECT_EQ(elsewhere->name, "kavrel");
  EXPECT_EQ(elsewhere->folder, temp / "own" + "\\kavrel\\drive_c\\kavrel");
  EXPECT_TRUE(std::filesystem::is_directory(temp / "own/kavrel/drive_c/kavrel"));
  EXPECT_EQ(elsewhere_of(temp / "other", temp / "own", FirstTime::kPass), std::nullopt);
  EXPECT_FALSE(std::filesystem::exists(temp / "other"));
  EXPECT_EQ(elsewhere_of(temp / "other", temp / "own", FirstTime::kMake), std::nullopt);
  EXPECT_TRUE(temp.names("other").empty()) << "the trial leaves nothing";
}

TEST(System, WrongOptionsAreNamed) {
  const fakes::TempFolder temp;
  temp.write("file", "no folder");
  temp.write("root/drives.txt", "A removable floppy absent\nQQ removable floppy x\n");
  const System system({temp / "root", {}, {}, "yesterday"});
  ASSERT_EQ(system.problems().size(), 2U);
  EXPECT_EQ(system.problems()[0].substr(0, 20), "drives.txt: line 2: ");
  EXPECT_EQ(system.problems()[1].substr(0, 9), "--clock: ");
  EXPECT_EQ(System({temp / "file", {}, {}, {}}).problems().size(), 1U);
}

TEST(System, DrivesOfTheFileArePutBesideTheOthers) {
  const fakes::TempFolder temp;
  temp.write("drives.txt", "A removable floppy floppy_a\nF cdrom other absent\n");
  System system({temp.path(), {}, {}, {}});
  std::string letters;
  for (const auto& drive : system.drives().drives()) letters += drive.letter;
  EXPECT_EQ(letters, "ACFZ");
  EXPECT_FALSE(system.drives().medium_present('A'));
  temp.folder("floppy_a");
  EXPECT_TRUE(system.drives().medium_present('A'));
  EXPECT_EQ(system.files().replace("A:\\x", "y"), platform::FileError::kNone);
  EXPECT_EQ(temp.content("floppy_a/x"), "y");
}

TEST(System, ListOfDrivesThatCannotBeReadAnyMoreLeavesTheDrivesAsTheyWere) {
  const fakes::TempFolder temp;
  temp.write("drives.txt", "E removable other absent\n");
  System system({temp.path(), {}, {}, {}});
  ASSERT_EQ(system.drives().drives().size(), 3U);
  std::filesystem::remove(temp / "drives.txt");
  temp.folder("drives.txt");
  EXPECT_EQ(system.drives().drives().size(), 3U);
}

// Half a character, and a byte that no text has.
TEST(TextsOfTheSystem, AreRefusedAsPathsAndShownAllTheSameWhereTheyAreNotWellFormed) {
  using namespace platform::win32;
  const std::wstring half = L"a\xD800z";
  EXPECT_EQ(to_utf8(half), std::nullopt);
  EXPECT_EQ(narrow(half), "a\xEF\xBF\xBDz");
  EXPECT_EQ(to_wide("a\xFFz"), std::nullopt);
  EXPECT_EQ(wide("a\xFFz"), L"a\xFFFDz");
  for (const char* const right : {"", "a", "\xE6\xB5\xB7"}) {
    EXPECT_EQ(to_wide(right), wide(right));
    EXPECT_EQ(narrow(wide(right)), right);
    EXPECT_EQ(to_utf8(wide(right)), right);
  }
}

}  // namespace
