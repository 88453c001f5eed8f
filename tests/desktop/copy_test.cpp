// Copying with real keys in real windows, on real files: menu, list with ticks, folder, questions.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QMenu>
#include <QMessageBox>
#include <deque>
#include <functional>
#include <string>
#include <utility>

#include "desktop_world.h"
#include "fakes/sample_logbook.h"
#include "fakes/temp_folder.h"
#include "mainwindow/CVelmaranDlg.h"
#include "officer.h"
#include "platform/posix/posix_files.h"

namespace {

using Lines = std::vector<std::string>;

// Sound ones, so that nothing is asked about them.
const std::string kLogbook = fakes::logbook_line(14, 0) + "\n" + fakes::logbook_line(14, 3) + "\n";

struct Computer {
  fakes::TempFolder temp;
  platform::posix::SystemCalls calls;
  platform::posix::PosixDriveMap map{temp.path()};
  platform::posix::PosixFiles files{map, calls};
  ShipFixedData ship;
  KeyObservationItems items;
  mainwindow::Folders folders;

  Computer() {
    ship.call_sign = "ABCD";
    for (const char* const folder : {"tlx", "log", "copy", "file"}) temp.folder(folder);
    folders.reports = "C:\\tlx\\";
    folders.logbook = "C:\\log\\";
    folders.drafts = "C:\\file";
    folders.report_copies = folders.logbook_copies = "C:\\copy\\";
    temp.write("log/immt5.log", kLogbook);
    for (const char* const name : {"14111506.tlx", "14111512.tlx", "14111518.tlx"})
      temp.write(std::string("tlx/") + name, name);
  }
};

/// Opens the main window and runs the item of the menu "File" that so many arrows lead to; each
/// step is taken when its window is on top. What the boxes said.
Lines run(Computer& computer, int arrows, std::deque<tests::Step> steps) {
  tests::DesktopWorld world;
  ui::Services services = {world.fake.clock, world.fake.locale,    world.fake.drives,
                           computer.files,   world.fake.code_page, world.fake.printer,
                           world.windows,    world.fake.texts,     world.messages,
                           world.fake.help};
  CVelmaranDlg screen(services, {computer.ship, computer.items, computer.folders, {}});
  tests::Officer officer(std::move(steps));
  world.windows.on_shown = [&](desktop::ScreenWindow& window) {
    if (window.objectName() != "CVelmaranDlg") return;
    window.activateWindow();
    QApplication::processEvents();
    QWidget* const focus = QApplication::focusWidget();
    QTest::keyPress(focus, Qt::Key_Alt, Qt::AltModifier);
    QTest::keyRelease(focus, Qt::Key_Alt);
    tests::press(Qt::Key_Down);
    const auto popup_key = [](Qt::Key key) {
      QWidget* const popup = QApplication::activePopupWidget();
      if (popup == nullptr) return false;
      QTest::keyClick(popup, key);
      return true;
    };
    for (int i = 0; i < arrows; ++i) EXPECT_TRUE(popup_key(Qt::Key_Down));
    officer.begin();
    EXPECT_TRUE(popup_key(Qt::Key_Return));
    QApplication::processEvents();
    officer.expect_done();
    window.done(0);
  };
  world.windows.run_modal(screen);
  return officer.told();
}

constexpr int kToReports = 2;
constexpr int kToLogbook = 3;

std::function<void()> keys(std::vector<Qt::Key> pressed) {
  return [pressed = std::move(pressed)] {
    for (const Qt::Key key : pressed) tests::press(key);
  };
}

/// The button of a question, by its access key as the person presses it.
std::function<void()> button(int index) {
  return [index] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(nullptr, box);
    if (index >= box->buttons().size()) {
      ADD_FAILURE() << "no such button: " << box->text().toStdString();
      tests::press(Qt::Key_Escape);  // else nobody would ever close it
      return;
    }
    for (int i = 0; i < 5 && QApplication::focusWidget() != box->buttons().at(index); ++i)
      tests::press(Qt::Key_Tab);
    ASSERT_EQ(box->buttons().at(index), QApplication::focusWidget());
    tests::press(Qt::Key_Return);
  };
}

TEST(CopyByKeys, TheLogbookIsCopiedAndDeleted) {
  Computer computer;
  const Lines told = run(computer, kToLogbook,
                         {{"CLogDiskSavePathDlg", keys({Qt::Key_Return})},
                          {"box", keys({Qt::Key_Return})},
                          {"box", button(0)}});
  EXPECT_EQ(told, (Lines{"Copy of the marine meteorological logbook (immt5.log) succeeded.\nPlease "
                         "send the marine meteorological logbook to Ostrel at your port call.",
                         "Do you wish to delete the marine meteorological logbook (immt5.log) \nin "
                         "the source folder?"}));
  EXPECT_EQ(computer.temp.content("copy/immt5.log"), kLogbook);
  EXPECT_EQ(computer.temp.names("log"), Lines{});
}

TEST(CopyByKeys, EscapeKeepsTheLogbookAndTheOlderCopy) {
  Computer computer;
  computer.temp.write("copy/immt5.log", "old");
  const Lines told = run(computer, kToLogbook,
                         {{"CLogDiskSavePathDlg", keys({Qt::Key_Return})},
                          {"box", keys({Qt::Key_Escape})},
                          {"box", keys({Qt::Key_Return})}});
  ASSERT_EQ(told.size(), 2U);
  EXPECT_EQ(told[1], "Copy of the marine meteorological logbook (immt5.log) canceled.");
  EXPECT_EQ(computer.temp.content("copy/immt5.log"), "old");
  EXPECT_EQ(computer.temp.content("log/immt5.log"), kLogbook);
}

TEST(CopyByKeys, SpaceTakesTheTickOffAReportAndTheOthersAreCopied) {
  Computer computer;
  computer.temp.write("copy/14111506.tlx", "old");
  const Lines told = run(computer, kToReports,
                         {{"CTlxSelectDlg", keys({Qt::Key_Down, Qt::Key_Space, Qt::Key_Return})},
                          {"CLogDiskSavePathDlg", keys({Qt::Key_Return})},
                          {"box", keys({Qt::Key_Return})},  // the first was copied
                          {"box", button(1)},               // and stays
                          {"box", button(0)},               // the third is overwritten
                          {"box", keys({Qt::Key_Return})},
                          {"box", button(1)}});
  ASSERT_EQ(told.size(), 5U);
  EXPECT_TRUE(told[2].starts_with("The weather report (14111506.tlx) already exists")) << told[2];
  EXPECT_EQ(computer.temp.names("copy"), (Lines{"14111506.tlx", "14111518.tlx"}));
  EXPECT_EQ(computer.temp.content("copy/14111506.tlx"), "14111506.tlx");
  EXPECT_EQ(computer.temp.names("tlx").size(), 3U);
}

TEST(CopyByKeys, WithNoTickTheListStaysOpenAndSpaceBringsOneBack) {
  Computer computer;
  const Lines told = run(computer, kToReports,
                         {{"CTlxSelectDlg", keys({Qt::Key_Space, Qt::Key_Down, Qt::Key_Space,
                                                  Qt::Key_Down, Qt::Key_Space, Qt::Key_Return})},
                          {"box", keys({Qt::Key_Return})},
                          {"CTlxSelectDlg", keys({Qt::Key_Space, Qt::Key_Return})},
                          {"CLogDiskSavePathDlg", keys({Qt::Key_Return})},
                          {"box", keys({Qt::Key_Return})},
                          {"box", keys({Qt::Key_Escape})}});
  ASSERT_EQ(told.size(), 3U);
  EXPECT_EQ(told[0], "No file selected");
  EXPECT_EQ(computer.temp.names("copy"), Lines{"14111506.tlx"});
}

TEST(CopyByKeys, TheFolderIsFoundByTheArrows) {
  Computer computer;
  computer.temp.folder("copy/a");
  computer.temp.folder("copy/b/c");
  // Right opens a row and stays on it; a second Right, or Down, goes on to what it holds.
  run(computer, kToLogbook,
      {{"CLogDiskSavePathDlg",
        keys({Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left,
              Qt::Key_Left, Qt::Key_Left, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return})},
       {"box", keys({Qt::Key_Return})},
       {"box", button(1)}});
  EXPECT_EQ(computer.temp.content("copy/b/immt5.log"), kLogbook);
}

TEST(CopyByKeys, TheFolderOfTheReportsIsRefusedAlsoBehindALink) {
  Computer computer;
  std::filesystem::create_directory_symlink(computer.temp / "tlx", computer.temp / "copy/again");
  const Lines told =
      run(computer, kToReports,
          {{"CTlxSelectDlg", keys({Qt::Key_Return})},
           // The proposed folder is opened, and the link within it chosen.
           {"CLogDiskSavePathDlg", keys({Qt::Key_Right, Qt::Key_Down, Qt::Key_Return})},
           {"box", keys({Qt::Key_Return})},
           {"CLogDiskSavePathDlg", keys({Qt::Key_Escape})}});
  EXPECT_EQ(told, Lines{"Please specify another folder to copy. "});
  EXPECT_EQ(computer.temp.names("copy"), Lines{"again"});
  EXPECT_EQ(computer.temp.names("tlx").size(), 3U);
}

}  // namespace
