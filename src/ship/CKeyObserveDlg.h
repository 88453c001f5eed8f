#pragma once
// Which of the visually observed elements the ship reports; kept in MOKSDATA.DAT.

#include <deque>
#include <optional>
#include <string>

#include "ship/data/KeyObservationItems.h"
#include "ship/data/ship_files.h"
#include "ui/dialog.h"

class CKeyObserveDlg : public ui::OkCancelHelpDialog {
 public:
  /// `path` is that of MOKSDATA.DAT. With `auto_accept` the screen closes at once with OK when the
  /// file was read or there is none; one of a wrong size or unreadable is shown with the defaults.
  ///
  /// Once the program runs, `in_force` are the switches it works with, and those are shown whatever
  /// the file holds: it may not have been written.
  CKeyObserveDlg(ui::Services& services, std::string path, bool auto_accept,
                 std::optional<KeyObservationItems> in_force = std::nullopt);

  /// The switches as accepted by OK; before that, and after Cancel, as they were shown first.
  [[nodiscard]] KeyObservationItems values() const { return accepted_; }
  [[nodiscard]] FileRead file_read() const { return file_read_; }

  ui::Label prompt;
  std::deque<ui::Choice> items;  ///< one for each switch, in their order

 protected:
  void on_open() override;
  /// Writes the file. When it cannot be written the officer is told; the switches hold for this
  /// run.
  void on_ok() override;

 private:
  [[nodiscard]] static std::deque<ui::Choice> choices(ui::Screen& owner);

  std::string path_;
  bool auto_accept_;
  std::optional<KeyObservationItems> in_force_;
  FileRead file_read_ = FileRead::kMissing;
  KeyObservationItems accepted_;
};
