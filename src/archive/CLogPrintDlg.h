#pragma once
// Shows and prints a logbook, record by record.

#include <memory>
#include <string>
#include <vector>

#include "archive/logbook_listing.h"
#include "archive/page_view.h"

class CLogPrintDlg : public ui::Screen {
 public:
  /// The folder of the logbook, with or without "\" at its end; empty when none is set.
  CLogPrintDlg(ui::Services& services, std::string folder);

  ui::List logbooks;  ///< their paths; none is chosen when the screen opens
  archive::PageView pages;

 protected:
  void on_open() override;
  bool on_enter_or_escape(ui::Key key) override { return pages.enter(key, focused()); }

 private:
  void chosen();
  /// Lists the chosen logbook as it is now.
  void read();
  std::shared_ptr<const ui::Document> document();
  bool broken();
  [[nodiscard]] std::string path() const { return logbooks.selected_text(); }

  std::string folder_;
  std::shared_ptr<const archive::LogbookListing> listing_;
};
