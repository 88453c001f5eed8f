// The dialogs of wind waves and swell by real keys and clicks on real widgets, with real message
// boxes over them.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>
#include <QTimer>
#include <string>
#include <vector>

#include "codetables/CSwellWaveDlg.h"
#include "codetables/CWindDlg.h"
#include "desktop_world.h"

namespace {

using tests::press;

// Presses Enter in every message box that comes and remembers its title.
class Boxes {
 public:
  Boxes() {
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      titles.push_back(box->windowTitle().toStdString());
      QTest::keyClick(box, Qt::Key_Return);
    });
    timer_.start(0);
  }
  std::vector<std::string> titles;

 private:
  QTimer timer_;
};

template <class Dialog>
struct Shown {
  tests::DesktopWorld world;
  Boxes boxes;
  Dialog screen;
  desktop::ScreenWindow window;

  template <class... More>
  explicit Shown(typename Dialog::Values values, More... more)
      : screen(world.services, std::move(values), more...),
        window((screen.open(), screen), nullptr) {
    tests::show(window);
  }
  /// No window manager gives the focus back after a box or a dialog here.
  void back() {
    window.activateWindow();
    QApplication::processEvents();
  }
  void tab_to(const ui::Control& control) {
    for (std::size_t i = 0; i < screen.controls().size(); ++i) {
      if (screen.focused() == &control) return;
      press(Qt::Key_Tab);
    }
    FAIL() << "Tab does not come to " << control.name;
  }
  /// Types into the widget that has the focus, over what is selected there.
  static void type(const char* keys) {
    for (const char* key = keys; *key != '\0'; ++key)
      QTest::keyClick(QApplication::focusWidget(), *key);
    QApplication::processEvents();
  }
  void click(const ui::Control& control) {
    QWidget* widget = window.binding(control)->focus_widget();
    if (auto* const box = qobject_cast<QComboBox*>(widget)) widget = box->lineEdit();
    // On the words of a box or radio button, not on the room beside them.
    const QPoint at(8, widget->height() / 2);
    const std::size_t before = boxes.titles.size();
    QTest::mousePress(widget, Qt::LeftButton, {}, at);
    QApplication::processEvents();
    // A message box that came between is where a person lets the button go.
    if (boxes.titles.size() == before) QTest::mouseRelease(widget, Qt::LeftButton, {}, at);
    QApplication::processEvents();
  }
  [[nodiscard]] QComboBox& combo(const ui::Control& control) const {
    return dynamic_cast<QComboBox&>(*window.binding(control)->widget());
  }
  [[nodiscard]] bool has_focus(const ui::Control& control) const {
    return screen.focused() == &control &&
           window.binding(control)->owns(QApplication::focusWidget());
  }
};

using SwellWindow = Shown<CSwellWaveDlg>;
using WindWindow = Shown<CWindDlg>;

const CSwellWaveDlg::Values kTwoSwells{{"27", "08", "2.0"}, {"05", "12", "0.5"}};

TEST(SwellWindow, ABadEntryIsToldOnceAndKeepsTheFocusWithItsText) {
  for (const char* const leave : {"Tab", "Shift+Tab", "click", "Enter"}) {
    SwellWindow s(kTwoSwells);
    s.tab_to(s.screen.period1);
    s.type("77");
    const std::string way = leave;
    if (way == "Tab") press(Qt::Key_Tab);
    if (way == "Shift+Tab") press(Qt::Key_Backtab, Qt::ShiftModifier);
    if (way == "click") s.click(s.screen.height2);
    if (way == "Enter") press(Qt::Key_Return);
    s.back();
    EXPECT_EQ(s.boxes.titles, std::vector<std::string>{"Number Impossable"}) << way;
    EXPECT_FALSE(s.screen.result());
    EXPECT_TRUE(s.has_focus(s.screen.period1)) << way;
    EXPECT_EQ(s.combo(s.screen.period1).currentText(), "77");
    EXPECT_EQ(s.combo(s.screen.period1).lineEdit()->selectedText(), "77");
    EXPECT_EQ(s.combo(s.screen.direction1).currentText(), "27");
    // The text is selected: the right one takes its place.
    s.type("9");
    press(Qt::Key_Tab);
    EXPECT_TRUE(s.has_focus(s.screen.height1)) << way;
    EXPECT_EQ(s.combo(s.screen.period1).currentText(), "09");
    EXPECT_EQ(s.boxes.titles.size(), 1U);
  }
}

TEST(SwellWindow, TypedFromFieldToFieldItHandsBackWhatWasTyped) {
  SwellWindow s({});
  s.tab_to(s.screen.direction1);
  for (const char* const figures : {"27", "8", "2", "5", "12", "<0.25"}) {
    s.type(figures);
    press(Qt::Key_Tab);
  }
  EXPECT_TRUE(s.has_focus(s.screen.direction1_unknown));
  press(Qt::Key_Return);
  EXPECT_EQ(s.screen.result(), ui::kOk);
  EXPECT_TRUE(s.screen.values() ==
              (CSwellWaveDlg::Values{{"27", "08", "2.0"}, {"05", "12", "0.2"}}));
  EXPECT_TRUE(s.boxes.titles.empty());
}

TEST(SwellWindow, EscapeGoesWithABadEntryAndSaysNothing) {
  SwellWindow s(kTwoSwells);
  s.tab_to(s.screen.direction2);
  s.type("99");
  press(Qt::Key_Escape);
  EXPECT_EQ(s.screen.result(), ui::kCancel);
  EXPECT_TRUE(s.boxes.titles.empty());
  EXPECT_TRUE(s.screen.values() == kTwoSwells);
}

TEST(SwellWindow, HelpLeavesTheCheckToOk) {
  SwellWindow s(kTwoSwells);
  s.tab_to(s.screen.direction2);
  s.type("99");
  press(Qt::Key_F1);
  EXPECT_EQ(s.world.fake.help_viewer.shown.size(), 1U);
  EXPECT_TRUE(s.boxes.titles.empty());
  s.click(s.screen.help);
  s.click(s.screen.ok);
  s.back();
  EXPECT_EQ(s.boxes.titles, std::vector<std::string>{"Number Impossable"});
  EXPECT_TRUE(s.has_focus(s.screen.direction2));
  EXPECT_FALSE(s.screen.result());
}

TEST(SwellWindow, EnterConfirmsItAsItOpenedAlsoEmpty) {
  for (const CSwellWaveDlg::Values& values :
       {kTwoSwells, CSwellWaveDlg::Values{},
        CSwellWaveDlg::Values{{"37", "*", "/"}, {"99", "", "49.5"}}}) {
    SwellWindow s(values);
    press(Qt::Key_Return);
    EXPECT_EQ(s.screen.result(), ui::kOk);
    EXPECT_TRUE(s.screen.values() == values);
    EXPECT_TRUE(s.boxes.titles.empty());
  }
}

TEST(SwellWindow, TheArrowsChooseHowManyThereAre) {
  SwellWindow s(kTwoSwells);
  EXPECT_TRUE(s.has_focus(s.screen.count));
  press(Qt::Key_Down);
  EXPECT_TRUE(s.combo(s.screen.height1).isEnabled());
  EXPECT_FALSE(s.combo(s.screen.direction2).isEnabled());
  EXPECT_EQ(s.combo(s.screen.direction2).currentText(), "00");
  press(Qt::Key_Down);
  EXPECT_FALSE(s.combo(s.screen.height1).isEnabled());
  // Nothing is left to enter, so Tab goes to the buttons.
  press(Qt::Key_Tab);
  EXPECT_TRUE(s.has_focus(s.screen.ok));
  press(Qt::Key_Tab);
  press(Qt::Key_Tab);
  press(Qt::Key_Tab);
  EXPECT_TRUE(s.has_focus(s.screen.count));
  press(Qt::Key_Home);
  EXPECT_TRUE(s.combo(s.screen.direction2).isEnabled());
  EXPECT_EQ(s.combo(s.screen.direction2).currentText(), "05");
}

TEST(SwellWindow, ABoxIsTickedOverAnEmptyFieldByAClick) {
  SwellWindow s(kTwoSwells);
  s.tab_to(s.screen.period1);
  press(Qt::Key_Delete);
  EXPECT_EQ(s.screen.period1.content, "");
  s.click(s.screen.period1_unknown);
  EXPECT_TRUE(s.boxes.titles.empty());
  EXPECT_TRUE(s.screen.period1_unknown.checked);
  EXPECT_EQ(s.combo(s.screen.period1).currentText(), "//");
  EXPECT_FALSE(s.combo(s.screen.period1).isEnabled());
}

TEST(SwellWindow, ABoxIsTickedOverAnEmptyFieldByTheSpaceBar) {
  SwellWindow s(kTwoSwells);
  s.tab_to(s.screen.height2);
  press(Qt::Key_Delete);
  s.tab_to(s.screen.height2_unknown);
  press(Qt::Key_Space);
  EXPECT_EQ(s.combo(s.screen.height2).currentText(), "//");
  press(Qt::Key_Return);
  EXPECT_EQ(s.screen.result(), ui::kOk);
  EXPECT_EQ(s.screen.values().second.height, "//");
}

TEST(SwellWindow, FindsAPeriodForAWaveLengthByKeysAlone) {
  SwellWindow s({{"27", "", "2.0"}, {"05", "12", "0.5"}});
  s.world.windows.on_shown = [](desktop::ScreenWindow& dialog) {
    EXPECT_EQ(dialog.objectName(), "CWaveLengthDlg");
    QWidget* const length = dialog.binding("length")->focus_widget();
    QTest::keyClicks(length, "156");
    EXPECT_EQ(dialog.binding("period")->shown().content, "10");
    QTest::keyClick(length, Qt::Key_Return);
  };
  // Backwards, for an empty field does not let go forwards.
  for (int i = 0; i < 20 && s.screen.focused() != &s.screen.length1; ++i)
    press(Qt::Key_Backtab, Qt::ShiftModifier);
  ASSERT_TRUE(s.has_focus(s.screen.length1));
  press(Qt::Key_Space);
  s.back();
  EXPECT_EQ(s.combo(s.screen.period1).currentText(), "10");
  EXPECT_TRUE(s.has_focus(s.screen.length1));
  press(Qt::Key_Tab);
  EXPECT_TRUE(s.has_focus(s.screen.direction2_unknown));
  EXPECT_TRUE(s.boxes.titles.empty());
}

TEST(WindWaveWindow, ABadEntryIsToldOnceAndKeepsTheFocusWithItsText) {
  for (const bool by_click : {false, true}) {
    WindWindow w({"05", "1.5"}, std::optional(codetables::Knot{18}));
    EXPECT_TRUE(w.has_focus(w.screen.period));
    w.type("x");
    if (by_click) {
      w.click(w.screen.not_observed);
    } else {
      press(Qt::Key_Tab);
    }
    w.back();
    EXPECT_EQ(w.boxes.titles, std::vector<std::string>{"Please input number"});
    EXPECT_TRUE(w.has_focus(w.screen.period));
    EXPECT_EQ(w.combo(w.screen.period).currentText(), "x");
    EXPECT_EQ(w.combo(w.screen.height).currentText(), "1.5");
    w.type("7");
    press(Qt::Key_Tab);
    EXPECT_TRUE(w.has_focus(w.screen.height));
    EXPECT_EQ(w.combo(w.screen.period).currentText(), "07");
    w.type("2.5");
    press(Qt::Key_Return);
    EXPECT_EQ(w.screen.result(), ui::kOk);
    EXPECT_TRUE(w.screen.values() == (CWindDlg::Values{"07", "2.5"}));
    EXPECT_EQ(w.boxes.titles.size(), 1U);
  }
}

TEST(WindWaveWindow, EscapeGoesWithABadEntryAndSaysNothing) {
  WindWindow w({"05", "1.5"}, std::nullopt);
  w.type("x");
  press(Qt::Key_Escape);
  EXPECT_EQ(w.screen.result(), ui::kCancel);
  EXPECT_TRUE(w.boxes.titles.empty());
}

TEST(WindWaveWindow, HelpLeavesTheCheckToOk) {
  WindWindow w({"05", "1.5"}, std::nullopt);
  w.type("x");
  w.click(w.screen.help);
  EXPECT_TRUE(w.boxes.titles.empty());
  w.click(w.screen.ok);
  w.back();
  EXPECT_EQ(w.boxes.titles, std::vector<std::string>{"Please input number"});
  EXPECT_TRUE(w.has_focus(w.screen.period));
}

TEST(WindWaveWindow, TheArrowsGoThroughTheLinesOfAField) {
  WindWindow w({"05", "1.5"}, std::nullopt);
  press(Qt::Key_Down);
  EXPECT_EQ(w.combo(w.screen.period).currentText(), "06");
  press(Qt::Key_Tab);
  press(Qt::Key_Up);
  EXPECT_EQ(w.combo(w.screen.height).currentText(), "1.0");
  press(Qt::Key_Return);
  EXPECT_TRUE(w.screen.values() == (CWindDlg::Values{"06", "1.0"}));
}

TEST(WindWaveWindow, NoWindWaveByTheSpaceBar) {
  WindWindow w({"05", "1.5"}, std::nullopt);
  w.tab_to(w.screen.no_wind_wave);
  press(Qt::Key_Space);
  EXPECT_EQ(w.combo(w.screen.period).currentText(), "00");
  EXPECT_FALSE(w.combo(w.screen.height).isEnabled());
  press(Qt::Key_Return);
  EXPECT_TRUE(w.screen.values() == (CWindDlg::Values{"00", "00"}));
}

}  // namespace
