#include "cli/program.h"

#include <iostream>

#include "cli/commands.h"
#include "platform/system/process.h"

namespace cli {

int usage(const std::string& reason, const char* usage) {
  std::cerr << "kavrel-cli: " << reason << "\nusage: " << usage << "\n";
  return kWrong;
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

}  // namespace cli
