#pragma once
// True wind direction and speed, estimated or read directly.

#include <string>

#include "ui/dialog.h"

class CTrueDirWindDlg : public ui::OkCancelHelpDialog {
 public:
  /// Direction in tens of degrees ("18", "00" calm, "99" variable, "//") and speed ("12", "//").
  CTrueDirWindDlg(ui::Services& services, std::string direction, std::string speed);

  /// After kOk, what the observer entered ("//" where a box says unknown); until then, what was
  /// handed in.
  [[nodiscard]] const std::string& direction() const { return direction_; }
  [[nodiscard]] const std::string& speed() const { return speed_; }

  // Both figures first: while a box has the focus, what is typed goes nowhere.
  ui::Edit direction_field;
  ui::Edit speed_field;
  ui::Tick direction_unknown;
  ui::Tick speed_unknown;

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  void unknown_changed(ui::Edit& field, const ui::Tick& unknown, std::string& kept);
  bool check_direction();
  bool check_speed();

  std::string direction_;
  std::string speed_;
  std::string kept_direction_;
  std::string kept_speed_;
};
