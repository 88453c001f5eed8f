#pragma once
// A temperature as two fields, whole degrees and tenths. The temperature screens have two each.

#include <functional>
#include <string>
#include <string_view>

#include "ui/screen.h"

class CTemperatureEntry {
 public:
  /// Names, captions and the two questions of one temperature.
  struct Texts {
    std::string_view group_name;
    std::string_view whole_name;
    std::string_view tenths_name;
    text::Id group_label;
    text::Id whole_label;
    text::Id high_question;  ///< above 40 degrees
    text::Id low_question;   ///< below -25 degrees
  };

  CTemperatureEntry(ui::Screen& owner, ui::Services& services, const Texts& texts);

  ui::Label group;
  ui::Edit whole;
  ui::Combo tenths;

  /// After each typed character, and when the tenths were filled in.
  std::function<void()> on_change;

  /// Splits a text such as "-1.8" at its point. Call in on_open(). Solidi are shown as nothing, and
  /// are what text() gives back while nothing is entered.
  void set(std::string_view text);
  /// Whole + "." + tenths, tenths "0" when empty; empty without whole degrees.
  [[nodiscard]] std::string text() const;
  [[nodiscard]] bool empty() const { return joined().empty(); }
  [[nodiscard]] double value() const;
  /// True when both fields hold what a temperature is written with (or nothing).
  [[nodiscard]] bool well_formed() const;

  /// The checks of both fields, for OK, which also refuses tenths that were typed without whole
  /// degrees. Returns the field that was refused, after its message, or
  /// nullptr. A value that the officer has confirmed is not asked about again.
  [[nodiscard]] ui::Control* check();

 private:
  [[nodiscard]] std::string joined() const;
  bool check_whole();
  bool check_tenths();

  ui::Screen& owner_;
  ui::Services& services_;
  Texts texts_;
  std::string confirmed_;
  bool tenths_typed_ = false;
  std::string not_observed_;  ///< "///" that the entry was opened with
};
