#pragma once
// The ship's logbook as a table of observations.

#include "explain/logbook_list.h"
#include "ui/dialog.h"

class CLogbookDlg : public ui::OkDialog {
 public:
  /// So many lines are shown at first; the button shows all.
  static constexpr std::size_t kShownAtFirst = 1000;

  /// `folder` is that of the logbook, empty when none is set. Ship and items are those of this ship
  /// and outlive the dialog.
  CLogbookDlg(ui::Services& services, const std::string& folder, const ShipFixedData& ship,
              const KeyObservationItems& items);

  ui::Label heading;
  ui::List observations;
  ui::Label remark;  ///< how many lines there are, or why there is none
  ui::DropDown order;
  ui::Button open_line;  ///< the chosen line in plain words, as Enter in the list does
  ui::Button show_all;
  ui::Button check;
  ui::Button help;

 protected:
  void on_open() override;
  bool on_enter_or_escape(ui::Key key) override;

 private:
  void fill();
  void show_remark();
  void open_chosen();
  void run_check();

  explain::LogbookList list_;
  const ShipFixedData& ship_;
  bool all_ = false;
  bool no_folder_;
};
