#pragma once
// The ship's course and speed made good during the three hours before the observation.

#include <string>

#include "ui/dialog.h"

class CDvDsDlg : public ui::OkCancelHelpDialog {
 public:
  /// The record's fields Ds (code table 0700) and Vs (code table 4451).
  struct Values {
    std::string Ds, Vs;
    bool operator==(const Values&) const = default;
  };

  CDvDsDlg(ui::Services& services, Values values);

  /// After kOk, the codes chosen; a group without a choice keeps what was handed in.
  [[nodiscard]] const Values& values() const { return values_; }

  ui::Choice course;
  ui::Choice speed;

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  Values values_;
};
