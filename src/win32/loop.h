#pragma once
// The program's message loop. Each message of the keyboard goes to the window that it is for before
// the control that has the focus gets it; a window asks to be told by set_filter().

#include "win32/system.h"

#include <functional>

namespace win32 {

class Filter {
 public:
  virtual ~Filter() = default;
  /// A message to a control of the window, before the control has it. True: it was dealt with.
  virtual bool filter(const MSG& message) = 0;
};

/// nullptr for none any more.
void set_filter(HWND window, Filter* filter);

/// Told of each message that a loop of the program takes; nullptr for nobody.
void set_watch(std::function<void(const MSG&)> told);

/// Deals with one message.
void deal_with(const MSG& message);

/// Deals with messages, and waits for them, until `done`. False when the program is to end.
bool run_until(const std::function<bool()>& done);

/// Deals with what has come already.
void deal_with_waiting();

}  // namespace win32
