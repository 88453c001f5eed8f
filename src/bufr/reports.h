#pragma once
// Going through the reports of an input.

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "cli/input.h"

namespace bufr {

/// What to do with a report, which began in that line; a text is the reason why it is refused.
using UseReport =
    std::function<std::optional<std::string>(std::string_view report, std::size_t line)>;

/// Hands every report of the input to `use`. False after the first refusal or fault and for an
/// input without any report, all of which have been told.
[[nodiscard]] bool for_each_report(cli::Input& input, const UseReport& use);

}  // namespace bufr
