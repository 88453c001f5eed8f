#pragma once
// Past weather W1 and W2: every weather since the last main hour is ticked.

#include <memory>
#include <vector>

#include "codetables/tables/past_weather.h"
#include "ui/dialog.h"

class CPastWeatherDlg1 : public ui::OkCancelHelpDialog {
 public:
  /// The record's codes as numbers (codetables::past_weather_number).
  CPastWeatherDlg1(ui::Services& services, int W1, int W2);
  ~CPastWeatherDlg1() override;

  /// After kOk what the ticks give. Until then, and where nothing was ticked or taken back, what
  /// was handed in, also a pair that no ticks give.
  [[nodiscard]] int W1() const { return codes_.W1; }
  [[nodiscard]] int W2() const { return codes_.W2; }

  ui::Label heading;
  ui::Label hint;
  ui::Label group;

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  /// A box and the code that it stands for.
  struct Box {
    int code;
    std::unique_ptr<ui::Tick> tick;
  };
  [[nodiscard]] std::vector<Box> make_boxes();
  void ticked(const Box& box);
  [[nodiscard]] codetables::PastWeather chosen() const;
  void show_code();

  std::vector<Box> boxes_;  ///< in reading order
  ui::ReadOnly code_;       ///< the figures that OK would store
  codetables::PastWeather codes_;
  bool touched_ = false;
};
