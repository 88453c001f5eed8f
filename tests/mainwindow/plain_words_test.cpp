// F2: the report in plain words above its groups, following what is typed.

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "fakes/fake_ports.h"
#include "fakes/sample_observation.h"
#include "window.h"

namespace {

using main_window::Opened;

void press_f2(Opened& opened) {
  ui::Control* const label = opened.window.pressed_by("F2");
  ASSERT_NE(label, nullptr);
  opened.window.press(*label);
}

std::string line_of(Opened& opened, std::string_view begin) {
  for (const std::string& line : opened.control("plain_words").items)
    if (line.starts_with(begin)) return line;
  return {};
}

std::string chosen(Opened& opened) {
  return opened.control("plain_words").selected_text();
}

TEST(PlainWordsPane, IsHiddenUntilF2ShowsItAndHiddenByTheNext) {
  Opened opened;
  ui::Control& words = opened.control("plain_words");
  EXPECT_FALSE(words.visible);
  EXPECT_TRUE(words.items.empty());
  press_f2(opened);
  EXPECT_TRUE(words.visible);
  EXPECT_FALSE(words.items.empty());
  EXPECT_EQ(opened.window.focused()->name, "Year");
  press_f2(opened);
  EXPECT_FALSE(words.visible);
  EXPECT_EQ(opened.window.focused()->name, "Year");
}

TEST(PlainWordsPane, FollowsWhatIsTypedBeforeTheFieldIsLeft) {
  Opened opened;
  press_f2(opened);
  ui::Control& pressure = opened.control("PPPP");
  ASSERT_TRUE(opened.window.move_focus(pressure));
  opened.window.type(pressure, "1013.2");
  EXPECT_EQ(chosen(opened), "40132  Pressure 1013.2 hPa.");
  EXPECT_EQ(opened.window.form().record().PPPP, "") << "nothing is taken by showing it";
  opened.window.type(pressure, "9");
  EXPECT_EQ(line_of(opened, "40132"), "") << "what would be refused is not in the report";
  opened.window.type(pressure, "1013.4");
  EXPECT_EQ(chosen(opened), "40134  Pressure 1013.4 hPa.");
  ASSERT_TRUE(opened.window.move_focus(opened.control("VV")));
  EXPECT_EQ(line_of(opened, "40134"), "40134  Pressure 1013.4 hPa.");
}

// The words of the value before must not pass for those of what stands in the field.
TEST(PlainWordsPane, SaysWhatIsTypedAndCannotBeTaken) {
  for (const auto& [language, told] :
       {std::pair{text::Language::kEnglish,
                  "Not taken: 9. The value before it stands in the report."},
        std::pair{text::Language::kJapanese,
                  "入力値「9」は受け付けられません。気象電報は前の値のままです。"}}) {
    Opened opened;
    opened.world.texts.language = language;
    press_f2(opened);
    ui::Control& pressure = opened.control("PPPP");
    ASSERT_TRUE(opened.window.move_focus(pressure));
    opened.window.type(pressure, "1013.2");
    const auto says = [&] {
      const auto& lines = opened.control("plain_words").items;
      return std::count_if(lines.begin(), lines.end(), [&](const std::string& line) {
        return line.find(told) != std::string::npos;
      });
    };
    EXPECT_EQ(says(), 0);
    opened.window.type(pressure, "9");
    EXPECT_EQ(says(), 1);
    opened.window.type(pressure, "");
    EXPECT_EQ(says(), 0) << "empty is a value as well";
  }
}

TEST(PlainWordsPane, FollowsAGroupThatIsTyped) {
  Opened opened;
  press_f2(opened);
  ui::Control& wind = opened.control("group_Nddff");
  ASSERT_TRUE(opened.window.move_focus(wind));
  opened.window.type(wind, "62718");
  EXPECT_EQ(chosen(opened),
            "62718  Total cloud amount: 7/10-8/10. Wind from west (270°), 18 knots (force 5).");
}

TEST(PlainWordsPane, TheLineOfWhatIsMissingIsChosenInItsField) {
  Opened opened;
  press_f2(opened);
  ASSERT_TRUE(opened.window.move_focus(opened.control("TwTwTw")));
  EXPECT_NE(chosen(opened).find("Not reported: sea surface temperature"), std::string::npos)
      << chosen(opened);
}

TEST(PlainWordsPane, SetsApartWhatIsBetterLookedAtAgain) {
  Opened opened;
  opened.type("dd", "27");
  opened.type("ff", "62");
  press_f2(opened);
  const ui::Control& words = opened.control("plain_words");
  ASSERT_EQ(words.items.size(), words.item_marked.size());
  const auto at = std::find_if(words.items.begin(), words.items.end(), [](const auto& line) {
    return line.find("Unusual: over 50 knots") != std::string::npos;
  });
  ASSERT_NE(at, words.items.end());
  EXPECT_TRUE(words.item_marked[static_cast<std::size_t>(at - words.items.begin())]);
  EXPECT_FALSE(words.item_marked.front());
}

TEST(PlainWordsPane, SpeaksTheLanguageOfTheMoment) {
  Opened opened({}, {}, true);
  press_f2(opened);
  opened.menu("Language/日本語（Japanese）");
  EXPECT_EQ(line_of(opened, "BBXX"), "BBXX  船舶の気象電報。");
}

TEST(PlainWordsPane, F6GoesToItWhereItIsShownAndF2LeadsBackToTheField) {
  Opened opened;
  const auto f6 = [&] { opened.window.press(*opened.window.pressed_by("F6")); };
  ASSERT_TRUE(opened.window.move_focus(opened.control("VV")));
  f6();
  EXPECT_NE(opened.window.focused()->name, "plain_words") << "hidden";
  opened.window.press(*opened.window.pressed_by("Shift+F6"));
  EXPECT_EQ(opened.window.focused()->name, "VV");
  press_f2(opened);
  f6();
  EXPECT_EQ(opened.window.focused()->name, "plain_words");
  opened.window.key(ui::Key::kHome);
  EXPECT_EQ(opened.control("plain_words").selected, 0);
  press_f2(opened);
  EXPECT_EQ(opened.window.focused()->name, "VV");
}

TEST(PlainWordsPane, TabPassesItBy) {
  Opened opened;
  press_f2(opened);
  for (std::size_t i = 0; i < opened.window.controls().size(); ++i) {
    opened.window.key(ui::Key::kTab);
    ASSERT_NE(opened.window.focused()->name, "plain_words");
  }
}

TEST(PlainWordsPane, TellsAWholeObservationWithItsDate) {
  fakes::World world;
  fakes::SampleMainWindow window(world.services);
  window.open();
  ASSERT_TRUE(fakes::enter_sample(window));
  window.press(*window.find("command_plain_words"));
  const auto& items = window.find("plain_words")->items;
  EXPECT_TRUE(std::any_of(items.begin(), items.end(), [](const std::string& line) {
    return line.starts_with("15124  15 November 2014, 12 UTC.");
  }));
  std::string groups;
  for (const std::string& line : items) groups += line.substr(0, line.find("  ")) + " ";
  EXPECT_EQ(groups + ".....", fakes::kSampleReport) << "each group of the report, in its order";
}

}  // namespace
