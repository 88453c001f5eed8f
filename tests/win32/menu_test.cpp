// The menu bar of the main window with keys: letters with Alt, a tapped Alt, the way back, and the keys
// that run a command from any field.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "fakes/sample_observation.h"
#include "mainwindow/main_menu.h"
#include "real_world.h"
#include "text/ids.h"
#include "ui/dump.h"
#include "widget_views.h"

namespace {

using mainwindow::Command;
using tests::InTurn;
using tests::post_key;
using tests::post_letter;

// A field, a drop-down and the menu of the main window, whose commands are kept in `ran`.
class CMenuScreen : public ui::Screen {
 public:
  explicit CMenuScreen(ui::Services& services)
      : Screen(services, "CMenuScreen", {text::id::kNoValueInput}) {
    combo.items = {"00", "01", "02"};
    set_menu(mainwindow::build_menu(
        mainwindow::Menu::kEnglish, true,
        [this](const mainwindow::MenuRow& row) { ran.push_back(row.command); }));
  }
  ui::Edit field{*this, "field"};
  ui::Combo combo{*this, "combo"};
  std::vector<Command> ran;
  int window_keys = 0;

 protected:
  bool on_enter_or_escape(ui::Key /*key*/) override {
    ++window_keys;
    return true;
  }
};

class MenuKeys : public testing::Test {
 protected:
  void tap_alt() {
    const HWND focus = GetFocus();
    PostMessageW(focus, WM_SYSKEYDOWN, VK_MENU, 1 | (1 << 29));
    PostMessageW(focus, WM_SYSKEYUP, VK_MENU, static_cast<LPARAM>(0xC0000001));
    win32::deal_with_waiting();
  }
  void expect_in_field(const std::string& text) {
    EXPECT_EQ(screen.focused(), &screen.field);
    EXPECT_TRUE(shown.window.widget(screen.field)->owns(GetFocus()));
    EXPECT_EQ(screen.field.content, text);
    EXPECT_EQ(screen.window_keys, 0);
    tests::expect_in_step(shown.window, screen, "afterwards");
  }

  tests::RealWorld world;
  CMenuScreen screen{world.services};
  tests::OnDisplay shown{screen};
};

TEST_F(MenuKeys, OpenAMenuByItsLetterAndRunWhatIsInIt) {
  tests::type("12");
  const InTurn keys({[] { post_letter('p'); }, [] { post_letter('a'); }});
  tests::press_with_alt('f');
  EXPECT_EQ(screen.ran, std::vector{Command::kPrintAll});
  expect_in_field("12");
}

TEST_F(MenuKeys, RunACommandThatIsATitle) {
  tests::press_with_alt('s');
  EXPECT_EQ(screen.ran, std::vector{Command::kSave});
  expect_in_field("");
}

TEST_F(MenuKeys, DoNothingByALetterThatNoTitleHas) {
  tests::type("12");
  tests::press_with_alt('x');
  EXPECT_TRUE(screen.ran.empty());
  expect_in_field("12");
}

TEST_F(MenuKeys, GoToTheMenuByATappedAltAndOnWithTheArrows) {
  tests::type("12");
  const InTurn keys({[] { post_key(VK_RIGHT); }, [] { post_key(VK_RETURN); }});
  tap_alt();
  EXPECT_EQ(screen.ran, std::vector{Command::kSave});
  expect_in_field("12");
}

TEST_F(MenuKeys, ComeBackWithEscapeAndNothingIsLost) {
  tests::type("12");
  {
    const InTurn keys(
        {[] { post_key(VK_DOWN); }, [] { post_key(VK_ESCAPE); }, [] { post_key(VK_ESCAPE); }});
    tap_alt();
  }
  EXPECT_TRUE(screen.ran.empty());
  expect_in_field("12");
  tests::type("3");
  EXPECT_EQ(screen.field.content, "123");
}

TEST_F(MenuKeys, RunACommandByItsShortcutFromEveryField) {
  tests::press('S', false, true);
  EXPECT_EQ(screen.ran, std::vector{Command::kSave});
  tests::press(VK_TAB);
  ASSERT_EQ(screen.focused(), &screen.combo);
  tests::press('S', false, true);
  EXPECT_EQ(screen.ran.size(), 2U);
  EXPECT_EQ(screen.focused(), &screen.combo);
}

TEST_F(MenuKeys, BelongToAListThatIsOpen) {
  tests::press(VK_TAB);
  const HWND box = shown.window.widget(screen.combo)->window();
  SendMessageW(box, CB_SHOWDROPDOWN, TRUE, 0);
  tests::press('S', false, true);
  EXPECT_TRUE(screen.ran.empty());
  SendMessageW(box, CB_SHOWDROPDOWN, FALSE, 0);
  tests::press('S', false, true);
  EXPECT_EQ(screen.ran.size(), 1U);
}

// ---- In the main window itself

class MainKeys : public testing::TestWithParam<text::Language> {
 protected:
  void SetUp() override {
    world.fake.texts.language = GetParam();
    world.fake.locale.id = 0x0411;
    screen = std::make_unique<fakes::SampleMainWindow>(world.services);
    screen->open();
    ASSERT_TRUE(fakes::enter_sample(*screen));
    window = std::make_unique<win32::ScreenWindow>(*screen, nullptr);
    window->show_up();
    go_to("VV");
    world.windows.on_shown = [this](win32::ScreenWindow& dialog) {
      opened.push_back(dialog.shown_screen().class_name());
      post_key(VK_ESCAPE);
    };
    world.windows.on_asked = [this](win32::MessageWindow& /*box*/) {
      ++asked;
      post_later_ = std::make_unique<InTurn>(std::deque<InTurn::Act>{[] { post_key(VK_ESCAPE); }});
    };
  }
  void go_to(const char* field) {
    ASSERT_TRUE(screen->move_focus(*screen->find(field)));
    window->refresh();
    win32::deal_with_waiting();
  }
  [[nodiscard]] bool has_focus(const char* field) const {
    return screen->focused()->name == field && window->widget(field)->owns(GetFocus());
  }
  void TearDown() override {
    window.reset();
    post_later_.reset();
  }

  tests::RealWorld world;
  std::unique_ptr<fakes::SampleMainWindow> screen;
  std::unique_ptr<win32::ScreenWindow> window;
  std::vector<std::string> opened;
  int asked = 0;

 private:
  std::unique_ptr<InTurn> post_later_;
};

TEST_P(MainKeys, F2ShowsTheReportInPlainWordsAndHidesIt) {
  const HWND words = window->widget("plain_words")->window();
  EXPECT_FALSE(win32::is_shown(words));
  tests::press(VK_F2);
  EXPECT_TRUE(win32::is_shown(words));
  EXPECT_TRUE(has_focus("VV"));
  tests::expect_in_step(*window, *screen, "with plain words");
  tests::press(VK_F2);
  EXPECT_FALSE(win32::is_shown(words));
  tests::expect_in_step(*window, *screen, "without plain words");
}

TEST_P(MainKeys, F3OpensTheCurvesAndEscapeLeadsBack) {
  const std::string before = ui::dump(*screen);
  tests::press(VK_F3);
  EXPECT_EQ(opened, std::vector<std::string>{"CCurvesDlg"});
  EXPECT_TRUE(has_focus("VV"));
  EXPECT_EQ(ui::dump(*screen), before);
}

TEST_P(MainKeys, F4OpensTheLogbookAndEscapeLeadsBack) {
  const std::string before = ui::dump(*screen);
  tests::press(VK_F4);
  EXPECT_EQ(opened, std::vector<std::string>{"CLogbookDlg"});
  EXPECT_TRUE(has_focus("VV"));
  EXPECT_EQ(ui::dump(*screen), before);
}

TEST_P(MainKeys, CtrlPPrintsTheReport) {
  tests::press('P', false, true);
  EXPECT_EQ(world.fake.printer.printed.size(), 1U);
  EXPECT_TRUE(has_focus("VV"));
}

TEST_P(MainKeys, CtrlNAsksWhereTheObservationIsNotSaved) {
  tests::press('N', false, true);
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(screen->unsaved());
  EXPECT_TRUE(has_focus("VV"));
}

TEST_P(MainKeys, CtrlShiftCPutsTheReportOnTheClipboard) {
  tests::press('C', true, true);
  ASSERT_NE(OpenClipboard(nullptr), FALSE);
  std::string copied;
  if (const HANDLE block = GetClipboardData(CF_UNICODETEXT)) {
    copied = win32::narrow(static_cast<const wchar_t*>(GlobalLock(block)));
    GlobalUnlock(block);
  }
  CloseClipboard();
  EXPECT_TRUE(copied.starts_with("BBXX JXKV 15124 99357 11653 41497")) << copied;
}

TEST_P(MainKeys, F6GoesFromTheFormToTheReportAndBack) {
  tests::press(VK_F6);
  EXPECT_EQ(screen->focused()->name.substr(0, 6), "group_");
  tests::press(VK_F6, true);
  EXPECT_TRUE(has_focus("VV"));
}

INSTANTIATE_TEST_SUITE_P(Languages, MainKeys,
                         testing::Values(text::Language::kEnglish, text::Language::kJapanese),
                         [](const testing::TestParamInfo<text::Language>& language) {
                           return language.param == text::Language::kEnglish ? "English"
                                                                             : "Japanese";
                         });

}  // namespace
