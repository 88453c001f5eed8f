#include "platform/posix/system_calls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <ctime>

namespace platform::posix {

int SystemCalls::open(const char* path, int flags, mode_t mode) {
  // The help viewer is another process: it must not inherit the logbook, and with it the lock.
  return ::open(path, flags | O_CLOEXEC, mode);
}
int SystemCalls::close(int file) {
  return ::close(file);
}
ssize_t SystemCalls::read(int file, void* into, std::size_t size) {
  return ::read(file, into, size);
}
ssize_t SystemCalls::read_at(int file, void* into, std::size_t size, off_t from) {
  return ::pread(file, into, size, from);
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
  // Not fcntl: that lock ends when the process closes the file anywhere, as reading it does.
  return ::flock(file, LOCK_EX | LOCK_NB);
}
int SystemCalls::try_lock(int file) {
  return ::flock(file, LOCK_EX | LOCK_NB);
}
int SystemCalls::reserve(int file, off_t from, off_t size) {
  // posix_fallocate would change the size and, where it is not supported, write zeros.
  return ::fallocate(file, FALLOC_FL_KEEP_SIZE, from, size);
}
int SystemCalls::forget_cached(int file) {
  return ::posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED) == 0 ? 0 : -1;
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
int SystemCalls::rename_new(const char* from, const char* to) {
  return ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE);
}
int SystemCalls::link(const char* from, const char* to) {
  return ::link(from, to);
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
  // Else nobody could tell the end of the folder from an error.
  errno = 0;
  return ::readdir(folder);
}
int SystemCalls::closedir(DIR* folder) {
  return ::closedir(folder);
}
int SystemCalls::ask_process(pid_t process) {
  return ::kill(process, 0);
}
std::int64_t SystemCalls::now() {
  timespec time{};
  // The officer may set the computer's clock while a save waits.
  (void)::clock_gettime(CLOCK_MONOTONIC, &time);
  return std::int64_t{time.tv_sec} * 1000 + time.tv_nsec / 1000000;
}
void SystemCalls::pause(int milliseconds) {
  const timespec time{milliseconds / 1000, milliseconds % 1000 * 1000000L};
  (void)::nanosleep(&time, nullptr);
}

}  // namespace platform::posix
