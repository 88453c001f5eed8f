#pragma once
// What a save found missing or wrong, and what the officer wants done about it.

#include <string>

#include "ui/screen.h"

class CSaveErrorInfoDlg : public ui::Screen {
 public:
  /// Results of the screen. The close box and Escape lead back to the form: nothing is saved that
  /// nobody asked to save.
  enum Outcome : int { kCorrect = 1, kNoSave = 2, kSaveAs = 3 };

  /// `errors` is shown as it stands, lines ended by CR LF.
  CSaveErrorInfoDlg(ui::Services& services, const std::string& errors);

  ui::Memo errors;
  ui::Button no_save;
  ui::Button save_as;
  ui::Button correct;

 protected:
  void on_open() override;
  void on_cancel() override { close(kCorrect); }
};
