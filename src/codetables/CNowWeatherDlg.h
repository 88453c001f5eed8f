#pragma once
// Present weather ww: is there precipitation, which group of codes, which line of it.

#include <string>

#include "codetables/tables/present_weather.h"
#include "ui/dialog.h"

class CNowWeatherDlg : public ui::OkCancelHelpDialog {
 public:
  /// The record's code; a text that is none chooses nothing.
  CNowWeatherDlg(ui::Services& services, std::string ww);

  /// After kOk the chosen code. Until then, and where nothing was chosen, what was handed in.
  [[nodiscard]] const std::string& ww() const { return ww_; }

  ui::Choice choice;
  ui::Label group_title;
  ui::List group;
  ui::Label line_title;
  ui::List line;
  ui::ReadOnly code;  ///< the code that OK would store

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  [[nodiscard]] codetables::PresentWeatherPlace chosen() const;
  [[nodiscard]] std::string chosen_code() const;
  void choice_changed();
  void group_changed();
  void fill_groups();
  void fill_lines();
  void show_code();

  std::string ww_;
  codetables::PresentWeatherPlace opened_;  ///< where the code handed in stands
};
