// The dialogs that pick codes, by real keys on real widgets, from the field on the form and back.

#include <gtest/gtest.h>

#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <memory>
#include <string>
#include <vector>

#include "codetables/CNowWeatherDlg.h"
#include "codetables/code_pickers.h"
#include "desktop_world.h"
#include "elements/CPresureTendencyDlg.h"
#include "fakes/sample_ship.h"
#include "mainwindow/CVelmaranDlg.h"
#include "text/ids.h"

namespace {

using tests::DesktopWorld;
using tests::press;
using tests::type;

// The main window of a ship that observes every element, and a person who has only keys.
struct Keys {
  DesktopWorld world;
  ShipFixedData ship = fakes::sample_ship();
  KeyObservationItems items;
  mainwindow::Folders folders;
  std::unique_ptr<CVelmaranDlg> screen;
  std::unique_ptr<desktop::ScreenWindow> window;
  std::string opened;  ///< the last dialog

  Keys() {
    screen = std::make_unique<CVelmaranDlg>(
        world.services, mainwindow::MainWindowContext{ship, items, folders, {}, {}});
    screen->open();
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
  }
  [[nodiscard]] std::string shown(std::string_view field) const {
    return window->binding(field)->shown().content.toStdString();
  }
  void go_to(std::string_view field) const {
    ASSERT_TRUE(screen->move_focus(*screen->find(field))) << field;
    window->refresh();
    QApplication::processEvents();
  }
  /// F1 in the field that has the focus; the keys go to the dialog that opens.
  void press_f1(const std::function<void(desktop::ScreenWindow&)>& keys) {
    opened.clear();
    world.windows.on_shown = [&](desktop::ScreenWindow& dialog) {
      opened = dialog.objectName().toStdString();
      dialog.activateWindow();
      QApplication::processEvents();
      keys(dialog);
    };
    press(Qt::Key_F1);
    window->activateWindow();
    QApplication::processEvents();
  }
};

bool has_focus(const desktop::ScreenWindow& dialog, std::string_view control) {
  return dialog.binding(control)->owns(QApplication::focusWidget());
}

void tab_to(const desktop::ScreenWindow& dialog, std::string_view control) {
  for (std::size_t i = 0; i <= dialog.bindings().size(); ++i) {
    if (has_focus(dialog, control)) return;
    press(Qt::Key_Tab);
  }
  FAIL() << "Tab does not come to " << control;
}

// Help, by the keyboard, and back to where one was.
void read_help(const desktop::ScreenWindow& dialog, std::string_view control) {
  tab_to(dialog, "help");
  press(Qt::Key_Space);
  tab_to(dialog, control);
}

// A refused text in the field; the message is closed by a key.
void enter_refused(Keys& keys, const std::string& field) {
  keys.go_to(field);
  type("x");
  int told = 0;
  QTimer::singleShot(0, [&] {
    QWidget* const box = QApplication::activeModalWidget();
    ASSERT_NE(box, nullptr);
    ++told;
    QTest::keyClick(box, Qt::Key_Return);
  });
  press(Qt::Key_Tab);
  ASSERT_EQ(told, 1) << field;
  keys.window->activateWindow();
  QApplication::processEvents();
  ASSERT_EQ(keys.screen->find(field)->mark, "wrong") << field;
  ASSERT_TRUE(keys.window->binding(field)->owns(QApplication::focusWidget())) << field;
}

// Every code that a picker picks, from a field with a refused text: F1, Help, the figures of a
// code, Return.
TEST(CodeDialogs, PutTheCodeOfTheKeysInPlaceOfARefusedText) {
  int fields = 0;
  for (const codetables::CodePicker* const picker : codetables::code_pickers()) {
    for (const codetables::PickedCode& picked : picker->codes) {
      for (const codetables::CodeRow& line :
           {codetables::lines_of(picked).front(), codetables::lines_of(picked).back()}) {
        SCOPED_TRACE(std::string(picked.symbol) + " " + std::string(line.figures));
        const std::string field(picked.symbol);
        Keys keys;
        enter_refused(keys, field);
        keys.press_f1([&](desktop::ScreenWindow& dialog) {
          tab_to(dialog, picked.control);
          read_help(dialog, picked.control);
          type(line.figures);
          press(Qt::Key_Return);
        });
        EXPECT_EQ(keys.opened, picker->class_name);
        EXPECT_EQ(keys.world.fake.help_viewer.shown.size(), 1U);
        const auto member = find_weather_field(picked.symbol)->member;
        EXPECT_EQ(keys.screen->form().record().*member, line.figures);
        EXPECT_NE(keys.shown(field), "x");
        EXPECT_EQ(keys.screen->find(field)->mark, "");
        EXPECT_NE(keys.screen->focused()->name, field);
      }
      ++fields;
    }
  }
  EXPECT_GE(fields, 13);
}

TEST(CodeDialogs, OfPresentWeatherAreUsedByKeysAlone) {
  Keys keys;
  enter_refused(keys, "ww");
  keys.press_f1([](desktop::ScreenWindow& dialog) {
    EXPECT_TRUE(has_focus(dialog, "choice"));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    press(Qt::Key_Tab);
    EXPECT_TRUE(has_focus(dialog, "group"));
    type("60");
    press(Qt::Key_Tab);
    EXPECT_TRUE(has_focus(dialog, "line"));
    read_help(dialog, "line");
    type("6");
    EXPECT_EQ(dialog.binding("line")->shown().selected, -1);
    type("3");
    EXPECT_EQ(dialog.binding("code")->shown().content, "63");
    press(Qt::Key_Return);
  });
  EXPECT_EQ(keys.opened, "CNowWeatherDlg");
  EXPECT_EQ(keys.shown("ww"), "63");
  EXPECT_EQ(keys.shown("group_7wwW1W2"), "763**");
  EXPECT_TRUE(keys.window->binding("W1")->owns(QApplication::focusWidget()));
  // Opened again it stands there, and Return changes nothing.
  keys.go_to("ww");
  keys.press_f1([](desktop::ScreenWindow& dialog) {
    EXPECT_EQ(dialog.binding("line")->shown().selected, 3);
    press(Qt::Key_Return);
  });
  EXPECT_EQ(keys.shown("ww"), "63");
}

// A list without lines takes no focus: there is nothing to be chosen in it.
TEST(CodeDialogs, OfPresentWeatherSkipTheirEmptyLists) {
  Keys keys;
  keys.go_to("ww");
  keys.press_f1([](desktop::ScreenWindow& dialog) {
    press(Qt::Key_Tab);
    EXPECT_TRUE(has_focus(dialog, "ok"));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(has_focus(dialog, "choice"));
    press(Qt::Key_End);
    press(Qt::Key_Tab);
    EXPECT_TRUE(has_focus(dialog, "ok"));
    press(Qt::Key_Return);
  });
  EXPECT_EQ(keys.shown("ww"), "//");
}

TEST(CodeDialogs, OfPastWeatherAreUsedByKeysAlone) {
  Keys keys;
  enter_refused(keys, "W2");
  keys.press_f1([](desktop::ScreenWindow& dialog) {
    EXPECT_TRUE(has_focus(dialog, "thunder"));
    press(Qt::Key_Space);
    tab_to(dialog, "drizzle");
    read_help(dialog, "drizzle");
    press(Qt::Key_Space);
    for (const char* const cloud : {"cloud_more_than_half", "cloud_changing"}) {
      tab_to(dialog, cloud);
      press(Qt::Key_Space);
    }
    EXPECT_FALSE(dialog.binding("cloud_more_than_half")->shown().checked);
    EXPECT_TRUE(dialog.binding("cloud_changing")->shown().checked);
    EXPECT_EQ(dialog.binding("code")->shown().content, "95");
    press(Qt::Key_Return);
  });
  EXPECT_EQ(keys.opened, "CPastWeatherDlg1");
  EXPECT_EQ(keys.shown("W1"), "9");
  EXPECT_EQ(keys.shown("W2"), "5");
  EXPECT_TRUE(keys.window->binding("N")->owns(QApplication::focusWidget()));
}

// Opened on every code: the whole line can be read, however narrow the window, and it is in view.
TEST(CodeDialogs, OfPresentWeatherCutNoLineOff) {
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    for (int code = 0; code <= 99; ++code) {
      DesktopWorld world;
      world.fake.texts.language = language;
      const std::string ww{static_cast<char>('0' + code / 10), static_cast<char>('0' + code % 10)};
      CNowWeatherDlg screen(world.services, ww);
      screen.open();
      desktop::ScreenWindow window(screen, nullptr);
      window.resize(600, window.height());
      tests::show(window);
      const auto* const list = qobject_cast<QListWidget*>(window.binding("line")->widget());
      ASSERT_NE(list, nullptr);
      EXPECT_FALSE(list->horizontalScrollBar()->isVisible()) << ww;
      for (int row = 0; row < list->count(); ++row) {
        const QRect place = list->visualItemRect(list->item(row));
        EXPECT_LE(place.width(), list->viewport()->width()) << ww;
        const QRect needed = list->fontMetrics().boundingRect(
            QRect(0, 0, place.width(), 1000), Qt::TextWordWrap, list->item(row)->text());
        EXPECT_GE(place.height(), needed.height()) << ww << " " << row;
      }
      if (screen.line.selected >= 0) {
        EXPECT_TRUE(list->viewport()->rect().contains(list->visualItemRect(list->currentItem())))
            << ww;
      }
    }
  }
}

// Their lists are filled while they are shown: the window grows, and the person can still reach OK.
TEST(CodeDialogs, OfPresentWeatherStayOnTheDisplayWhenTheyGrow) {
  DesktopWorld world;
  CNowWeatherDlg screen(world.services, "");
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  tests::show(window);
  const QRect display = window.screen()->availableGeometry();
  window.move(display.bottomRight() - QPoint(window.width(), window.height()));
  QApplication::processEvents();
  const QSize before = window.size();
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Tab);
  press(Qt::Key_Down);
  QApplication::processEvents();
  EXPECT_GT(window.width(), before.width());
  EXPECT_GT(window.height(), before.height());
  EXPECT_TRUE(display.contains(window.frameGeometry()));
}

// ---- The curves of the tendency

TEST(TendencyCurves, ChooseTheirLineByAMouseClick) {
  DesktopWorld world;
  CPresureTendencyDlg screen(world.services, "2", "");
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  tests::show(window);
  QWidget* const picture = window.binding("curves")->widget();
  for (const int cell : {0, 3, 1}) {
    QTest::mouseClick(picture, Qt::LeftButton, {},
                      QPoint(picture->width() * (2 * cell + 1) / 8, picture->height() / 2));
    QApplication::processEvents();
    EXPECT_EQ(window.binding("characteristic")->shown().selected, cell);
    EXPECT_TRUE(has_focus(window, "characteristic"));
  }
}

}  // namespace
