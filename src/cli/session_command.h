#pragma once
// kavrel-cli session: the program without windows, steered by a script.

#include "usage/command.h"

namespace cli {

/// Exit status: 0, 1 for a failed expectation, 2 for a command that cannot be carried out and for
/// wrong arguments.
int session_command(const usage::Words& words);

}  // namespace cli
