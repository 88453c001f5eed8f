#include "ui/front_end.h"

#include <algorithm>
#include <exception>

namespace ui {

void watched(Screen& screen, const std::function<void()>& call,
             const std::function<void()>& failed) {
  try {
    call();
  } catch (...) {
    const std::exception_ptr thrown = std::current_exception();
    try {
      if (failed) failed();
      screen.event_failed(thrown);
    } catch (...) {  // NOLINT(bugprone-empty-catch)
      // There is no room even for the message; what was entered is in the screen all the same.
    }
  }
}

void tell_idle(std::vector<Screen*> open) {
  for (Screen* const screen : open) watched(*screen, [screen] { screen->idle(); });
}

int until_pause(long long since_first) {
  constexpr long long kPause = 500;
  constexpr long long kLongest = 1500;
  return static_cast<int>(std::clamp(kLongest - since_first, 0LL, kPause));
}

}  // namespace ui
