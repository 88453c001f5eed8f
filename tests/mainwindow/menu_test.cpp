// The three menu bars.

#include "mainwindow/main_menu.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "text/ids.h"

namespace {

using mainwindow::Command;
using mainwindow::Menu;
using text::Language;

void list(const std::vector<ui::MenuItem>& items, Language language, const std::string& path,
          std::vector<std::string>& lines) {
  for (const ui::MenuItem& item : items) {
    const std::string at = path + std::string(text::resolve(item.text, language));
    if (item.children.empty()) {
      lines.push_back(at + (item.enabled ? "" : " (grey)"));
    } else {
      EXPECT_FALSE(item.on_command) << at << " is a submenu and a command";
      list(item.children, language, at + "/", lines);
    }
  }
}

std::vector<std::string> lines_of(Menu menu, Language language, bool vosclim_ship) {
  std::vector<std::string> lines;
  list(mainwindow::build_menu(menu, vosclim_ship, [](const mainwindow::MenuRow&) {}), language, "",
       lines);
  return lines;
}

const std::vector<std::string> kFileMenu = {
    "File/Correct weather reports",
    "File/Print/Selected weather report",
    "File/Print/All weather reports",
    "File/Print/Marine meteorological logbook",
    "File/Copy a weather report",
    "File/Copy the marine meteorological logbook",
    "File/Exit",
    "Save weather report",
    "Fixed data",
    "Observation item",
    " VOSClim",
};
const std::vector<std::string> kHelpMenu = {
    "Help/Software user's manual",
    "Help/Guide to ship's weather report/Explanations of code of ship's weather report",
    "Help/Guide to ship's weather report/Ostrel cloud plate",
    "Help/Guide to ship's weather report/Beaufort scale of wind force",
    "Help/Other infomation/Service of PMO (Port Meteorological Officer)",
    "Help/Other infomation/Correction of air pressure",
    "Help/Other infomation/Transmission of weather message by INMARSAT",
    "Help/Other infomation/VOSClim",
    "Help/Version information",
};

std::vector<std::string> joined(std::vector<std::string> first, const std::string& middle,
                                const std::vector<std::string>& last) {
  if (!middle.empty()) first.push_back(middle);
  first.insert(first.end(), last.begin(), last.end());
  return first;
}

TEST(MainMenu, IsChosenByLocaleAndLanguage) {
  struct Row {
    bool japanese_locale;
    Language language;
    Menu menu;
  };
  for (const Row& row : {Row{false, Language::kEnglish, Menu::kEnglishOnly},
                         Row{false, Language::kJapanese, Menu::kEnglishOnly},
                         Row{true, Language::kEnglish, Menu::kEnglish},
                         Row{true, Language::kJapanese, Menu::kJapanese}}) {
    EXPECT_EQ(row.menu, mainwindow::menu_for(row.japanese_locale, row.language))
        << row.japanese_locale << " " << static_cast<int>(row.language);
  }
}

TEST(MainMenu, HasNoLanguageMenuOnASystemThatIsNotJapanese) {
  EXPECT_EQ(joined(kFileMenu, "", kHelpMenu),
            lines_of(Menu::kEnglishOnly, Language::kEnglish, true));
}

TEST(MainMenu, OffersOnlyJapaneseWhenItIsEnglish) {
  EXPECT_EQ(joined(kFileMenu, "Language/日本語（Japanese）", kHelpMenu),
            lines_of(Menu::kEnglish, Language::kEnglish, true));
}

TEST(MainMenu, OffersOnlyEnglishWhenItIsJapanese) {
  EXPECT_EQ(joined(kFileMenu, "Language/English（英語）", kHelpMenu),
            lines_of(Menu::kJapanese, Language::kEnglish, true));
}

TEST(MainMenu, IsInJapaneseThroughout) {
  const std::vector<std::string> lines = lines_of(Menu::kJapanese, Language::kJapanese, true);
  ASSERT_EQ(21U, lines.size());
  EXPECT_EQ("ファイル/船舶気象報の訂正", lines[0]);
  EXPECT_EQ("言語/English（英語）", lines[11]);
  EXPECT_EQ("ヘルプ/バージョン情報", lines[20]);
}

TEST(MainMenu, GreysVosClimForAShipThatIsNotRegistered) {
  for (const Menu menu : {Menu::kEnglishOnly, Menu::kEnglish, Menu::kJapanese}) {
    EXPECT_EQ(" VOSClim (grey)", lines_of(menu, Language::kEnglish, false)[10]);
    EXPECT_EQ(" VOSClim", lines_of(menu, Language::kEnglish, true)[10]);
  }
}

TEST(MainMenu, SavesWithControlSAndHasNoOtherKeys) {
  for (const Menu menu : {Menu::kEnglishOnly, Menu::kEnglish, Menu::kJapanese}) {
    std::vector<std::string> keys;
    const auto collect = [&keys](const auto& self, const std::vector<ui::MenuItem>& items) -> void {
      for (const ui::MenuItem& item : items) {
        if (!item.shortcut.empty())
          keys.push_back(std::to_string(item.text.id.number) + " " + std::string(item.shortcut));
        self(self, item.children);
      }
    };
    collect(collect, mainwindow::build_menu(menu, true, [](const mainwindow::MenuRow&) {}));
    EXPECT_EQ(std::vector{std::to_string(text::id::kMenuSave.number) + " Ctrl+S"}, keys);
  }
}

TEST(MainMenu, RunsEveryCommandWithItsOwnRow) {
  std::vector<text::Id> run;
  std::vector<text::Id> expected;
  const auto press = [](const auto& self, const std::vector<ui::MenuItem>& items) -> void {
    for (const ui::MenuItem& item : items) {
      if (item.on_command) item.on_command();
      self(self, item.children);
    }
  };
  press(press, mainwindow::build_menu(Menu::kJapanese, true, [&](const mainwindow::MenuRow& row) {
          run.push_back(row.text_id);
        }));
  for (const mainwindow::MenuRow& row : mainwindow::menu_rows(Menu::kJapanese)) {
    if (row.command != Command::kNone) expected.push_back(row.text_id);
  }
  EXPECT_EQ(21U, run.size());
  EXPECT_EQ(expected, run);
}

}  // namespace
