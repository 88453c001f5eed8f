#pragma once
// The rows of our programs and commands.

#include <span>
#include <string_view>

#include "usage/command.h"

namespace usage {

/// kavrel, the program with windows.
[[nodiscard]] const Command& desktop_program();
/// kavrel-cli itself, without the words of its commands.
[[nodiscard]] const Command& cli_program();
/// Its commands, in the order in which they are told.
[[nodiscard]] std::span<const Command> cli_commands();
/// The command of that name; null when there is none.
[[nodiscard]] const Command* cli_command(std::string_view name);

}  // namespace usage
