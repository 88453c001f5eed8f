#pragma once
// What every program without windows does around its commands.

#include <functional>
#include <string>
#include <vector>

namespace cli {

/// Runs `run` with the program's arguments and gives its exit status, or kWrong, told, when what it
/// printed was received by nobody.
int run_program(int count, char** words,
                const std::function<int(const std::vector<std::string>&)>& run);

/// For a command that only prints: once nobody reads its standard output any more, as behind
/// "| head", it ends there and says nothing (SIGPIPE), as every filter does. A command that writes
/// files must not be ended between two of them and is told instead that its output is lost.
void end_with_the_reader();

}  // namespace cli
