#pragma once
// The last five days as curves, gone through point by point.

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "explain/curves.h"
#include "ui/dialog.h"

class CCurvesDlg : public ui::OkDialog {
 public:
  /// Opens on the observation that is being entered, else on the newest one, and on `start` where
  /// that has values. `folder` is where the search for a place for a PDF file begins, `ship` the
  /// call sign on paper.
  CCurvesDlg(ui::Services& services, explain::Days days, explain::Curve start, std::string folder,
             std::string ship);

  ui::Edit point;  ///< one point in words; the arrows lead to others
  ui::Label keys;
  ui::Picture pressure, temperature, wind, waves;
  ui::Label remark;  ///< what is not drawn; hidden where there is nothing to say
  ui::Button print;
  ui::Button save_pdf;
  ui::Button help;

  /// The point that is marked; nothing where there is none.
  [[nodiscard]] std::optional<explain::CurvePoint> chosen() const { return chosen_; }

 protected:
  void on_open() override;

 private:
  struct Shown {
    explain::Chart chart;
    ui::Picture* picture;
  };
  [[nodiscard]] std::array<Shown, explain::kCharts> shown();
  void go(ui::Key key);
  void go_to_hour(int at);
  void go_to_curve(int steps);
  void show();
  [[nodiscard]] ui::Sheets sheets() const;
  [[nodiscard]] std::string days_text() const;

  explain::Days days_;
  std::vector<int> hours_;
  std::optional<explain::CurvePoint> chosen_;
  explain::Curve start_;
  std::string folder_;
  std::string ship_;
};
