#pragma once
// System calls of which any one can be made to fail, to write only a part, or never to happen
// because the process ended before it.

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/win32/system_calls.h"

namespace tests {

/// What a lock says where the file system has none to give.
inline constexpr DWORD kNoLocks[] = {ERROR_NOT_SUPPORTED, ERROR_INVALID_FUNCTION};
/// The call that locks a claim.
inline constexpr const char* kClaimLock = "lock";
inline constexpr DWORD kBrokenDisk = ERROR_CRC;

class FailingCalls : public platform::win32::SystemCalls {
 public:
  /// The n-th call from now on (1 = the next) fails with this error.
  void fail_at(int n, DWORD error_number) { fail_at_ = count_ + n, error_number_ = error_number; }
  /// The n-th call, when it is a write, puts only half of its bytes there.
  void short_at(int n) { short_at_ = count_ + n; }
  /// The process ends before the n-th call: from there on nothing is done any more, but that the
  /// system closes what was open.
  void kill_at(int n) { kill_at_ = count_ + n; }
  /// Every call of that name fails with this error.
  void fail_all(const std::string& name, DWORD error_number) { failing_[name] = error_number; }
  void heal() {
    failing_.clear();
    fail_at_ = short_at_ = kill_at_ = 0;
  }

  [[nodiscard]] int count() const { return count_; }
  [[nodiscard]] const std::vector<std::string>& log() const { return log_; }
  /// How many handles are open.
  [[nodiscard]] int open_files() const { return open_files_; }

  HANDLE create_file(const wchar_t* path, DWORD access, DWORD disposition, DWORD flags) override {
    if (!next("create_file")) return INVALID_HANDLE_VALUE;
    const HANDLE file = SystemCalls::create_file(path, access, disposition, flags);
    if (file != INVALID_HANDLE_VALUE) ++open_files_;
    return file;
  }
  bool close(HANDLE file) override {
    const bool fine = next("close");
    const DWORD why = ::GetLastError();
    --open_files_;
    const bool result = SystemCalls::close(file);  // the file is closed whatever is reported
    if (fine) return result;
    ::SetLastError(why);
    return false;
  }
  bool read_at(HANDLE file, void* into, DWORD size, std::uint64_t from, DWORD& count) override {
    return next("read_at") && SystemCalls::read_at(file, into, size, from, count);
  }
  bool write_at_end(HANDLE file, const void* from, DWORD size, DWORD& count) override {
    return next("write") &&
           SystemCalls::write_at_end(file, from, short_at_ == count_ ? size / 2 : size, count);
  }
  bool flush(HANDLE file) override { return next("flush") && SystemCalls::flush(file); }
  bool set_size(HANDLE file, std::uint64_t size) override {
    return next("set_size") && SystemCalls::set_size(file, size);
  }
  bool reserve(HANDLE file, std::uint64_t size) override {
    return next("reserve") && SystemCalls::reserve(file, size);
  }
  bool lock(HANDLE file) override { return next("lock") && SystemCalls::lock(file); }
  bool about(HANDLE file, BY_HANDLE_FILE_INFORMATION& into) override {
    return next("about") && SystemCalls::about(file, into);
  }
  bool attributes(const wchar_t* path, WIN32_FILE_ATTRIBUTE_DATA& into) override {
    return next("attributes") && SystemCalls::attributes(path, into);
  }
  bool set_attributes(const wchar_t* path, DWORD attributes) override {
    return next("set_attributes") && SystemCalls::set_attributes(path, attributes);
  }
  bool move(const wchar_t* from, const wchar_t* to, DWORD flags) override {
    return next("move") && SystemCalls::move(from, to, flags);
  }
  bool delete_file(const wchar_t* path) override {
    return next("delete_file") && SystemCalls::delete_file(path);
  }
  bool create_folder(const wchar_t* path) override {
    return next("create_folder") && SystemCalls::create_folder(path);
  }
  bool remove_folder(const wchar_t* path) override {
    return next("remove_folder") && SystemCalls::remove_folder(path);
  }
  bool free_space(const wchar_t* folder, std::uint64_t& into) override {
    return next("free_space") && SystemCalls::free_space(folder, into);
  }
  HANDLE find_first(const wchar_t* pattern, WIN32_FIND_DATAW& into) override {
    return next("find_first") ? SystemCalls::find_first(pattern, into) : INVALID_HANDLE_VALUE;
  }
  bool find_next(HANDLE search, WIN32_FIND_DATAW& into) override {
    return next("find_next") && SystemCalls::find_next(search, into);
  }
  // What a made-up failure leaves in the thread is of an older call.
  bool is_being_deleted() override { return !failed_ && SystemCalls::is_being_deleted(); }
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
    failed_ = true;
    if (kill_at_ != 0 && count_ >= kill_at_) {
      ::SetLastError(ERROR_OPERATION_ABORTED);
      return false;
    }
    if (const auto at = failing_.find(name); at != failing_.end()) {
      ::SetLastError(at->second);
      return false;
    }
    if (count_ == fail_at_) {
      ::SetLastError(error_number_);
      return false;
    }
    failed_ = false;
    return true;
  }

  int count_ = 0;
  int fail_at_ = 0;
  DWORD error_number_ = 0;
  int short_at_ = 0;
  int kill_at_ = 0;
  int open_files_ = 0;
  bool failed_ = false;
  std::map<std::string, DWORD> failing_;
  std::int64_t now_ = 0;
  std::vector<std::string> log_;
};

}  // namespace tests
