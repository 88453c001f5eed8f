// Fields that move on when they are full, and what is typed, pasted, dropped or taken back in them,
// by real events on real widgets.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QWheelEvent>
#include <functional>
#include <memory>
#include <string>

#include "desktop_world.h"
#include "fakes/all_screens.h"
#include "fakes/sample_observation.h"
#include "text/ids.h"
#include "ui/dump.h"

namespace {

using tests::press;
using tests::Shown;
using tests::type;

class CCodesDlg : public ui::Screen {
 public:
  explicit CCodesDlg(ui::Services& services)
      : Screen(services, "CCodesDlg", {text::id::kNoValueInput}) {
    for (ui::Control* const code : std::initializer_list<ui::Control*>{&edit, &combo}) {
      code->moves_on_when_full = true;
      code->figures = true;
      code->on_leave = [this, code] {
        if (code->content != "99") return true;
        this->services().messages.error(text::id::kInputError);
        return false;
      };
    }
    combo.items = {"01", "02", "03"};
    drop_down.items = {"a", "b", "c"};
    drop_down.selected = 1;
  }
  ui::Edit edit{*this, "edit", {}, 2};
  ui::Combo combo{*this, "combo", {}, 2};
  ui::DropDown drop_down{*this, "drop_down"};
  ui::Edit last{*this, "last", {}, 9};
  ui::Button ok{*this, "ok", {text::id::kOkLabel}, ui::Role::kAccept};
};

class Fields : public testing::TestWithParam<const char*> {
 protected:
  Fields() {
    s.world.services.moves_on = true;
    s.tab_to(GetParam());
  }
  [[nodiscard]] ui::Control& field() const { return *s.screen->find(GetParam()); }
  [[nodiscard]] QLineEdit& line() const {
    QWidget* const widget = s.window->binding(GetParam())->widget();
    auto* const box = qobject_cast<QComboBox*>(widget);
    return box == nullptr ? *qobject_cast<QLineEdit*>(widget) : *box->lineEdit();
  }
  [[nodiscard]] bool has_focus() const { return s.screen->focused() == &field(); }
  Shown<CCodesDlg> s;
};

TEST_P(Fields, MoveOnBehindTheLastFigure) {
  type("0");
  EXPECT_TRUE(has_focus());
  type("7");
  EXPECT_FALSE(has_focus());
  EXPECT_EQ("07", field().content);
  EXPECT_TRUE(s.window->binding(*s.screen->focused())->owns(QApplication::focusWidget()));
}

TEST_P(Fields, TakeTheTabOfAHandThatDoesNotLookForTheirOwn) {
  type("07");
  const ui::Control* const next = s.screen->focused();
  ASSERT_NE(next, &field());
  press(Qt::Key_Tab);
  EXPECT_EQ(s.screen->focused(), next);
  EXPECT_TRUE(s.window->binding(*next)->owns(QApplication::focusWidget()));
  press(Qt::Key_Tab);
  EXPECT_NE(s.screen->focused(), next);
}

// No screen hears of these.
TEST_P(Fields, LetATabBehindAnotherKeyGoOn) {
  for (const auto& [key, with] : {std::pair{Qt::Key_End, Qt::ShiftModifier},
                                  {Qt::Key_Shift, Qt::NoModifier},
                                  {Qt::Key_Control, Qt::NoModifier}}) {
    s.screen->move_focus(field());
    s.window->refresh();
    press(Qt::Key_A, Qt::ControlModifier);
    type("07");
    const ui::Control* const next = s.screen->focused();
    ASSERT_NE(next, &field());
    press(key, with);
    ASSERT_EQ(s.screen->focused(), next);
    press(Qt::Key_Tab);
    EXPECT_NE(s.screen->focused(), next) << key;
  }
}

TEST_P(Fields, LeadBackWithShiftTabAtOnce) {
  type("07");
  press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_TRUE(has_focus());
}

TEST_P(Fields, StayWithTheirTextSelectedAtARefusal) {
  const auto told = tests::messages_of([] { type("99"); });
  EXPECT_EQ(1U, told.size());
  s.window->activateWindow();
  QApplication::processEvents();
  EXPECT_TRUE(has_focus());
  EXPECT_EQ("99", line().selectedText().toStdString());
  type("03");
  EXPECT_FALSE(has_focus());
  EXPECT_EQ("03", field().content);
}

TEST_P(Fields, MoveOnWithFullWidthFiguresOfAnInputMethod) {
  QInputMethodEvent writing(QStringLiteral("０７"), {});
  QApplication::sendEvent(QApplication::focusWidget(), &writing);
  EXPECT_TRUE(has_focus()) << "not while they are being chosen";
  QInputMethodEvent given;
  given.setCommitString(QStringLiteral("０７"));
  QApplication::sendEvent(QApplication::focusWidget(), &given);
  QApplication::processEvents();
  EXPECT_FALSE(has_focus());
  EXPECT_EQ("07", field().content);
}

TEST_P(Fields, StayWhereAFigureIsCorrectedBeforeTheEnd) {
  type("7");
  press(Qt::Key_Home);
  type("0");
  EXPECT_EQ("07", field().content);
  EXPECT_TRUE(has_focus());
}

TEST_P(Fields, StayAtWhatIsPastedDroppedOrTakenBack) {
  QApplication::clipboard()->setText(QStringLiteral("07"));
  press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ("07", field().content);
  EXPECT_TRUE(has_focus());
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ("", field().content);
  press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ("07", field().content);
  EXPECT_TRUE(has_focus());
  // A key that writes nothing more into the full field is forgotten when it is let go.
  press(Qt::Key_End);
  type("5");
  press(Qt::Key_A, Qt::ControlModifier);
  line().paste();
  QApplication::processEvents();
  EXPECT_EQ("07", field().content);
  EXPECT_TRUE(has_focus());
  line().clear();
  s.screen->type(field(), "");
  QMimeData dragged;
  dragged.setText(QStringLiteral("08"));
  QDragEnterEvent comes(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&line(), &comes);
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&line(), &drop);
  QApplication::processEvents();
  EXPECT_EQ("08", field().content);
  EXPECT_TRUE(has_focus());
}

TEST_P(Fields, CopyAndCutAsAnywhere) {
  type("7");
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ("7", QApplication::clipboard()->text().toStdString());
  QApplication::clipboard()->clear();
  press(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ("7", QApplication::clipboard()->text().toStdString());
  EXPECT_EQ("", field().content);
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ("7", field().content);
  EXPECT_TRUE(line().dragEnabled());
}

TEST_P(Fields, WaitForTabWhereTheOfficerSwitchedItOff) {
  s.world.services.moves_on = false;
  type("07");
  EXPECT_TRUE(has_focus());
  press(Qt::Key_Tab);
  EXPECT_FALSE(has_focus());
}

TEST_P(Fields, AskTheInputMethodForFigures) {
  EXPECT_TRUE(QApplication::focusWidget()->inputMethodHints().testFlag(Qt::ImhPreferNumbers));
  EXPECT_TRUE(line().inputMethodHints().testFlag(Qt::ImhPreferNumbers));
  const auto* const text = qobject_cast<QLineEdit*>(s.window->binding("last")->widget());
  EXPECT_FALSE(text->inputMethodHints().testFlag(Qt::ImhPreferNumbers));
}

INSTANTIATE_TEST_SUITE_P(Kinds, Fields, testing::Values("edit", "combo"),
                         [](const auto& kind) { return std::string(kind.param); });

TEST(MovingOn, LetsATabBehindAClickGoOn) {
  Shown<CCodesDlg> s;
  s.world.services.moves_on = true;
  type("07");
  ASSERT_EQ(s.screen->focused(), &s.screen->combo);
  auto* const line = qobject_cast<QComboBox*>(s.window->binding("combo")->widget())->lineEdit();
  QTest::mouseClick(line, Qt::LeftButton);
  QApplication::processEvents();
  ASSERT_EQ(s.screen->focused(), &s.screen->combo);
  press(Qt::Key_Tab);
  EXPECT_EQ(s.screen->focused(), &s.screen->drop_down);
}

void turn(QWidget& widget, QPointF at) {
  QWheelEvent wheel(at, widget.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &wheel);
  QApplication::processEvents();
}

TEST(Wheel, ChangesADropDownThatHasTheFocusWithThePointerOnItAlone) {
  Shown<CCodesDlg> s;
  auto* const box = s.window->binding("drop_down")->widget();
  turn(*box, QPointF(5, 5));
  EXPECT_EQ(1, s.screen->drop_down.selected);
  s.tab_to("drop_down");
  turn(*box, QPointF(5, -40));
  EXPECT_EQ(1, s.screen->drop_down.selected);
  turn(*box, QPointF(5, 5));
  EXPECT_EQ(2, s.screen->drop_down.selected);
}

// Over every control of every screen, while another one has the focus.
TEST(Wheel, ChangesNothingOfAnyScreenAndMovesNoFocus) {
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    tests::DesktopWorld world;
    const auto screen = row.make(world.services);
    screen->open();
    desktop::ScreenWindow window(*screen, nullptr);
    tests::show(window);
    const std::string before = ui::dump(*screen);
    for (const auto& binding : window.bindings()) {
      if (&binding->control() == screen->focused()) continue;
      turn(*binding->widget(), QPointF(4, 4));
      EXPECT_EQ(before, ui::dump(*screen)) << row.class_name << " " << binding->control().name;
    }
  }
}

// A text is none: a call sign has letters.
TEST(InputMethods, AreAskedForFiguresByEveryFieldOfThem) {
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    tests::DesktopWorld world;
    const auto screen = row.make(world.services);
    screen->open();
    for (const ui::Control* const control : screen->controls()) {
      if (control->kind != ui::Kind::kEdit && control->kind != ui::Kind::kCombo) continue;
      static const std::set<std::string> kTexts = {
          "call_sign",   "aws_manufacturer", "barometer_check_port",
          "folder_name", "status_line",      "point"};
      EXPECT_EQ(control->figures, !kTexts.contains(control->name))
          << row.class_name << " " << control->name;
    }
  }
}

}  // namespace
