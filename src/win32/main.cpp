// The program on Windows without a toolkit: kavrel [--root DIR] [--program DIR] [--locale en|ja]
// [--clock 2014-11-15T11:50]

#include "win32/system.h"

#include <commctrl.h>
#include <objbase.h>

#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/CAssistantClass.h"
#include "app/CVelmaranApp.h"
#include "platform/paths.h"
#include "platform/system/process.h"
#include "platform/system/system.h"
#include "text/ids.h"
#include "text/reasons.h"
#include "usage/help.h"
#include "usage/programs.h"
#include "win32/help.h"
#include "win32/picture.h"
#include "win32/printer.h"
#include "win32/utf.h"
#include "win32/windows_port.h"

namespace {

/// Exit status of a program that had to end, like that of wrong options.
constexpr int kHadToEnd = 2;
constexpr const char* kProgram = "kavrel";

// What is thrown outside any event of a window: the person is told before the program ends.
int run(app::CVelmaranApp& program) {
  try {
    return program.run();
  } catch (...) {
    const auto thrown = std::current_exception();
    const auto& services = program.services();
    services.messages.error_filled(text::id::kProgramFailed,
                                   {text::reason_of(thrown, services.texts.language)});
    return kHadToEnd;
  }
}

int start(const usage::Words& words) {
  const auto system = platform::make_system({words.value("--root"), words.value("--program"),
                                             words.value("--locale"), words.value("--clock")});
  const platform::Paths paths = platform::paths_by(system->map());
  win32::WindowsPort windows(paths);
  // Nobody sees the standard output of a program with windows.
  if (const std::string answer = usage::answer_of(words); !answer.empty()) {
    windows.tell(kProgram, answer);
    return 0;
  }
  std::string problems;
  if (!words.wrong().empty()) problems = usage::refusal(words.command(), words.wrong());
  for (const std::string& problem : system->problems()) problems.append(problem).append("\n");
  if (!problems.empty()) {
    windows.tell(kProgram, problems);
    return kHadToEnd;
  }
  const app::CAssistantClass program_files(system->drives(), system->files());
  win32::set_picture_folder(
      win32::wide(paths.to_system(platform::join(program_files.program_folder(), "pictures"))));
  win32::Printer printer;
  win32::Help help(
      [&system](const std::string& path) { return system->help().page(path); },
      [&windows](const std::string& title, const std::string& said) { windows.tell(title, said); });
  app::CVelmaranApp program({system->clock(), system->locale(), system->drives(), system->files(),
                             system->code_page(), printer, windows, help});
  windows.set_language([&program] { return program.services().texts.language; });
  return run(program);
}

}  // namespace

int main(int argc, char** argv) {
  platform::prepare_process();
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
  INITCOMMONCONTROLSEX kinds{sizeof kinds,
                             ICC_STANDARD_CLASSES | ICC_TREEVIEW_CLASSES | ICC_BAR_CLASSES};
  InitCommonControlsEx(&kinds);
  try {
    return start(usage::Words(usage::desktop_program(), platform::program_arguments(argc, argv)));
  } catch (...) {  // before there was anything to tell it with
    const std::string why = text::reason_of(std::current_exception(), text::Language::kEnglish);
    std::fprintf(stderr, "kavrel: %s\n", why.c_str());
    return kHadToEnd;
  }
}
