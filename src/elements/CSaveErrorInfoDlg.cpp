#include "elements/CSaveErrorInfoDlg.h"

#include <utility>

#include "text/ids.h"

namespace id = text::id;

CSaveErrorInfoDlg::CSaveErrorInfoDlg(ui::Services& services, std::vector<std::string> errors_found)
    : Screen(services, "CSaveErrorInfoDlg", {id::kSaveErrorTitle}),
      errors(*this, "errors"),
      no_save(*this, "no_save", {id::kSaveErrorNoSave}),
      save_as(*this, "save_as", {id::kSaveErrorSaveAs}),
      correct(*this, "correct", {id::kSaveErrorCorrect}) {
  errors.items = std::move(errors_found);
  errors.on_press = [this] { close(kCorrect); };
  no_save.on_press = [this] { close(kNoSave); };
  save_as.on_press = [this] { close(kSaveAs); };
  correct.on_press = [this] { close(kCorrect); };
}

// Enter then leads back to the form, too.
void CSaveErrorInfoDlg::on_open() {
  focus(correct);
}

bool CSaveErrorInfoDlg::on_enter_or_escape(ui::Key key) {
  if (key != ui::Key::kEnter || focused() != &errors) return false;
  close(kCorrect);
  return true;
}
