// Every screen of the program in the system's own controls: what they show is what the controls hold,
// in both languages, before and after a person went through it with the keyboard.

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"
#include "keyboard.h"
#include "room.h"
#include "widget_views.h"
#include "win32/screen_window.h"
#include "win32/utf.h"

namespace {

// Answers everything, asks nothing: a walk through a screen may meet any message.
class Patient : public ui::Windows {
 public:
  int show_message(const ui::MessageBox& box) override { return box.close_result; }
  int run_modal(ui::Screen&) override { return ui::kCancel; }
  void show_notice(ui::Screen&) override {}
  void hide_notice(ui::Screen&) override {}
  void pause(int) override {}
  bool copy_text(const std::string& /*text*/) override { return true; }
  std::optional<std::string> browse_for_folder(const std::string&, const std::string&) override {
    return std::nullopt;
  }
};

class EveryScreen : public testing::TestWithParam<std::tuple<std::size_t, text::Language>> {
 protected:
  void SetUp() override {
    texts.language = std::get<1>(GetParam());
    screen = fakes::all_screens()[std::get<0>(GetParam())].make(services);
    screen->open();
    window = std::make_unique<win32::ScreenWindow>(*screen, nullptr);
    window->show_up();
    win32::deal_with_waiting();
  }

  void expect_equal(const std::string& when) const {
    tests::expect_in_step(*window, *screen, when);
  }

  fakes::FakeClock clock;
  fakes::FakeLocale locale;
  fakes::FakeDrives drives;
  fakes::NoFiles files;
  fakes::FakeCodePage code_page;
  fakes::FakePrinter printer;
  fakes::FakeHelp help_viewer;
  Patient windows;
  text::Texts texts;
  ui::Messages messages{texts, windows};
  text::HelpLauncher help{texts, help_viewer, "C:\\program"};
  ui::Services services{clock,   locale,  drives, files,    code_page,
                        printer, windows, texts,  messages, help};
  std::unique_ptr<ui::Screen> screen;
  std::unique_ptr<win32::ScreenWindow> window;
};

TEST_P(EveryScreen, ShowsWhatItsControlsHold) {
  expect_equal("opened");
}

TEST_P(EveryScreen, IsWalkedThroughWithTabAndStaysInStep) {
  std::vector<ui::Control*> order;
  for (ui::Control* const control : screen->controls())
    if (control->can_focus()) order.push_back(control);
  if (order.empty()) return;  // a notice: nothing here takes the focus
  for (std::size_t i = 0; i < order.size() + 1 && !screen->result(); ++i) {
    tests::press(VK_TAB);
    ASSERT_NE(screen->focused(), nullptr);
    const win32::Widget* const widget = window->widget(*screen->focused());
    EXPECT_TRUE(widget->owns(GetFocus())) << screen->focused()->name;
    expect_equal("after Tab to " + screen->focused()->name);
  }
}

TEST_P(EveryScreen, TypingIntoEveryFieldReachesItsControl) {
  for (ui::Control* const control : screen->controls()) {
    if (screen->result() || !control->can_focus() || control->read_only) continue;
    if (control->kind != ui::Kind::kEdit && control->kind != ui::Kind::kCombo) continue;
    if (!screen->move_focus(*control)) continue;
    window->refresh();
    tests::type("1");
    EXPECT_EQ(control->content, "1") << control->name;
    expect_equal("after typing into " + control->name);
  }
}

TEST_P(EveryScreen, ShowsItsTextsWhole) {
  tests::expect_texts_whole(*window);
}

TEST_P(EveryScreen, ShowsItsTextsWholeOnAFinerDisplay) {
  RECT frame{};
  GetWindowRect(window->frame(), &frame);
  constexpr int kPercent = 150;
  constexpr WORD kDpi = 96 * kPercent / 100;
  const RECT wanted{0, 0, (frame.right - frame.left) * kPercent / 100,
                    (frame.bottom - frame.top) * kPercent / 100};
  SendMessageW(window->frame(), WM_DPICHANGED, MAKEWPARAM(kDpi, kDpi),
               reinterpret_cast<LPARAM>(&wanted));
  EXPECT_EQ(window->look().dpi(), kDpi);
  tests::expect_texts_whole(*window);
  expect_equal("on a finer display");
}

TEST_P(EveryScreen, FitsASmallLaptop) {
  RECT frame{};
  GetWindowRect(window->frame(), &frame);
  EXPECT_LE(frame.right - frame.left, 1366);
  EXPECT_LE(frame.bottom - frame.top, 768);
}

std::string name_of_case(
    const testing::TestParamInfo<std::tuple<std::size_t, text::Language>>& info) {
  const bool english = std::get<1>(info.param) == text::Language::kEnglish;
  return std::string(fakes::all_screens()[std::get<0>(info.param)].class_name) +
         (english ? "_en" : "_ja");
}

INSTANTIATE_TEST_SUITE_P(
    Win32, EveryScreen,
    testing::Combine(testing::Range(std::size_t{0}, fakes::all_screens().size()),
                     testing::Values(text::Language::kEnglish, text::Language::kJapanese)),
    name_of_case);

}  // namespace
