#pragma once
// The menu bar of the main window: three menus over one table of commands.

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "text/texts.h"
#include "ui/menu.h"

namespace mainwindow {

enum class Menu {
  kEnglishOnly,  ///< English, without a language menu
  kEnglish,
  kJapanese,
};

enum class Command {
  kNone,  ///< a submenu
  kCorrectReports,
  kPrintSelected,
  kPrintAll,
  kPrintLogbook,
  kCopyReport,
  kCopyLogbook,
  kExit,
  kSave,
  kFixedData,
  kObservationItem,
  kVosClim,
  kJapanese,
  kEnglish,
  kHelpFile,
  kVersion,
  // In no menu:
  kNewWatch,
  kPrintReport,
  kCopyText,
  kNextPart,
  kPreviousPart,
  kPlainWords,
  kCurves,
  kLog,
};

/// One line of the menus. Children follow their parent one depth further in.
struct MenuRow {
  int depth = 0;
  text::Id text_id;
  Command command = Command::kNone;
  std::string_view help_file = {};  ///< base name, for kHelpFile
  std::string_view shortcut = {};   ///< as in ui::MenuItem
};

/// The menu for a system whose locale is Japanese or not, in the language of the moment.
[[nodiscard]] Menu menu_for(bool japanese_locale, text::Language language);

/// All lines of a menu. The item that would select the language already shown is left out.
[[nodiscard]] std::vector<MenuRow> menu_rows(Menu menu);

/// The menu bar. `run` is called with the row of the chosen item. The VOSClim item is greyed for a
/// ship that is not registered.
[[nodiscard]] std::vector<ui::MenuItem> build_menu(Menu menu, bool vosclim_ship,
                                                   const std::function<void(const MenuRow&)>& run);

/// A command that stands in no menu: a label beside the report, which its key presses too.
struct ShownCommand {
  std::string_view name;  ///< of the label
  text::Id label;
  Command command = Command::kNone;
  std::string_view shortcut;  ///< as in ui::Control
  bool only_shows = false;    ///< as in ui::Control
};
/// In the order in which they are shown.
[[nodiscard]] std::span<const ShownCommand> shown_commands();

/// The command that opens the help file on facsimile charts; it has no item in any menu.
inline constexpr MenuRow kFaxHelp{{}, {}, Command::kHelpFile, "fax"};

}  // namespace mainwindow
