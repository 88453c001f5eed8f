// The desktop program: kavrel [--root DIR] [--program DIR] [--locale en|ja] [--clock
// 2014-11-15T11:50]

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>

#include "app/CAssistantClass.h"
#include "app/CVelmaranApp.h"
#include "desktop/desktop_help.h"
#include "desktop/desktop_printer.h"
#include "desktop/desktop_windows.h"
#include "desktop/last_catch.h"
#include "desktop/picture_label.h"
#include "platform/paths.h"
#include "platform/system/process.h"
#include "platform/system/system.h"
#include "text/reasons.h"

namespace {

platform::SystemOptions read_options(const QApplication& application) {
  QCommandLineParser parser;
  const QCommandLineOption root("root", "Folder that is the program's drive C:.", "folder");
  const QCommandLineOption program("program", "Folder that holds the program's own files.",
                                   "folder");
  const QCommandLineOption locale("locale", "Language of the session: en or ja.", "locale");
  const QCommandLineOption clock("clock", "A clock that stands still, UTC.", "2014-11-15T11:50");
  parser.addOptions({root, program, locale, clock});
  parser.addHelpOption();
  parser.process(application);
  return {parser.value(root).toStdString(), parser.value(program).toStdString(),
          parser.value(locale).toStdString(), parser.value(clock).toStdString()};
}

int start(const QApplication& application) {
  const auto made = platform::make_system(read_options(application));
  platform::System& system = *made;
  for (const std::string& problem : system.problems())
    std::fprintf(stderr, "kavrel: %s\n", problem.c_str());
  if (!system.problems().empty()) return 2;

  const platform::Paths paths = platform::paths_by(system.map());
  const app::CAssistantClass program_files(system.drives(), system.files());
  desktop::set_picture_folder(QString::fromStdString(
      paths.to_system(platform::join(program_files.program_folder(), "pictures"))));
  desktop::DesktopWindows windows(paths);
  desktop::DesktopPrinter printer;
  desktop::DesktopHelp help(
      [&system](const std::string& path) { return system.help().page(path); });
  app::CVelmaranApp program({system.clock(), system.locale(), system.drives(), system.files(),
                             system.code_page(), printer, windows, help});
  return desktop::run_program(program);
}

}  // namespace

int main(int argc, char** argv) {
  platform::prepare_process();
  QApplication application(argc, argv);
  QApplication::setApplicationName("kavrel");
  try {
    desktop::prepare_application();
    return start(application);
  } catch (...) {  // before there was anything to tell it with
    const std::string why = text::reason_of(std::current_exception(), text::Language::kEnglish);
    std::fprintf(stderr, "kavrel: %s\n", why.c_str());
    return desktop::kHadToEnd;
  }
}
