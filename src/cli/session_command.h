#pragma once
// kavrel-cli session: the program without windows, steered by a script.

#include <string>
#include <vector>

namespace cli {

/// `arguments` are those behind the word "session". Exit status: 0, 1 for a failed expectation, 2
/// for a command that cannot be carried out and for wrong arguments.
int session_command(const std::vector<std::string>& arguments);

}  // namespace cli
