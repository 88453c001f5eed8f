#pragma once
// What a program tells of its words: its help, its version, and what it says of wrong ones.

#include <span>
#include <string>
#include <string_view>

#include "usage/command.h"

namespace usage {

/// The version of the program, "1.0.0": the project's, which stands in one place.
[[nodiscard]] std::string_view version();
/// "kavrel-cli 1.0.0" with a line end.
[[nodiscard]] std::string version_line(const Command& command);

/// How the command is called, what it does, its file, its options and its exit statuses; of a
/// program that has commands, these too.
[[nodiscard]] std::string help(const Command& command, text::Language language,
                               std::span<const Command> commands = {});

/// What is told of words that cannot be followed: "kavrel-cli: REASON", how it is called, and the
/// words that tell more.
[[nodiscard]] std::string refusal(const Command& command, std::string_view reason);

/// The help or the version, when the words ask for one; else empty.
[[nodiscard]] std::string answer_of(const Words& words, std::span<const Command> commands = {});

}  // namespace usage
