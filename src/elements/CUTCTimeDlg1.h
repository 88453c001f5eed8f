#pragma once
// Date and hour of the observation, UTC.

#include <string>

#include "elements/CFigureField.h"
#include "elements/formulas/observation_years.h"
#include "ui/dialog.h"

class CUTCTimeDlg1 : public ui::OkCancelHelpDialog {
 public:
  /// The record's fields Year, Month, YY and GG.
  struct Values {
    std::string Year, Month, YY, GG;
    bool operator==(const Values&) const = default;
  };

  CUTCTimeDlg1(ui::Services& services, Values values);

  /// After kOk, what the observer entered: four figures and two of each other, the hour a main or
  /// intermediate synoptic one or empty; until then, what was handed in.
  [[nodiscard]] const Values& values() const { return values_; }

  ui::Label hint;
  ui::Edit year;
  ui::Combo month;
  ui::Combo day;
  ui::Combo hour;

 protected:
  /// Empty fields are filled from the clock, read as UTC. An hour that OK would refuse has the
  /// focus.
  void on_open() override;
  /// Refuses a date that is not complete or does not exist; the screen stays open.
  void on_ok() override;

 private:
  /// True when every part is there and the date exists; else the first fault was told.
  bool complete();
  /// Text id of the message that refuses the hour shown, 0 when OK takes it.
  [[nodiscard]] text::Id hour_fault() const;

  Values values_;
  elements::Years years_;
  CFigureField year_;
  CFigureField month_;
  CFigureField day_;
  CFigureField hour_;
};
