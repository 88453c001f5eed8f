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
#include "win32/help.h"
#include "win32/picture.h"
#include "win32/printer.h"
#include "win32/utf.h"
#include "win32/windows_port.h"

namespace {

/// Exit status of a program that had to end, like that of wrong options.
constexpr int kHadToEnd = 2;
constexpr const char* kProgram = "kavrel";

struct Options {
  platform::SystemOptions system;
  std::string problem;
};

Options read_options(const std::vector<std::string>& words) {
  Options options;
  struct Row {
    std::string_view name;
    std::string* value;
  };
  const Row rows[] = {{"--root", &options.system.root},
                      {"--program", &options.system.program},
                      {"--locale", &options.system.locale},
                      {"--clock", &options.system.clock}};
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string_view word = words[i];
    const std::string_view name = word.substr(0, word.find('='));
    std::string* value = nullptr;
    for (const Row& row : rows)
      if (row.name == name) value = row.value;
    if (value == nullptr) {
      options.problem = words[i];
    } else if (name.size() < word.size()) {
      *value = word.substr(name.size() + 1);
    } else if (++i < words.size()) {
      *value = words[i];
    } else {
      options.problem = word;
    }
  }
  return options;
}

win32::PathMap path_map(const platform::System& system) {
  return {
      [&system](const std::string& path) { return system.map().to_os(path).value.value_or(""); },
      [&system](const std::string& path) { return system.map().to_program(path).value_or(""); }};
}

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

int start(const Options& options) {
  const auto system = platform::make_system(options.system);
  win32::WindowsPort windows(path_map(*system));
  std::string problems = options.problem;
  for (const std::string& problem : system->problems()) problems.append(problem).append("\n");
  if (!problems.empty()) {
    windows.tell(kProgram, problems);
    return kHadToEnd;
  }
  const app::CAssistantClass program_files(system->drives(), system->files());
  win32::set_picture_folder(
      win32::wide(system->map()
                      .to_os(platform::join(program_files.program_folder(), "pictures"))
                      .value.value_or("")));
  win32::Printer printer;
  win32::Help help([&system](const std::string& path) { return system->help().page(path); },
                   [&windows](const std::string& title, const std::string& words) {
                     windows.tell(title, words);
                   });
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
    return start(read_options(platform::program_arguments(argc, argv)));
  } catch (...) {  // before there was anything to tell it with
    const std::string why = text::reason_of(std::current_exception(), text::Language::kEnglish);
    std::fprintf(stderr, "kavrel: %s\n", why.c_str());
    return kHadToEnd;
  }
}
