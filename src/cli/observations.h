#pragma once
// Going through the observations of an input.

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "cli/input.h"
#include "observation/observation_file.h"
#include "observation/report_file.h"

namespace cli {

/// Told on standard error.
void complain(const Input& input, std::size_t line, const std::string& reason);

/// The text with its control characters by number ("\x1B"), so that a terminal obeys none of them.
[[nodiscard]] std::string shown(std::string_view text);

/// Which of Year, Month, YY and GG is no part of a date and hour, and what it may hold.
[[nodiscard]] std::string date_reason(const observation::DateFault& fault);

/// What to do with an observation; a text is the reason why it is refused.
using Use = std::function<std::optional<std::string>(const observation::ObservationReader&)>;

/// Hands every observation without control characters to `check` and then to `use`. A file is
/// checked to its end before the first observation is used, so that a wrong one leaves nothing
/// done; standard input is checked observation by observation. False after the first refusal or
/// fault, which has been told.
[[nodiscard]] bool for_each_observation(Input& input, const Use& check, const Use& use);

}  // namespace cli
