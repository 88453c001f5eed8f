// A handler that throws: no exception crosses the toolkit's event loop, the officer is told, and
// the window goes on with what was entered.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <new>
#include <stdexcept>

#include "desktop/last_catch.h"
#include "desktop/screen_window.h"
#include "desktop_world.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

struct Thrown {
  const char* what;
  void (*raise)();
  const char* english;
  const char* japanese;
};

const Thrown kThrown[] = {
    {"a runtime error", [] { throw std::runtime_error("disk on fire"); }, "disk on fire",
     "disk on fire"},
    {"no memory", [] { throw std::bad_alloc(); }, "out of memory", "メモリが不足しています"},
    {"a number", [] { throw 7; }, "unknown cause", "原因不明"},
};

class CFailingDlg : public ui::Screen {
 public:
  CFailingDlg(ui::Services& services, const Thrown& thrown)
      : Screen(services, "CFailingDlg", {text::id::kHelpLabel}) {
    const auto fail = [this, thrown] {
      if (fails) thrown.raise();
    };
    press_me.on_press = fail;
    refused.on_leave = [this, fail] {
      ++checks;
      fail();
      return true;
    };
    lines.items = {"one", "two"};
    lines.on_change = tick_me.on_change = fail;
    typed.on_change = fail;
    ui::MenuItem menu{{text::id::kOkLabel}, {}, {}, true};
    menu.children.push_back({{text::id::kCancelLabel}, {}, fail, true, "Ctrl+B"});
    set_menu({menu});
    on_f1_fails = fail;
  }

  ui::Edit entry{*this, "entry", {text::id::kHelpLabel}, 20};
  ui::Edit refused{*this, "refused", {}, 20};
  ui::Edit typed{*this, "typed", {}, 20};
  ui::List lines{*this, "lines"};
  ui::Tick tick_me{*this, "tick_me", {text::id::kHelpLabel}};
  ui::Button press_me{*this, "press_me", {text::id::kOkLabel}};
  bool fails = true;
  int checks = 0;
  std::function<void()> on_f1_fails;

 protected:
  void on_f1(ui::Control*) override { on_f1_fails(); }
  void on_cancel() override {
    on_f1_fails();
    close(ui::kCancel);
  }
};

struct Shown {
  fakes::World world;
  CFailingDlg screen;
  std::unique_ptr<desktop::ScreenWindow> window;

  explicit Shown(const Thrown& thrown) : screen(world.services, thrown) {
    screen.open();
    window = std::make_unique<desktop::ScreenWindow>(screen, nullptr);
    window->show();
    window->activateWindow();
    QApplication::processEvents();
    QTest::keyClicks(widget<QLineEdit>("entry"), "JABC");
  }
  template <class Widget>
  Widget* widget(std::string_view name) {
    return qobject_cast<Widget*>(window->binding(name)->widget());
  }
};

struct Event {
  const char* name;
  void (*cause)(Shown&);
};

// Each way in which something that the person does reaches the screen.
const Event kEvents[] = {
    {"click on a button",
     [](Shown& s) { QTest::mouseClick(s.widget<QPushButton>("press_me"), Qt::LeftButton); }},
    {"space on a button",
     [](Shown& s) {
       s.widget<QPushButton>("press_me")->setFocus();
       QApplication::processEvents();
       QTest::keyClick(s.widget<QPushButton>("press_me"), Qt::Key_Space);
     }},
    {"F1", [](Shown& s) { QTest::keyClick(s.widget<QLineEdit>("entry"), Qt::Key_F1); }},
    {"Escape", [](Shown& s) { QTest::keyClick(s.widget<QLineEdit>("entry"), Qt::Key_Escape); }},
    {"close box", [](Shown& s) { s.window->close(); }},
    {"a letter typed", [](Shown& s) { QTest::keyClick(s.widget<QLineEdit>("typed"), Qt::Key_A); }},
    {"a tick", [](Shown& s) { s.widget<QAbstractButton>("tick_me")->click(); }},
    {"an arrow in a list",
     [](Shown& s) {
       s.widget<QWidget>("lines")->setFocus();
       QApplication::processEvents();
       QTest::keyClick(s.widget<QWidget>("lines"), Qt::Key_Down);
     }},
    {"a menu command",
     [](Shown& s) {
       QTest::keyClick(s.widget<QLineEdit>("entry"), Qt::Key_B, Qt::ControlModifier);
     }},
};

TEST(FailingHandler, IsToldInBothLanguagesAndTheWindowGoesOnWithWhatWasEntered) {
  for (const bool japanese : {false, true}) {
    for (const Thrown& thrown : kThrown) {
      for (const Event& event : kEvents) {
        SCOPED_TRACE(std::string(event.name) + " throws " + thrown.what);
        Shown s(thrown);
        if (japanese) s.world.japanese();
        const std::string reason = japanese ? thrown.japanese : thrown.english;
        s.world.windows.expect_text(japanese ? "処理を完了できませんでした（" + reason +
                                                   "）。入力済みの内容は残っています。"
                                             : "The operation was not completed (" + reason +
                                                   "). What has been entered is kept.");
        event.cause(s);
        QApplication::processEvents();
        s.world.windows.verify();
        EXPECT_TRUE(s.window->isVisible());
        EXPECT_FALSE(s.screen.result());
        EXPECT_EQ(s.screen.entry.content, "JABC");
        EXPECT_EQ(s.widget<QLineEdit>("entry")->text(), "JABC");
        // The next event is dealt with as ever.
        s.screen.fails = false;
        QTest::keyClicks(s.widget<QLineEdit>("typed"), "Z");
        EXPECT_TRUE(s.screen.typed.content.ends_with("Z")) << s.screen.typed.content;
        EXPECT_EQ(s.screen.entry.content, "JABC");
        s.window->close();
        EXPECT_TRUE(s.screen.result());
      }
    }
  }
}

TEST(FailingHandler, CheckThatThrowsKeepsTheFocusAndTellsOnce) {
  for (const Thrown& thrown : kThrown) {
    Shown s(thrown);
    auto* const refused = s.widget<QLineEdit>("refused");
    refused->setFocus();
    QApplication::processEvents();
    QTest::keyClicks(refused, "12");
    s.world.windows.expect(text::id::kEventFailed);
    QTest::mouseClick(s.widget<QLineEdit>("entry"), Qt::LeftButton);
    QApplication::processEvents();
    s.world.windows.verify();
    EXPECT_EQ(s.screen.checks, 1);
    EXPECT_EQ(s.screen.focused(), &s.screen.refused);
    EXPECT_EQ(s.window->focusWidget(), refused);
    EXPECT_EQ(refused->text(), "12");
    s.screen.fails = false;
  }
}

// The message is a window of its own and brings focus events along, which must not check again.
TEST(FailingHandler, RealMessageComesOnceAndTheFieldKeepsTheFocus) {
  tests::DesktopWorld world;
  CFailingDlg screen(world.services, kThrown[1]);
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  tests::show(window);
  auto* const refused = qobject_cast<QLineEdit*>(window.binding("refused")->widget());
  refused->setFocus();
  QApplication::processEvents();
  QTest::keyClicks(refused, "12");
  int boxes = 0;
  QTimer officer;
  QObject::connect(&officer, &QTimer::timeout, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    ++boxes;
    box->buttons().front()->click();
  });
  officer.start(0);
  QTest::mouseClick(window.binding("entry")->widget(), Qt::LeftButton);
  for (int i = 0; i < 10; ++i) QApplication::processEvents();
  EXPECT_EQ(boxes, 1);
  EXPECT_EQ(screen.checks, 1);
  EXPECT_EQ(window.focusWidget(), refused);
  EXPECT_EQ(refused->text(), "12");
  screen.fails = false;
}

TEST(FailingHandler, OutsideAnyWindowEndsTheProgramWithAMessage) {
  for (const Thrown& thrown : kThrown) {
    fakes::World world;
    world.windows.expect_text("KAVREL has to end (" + std::string(thrown.english) + ").");
    EXPECT_EQ(desktop::told_when_it_fails(
                  [&]() -> int {
                    thrown.raise();
                    return 0;
                  },
                  world.messages, world.texts),
              desktop::kHadToEnd);
  }
  fakes::World world;
  EXPECT_EQ(desktop::told_when_it_fails([] { return 1; }, world.messages, world.texts), 1);
}

}  // namespace
