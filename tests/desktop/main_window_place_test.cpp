// The main window stands where it stood last, and its commands are reached by their keys.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QScreen>
#include <memory>
#include <string>

#include "desktop/screen_window.h"
#include "desktop_world.h"
#include "mainwindow/CVelmaranDlg.h"
#include "observation/report_file.h"
#include "text/ids.h"

namespace {

struct Started {
  tests::DesktopWorld world;
  ShipFixedData ship;
  KeyObservationItems items;
  mainwindow::Folders folders;
  std::string kept;
  std::unique_ptr<CVelmaranDlg> screen;
  std::unique_ptr<desktop::ScreenWindow> window;

  explicit Started(const std::string& place = {}) {
    ship.call_sign = "JXKV";
    mainwindow::MainWindowContext context{ship, items, folders, {}};
    context.place = place;
    context.keep_place = [this](const std::string& text) { kept = text; };
    screen = std::make_unique<CVelmaranDlg>(world.services, context);
    screen->open();
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
  }
  /// Leaves the program by the close box and a Yes.
  void leave() {
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, [] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box != nullptr) QTest::keyClick(box, Qt::Key_Return);  // Yes stands first
    });
    answers.start(1);
    window->close();
  }
};

TEST(MainWindowPlace, IsKeptWhenTheWindowIsClosedAndTakenByTheNextStart) {
  const QRect wanted =
      QRect(QPoint(0, 0), QSize(700, 600))
          .translated(QGuiApplication::primaryScreen()->availableGeometry().topLeft() +
                      QPoint(40, 50));
  Started first;
  first.window->setGeometry(wanted);
  QApplication::processEvents();
  first.leave();
  ASSERT_TRUE(first.screen->result().has_value());
  const auto kept = ui::window_place(first.kept);
  ASSERT_TRUE(kept.has_value()) << first.kept;
  EXPECT_FALSE(kept->maximised);
  Started next(first.kept);
  EXPECT_EQ(next.window->geometry(), wanted);
}

TEST(MainWindowPlace, IsMaximisedAgainAndHasItsOwnSizeBehindThat) {
  Started first;
  first.window->setGeometry(40, 50, 700, 600);
  QApplication::processEvents();
  first.window->showMaximized();
  QApplication::processEvents();
  ASSERT_TRUE(first.window->isMaximized());
  first.leave();
  const auto kept = ui::window_place(first.kept);
  ASSERT_TRUE(kept.has_value()) << first.kept;
  EXPECT_TRUE(kept->maximised);
  EXPECT_EQ(kept->place.width, 700);
  EXPECT_EQ(kept->place.height, 600);
  const Started next(first.kept);
  EXPECT_TRUE(next.window->isMaximized());
}

TEST(MainWindowPlace, OffEveryDisplayOrGarbledIsNotTaken) {
  const Started fresh;
  const QSize fitting = fresh.window->size();
  for (const char* const place : {"9000 9000 700 600 0", "-9000 50 700 600 0", "40 -5000 700 600 1",
                                  "", "x", "40 50 700", "40 50 0 0 0", "\xff\xfe"}) {
    const Started next(place);
    EXPECT_EQ(next.window->size(), fitting) << place;
    EXPECT_FALSE(next.window->isMaximized()) << place;
    const QRect room = next.window->screen()->availableGeometry();
    EXPECT_TRUE(room.intersects(next.window->geometry())) << place;
  }
}

TEST(MainWindowPlace, OfALargerDisplayIsMadeToFit) {
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  const Started next("10 10 5000 4000 0");
  if (QGuiApplication::screenAt(QPoint(10 + 2500, 10)) == nullptr) {
    // Its middle is beyond the display: as large as the content then.
    EXPECT_LE(next.window->width(), room.width());
  }
  const std::string half = std::to_string(room.left() + room.width() / 4) + " 10 " +
                           std::to_string(room.width()) + " 4000 0";
  const Started moved(half);
  const QRect place = moved.window->geometry();
  constexpr int kFrame = 4;
  EXPECT_TRUE(room.adjusted(-kFrame, -kFrame, kFrame, kFrame).contains(place))
      << half << ": " << place.left() << " " << place.top() << " " << place.width() << " "
      << place.height();
}

// ---- Keys

TEST(MainWindowCommands, CtrlShiftCPutsTheReportOnTheClipboard) {
  Started started;
  started.screen->move_focus(*started.screen->find("VV"));
  started.window->refresh();
  tests::type("97");
  tests::press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  const std::string copied = QApplication::clipboard()->text().toStdString();
  EXPECT_NE(copied.find("41/97"), std::string::npos) << copied;
  EXPECT_EQ(copied, observation::report_file_content(started.screen->report()));
}

TEST(MainWindowCommands, F6GoesToTheReportTheStatusLineAndBack) {
  Started started;
  started.screen->move_focus(*started.screen->find("VV"));
  started.window->refresh();
  const auto focused_widget = [&](const char* name) {
    return QApplication::focusWidget() == started.window->binding(name)->focus_widget();
  };
  tests::press(Qt::Key_F6);
  EXPECT_TRUE(focused_widget("group_YYGGiw"));
  tests::press(Qt::Key_F6);
  EXPECT_TRUE(focused_widget("status_line"));
  const auto* const line =
      qobject_cast<QLineEdit*>(started.window->binding("status_line")->focus_widget());
  ASSERT_NE(line, nullptr);
  EXPECT_TRUE(line->isReadOnly());
  EXPECT_EQ(line->text().toStdString(), started.screen->find("status_line")->content);
  tests::press(Qt::Key_F6);
  EXPECT_TRUE(focused_widget("VV"));
  tests::press(Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_TRUE(focused_widget("status_line"));
}

TEST(MainWindowCommands, TheStatusLineFollowsTheKeys) {
  Started started;
  started.screen->move_focus(*started.screen->find("VV"));
  started.window->refresh();
  const auto* const line =
      qobject_cast<QLineEdit*>(started.window->binding("status_line")->widget());
  ASSERT_NE(line, nullptr);
  tests::type("9");
  EXPECT_TRUE(line->text().startsWith(QStringLiteral("Not possible here: 9")))
      << line->text().toStdString();
  tests::type("7");
  EXPECT_TRUE(line->text().contains(QStringLiteral("97: 10km<=VV<20km")))
      << line->text().toStdString();
}

TEST(MainWindowCommands, CtrlNAndAClickOnItBeginTheNextObservation) {
  for (const bool by_click : {false, true}) {
    Started started;
    started.screen->move_focus(*started.screen->find("VV"));
    started.window->refresh();
    tests::type("97");
    std::string asked;
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, [&asked] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      asked = box->text().toStdString();
      QTest::mouseClick(box->buttons().at(1), Qt::LeftButton);  // No
    });
    answers.start(1);
    if (by_click) {
      QTest::mouseClick(started.window->binding("command_new_watch")->widget(), Qt::LeftButton);
    } else {
      tests::press(Qt::Key_N, Qt::ControlModifier);
    }
    QApplication::processEvents();
    answers.stop();
    EXPECT_NE(asked, "");
    EXPECT_EQ(started.screen->find("VV")->content, "");
    EXPECT_EQ(started.window->focusWidget(), started.window->binding("Year")->focus_widget());
  }
}

}  // namespace
