#pragma once
// What every front end with windows does around the events that it tells a screen of.

#include <functional>
#include <vector>

#include "ui/screen.h"

namespace ui {

/// Makes the call. No exception leaves it, for none may cross the code of a system or a toolkit:
/// `failed` is called and the person is told (Screen::event_failed).
void watched(Screen& screen, const std::function<void()>& call,
             const std::function<void()>& failed = {});

/// Tells each of these that the person pauses (Screen::idle). By value, as a message that a screen
/// shows may be there for long.
void tell_idle(std::vector<Screen*> open);

/// How long after a key or click the person is taken to pause, unless another comes. Who never
/// pauses is not waited for longer than a second and a half after the first of a row of them, which
/// was so long ago. Milliseconds.
[[nodiscard]] int until_pause(long long since_first);

}  // namespace ui
