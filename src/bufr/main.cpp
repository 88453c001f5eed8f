// kavrel-bufr: observations and reports as BUFR messages. A program of its own, so that only it
// needs ecCodes; kavrel-cli starts it.

#include <string>
#include <vector>

#include "bufr/command.h"
#include "cli/last_catch.h"
#include "cli/program.h"
#include "usage/programs.h"

int main(int count, char** words) {
  return cli::run_program(count, words, [](const std::vector<std::string>& arguments) {
    return cli::with_last_catch([&] {
      return bufr::command({*usage::cli_command("bufr"), arguments});
    });
  });
}
