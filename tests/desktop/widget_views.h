#pragma once
// What a person sees, read back from the widgets themselves; it must equal what the screen's
// controls hold.

#include <vector>

#include "desktop/screen_window.h"
#include "ui/dump.h"

namespace tests {

/// One view per control, in the screen's order.
[[nodiscard]] std::vector<ui::ControlView> widget_views(const desktop::ScreenWindow& window);

/// The same read from the controls, brought to what a widget can show: line ends are "\n", a
/// picture is its file.
[[nodiscard]] std::vector<ui::ControlView> control_views(const ui::Screen& screen);

}  // namespace tests
