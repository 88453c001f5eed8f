#pragma once
// The wind as the instruments on board show it, and the ship's movement; the true wind follows.

#include <string>

#include "elements/formulas/true_wind.h"
#include "ui/dialog.h"

class CLookWindDlg : public ui::OkCancelHelpDialog {
 public:
  CLookWindDlg(ui::Services& services, elements::ApparentWindTexts values);

  /// After kOk, what the observer entered (speeds as "%4.1f" for the ship and "%5.1f" for the wind,
  /// blanks included); until then, what was handed in. Any of them may be empty.
  [[nodiscard]] const elements::ApparentWindTexts& values() const { return values_; }

  ui::Label ship_group;
  ui::Edit heading;
  ui::Edit course;
  ui::Edit ship_speed;
  ui::Label wind_group;
  ui::Label hint;
  ui::Edit direction;
  ui::Edit speed;
  ui::Label true_group;
  ui::ReadOnly true_direction;  ///< while typing; empty while an input is missing
  ui::ReadOnly true_speed;

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  struct DegreesField {
    ui::Edit CLookWindDlg::*field;
    int lowest;
    text::Id message;
  };
  struct SpeedField {
    ui::Edit CLookWindDlg::*field;
    double largest;
    int width;
  };
  static const DegreesField kDegreesFields[];
  static const SpeedField kSpeedFields[];

  bool check(const DegreesField& row);
  bool check(const SpeedField& row);
  /// Text id of the message that refuses a speed, 0 when it is accepted.
  [[nodiscard]] static text::Id refusal(const SpeedField& row, std::string_view typed);
  [[nodiscard]] bool acceptable() const;
  [[nodiscard]] elements::ApparentWindTexts entered() const;
  void recompute();

  elements::ApparentWindTexts values_;
};
