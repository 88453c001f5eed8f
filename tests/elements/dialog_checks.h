#pragma once
// What every refusal and question of an element screen has in common.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "fakes/fake_ports.h"
#include "text/texts.h"

namespace checks {

inline constexpr text::Language kBothLanguages[] = {text::Language::kEnglish,
                                                    text::Language::kJapanese};

/// The officer's act brings this message (or question, with an answer that is not Yes), in the
/// language of the moment; the screen stays open and as it was, with the focus on this field.
inline void refused(fakes::World& world, ui::Screen& screen, const std::function<void()>& act,
                    text::Id text_id, const ui::Control& focused,
                    const std::string& answer = "ok") {
  const std::string before = fakes::dump(screen);
  const std::size_t boxes = world.windows.boxes.size();
  world.windows.expect(text_id, answer);
  act();
  EXPECT_EQ(fakes::dump(screen), before) << text_id;
  EXPECT_FALSE(screen.result()) << text_id;
  ASSERT_EQ(world.windows.boxes.size(), boxes + 1) << text_id;
  const ui::MessageBox& box = world.windows.boxes.back();
  EXPECT_EQ(box.text, text::bilingual(text_id, world.texts.language));
  EXPECT_FALSE(box.text.empty());
  EXPECT_EQ(box.text.find("/*E*/"), std::string::npos);
  EXPECT_EQ(box.title, "KAVREL for WIN");
  EXPECT_EQ(box.buttons.size(), answer == "ok" ? 1U : 2U);
  ASSERT_NE(screen.focused(), nullptr);
  EXPECT_EQ(screen.focused()->name, focused.name) << text_id;
}

/// The act is answered Yes once and nothing more is asked.
inline void asked_and_kept(fakes::World& world, const std::function<void()>& act,
                           text::Id text_id) {
  const std::size_t boxes = world.windows.boxes.size();
  world.windows.expect(text_id, "yes");
  act();
  EXPECT_EQ(world.windows.boxes.size(), boxes + 1) << text_id;
  EXPECT_EQ(world.windows.boxes.back().text, text::bilingual(text_id, world.texts.language));
}

/// The Help button opens the topic, in the language of the moment. The world is English before and
/// Japanese afterwards.
inline void help_opens(fakes::World& world, ui::Screen& screen, ui::Control& help,
                       const std::string& topic) {
  screen.press(help);
  ASSERT_EQ(world.help_viewer.shown.size(), 1U);
  EXPECT_EQ(world.help_viewer.shown[0],
            "C:\\program\\help\\Kavrel_E.CHM::/Capter" + topic + "_E.htm");
  world.japanese();
  screen.press(help);
  ASSERT_EQ(world.help_viewer.shown.size(), 2U);
  EXPECT_EQ(world.help_viewer.shown[1],
            "C:\\program\\help\\Kavrel_J.CHM::/Capter" + topic + "_J.htm");
}

/// Every control has a caption where it needs one, in both languages, and the Help button opens the
/// topic.
inline void has_texts_and_help(fakes::World& world, ui::Screen& screen, ui::Control& help,
                               const std::string& topic) {
  for (const text::Language language : kBothLanguages) {
    world.texts.language = language;
    EXPECT_FALSE(screen.title().empty());
    for (const ui::Control* const control : screen.controls()) {
      const bool titled_by_group =
          control->kind == ui::Kind::kList || control->kind == ui::Kind::kChoice;
      EXPECT_TRUE(titled_by_group || !screen.caption(*control).empty()) << control->name;
      EXPECT_EQ(screen.caption(*control).find("/*E*/"), std::string::npos) << control->name;
    }
  }
  world.texts.language = text::Language::kEnglish;
  help_opens(world, screen, help, topic);
}

/// Each given text, English half, to the letter.
inline void english_is(text::Id text_id, const std::string& text) {
  EXPECT_EQ(text::bilingual(text_id, text::Language::kEnglish), text) << text_id;
  EXPECT_NE(text::bilingual(text_id, text::Language::kJapanese), text) << text_id;
}

}  // namespace checks
