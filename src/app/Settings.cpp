#include "app/Settings.h"

#include "media/floppy_drive.h"

namespace app {

using platform::FileError;

namespace {

constexpr std::size_t kRootLength = 3;  // "C:\"

}  // namespace

bool is_japanese(const platform::Locale& locale) {
  constexpr unsigned kPrimaryLanguage = 0x3FF;
  return (locale.locale_id() & kPrimaryLanguage) == platform::kJapaneseLanguage;
}

std::string system_root(const platform::Drives& drives) {
  return drives.system_folder().substr(0, kRootLength);
}

SettingsPlaces settings_places(const std::string& root, const std::string& program_folder) {
  const std::string folder = root + "kavrel\\";
  return {folder, folder + "kavrel.ini", program_folder + "\\kavrel.ini"};
}

FileError open_settings(CIniEx& ini, platform::Files& files, const SettingsPlaces& places,
                        bool auto_save) {
  if (!files.is_file(places.live)) {
    (void)files.create_folder(places.folder);  // without it the copy fails
    if (const FileError error = files.copy(places.seed, places.live); error != FileError::kNone)
      return error;
  }
  return ini.open(places.live, {.auto_save = auto_save, .create = true, .case_insensitive = true});
}

std::optional<text::Language> language_of(std::string value, bool locale_is_japanese) {
  if (!locale_is_japanese) value = language_value(text::Language::kEnglish);
  if (value.empty()) return std::nullopt;
  return value == language_value(text::Language::kJapanese) ? text::Language::kJapanese
                                                            : text::Language::kEnglish;
}

std::string_view language_value(text::Language language) {
  return language == text::Language::kJapanese ? "JPN" : "ENG";
}

void read_folders(const CIniEx& ini, mainwindow::Folders& folders) {
  folders.logbook = ini.value(kSection, kLogbookKey);
  folders.reports = ini.value(kSection, kReportKey);
  folders.logbook_copies = ini.value(kSection, kLogbookCopyKey);
  folders.report_copies = ini.value(kSection, kReportCopyKey);
}

void find_removable_drive(Settings& settings, const platform::Drives& drives) {
  std::string& root = settings.folders.removable_root;
  if (settings.removable_letter.empty()) {
    const auto letter = media::find_floppy_drive(drives);
    if (!letter) return;
    settings.removable_letter = *letter;
  }
  root = settings.removable_letter;
  if (root.size() == 1) root += ":\\";
  if (!root.ends_with('\\')) root += '\\';
}

bool folder_accepted(const std::string& folder, const std::string& removable_root,
                     const platform::Files& files) {
  if (folder.empty()) return false;
  return files.is_folder(folder) || folder.substr(0, kRootLength) == removable_root;
}

}  // namespace app
