#pragma once
// The period of a swell from the length between its crests, which is easier to see against the
// ship's own length than a period is to count.

#include <string>

#include "ui/dialog.h"

class CWaveLengthDlg : public ui::OkCancelHelpDialog {
 public:
  explicit CWaveLengthDlg(ui::Services& services);

  /// Whole seconds in two figures, after kOk; else empty.
  [[nodiscard]] const std::string& period() const { return accepted_; }

  ui::Edit length;            ///< metres
  ui::ReadOnly period_shown;  ///< follows what is typed

 protected:
  void on_ok() override;

 private:
  bool check();

  std::string accepted_;
};
