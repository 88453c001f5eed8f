#include "cli/program.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <iostream>

#include "cli/commands.h"
#include "platform/posix/system_calls.h"

namespace cli {
namespace {

// A file that is opened takes the lowest number that is free. Without standard output or error that
// would be a report or the logbook, and what the commands tell would be written into it; so each
// that is missing is taken by something that fails when it is used.
void take_standard_numbers() {
  for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (::fcntl(number, F_GETFD) < 0)
      (void)::open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

}  // namespace

int usage(const std::string& reason, const char* usage) {
  std::cerr << "kavrel-cli: " << reason << "\nusage: " << usage << "\n";
  return kWrong;
}

int run_program(int count, char** words,
                const std::function<int(const std::vector<std::string>&)>& run) {
  take_standard_numbers();
  // Until a command says that it ends with its reader, a reader that has gone away is told like any
  // other output that cannot be written.
  (void)std::signal(SIGPIPE, SIG_IGN);
  std::ios::sync_with_stdio(false);
  platform::posix::prepare_process();
  const int status = run(std::vector<std::string>(words + (count > 0 ? 1 : 0), words + count));
  // What a command told and nobody received is no success; one that was wrong has said so itself.
  if (std::cout.flush() || status == kWrong) return status;
  std::cerr << "kavrel-cli: " << kOutputLost << "\n";
  return kWrong;
}

void end_with_the_reader() {
  (void)std::signal(SIGPIPE, SIG_DFL);
}

}  // namespace cli
