// Every screen of the program as a desktop: what the widgets show is what the controls hold, in
// both languages, before and after a person went through it with the keyboard.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "desktop/screen_window.h"
#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"
#include "widget_views.h"

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
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    window->show();
    window->activateWindow();
    QApplication::processEvents();
  }

  void expect_equal(const std::string& when) const {
    const auto shown = tests::widget_views(*window);
    const auto held = tests::control_views(*screen);
    ASSERT_EQ(shown.size(), held.size());
    for (std::size_t i = 0; i < held.size(); ++i)
      EXPECT_EQ(ui::describe(shown[i]), ui::describe(held[i])) << when;
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
  std::unique_ptr<desktop::ScreenWindow> window;
};

TEST_P(EveryScreen, ShowsWhatItsControlsHold) {
  expect_equal("opened");
}

TEST_P(EveryScreen, IsWalkedThroughWithTabAndStaysInStep) {
  std::vector<ui::Control*> order;
  for (ui::Control* const control : screen->controls()) {
    if (control->can_focus()) order.push_back(control);
  }
  if (order.empty()) return;  // a notice: nothing here takes the focus
  for (std::size_t i = 0; i < order.size() + 1 && !screen->result(); ++i) {
    if (QWidget* const focus = window->focusWidget()) QTest::keyClick(focus, Qt::Key_Tab);
    QApplication::processEvents();
    ASSERT_NE(screen->focused(), nullptr);
    const desktop::Binding* const bound = window->binding(*screen->focused());
    EXPECT_TRUE(bound->owns(window->focusWidget())) << screen->focused()->name;
    expect_equal("after Tab to " + screen->focused()->name);
  }
}

TEST_P(EveryScreen, TypingIntoEveryFieldReachesItsControl) {
  for (ui::Control* const control : screen->controls()) {
    if (screen->result() || !control->can_focus() || control->read_only) continue;
    if (control->kind != ui::Kind::kEdit && control->kind != ui::Kind::kCombo) continue;
    if (!screen->move_focus(*control)) continue;
    window->refresh();
    QTest::keyClicks(window->focusWidget(), "1");
    EXPECT_EQ(control->content, "1") << control->name;
    expect_equal("after typing into " + control->name);
  }
}

TEST_P(EveryScreen, FitsASmallLaptop) {
  EXPECT_LE(window->width(), 1366);
  EXPECT_LE(window->height(), 768);
}

std::string name_of_case(
    const testing::TestParamInfo<std::tuple<std::size_t, text::Language>>& info) {
  const bool english = std::get<1>(info.param) == text::Language::kEnglish;
  return std::string(fakes::all_screens()[std::get<0>(info.param)].class_name) +
         (english ? "_en" : "_ja");
}

INSTANTIATE_TEST_SUITE_P(
    Desktop, EveryScreen,
    testing::Combine(testing::Range(std::size_t{0}, fakes::all_screens().size()),
                     testing::Values(text::Language::kEnglish, text::Language::kJapanese)),
    name_of_case);

}  // namespace
