#pragma once
// Air temperature and dew point read directly; the relative humidity follows.

#include <string>

#include "elements/CTemperatureEntry.h"
#include "ui/dialog.h"

class CTemperatureAndDewDlg : public ui::OkCancelHelpDialog {
 public:
  struct Values {
    std::string air;  ///< degrees with one decimal ("-1.8"), or empty
    std::string dew;
  };

  CTemperatureAndDewDlg(ui::Services& services, Values values);

  /// After kOk, what the observer entered; until then, what was handed in.
  [[nodiscard]] const Values& values() const { return values_; }

  CTemperatureEntry air;
  CTemperatureEntry dew;
  ui::Label computed_group;
  ui::ReadOnly humidity;  ///< while typing; empty when it cannot be computed

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  void recompute();

  Values values_;
};
