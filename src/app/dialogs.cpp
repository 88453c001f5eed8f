#include "app/dialogs.h"

#include "mainwindow/CVelmaranDlg.h"
#include "media/CLogDiskSavePathDlg.h"
#include "ship/CFixDataDlg.h"
#include "ship/CKeyObserveDlg.h"
#include "ui/messages.h"

namespace app {

namespace {

std::optional<std::string> ask_working_folder(ui::Services& services, WorkingFolder which,
                                              const std::string& proposed,
                                              const Dialogs::Write& write) {
  const auto mode = which == WorkingFolder::kReports ? CLogDiskSavePathDlg::Mode::kReport
                                                     : CLogDiskSavePathDlg::Mode::kLogbook;
  CLogDiskSavePathDlg screen(services, mode, {.current = {}, .proposed = proposed, .source = {}},
                             write);
  if (services.windows.run_modal(screen) != ui::kOk) return std::nullopt;
  return screen.folder();
}

Answer<ShipFixedData> ask_fixed_data(ui::Services& services, const FixedDataQuestion& question) {
  CFixDataDlg screen(services, question.path, question.exists, question.reports, question.logbook);
  const bool confirmed = services.windows.run_modal(screen) == ui::kOk;
  return {confirmed, screen.values()};
}

Answer<KeyObservationItems> ask_key_items(ui::Services& services, const std::string& path,
                                          bool exists) {
  CKeyObserveDlg screen(services, path, exists);
  const bool confirmed = services.windows.run_modal(screen) == ui::kOk;
  return {confirmed, screen.values()};
}

void show_main_window(ui::Services& services, const mainwindow::MainWindowContext& context) {
  CVelmaranDlg screen(services, context);
  services.windows.run_modal(screen);
}

}  // namespace

Dialogs real_dialogs() {
  return {ask_working_folder, ask_fixed_data, ask_key_items, show_main_window};
}

}  // namespace app
