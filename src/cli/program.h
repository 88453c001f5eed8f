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

}  // namespace cli
