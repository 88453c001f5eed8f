// A complete observation typed into the real main window, with no mouse.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <string>
#include <string_view>

#include "desktop/screen_window.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_observation.h"
#include "widget_views.h"

namespace {

void expect_in_step(const desktop::ScreenWindow& window, const ui::Screen& screen,
                    const char* where) {
  const auto shown = tests::widget_views(window);
  const auto held = tests::control_views(screen);
  ASSERT_EQ(held.size(), shown.size());
  for (std::size_t i = 0; i < held.size(); ++i)
    EXPECT_EQ(ui::describe(held[i]), ui::describe(shown[i])) << "after " << where;
}

void press(Qt::Key key) {
  QTest::keyClick(QApplication::focusWidget(), key);
  QApplication::processEvents();
}

class KeyboardOnly : public testing::TestWithParam<text::Language> {};

TEST_P(KeyboardOnly, EntersACompleteObservation) {
  fakes::World world;
  world.texts.language = GetParam();
  world.services.moves_on = false;  // a Tab behind every field
  fakes::SampleMainWindow screen(world.services);
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  window.show();
  window.activateWindow();
  QApplication::processEvents();
  for (const fakes::Entry& entry : fakes::sample_entries()) {
    const ui::Control* const focused = screen.focused();
    ASSERT_NE(nullptr, focused);
    if (focused->name != entry.control && screen.find(entry.control)->passed_over) {
      EXPECT_STREQ("", entry.text) << entry.control;
      continue;
    }
    if (screen.find(entry.control)->read_only) continue;  // computed: Tab passes it by
    ASSERT_EQ(entry.control, focused->name);
    ASSERT_TRUE(window.binding(*focused)->owns(QApplication::focusWidget())) << entry.control;
    const std::string_view text = entry.text;
    if (text.starts_with('#')) {
      press(Qt::Key_Space);
    } else {
      QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(entry.text));
    }
    press(Qt::Key_Tab);
    expect_in_step(window, screen, entry.control);
  }
  EXPECT_EQ(fakes::kSampleReport, screen.report());
  EXPECT_TRUE(screen.unsaved());
}

std::string name_of_case(const testing::TestParamInfo<text::Language>& language) {
  return language.param == text::Language::kEnglish ? "English" : "Japanese";
}

INSTANTIATE_TEST_SUITE_P(Languages, KeyboardOnly,
                         testing::Values(text::Language::kEnglish, text::Language::kJapanese),
                         name_of_case);

}  // namespace
