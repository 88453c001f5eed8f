#pragma once
// The date of a barometer check: "yyyy/mm/dd", 2000/01/01 to today.

#include <string>
#include <string_view>

#include "platform/ports.h"

/// Stands for a date that was never entered.
inline constexpr std::string_view kCheckDatePlaceholder = "yyyy/mm/dd";

/// True when there is no date: nothing but spaces, or the placeholder.
[[nodiscard]] bool is_check_date_missing(std::string_view text);

/// Without spaces; a month or day of one figure gets a zero in front. A text that is not three
/// parts between two "/" only loses its spaces.
[[nodiscard]] std::string normalised_check_date(std::string_view text);

/// True for figures in the places of yyyy/mm/dd, whether or not there is such a day.
[[nodiscard]] bool is_slashed_date(std::string_view text);

/// True for an existing day from 2000/01/01 to `today` (local), written yyyy/mm/dd; spaces do not
/// count. 2014/02/30 is no day.
[[nodiscard]] bool is_check_date(std::string_view text, const platform::DateTime& today);

/// "yyyy/mm/dd" of a date.
[[nodiscard]] std::string slashed_date(const platform::DateTime& date);
