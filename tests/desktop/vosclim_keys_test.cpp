// The VOSClim data in the real windows with keys alone: from the menu bar and from the fixed data,
// what is refused and corrected, and what Enter and Escape leave.

#include <gtest/gtest.h>

#include <QMenuBar>
#include <functional>
#include <string>
#include <vector>

#include "desktop_world.h"
#include "fakes/fake_files.h"
#include "fakes/sample_ship.h"
#include "mainwindow/CVelmaranDlg.h"
#include "ship/CFixDataDlg.h"
#include "ship/CVosClimDlg.h"

namespace {

using tests::messages_of;
using tests::press;
using tests::type;
using Dialog = tests::Shown<CVosClimDlg>;
using Values = CVosClimDlg::Values;
using Texts = std::vector<std::string>;

std::string shown(const Dialog& dialog, const char* name) {
  return dialog.window->binding(name)->shown().content.toStdString();
}

bool has_focus(const Dialog& dialog, const char* name) {
  return dialog.window->binding(name)->owns(QApplication::focusWidget());
}

TEST(VosClimByKeys, AreTypedAndConfirmedWithEnter) {
  Dialog dialog(Values{});
  EXPECT_TRUE(has_focus(dialog, "cargo_height"));
  type("7");
  press(Qt::Key_Tab);
  EXPECT_EQ(shown(dialog, "cargo_height"), "07");
  type("-3");
  press(Qt::Key_Return);
  EXPECT_EQ(dialog.screen->result(), ui::kOk);
  EXPECT_EQ(dialog.screen->values(), (Values{"07", "-03"}));
}

// What is typed next stands in place of what was refused, without a key to delete it.
TEST(VosClimByKeys, GiveTheFocusBackWithTheRefusedTextSelected) {
  struct Row {
    const char* field;
    const char* wrong;
    Qt::Key left_by;
  };
  for (const Row& row :
       {Row{"cargo_height", "A1", Qt::Key_Tab}, Row{"departure", "-", Qt::Key_Tab},
        Row{"departure", "123", Qt::Key_Backtab}, Row{"cargo_height", "1x", Qt::Key_Return},
        Row{"departure", "+1x", Qt::Key_Return}}) {
    Dialog dialog(Values{"12", "+05"});
    dialog.tab_to(row.field);
    type(row.wrong);
    EXPECT_EQ(messages_of([&] { press(row.left_by); }), Texts{"No digital string"}) << row.wrong;
    EXPECT_FALSE(dialog.screen->result());
    // No window manager gives the window the keyboard back here.
    dialog.window->activateWindow();
    QApplication::processEvents();
    ASSERT_TRUE(has_focus(dialog, row.field)) << row.wrong;
    EXPECT_EQ(shown(dialog, row.field), row.wrong);
    type("4");
    press(Qt::Key_Return);
    EXPECT_EQ(dialog.screen->result(), ui::kOk);
    const bool height = std::string_view(row.field) == "cargo_height";
    EXPECT_EQ(dialog.screen->values(), (height ? Values{"04", "+05"} : Values{"12", "+04"}));
  }
}

TEST(VosClimByKeys, TakeNoMoreThanFits) {
  Dialog dialog(Values{});
  type("1234");
  press(Qt::Key_Tab);
  type("-1234");
  press(Qt::Key_Return);
  EXPECT_EQ(dialog.screen->values(), (Values{"12", "-12"}));
}

TEST(VosClimByKeys, AreLeftUncheckedWithEscape) {
  Dialog dialog(Values{"12", "+05"});
  type("x");
  EXPECT_EQ(messages_of([] { press(Qt::Key_Escape); }), Texts{});
  EXPECT_EQ(dialog.screen->result(), ui::kCancel);
  EXPECT_EQ(dialog.screen->values(), (Values{"12", "+05"}));
}

// ---- From the two places that lead to them

struct Ship {
  Ship() {
    ship.vosclim = true;
    folders.fixed_data = "C:\\kavrel\\file\\FIXDATA.DAT";
  }
  fakes::FakeFiles files;
  ShipFixedData ship = fakes::sample_ship();
  KeyObservationItems items;
  mainwindow::Folders folders;
  int written = 0;
};

/// Opens the menu bar's command that stands so far from the first with keys. Each window that opens
/// from there on is handed to the next of `acts`.
void run_command(Ship& on, const char* command,
                 const std::vector<std::function<void(desktop::ScreenWindow&)>>& acts) {
  tests::DesktopWorld world;
  ui::Services services = world.over(on.files);
  CVelmaranDlg screen(services, {on.ship, on.items, on.folders, [&on] { ++on.written; }});
  std::size_t opened = 0;
  world.windows.on_shown = [&](desktop::ScreenWindow& window) {
    window.activateWindow();
    QApplication::processEvents();
    if (opened++ > 0) {
      ASSERT_LE(opened, acts.size() + 1);
      acts[opened - 2](window);
      return;
    }
    QWidget* const focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    QTest::keyPress(focus, Qt::Key_Alt, Qt::AltModifier);
    QTest::keyRelease(focus, Qt::Key_Alt);
    QApplication::processEvents();
    auto* const bar = window.findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    for (int i = 0; i < bar->actions().size(); ++i) {
      if (bar->activeAction() != nullptr && tests::plain_text(*bar->activeAction()) == command)
        break;
      press(Qt::Key_Right);
    }
    ASSERT_NE(bar->activeAction(), nullptr);
    ASSERT_EQ(tests::plain_text(*bar->activeAction()), command);
    press(Qt::Key_Return);
    window.done(0);
  };
  world.windows.run_modal(screen);
  EXPECT_EQ(opened, acts.size() + 1);
}

TEST(VosClimByKeys, GoFromTheMenuBarIntoTheShipAtOnce) {
  Ship ship;
  run_command(ship, " VOSClim", {[](desktop::ScreenWindow& dialog) {
                EXPECT_EQ(dialog.objectName().toStdString(), "CVosClimDlg");
                type("7");
                press(Qt::Key_Tab);
                type("12");
                press(Qt::Key_Return);
                EXPECT_FALSE(dialog.isVisible());
              }});
  EXPECT_EQ(ship.ship.vosclim_cargo_height + ship.ship.vosclim_load_line_departure, "07+12");
  EXPECT_EQ(ship.written, 1);
}

// The button by keys; Enter behind it is the fixed data's OK, for the focus went on.
TEST(VosClimByKeys, GoFromTheFixedDataWithTheirOk) {
  for (const Qt::Key end : {Qt::Key_Return, Qt::Key_Escape}) {
    Ship ship;
    const auto enters = [](desktop::ScreenWindow& dialog) {
      EXPECT_EQ(dialog.objectName().toStdString(), "CVosClimDlg");
      type("9");
      press(Qt::Key_Return);
    };
    const auto to_the_button = [end](desktop::ScreenWindow& fixed) {
      EXPECT_EQ(fixed.objectName().toStdString(), "CFixDataDlg");
      for (int i = 0; i < 40; ++i) {
        if (fixed.binding("vosclim_inputting")->owns(QApplication::focusWidget())) break;
        press(Qt::Key_Tab);
      }
      ASSERT_TRUE(fixed.binding("vosclim_inputting")->owns(QApplication::focusWidget()));
      press(Qt::Key_Space);
      // No window manager gives the focus back here.
      fixed.activateWindow();
      QApplication::processEvents();
      EXPECT_FALSE(fixed.binding("vosclim_inputting")->owns(QApplication::focusWidget()));
      EXPECT_EQ(messages_of([end] { press(end); }), Texts{});
      EXPECT_FALSE(fixed.isVisible());
      fixed.done(0);
    };
    run_command(ship, "Fixed data", {to_the_button, enters});
    const bool kept = end == Qt::Key_Return;
    EXPECT_EQ(ship.ship.vosclim_cargo_height, kept ? "09" : "");
    EXPECT_EQ(ship.written, kept ? 1 : 0);
  }
}

}  // namespace
