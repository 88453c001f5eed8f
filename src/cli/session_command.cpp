#include "cli/session_command.h"

#include <fstream>
#include <iostream>

#include "app/CVelmaranApp.h"
#include "cli/commands.h"
#include "cli/input.h"
#include "headless/session.h"
#include "platform/system/system.h"

namespace cli {
namespace {

platform::SystemOptions system_options(const usage::Words& words) {
  return {words.value("--root"), words.value("--program"), words.value("--locale"),
          words.value("--clock")};
}

headless::Options session_options(const usage::Words& words) {
  headless::Options options;
  if (words.has("--printer"))
    options.paper =
        words.value("--printer") == "none" ? headless::Paper::kNoPrinter : headless::Paper::kFails;
  return options;
}

headless::Status play(std::istream& script, platform::System& system,
                      const headless::Options& options) {
  const auto program = [&system](const headless::Doors& doors) {
    app::CVelmaranApp app({system.clock(), system.locale(), system.drives(), system.files(),
                           system.code_page(), doors.printer, doors.windows, doors.help});
    // A start-up that ends silently shows nothing, so nothing is said of it here either.
    (void)app.run();
  };
  return headless::run_session(script, std::cout, std::cerr, program, options);
}

}  // namespace

int session_command(const usage::Words& words) {
  const auto made = platform::make_system(system_options(words));
  platform::System& system = *made;
  for (const std::string& problem : system.problems()) std::cerr << "session: " << problem << '\n';
  if (!system.problems().empty()) return kWrong;
  const headless::Options options = session_options(words);
  const std::string& name = words.file();
  if (name.empty() || name == "-") return static_cast<int>(play(std::cin, system, options));
  std::ifstream script;
  if (const std::string problem = open_file(name, script); !problem.empty()) {
    std::cerr << "session: cannot read " << name << ": " << problem << '\n';
    return kWrong;
  }
  return static_cast<int>(play(script, system, options));
}

}  // namespace cli
