#include "platform/posix/posix_ports.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "fakes/temp_folder.h"
#include "platform/posix/system.h"

namespace {

using platform::DateTime;
using platform::DriveType;
using platform::SystemOptions;
using platform::posix::System;

/// Sets an environment variable for one test.
class Environment {
 public:
  Environment(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    value == nullptr ? ::unsetenv(name) : ::setenv(name, value, 1);
    ::tzset();
  }
  ~Environment() {
    old_ ? ::setenv(name_, old_->c_str(), 1) : ::unsetenv(name_);
    ::tzset();
  }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

 private:
  const char* name_;
  std::optional<std::string> old_;
};

// ---- Clock

TEST(Clock, AStoppedClockTellsUtcAndTheZonesLocalTime) {
  const DateTime utc{2014, 11, 15, 20, 50, 0};
  const struct {
    const char* zone;
    DateTime local;
  } rows[] = {
      {"UTC0", {2014, 11, 15, 20, 50, 0}},
      {"JST-9", {2014, 11, 16, 5, 50, 0}},
      {"NST3:30", {2014, 11, 15, 17, 20, 0}},
  };
  for (const auto& row : rows) {
    const Environment zone("TZ", row.zone);
    const platform::posix::PosixClock clock(utc);
    EXPECT_EQ(clock.utc(), utc) << row.zone;
    EXPECT_EQ(clock.local(), row.local) << row.zone;
  }
}

TEST(Clock, TheComputersClockGoesOn) {
  const platform::posix::PosixClock clock;
  const auto before = clock.utc();
  EXPECT_GE(before.year, 2024);
  EXPECT_LE(before, clock.utc());
}

// ---- Locale

TEST(Locale, FirstVariableThatIsNotEmptyCounts) {
  const Environment all("LC_ALL", "");
  const Environment messages("LC_MESSAGES", nullptr);
  const Environment lang("LANG", "ja_JP.UTF-8");
  EXPECT_EQ(platform::posix::environment_locale(), "ja_JP.UTF-8");
  const Environment over("LC_MESSAGES", "de_DE");
  EXPECT_EQ(platform::posix::environment_locale(), "de_DE");
  const Environment over_all("LC_ALL", "C");
  EXPECT_EQ(platform::posix::environment_locale(), "C");
}

// ---- Help

TEST(Help, PageOfATopicIsLookedForInTheHelpFolder) {
  const fakes::TempFolder temp;
  temp.write("program/help/Kavrel_E/in.htm", "");
  temp.write("program/help/flat.htm", "");
  temp.write("program/help/Kavrel_E.htm", "");
  temp.write("program/help/Kavrel_J/index.htm", "");
  temp.folder("program/help/folder.htm");
  const platform::posix::PosixDriveMap map(temp.path());
  std::vector<std::string> opened;
  bool works = true;
  platform::posix::PosixHelp help(map, [&](const std::string& page) {
    opened.push_back(page);
    return works;
  });
  EXPECT_TRUE(help.show("C:\\program\\help\\Kavrel_E.CHM::/in.htm"));
  EXPECT_TRUE(help.show("C:\\program\\help\\Kavrel_E.CHM::/flat.htm"));
  EXPECT_TRUE(help.show("C:\\program\\help\\Kavrel_E.CHM"));
  EXPECT_TRUE(help.show("C:\\program\\help\\Kavrel_J.CHM"));
  EXPECT_EQ(opened,
            (std::vector<std::string>{
                temp / "program/help/Kavrel_E/in.htm", temp / "program/help/flat.htm",
                temp / "program/help/Kavrel_E.htm", temp / "program/help/Kavrel_J/index.htm"}));
  EXPECT_FALSE(help.show("C:\\program\\help\\Kavrel_E.CHM::/none.htm"));
  EXPECT_FALSE(help.show("C:\\program\\help\\Kavrel_E.CHM::/folder.htm"));
  EXPECT_FALSE(help.show("C:\\program\\help\\Other_E.CHM"));
  EXPECT_FALSE(help.show(""));
  EXPECT_EQ(opened.size(), 4U);
  works = false;
  EXPECT_FALSE(help.show("C:\\program\\help\\Kavrel_E.CHM")) << "nothing to show it with";
}

TEST(Help, WithoutABrowserNothingIsOpened) {
  const Environment path("PATH", "/nowhere");
  EXPECT_FALSE(platform::posix::PosixHelp::open_in_browser("/tmp/x.htm"));
}

// ---- The bundle

TEST(System, OptionsChooseRootProgramLocaleAndClock) {
  const fakes::TempFolder temp;
  System system({temp / "new/root", temp / "program", "ja", "2014-11-15T11:50"});
  EXPECT_TRUE(system.problems().empty());
  EXPECT_TRUE(std::filesystem::is_directory(temp / "new/root"));
  EXPECT_EQ(system.clock().utc(), (DateTime{2014, 11, 15, 11, 50, 0}));
  EXPECT_EQ(system.locale().locale_id(), 0x0411U);
  EXPECT_EQ(system.drives().system_folder().substr(0, 3), "C:\\");
  const std::string program = system.drives().program_path();
  EXPECT_EQ(program, *system.map().to_program(temp / "program/kavrel"));
  EXPECT_EQ(system.files().replace("C:\\x", "y"), platform::FileError::kNone);
  EXPECT_EQ(temp.content("new/root/x"), "y");
}

TEST(System, RootComesFromTheEnvironmentElseFromTheUsersDataFolder) {
  const fakes::TempFolder temp;
  const std::string data = temp / "data";
  const Environment xdg("XDG_DATA_HOME", data.c_str());
  {
    const Environment none("KAVREL_ROOT", nullptr);
    const System system;
    EXPECT_EQ(*system.map().to_os("C:\\").value, data + "/kavrel/drive_c");
  }
  const std::string root = temp / "given";
  const Environment given("KAVREL_ROOT", root.c_str());
  const System system;
  EXPECT_EQ(*system.map().to_os("C:\\").value, root);
  const System chosen({.root = temp / "chosen", .program = {}, .locale = {}, .clock = {}});
  EXPECT_EQ(*chosen.map().to_os("C:\\").value, temp / "chosen");
}

TEST(System, RelativeDataFolderOfTheEnvironmentIsPassedOver) {
  const Environment home("HOME", "/home/officer");
  const Environment xdg("XDG_DATA_HOME", "relative");
  EXPECT_EQ(platform::posix::default_root(), "/home/officer/.local/share/kavrel/drive_c");
}

TEST(System, WrongOptionsAreNamed) {
  const fakes::TempFolder temp;
  temp.write("file", "no folder");
  temp.write("root/drives.txt", "A removable floppy absent\nQQ removable floppy x\n");
  System system({temp / "root", {}, {}, "yesterday"});
  ASSERT_EQ(system.problems().size(), 2U);
  EXPECT_EQ(system.problems()[0].substr(0, 20), "drives.txt: line 2: ");
  EXPECT_EQ(system.problems()[1].substr(0, 9), "--clock: ");
  EXPECT_EQ(System({temp / "file", {}, {}, {}}).problems().size(), 1U);
}

TEST(System, DrivesOfTheFileArePutBesideTheOthers) {
  const fakes::TempFolder temp;
  temp.write("drives.txt", "A removable floppy floppy_a\nF cdrom other absent\n");
  System system({temp.path(), {}, {}, {}});
  const auto drives = system.drives().drives();
  ASSERT_EQ(drives.size(), 4U);
  EXPECT_EQ(drives[0].letter, 'A');
  EXPECT_EQ(drives[0].type, DriveType::kRemovable);
  EXPECT_EQ(drives[0].media_type, 2);
  EXPECT_EQ(drives[2].type, DriveType::kCdRom);
  EXPECT_EQ(system.drives().older_device_type(1), std::nullopt);
  EXPECT_FALSE(system.drives().medium_present('A'));
  temp.folder("floppy_a");
  EXPECT_TRUE(system.drives().medium_present('A'));
  EXPECT_EQ(system.files().replace("A:\\x", "y"), platform::FileError::kNone);
  EXPECT_EQ(temp.content("floppy_a/x"), "y");
}

TEST(System, ProgramFolderIsThatOfTheExecutable) {
  const fakes::TempFolder temp;
  System system({temp.path(), {}, {}, {}});
  const auto here = std::filesystem::read_symlink("/proc/self/exe").string();
  EXPECT_EQ(system.drives().program_path(), *system.map().to_program(here));
}

}  // namespace
