#pragma once
// The services of a program whose windows are real ones; everything else is a fake.

#include <functional>
#include <string>

#include "fakes/fake_ports.h"
#include "keyboard.h"
#include "win32/screen_window.h"
#include "win32/widgets.h"
#include "win32/windows_port.h"

namespace tests {

struct RealWorld {
  win32::WindowsPort windows{{}};
  fakes::World fake;
  ui::Messages messages{fake.texts, windows};
  ui::Services services{fake.clock, fake.locale, fake.drives, fake.no_files, fake.code_page,
                        fake.printer, windows, fake.texts, messages, fake.help,
                        // Tests tell each Tab themselves.
                        false};
};

/// A screen on the display, which gets keys and clicks and nothing else.
class OnDisplay {
 public:
  explicit OnDisplay(ui::Screen& screen) : screen_(opened(screen)), window(screen_, nullptr) {
    window.show_up();
    win32::deal_with_waiting();
  }

 private:
  static ui::Screen& opened(ui::Screen& screen) {
    screen.open();
    return screen;
  }
  ui::Screen& screen_;

 public:
  win32::ScreenWindow window;
};

/// A click at this place of a window, in its own pixels.
inline void click(HWND window, int x = 3, int y = 3) {
  const LPARAM at = MAKELPARAM(x, y);
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, at);
  win32::deal_with_waiting();
  PostMessageW(window, WM_LBUTTONUP, 0, at);
  win32::deal_with_waiting();
}

}  // namespace tests
