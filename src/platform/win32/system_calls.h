#pragma once
// The system calls that the files port makes, as one table, so that a test can let each of them
// fail in turn.

#include <windows.h>

#include <cstdint>

namespace platform::win32 {

/// Each function is the system call of its name and reports as it does: false (INVALID_HANDLE_VALUE)
/// and GetLastError().
class SystemCalls {
 public:
  virtual ~SystemCalls() = default;
  /// Others may read, write, rename and delete what is opened.
  virtual HANDLE create_file(const wchar_t* path, DWORD access, DWORD disposition, DWORD flags);
  virtual bool close(HANDLE file);
  virtual bool read_at(HANDLE file, void* into, DWORD size, std::uint64_t from, DWORD& count);
  /// Behind the end, wherever that is.
  virtual bool write_at_end(HANDLE file, const void* from, DWORD size, DWORD& count);
  virtual bool flush(HANDLE file);
  virtual bool set_size(HANDLE file, std::uint64_t size);
  /// Sets disk room aside for a file of that size without changing its size.
  virtual bool reserve(HANDLE file, std::uint64_t size);
  /// Exclusive lock that every copy of the program respects; never waits. It lies far behind any
  /// content, for a lock keeps others from reading here.
  virtual bool lock(HANDLE file);
  virtual DWORD file_type(HANDLE file);
  virtual bool about(HANDLE file, BY_HANDLE_FILE_INFORMATION& into);
  /// Of the name itself: a link is not followed.
  virtual bool attributes(const wchar_t* path, WIN32_FILE_ATTRIBUTE_DATA& into);
  virtual bool set_attributes(const wchar_t* path, DWORD attributes);
  virtual bool move(const wchar_t* from, const wchar_t* to, DWORD flags);
  virtual bool delete_file(const wchar_t* path);
  virtual bool create_folder(const wchar_t* path);
  virtual bool remove_folder(const wchar_t* path);
  virtual bool free_space(const wchar_t* folder, std::uint64_t& into);
  virtual HANDLE find_first(const wchar_t* pattern, WIN32_FIND_DATAW& into);
  virtual bool find_next(HANDLE search, WIN32_FIND_DATAW& into);
  virtual bool find_close(HANDLE search);
  /// Whether there is such a process; true where one cannot tell.
  virtual bool is_running(DWORD process);
  /// True when the last refusal was of a file that somebody deleted and somebody still has open.
  virtual bool is_being_deleted();
  /// Milliseconds of a clock that is never set.
  virtual std::int64_t now();
  virtual void pause(int milliseconds);
};

}  // namespace platform::win32
