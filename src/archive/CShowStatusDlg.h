#pragma once
// A notice on the screen while something longer runs.

#include "text/ids.h"
#include "ui/screen.h"

class CShowStatusDlg : public ui::Screen {
 public:
  /// Shown from here until the object is gone.
  explicit CShowStatusDlg(ui::Services& services, text::Id text_id = text::id::kInCalculating);
  ~CShowStatusDlg() override;
  CShowStatusDlg(const CShowStatusDlg&) = delete;
  CShowStatusDlg& operator=(const CShowStatusDlg&) = delete;

  ui::Label status;
};
