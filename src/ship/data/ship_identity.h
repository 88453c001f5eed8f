#pragma once
// Call sign, IMO number and manufacturer of the automatic weather station: what becomes of typed
// text and what is accepted.

#include <string>
#include <string_view>

/// Stands for a call sign that was never entered.
inline constexpr std::string_view kCallSignPlaceholder = "*******";

/// Narrowed, without any space, full-width ones included.
[[nodiscard]] std::string tidy_identifier(std::string_view text);
/// Narrowed (a full-width space becomes a space), without "_", which fills up the field in the
/// file, and without blanks at the ends.
[[nodiscard]] std::string tidy_manufacturer(std::string_view text);

/// Empty, or at most 7 of A-Z and 0-9.
[[nodiscard]] bool is_call_sign(std::string_view text);
/// Empty, or exactly 7 digits.
[[nodiscard]] bool is_imo_number(std::string_view text);
/// At most 60 of A-Z, 0-9, space, "." and ",".
[[nodiscard]] bool is_manufacturer(std::string_view text);
