#pragma once
// System calls of which any one can be made to fail, to be interrupted, to write only a part, or
// never to happen because the process ends before it.

#include <unistd.h>

#include <cerrno>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/posix/system_calls.h"

namespace tests {

/// What a lock says where the file system has none to give.
inline constexpr int kNoLocks[] = {ENOLCK, EOPNOTSUPP, ENOSYS, EINVAL};
/// The call that locks a claim.
inline constexpr const char* kClaimLock = "try_lock";
inline constexpr int kBrokenDisk = EIO;

class FailingCalls : public platform::posix::SystemCalls {
 public:
  static constexpr int kKilled = 99;  ///< exit status of a process that ended at kill_at()

  /// The n-th call from now on (1 = the next) fails with this errno.
  void fail_at(int n, int error_number) { fail_at_ = count_ + n, error_number_ = error_number; }
  /// The n-th call, when it is a write, puts only half of its bytes there.
  void short_at(int n) { short_at_ = count_ + n; }
  /// From the n-th call on every write fails with this errno after half of the bytes of the first.
  void full_from(int n) { short_at_ = count_ + n, full_from_ = count_ + n; }
  /// The process ends before the n-th call.
  void kill_at(int n) { kill_at_ = count_ + n; }
  /// From the n-th call on every call fails: the disk is gone.
  void die_at(int n) { die_at_ = count_ + n; }
  /// Every call of that name fails with this errno.
  void fail_all(const std::string& name, int error_number) { failing_[name] = error_number; }
  void heal() {
    failing_.clear();
    die_at_ = 0;
    fail_at_ = short_at_ = full_from_ = kill_at_ = 0;
  }

  [[nodiscard]] int count() const { return count_; }
  [[nodiscard]] const std::vector<std::string>& log() const { return log_; }

  int open(const char* path, int flags, mode_t mode) override {
    return next("open") ? SystemCalls::open(path, flags, mode) : -1;
  }
  int close(int file) override {
    const bool fine = next("close");
    const int error_number = errno;
    const int result = SystemCalls::close(file);  // the file is closed whatever is reported
    if (fine) return result;
    errno = error_number;
    return -1;
  }
  ssize_t read(int file, void* into, std::size_t size) override {
    return next("read") ? SystemCalls::read(file, into, size) : -1;
  }
  ssize_t read_at(int file, void* into, std::size_t size, off_t from) override {
    return next("read_at") ? SystemCalls::read_at(file, into, size, from) : -1;
  }
  ssize_t write(int file, const void* from, std::size_t size) override {
    if (!next("write")) return -1;
    if (full_from_ != 0 && count_ > full_from_) {
      errno = ENOSPC;
      return -1;
    }
    return SystemCalls::write(file, from, short_at_ == count_ ? size / 2 : size);
  }
  int fsync(int file) override { return next("fsync") ? SystemCalls::fsync(file) : -1; }
  int ftruncate(int file, off_t size) override {
    return next("ftruncate") ? SystemCalls::ftruncate(file, size) : -1;
  }
  int lock(int file) override { return next("lock") ? SystemCalls::lock(file) : -1; }
  int try_lock(int file) override { return next("try_lock") ? SystemCalls::try_lock(file) : -1; }
  int reserve(int file, off_t from, off_t size) override {
    return next("reserve") ? SystemCalls::reserve(file, from, size) : -1;
  }
  int forget_cached(int file) override {
    return next("forget_cached") ? SystemCalls::forget_cached(file) : -1;
  }
  int fchmod(int file, mode_t mode) override {
    return next("fchmod") ? SystemCalls::fchmod(file, mode) : -1;
  }
  int fstat(int file, struct stat* into) override {
    return next("fstat") ? SystemCalls::fstat(file, into) : -1;
  }
  int stat(const char* path, struct stat* into) override {
    return next("stat") ? SystemCalls::stat(path, into) : -1;
  }
  int lstat(const char* path, struct stat* into) override {
    return next("lstat") ? SystemCalls::lstat(path, into) : -1;
  }
  int access(const char* path, int mode) override {
    return next("access") ? SystemCalls::access(path, mode) : -1;
  }
  int chmod(const char* path, mode_t mode) override {
    return next("chmod") ? SystemCalls::chmod(path, mode) : -1;
  }
  int rename(const char* from, const char* to) override {
    return next("rename") ? SystemCalls::rename(from, to) : -1;
  }
  int rename_new(const char* from, const char* to) override {
    return next("rename_new") ? SystemCalls::rename_new(from, to) : -1;
  }
  int link(const char* from, const char* to) override {
    return next("link") ? SystemCalls::link(from, to) : -1;
  }
  int unlink(const char* path) override { return next("unlink") ? SystemCalls::unlink(path) : -1; }
  int mkdir(const char* path, mode_t mode) override {
    return next("mkdir") ? SystemCalls::mkdir(path, mode) : -1;
  }
  int rmdir(const char* path) override { return next("rmdir") ? SystemCalls::rmdir(path) : -1; }
  int statvfs(const char* path, struct statvfs* into) override {
    return next("statvfs") ? SystemCalls::statvfs(path, into) : -1;
  }
  DIR* opendir(const char* path) override {
    return next("opendir") ? SystemCalls::opendir(path) : nullptr;
  }
  dirent* readdir(DIR* folder) override {
    return next("readdir") ? SystemCalls::readdir(folder) : nullptr;
  }
  int ask_process(pid_t process) override {
    return next("ask_process") ? SystemCalls::ask_process(process) : -1;
  }
  // Time passes only while the program pauses, and then at once.
  std::int64_t now() override { return now_; }
  void pause(int milliseconds) override {
    now_ += milliseconds;
    if (while_paused) while_paused(now_);
  }
  /// Called at every pause with the milliseconds passed so far.
  std::function<void(std::int64_t)> while_paused;

 private:
  /// True when the call may go on.
  bool next(const char* name) {
    ++count_;
    log_.emplace_back(name);
    if (count_ == kill_at_) ::_exit(kKilled);
    if (const auto at = failing_.find(name); at != failing_.end()) {
      errno = at->second;
      return false;
    }
    if (die_at_ != 0 && count_ >= die_at_) {
      errno = EIO;
      return false;
    }
    if (count_ != fail_at_) return true;
    errno = error_number_;
    return false;
  }

  int count_ = 0;
  int fail_at_ = 0;
  int error_number_ = 0;
  int short_at_ = 0;
  int full_from_ = 0;
  int kill_at_ = 0;
  int die_at_ = 0;
  std::map<std::string, int> failing_;
  std::int64_t now_ = 0;
  std::vector<std::string> log_;
};

}  // namespace tests
