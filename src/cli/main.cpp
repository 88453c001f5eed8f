// kavrel-cli: the program without windows.

#include <iostream>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/last_catch.h"
#include "cli/program.h"
#include "cli/session_command.h"

namespace {

struct Command {
  const char* name;
  int (*run)(const std::vector<std::string>& arguments);
  const char* help;
  bool only_prints = false;  ///< so that it ends with its reader
};

constexpr Command kCommands[] = {
    {"encode", cli::encode_command, "observations to reports and logbook lines, as JSON", true},
    {"read", cli::read_command, "reports back to observations", true},
    {"logbook", cli::logbook_command, "lines of the logbook back to observations; or checks them",
     true},
    {"explain", cli::explain_command, "reports in plain words", true},
    {"save", cli::save_command, "observations to report files and the logbook"},
    {"bufr", cli::bufr_command, "observations and reports as WMO BUFR messages"},
    {"session", cli::session_command, "the whole program, steered by a script"},
};

int help(std::ostream& out, int status) {
  out << "usage: kavrel-cli COMMAND [ARGUMENTS]\n";
  for (const Command& command : kCommands)
    out << "  " << command.name << std::string(9 - std::string(command.name).size(), ' ')
        << command.help << "\n";
  return status;
}

int run(const std::vector<std::string>& arguments) {
  if (arguments.empty()) return help(std::cerr, cli::kWrong);
  if (arguments.front() == "--help") {
    cli::end_with_the_reader();
    return help(std::cout, cli::kOk);
  }
  for (const Command& command : kCommands) {
    if (arguments.front() != command.name) continue;
    if (command.only_prints) cli::end_with_the_reader();
    return cli::with_last_catch([&] {
      return command.run({arguments.begin() + 1, arguments.end()});
    });
  }
  std::cerr << "kavrel-cli: unknown command " << arguments.front() << "\n";
  return help(std::cerr, cli::kWrong);
}

}  // namespace

int main(int count, char** words) {
  return cli::run_program(count, words, run);
}
