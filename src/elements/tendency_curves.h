#pragma once
// The curves of the barograph that the characteristics of the pressure tendency stand for (code
// table 0200), to be compared with the one that the instrument wrote.

#include <memory>
#include <span>
#include <string_view>

#include "ui/drawing.h"

namespace elements {

/// The curve of a characteristic "0" to "8": over the three hours from 0 to 1, from low (0) to high
/// (1) pressure. Empty for any other.
[[nodiscard]] std::span<const ui::Point> tendency_curve(char characteristic);

/// The curves of these characteristics side by side, each below its figure in a cell one unit wide;
/// the one of cell `chosen` stands out. -1 is none.
[[nodiscard]] std::shared_ptr<const ui::Drawing> tendency_drawing(std::string_view characteristics,
                                                                  int chosen);

/// The cell of a place that was clicked.
[[nodiscard]] int tendency_cell(ui::Point place);

}  // namespace elements
