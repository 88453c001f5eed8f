#include "mainwindow/copy_folder.h"

#include "media/CLogDiskSavePathDlg.h"

namespace mainwindow {

std::optional<std::string> choose_copy_folder(ui::Services& services,
                                              const MainWindowContext& context, Copied what) {
  using Mode = CLogDiskSavePathDlg::Mode;
  Folders& folders = context.folders;
  const bool reports = what == Copied::kReports;
  std::string& copies = reports ? folders.report_copies : folders.logbook_copies;
  CLogDiskSavePathDlg dialog(services, reports ? Mode::kReportCopy : Mode::kLogbookCopy,
                             {copies, copies.empty() ? folders.removable_root : std::string(),
                              reports ? folders.reports : folders.logbook},
                             context.keep_folder);
  if (services.windows.run_modal(dialog) != ui::kOk) return std::nullopt;
  copies = dialog.folder();
  return copies;
}

}  // namespace mainwindow
