#pragma once
// Where a window stands on the display, and the text by which it is kept.

#include <optional>
#include <string>
#include <string_view>

#include "ui/placing.h"

namespace ui {

/// In the front end's own points, from the upper left corner of the display; a display left of that
/// one has places below 0. Of a maximised window: where it stands when it no longer is.
struct WindowPlace {
  Place place;
  bool maximised = false;
  bool operator==(const WindowPlace&) const = default;
};

/// "100 50 1200 700 0": left, top, width, height, 1 when it is maximised.
[[nodiscard]] std::string text_of(const WindowPlace& window);

/// The way back. Nothing for a text that is no place: other than five whole numbers, sizes that are
/// not above 0, numbers that no display has. Any bytes are survived.
[[nodiscard]] std::optional<WindowPlace> window_place(std::string_view text);

}  // namespace ui
