#pragma once
// Going through the reports of an input.

#include <cstddef>
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

/// What to do with a report that begins in that line, counted from 1; false, having told why, ends
/// the run.
using UseReport = std::function<bool(std::string_view, std::size_t line)>;

/// The same with the number of each report's line, and kWrong too for a run that `use` ended.
[[nodiscard]] int for_each_numbered_report(Input& input, const UseReport& use,
                                           const UseText& outside);

}  // namespace cli
