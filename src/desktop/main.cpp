// The desktop program; usage/programs.h says what may stand behind its name.

#include <QApplication>
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
#include "usage/help.h"
#include "usage/programs.h"

namespace {

constexpr int kWrongWords = 2;

int start(const usage::Words& words) {
  const auto made = platform::make_system({words.value("--root"), words.value("--program"),
                                           words.value("--locale"), words.value("--clock")});
  platform::System& system = *made;
  for (const std::string& problem : system.problems())
    std::fprintf(stderr, "kavrel: %s\n", problem.c_str());
  if (!system.problems().empty()) return kWrongWords;

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
  try {
    // Help and version ask for no display. Qt takes its own words away from the others, so those
    // that nobody knows are told afterwards.
    const usage::Words asked(usage::desktop_program(), platform::program_arguments(argc, argv));
    if (const std::string answer = usage::answer_of(asked); !answer.empty())
      return std::fputs(answer.c_str(), stdout) < 0 || std::fflush(stdout) != 0 ? kWrongWords : 0;
    QApplication application(argc, argv);
    QApplication::setApplicationName("kavrel");
    // The window's icon on displays that take it from the menu entry.
    QGuiApplication::setDesktopFileName("kavrel");
    const usage::Words words(usage::desktop_program(), platform::program_arguments(argc, argv));
    if (!words.wrong().empty()) {
      std::fputs(usage::refusal(words.command(), words.wrong()).c_str(), stderr);
      return kWrongWords;
    }
    desktop::prepare_application();
    return start(words);
  } catch (...) {  // before there was anything to tell it with
    const std::string why = text::reason_of(std::current_exception(), text::Language::kEnglish);
    std::fprintf(stderr, "kavrel: %s\n", why.c_str());
    return desktop::kHadToEnd;
  }
}
