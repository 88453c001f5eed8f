#pragma once
// The loading of a ship that is registered with VOSClim: two of the ship's fixed data, which change
// from voyage to voyage.

#include <optional>
#include <string>
#include <string_view>

#include "ship/data/ShipFixedData.h"
#include "ui/dialog.h"

class CVosClimDlg : public ui::OkCancelHelpDialog {
 public:
  /// As ShipFixedData keeps them.
  struct Values {
    std::string cargo_height;
    std::string departure;
    bool operator==(const Values&) const = default;
  };

  /// Shows the values as they are, also when OK would refuse them.
  CVosClimDlg(ui::Services& services, Values values);

  /// As accepted by OK; before that, and after Cancel, as they were handed in.
  [[nodiscard]] const Values& values() const { return accepted_; }

  ui::Label registration;
  ui::Edit cargo_height;
  ui::Edit departure;

 protected:
  void on_ok() override;

 private:
  using Kept = std::optional<std::string> (*)(std::string_view);
  bool check(ui::Edit& field, Kept kept);

  Values accepted_;
};

/// Opens the screen with what the ship has; true when OK accepted it, and then the ship has that.
[[nodiscard]] bool enter_vosclim_loading(ui::Services& services, ShipFixedData& ship);
