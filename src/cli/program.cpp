#include "cli/program.h"

#include <iostream>

#include "cli/commands.h"
#include "cli/observations.h"
#include "platform/system/process.h"
#include "usage/help.h"

namespace cli {

int refused(const usage::Command& command, const std::string& reason) {
  std::cerr << usage::refusal(command, shown(reason));
  return kWrong;
}

std::optional<int> answered(const usage::Words& words, std::span<const usage::Command> commands) {
  const std::string answer = usage::answer_of(words, commands);
  if (answer.empty()) {
    if (words.wrong().empty()) return std::nullopt;
    return refused(words.command(), words.wrong());
  }
  end_with_the_reader();
  std::cout << answer;
  return kOk;
}

int run_program(int count, char** words,
                const std::function<int(const std::vector<std::string>&)>& run) {
  platform::prepare_process();
  platform::prepare_standard_files();
  std::ios::sync_with_stdio(false);
  const int status = run(platform::program_arguments(count, words));
  // What a command told and nobody received is no success; one that was wrong has said so itself.
  if (std::cout.flush() || status == kWrong) return status;
  std::cerr << "kavrel-cli: " << kOutputLost << "\n";
  return kWrong;
}

void end_with_the_reader() {
  platform::end_with_the_reader();
}

}  // namespace cli
