#include "archive/CShowStatusDlg.h"

#include "text/ids.h"

CShowStatusDlg::CShowStatusDlg(ui::Services& services)
    : Screen(services, "CShowStatusDlg", {text::id::kProgramTitleForNotice}),
      status(*this, "status", {text::id::kInCalculating}) {
  status.font = "MS Gothic";
  this->services().windows.show_notice(*this);
}

CShowStatusDlg::~CShowStatusDlg() {
  services().windows.hide_notice(*this);
}
