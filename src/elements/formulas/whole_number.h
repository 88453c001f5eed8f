#pragma once
// Whole numbers typed into a field of figures.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace elements {

/// The number when the text holds digits only (blanks around are let pass) and lies in the range.
[[nodiscard]] std::optional<int> whole_number(std::string_view text, int lowest, int highest);

/// "00", "01" … : the lines of a drop-down of two-figure numbers.
[[nodiscard]] std::vector<std::string> two_figure_lines(int first, int last);

}  // namespace elements
