#pragma once
// Which of the two kinds of barometer correction card the ship has.

#include "ship/data/ShipFixedData.h"
#include "ui/dialog.h"

class CKataSelectDlg : public ui::OkCancelDialog {
 public:
  CKataSelectDlg(ui::Services& services, CardType current);

  /// The choice, once the screen has closed with OK.
  [[nodiscard]] CardType type() const;

  ui::Label prompt;
  ui::Choice card_type;

 protected:
  void on_ok() override;
  void on_help() override;
};
