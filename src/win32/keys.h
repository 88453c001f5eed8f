#pragma once
// Keys of the system as the program names them.

#include "win32/system.h"

#include <optional>
#include <string>

#include "ui/screen.h"

namespace win32 {

/// A key with those that are held with it.
struct Pressed {
  WPARAM key = 0;
  bool control = false;
  bool alt = false;
  bool shift = false;
  [[nodiscard]] bool plain() const { return !control && !alt && !shift; }
};

/// The key of a WM_KEYDOWN or WM_SYSKEYDOWN.
[[nodiscard]] Pressed pressed(const MSG& message);

/// "Ctrl+Shift+C", "F7"; empty for a key that no shortcut has, and for one that writes something.
[[nodiscard]] std::string name_of(const Pressed& pressed);

/// A key that means the same in every field of a window.
[[nodiscard]] std::optional<ui::Key> window_key(const Pressed& pressed);
/// A key for the line of a control; a field that is typed into moves its caret with them.
[[nodiscard]] std::optional<ui::Key> line_key(const Pressed& pressed);
/// Tab, or Tab with Shift.
[[nodiscard]] std::optional<ui::Key> tab_key(const Pressed& pressed);

/// What a WM_CHAR writes, empty for what writes nothing. Space is not among it: it presses.
[[nodiscard]] std::string written(const MSG& message);

}  // namespace win32
