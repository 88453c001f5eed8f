// The dialog of present weather: every code opens on its place, every line gives its code.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "codetables/CNowWeatherDlg.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/texts.h"

namespace {

namespace id = text::id;

constexpr text::Language kLanguages[] = {text::Language::kEnglish, text::Language::kJapanese};

// The lists as the manual has them, typed once more: what stands where, and how the label begins.
struct Group {
  int choice;
  int group;
  int first;
  int last;
  const char* begins;
};
constexpr Group kGroups[] = {
    {0, 0, 95, 99, "  95-99  "}, {0, 1, 91, 94, "  91-94  "}, {0, 2, 85, 90, "  85-90  "},
    {0, 3, 80, 84, "  80-84  "}, {0, 4, 70, 79, "  70-79  "}, {0, 5, 60, 69, "  60-69  "},
    {0, 6, 50, 59, "  50-59  "}, {1, 0, 40, 49, "  40-49  "}, {1, 1, 30, 39, "  30-39  "},
    {1, 2, 20, 29, "  20-29  "}, {1, 3, 18, 19, "  18-19  "}, {1, 4, 17, 17, "    17     "},
    {1, 5, 13, 16, "  13-16  "}, {1, 6, 10, 12, "  10-12  "}, {1, 7, 4, 9, "  04-09  "},
    {1, 8, 0, 3, "  00-03  "},
};

const Group& group_of(int code) {
  for (const Group& group : kGroups)
    if (code >= group.first && code <= group.last) return group;
  ADD_FAILURE() << code;
  return kGroups[0];
}

std::string figures(int code) {
  return {static_cast<char>('0' + code / 10), static_cast<char>('0' + code % 10)};
}

struct Dialog {
  explicit Dialog(const std::string& ww, text::Language language = text::Language::kEnglish)
      : screen(world.services, ww) {
    world.texts.language = language;
    screen.open();
  }
  void choose(int choice, int group = -1, int line = -1) {
    screen.choose(screen.choice, choice);
    if (group >= 0) screen.choose(screen.group, group);
    if (line >= 0) screen.choose(screen.line, line);
  }
  /// OK is accepted and gives this code, which was shown before.
  void gives(const std::string& code) {
    EXPECT_EQ(screen.code.content, code);
    screen.press(screen.ok);
    EXPECT_EQ(screen.result(), ui::kOk);
    EXPECT_EQ(screen.ww(), code);
  }
  /// OK is refused with the focus on that list, and the code handed in stays.
  void refuses(const ui::Control& focused, const std::string& handed_in) {
    const std::string before = fakes::dump(screen);
    world.windows.expect(id::kPresentWeatherNoLine);
    screen.press(screen.ok);
    EXPECT_FALSE(screen.result());
    EXPECT_EQ(screen.focused(), &focused);
    EXPECT_EQ(screen.ww(), handed_in);
    EXPECT_EQ(screen.code.content, "");
    screen.press(screen.cancel);
    EXPECT_EQ(screen.ww(), handed_in);
  }
  void stands_on(int choice, int group, int line) const {
    EXPECT_EQ(screen.choice.selected, choice);
    EXPECT_EQ(screen.group.selected, group);
    EXPECT_EQ(screen.line.selected, line);
  }

  fakes::World world;
  CNowWeatherDlg screen;
};

TEST(PresentWeather, OpensEachOfTheHundredCodesOnItsGroupAndLineAndOkKeepsIt) {
  for (const text::Language language : kLanguages) {
    for (int code = 0; code <= 99; ++code) {
      SCOPED_TRACE(code);
      const Group& group = group_of(code);
      Dialog dialog(figures(code), language);
      // What was an hour ago opens on its group without a line.
      const bool hour_before = code >= 20 && code <= 29;
      dialog.stands_on(group.choice, group.group, hour_before ? -1 : code - group.first);
      if (!hour_before) {
        EXPECT_TRUE(dialog.screen.line.selected_text().starts_with("    " + figures(code) + "  "));
      }
      dialog.gives(figures(code));
    }
  }
}

TEST(PresentWeather, ShowsEveryGroupWithItsLinesInBothLanguages) {
  for (const text::Language language : kLanguages) {
    Dialog dialog("", language);
    for (const Group& group : kGroups) {
      SCOPED_TRACE(group.first);
      dialog.choose(group.choice, group.group);
      EXPECT_EQ(dialog.screen.group.items.size(), group.choice == 0 ? 7U : 9U);
      EXPECT_TRUE(dialog.screen.group.selected_text().starts_with(group.begins));
      const auto& lines = dialog.screen.line.items;
      ASSERT_EQ(lines.size(), static_cast<std::size_t>(group.last - group.first + 1));
      for (int code = group.first; code <= group.last; ++code) {
        const std::string& line = lines[static_cast<std::size_t>(code - group.first)];
        EXPECT_EQ(line, text::bilingual(text::Id{43000 + code}, language));
        EXPECT_TRUE(line.starts_with("    " + figures(code) + "      ")) << line;
      }
    }
  }
}

TEST(PresentWeather, ReadsAsItAlwaysDid) {
  Dialog dialog("");
  EXPECT_EQ(dialog.screen.title(), "Present weather");
  EXPECT_EQ(dialog.screen.choice.items,
            (std::vector<std::string>{"Precipitation at the time of observation",
                                      "No precipitation at the time of observation",
                                      "Present weather can't be observed"}));
  dialog.choose(1, 8);
  EXPECT_EQ(dialog.screen.line.items[0],
            "    00      Cloud development not observed or not observable (Characteristic change "
            "of the state of sky)");
  dialog.choose(0, 6);
  EXPECT_EQ(dialog.screen.line.items[0],
            "    50      Drizzle, intermittent, slight at the time of observation");
  dialog.choose(0, 0);
  EXPECT_EQ(dialog.screen.line.items[4],
            "    99      Thunderstorm, heavy, with hail, small hail or snow pellets");
  EXPECT_EQ(Dialog("", text::Language::kJapanese).screen.title(), "現在天気");
}

TEST(PresentWeather, GivesTheCodeOfEachLineWhateverItOpenedOn) {
  for (const text::Language language : kLanguages) {
    for (const char* const opened : {"", "//", "17", "25", "97", "00"}) {
      for (int code = 0; code <= 99; ++code) {
        SCOPED_TRACE(std::string(opened) + " to " + figures(code));
        const Group& group = group_of(code);
        Dialog dialog(opened, language);
        dialog.choose(group.choice, group.group, code - group.first);
        dialog.gives(figures(code));
      }
    }
  }
}

// By keys alone: Tab from list to list, the arrows to the group, the figures to the line. Half a
// code chooses none.
TEST(PresentWeather, IsChosenByKeysAlone) {
  for (int code = 0; code <= 99; ++code) {
    SCOPED_TRACE(code);
    const Group& group = group_of(code);
    Dialog dialog("//");
    dialog.screen.key(ui::Key::kHome);
    for (int i = 0; i < group.choice; ++i) dialog.screen.key(ui::Key::kDown);
    dialog.screen.key(ui::Key::kTab);
    ASSERT_EQ(dialog.screen.focused(), &dialog.screen.group);
    for (int i = 0; i <= group.group; ++i) dialog.screen.key(ui::Key::kDown);
    dialog.screen.key(ui::Key::kTab);
    ASSERT_EQ(dialog.screen.focused(), &dialog.screen.line);
    for (const char figure : figures(code)) dialog.screen.find_line(std::string(1, figure));
    EXPECT_EQ(dialog.screen.code.content, figures(code));
    dialog.screen.key(ui::Key::kEnter);
    EXPECT_EQ(dialog.screen.result(), ui::kOk);
    EXPECT_EQ(dialog.screen.ww(), figures(code));
  }
}

TEST(PresentWeather, FindsNoLineByHalfACode) {
  Dialog dialog("");
  dialog.choose(0, 5);
  dialog.screen.move_focus(dialog.screen.line);
  dialog.screen.find_line("6");
  EXPECT_EQ(dialog.screen.line.selected, -1);
  dialog.screen.find_line("3");
  EXPECT_EQ(dialog.screen.line.selected, 3);
}

TEST(PresentWeather, ThatCannotBeObservedIsSolidi) {
  Dialog opened("//");
  opened.stands_on(2, -1, -1);
  EXPECT_TRUE(opened.screen.group.items.empty());
  EXPECT_TRUE(opened.screen.line.items.empty());
  opened.gives("//");
  for (const char* const before : {"", "25", "63", "17"}) {
    Dialog dialog(before);
    dialog.choose(2);
    EXPECT_TRUE(dialog.screen.group.items.empty());
    EXPECT_TRUE(dialog.screen.line.items.empty());
    dialog.gives("//");
  }
}

TEST(PresentWeather, ThatIsNoCodeChoosesNothingAndOkKeepsIt) {
  for (const char* const ww : {"", "     ", "*", "/", "x", "5x", "/5", "7/", "100", "-1", "\xff"}) {
    SCOPED_TRACE(ww);
    Dialog dialog(ww);
    dialog.stands_on(-1, -1, -1);
    EXPECT_TRUE(dialog.screen.group.items.empty());
    dialog.gives(ww);
  }
}

TEST(PresentWeather, WithBlanksOrWithoutItsZeroStandsOnItsLineAndStaysAsItIs) {
  for (const char* const ww : {"5", " 5", "05 "}) {
    Dialog dialog(ww);
    dialog.stands_on(1, 7, 1);
    dialog.gives(ww);
  }
}

TEST(PresentWeather, OfTheHourBeforeIsChosenAnewOrStays) {
  Dialog chosen("25");
  EXPECT_TRUE(chosen.screen.group.selected_text().starts_with("  20-29  "));
  EXPECT_EQ(chosen.screen.line.items.size(), 10U);
  chosen.choose(1, -1, 8);
  chosen.gives("28");
}

TEST(PresentWeather, SeventeenHasOneLineWhichItsGroupChooses) {
  Dialog opened("17");
  EXPECT_EQ(opened.screen.line.items.size(), 1U);
  opened.stands_on(1, 4, 0);
  Dialog dialog("");
  dialog.choose(1, 4);
  dialog.stands_on(1, 4, 0);
  dialog.gives("17");
}

TEST(PresentWeather, FillsItsListsAnewWithEachChoiceAndGroup) {
  Dialog dialog("63");
  dialog.choose(1);
  dialog.stands_on(1, -1, -1);
  EXPECT_EQ(dialog.screen.group.items.size(), 9U);
  EXPECT_TRUE(dialog.screen.line.items.empty());
  dialog.choose(1, 0);
  EXPECT_EQ(dialog.screen.line.items.size(), 10U);
  EXPECT_EQ(dialog.screen.code.content, "");
  // Back where it began, the code is there again.
  dialog.choose(0);
  dialog.stands_on(0, 5, 3);
  dialog.choose(0, 0);
  dialog.stands_on(0, 0, -1);
  EXPECT_EQ(dialog.screen.line.items.size(), 5U);
  dialog.choose(0, 5);
  dialog.stands_on(0, 5, 3);
  dialog.gives("63");
}

// A choice that was begun is neither dropped nor guessed at.
TEST(PresentWeather, AsksForTheGroupAndTheLineOfAChoiceThatWasBegun) {
  for (const text::Language language : kLanguages) {
    for (const char* const ww : {"", "//", "17", "25", "63"}) {
      for (const Group& group : kGroups) {
        SCOPED_TRACE(std::string(ww) + " to " + figures(group.first));
        const bool is_its_own = ww == std::string("25")
                                    ? group.first == 20
                                    : ww == std::string("63") && group.first == 60;
        if (group.first == group.last || is_its_own) continue;
        Dialog dialog(ww, language);
        dialog.choose(group.choice, group.group);
        dialog.refuses(dialog.screen.line, ww);
      }
    }
    for (const auto& [ww, other] : {std::pair{"", 0}, {"", 1}, {"//", 1}, {"25", 0}, {"63", 1}}) {
      Dialog dialog(ww, language);
      dialog.choose(other);
      dialog.refuses(dialog.screen.group, ww);
    }
  }
}

TEST(PresentWeather, ChangesNothingUnlessItIsConfirmed) {
  for (int way = 0; way < 3; ++way) {
    Dialog dialog("63");
    dialog.choose(1, 4);
    if (way == 0) dialog.screen.press(dialog.screen.cancel);
    if (way == 1) dialog.screen.key(ui::Key::kEscape);
    if (way == 2) dialog.screen.close_box();
    EXPECT_EQ(dialog.screen.result(), ui::kCancel);
    EXPECT_EQ(dialog.screen.ww(), "63");
  }
}

TEST(PresentWeather, OpensItsHelpTopicAndGoesOn) {
  Dialog dialog("63");
  dialog.choose(0, 0, 4);
  dialog.screen.press(dialog.screen.help);
  dialog.world.japanese();
  dialog.screen.key(ui::Key::kF1);
  EXPECT_EQ(dialog.world.help_viewer.shown,
            (std::vector<std::string>{"C:\\program\\help\\Kavrel_E.CHM::/Capter11-13_E.htm",
                                      "C:\\program\\help\\Kavrel_J.CHM::/Capter11-13_J.htm"}));
  dialog.gives("99");
}

}  // namespace
