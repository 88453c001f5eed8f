#pragma once
// The pressure tendency over three hours: characteristic and amount.

#include <string>

#include "codetables/tables/pressure_tendency.h"
#include "ui/dialog.h"

class CPresureTendencyDlg : public ui::OkCancelHelpDialog {
 public:
  /// The record's figures: a ("0"-"8", "/" or empty) and ppp ("052" is 5.2 hPa).
  CPresureTendencyDlg(ui::Services& services, std::string a, std::string ppp);

  /// After kOk, the new figures; until then, what was handed in.
  [[nodiscard]] const std::string& a() const { return a_; }
  [[nodiscard]] const std::string& ppp() const { return ppp_; }

  ui::Label choice;  ///< repeats the first list's choice
  ui::Label kind_group;
  ui::List kind;
  ui::Label characteristic_group;
  ui::List characteristic;
  ui::Picture curves;  ///< of the characteristics listed; a click on one chooses it
  ui::Edit amount;
  ui::ReadOnly code;  ///< the characteristic that OK would store

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  [[nodiscard]] codetables::TendencyKind chosen_kind() const;
  [[nodiscard]] std::string chosen_code() const;
  void fill_characteristics();
  void kind_changed();
  void show_chosen();
  void choose_curve(ui::Point place);
  bool leave_amount();
  bool check_amount(const std::string& characteristic_code, const std::string& typed);

  std::string a_;
  std::string ppp_;
  std::string confirmed_;  ///< amount that the officer has said Yes to; asked about once
};
