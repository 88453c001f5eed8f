#include "platform/win32/system_calls.h"

#include <winternl.h>

// Of the system's lowest library; the header above does not declare it.
extern "C" NTSTATUS NTAPI RtlGetLastNtStatus();

namespace platform::win32 {

namespace {

OVERLAPPED at(std::uint64_t place) {
  OVERLAPPED result{};
  constexpr unsigned kHalf = 32;
  result.Offset = static_cast<DWORD>(place & 0xFFFFFFFFU);
  result.OffsetHigh = static_cast<DWORD>(place >> kHalf);
  return result;
}

}  // namespace

HANDLE SystemCalls::create_file(const wchar_t* path, DWORD access, DWORD disposition, DWORD flags) {
  // No security attributes: the help viewer is another process and must not inherit the logbook,
  // and with it the lock.
  return ::CreateFileW(path, access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                       nullptr, disposition, flags, nullptr);
}
bool SystemCalls::close(HANDLE file) {
  return ::CloseHandle(file) != 0;
}
bool SystemCalls::read_at(HANDLE file, void* into, DWORD size, std::uint64_t from, DWORD& count) {
  OVERLAPPED place = at(from);
  if (::ReadFile(file, into, size, &count, &place) != 0) return true;
  count = 0;
  return ::GetLastError() == ERROR_HANDLE_EOF;
}
bool SystemCalls::write_at_end(HANDLE file, const void* from, DWORD size, DWORD& count) {
  OVERLAPPED place = at(~std::uint64_t{0});
  return ::WriteFile(file, from, size, &count, &place) != 0;
}
bool SystemCalls::flush(HANDLE file) {
  return ::FlushFileBuffers(file) != 0;
}
bool SystemCalls::set_size(HANDLE file, std::uint64_t size) {
  FILE_END_OF_FILE_INFO end{};
  end.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
  return ::SetFileInformationByHandle(file, FileEndOfFileInfo, &end, sizeof end) != 0;
}
bool SystemCalls::reserve(HANDLE file, std::uint64_t size) {
  FILE_ALLOCATION_INFO room{};
  room.AllocationSize.QuadPart = static_cast<LONGLONG>(size);
  return ::SetFileInformationByHandle(file, FileAllocationInfo, &room, sizeof room) != 0;
}
bool SystemCalls::lock(HANDLE file) {
  OVERLAPPED place = at(std::uint64_t{1} << 62U);
  return ::LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) !=
         0;
}
DWORD SystemCalls::file_type(HANDLE file) {
  return ::GetFileType(file);
}
bool SystemCalls::about(HANDLE file, BY_HANDLE_FILE_INFORMATION& into) {
  return ::GetFileInformationByHandle(file, &into) != 0;
}
bool SystemCalls::attributes(const wchar_t* path, WIN32_FILE_ATTRIBUTE_DATA& into) {
  return ::GetFileAttributesExW(path, GetFileExInfoStandard, &into) != 0;
}
bool SystemCalls::set_attributes(const wchar_t* path, DWORD attributes) {
  return ::SetFileAttributesW(path, attributes) != 0;
}
bool SystemCalls::move(const wchar_t* from, const wchar_t* to, DWORD flags) {
  return ::MoveFileExW(from, to, flags) != 0;
}
bool SystemCalls::delete_file(const wchar_t* path) {
  return ::DeleteFileW(path) != 0;
}
bool SystemCalls::create_folder(const wchar_t* path) {
  return ::CreateDirectoryW(path, nullptr) != 0;
}
bool SystemCalls::remove_folder(const wchar_t* path) {
  return ::RemoveDirectoryW(path) != 0;
}
bool SystemCalls::free_space(const wchar_t* folder, std::uint64_t& into) {
  ULARGE_INTEGER free{};
  if (::GetDiskFreeSpaceExW(folder, &free, nullptr, nullptr) == 0) return false;
  into = free.QuadPart;
  return true;
}
HANDLE SystemCalls::find_first(const wchar_t* pattern, WIN32_FIND_DATAW& into) {
  return ::FindFirstFileExW(pattern, FindExInfoBasic, &into, FindExSearchNameMatch, nullptr, 0);
}
bool SystemCalls::find_next(HANDLE search, WIN32_FIND_DATAW& into) {
  return ::FindNextFileW(search, &into) != 0;
}
bool SystemCalls::find_close(HANDLE search) {
  return ::FindClose(search) != 0;
}
bool SystemCalls::is_running(DWORD process) {
  const HANDLE opened = ::OpenProcess(SYNCHRONIZE, FALSE, process);
  // One that may not be asked is one that lives.
  if (opened == nullptr) return ::GetLastError() != ERROR_INVALID_PARAMETER;
  const bool runs = ::WaitForSingleObject(opened, 0) != WAIT_OBJECT_0;
  (void)::CloseHandle(opened);
  return runs;
}
bool SystemCalls::is_being_deleted() {
  constexpr auto kDeletePending = static_cast<NTSTATUS>(0xC0000056L);
  return ::RtlGetLastNtStatus() == kDeletePending;
}
std::int64_t SystemCalls::now() {
  // The officer may set the computer's clock while a save waits.
  return static_cast<std::int64_t>(::GetTickCount64());
}
void SystemCalls::pause(int milliseconds) {
  ::Sleep(static_cast<DWORD>(milliseconds));
}

}  // namespace platform::win32
