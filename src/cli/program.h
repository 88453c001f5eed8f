#pragma once
// What every program without windows does around its commands.

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "usage/command.h"

namespace cli {

/// Runs `run` with the program's arguments and gives its exit status, or kWrong, told, when what it
/// printed was received by nobody.
int run_program(int count, char** words,
                const std::function<int(const std::vector<std::string>&)>& run);

/// For a command that only prints: once nobody reads its standard output any more, as behind
/// "| head", it ends there and says nothing (SIGPIPE), as every filter does. A command that writes
/// files must not be ended between two of them and is told instead that its output is lost.
void end_with_the_reader();

/// What is told of words that cannot be followed, on standard error; kWrong.
int refused(const usage::Command& command, const std::string& reason);

/// The status, when the words ask for help or version, which has been printed, or cannot be
/// followed, which has been told; nothing when the command is to be carried out.
[[nodiscard]] std::optional<int> answered(const usage::Words& words,
                                          std::span<const usage::Command> commands = {});

}  // namespace cli
