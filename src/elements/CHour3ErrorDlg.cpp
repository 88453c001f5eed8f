#include "elements/CHour3ErrorDlg.h"

#include "text/ids.h"

namespace id = text::id;

CHour3ErrorDlg::CHour3ErrorDlg(ui::Services& services, const std::string& warnings_found)
    : OkDialog(services, "CHour3ErrorDlg", {id::kPositionWarningTitle}),
      warnings(*this, "warnings") {
  warnings.set(warnings_found);
}

void CHour3ErrorDlg::show(ui::Services& services, const std::string& warnings,
                          const std::function<void()>& hide_busy_notice) {
  constexpr int kReadingTime = 1000;
  if (warnings.empty()) return;
  if (hide_busy_notice) {
    // The notice may have come up this moment: without a pause nobody could read it.
    services.windows.pause(kReadingTime);
    hide_busy_notice();
  }
  CHour3ErrorDlg dialog(services, warnings);
  services.windows.run_modal(dialog);
}
