#pragma once
// The ship's position at the time of observation.

#include <functional>
#include <string>

#include "elements/CFigureField.h"
#include "ui/dialog.h"

class CPositionDlg : public ui::OkCancelHelpDialog {
 public:
  /// The record's fields LaDeg, LaMin, LoDeg, LoMin and Qc.
  struct Values {
    std::string LaDeg, LaMin, LoDeg, LoMin, Qc;
    bool operator==(const Values&) const = default;
  };
  /// What was chosen on the form beside the position: 0 north or east, 1 south or west, -1 not
  /// chosen. Qc needs both sides, so one alone is known from here only.
  struct Sides {
    int latitude;
    int longitude;
  };
  /// True when a position lies on land or in a coastal region; degrees, north and east positive.
  using LandTest = std::function<bool(double latitude, double longitude)>;

  /// `last_quadrant` is Qc of the ship's last saved report, empty when there is none: its
  /// hemisphere is offered for a side that neither the record's Qc nor `chosen` knows, and a hint
  /// says where it comes from. No hemisphere is ever assumed. Without a land test no question is
  /// asked.
  CPositionDlg(ui::Services& services, Values values, std::string last_quadrant,
               LandTest is_on_land, Sides chosen = {-1, -1});

  /// After kOk, what the observer entered, in two figures (degrees of longitude in three) and a
  /// quadrant of code table 3333; until then, what was handed in.
  [[nodiscard]] const Values& values() const { return values_; }

  ui::Label last_report_hint;
  ui::Edit latitude_degrees;
  ui::Combo latitude_minutes;
  ui::Choice latitude_side;
  ui::Edit longitude_degrees;
  ui::Combo longitude_minutes;
  ui::Choice longitude_side;

 protected:
  void on_open() override;
  /// Refuses a part that is missing or out of range and a hemisphere that nobody chose; asks about
  /// a position on land. The screen then stays open.
  void on_ok() override;

 private:
  void show_hint();
  /// True when all is there and in range; else the refusal was shown.
  bool complete();
  [[nodiscard]] bool is_on_land() const;

  Values values_;
  std::string last_quadrant_;
  LandTest is_on_land_;
  Sides chosen_;
  CFigureField la_deg_;
  CFigureField la_min_;
  CFigureField lo_deg_;
  CFigureField lo_min_;
  bool latitude_offered_ = false;  ///< shows the last report's side, and nobody has chosen yet
  bool longitude_offered_ = false;
};
