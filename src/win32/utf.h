#pragma once
// Between the program's texts and the system's.

#include "platform/win32/wide.h"

namespace win32 {

using platform::win32::narrow;
using platform::win32::wide;

}  // namespace win32
