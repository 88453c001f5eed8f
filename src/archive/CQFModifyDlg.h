#pragma once
// "Correct weather reports": which of the saved reports is to be corrected.

#include <string>
#include <vector>

#include "archive/report_list.h"
#include "ui/dialog.h"

class CQFModifyDlg : public ui::OkCancelDialog {
 public:
  /// Lists the reports of the folder. With an empty folder the list is empty and OK does nothing.
  CQFModifyDlg(ui::Services& services, std::string folder);

  /// Path of the report that was chosen; empty before OK and after Cancel.
  [[nodiscard]] const std::string& chosen() const { return chosen_; }

  ui::Label heading;  ///< above the columns of the list
  ui::List reports;
  ui::ReadOnly remark;  ///< why the folder could not be read, empty when it could

 protected:
  void on_open() override;
  void on_ok() override;

 private:
  std::string folder_;
  std::vector<archive::ListedReport> listed_;
  std::string chosen_;
};
