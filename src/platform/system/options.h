#pragma once
// The values of a program's options, read alike on every system.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports.h"

namespace platform {

/// "2014-11-15T11:50" or with ":SS"; nothing for any other text and for a time that does not exist.
[[nodiscard]] std::optional<DateTime> parse_date_time(std::string_view text);

/// The time at which the clock stands still (SystemOptions::clock), nothing where it goes; a text that
/// is no time becomes a problem.
[[nodiscard]] std::optional<DateTime> given_time(const std::string& clock,
                                                 std::vector<std::string>& problems);

/// Lines of System::problems() that every system may have to tell.
[[nodiscard]] std::string no_folder_problem(const std::string& root);
inline constexpr const char* kNoCodePageProblem =
    "code page 932, in which the ship's files are kept, is not installed";

/// 0x0411 when the language of a locale name ("ja_JP.UTF-8", "ja") is Japanese, else 0x0409.
[[nodiscard]] unsigned locale_id_of(std::string_view name);

}  // namespace platform
