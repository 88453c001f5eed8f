#include "archive/CShowStatusDlg.h"

CShowStatusDlg::CShowStatusDlg(ui::Services& services, text::Id text_id)
    : Screen(services, "CShowStatusDlg", {text::id::kProgramTitleForNotice}),
      status(*this, "status", {text_id}) {
  status.font = "MS Gothic";
  this->services().windows.show_notice(*this);
}

CShowStatusDlg::~CShowStatusDlg() {
  services().windows.hide_notice(*this);
}
