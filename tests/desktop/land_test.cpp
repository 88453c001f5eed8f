// A position on land, with real keys in real windows.

#include <gtest/gtest.h>

#include <QLineEdit>

#include "desktop_world.h"
#include "fakes/sample_sea_map.h"
#include "fakes/sample_ship.h"
#include "mainwindow/CVelmaranDlg.h"
#include "officer.h"

namespace {

using tests::press;
using tests::type;

// 35 10 N, 139 20 E, which is land in the sample: the same keys on the form and on its own screen.
void type_position() {
  type("35");
  press(Qt::Key_Tab);
  type("10");
  press(Qt::Key_Tab);
  press(Qt::Key_Down);
  press(Qt::Key_Tab);
  type("139");
  press(Qt::Key_Tab);
  type("20");
  press(Qt::Key_Tab);
  press(Qt::Key_Down);
}

desktop::ScreenWindow* window_of(const char* class_name) {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == QLatin1String(class_name))
      return qobject_cast<desktop::ScreenWindow*>(widget);
  }
  return nullptr;
}

struct MainWindow {
  explicit MainWindow(std::deque<tests::Step> steps) : officer(std::move(steps)) {}

  /// Opens the window; the officer's first keys go into its first field. `look` sees it when all
  /// steps are taken.
  void run(const std::function<void()>& first_keys, const std::function<void()>& look) {
    world.windows.on_shown = [&](desktop::ScreenWindow& window) {
      if (window.objectName() != "CVelmaranDlg") return;
      window.activateWindow();
      QApplication::processEvents();
      officer.begin();
      first_keys();
      QApplication::processEvents();
      officer.expect_done();
      look();
      window.done(0);
    };
    world.windows.run_modal(screen);
  }
  void activate() {
    window_of("CVelmaranDlg")->activateWindow();
    QApplication::processEvents();
  }
  void tab_to(std::string_view name) {
    for (std::size_t i = 0; i <= screen.controls().size(); ++i) {
      if (screen.focused() != nullptr && screen.focused()->name == name) return;
      press(Qt::Key_Tab);
    }
    ADD_FAILURE() << "Tab does not come to " << name;
  }

  fakes::SampleSeaMap sample;
  tests::DesktopWorld world;
  ShipFixedData ship = fakes::sample_ship();
  KeyObservationItems items;
  mainwindow::Folders folders;
  CVelmaranDlg screen{world.services, {ship, items, folders, {}, &sample.sea_map}};
  tests::Officer officer;
};

constexpr const char* kQuestion =
    "Waning: Ship's position is on land or coastal region.\nIs it correct ";

TEST(LandInAWindow, IsAskedAboutUntilTheOfficerSaysYes) {
  std::string focus_after_no;
  MainWindow window({{"CPositionDlg",
                      [] {
                        type_position();
                        press(Qt::Key_Return);
                      }},
                     {"box",
                      [] {
                        press(Qt::Key_Right);  // from YES to NO
                        press(Qt::Key_Return);
                      }},
                     {"CPositionDlg",
                      [&] {
                        auto* const edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
                        focus_after_no = edit == nullptr ? "no field" : edit->text().toStdString();
                        press(Qt::Key_Return);
                      }},
                     {"box", [] { press(Qt::Key_Return); }}});
  window.run(
      [&] {
        window.tab_to("LaDeg");
        press(Qt::Key_F1);
      },
      [&] {
        EXPECT_EQ(window.screen.find("LaDeg")->content, "35");
        EXPECT_EQ(window.screen.find("LoMin")->content, "20");
      });
  EXPECT_EQ(focus_after_no, "35");
  EXPECT_EQ(window.officer.told(), (std::vector<std::string>{kQuestion, kQuestion}));
}

TEST(LandInAWindow, IsWarnedOfWhenItIsTypedAndReturnGoesOn) {
  std::string seen_behind;
  MainWindow window(
      {{"CHour3ErrorDlg", [&] {
          seen_behind =
              window_of("CVelmaranDlg")->binding("group_QcLoLoLoLo")->shown().content.toStdString();
          press(Qt::Key_Return);
        }}});
  window.run(
      [&] {
        window.tab_to("LaDeg");
        type_position();
      },
      [&] { EXPECT_NE(window.screen.report().find(" 99351 11393 "), std::string::npos); });
  EXPECT_EQ(seen_behind, "11393") << "the window behind shows what the review is about";
}

TEST(LandInAWindow, IsSeenOnTheLargerMapByF7FromTheForm) {
  MainWindow window({{"CHour3ErrorDlg", [] { press(Qt::Key_Return); }},
                     {"CSeaMapDlg", [] { press(Qt::Key_Escape); }}});
  window.run(
      [&] {
        window.tab_to("LaDeg");
        type_position();
        // What a window manager does when the review has gone.
        window.activate();
        press(Qt::Key_F7);
      },
      [&] { EXPECT_EQ(window.screen.focused()->name, "east_west"); });
}

}  // namespace
