#pragma once
// What the tests of the wave dialogs share.

#include <gtest/gtest.h>

#include <string>

#include "fakes/fake_ports.h"
#include "text/texts.h"

namespace wave_checks {

inline constexpr text::Language kBothLanguages[] = {text::Language::kEnglish,
                                                    text::Language::kJapanese};

/// A message as the person must see it, in one language.
struct Notice {
  text::Id id;
  std::string title;
  std::string text;
};

/// The act brings the message once and leaves the screen open and as it was, the focus on `focused`.
template <class Act>
void refused(fakes::World& world, ui::Screen& screen, const ui::Control& focused,
             const Notice& notice, Act act) {
  const std::string before = fakes::dump(screen);
  const std::size_t boxes = world.windows.boxes.size();
  world.windows.expect(notice.id);
  act();
  ASSERT_EQ(world.windows.boxes.size(), boxes + 1) << notice.text;
  EXPECT_EQ(world.windows.boxes.back().title, notice.title);
  EXPECT_EQ(world.windows.boxes.back().text, notice.text);
  EXPECT_EQ(fakes::dump(screen), before) << notice.text;
  EXPECT_EQ(screen.focused(), &focused) << screen.focused()->name;
  EXPECT_FALSE(screen.result());
}

}  // namespace wave_checks
