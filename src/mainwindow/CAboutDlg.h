#pragma once
// The about box: name and version of the program, what it reckons by, and what it is made with.

#include "ui/dialog.h"

namespace mainwindow {

class CAboutDlg : public ui::OkDialog {
 public:
  explicit CAboutDlg(ui::Services& services);

  ui::Picture icon;
  ui::Label program;
  ui::Memo sources;

 protected:
  void on_open() override { focus(ok); }
};

}  // namespace mainwindow
