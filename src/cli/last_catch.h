#pragma once
// The last place that an exception can reach in a program without windows.

#include <exception>
#include <iostream>

#include "cli/commands.h"
#include "text/reasons.h"

namespace cli {

/// The status of the command, or kWrong with "kavrel-cli: REASON" when something threw; what the
/// command had printed up to then stays.
template <class Command>
int with_last_catch(Command command, std::ostream& error = std::cerr) {
  try {
    return command();
  } catch (...) {
    error << "kavrel-cli: " << text::reason_of(std::current_exception(), text::Language::kEnglish)
          << "\n";
    return kWrong;
  }
}

}  // namespace cli
