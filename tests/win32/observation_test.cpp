// A complete observation typed into the real main window, with no mouse.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "fakes/fake_ports.h"
#include "fakes/sample_observation.h"
#include "keyboard.h"
#include "widget_views.h"

namespace {

class KeyboardOnly : public testing::TestWithParam<text::Language> {};

TEST_P(KeyboardOnly, EntersACompleteObservation) {
  fakes::World world;
  world.texts.language = GetParam();
  world.services.moves_on = false;  // a Tab behind every field
  fakes::SampleMainWindow screen(world.services);
  screen.open();
  win32::ScreenWindow window(screen, nullptr);
  window.show_up();
  win32::deal_with_waiting();
  for (const fakes::Entry& entry : fakes::sample_entries()) {
    const ui::Control* const focused = screen.focused();
    ASSERT_NE(nullptr, focused);
    if (focused->name != entry.control && screen.find(entry.control)->passed_over) {
      EXPECT_STREQ("", entry.text) << entry.control;
      continue;
    }
    if (screen.find(entry.control)->read_only) continue;  // computed: Tab passes it by
    ASSERT_EQ(entry.control, focused->name);
    ASSERT_TRUE(window.widget(*focused)->owns(GetFocus())) << entry.control;
    const std::string_view text = entry.text;
    if (text.starts_with('#')) {
      tests::press(VK_SPACE);
    } else {
      tests::type(text);
    }
    tests::press(VK_TAB);
    tests::expect_in_step(window, screen, entry.control);
  }
  EXPECT_EQ(fakes::kSampleReport, screen.report());
  EXPECT_TRUE(screen.unsaved());
}

INSTANTIATE_TEST_SUITE_P(Languages, KeyboardOnly,
                         testing::Values(text::Language::kEnglish, text::Language::kJapanese),
                         [](const testing::TestParamInfo<text::Language>& language) {
                           return language.param == text::Language::kEnglish ? "English"
                                                                             : "Japanese";
                         });

}  // namespace
