// The ship's logbook as a table, read and checked.

#include "explain/CLogbookDlg.h"
#include "mainwindow/CVelmaranDlg.h"

void CVelmaranDlg::show_logbook() {
  CLogbookDlg dialog(services(), context_.folders.logbook, context_.ship, context_.items);
  services().windows.run_modal(dialog);
}
