// Printing what lies in real folders, with what else may lie there.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "archive/CPrintAllTLXDlg.h"
#include "archive/CQFPrintDlg.h"
#include "archive/logbook_listing.h"
#include "fakes/fake_ports.h"
#include "fakes/temp_folder.h"
#include "platform/posix/posix_files.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using platform::FileError;

class RealFolders : public testing::Test {
 protected:
  RealFolders() { std::filesystem::create_directory(folder.path() + "/out"); }
  [[nodiscard]] std::string at(const std::string& name) const {
    return folder.path() + "/out/" + name;
  }
  void write(const std::string& name, const std::string& content) const {
    std::ofstream(at(name), std::ios::binary) << content;
  }

  fakes::TempFolder folder;
  platform::posix::SystemCalls calls;
  platform::posix::PosixDriveMap map{folder.path()};
  platform::posix::PosixFiles files{map, calls};
  fakes::World world{files};
};

TEST_F(RealFolders, ReportsArePrintedBesideWhatIsNoReport) {
  write("14111512.tlx", "BBXX JABC 15124 99345 11395 41/98 40210");
  write("14111518.tlx", std::string(70000, 'x'));
  write("気象.tlx", "BBXX JABC");
  std::filesystem::create_directory(at("folder.tlx"));
  std::filesystem::create_symlink(at("nowhere"), at("link.tlx"));
  // Nobody writes into it: whoever waits for that waits for ever.
  ASSERT_EQ(::mkfifo(at("pipe.tlx").c_str(), 0600), 0);
  CPrintAllTLXDlg screen(world.services, "C:\\out\\");
  screen.open();
  world.windows.expect(id::kPrintSuccess);
  screen.press(screen.pages.print);
  ASSERT_EQ(world.printer.printed.size(), 1U);
  const ui::Document& printed = *world.printer.printed.front().lines;
  std::vector<std::string> lines = printed.lines(2, printed.size());
  std::erase(lines, "");
  EXPECT_EQ(std::vector(lines.begin(), lines.begin() + 2),
            (std::vector<std::string>{"14111518.tlx",
                                      "14111512.tlxBBXX JABC 15124 99345 11395 41/98 40210"}));
  EXPECT_NE(std::find(lines.begin(), lines.end(), "気象.tlx    BBXX JABC"), lines.end());
  for (const std::string& line : lines) {
    EXPECT_FALSE(line.starts_with("pipe")) << line;
    EXPECT_FALSE(line.starts_with("folder")) << line;
  }
}

TEST_F(RealFolders, ReportThatVanishesIsNamed) {
  write("14111512.tlx", "BBXX JABC 15124");
  CQFPrintDlg screen(world.services, "C:\\out\\");
  screen.open();
  std::filesystem::remove(at("14111512.tlx"));
  screen.choose(screen.reports, 0);
  EXPECT_EQ(screen.pages.remark.content, "14111512.tlx cannot be read (no such file or folder).");
}

TEST_F(RealFolders, LogbookMayBecomeShorterOrGoAwayWhileItIsListed) {
  const std::string record = std::string(172, 'r') + "\n";
  std::string content;
  for (int i = 0; i < 5000; ++i) content += record;
  write("immt5.log", content);
  const archive::LogbookListing shortened(files, "C:\\out\\immt5.log", {});
  ASSERT_EQ(shortened.records(), 5000U);
  std::filesystem::resize_file(at("immt5.log"), 100 * record.size());
  EXPECT_EQ(shortened.lines(0, shortened.size()).size(), shortened.size());
  EXPECT_EQ(shortened.error(), FileError::kOther);
  write("immt5.log", content);
  const archive::LogbookListing gone(files, "C:\\out\\immt5.log", {});
  std::filesystem::remove(at("immt5.log"));
  EXPECT_EQ(gone.lines(0, gone.size()).size(), gone.size());
  EXPECT_EQ(gone.error(), FileError::kNotFound);
  ASSERT_EQ(::mkfifo(at("immt5.log").c_str(), 0600), 0);
  EXPECT_EQ(archive::LogbookListing(files, "C:\\out\\immt5.log", {}).error(), FileError::kNotAFile);
}

}  // namespace
