#include "cli/session_command.h"

#include <fstream>
#include <iostream>
#include <optional>

#include "app/CVelmaranApp.h"
#include "cli/input.h"
#include "headless/session.h"
#include "platform/system/system.h"

namespace cli {
namespace {

constexpr std::string_view kUsage =
    "usage: kavrel-cli session [--root DIR] [--program DIR] [--locale en|ja]\n"
    "                          [--clock 2014-11-15T11:50] [--printer none|fails] [SCRIPT]\n";

struct SessionArguments {
  platform::SystemOptions system;
  headless::Options session;
  std::string script;  ///< empty: standard input
};

// Where the value of an option goes; null for a word that is no option.
std::string* place_of(std::string_view option, platform::SystemOptions& system) {
  if (option == "--root") return &system.root;
  if (option == "--program") return &system.program;
  if (option == "--locale") return &system.locale;
  if (option == "--clock") return &system.clock;
  return nullptr;
}

std::optional<SessionArguments> read_arguments(const std::vector<std::string>& arguments) {
  SessionArguments result;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    if (word == "--printer") {
      if (++i == arguments.size()) return std::nullopt;
      const std::string& printer = arguments[i];
      if (printer != "none" && printer != "fails") return std::nullopt;
      result.session.paper =
          printer == "none" ? headless::Paper::kNoPrinter : headless::Paper::kFails;
    } else if (std::string* const place = place_of(word, result.system)) {
      if (++i == arguments.size()) return std::nullopt;
      *place = arguments[i];
    } else if ((word.starts_with("--") && word != "-") || !result.script.empty()) {
      return std::nullopt;
    } else {
      result.script = word;
    }
  }
  return result;
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

int session_command(const std::vector<std::string>& arguments) {
  constexpr int kWrongArguments = 2;
  const auto read = read_arguments(arguments);
  if (!read) {
    std::cerr << kUsage;
    return kWrongArguments;
  }
  const auto made = platform::make_system(read->system);
  platform::System& system = *made;
  for (const std::string& problem : system.problems()) std::cerr << "session: " << problem << '\n';
  if (!system.problems().empty()) return kWrongArguments;
  if (read->script.empty() || read->script == "-")
    return static_cast<int>(play(std::cin, system, read->session));
  std::ifstream script;
  if (const std::string problem = open_file(read->script, script); !problem.empty()) {
    std::cerr << "session: cannot read " << read->script << ": " << problem << '\n';
    return kWrongArguments;
  }
  return static_cast<int>(play(script, system, read->session));
}

}  // namespace cli
