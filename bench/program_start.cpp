// The desktop program, ended once its main window is painted: program_start ROOT PROGRAM, where
// ROOT holds the settings, the ship and the folders of a ship that has been at work.

#include <cstdio>

#include "app/CVelmaranApp.h"
#include "desktop/desktop_printer.h"
#include "desktop/desktop_windows.h"
#include "first_paint.h"
#include "platform/posix/system.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  desktop::prepare_application();
  if (argc != 3) {
    std::fputs("usage: program_start ROOT PROGRAM\n", stderr);
    return 2;
  }
  const bench::FirstPaint watch(QStringLiteral("CVelmaranDlg"));
  platform::posix::System system({argv[1], argv[2], "en", ""});
  desktop::DesktopWindows windows({});
  desktop::DesktopPrinter printer;
  app::CVelmaranApp program({system.clock(), system.locale(), system.drives(), system.files(),
                             system.code_page(), printer, windows, system.help()});
  program.run();
  std::fputs("program_start: the program ended before its main window\n", stderr);
  return 1;
}
