#pragma once
// Relative humidity read directly from a hygrometer.

#include <string>

#include "ui/dialog.h"

class CThumidityDlg : public ui::OkCancelHelpDialog {
 public:
  /// `unit` is the ship's: 1.0 percent, or 0.1.
  CThumidityDlg(ui::Services& services, std::string humidity, double unit);

  /// After kOk, the humidity ("%02d" in whole percent, "%04.1f" in tenths, or empty); until then,
  /// what was handed in.
  [[nodiscard]] const std::string& humidity() const { return humidity_; }

  ui::Edit value;

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  bool check();

  std::string humidity_;
  bool whole_percent_;
};
