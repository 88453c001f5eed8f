#pragma once
// Heights of waves: metres on the form, half metres in the report.

#include <string>
#include <string_view>

namespace codetables {

/// Metres as the figures of the report: half metres, rounded, two figures ("1.5" is "03"). Empty
/// text and "//" stay.
[[nodiscard]] std::string half_metre_figures(std::string_view metres);

/// Half-metre figures in metres ("03" is "1.5"). A text that is no figures stays.
[[nodiscard]] std::string metres_of_figures(std::string_view figures);

}  // namespace codetables
