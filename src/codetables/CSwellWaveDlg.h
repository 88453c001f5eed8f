#pragma once
// The swell: direction, period and height of up to two systems.

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "codetables/CWaveField.h"
#include "ui/dialog.h"

class CSwellWaveDlg : public ui::OkCancelHelpDialog {
 public:
  /// One swell as the form has it: direction "27", "99" (the first only), "//" or "00"; period
  /// "08" or "//"; height in metres "1.5", "0.2" (less than 0.25) or "//". Each may be empty.
  struct Swell {
    std::string direction;
    std::string period;
    std::string height;
    bool operator==(const Swell&) const = default;
  };
  struct Values {
    Swell first;
    Swell second;
    bool operator==(const Values&) const = default;
  };
  /// Which of both the ship observes. The other one is locked and handed back as it is.
  struct Observed {
    bool first = true;
    bool second = true;
  };
  CSwellWaveDlg(ui::Services& services, Values values, Observed observed = {true, true});

  /// After kOk, what the observer entered; until then, what was handed in. What he left as it was
  /// is handed back to the letter.
  [[nodiscard]] const Values& values() const { return values_; }

  // What is typed first: while a box has the focus, figures go nowhere.
  ui::Label observation_group;
  ui::Choice count;  ///< how many swells there are
  ui::Label rose_group;
  ui::Picture rose;
  ui::Picture side;
  ui::Label swell1_group;
  CWaveField direction1;
  CWaveField period1;
  CWaveField height1;
  ui::Label swell2_group;
  CWaveField direction2;
  CWaveField period2;
  CWaveField height2;
  ui::Label else1_group;
  CWaveBox direction1_unknown;
  CWaveBox period1_unknown;
  CWaveBox height1_unknown;
  ui::Button length1;  ///< the period from the wave length
  ui::Label else2_group;
  CWaveBox direction2_unknown;
  CWaveBox period2_unknown;
  CWaveBox height2_unknown;
  ui::Button length2;

 protected:
  void on_open() override;
  void on_ok() override;
  [[nodiscard]] bool check_can_wait(const ui::Control& from, const ui::Control& to) const override;

 private:
  enum class What { kDirection, kPeriod, kHeight };
  /// One of the six figures, with the box that can say it.
  struct Figure {
    int swell;  ///< 0 or 1
    What what;
    CWaveField& field;
    CWaveBox& box;
    std::string Swell::*member;
  };
  [[nodiscard]] Swell& swell(int number);
  [[nodiscard]] bool is_observed(int number) const;
  [[nodiscard]] std::optional<std::string> said(const Figure& figure) const;
  [[nodiscard]] std::optional<std::string> said_by_count(const Figure& figure) const;
  void box_changed(Figure& figure);
  void apply();
  void draw();
  bool leave(CWaveField& field);
  void take_period_of_length(Figure& figure);

  Values values_;
  Observed observed_;
  /// The person has said here that the first direction is unknown: no other figure is asked for.
  bool confused_ = false;
  std::array<Figure, 6> figures_;
};
