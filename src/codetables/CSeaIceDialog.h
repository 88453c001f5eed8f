#pragma once
// Ice accretion on the ship: its kind (code table 1751), its thickness, its speed (3551).

#include <string>

#include "ui/dialog.h"

class CSeaIceDialog : public ui::OkCancelHelpDialog {
 public:
  struct Values {
    std::string Is;
    std::string EsEs;  ///< centimetres, two figures or "//"
    std::string Rs;
  };
  /// The record's figures. Those of a code that its table does not have choose no line.
  CSeaIceDialog(ui::Services& services, Values values);

  /// After kOk, the new figures; until then, what was handed in. A code without a choice, and a
  /// thickness that was left as it was shown, stays as it was, whatever it is; a thickness that was
  /// wiped out is empty.
  [[nodiscard]] const Values& values() const { return values_; }

  ui::Label kind_group;
  ui::Choice kind;
  ui::Combo thickness;
  ui::Label rate_heading;
  ui::Label rate_group;
  ui::Choice rate;

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  bool check_thickness();

  Values values_;
  std::string opened_with_;  ///< thickness
};
