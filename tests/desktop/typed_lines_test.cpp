// Every list, drop-down and choice of the program whose lines bear codes, with real keys.

#include <gtest/gtest.h>

#include <algorithm>

#include "desktop_world.h"
#include "fakes/all_screens.h"
#include "ui/line_keys.h"

namespace {

// The code that a person reads at the beginning of the line; empty where it has none.
std::string code_of(const ui::Control& control, std::size_t line) {
  if (line < control.item_codes.size()) return control.item_codes[line];
  const std::string& text = control.items[line];
  const auto begin = std::min(text.find_first_not_of(' '), text.size());
  const auto end = std::min(text.find_first_not_of("0123456789/", begin), text.size());
  return text.substr(begin, end - begin);
}

TEST(LinesOfEveryDialog, AreChosenByTheFiguresTheyBear) {
  int chosen = 0;
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    tests::DesktopWorld world;
    const auto screen = row.make(world.services);
    screen->open();
    if (screen->result()) continue;
    desktop::ScreenWindow window(*screen, nullptr);
    tests::show(window);
    for (ui::Control* const control : screen->controls()) {
      if (!ui::finds_lines(control->kind) || !control->can_focus()) continue;
      bool there = false;
      tests::messages_of([&] { window.hand([&] { there = screen->move_focus(*control); }); });
      if (!there) continue;
      for (std::size_t line = 0; line < control->items.size(); ++line) {
        const std::string code = code_of(*control, line);
        const bool disabled = line < control->item_disabled.size() && control->item_disabled[line];
        if (code.empty() || disabled) continue;
        // A pause in the typing: another key begins anew.
        tests::press(Qt::Key_Home);
        tests::messages_of([&] { tests::type(code); });
        ASSERT_GE(control->selected, 0) << row.class_name << " " << control->name << " " << code;
        const std::string found = code_of(*control, static_cast<std::size_t>(control->selected));
        // A line without a code is found by how its text begins, and another may begin so too.
        EXPECT_TRUE(control->item_codes.empty() ? found.starts_with(code) : found == code)
            << row.class_name << " " << control->name << " " << code << " " << found;
        EXPECT_EQ(window.binding(*control)->shown().selected, control->selected);
        ++chosen;
      }
    }
  }
  EXPECT_GT(chosen, 200);
}

}  // namespace
