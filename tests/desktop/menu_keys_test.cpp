// The menu bar of the main window by keyboard: a tapped Alt, the keys within, the way back, and the
// keys that run a command from any field.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>
#include <QToolTip>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop/style.h"
#include "desktop_world.h"
#include "fakes/sample_observation.h"
#include "mainwindow/main_menu.h"
#include "text/ids.h"
#include "text/strings.h"
#include "ui/dump.h"

namespace {

using tests::press;

// What the person sees of the window: the keys go to a popup when there is one.
void key(Qt::Key pressed, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  if (QWidget* const popup = QApplication::activePopupWidget()) {
    QTest::keyClick(popup, pressed, modifiers);
    QApplication::processEvents();
  } else {
    press(pressed, modifiers);
  }
}

void tap_alt() {
  QWidget* const focus = QApplication::focusWidget();
  ASSERT_NE(nullptr, focus);
  QTest::keyPress(focus, Qt::Key_Alt, Qt::AltModifier);
  QTest::keyRelease(focus, Qt::Key_Alt);
  QApplication::processEvents();
}

// A field, a choice, a drop-down and the menu of the main window, whose commands are kept in `ran`.
class MenuScreen : public ui::Screen {
 public:
  explicit MenuScreen(ui::Services& services)
      : Screen(services, "CMenuScreen", {text::id::kNoValueInput}) {
    combo.items = {"00", "01", "02"};
    choice.items = {"north", "south"};
    set_menu(mainwindow::build_menu(mainwindow::Menu::kEnglish, true,
                                    [this](const mainwindow::MenuRow& row) {
                                      ran.push_back(row.command);
                                      if (on_command) on_command();
                                    }));
  }
  using Screen::focus;
  ui::Edit field{*this, "field"};
  ui::Combo combo{*this, "combo"};
  ui::Choice choice{*this, "choice", {}, {}};
  ui::Edit last{*this, "last"};
  ui::Button button{*this, "button", {text::id::kOkLabel}};
  std::vector<mainwindow::Command> ran;
  std::function<void()> on_command;

 protected:
  bool on_enter_or_escape(ui::Key /*key*/) override {
    ++window_keys;
    return true;
  }

 public:
  int window_keys = 0;
};

struct Shown {
  tests::DesktopWorld world;
  MenuScreen screen{world.services};
  std::unique_ptr<desktop::ScreenWindow> window;
  QMenuBar* bar = nullptr;

  Shown() {
    screen.open();
    window = std::make_unique<desktop::ScreenWindow>(screen, nullptr);
    tests::show(*window);
    bar = window->findChild<QMenuBar*>();
  }
  void go_to(std::string_view name) {
    while (screen.focused()->name != name) press(Qt::Key_Tab);
  }
  [[nodiscard]] std::string highlighted() const {
    return bar->activeAction() == nullptr ? std::string() : tests::plain_text(*bar->activeAction());
  }
  [[nodiscard]] bool has_focus(std::string_view name) const {
    return window->binding(name)->owns(QApplication::focusWidget()) &&
           screen.focused()->name == name;
  }
};

TEST(TappedAlt, HighlightsTheFirstTitle) {
  Shown s;
  const auto* const frame = s.window->findChild<desktop::FocusFrame*>();
  EXPECT_TRUE(frame->isVisible());
  tap_alt();
  EXPECT_EQ("File", s.highlighted());
  EXPECT_EQ(s.bar, QApplication::focusWidget());
  EXPECT_FALSE(frame->isVisible());
  const auto paper = [&s](int title) {
    const QRect place = s.bar->actionGeometry(s.bar->actions()[title]);
    return s.bar->grab().toImage().pixelColor(place.topLeft() + QPoint(3, 3));
  };
  EXPECT_EQ(s.bar->palette().color(QPalette::Highlight), paper(0));
  EXPECT_NE(paper(0), paper(1));
  key(Qt::Key_Right);
  EXPECT_EQ("Save weather report", s.highlighted());
  key(Qt::Key_Left);
  EXPECT_EQ("File", s.highlighted());
}

TEST(TappedAlt, IsTakenBackByEscapeOrAnotherAltFromEveryFieldWithNothingLost) {
  for (const char* const name : {"field", "combo", "choice", "last", "button"}) {
    for (const bool by_escape : {true, false}) {
      Shown s;
      s.go_to(name);
      QTest::keyClicks(QApplication::focusWidget(), "12");
      const std::string before = ui::dump(s.screen);
      tap_alt();
      EXPECT_NE("", s.highlighted()) << name;
      if (by_escape) {
        key(Qt::Key_Escape);
      } else {
        tap_alt();
      }
      EXPECT_EQ("", s.highlighted()) << name;
      EXPECT_TRUE(s.has_focus(name)) << name;
      EXPECT_EQ(before, ui::dump(s.screen)) << name;
      EXPECT_EQ(0, s.screen.window_keys) << name;
      EXPECT_TRUE(s.screen.ran.empty()) << name;
    }
  }
  // The text goes on where it was.
  Shown s;
  QTest::keyClicks(QApplication::focusWidget(), "12");
  tap_alt();
  key(Qt::Key_Escape);
  QTest::keyClicks(QApplication::focusWidget(), "34");
  EXPECT_EQ("1234", s.screen.field.content);
}

TEST(TappedAlt, OpensAMenuWithEnterOrDownAndEscapeGoesBackStepByStep) {
  for (const Qt::Key opens : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
    Shown s;
    QTest::keyClicks(QApplication::focusWidget(), "12");
    const std::string before = ui::dump(s.screen);
    tap_alt();
    key(opens);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(nullptr, menu) << opens;
    EXPECT_EQ("File", tests::plain_text(*menu->menuAction()));
    ASSERT_NE(nullptr, menu->activeAction());
    EXPECT_EQ("Correct weather reports", tests::plain_text(*menu->activeAction()));
    for (int i = 0; i < 3 && !s.has_focus("field"); ++i) key(Qt::Key_Escape);
    EXPECT_EQ(nullptr, QApplication::activePopupWidget());
    EXPECT_EQ("", s.highlighted());
    EXPECT_TRUE(s.has_focus("field"));
    EXPECT_EQ(before, ui::dump(s.screen));
    EXPECT_TRUE(s.screen.ran.empty());
    EXPECT_EQ(0, s.screen.window_keys);
  }
}

TEST(TappedAlt, RunsTheCommandThatEnterIsPressedOnAndTheFieldHasTheFocusAgain) {
  for (const char* const name : {"field", "combo", "choice"}) {
    Shown s;
    s.go_to(name);
    tap_alt();
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    EXPECT_EQ(std::vector{mainwindow::Command::kSave}, s.screen.ran) << name;
    EXPECT_TRUE(s.has_focus(name)) << name;
    EXPECT_EQ("", s.highlighted());
    EXPECT_EQ(0, s.screen.window_keys);
    // An item of a menu, and of a menu within a menu.
    tap_alt();
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    tap_alt();
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ((std::vector{mainwindow::Command::kSave, mainwindow::Command::kCorrectReports,
                           mainwindow::Command::kPrintAll}),
              s.screen.ran)
        << name;
    EXPECT_TRUE(s.has_focus(name)) << name;
  }
}

TEST(TappedAlt, LeavesTheFocusToACommandThatMovesIt) {
  Shown s;
  s.screen.on_command = [&s] { s.screen.focus(s.screen.last); };
  tap_alt();
  key(Qt::Key_Right);
  key(Qt::Key_Return);
  EXPECT_TRUE(s.has_focus("last"));
  EXPECT_EQ("", s.highlighted());
  tap_alt();
  key(Qt::Key_Escape);
  EXPECT_TRUE(s.has_focus("last"));
}

TEST(TappedAlt, ComesBackToTheFieldAfterTheMessageOfACommand) {
  for (const bool in_a_menu : {true, false}) {
    Shown s;
    s.go_to("last");
    s.screen.on_command = [&s] {
      QTimer::singleShot(
          0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
      s.world.messages.error(text::id::kVersionInformation);
    };
    tap_alt();
    key(in_a_menu ? Qt::Key_Down : Qt::Key_Right);
    key(Qt::Key_Return);
    // No window manager gives the window the keyboard back here.
    s.window->activateWindow();
    QApplication::processEvents();
    ASSERT_EQ(1U, s.screen.ran.size());
    EXPECT_TRUE(s.has_focus("last"));
    EXPECT_EQ("", s.highlighted());
  }
}

// Alt and a letter open a menu from a field, the letters then go on; a letter that no title has
// does nothing.
TEST(AccessKeysOfTheMenu, OpenMenusAndRunCommands) {
  for (const bool tapped : {true, false}) {
    Shown s;
    QTest::keyClicks(QApplication::focusWidget(), "12");
    if (tapped) {
      tap_alt();
      key(Qt::Key_X);
      EXPECT_EQ("File", s.highlighted());
      key(Qt::Key_F);
    } else {
      press(Qt::Key_F, Qt::AltModifier);
    }
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(nullptr, menu);
    EXPECT_EQ("File", tests::plain_text(*menu->menuAction()));
    key(Qt::Key_P);  // a menu within the menu opens
    menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(nullptr, menu);
    EXPECT_EQ("Print", tests::plain_text(*menu->menuAction()));
    EXPECT_TRUE(s.screen.ran.empty());
    key(Qt::Key_A);
    EXPECT_EQ(std::vector{mainwindow::Command::kPrintAll}, s.screen.ran);
    EXPECT_TRUE(s.has_focus("field"));
    EXPECT_EQ("12", s.screen.field.content);
  }
}

TEST(AccessKeysOfTheMenu, RunACommandThatIsATitle) {
  Shown s;
  press(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(std::vector{mainwindow::Command::kSave}, s.screen.ran);
  // The title shows for a moment that it was pressed.
  EXPECT_TRUE(QTest::qWaitFor([&] { return s.highlighted().empty(); }));
  EXPECT_TRUE(s.has_focus("field"));
}

struct RealMenu {
  tests::DesktopWorld world;
  std::unique_ptr<fakes::SampleMainWindow> screen;
  std::unique_ptr<desktop::ScreenWindow> window;

  explicit RealMenu(text::Language language) {
    world.fake.texts.language = language;
    world.fake.locale.id = 0x0411;
    screen = std::make_unique<fakes::SampleMainWindow>(world.services);
    screen->open();
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
  }
};

// Each title and each item of a menu has a letter that no other of its menu has, in both languages
// the same one.
void expect_letters(const QList<QAction*>& items, std::string& letters) {
  std::string here;
  for (const QAction* const item : items) {
    const char letter = ui::access_key(item->text().toStdString());
    EXPECT_NE(letter, '\0') << item->text().toStdString();
    EXPECT_EQ(here.find(letter), std::string::npos) << item->text().toStdString();
    here.push_back(letter);
    letters.push_back(letter);
    if (item->menu() != nullptr) expect_letters(item->menu()->actions(), letters);
  }
}

TEST(AccessKeysOfTheMenu, AreUniqueInEachMenu) {
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    const RealMenu main(language);
    std::string letters;
    expect_letters(main.window->findChild<QMenuBar*>()->actions(), letters);
    EXPECT_GT(letters.size(), 20U);
    EXPECT_EQ(letters.front(), 'F');
  }
}

TEST(Shortcuts, RunTheirCommandFromEveryFieldOnce) {
  for (const char* const name : {"field", "combo", "choice", "last", "button"}) {
    Shown s;
    s.go_to(name);
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(std::vector{mainwindow::Command::kSave}, s.screen.ran) << name;
    EXPECT_TRUE(s.has_focus(name)) << name;
  }
}

TEST(Shortcuts, WaitWhileADropDownIsOpen) {
  Shown s;
  s.go_to("combo");
  auto* const box = qobject_cast<QComboBox*>(s.window->binding("combo")->widget());
  box->showPopup();
  QTest::keyClick(box->view(), Qt::Key_S, Qt::ControlModifier);
  QApplication::processEvents();
  EXPECT_TRUE(s.screen.ran.empty());
  QTest::keyClick(box->view(), Qt::Key_Escape);
  QApplication::processEvents();
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(1U, s.screen.ran.size());
}

TEST(Shortcuts, AreToldInTheMenuBarsTips) {
  for (const auto language : {text::Language::kEnglish, text::Language::kJapanese}) {
    RealMenu main(language);
    for (const QAction* const action : main.window->findChild<QMenuBar*>()->actions()) {
      const bool saves = action->shortcut() == QKeySequence(Qt::CTRL | Qt::Key_S);
      const std::string label(text::resolve({text::id::kMenuSave}, language));
      EXPECT_EQ(saves, tests::plain_text(*action) == label);
      EXPECT_EQ(saves, action->toolTip().contains("Ctrl+S"));
      EXPECT_EQ(saves, action->statusTip().contains("Ctrl+S"));
    }
  }
}

TEST(Shortcuts, AreToldWhereThePointerRestsOnTheirTitle) {
  Shown s;
  std::string told;
  for (QAction* const action : s.bar->actions()) {
    const QPoint on = s.bar->actionGeometry(action).center();
    QHelpEvent rests(QEvent::ToolTip, on, s.bar->mapToGlobal(on));
    QApplication::sendEvent(s.bar, &rests);
    if (action->shortcut().isEmpty()) continue;
    told = QToolTip::text().toStdString();
  }
  EXPECT_EQ("Save weather report (Ctrl+S)", told);
  QToolTip::hideText();
}

// The value being typed is taken before the checks of the command, which name what else is missing.
TEST(Shortcuts, SaveTheReportAfterTheFieldBeingTyped) {
  for (const auto language : {text::Language::kEnglish, text::Language::kJapanese}) {
    for (const bool switched : {false, true}) {
      RealMenu main(language);
      if (switched) {
        tap_alt();
        const QMenuBar* const bar = main.window->findChild<QMenuBar*>();
        for (int i = 0; i < 9 && tests::plain_text(*bar->activeAction()) != "Language" &&
                        tests::plain_text(*bar->activeAction()) != "言語";
             ++i)
          key(Qt::Key_Right);
        key(Qt::Key_Down);
        key(Qt::Key_Return);
        ASSERT_NE(language, main.screen->language());
      }
      QTest::keyClicks(QApplication::focusWidget(), "2014");
      press(Qt::Key_Tab);
      QTest::keyClicks(QApplication::focusWidget(), "13");
      const auto refused = tests::messages_of([] { press(Qt::Key_S, Qt::ControlModifier); });
      // The month is refused and nothing else is asked.
      ASSERT_EQ(1U, refused.size());
      main.window->activateWindow();
      QApplication::processEvents();
      EXPECT_EQ("Month", main.screen->focused()->name);
      EXPECT_TRUE(main.window->binding("Month")->owns(QApplication::focusWidget()));
      press(Qt::Key_A, Qt::ControlModifier);
      QTest::keyClicks(QApplication::focusWidget(), "11");
      const auto told = tests::messages_of([] { press(Qt::Key_S, Qt::ControlModifier); });
      EXPECT_EQ(std::vector{std::string(
                    text::resolve({text::id::kNoDateEntered}, main.screen->language()))},
                told);
      EXPECT_EQ("11", main.screen->form().record().Month);
    }
  }
}

TEST(Shortcuts, AreNotHeardInADialog) {
  RealMenu main(text::Language::kEnglish);
  int heard = 0;
  for (const QAction* const action : main.window->findChild<QMenuBar*>()->actions())
    QObject::connect(action, &QAction::triggered, [&heard] { ++heard; });
  std::string opened;
  main.world.windows.on_shown = [&](desktop::ScreenWindow& dialog) {
    opened = dialog.objectName().toStdString();
    dialog.activateWindow();
    QApplication::processEvents();
    press(Qt::Key_S, Qt::ControlModifier);
    press(Qt::Key_Escape);
  };
  press(Qt::Key_F1);
  EXPECT_EQ("CUTCTimeDlg1", opened);
  EXPECT_EQ(0, heard);
  main.window->activateWindow();
  QApplication::processEvents();
  EXPECT_EQ(1U, tests::messages_of([] { press(Qt::Key_S, Qt::ControlModifier); }).size());
  EXPECT_EQ(1, heard);
}

// Passing the loading state asks nothing; choosing another one does.
TEST(LoadingState, AsksWhenItIsChosenNotWhenItIsPassed) {
  tests::DesktopWorld world;
  ShipFixedData ship;
  KeyObservationItems items;
  mainwindow::Folders folders;
  ship.card.type = CardType::kHeightAndTemperature;
  CVelmaranDlg screen(world.services, {ship, items, folders, {}});
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  tests::show(window);
  const ui::Control& loading = *screen.find("loading_state");
  const auto passing = tests::messages_of([&] {
    for (int i = 0; i < 40 && screen.focused() != &loading; ++i) press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab, Qt::ShiftModifier);
  });
  EXPECT_EQ(std::vector<std::string>{}, passing);
  ASSERT_EQ(&loading, screen.focused());
  const int before = loading.selected;
  const auto choosing = tests::messages_of([&] { press(before == 0 ? Qt::Key_Down : Qt::Key_Up); });
  const std::string question(text::resolve({text::id::kAskLoadingState}, text::Language::kEnglish));
  EXPECT_EQ(std::vector{question}, choosing);
  EXPECT_EQ(before, loading.selected);  // Escape is No
  EXPECT_EQ(before, window.binding("loading_state")->shown().selected);
}

}  // namespace
