// kavrel-cli: the program without windows.

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <iostream>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/last_catch.h"
#include "cli/session_command.h"
#include "platform/posix/system_calls.h"

namespace {

struct Command {
  const char* name;
  int (*run)(const std::vector<std::string>& arguments);
  const char* help;
};

constexpr Command kCommands[] = {
    {"encode", cli::encode_command, "observations to reports and logbook lines, as JSON"},
    {"read", cli::read_command, "reports back to observations"},
    {"explain", cli::explain_command, "reports in plain words"},
    {"save", cli::save_command, "observations to report files and the logbook"},
    {"session", cli::session_command, "the whole program, steered by a script"},
};

// A file that is opened takes the lowest number that is free. Without standard output or error that
// would be a report or the logbook, and what the commands tell would be written into it; so each
// that is missing is taken by something that fails when it is used.
void take_standard_numbers() {
  for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (::fcntl(number, F_GETFD) < 0)
      (void)::open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

int help(std::ostream& out, int status) {
  out << "usage: kavrel-cli COMMAND [ARGUMENTS]\n";
  for (const Command& command : kCommands)
    out << "  " << command.name << std::string(9 - std::string(command.name).size(), ' ')
        << command.help << "\n";
  return status;
}

int run(const std::vector<std::string>& arguments) {
  if (arguments.empty()) return help(std::cerr, cli::kWrong);
  if (arguments.front() == "--help") return help(std::cout, cli::kOk);
  for (const Command& command : kCommands)
    if (arguments.front() == command.name)
      return cli::with_last_catch([&] {
        return command.run({arguments.begin() + 1, arguments.end()});
      });
  std::cerr << "kavrel-cli: unknown command " << arguments.front() << "\n";
  return help(std::cerr, cli::kWrong);
}

}  // namespace

namespace cli {

int usage(const std::string& reason, const char* usage) {
  std::cerr << "kavrel-cli: " << reason << "\nusage: " << usage << "\n";
  return kWrong;
}

}  // namespace cli

int main(int count, char** words) {
  take_standard_numbers();
  // A reader that has gone away is told like any other output that cannot be written.
  (void)std::signal(SIGPIPE, SIG_IGN);
  std::ios::sync_with_stdio(false);
  platform::posix::prepare_process();
  const int status = run(std::vector<std::string>(words + (count > 0 ? 1 : 0), words + count));
  // What a command told and nobody received is no success; one that was wrong has said so itself.
  if (std::cout.flush() || status == cli::kWrong) return status;
  std::cerr << "kavrel-cli: " << cli::kOutputLost << "\n";
  return cli::kWrong;
}
