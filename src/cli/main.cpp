#include <iostream>
#include <string>
#include <vector>

#include "cli/session_command.h"

int main(int count, char** words) {
  const std::vector<std::string> arguments(words + (count > 0 ? 1 : 0), words + count);
  if (!arguments.empty() && arguments.front() == "session")
    return cli::session_command({arguments.begin() + 1, arguments.end()});
  std::cerr << "usage: kavrel-cli session\n";
  return 2;
}
