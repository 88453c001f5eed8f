#include "cli/session_command.h"

#include <fstream>
#include <iostream>
#include <optional>

#include "headless/session.h"
#include "platform/posix/system.h"
#include "text/help.h"
#include "text/messages.h"
#include "ui/services.h"

namespace cli {
namespace {

constexpr std::string_view kUsage =
    "usage: kavrel-cli session [--root DIR] [--program DIR] [--locale en|ja]\n"
    "                          [--clock 2014-11-15T11:50] [--no-printer] [SCRIPT]\n";

struct SessionArguments {
  platform::posix::SystemOptions system;
  headless::Options session;
  std::string script;  ///< empty: standard input
};

// Where the value of an option goes; null for a word that is no option.
std::string* place_of(std::string_view option, platform::posix::SystemOptions& system) {
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
    if (word == "--no-printer") {
      result.session.has_printer = false;
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

// The whole program, from start-up to the closing of the main window.
void run_program(ui::Services& /*services*/) {}

headless::Status play(std::istream& script, platform::posix::System& system,
                      const headless::Options& options) {
  const auto program = [&system](const headless::Doors& doors) {
    text::Texts texts;
    text::Messages messages(texts, doors.windows);
    // The folder part of the path that the program was started by.
    const std::string path = system.drives().program_path();
    const auto end = path.rfind('\\');
    text::HelpLauncher help(
        texts, doors.help,
        end == std::string::npos ? system.files().current_folder() : path.substr(0, end));
    ui::Services services{system.clock(), system.locale(), system.drives(),
                          system.files(), doors.printer,   doors.windows,
                          texts,          messages,        help};
    run_program(services);
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
  platform::posix::System system(read->system);
  for (const std::string& problem : system.problems()) std::cerr << "session: " << problem << '\n';
  if (!system.problems().empty()) return kWrongArguments;
  if (read->script.empty() || read->script == "-")
    return static_cast<int>(play(std::cin, system, read->session));
  std::ifstream script(read->script, std::ios::binary);
  if (!script) {
    std::cerr << "session: cannot read " << read->script << '\n';
    return kWrongArguments;
  }
  return static_cast<int>(play(script, system, read->session));
}

}  // namespace cli
