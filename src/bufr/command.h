#pragma once
// kavrel-cli bufr, as the program of its own that it starts.

#include <string>
#include <vector>

namespace bufr {

/// `arguments` are those behind the word "bufr". Exit status: 0, or 2 for wrong arguments and wrong
/// input, told on standard error, and for output that cannot be written.
int command(const std::vector<std::string>& arguments);

}  // namespace bufr
