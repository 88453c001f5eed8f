#pragma once
// A line of a pen as the outlines that it covers, for devices that only fill.

#include <vector>

#include "paper/canvas.h"

namespace paper {

/// They turn the same way, so that together they are one shape by the rule of winding numbers. The
/// ends reach half a width beyond the first point and the last, but for those of dashes.
[[nodiscard]] std::vector<std::vector<ui::Point>> outlines_of(const std::vector<ui::Point>& line,
                                                              const Pen& pen);

/// A circle as an outline that turns the same way, round to a tenth of a dot.
[[nodiscard]] std::vector<ui::Point> circle_of(ui::Point centre, double radius);

}  // namespace paper
