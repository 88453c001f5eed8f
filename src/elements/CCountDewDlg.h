#pragma once
// Dry and wet bulb of the psychrometer; the dew point follows.

#include <string>

#include "elements/CTemperatureEntry.h"
#include "elements/formulas/psychrometer.h"
#include "ship/data/ShipFixedData.h"
#include "ui/dialog.h"

class CCountDewDlg : public ui::OkCancelHelpDialog {
 public:
  struct Values {
    std::string dry;  ///< degrees with one decimal ("-1.8"), or empty
    std::string wet;
    elements::WetBulbState state = elements::WetBulbState::kNotSet;
    std::string reading;  ///< barometer reading, in only; empty counts as 1013.2 hPa
    BarometerCard card;   ///< in only
  };

  CCountDewDlg(ui::Services& services, Values values);

  /// After kOk, what the observer entered; until then, what was handed in.
  [[nodiscard]] const Values& values() const { return values_; }

  CTemperatureEntry dry;
  CTemperatureEntry wet;
  ui::Choice wet_bulb_state;
  ui::Label computed_group;
  ui::ReadOnly dew_point;  ///< while typing; empty when it cannot be computed
  ui::ReadOnly humidity;

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  [[nodiscard]] elements::WetBulbState chosen_state() const;
  void choose_state(elements::WetBulbState state);
  [[nodiscard]] bool iced_but_warm() const;
  void state_changed();
  void recompute();

  Values values_;
  elements::WetBulbState state_before_;
};
