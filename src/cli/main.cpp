// kavrel-cli: the program without windows.

#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/last_catch.h"
#include "cli/program.h"
#include "cli/session_command.h"
#include "usage/programs.h"

namespace {

using Arguments = std::vector<std::string>;

/// Which function carries a command out; what may stand behind its name says its row.
struct Row {
  std::string_view name;
  int (*run)(const usage::Words& words);
  bool only_prints = false;  ///< so that it ends with its reader
};

constexpr Row kRows[] = {
    {"encode", cli::encode_command, true},
    {"read", cli::read_command, true},
    {"logbook", cli::logbook_command, true},
    {"explain", cli::explain_command, true},
    {"save", cli::save_command},
    {"session", cli::session_command},
};

int carry_out(const usage::Command& command, const Arguments& arguments) {
  const usage::Words words(command, arguments);
  if (const auto status = cli::answered(words)) return *status;
  for (const Row& row : kRows) {
    if (row.name != command.name) continue;
    if (row.only_prints) cli::end_with_the_reader();
    return cli::with_last_catch([&] { return row.run(words); });
  }
  return cli::with_last_catch([&] { return cli::bufr_command(arguments); });
}

int run(const Arguments& arguments) {
  const usage::Command& program = usage::cli_program();
  // The program's own words; "--language ja" takes two.
  if (arguments.empty()) return cli::refused(program, "a command is wanted");
  if (arguments.front().starts_with('-')) {
    const auto status = cli::answered(usage::Words(program, arguments), usage::cli_commands());
    return status.value_or(cli::kWrong);
  }
  if (const usage::Command* command = usage::cli_command(arguments.front()))
    return carry_out(*command, {arguments.begin() + 1, arguments.end()});
  return cli::refused(program, "unknown command " + arguments.front());
}

}  // namespace

int main(int count, char** words) {
  return cli::run_program(count, words, run);
}
