#pragma once
// Code figures in metres, as the form shows them.

#include <string>
#include <string_view>

namespace elements {

/// Visibility VV (code table 4377, 90-99) as the upper bound of its class in metres ("94" is
/// "1999"). "//" gives an empty text, any other text comes back unchanged.
[[nodiscard]] std::string visibility_metres(std::string_view vv);

/// Height of the lowest cloud h (code table 1600, 0-9) as the upper bound of its class in metres
/// ("4" is "599"; "9" is "2500"). "/" and any other text give an empty text.
[[nodiscard]] std::string cloud_base_metres(std::string_view h);

/// Wave height in metres as the figures of the report: half metres, rounded, two figures ("1.5" is
/// "03"). Empty text and "//" stay.
[[nodiscard]] std::string half_metre_figures(std::string_view metres);

/// Half-metre figures in metres ("03" is "1.5"). A text that is no figures stays.
[[nodiscard]] std::string metres_of_figures(std::string_view figures);

}  // namespace elements
