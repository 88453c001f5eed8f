#pragma once
// A person at the keyboard: real messages, which go through the program's own loop.

#include "win32/system.h"

#include <string>
#include <string_view>

#include "win32/loop.h"
#include "win32/utf.h"

namespace tests {

/// Which keys are held.
inline void hold(bool shift, bool control, bool alt) {
  BYTE state[256]{};
  if (shift) state[VK_SHIFT] = state[VK_LSHIFT] = 0x80;
  if (control) state[VK_CONTROL] = state[VK_LCONTROL] = 0x80;
  if (alt) state[VK_MENU] = state[VK_LMENU] = 0x80;
  SetKeyboardState(state);
}

/// A key to whatever has the focus, and what comes of it.
inline void press(WPARAM key, bool shift = false, bool control = false) {
  hold(shift, control, false);
  const HWND focus = GetFocus();
  const auto scan = static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC))
                    << 16;
  PostMessageW(focus, WM_KEYDOWN, key, 1 | scan);
  win32::deal_with_waiting();
  if (IsWindow(focus) != FALSE)
    PostMessageW(focus, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001) | scan);
  win32::deal_with_waiting();
  hold(false, false, false);
}

/// Keys of a text to whatever has the focus then.
inline void type(std::string_view text) {
  for (const wchar_t c : win32::wide(text)) {
    const SHORT key = VkKeyScanW(c);
    if (key == -1) {
      // An input method gives what no key writes.
      PostMessageW(GetFocus(), WM_CHAR, c, 1);
      win32::deal_with_waiting();
      continue;
    }
    press(static_cast<WPARAM>(key & 0xFF), (key & 0x100) != 0);
  }
}

}  // namespace tests
