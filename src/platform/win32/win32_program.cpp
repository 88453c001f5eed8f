#include "platform/win32/win32_program.h"

#include <windows.h>

#include "platform/win32/wide.h"

namespace platform::win32 {

std::optional<std::string> executable() {
  constexpr std::size_t kLongest = 32768;
  std::wstring path(kLongest, L'\0');
  const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  if (length == 0 || length >= path.size()) return std::nullopt;
  path.resize(length);
  return to_utf8(path);
}

std::wstring quoted(const std::wstring& word) {
  if (!word.empty() && word.find_first_of(L" \t\"") == std::wstring::npos) return word;
  std::wstring result = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : word) {
    // Backslashes count only before a quotation mark, and there each of them must stand twice.
    if (c == L'"') result.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    result.push_back(c);
  }
  return result.append(backslashes, L'\\').append(L"\"");
}

}  // namespace platform::win32
