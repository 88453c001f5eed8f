#include "desktop/screen_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "desktop/desktop_windows.h"
#include "fakes/fake_ports.h"
#include "palettes.h"
#include "text/ids.h"
#include "widget_views.h"

namespace {

// One control of each typing kind; the first field refuses "bad", and every check is counted.
class SampleScreen : public ui::Screen {
 public:
  explicit SampleScreen(ui::Services& services)
      : Screen(services, "CSampleDlg", {text::id::kNoValueInput}) {
    combo.items = {"0870", "0871", "0999"};
    list.items = {"first", "second"};
    first.on_leave = [this] {
      ++checks;
      return first.content != "bad";
    };
    apply.on_press = [this] { ++applied; };
  }
  ui::Edit first{*this, "first", {text::id::kNoValueInput}, 7};
  ui::Edit second{*this, "second", {}, 3};
  ui::Combo combo{*this, "combo", {}, 4};
  ui::List list{*this, "list"};
  ui::Choice choice{*this, "choice", {}, {{text::id::kOkLabel}, {text::id::kCancelLabel}}};
  ui::Tick tick_box{*this, "tick", {text::id::kHelpLabel}};
  ui::Button apply{*this, "apply", {text::id::kOkLabel}};
  ui::Button ok{*this, "ok", {text::id::kOkLabel}, ui::Role::kAccept};
  ui::Button cancel{*this, "cancel", {text::id::kCancelLabel}, ui::Role::kDismiss};
  int checks = 0;
  int applied = 0;
};

// A shown window on a sample screen.
struct Shown {
  fakes::World world;
  SampleScreen screen{world.services};
  std::unique_ptr<desktop::ScreenWindow> window;

  Shown() {
    screen.open();
    window = std::make_unique<desktop::ScreenWindow>(screen, nullptr);
    window->show();
    window->activateWindow();
    QApplication::processEvents();
  }
  template <class Widget>
  Widget* widget(std::string_view name) {
    return qobject_cast<Widget*>(window->binding(name)->widget());
  }
};

TEST(ScreenWindow, TypingReachesTheControlAndTheControlReachesTheWidget) {
  Shown s;
  QTest::keyClicks(s.widget<QLineEdit>("first"), "JABC");
  EXPECT_EQ(s.screen.first.content, "JABC");
  s.screen.first.content = "XYZ";
  s.window->refresh();
  EXPECT_EQ(s.widget<QLineEdit>("first")->text(), "XYZ");
}

TEST(ScreenWindow, TheLargestLengthStopsTyping) {
  Shown s;
  QTest::keyClicks(s.widget<QLineEdit>("first"), "123456789");
  EXPECT_EQ(s.screen.first.content, "1234567");
}

TEST(ScreenWindow, TabLeavesThroughTheCheckAndARefusalGivesTheFocusBack) {
  Shown s;
  auto* const first = s.widget<QLineEdit>("first");
  QTest::keyClicks(first, "bad");
  QTest::keyClick(first, Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_EQ(s.screen.checks, 1);
  EXPECT_EQ(QApplication::focusWidget(), first);
  EXPECT_EQ(first->selectedText(), "bad");
  QTest::keyClicks(first, "good");
  QTest::keyClick(first, Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_EQ(QApplication::focusWidget(), s.widget<QLineEdit>("second"));
}

TEST(ScreenWindow, AMouseClickElsewhereIsCheckedToo) {
  Shown s;
  auto* const first = s.widget<QLineEdit>("first");
  QTest::keyClicks(first, "bad");
  s.widget<QLineEdit>("second")->setFocus(Qt::MouseFocusReason);
  QApplication::processEvents();
  EXPECT_EQ(QApplication::focusWidget(), first);
  EXPECT_EQ(s.screen.focused(), &s.screen.first);
}

TEST(ScreenWindow, AButtonIsNotPressedOverARefusedField) {
  Shown s;
  QTest::keyClicks(s.widget<QLineEdit>("first"), "bad");
  QTest::mouseClick(s.widget<QPushButton>("apply"), Qt::LeftButton);
  QApplication::processEvents();
  EXPECT_EQ(s.screen.applied, 0);
  EXPECT_EQ(QApplication::focusWidget(), s.widget<QLineEdit>("first"));
}

TEST(ScreenWindow, CancelIsPressedOverARefusedField) {
  Shown s;
  QTest::keyClicks(s.widget<QLineEdit>("first"), "bad");
  QTest::mouseClick(s.widget<QPushButton>("cancel"), Qt::LeftButton);
  EXPECT_EQ(s.screen.result(), ui::kCancel);
  EXPECT_EQ(s.screen.checks, 0);
}

TEST(ScreenWindow, EnterIsOkAndEscapeIsCancel) {
  Shown ok;
  QTest::keyClick(ok.widget<QLineEdit>("first"), Qt::Key_Return);
  EXPECT_EQ(ok.screen.result(), ui::kOk);
  Shown cancel;
  QTest::keyClick(cancel.widget<QLineEdit>("first"), Qt::Key_Escape);
  EXPECT_EQ(cancel.screen.result(), ui::kCancel);
}

TEST(ScreenWindow, TheCloseBoxIsCancel) {
  Shown s;
  s.window->close();
  EXPECT_EQ(s.screen.result(), ui::kCancel);
}

TEST(ScreenWindow, AnEditableDropDownTakesWhatIsTypedAndCompletesNothing) {
  Shown s;
  auto* const combo = s.widget<QComboBox>("combo");
  combo->setFocus();
  combo->lineEdit()->clear();
  QTest::keyClicks(combo->lineEdit(), "087");
  EXPECT_EQ(s.screen.combo.content, "087");
  EXPECT_EQ(combo->currentText(), "087");
  EXPECT_EQ(combo->count(), 3);
}

TEST(ScreenWindow, FullWidthDigitsArriveAsTheyAreAndAreNarrowedByTheScreen) {
  Shown s;
  auto* const first = s.widget<QLineEdit>("first");
  QInputMethodEvent committed;
  committed.setCommitString(QString::fromUtf8("１２"));
  QApplication::sendEvent(first, &committed);
  EXPECT_EQ(s.screen.first.content, "１２");
  QTest::keyClick(first, Qt::Key_Tab);
  EXPECT_EQ(s.screen.first.content, "12");
  EXPECT_EQ(first->text(), "12");
}

TEST(ScreenWindow, RefreshingKeepsTheCaretAndTheUndoOfAnUnchangedField) {
  Shown s;
  auto* const first = s.widget<QLineEdit>("first");
  QTest::keyClicks(first, "ABC");
  first->setCursorPosition(1);
  s.window->refresh();
  EXPECT_EQ(first->cursorPosition(), 1);
  EXPECT_TRUE(first->isUndoAvailable());
}

TEST(ScreenWindow, ListChoiceAndTickReachTheirControls) {
  Shown s;
  auto* const list = s.widget<QListWidget>("list");
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    list->visualItemRect(list->item(1)).center());
  EXPECT_EQ(s.screen.list.selected, 1);
  const auto buttons = s.window->binding("choice")->widget()->findChildren<QRadioButton*>();
  ASSERT_EQ(buttons.size(), 2);
  EXPECT_FALSE(buttons[0]->isChecked());
  buttons[1]->click();
  EXPECT_EQ(s.screen.choice.selected, 1);
  s.widget<QAbstractButton>("tick")->click();
  EXPECT_TRUE(s.screen.tick_box.checked);
}

TEST(ScreenWindow, AChoiceCanBeTakenBackToNone) {
  Shown s;
  s.window->binding("choice")->widget()->findChildren<QRadioButton*>()[1]->click();
  s.screen.choice.selected = -1;
  s.window->refresh();
  for (const QRadioButton* button :
       s.window->binding("choice")->widget()->findChildren<QRadioButton*>()) {
    EXPECT_FALSE(button->isChecked());
  }
}

TEST(ScreenWindow, DisabledAndHiddenControlsShowSo) {
  Shown s;
  s.screen.second.enabled = false;
  s.screen.second.why_locked = "not observed";
  s.screen.tick_box.visible = false;
  s.window->refresh();
  EXPECT_FALSE(s.widget<QLineEdit>("second")->isEnabled());
  EXPECT_EQ(s.widget<QLineEdit>("second")->toolTip(), "not observed");
  EXPECT_TRUE(s.window->binding("tick")->widget()->isHidden());
}

TEST(ScreenWindow, CaptionsAreRelabelledWithTheLanguageAndNamedForScreenReaders) {
  Shown s;
  EXPECT_EQ(s.window->binding("first")->caption_label->text(), "&No value input");
  s.world.japanese();
  s.window->refresh();
  EXPECT_EQ(s.window->binding("first")->caption_label->text(), "未入力です(&N)");
  EXPECT_EQ(s.widget<QLineEdit>("first")->accessibleName(), "未入力です");
}

TEST(ScreenWindow, WidgetsShowWhatTheControlsHold) {
  Shown s;
  QTest::keyClicks(s.widget<QLineEdit>("first"), "JABC");
  s.screen.second.enabled = false;
  s.screen.combo.read_only = true;
  s.screen.choice.item_disabled = {true, false};
  s.screen.choice.selected = 1;
  s.screen.tick_box.checked = true;
  s.window->refresh();
  const auto shown = tests::widget_views(*s.window);
  const auto held = tests::control_views(s.screen);
  ASSERT_EQ(shown.size(), held.size());
  for (std::size_t i = 0; i < held.size(); ++i)
    EXPECT_EQ(ui::describe(shown[i]), ui::describe(held[i]));
}

TEST(ScreenWindow, AWrongFieldIsMarkedAndTheMarkGoesAgain) {
  Shown s;
  const auto* const field = s.widget<QLineEdit>("second");
  const auto frame_and_paper = [&] {
    s.window->refresh();
    const QImage picture = s.window->binding("second")->widget()->grab().toImage();
    return std::pair(picture.pixelColor(0, picture.height() / 2),
                     field->palette().color(QPalette::Base));
  };
  const auto usual = frame_and_paper();
  s.screen.second.mark = "wrong";
  const auto wrong = frame_and_paper();
  EXPECT_EQ(wrong.first, desktop::wrong_frame());
  EXPECT_NE(wrong.second, usual.second);
  s.screen.second.mark.clear();
  EXPECT_EQ(frame_and_paper(), usual);
}

// The system's colours may change at dusk while the window is open.
TEST(ScreenWindow, MarksAndLinksFollowTheColoursOfTheMoment) {
  const QPalette before = QApplication::palette();
  Shown s;
  s.screen.second.mark = "missing";
  s.window->refresh();
  const auto* const field = s.widget<QLineEdit>("second");
  const QColor light = field->palette().color(QPalette::Base);
  QApplication::setPalette(tests::palette_of(true));
  s.window->refresh();
  const QPalette dark = field->palette();
  QApplication::setPalette(before);
  EXPECT_NE(light, dark.color(QPalette::Base));
  EXPECT_GE(desktop::contrast(dark.color(QPalette::Base), dark.color(QPalette::Text)),
            desktop::kReadable);
}

}  // namespace
