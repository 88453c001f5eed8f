// Alt with a letter, on real windows.

#include "ui/access_keys.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QMenu>
#include <QMenuBar>

#include "desktop_world.h"
#include "fakes/all_screens.h"

namespace {

void alt(QWidget& window, char letter) {
  QTest::keyClick(&window, static_cast<Qt::Key>(Qt::Key_A + (letter - 'A')), Qt::AltModifier);
  QApplication::processEvents();
}

class AltAndALetter : public testing::TestWithParam<bool> {
 protected:
  AltAndALetter() {
    if (!GetParam()) return;
    world.fake.japanese();
    world.fake.locale.id = 0x0411;
  }
  tests::DesktopWorld world;
};

TEST_P(AltAndALetter, LeadsToEveryFieldWithACaptionAndStandsOnEveryButton) {
  int fields = 0;
  int buttons = 0;
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    const auto screen = row.make(world.services);
    screen->open();
    if (screen->result()) continue;
    desktop::ScreenWindow window(*screen, nullptr);
    tests::show(window);
    for (const auto& [control, key] : ui::access_keys_of(*screen, ui::plan_of(*screen))) {
      const desktop::Binding& binding = *window.binding(*control);
      if (const auto* const button = qobject_cast<QAbstractButton*>(binding.widget())) {
        EXPECT_EQ(ui::access_key(button->text().toStdString()), key)
            << row.class_name << " " << control->name;
        ++buttons;
        continue;
      }
      ASSERT_NE(binding.caption_label, nullptr) << row.class_name << " " << control->name;
      EXPECT_EQ(ui::access_key(binding.caption_label->text().toStdString()), key);
      if (!control->can_focus() || control->kind == ui::Kind::kChoice) continue;
      const auto refused = tests::messages_of([&] { alt(window, key); });
      if (!refused.empty()) continue;
      EXPECT_EQ(screen->focused(), control) << row.class_name << " " << control->name;
      ++fields;
    }
  }
  EXPECT_GT(fields, 40);
  EXPECT_GT(buttons, 20);
}

// A slip on Alt over a field whose text is selected: the entry is not overwritten.
TEST(AltWithALetterThatNothingHas, WritesNothing) {
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    tests::DesktopWorld world;
    const auto screen = row.make(world.services);
    screen->open();
    if (screen->result()) continue;
    desktop::ScreenWindow window(*screen, nullptr);
    tests::show(window);
    std::string taken = "FSDOVLH";  // the titles of a menu
    for (const auto& [control, key] : ui::access_keys_of(*screen, ui::plan_of(*screen)))
      taken.push_back(key);
    char letter = 'A';
    while (taken.find(letter) != std::string::npos) ++letter;
    if (letter > 'Z') continue;
    for (ui::Control* const control : screen->controls()) {
      const bool typed = control->kind == ui::Kind::kEdit || control->kind == ui::Kind::kCombo;
      if (!typed || !control->can_focus()) continue;
      bool there = false;
      tests::messages_of([&] { window.hand([&] { there = screen->move_focus(*control); }); });
      if (!there) continue;
      const std::string before = control->content;
      const QString lower(QLatin1Char(static_cast<char>(letter - 'A' + 'a')));
      QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(),
                          static_cast<Qt::Key>(Qt::Key_A + (letter - 'A')), lower, Qt::AltModifier);
      QApplication::processEvents();
      EXPECT_EQ(control->content, before) << row.class_name << " " << control->name;
      EXPECT_EQ(window.binding(*control)->shown().content.toStdString(), before);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, AltAndALetter, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& japanese) {
                           return japanese.param ? "ja" : "en";
                         });

}  // namespace
