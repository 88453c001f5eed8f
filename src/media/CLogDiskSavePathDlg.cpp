#include "media/CLogDiskSavePathDlg.h"

#include <utility>

#include "archive/CCreateDir.h"
#include "archive/names.h"
#include "media/removable_disk.h"
#include "platform/paths.h"
#include "text/ids.h"

namespace id = text::id;
using platform::FileError;
using platform::There;

namespace {

struct ModeRow {
  std::string_view key;
  text::Id title;
  text::Id prompt;
  text::Id current;
  bool is_copy;
};

constexpr ModeRow kModes[] = {
    {"TLX", id::kReportFolderTitle, id::kReportFolderPrompt, id::kReportFolderCurrent, false},
    {"LOG", id::kLogbookFolderTitle, id::kLogbookFolderPrompt, id::kLogbookFolderCurrent, false},
    {"TLXC", id::kReportCopyTitle, id::kReportCopyPrompt, id::kReportCopyCurrent, true},
    {"LOGC", id::kLogbookCopyTitle, id::kLogbookCopyPrompt, id::kLogbookCopyCurrent, true},
};

const ModeRow& row_of(CLogDiskSavePathDlg::Mode mode) {
  return kModes[static_cast<std::size_t>(mode)];
}

}  // namespace

CLogDiskSavePathDlg::CLogDiskSavePathDlg(ui::Services& services, Mode mode, Folders folders,
                                         Write write)
    : OkCancelDialog(services, "CLogDiskSavePathDlg", {row_of(mode).title}),
      prompt(*this, "prompt", {row_of(mode).prompt}),
      current(*this, "current", {row_of(mode).current}),
      drives(*this, "drives", {id::kDriveList}),
      tree(*this, "tree", {id::kFolderTree}),
      create_folder(*this, "create_folder", {id::kCreateFolder}),
      chosen(*this, "chosen", {id::kChosenFolder}),
      mode_(mode),
      folders_(std::move(folders)),
      write_(std::move(write)),
      drive_list_(drives, services.drives),
      directory_(tree, services.files, services.drives, services.texts) {
  drives.on_change = [this] { drive_chosen(); };
  tree.on_change = [this] { show_chosen(); };
  create_folder.on_press = [this] { create(); };
  directory_.on_unreadable = [this](const std::string& path, FileError why) {
    this->services().messages.file_error(id::kFolderNotReadable, path, why);
  };
}

void CLogDiskSavePathDlg::on_open() {
  current.content = folders_.current;
  drive_list_.fill();
  directory_.fill();
  const std::string& wanted = folders_.proposed.empty() ? folders_.current : folders_.proposed;
  directory_.reveal(wanted);
  show_chosen();
  focus(tree);
}

void CLogDiskSavePathDlg::show_chosen() {
  chosen.content = platform::with_backslash(directory_.folder());
  drive_list_.select(chosen.content);
}

void CLogDiskSavePathDlg::drive_chosen() {
  if (!directory_.reveal(drive_list_.root())) return;
  directory_.open_selected();
  show_chosen();
}

void CLogDiskSavePathDlg::create() {
  const std::string parent = directory_.folder();
  if (parent.empty()) {
    refuse(tree, id::kNoFolderChosen);
    return;
  }
  CCreateDir dialog(services(), parent);
  if (services().windows.run_modal(dialog) != ui::kOk) return;
  directory_.read_again(parent);
  directory_.reveal(dialog.path());
  show_chosen();
  focus(tree);
}

void CLogDiskSavePathDlg::on_ok() {
  std::string folder = platform::with_backslash(directory_.folder());
  if (const text::Id message = refusal(folder); message) {
    refuse(tree, message);
    return;
  }
  const platform::Look found = services().files.look(folder);
  // A removable drive is taken without its disk, which may be put in later.
  if (found.there != There::kFolder && !media::is_on_removable_drive(services().drives, folder)) {
    if (found.there != There::kCannotTell) {
      refuse(tree, id::kFolderGone);
      return;
    }
    const Speaking of(*this, tree);
    services().messages.file_error(id::kFolderUncertain, folder, platform::why_no_file(found));
    focus(tree);
    return;
  }
  folder_ = std::move(folder);
  if (write_) write_(row_of(mode_).key, folder_);
  close(ui::kOk);
}

text::Id CLogDiskSavePathDlg::refusal(const std::string& folder) const {
  if (folder.empty()) return id::kNoFolderChosen;
  if (row_of(mode_).is_copy && is_source(folder)) return id::kChooseAnotherFolder;
  // The settings file takes what follows a ";" for a comment, so the name would come back cut.
  if (folder.find(';') != std::string::npos) return id::kBadFolderName;
  return {};
}

bool CLogDiskSavePathDlg::is_source(const std::string& folder) const {
  const std::string source = platform::with_backslash(folders_.source);
  return !source.empty() &&
         // The names as well: without the disk nobody can tell whether both are one folder.
         (archive::equal_ignoring_case(folder, source) || services().files.same(folder, source));
}
