#pragma once
// The values of a program's options, read alike on every system.

#include <optional>
#include <string_view>

#include "platform/ports.h"

namespace platform {

/// "2014-11-15T11:50" or with ":SS"; nothing for any other text and for a time that does not exist.
[[nodiscard]] std::optional<DateTime> parse_date_time(std::string_view text);

/// 0x0411 when the language of a locale name ("ja_JP.UTF-8", "ja") is Japanese, else 0x0409.
[[nodiscard]] unsigned locale_id_of(std::string_view name);

}  // namespace platform
