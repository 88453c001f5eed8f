// A saved report is corrected in the real windows with keys alone: the menu, the list by arrows and
// by typed figures, one field, the save.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "desktop_world.h"
#include "fakes/fake_files.h"
#include "fakes/sample_ship.h"
#include "mainwindow/CVelmaranDlg.h"
#include "observation/logbook_encoder.h"
#include "observation/report_reader.h"

namespace {

constexpr const char* kReport = "C:\\out\\14111512.tlx";
// Too long before for the corrected one to be held against it.
constexpr const char* kEarlier = "C:\\out\\14110906.tlx";
constexpr const char* kLogbook = "C:\\log\\immt5.log";
constexpr const char* kText =
    "BBXX JXKV 15123 99357 11653 41497 62718 10152 20114 40132 52014 72582 84531 22213 00178 20604 "
    "327// 40905 .....";

struct Computer {
  Computer() {
    const auto read = observation::read_report(kText, Struct_Weather(ship, items));
    Struct_Weather record = read->record;
    record.Year = "2014";
    record.Month = "11";
    record.dw2dw2 = "00";
    record.LogExtra = "0780";
    line = observation::encode_logbook(record, ship, items);
    files.add_file(kReport, kText);
    files.add_file(kEarlier, kText);
    files.add_file(kLogbook, line + "\n");
    folders.reports = "C:\\out\\";
    folders.logbook = "C:\\log\\";
  }
  fakes::FakeFiles files;
  ShipFixedData ship = fakes::sample_ship();
  KeyObservationItems items;
  mainwindow::Folders folders;
  std::string line;
};

void key(Qt::Key pressed) {
  QWidget* const popup = QApplication::activePopupWidget();
  if (popup == nullptr) {
    tests::press(pressed);
    return;
  }
  QTest::keyClick(popup, pressed);
  QApplication::processEvents();
}

// The first command of the first menu.
void open_the_list() {
  QWidget* const focus = QApplication::focusWidget();
  ASSERT_NE(focus, nullptr);
  QTest::keyPress(focus, Qt::Key_Alt, Qt::AltModifier);
  QTest::keyRelease(focus, Qt::Key_Alt);
  QApplication::processEvents();
  key(Qt::Key_Down);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  if (menu->activeAction() == nullptr) key(Qt::Key_Down);
  ASSERT_EQ(tests::plain_text(*menu->activeAction()), "Correct weather reports");
  key(Qt::Key_Return);
}

/// Runs the program; `in_list` is the officer in the list of reports, `in_form` in the main window.
void run(Computer& computer, const std::function<void(desktop::ScreenWindow&)>& in_list,
         const std::function<void(CVelmaranDlg&, desktop::ScreenWindow&)>& in_form) {
  tests::DesktopWorld world;
  ui::Services services = world.over(computer.files);
  CVelmaranDlg screen(services, {computer.ship, computer.items, computer.folders, {}});
  int shown = 0;
  world.windows.on_shown = [&](desktop::ScreenWindow& window) {
    window.activateWindow();
    QApplication::processEvents();
    if (++shown > 1) {
      in_list(window);
      return;
    }
    in_form(screen, window);
    window.done(0);
  };
  world.windows.run_modal(screen);
  EXPECT_EQ(shown, 2);
}

void go_to(const CVelmaranDlg& screen, std::string_view name) {
  for (std::size_t i = 0; i < screen.controls().size(); ++i) {
    if (screen.focused()->name == name) return;
    tests::press(Qt::Key_Tab);
  }
  FAIL() << "Tab does not come to " << name;
}

TEST(CorrectingOnTheDesktop, GoesByKeysFromTheMenuToBothFiles) {
  Computer computer;
  run(
      computer,
      [](desktop::ScreenWindow& window) {
        const auto line = [&] { return window.binding("reports")->shown().selected; };
        EXPECT_EQ(line(), -1);
        key(Qt::Key_Down);
        key(Qt::Key_Down);
        EXPECT_EQ(line(), 1);
        tests::type("14111512");
        EXPECT_EQ(line(), 0);
        key(Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
      },
      [&](CVelmaranDlg& screen, desktop::ScreenWindow& window) {
        open_the_list();
        // No window manager gives the focus back to the main window here.
        tests::show(window);
        const std::string title = window.windowTitle().toStdString();
        EXPECT_EQ(title, "KAVREL for WIN - correcting 14111512.tlx");
        EXPECT_EQ(window.binding("VV")->shown().content, "97");
        EXPECT_EQ(screen.focused()->name, "Year");
        go_to(screen, "VV");
        tests::type("96");
        tests::press(Qt::Key_Tab);
        std::vector<std::string> asked;
        // The question names neither the file nor the hour: the line behind it does.
        std::string behind;
        const auto* const line = qobject_cast<QLineEdit*>(window.binding("status_line")->widget());
        ASSERT_NE(line, nullptr);
        QTimer answers;
        QObject::connect(&answers, &QTimer::timeout, [&asked, &behind, line] {
          auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
          if (box == nullptr) return;
          if (asked.empty()) behind = line->text().toStdString();
          asked.push_back(box->text().toStdString());
          QTest::keyClick(box->buttons().front(), Qt::Key_Space);
        });
        answers.start(1);
        tests::press(Qt::Key_S, Qt::ControlModifier);
        answers.stop();
        EXPECT_EQ(asked, (std::vector<std::string>{"Weather report file exist. Replace it? ",
                                                   "Save success"}));
        EXPECT_NE(behind.find("14111512.tlx"), std::string::npos) << behind;
        EXPECT_EQ(window.windowTitle().toStdString(), "KAVREL for WIN - report saved");
      });
  std::string report = kText;
  report.replace(report.find("41497"), 5, "41496");
  std::string changed = computer.line;
  changed.replace(21, 2, "96");
  EXPECT_EQ(computer.files.content(kReport), report);
  EXPECT_EQ(computer.files.content(kLogbook), computer.line + "\n" + changed + "\n");
  EXPECT_EQ(computer.files.content(kEarlier), kText);
}

TEST(CorrectingOnTheDesktop, RefusesEnterWithNothingChosenAndEscapeLeavesTheForm) {
  Computer computer;
  run(
      computer,
      [](desktop::ScreenWindow& window) {
        const auto told = tests::messages_of([] { key(Qt::Key_Return); });
        EXPECT_EQ(told, std::vector<std::string>{"Please select file"});
        EXPECT_TRUE(window.isVisible());
        tests::show(window);
        EXPECT_TRUE(window.binding("reports")->owns(QApplication::focusWidget()));
        key(Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
      },
      [&](CVelmaranDlg& screen, desktop::ScreenWindow& window) {
        open_the_list();
        EXPECT_EQ(window.windowTitle().toStdString(), "KAVREL for WIN");
        EXPECT_EQ(screen.find("VV")->content, "");
      });
}

}  // namespace
