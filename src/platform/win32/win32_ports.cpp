#include "platform/win32/win32_ports.h"

#include <windows.h>

#include <shellapi.h>

#include "platform/system/options.h"
#include "platform/win32/wide.h"

namespace platform::win32 {

namespace {

DateTime date_time_of(const SYSTEMTIME& when) {
  return {when.wYear, when.wMonth, when.wDay, when.wHour, when.wMinute, when.wSecond};
}

SYSTEMTIME system_time_of(const DateTime& when) {
  SYSTEMTIME result{};
  result.wYear = static_cast<WORD>(when.year);
  result.wMonth = static_cast<WORD>(when.month);
  result.wDay = static_cast<WORD>(when.day);
  result.wHour = static_cast<WORD>(when.hour);
  result.wMinute = static_cast<WORD>(when.minute);
  result.wSecond = static_cast<WORD>(when.second);
  return result;
}

bool is_regular_file(const std::string& os_path) {
  const auto path = wide_path(os_path);
  const DWORD found =
      path.ok() ? ::GetFileAttributesW(path.value->c_str()) : INVALID_FILE_ATTRIBUTES;
  return found != INVALID_FILE_ATTRIBUTES && (found & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace

// ---- Clock

DateTime Win32Clock::utc() const {
  if (stopped_) return *stopped_;
  SYSTEMTIME now{};
  ::GetSystemTime(&now);
  return date_time_of(now);
}

DateTime Win32Clock::local() const {
  // By the zone's rules of that day, not of today.
  const SYSTEMTIME when = system_time_of(utc());
  SYSTEMTIME result{};
  return ::SystemTimeToTzSpecificLocalTime(nullptr, &when, &result) == 0 ? DateTime{}
                                                                         : date_time_of(result);
}

// ---- Locale

Win32Locale::Win32Locale(std::string_view name)
    : id_(name.empty() ? LANGIDFROMLCID(::GetUserDefaultLCID()) : locale_id_of(name)) {}

// ---- Help

Win32Help::Win32Help(const PathMap& map, Open open)
    : UnpackedHelp(map, is_regular_file, std::move(open)) {}

bool Win32Help::open_in_viewer(const std::string& os_path) {
  const auto page = to_wide(os_path);
  if (!page) return false;
  SHELLEXECUTEINFOW what{};
  what.cbSize = sizeof what;
  // What fails is told by the program, not by a window of the system's.
  what.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
  what.lpFile = page->c_str();
  what.nShow = SW_SHOWNORMAL;
  return ::ShellExecuteExW(&what) != 0;
}

}  // namespace platform::win32
