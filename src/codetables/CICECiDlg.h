#pragma once
// Concentration or arrangement of sea ice (ci, code table 0639): two questions narrow the lines.

#include <string>

#include "ui/dialog.h"

class CICECiDlg : public ui::OkCancelHelpDialog {
 public:
  /// The record's figure. Where the table does not have it, nothing is answered yet.
  CICECiDlg(ui::Services& services, std::string ci);

  /// After kOk, the new figure; until then, and without a choice, what was handed in.
  [[nodiscard]] const std::string& ci() const { return ci_; }

  ui::Choice place;    ///< beyond 0.5 nautical mile of the ice edge, or within
  ui::Choice uniform;  ///< is the concentration uniform? Within only
  ui::Label list_group;
  ui::Choice concentration;  ///< the lines that the answers leave; none before they are given
  ui::Picture drawing;       ///< of the code that OK would leave

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  void answered();
  void fill_list();
  void show_drawing();
  [[nodiscard]] std::string code() const;

  std::string ci_;
  std::string last_chosen_;  ///< its line is chosen wherever the list has it; empty: none yet
};
