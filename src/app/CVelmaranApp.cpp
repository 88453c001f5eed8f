#include "app/CVelmaranApp.h"

#include "app/CAssistantClass.h"
#include "mainwindow/save_flow.h"
#include "platform/paths.h"
#include "ship/data/ship_files.h"
#include "text/ids.h"
#include "text/reasons.h"

namespace app {

using platform::FileError;
using platform::There;

namespace {

constexpr std::string_view kSeaMapFolder = "SeaMap";  // beside the program

// There is something, readable or not. Where one cannot tell, a screen must not accept itself as if
// it knew.
bool is_there(There there) {
  return there != There::kNo && there != There::kCannotTell;
}

}  // namespace

CVelmaranApp::CVelmaranApp(const Ports& ports, Dialogs dialogs)
    : messages_(texts_, ports.windows),
      help_(texts_, ports.help, CAssistantClass(ports.drives, ports.files).program_folder()),
      services_{ports.clock,   ports.locale,  ports.drives, ports.files, ports.code_page,
                ports.printer, ports.windows, texts_,       messages_,   help_},
      dialogs_(std::move(dialogs)),
      places_(settings_places(system_root(ports.drives),
                              CAssistantClass(ports.drives, ports.files).program_folder())),
      sea_map_(ports.files,
               platform::join(CAssistantClass(ports.drives, ports.files).program_folder(),
                              kSeaMapFolder)) {}

int CVelmaranApp::run() {
  if (!read_settings()) return 1;
  // Before the folders are looked at: one on a removable drive may be away.
  find_removable();
  check_folder(WorkingFolder::kReports);
  check_folder(WorkingFolder::kLogbook);
  // Before anything else is asked: what a save left half done is put in order and told first.
  settings_.folders.finished_report = mainwindow::recover_save(services_, settings_.folders);
  ask_fixed_data();
  ask_key_items();
  show_main_window();
  write_settings();
  return 0;
}

bool CVelmaranApp::read_settings() {
  settings_ = {};
  settings_.locale_is_japanese = services_.locale.is_japanese();
  settings_.system_root = system_root(services_.drives);
  CIniEx ini(services_.files);
  if (open_settings(ini, services_.files, places_, true) != FileError::kNone) return false;
  const auto language =
      language_of(ini.value(kSection, kLanguageKey), settings_.locale_is_japanese);
  if (!language) return false;
  texts_.language = *language;
  read_folders(ini, settings_.folders);
  settings_.window_place = ini.value(kSection, kPlaceKey);
  services_.moves_on = moves_on_when_full(ini);
  create_folders();
  return true;
}

void CVelmaranApp::create_folders() {
  settings_.file_folder = places_.folder + "file";
  settings_.data_folder = places_.folder + "data";
  settings_.folders.fixed_data = platform::join(settings_.file_folder, "FIXDATA.DAT");
  settings_.folders.key_items = platform::join(settings_.file_folder, "MOKSDATA.DAT");
  settings_.folders.drafts = settings_.file_folder;
  // One that cannot be created shows when something is saved into it. Creating leaves alone what is
  // there, so nothing is lost where one cannot tell.
  for (const std::string& folder : {settings_.file_folder, settings_.data_folder})
    if (!services_.files.is_folder(folder)) (void)services_.files.create_folder(folder);
}

void CVelmaranApp::find_removable() {
  find_removable_drive(settings_, services_.drives);
}

void CVelmaranApp::check_folder(WorkingFolder which) {
  std::string& folder =
      which == WorkingFolder::kReports ? settings_.folders.reports : settings_.folders.logbook;
  const FolderCheck check = check_working_folder(folder, settings_.folders.removable_root,
                                                 services_.files, services_.drives);
  if (check.state == FolderState::kUsable) return;
  if (check.state == FolderState::kUncertain && may_be_used(folder, check.why)) return;
  if (check.state == FolderState::kGone) folder.clear();
  const auto write = [this](std::string_view key, std::string_view chosen) {
    keep_folder(key, chosen);
  };
  folder = dialogs_.working_folder(services_, which, settings_.data_folder, write).value_or(folder);
}

bool CVelmaranApp::may_be_used(const std::string& folder, FileError why) {
  const std::string question =
      text::fill(texts_.get(text::id::kAskUseFolder), {folder, texts_.get(text::reason_of(why))});
  return messages_.question(question, {}, ui::QuestionMode::kYesNo, text::id::kAskUseFolder) ==
         ui::kYes;
}

void CVelmaranApp::ask_fixed_data() {
  const std::string& path = settings_.folders.fixed_data;
  const There before = services_.files.look(path).there;
  const auto answer = dialogs_.fixed_data(
      services_, {path, is_there(before), settings_.folders.reports, settings_.folders.logbook});
  ship_ = answer.values;
  const bool missing = before == There::kNo || (before == There::kCannotTell &&
                                                services_.files.look(path).there == There::kNo);
  // Nothing is said here when it cannot be written: the officer is asked again at the next start.
  if (missing && answer.confirmed)
    (void)save_fixed_data(services_.files, path, ship_, services_.clock, services_.code_page);
}

void CVelmaranApp::save_ship() {
  const std::string& path = settings_.folders.fixed_data;
  const FileError error =
      save_fixed_data(services_.files, path, ship_, services_.clock, services_.code_page);
  if (error != FileError::kNone) messages_.file_error(text::id::kFileNotSaved, path, error);
}

void CVelmaranApp::ask_key_items() {
  const std::string& path = settings_.folders.key_items;
  items_ = dialogs_.key_items(services_, path, is_there(services_.files.look(path).there)).values;
}

void CVelmaranApp::show_main_window() {
  mainwindow::MainWindowContext context{ship_, items_, settings_.folders, [this] { save_ship(); }};
  context.keep_folder = [this](std::string_view key, std::string_view folder) {
    keep_folder(key, folder);
  };
  context.sea_map = &sea_map_;
  context.place = settings_.window_place;
  context.keep_place = [this](const std::string& place) { settings_.window_place = place; };
  dialogs_.main_window(services_, context);
}

void CVelmaranApp::keep(const std::function<bool(CIniEx&)>& set) {
  CIniEx ini(services_.files);
  FileError error = open_settings(ini, services_.files, places_, false);
  if (error == FileError::kNone) error = set(ini) ? ini.save() : FileError::kBadName;
  if (error != FileError::kNone)
    messages_.file_error(text::id::kSettingsNotSaved, places_.live, error);
}

void CVelmaranApp::keep_folder(std::string_view key, std::string_view folder) {
  keep([&](CIniEx& ini) { return ini.set_value(kSection, key, folder); });
}

void CVelmaranApp::write_settings() {
  keep([this](CIniEx& ini) {
    const bool drive = ini.set_value(kSection, kRemovableDriveKey, settings_.removable_letter);
    // A front end without windows has no place to keep.
    if (!settings_.window_place.empty() &&
        !ini.set_value(kSection, kPlaceKey, settings_.window_place))
      return false;
    return ini.set_value(kSection, kLanguageKey, language_value(texts_.language)) && drive;
  });
}

}  // namespace app
