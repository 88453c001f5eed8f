#include "mainwindow/main_menu.h"

#include <cstddef>

#include "text/ids.h"

namespace mainwindow {
namespace {

namespace id = text::id;

constexpr MenuRow kBeforeLanguage[] = {
    {0, id::kMenuFile},
    {1, id::kMenuCorrectReports, Command::kCorrectReports},
    {1, id::kMenuPrint},
    {2, id::kMenuPrintSelected, Command::kPrintSelected},
    {2, id::kMenuPrintAll, Command::kPrintAll},
    {2, id::kMenuPrintLogbook, Command::kPrintLogbook},
    {1, id::kMenuCopyReport, Command::kCopyReport},
    {1, id::kMenuCopyLogbook, Command::kCopyLogbook},
    {1, id::kMenuExit, Command::kExit},
    {0, id::kMenuSave, Command::kSave, {}, "Ctrl+S"},
    {0, id::kMenuFixedData, Command::kFixedData},
    {0, id::kMenuObservationItem, Command::kObservationItem},
    {0, id::kMenuVosClim, Command::kVosClim},
};

// The language menu of each kind of menu bar; the item of the language shown is taken out later.
constexpr MenuRow kEnglishLanguages[] = {
    {0, id::kMenuLanguage},
    {1, id::kMenuJapanese, Command::kJapanese},
    {1, id::kMenuEnglish, Command::kEnglish},
};
constexpr MenuRow kJapaneseLanguages[] = {
    {0, id::kMenuLanguage},
    {1, id::kMenuJapanese, Command::kJapanese},
    {1, id::kMenuEnglishInJapanese, Command::kEnglish},
};

constexpr MenuRow kAfterLanguage[] = {
    {0, id::kMenuHelp},
    {1, id::kMenuManual, Command::kHelpFile, "Kavrel"},
    {1, id::kMenuGuide},
    {2, id::kMenuGuideCodes, Command::kHelpFile, "WeatherCode"},
    {2, id::kMenuGuideClouds, Command::kHelpFile, "Cloud"},
    {2, id::kMenuGuideBeaufort, Command::kHelpFile, "BeaufortScale"},
    {1, id::kMenuOther},
    {2, id::kMenuOtherPmo, Command::kHelpFile, "ServicesofPMO"},
    {2, id::kMenuOtherCorrection, Command::kHelpFile, "Correction"},
    {2, id::kMenuOtherInmarsat, Command::kHelpFile, "Inmarsat"},
    {2, id::kMenuOtherVosClim, Command::kHelpFile, "VOSClim"},
    {1, id::kMenuVersion, Command::kVersion},
};

// The menus are given; what came later stands where it acts.
constexpr ShownCommand kShownCommands[] = {
    {"command_plain_words", id::kCommandPlainWords, Command::kPlainWords, "F2", true},
    {"command_curves", id::kCommandCurves, Command::kCurves, "F3", true},
    {"command_log", id::kCommandLog, Command::kLog, "F4", true},
    {"command_new_watch", id::kCommandNewWatch, Command::kNewWatch, "Ctrl+N"},
    {"command_print", id::kCommandPrint, Command::kPrintReport, "Ctrl+P"},
    {"command_copy", id::kCommandCopy, Command::kCopyText, "Ctrl+Shift+C"},
    {"command_next_part", id::kCommandNextPart, Command::kNextPart, "F6"},
    {"command_previous_part", id::kCommandPreviousPart, Command::kPreviousPart, "Shift+F6"},
};

void append(std::vector<MenuRow>& rows, std::span<const MenuRow> more, Command without) {
  for (const MenuRow& row : more) {
    if (without == Command::kNone || row.command != without) rows.push_back(row);
  }
}

// Items from row `at` on, as long as they are at this depth or deeper.
std::vector<ui::MenuItem> items_at(std::span<const MenuRow> rows, std::size_t& at, int depth,
                                   bool vosclim_ship,
                                   const std::function<void(const MenuRow&)>& run) {
  std::vector<ui::MenuItem> items;
  while (at < rows.size() && rows[at].depth == depth) {
    const MenuRow row = rows[at++];
    ui::MenuItem item;
    item.text = {row.text_id, 0};
    item.children = items_at(rows, at, depth + 1, vosclim_ship, run);
    if (row.command != Command::kNone) item.on_command = [run, row] { run(row); };
    item.shortcut = row.shortcut;
    item.enabled = row.command != Command::kVosClim || vosclim_ship;
    items.push_back(std::move(item));
  }
  return items;
}

}  // namespace

Menu menu_for(bool japanese_locale, text::Language language) {
  if (!japanese_locale) return Menu::kEnglishOnly;
  return language == text::Language::kJapanese ? Menu::kJapanese : Menu::kEnglish;
}

std::vector<MenuRow> menu_rows(Menu menu) {
  std::vector<MenuRow> rows;
  append(rows, kBeforeLanguage, Command::kNone);
  if (menu == Menu::kEnglish) append(rows, kEnglishLanguages, Command::kEnglish);
  if (menu == Menu::kJapanese) append(rows, kJapaneseLanguages, Command::kJapanese);
  append(rows, kAfterLanguage, Command::kNone);
  return rows;
}

std::span<const ShownCommand> shown_commands() {
  return kShownCommands;
}

std::vector<ui::MenuItem> build_menu(Menu menu, bool vosclim_ship,
                                     const std::function<void(const MenuRow&)>& run) {
  const std::vector<MenuRow> rows = menu_rows(menu);
  std::size_t at = 0;
  return items_at(rows, at, 0, vosclim_ship, run);
}

}  // namespace mainwindow
