#pragma once
// A person at the keyboard: real messages, which go through the program's own loop.

#include "win32/system.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

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

/// A key with Alt to whatever has the focus, and what comes of it.
inline void press_with_alt(char letter) {
  const HWND focus = GetFocus();
  constexpr LPARAM kWithAlt = 1 << 29;
  hold(false, false, true);
  PostMessageW(focus, WM_SYSKEYDOWN, VK_MENU, 1 | kWithAlt);
  PostMessageW(focus, WM_SYSCHAR, static_cast<WPARAM>(letter), 1 | kWithAlt);
  win32::deal_with_waiting();
  hold(false, false, false);
}

/// A key that some loop takes when it asks for the next message.
inline void post_key(WPARAM key) {
  PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
}
inline void post_letter(char letter) {
  PostMessageW(GetFocus(), WM_CHAR, static_cast<WPARAM>(letter), 1);
}

/// What a person does, one after the other, while the system or the program waits in a loop of its own:
/// in a menu, a message, a dialog. All of it must have been done in the end.
class InTurn {
 public:
  using Act = std::function<void()>;

  /// It begins as soon as it is `ready`, without that at once.
  explicit InTurn(std::deque<Act> acts, std::function<bool()> ready = nullptr)
      : acts_(std::move(acts)), ready_(std::move(ready)) {
    current() = this;
    constexpr UINT kPause = 60;
    timer_ = SetTimer(nullptr, 0, kPause, next);
  }
  ~InTurn() {
    KillTimer(nullptr, timer_);
    current() = nullptr;
    EXPECT_TRUE(acts_.empty()) << acts_.size() << " left to do";
  }
  InTurn(const InTurn&) = delete;
  InTurn& operator=(const InTurn&) = delete;

 private:
  static InTurn*& current() {
    static InTurn* one = nullptr;
    return one;
  }
  static void CALLBACK next(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*now*/) {
    InTurn* const self = current();
    if (self == nullptr || (self->ready_ && !self->ready_())) return;
    if (self->acts_.empty()) {
      // A menu that stays open would wait for ever.
      constexpr int kPatience = 50;
      if (++self->waited_ == kPatience) {
        ADD_FAILURE() << "something still waits";
        EndMenu();
      }
      return;
    }
    const Act act = std::move(self->acts_.front());
    self->acts_.pop_front();
    act();
  }

  std::deque<Act> acts_;
  std::function<bool()> ready_;
  UINT_PTR timer_ = 0;
  int waited_ = 0;
};

}  // namespace tests
