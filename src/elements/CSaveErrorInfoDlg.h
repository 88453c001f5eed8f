#pragma once
// What a save found missing or wrong, and what the officer wants done about it.

#include <string>
#include <vector>

#include "ui/screen.h"

class CSaveErrorInfoDlg : public ui::Screen {
 public:
  /// Results of the screen. The close box and Escape lead back to the form: nothing is saved that
  /// nobody asked to save.
  enum Outcome : int { kCorrect = 1, kNoSave = 2, kSaveAs = 3 };

  /// One line for each error, as it is shown.
  CSaveErrorInfoDlg(ui::Services& services, std::vector<std::string> errors_found);

  /// The error that the officer wants to correct, -1 when he chose none.
  [[nodiscard]] int chosen() const { return errors.selected; }

  ui::List errors;
  ui::Button no_save;
  ui::Button save_as;
  ui::Button correct;

 protected:
  void on_open() override;
  void on_cancel() override { close(kCorrect); }
  /// Enter in the list corrects what is chosen there.
  bool on_enter_or_escape(ui::Key key) override;
};
