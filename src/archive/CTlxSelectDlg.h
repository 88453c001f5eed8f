#pragma once
// Chooses reports from a list.

#include <string>
#include <vector>

#include "archive/report_list.h"
#include "ui/dialog.h"

class CTlxSelectDlg : public ui::OkCancelHelpDialog {
 public:
  CTlxSelectDlg(ui::Services& services, std::vector<archive::ListedReport> listed);

  /// Those chosen, in the order of the list, after OK; empty before and after Cancel.
  [[nodiscard]] const std::vector<archive::ListedReport>& chosen_reports() const { return chosen_; }

  ui::Label heading;  ///< above the columns of the list
  ui::List reports;   ///< all are ticked when the screen opens
  ui::Button select_all, select_none;
  ui::ReadOnly count;  ///< how many are ticked

 protected:
  void on_open() override;
  /// Refused while none is ticked.
  void on_ok() override;

 private:
  void tick_all(bool on);
  void show_count();

  std::vector<archive::ListedReport> listed_;
  std::vector<archive::ListedReport> chosen_;
};
