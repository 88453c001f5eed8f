#pragma once
// Ice around the ship as a drawing, from a code of the report. Any text is survived; what is no
// figure of the table is drawn as nothing known.

#include <string_view>

#include "text/texts.h"
#include "ui/drawing.h"

namespace codetables {

/// The bearing of the ice edge (Di): a rose with the ship in the middle, the ice beyond its edge.
[[nodiscard]] ui::Drawing ice_edge(std::string_view figures, text::Language language);

/// Concentration or arrangement of sea ice (ci): floes on the water, as many tenths of it as the
/// line says; those between its least and its most are outlined only. Above it the figure.
[[nodiscard]] ui::Drawing ice_field(std::string_view figures);

}  // namespace codetables
