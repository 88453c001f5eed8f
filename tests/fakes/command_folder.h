#pragma once
// A folder in which the programs are run as a user runs them: real programs, real files.

#include <sys/wait.h>

#include <cstdlib>
#include <string>

#include "fakes/temp_folder.h"

namespace fakes {

struct Outcome {
  int status = -1;  ///< exit status; a signal is told as its negative number
  std::string out, error;
};

class CommandFolder : public TempFolder {
 public:
  /// Runs a shell command in the folder, where $CLI is kavrel-cli; `input` is its standard input.
  [[nodiscard]] Outcome shell(const std::string& command, const std::string& input = "") const {
    write("stdin", input);
    const std::string whole = "cd '" + path() + "' && export CLI='" + KAVREL_CLI + "' && { " +
                              command + "; } <stdin >stdout 2>stderr";
    const int raw = std::system(whole.c_str());
    return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -WTERMSIG(raw), content("stdout"),
            content("stderr")};
  }
};

}  // namespace fakes
