#include <cerrno>
#include <cstring>
#include <iostream>

#include "cli/commands.h"
#include "platform/system/process.h"

namespace cli {

int bufr_command(const std::vector<std::string>& arguments) {
  // Where both are built, and where they are installed.
  int error = platform::go_on_as_program_beside("kavrel-bufr", arguments);
  if (error == ENOENT)
    error = platform::go_on_as_program_beside("../libexec/kavrel/kavrel-bufr", arguments);
  std::cerr << "kavrel-cli: bufr needs the program kavrel-bufr beside this one, ";
  if (error == ENOENT)
    std::cerr << "which is not there; it is built where ecCodes is installed (libeccodes-dev)\n";
  else
    std::cerr << "which cannot be started: " << std::strerror(error) << "\n";
  return kWrong;
}

}  // namespace cli
