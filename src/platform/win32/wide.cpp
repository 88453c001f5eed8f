#include "platform/win32/wide.h"

#include <windows.h>

#include <algorithm>

namespace platform::win32 {

namespace {

// Nothing where the system refuses it by these flags.
std::optional<std::wstring> to_utf16_by(DWORD flags, std::string_view text) {
  if (text.empty()) return std::wstring();
  const int size = static_cast<int>(text.size());
  const int length = ::MultiByteToWideChar(CP_UTF8, flags, text.data(), size, nullptr, 0);
  if (length <= 0) return std::nullopt;
  std::wstring result(static_cast<std::size_t>(length), L'\0');
  (void)::MultiByteToWideChar(CP_UTF8, flags, text.data(), size, result.data(), length);
  return result;
}

std::optional<std::string> to_utf8_by(DWORD flags, std::wstring_view text) {
  if (text.empty()) return std::string();
  const int size = static_cast<int>(text.size());
  const int length =
      ::WideCharToMultiByte(CP_UTF8, flags, text.data(), size, nullptr, 0, nullptr, nullptr);
  if (length <= 0) return std::nullopt;
  std::string result(static_cast<std::size_t>(length), '\0');
  (void)::WideCharToMultiByte(CP_UTF8, flags, text.data(), size, result.data(), length, nullptr,
                              nullptr);
  return result;
}

}  // namespace

std::optional<std::wstring> to_wide(std::string_view text) {
  return to_utf16_by(MB_ERR_INVALID_CHARS, text);
}

std::optional<std::string> to_utf8(std::wstring_view text) {
  return to_utf8_by(WC_ERR_INVALID_CHARS, text);
}

std::wstring wide(std::string_view text) {
  return to_utf16_by(0, text).value_or(L"");
}

std::string narrow(std::wstring_view text) {
  return to_utf8_by(0, text).value_or("");
}

namespace {

// No file system here takes a longer one; what a call says of it differs.
bool has_too_long_name(std::wstring_view path) {
  constexpr std::size_t kLongestName = 255;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of(L"\\/"), path.size());
    if (end > kLongestName) return true;
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return false;
}

}  // namespace

Result<std::wstring> wide_path(const std::string& os_path) {
  auto path = to_wide(os_path);
  if (!path || path->empty() || path->find(L'\0') != std::wstring::npos || has_too_long_name(*path))
    return FileError::kBadName;
  // A folder needs room for a short name below it.
  constexpr std::size_t kLongest = MAX_PATH - 14;
  if (path->size() < kLongest || path->starts_with(L"\\\\?\\")) return *path;
  // Behind the mark nothing is done to a path any more, so it is put in order first.
  const DWORD needed = ::GetFullPathNameW(path->c_str(), 0, nullptr, nullptr);
  std::wstring whole(needed, L'\0');
  const DWORD length = ::GetFullPathNameW(path->c_str(), needed, whole.data(), nullptr);
  if (needed == 0 || length == 0 || length >= needed) return FileError::kBadName;
  whole.resize(length);
  if (whole.starts_with(L"\\\\")) return L"\\\\?\\UNC" + whole.substr(1);
  return L"\\\\?\\" + whole;
}

}  // namespace platform::win32
