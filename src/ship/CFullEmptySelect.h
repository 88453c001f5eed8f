#pragma once
// At full load or in ballast: asked when a card of type "1" was entered without it.

#include "ship/data/ShipFixedData.h"
#include "ui/dialog.h"

class CFullEmptySelect : public ui::OkCancelDialog {
 public:
  explicit CFullEmptySelect(ui::Services& services);

  /// The choice, once the screen has closed with OK.
  [[nodiscard]] LoadingState state() const;

  ui::Label prompt;
  ui::Choice loading_state;

 protected:
  void on_ok() override;
  void on_help() override;
};
