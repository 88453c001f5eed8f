#pragma once
// What the fields of the wind screens accept.

#include <string_view>

namespace elements {

/// Digits with at most one point among them; blanks around are let pass.
[[nodiscard]] bool is_speed(std::string_view text);

/// Whole degrees from `lowest` to 360, blanks around are let pass.
[[nodiscard]] bool is_degrees(std::string_view text, int lowest);

/// A true direction in tens of degrees: 0 to 36, or 99 (variable); one or two digits. "//" too.
[[nodiscard]] bool is_true_direction(std::string_view text);

}  // namespace elements
