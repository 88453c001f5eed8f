// The main window in a real window, by keyboard alone.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <memory>
#include <string>

#include "desktop/screen_window.h"
#include "fakes/fake_ports.h"
#include "mainwindow/CVelmaranDlg.h"

namespace {

struct MainWindow {
  fakes::World world;
  ShipFixedData ship;
  KeyObservationItems items;
  mainwindow::Folders folders;
  CVelmaranDlg screen{world.services, {ship, items, folders, {}}};
  std::unique_ptr<desktop::ScreenWindow> window;

  MainWindow() {
    ship.call_sign = "ABCD";
    world.services.moves_on = false;  // a Tab behind every field
    screen.open();
    window = std::make_unique<desktop::ScreenWindow>(screen, nullptr);
    window->show();
    window->activateWindow();
    QApplication::processEvents();
  }
  static void type(const char* text) {
    QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QApplication::processEvents();
  }
};

TEST(MainWindowOnTheDesktop, TakesAnObservationFromTheKeyboard) {
  const auto shown = std::make_unique<MainWindow>();
  for (const char* const text : {"2014", "11", "15", "12", "35", "20"}) MainWindow::type(text);
  ASSERT_EQ("north_south", shown->screen.focused()->name);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  MainWindow::type("");
  for (const char* const text : {"140", "05"}) MainWindow::type(text);
  ASSERT_EQ("east_west", shown->screen.focused()->name);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  MainWindow::type("");
  for (const char* const text : {"2", "3"}) MainWindow::type(text);
  EXPECT_NE(std::string::npos, shown->screen.report().find(" 15123 99353 11400 "))
      << shown->screen.report();
  EXPECT_NE(std::string::npos, shown->screen.report().find(" 22223 "));
}

TEST(MainWindowOnTheDesktop, IsNotClosedByEnterOrEscapeAndKeepsShiftF10FromItsFields) {
  const auto shown = std::make_unique<MainWindow>();
  const std::string before = fakes::dump(shown->screen);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape})
    QTest::keyClick(QApplication::focusWidget(), key);
  for (const Qt::Key key : {Qt::Key_F10, Qt::Key_F12})
    QTest::keyClick(QApplication::focusWidget(), key, Qt::ShiftModifier);
  QApplication::processEvents();
  EXPECT_TRUE(shown->window->isVisible());
  EXPECT_FALSE(shown->screen.result().has_value());
  EXPECT_EQ(nullptr, QApplication::activePopupWidget());
  EXPECT_EQ(before, fakes::dump(shown->screen));
}

}  // namespace
