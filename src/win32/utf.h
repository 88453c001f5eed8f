#pragma once
// Between the program's texts (UTF-8) and the system's (UTF-16). What is not well-formed becomes the
// sign for that, so that the rest of a text is shown all the same.

#include <string>
#include <string_view>

namespace win32 {

[[nodiscard]] std::wstring wide(std::string_view utf8);
[[nodiscard]] std::string narrow(std::wstring_view utf16);

}  // namespace win32
