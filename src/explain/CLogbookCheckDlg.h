#pragma once
// What the check of a logbook found, to be read.

#include <string>

#include "ui/dialog.h"

class CLogbookCheckDlg : public ui::OkDialog {
 public:
  /// `summary` is that of the check (explain/log/logbook_check.h).
  CLogbookCheckDlg(ui::Services& services, std::string summary);

  ui::Memo summary;
  ui::Button help;

 protected:
  void on_open() override;
};
