#pragma once
// Shows and prints the reports of the folder one after another in one document: those that are
// ticked, or all of them when none is.

#include <memory>
#include <string>
#include <vector>

#include "archive/page_view.h"
#include "archive/report_list.h"

class CPrintAllTLXDlg : public ui::Screen {
 public:
  /// The folder of the reports, with or without "\" at its end. Without one the list is empty and
  /// the buttons do nothing.
  CPrintAllTLXDlg(ui::Services& services, std::string folder);

  ui::Label heading;  ///< above the columns of the list
  ui::List reports;   ///< the newest first; none is ticked when the screen opens
  ui::Button select_all, select_none;
  ui::Label chosen;  ///< how many reports are printed
  archive::PageView pages;

 protected:
  void on_open() override;
  bool on_enter_or_escape(ui::Key key) override { return pages.enter(key, focused()); }

 private:
  void read();
  void tick_all(bool on);
  void show_document();
  [[nodiscard]] std::shared_ptr<const ui::Document> assembled();
  std::shared_ptr<const ui::Document> document();

  std::string folder_;
  std::vector<archive::ListedReport> listed_;
  std::vector<std::string> blocks_;  ///< of each report that is listed
  std::vector<bool> shown_;          ///< what was ticked when the document was made
};
