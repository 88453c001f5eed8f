#pragma once
// Going through the reports of an input.

#include <functional>
#include <string_view>

#include "cli/input.h"

namespace cli {

/// What to do with the text of a report, or with text that stands outside every report.
using UseText = std::function<void(std::string_view)>;

/// Hands each report of the input to `use`, from the text in front of its "BBXX" that is not in a
/// line of its own up to and with its end mark, and what stands outside of all to `outside`; lines
/// that begin with "#" are passed over. Gives the exit status: kWrong, told on standard error, for an
/// input that cannot be read, a report too long to be one, or no report at all.
[[nodiscard]] int for_each_report(Input& input, const UseText& use, const UseText& outside);

}  // namespace cli
