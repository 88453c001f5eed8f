#pragma once
// Sea-surface temperature and how it was measured.

#include <string>

#include "ship/data/ShipFixedData.h"
#include "ui/dialog.h"

class CSea_SurfaceTemperatureDlg : public ui::OkCancelHelpDialog {
 public:
  /// The record's fields Ss and TwTwTw.
  struct Values {
    std::string Ss, TwTwTw;
    bool operator==(const Values&) const = default;
  };

  /// The method offered is that of the observation, where it has one, else the ship's.
  CSea_SurfaceTemperatureDlg(ui::Services& services, Values values, SeaTemperatureMethod of_ship);

  /// After kOk, what the observer entered, both empty when the temperature was left empty; until
  /// then, what was handed in.
  [[nodiscard]] const Values& values() const { return values_; }

  ui::Edit temperature;  ///< degrees and tenths
  ui::Choice method;     ///< in the order of SeaTemperatureMethod, for this observation only

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  bool check();

  Values values_;
  SeaTemperatureMethod of_ship_;
  std::string opened_with_;
};
