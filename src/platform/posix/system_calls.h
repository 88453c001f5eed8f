#pragma once
// The system calls that the files port makes, as one table, so that a test can let each of them
// fail in turn or end the process between any two.

#include <dirent.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/types.h>

#include <cstddef>
#include <cstdint>

namespace platform::posix {

/// Each function is the system call of its name and reports as it does: -1 (a null pointer) and
/// errno.
class SystemCalls {
 public:
  virtual ~SystemCalls() = default;
  virtual int open(const char* path, int flags, mode_t mode);
  virtual int close(int file);
  virtual ssize_t read(int file, void* into, std::size_t size);
  virtual ssize_t read_at(int file, void* into, std::size_t size, off_t from);
  virtual ssize_t write(int file, const void* from, std::size_t size);
  virtual int fsync(int file);
  virtual int ftruncate(int file, off_t size);
  /// Exclusive lock on the whole file, which every copy of the program respects; never waits.
  virtual int lock(int file);
  /// The same, but EWOULDBLOCK when another copy has it.
  virtual int try_lock(int file);
  /// Sets disk room aside behind the end of the file without changing its size.
  virtual int reserve(int file, off_t from, off_t size);
  /// What was flushed of the file need not be remembered: the next read asks the medium. -1 where
  /// that can not be said.
  virtual int forget_cached(int file);
  virtual int fchmod(int file, mode_t mode);
  virtual int fstat(int file, struct stat* into);
  virtual int stat(const char* path, struct stat* into);
  virtual int lstat(const char* path, struct stat* into);
  virtual int access(const char* path, int mode);
  virtual int chmod(const char* path, mode_t mode);
  virtual int rename(const char* from, const char* to);
  /// A rename that fails with EEXIST where something of the new name is.
  virtual int rename_new(const char* from, const char* to);
  virtual int link(const char* from, const char* to);
  virtual int unlink(const char* path);
  virtual int mkdir(const char* path, mode_t mode);
  virtual int rmdir(const char* path);
  virtual int statvfs(const char* path, struct statvfs* into);
  virtual DIR* opendir(const char* path);
  /// Null at the end with errno 0.
  virtual dirent* readdir(DIR* folder);
  virtual int closedir(DIR* folder);
  /// Signal 0: only asks whether there is such a process.
  virtual int ask_process(pid_t process);
  /// Milliseconds of a clock that is never set.
  virtual std::int64_t now();
  virtual void pause(int milliseconds);
};

}  // namespace platform::posix
