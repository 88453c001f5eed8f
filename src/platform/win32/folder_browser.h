#pragma once
// The system's own folder browser.

#include <optional>
#include <string>

namespace platform::win32 {

/// A folder of this computer (a share too) that the person chooses, or nothing when he gives up or
/// there is no browser. `initial` is shown first where it is there; `owner` is the window in front
/// of which it opens (an HWND), null for none. The thread must have been made ready for windows'
/// components (CoInitializeEx, apartment threaded).
[[nodiscard]] std::optional<std::string> browse_for_folder(void* owner, const std::string& caption,
                                                           const std::string& initial);

}  // namespace platform::win32
