#pragma once
// What a screen reader says of a window: its name and what there is to know of it, where the system
// would say less.

#include "win32/system.h"

#include <string>

namespace win32 {

/// From now on. Nothing happens where the system cannot be told.
void say_of(HWND window, const std::wstring& name, const std::wstring& state);
/// Before the window goes: the system keeps what was said of it.
void say_no_more(HWND window);

}  // namespace win32
