#pragma once
// What a person sees, read back from the system's controls themselves; it must equal what the screen's
// controls hold.

#include <string>
#include <vector>

#include "ui/dump.h"
#include "win32/screen_window.h"

namespace tests {

/// One view per control, in the screen's order.
[[nodiscard]] std::vector<ui::ControlView> widget_views(const win32::ScreenWindow& window);

/// The same read from the controls, brought to what a widget can show: line ends are "\n", a picture
/// is its file.
[[nodiscard]] std::vector<ui::ControlView> control_views(const ui::Screen& screen);

/// Both with the title and the menu, line by line; `when` is said of each that differs.
void expect_in_step(const win32::ScreenWindow& window, const ui::Screen& screen,
                    const std::string& when);

}  // namespace tests
