#include "app/Settings.h"

#include <algorithm>

#include "media/floppy_drive.h"
#include "platform/paths.h"
#include "text/strings.h"

namespace app {

using platform::FileError;
using platform::There;

namespace {

constexpr std::size_t kRootLength = 3;  // "C:\"

// A path without a drive lies on the current one.
bool drive_is_there(const std::string& path, const platform::Drives& drives) {
  if (path.size() < 2 || path[1] != ':') return true;
  const char given = path.front();
  const char letter = given >= 'a' && given <= 'z' ? static_cast<char>(given - 'a' + 'A') : given;
  const auto all = drives.drives();
  return std::any_of(all.begin(), all.end(),
                     [&](const platform::Drive& each) { return each.letter == letter; }) &&
         drives.medium_present(letter);
}

}  // namespace

std::string system_root(const platform::Drives& drives) {
  return drives.system_folder().substr(0, kRootLength);
}

SettingsPlaces settings_places(const std::string& root, const std::string& program_folder) {
  const std::string folder = platform::with_backslash(platform::join(root, "kavrel"));
  return {folder, platform::join(folder, "kavrel.ini"),
          platform::join(program_folder, "kavrel.ini")};
}

FileError open_settings(CIniEx& ini, platform::Files& files, const SettingsPlaces& places,
                        bool auto_save) {
  const platform::Look live = files.look(places.live);
  if (live.there == There::kNo) {
    (void)files.create_folder(places.folder);  // without it the copy fails
    if (const FileError error = files.copy(places.seed, places.live); error != FileError::kNone)
      return error;
  } else if (const FileError error = platform::why_no_file(live); error != FileError::kNone) {
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

bool moves_on_when_full(const CIniEx& ini) {
  const std::string value = ini.value(kSection, kMoveOnKey);
  const std::string_view written = text::trim(value);
  static constexpr std::string_view kOff = "OFF";
  return !std::equal(written.begin(), written.end(), kOff.begin(), kOff.end(), [](char a, char b) {
    return (a >= 'a' && a <= 'z' ? static_cast<char>(a - 'a' + 'A') : a) == b;
  });
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
  if (root.size() == 1) root += ':';
  root = platform::with_backslash(root);
}

FolderCheck check_working_folder(const std::string& folder, const std::string& removable_root,
                                 const platform::Files& files, const platform::Drives& drives) {
  if (folder.empty()) return {FolderState::kGone};
  const platform::Look found = files.look(folder);
  // On the removable drive the disk may only not be in yet.
  if (found.there == There::kFolder || folder.substr(0, kRootLength) == removable_root)
    return {FolderState::kUsable};
  // A name that no folder can have and a drive that has gone are answers, too.
  if (found.there != There::kCannotTell || found.error == FileError::kBadName ||
      (found.error == FileError::kMediumMissing && !drive_is_there(folder, drives)))
    return {FolderState::kGone};
  return {FolderState::kUncertain, platform::why_no_file(found)};
}

}  // namespace app
