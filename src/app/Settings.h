#pragma once
// The application's settings and the file that keeps some of them.
//
// The live file is kavrel\kavrel.ini beneath the system root; a copy that lies beside the program
// is its seed. One section, "KAVREL": LANG ("JPN" or "ENG"), TLX and LOG (folders of reports and
// logbook), TLXC and LOGC (folders of their copies), FD (letter of the removable drive, written
// only), WINDOW (where the main window stood last, ui/window_place.h), MOVEON ("OFF": a full field
// waits for Tab; the program never writes it).

#include <optional>
#include <string>
#include <string_view>

#include "app/CIniEx.h"
#include "mainwindow/context.h"
#include "platform/ports.h"
#include "text/texts.h"

namespace app {

inline constexpr std::string_view kSection = "KAVREL";
inline constexpr std::string_view kLanguageKey = "LANG";
inline constexpr std::string_view kReportKey = "TLX";
inline constexpr std::string_view kLogbookKey = "LOG";
inline constexpr std::string_view kReportCopyKey = "TLXC";
inline constexpr std::string_view kLogbookCopyKey = "LOGC";
inline constexpr std::string_view kRemovableDriveKey = "FD";
inline constexpr std::string_view kPlaceKey = "WINDOW";
inline constexpr std::string_view kMoveOnKey = "MOVEON";

struct Settings {
  bool locale_is_japanese = false;
  std::string system_root;       ///< "C:\"
  std::string file_folder;       ///< system root + "kavrel\file"
  std::string data_folder;       ///< system root + "kavrel\data"
  std::string removable_letter;  ///< "A", or empty without a floppy-type drive
  std::string window_place;      ///< of the main window; empty when it is not known
  mainwindow::Folders folders;
};

/// First three characters of the operating system's folder.
[[nodiscard]] std::string system_root(const platform::Drives& drives);

/// Where the live file and its seed are.
struct SettingsPlaces {
  std::string folder;  ///< "C:\kavrel\"
  std::string live;
  std::string seed;
};
/// `program_folder` has no final "\".
[[nodiscard]] SettingsPlaces settings_places(const std::string& root,
                                             const std::string& program_folder);

/// Opens the live file, seeding it first when it is missing. An error, and nothing is changed, when
/// there is neither, when it cannot be read, or when one cannot tell whether it is there.
[[nodiscard]] platform::FileError open_settings(CIniEx& ini, platform::Files& files,
                                                const SettingsPlaces& places, bool auto_save);

/// Language for the value of LANG, which counts as "ENG" on a system that is not Japanese; nothing
/// when it is empty then. Only "JPN" in capitals is Japanese.
[[nodiscard]] std::optional<text::Language> language_of(std::string value, bool locale_is_japanese);
[[nodiscard]] std::string_view language_value(text::Language language);

/// True, also for a file that does not say, unless the value of MOVEON is "OFF" in any case, with
/// blanks around it or without.
[[nodiscard]] bool moves_on_when_full(const CIniEx& ini);

/// Takes the four folders from the file.
void read_folders(const CIniEx& ini, mainwindow::Folders& folders);

/// Sets letter and root from the first floppy-type drive. A letter that is set already gives the
/// root: a lone letter gets ":\", and a "\" is added unless it ends in one.
void find_removable_drive(Settings& settings, const platform::Drives& drives);

/// What start-up knows of a working folder.
enum class FolderState {
  kUsable,     ///< it is there, or lies on the removable drive, whose medium may not be in yet
  kGone,       ///< never chosen, no such folder, or its drive is not there
  kUncertain,  ///< one cannot tell, so it is neither given up nor asked for anew
};
struct FolderCheck {
  FolderState state = FolderState::kUsable;
  platform::FileError why = platform::FileError::kNone;  ///< of kUncertain
};
[[nodiscard]] FolderCheck check_working_folder(const std::string& folder,
                                               const std::string& removable_root,
                                               const platform::Files& files,
                                               const platform::Drives& drives);

}  // namespace app
