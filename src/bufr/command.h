#pragma once
// kavrel-cli bufr, as the program of its own that it starts.

#include "usage/command.h"

namespace bufr {

/// Exit status: 0, or 2 for wrong arguments and wrong input, told on standard error, and for output
/// that cannot be written.
int command(const usage::Words& words);

}  // namespace bufr
