#pragma once
// Between the program's texts (UTF-8) and the system's (UTF-16).

#include <optional>
#include <string>
#include <string_view>

#include "platform/ports.h"

namespace platform::win32 {

/// Nothing for what is not well-formed.
[[nodiscard]] std::optional<std::wstring> to_wide(std::string_view text);
[[nodiscard]] std::optional<std::string> to_utf8(std::wstring_view text);

/// The same for what is shown: what is not well-formed becomes the sign for that, and the rest of the
/// text is shown all the same.
[[nodiscard]] std::wstring wide(std::string_view text);
[[nodiscard]] std::string narrow(std::wstring_view text);

/// The path as a call takes it, also where it is longer than older calls allow; kBadName for a text
/// that no path can be.
[[nodiscard]] Result<std::wstring> wide_path(const std::string& os_path);

}  // namespace platform::win32
