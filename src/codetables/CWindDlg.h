#pragma once
// The wind waves: period and height.

#include <optional>
#include <string>

#include "codetables/CWaveField.h"
#include "codetables/tables/units.h"
#include "ui/dialog.h"

class CWindDlg : public ui::OkCancelHelpDialog {
 public:
  /// As the form has them: period "05", "//", "99" or "00"; height in metres "1.5", "0.2" (less
  /// than 0.25), "//" or "00". Either may be empty.
  struct Values {
    std::string period;
    std::string height;
    bool operator==(const Values&) const = default;
  };
  /// `wind` is the true wind of the observation, for the height to compare with.
  CWindDlg(ui::Services& services, Values values, std::optional<codetables::Knot> wind);

  /// After kOk, what the observer entered; until then, what was handed in. What he left as it was
  /// is handed back to the letter.
  [[nodiscard]] const Values& values() const { return values_; }

  // What is typed first: while a box has the focus, figures go nowhere.
  ui::Label wave_group;
  CWaveField period;
  CWaveField height;
  ui::Label observation_group;
  CWaveBox period_unknown;
  CWaveBox period_confused;
  CWaveBox height_unknown;
  ui::Tick no_wind_wave;
  ui::Tick not_observed;
  ui::Label reference_group;
  ui::ReadOnly reference_height;
  ui::Picture side;

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  void period_box_changed(CWaveBox& box, CWaveBox& other);
  void nothing_to_enter_changed(const ui::Tick& ticked, ui::Tick& other);
  void apply();
  void draw();
  bool leave(CWaveField& field);

  Values values_;
  std::string probable_height_;  ///< for the wind; " -" where there is none
};
