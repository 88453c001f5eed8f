#pragma once
// Chooses one of the four folders: where reports and the logbook are saved, and where they are
// copied.

#include <functional>
#include <string>
#include <string_view>

#include "archive/CDirectoryDrawList.h"
#include "archive/CDrvListBox.h"
#include "ui/dialog.h"

class CLogDiskSavePathDlg : public ui::OkCancelDialog {
 public:
  enum class Mode { kReport = 0, kLogbook = 1, kReportCopy = 2, kLogbookCopy = 3 };

  struct Folders {
    std::string current;   ///< the folder in force, shown as such; empty when there is none
    std::string proposed;  ///< selected when the screen opens; empty proposes `current`
    std::string source;    ///< copy modes: the folder copied from, refused as destination
  };
  /// Keeps a folder under a settings key (TLX, LOG, TLXC or LOGC by mode).
  using Write = std::function<void(std::string_view key, std::string_view folder)>;

  /// Folders may end in "\" or not.
  CLogDiskSavePathDlg(ui::Services& services, Mode mode, Folders folders, Write write);

  /// The folder chosen, ending in "\", after OK; empty before and after Cancel.
  [[nodiscard]] const std::string& folder() const { return folder_; }

  ui::Label prompt;
  ui::ReadOnly current;
  ui::DropDown drives;
  ui::Tree tree;
  ui::Button create_folder;
  ui::ReadOnly chosen;

 protected:
  void on_open() override;
  /// Refusals leave the screen open and write nothing: no folder chosen, a folder that is not there
  /// or cannot be looked at (a removable medium may be absent), one whose name the settings cannot
  /// keep, the source of a copy.
  void on_ok() override;

 private:
  void show_chosen();
  void drive_chosen();
  void create();
  /// Message that refuses the folder, 0 when it is taken.
  [[nodiscard]] text::Id refusal(const std::string& folder) const;
  [[nodiscard]] bool is_source(const std::string& folder) const;

  Mode mode_;
  Folders folders_;
  Write write_;
  CDrvListBox drive_list_;
  CDirectoryDrawList directory_;
  std::string folder_;
};
