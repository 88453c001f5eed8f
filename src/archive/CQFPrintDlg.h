#pragma once
// Shows a report as it will be printed, and prints it.

#include <memory>
#include <string>
#include <vector>

#include "archive/page_view.h"
#include "archive/report_list.h"

class CQFPrintDlg : public ui::Screen {
 public:
  /// The folder of the reports, with or without "\" at its end. Without one the list is empty and
  /// the buttons do nothing.
  CQFPrintDlg(ui::Services& services, std::string folder);

  ui::Label heading;  ///< above the columns of the list
  ui::List reports;   ///< the newest first; none is chosen when the screen opens
  archive::PageView pages;

 protected:
  void on_open() override;
  bool on_enter_or_escape(ui::Key key) override { return pages.enter(key, focused()); }

 private:
  [[nodiscard]] const archive::ListedReport* chosen() const;
  /// The chosen report as it is now; nothing when none is chosen.
  std::shared_ptr<const ui::Document> read();
  std::shared_ptr<const ui::Document> document();

  std::string folder_;
  std::vector<archive::ListedReport> listed_;
};
