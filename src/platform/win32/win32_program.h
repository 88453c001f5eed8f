#pragma once
// Programs and their command lines on Windows.

#include <optional>
#include <string>

namespace platform::win32 {

/// Path of the program that runs.
[[nodiscard]] std::optional<std::string> executable();

/// A word of a command line so that the program that is started reads it as it is.
[[nodiscard]] std::wstring quoted(const std::wstring& word);

}  // namespace platform::win32
