#include "platform/posix/system_calls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace platform::posix {

int SystemCalls::open(const char* path, int flags, mode_t mode) {
  return ::open(path, flags | O_CLOEXEC, mode);
}
int SystemCalls::close(int file) {
  return ::close(file);
}
ssize_t SystemCalls::read(int file, void* into, std::size_t size) {
  return ::read(file, into, size);
}
ssize_t SystemCalls::write(int file, const void* from, std::size_t size) {
  return ::write(file, from, size);
}
int SystemCalls::fsync(int file) {
  return ::fsync(file);
}
int SystemCalls::ftruncate(int file, off_t size) {
  return ::ftruncate(file, size);
}
int SystemCalls::lock(int file) {
  return ::flock(file, LOCK_EX);
}
int SystemCalls::reserve(int file, off_t from, off_t size) {
  return ::fallocate(file, FALLOC_FL_KEEP_SIZE, from, size);
}
int SystemCalls::fchmod(int file, mode_t mode) {
  return ::fchmod(file, mode);
}
int SystemCalls::fstat(int file, struct stat* into) {
  return ::fstat(file, into);
}
int SystemCalls::stat(const char* path, struct stat* into) {
  return ::stat(path, into);
}
int SystemCalls::lstat(const char* path, struct stat* into) {
  return ::lstat(path, into);
}
int SystemCalls::access(const char* path, int mode) {
  return ::access(path, mode);
}
int SystemCalls::chmod(const char* path, mode_t mode) {
  return ::chmod(path, mode);
}
int SystemCalls::rename(const char* from, const char* to) {
  return ::rename(from, to);
}
int SystemCalls::unlink(const char* path) {
  return ::unlink(path);
}
int SystemCalls::mkdir(const char* path, mode_t mode) {
  return ::mkdir(path, mode);
}
int SystemCalls::rmdir(const char* path) {
  return ::rmdir(path);
}
int SystemCalls::statvfs(const char* path, struct statvfs* into) {
  return ::statvfs(path, into);
}
DIR* SystemCalls::opendir(const char* path) {
  return ::opendir(path);
}
dirent* SystemCalls::readdir(DIR* folder) {
  errno = 0;
  return ::readdir(folder);
}
int SystemCalls::closedir(DIR* folder) {
  return ::closedir(folder);
}

}  // namespace platform::posix
