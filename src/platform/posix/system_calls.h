#pragma once
// The system calls that the files port makes, as one table, so that a test can let each of them
// fail in turn or end the process between any two.

#include <dirent.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/types.h>

#include <cstddef>

namespace platform::posix {

/// Each function is the system call of its name and reports as it does: -1 (a null pointer) and
/// errno.
class SystemCalls {
 public:
  virtual ~SystemCalls() = default;
  virtual int open(const char* path, int flags, mode_t mode);
  virtual int close(int file);
  virtual ssize_t read(int file, void* into, std::size_t size);
  virtual ssize_t write(int file, const void* from, std::size_t size);
  virtual int fsync(int file);
  virtual int ftruncate(int file, off_t size);
  /// Exclusive lock on the whole file, which every copy of the program respects.
  virtual int lock(int file);
  /// Sets disk room aside behind the end of the file without changing its size.
  virtual int reserve(int file, off_t from, off_t size);
  virtual int fchmod(int file, mode_t mode);
  virtual int fstat(int file, struct stat* into);
  virtual int stat(const char* path, struct stat* into);
  virtual int lstat(const char* path, struct stat* into);
  virtual int access(const char* path, int mode);
  virtual int chmod(const char* path, mode_t mode);
  virtual int rename(const char* from, const char* to);
  virtual int unlink(const char* path);
  virtual int mkdir(const char* path, mode_t mode);
  virtual int rmdir(const char* path);
  virtual int statvfs(const char* path, struct statvfs* into);
  virtual DIR* opendir(const char* path);
  /// Null at the end with errno 0.
  virtual dirent* readdir(DIR* folder);
  virtual int closedir(DIR* folder);
};

}  // namespace platform::posix
