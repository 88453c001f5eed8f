// Both copy commands on real files: links, other spellings, odd names and contents, a full disk.

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <filesystem>
#include <utility>

#include "fakes/fake_ports.h"
#include "fakes/sample_logbook.h"
#include "fakes/temp_folder.h"
#include "mainwindow/copy_flow.h"
#include "platform/posix/posix_files.h"
#include "text/ids.h"

namespace {

// A sound one, so that nothing is asked about it.
const std::string kLine = fakes::logbook_line(14, 0) + "\n";

namespace id = text::id;
using Names = std::vector<std::string>;

struct Computer {
  fakes::TempFolder temp;
  platform::posix::SystemCalls calls;
  platform::posix::PosixDriveMap map{temp.path()};
  platform::posix::PosixFiles files{map, calls};
  fakes::World world{files};
  ShipFixedData ship;
  KeyObservationItems items;
  mainwindow::Folders folders;
  mainwindow::MainWindowContext context{ship, items, folders, {}};

  Computer() {
    for (const char* const folder : {"tlx", "log", "copy"}) temp.folder(folder);
    folders.reports = "C:\\tlx\\";
    folders.logbook = "C:\\log\\";
    world.drives.list.push_back({'Z', platform::DriveType::kFixed, 12});
  }
  /// The same file as the computer's own programs name it.
  [[nodiscard]] std::string on_z(const std::string& name) const {
    std::string path = "Z:" + temp / name;
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
  }
  void choose(const std::string& folder) {
    world.windows.expect_screen("CLogDiskSavePathDlg", [folder](ui::Screen& screen) {
      EXPECT_TRUE(screen.reveal(*screen.find("tree"), folder)) << folder;
      screen.press(*screen.find("ok"));
    });
  }
  /// Next, this folder is refused and the dialog left.
  void refuse(const std::string& folder) {
    world.windows.expect_screen("CLogDiskSavePathDlg", [this, folder](ui::Screen& screen) {
      EXPECT_TRUE(screen.reveal(*screen.find("tree"), folder)) << folder;
      world.windows.expect(id::kChooseAnotherFolder);
      screen.press(*screen.find("ok"));
      EXPECT_FALSE(screen.result()) << folder;
      screen.press(*screen.find("cancel"));
    });
  }
  void select_all() {
    world.windows.expect_screen("CTlxSelectDlg",
                                [](ui::Screen& screen) { screen.press(*screen.find("ok")); });
  }
  void copy_logbook() { mainwindow::copy_logbook(world.services, context); }
  void copy_reports() { mainwindow::copy_reports(world.services, context); }
};

TEST(CopyRealFiles, TheSourceFolderIsRefusedHoweverItIsSpelt) {
  Computer c;
  c.temp.write("log/immt5.log", kLine);
  c.temp.write("tlx/14111512.tlx", "BBXX");
  for (const char* const folder : {"log", "tlx"})
    std::filesystem::create_directory_symlink(c.temp / folder,
                                              c.temp / (std::string("to-") + folder));
  for (const char* const spelt : {"C:\\log\\", "C:\\log", "c:\\log\\", "C:\\LOG\\", "C:\\\\log\\\\",
                                  "C:\\.\\log\\.\\", "C:\\copy\\..\\log", "C:\\to-log"}) {
    c.folders.logbook = spelt;
    if (!c.files.is_file(std::string(spelt) + "\\immt5.log")) continue;  // another name here
    for (const std::string& chosen :
         {std::string("C:\\log"), std::string("C:\\to-log"), c.on_z("log"), c.on_z("to-log")}) {
      c.refuse(chosen);
      c.copy_logbook();
    }
  }
  for (const std::string& chosen :
       {std::string("C:\\tlx"), std::string("C:\\to-tlx"), c.on_z("tlx"), c.on_z("to-tlx")}) {
    c.select_all();
    c.refuse(chosen);
    c.copy_reports();
  }
  EXPECT_EQ(c.temp.content("log/immt5.log"), kLine);
  EXPECT_EQ(c.temp.content("tlx/14111512.tlx"), "BBXX");
}

TEST(CopyRealFiles, AFileThatIsTheSourceUnderAnotherNameIsRefused) {
  for (const bool hard : {true, false}) {
    Computer c;
    c.temp.write("log/immt5.log", kLine);
    c.temp.write("tlx/14111506.tlx", "BBXX 06");
    c.temp.write("tlx/14111512.tlx", "BBXX 12");
    for (const auto& [from, to] : {std::pair("log/immt5.log", "copy/immt5.log"),
                                   std::pair("tlx/14111506.tlx", "copy/14111506.tlx")}) {
      if (hard)
        std::filesystem::create_hard_link(c.temp / from, c.temp / to);
      else
        std::filesystem::create_symlink(c.temp / from, c.temp / to);
    }
    c.choose("C:\\copy");
    c.world.windows.expect(id::kChooseAnotherFolder);
    c.copy_logbook();
    c.select_all();
    c.choose("C:\\copy");
    c.world.windows.expect(id::kChooseAnotherFolder);
    c.copy_reports();
    EXPECT_EQ(c.temp.content("log/immt5.log"), kLine);
    EXPECT_EQ(c.temp.names("copy"), (Names{"14111506.tlx", "immt5.log"})) << "nothing is copied";
  }
}

TEST(CopyRealFiles, AnyBytesUnderAnyNameAreCopiedAsTheyAre) {
  Computer c;
  std::string binary;
  for (int i = 0; i < (3 << 20); ++i) binary.push_back(static_cast<char>(i * 7));
  const std::pair<std::string, std::string> files[] = {
      {"14111512.tlx", "BBXX\r\n"}, {"気象 電報.tlx", "x"},
      {".tlx", "hidden"},           {"empty.tlx", ""},
      {"binary.tlx", binary},       {"long.tlx", std::string(5000, 'x')},
  };
  for (const auto& [name, content] : files) c.temp.write("tlx/" + name, content);
  c.temp.folder("tlx/folder.tlx");
  constexpr mode_t kMode = 0600;
  ASSERT_EQ(::mkfifo((c.temp / "tlx/pipe.tlx").c_str(), kMode), 0);
  c.select_all();
  c.choose("C:\\copy");
  c.world.windows.expect(id::kReportsCopied);
  c.world.windows.expect(id::kAskDeleteReports, "all");
  c.copy_reports();
  for (const auto& [name, content] : files)
    EXPECT_TRUE(c.temp.content("copy/" + name) == content) << name;
  EXPECT_EQ(c.temp.names("copy").size(), std::size(files));
  EXPECT_EQ(c.temp.names("tlx"), (Names{"folder.tlx", "pipe.tlx"}));
}

TEST(CopyRealFiles, APipeOrALinkThatLeadsNowhereAtTheDestinationIsToldAndStays) {
  for (const bool pipe : {true, false}) {
    Computer c;
    c.temp.write("log/immt5.log", kLine);
    constexpr mode_t kMode = 0600;
    if (pipe)
      ASSERT_EQ(::mkfifo((c.temp / "copy/immt5.log").c_str(), kMode), 0);
    else
      std::filesystem::create_symlink("nowhere", c.temp / "copy/immt5.log");
    c.choose("C:\\copy");
    c.world.windows.expect(id::kLogbookCopyFailed);
    c.copy_logbook();
    EXPECT_EQ(c.temp.names("copy"), Names{"immt5.log"});
    EXPECT_NE(std::filesystem::symlink_status(c.temp / "copy/immt5.log").type(),
              std::filesystem::file_type::regular);
  }
}

/// A small file system of its own, until the end of the test.
struct SmallDisk {
  explicit SmallDisk(std::string folder)
      : path(std::move(folder)),
        mounted(::mount("none", path.c_str(), "tmpfs", 0, "size=64k") == 0) {}
  ~SmallDisk() {
    if (mounted) (void)::umount(path.c_str());
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  [[nodiscard]] bool make_read_only() const {
    return ::mount("none", path.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "") == 0;
  }

  std::string path;
  bool mounted;
};

TEST(CopyRealFiles, AFullDiskLeavesTheOlderCopyAndNothingBeside) {
  Computer c;
  const SmallDisk disk(c.temp / "copy");
  if (!disk.mounted) GTEST_SKIP() << "nothing may be mounted here";
  std::string large;
  while (large.size() < 100000) large += kLine;
  c.temp.write("log/immt5.log", large);
  c.temp.write("copy/immt5.log", "old");
  c.choose("C:\\copy");
  c.world.windows.expect(id::kAskOverwriteLogbook, "yes");
  c.world.windows.expect_text(
      "Copy of the marine meteorological logbook (immt5.log) failed.\n"
      "C:\\copy\\immt5.log (no space left)");
  c.copy_logbook();
  EXPECT_EQ(c.temp.content("copy/immt5.log"), "old");
  EXPECT_EQ(c.temp.names("copy"), Names{"immt5.log"});
  // Mounted anew without the right to write.
  ASSERT_TRUE(disk.make_read_only());
  c.temp.write("log/immt5.log", kLine);
  c.choose("C:\\copy");
  c.world.windows.expect(id::kAskOverwriteLogbook, "yes");
  c.world.windows.expect_text(
      "Copy of the marine meteorological logbook (immt5.log) failed.\n"
      "C:\\copy\\immt5.log (not permitted)");
  c.copy_logbook();
  EXPECT_EQ(c.temp.content("copy/immt5.log"), "old");
}

}  // namespace
