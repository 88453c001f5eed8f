#include "platform/posix/posix_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <limits>
#include <memory>
#include <new>

#include "platform/system/appended_log.h"

namespace platform::posix {

namespace {

constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t kNewFile = 0666;    // less the user's mask
constexpr mode_t kNewFolder = 0777;  // less the user's mask

/// Repeats a call for as long as a signal interrupts it.
template <class Call>
auto unbroken(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

std::string folder_of(const std::string& os_path) {
  const auto at = os_path.rfind('/');
  if (at == std::string::npos) return ".";
  return at == 0 ? "/" : os_path.substr(0, at);
}

std::string name_of(const std::string& os_path) {
  return os_path.substr(os_path.rfind('/') + 1);
}

/// What a lock says where the file system has none to give.
bool knows_no_locks(int error_number) {
  return error_number == ENOLCK || error_number == EOPNOTSUPP || error_number == ENOSYS ||
         error_number == EINVAL;
}

bool same_file(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

}  // namespace

FileError file_error(int error_number) {
  // Below something that is no folder (ENOTDIR) there is no file either. A limit of file sizes
  // (EFBIG) is to the officer what a full disk is. ENXIO is a drive without a medium; only where a
  // file is opened it is a socket or device that nobody serves, see Open::error().
  static constexpr struct {
    int error_number;
    FileError error;
  } kReasons[] = {
      {ENOENT, FileError::kNotFound},         {ENOTDIR, FileError::kNotFound},
      {EACCES, FileError::kAccessDenied},     {EPERM, FileError::kAccessDenied},
      {EROFS, FileError::kAccessDenied},      {EISDIR, FileError::kAccessDenied},
      {ETXTBSY, FileError::kAccessDenied},    {ENOSPC, FileError::kNoSpace},
      {EDQUOT, FileError::kNoSpace},          {EFBIG, FileError::kNoSpace},
      {ENOMEDIUM, FileError::kMediumMissing}, {ENXIO, FileError::kMediumMissing},
      {ENODEV, FileError::kMediumMissing},    {ELOOP, FileError::kBadLink},
      {EMFILE, FileError::kTooManyOpen},      {ENFILE, FileError::kTooManyOpen},
      {EINVAL, FileError::kBadName},          {ENAMETOOLONG, FileError::kBadName},
      {EILSEQ, FileError::kBadName},          {EAGAIN, FileError::kLocked},
      {EEXIST, FileError::kExists},           {ENOMEM, FileError::kNoMemory},
  };
  const auto* const row =
      std::find_if(std::begin(kReasons), std::end(kReasons),
                   [&](const auto& each) { return each.error_number == error_number; });
  return row == std::end(kReasons) ? FileError::kOther : row->error;
}

/// A file that closes itself.
class PosixFiles::Open {
 public:
  Open(SystemCalls& calls, const std::string& os_path, int flags, mode_t mode = kNewFile)
      : calls_(calls), file_(unbroken([&] { return calls.open(os_path.c_str(), flags, mode); })) {
    error_number_ = file_ == -1 ? errno : 0;
  }
  ~Open() { close(); }
  Open(const Open&) = delete;
  Open& operator=(const Open&) = delete;

  [[nodiscard]] bool ok() const { return file_ != -1; }
  [[nodiscard]] int file() const { return file_; }
  [[nodiscard]] int error_number() const { return error_number_; }
  /// What cannot even be opened for want of a partner is a socket or a device.
  [[nodiscard]] FileError error() const {
    return error_number_ == ENXIO ? FileError::kNotAFile : file_error(error_number_);
  }
  /// Some file systems tell only here that the data did not arrive. A signal changes nothing: the
  /// file is closed all the same.
  FileError close() {
    if (file_ == -1) return FileError::kNone;
    const int result = calls_.close(file_);
    file_ = -1;
    return result == -1 && errno != EINTR ? file_error(errno) : FileError::kNone;
  }

 private:
  SystemCalls& calls_;
  int file_;
  int error_number_ = 0;
};

/// The file under its path, open at its end and locked.
class PosixFiles::Log : public AppendedLog {
 public:
  Log(const PosixFiles& files, std::string os_path)
      : files_(files), calls_(files.calls_), os_path_(std::move(os_path)) {}
  ~Log() override {
    if (goes_with_lock()) (void)unbroken([&] { return calls_.unlink(os_path_.c_str()); });
  }
  Log(const Log&) = delete;
  Log& operator=(const Log&) = delete;

  [[nodiscard]] Result<std::string> read(std::uint64_t from, std::uint64_t count) const override {
    return files_.part_of(open_->file(), from, count);
  }

 protected:
  [[nodiscard]] Outcome open_old() override {
    open_.emplace(calls_, os_path_, kFlags);
    if (open_->ok()) return {};
    return {open_->error_number() == ENOENT ? Step::kMissing : Step::kFailed, open_->error()};
  }
  [[nodiscard]] Outcome make_new() override {
    open_.emplace(calls_, os_path_, kFlags | O_CREAT | O_EXCL);
    if (open_->ok()) {
      // A mask may take the owner's rights too, and the next save could not open its logbook.
      files_.let_owner_use(open_->file());
      return {};
    }
    if (open_->error_number() != EEXIST) return {Step::kFailed, open_->error()};
    return {Step::kInTheWay, files_.look_at(os_path_).error};
  }
  [[nodiscard]] FileError why_unfit() const override {
    struct stat about {};
    if (!tell(about)) return file_error(errno);
    if (S_ISDIR(about.st_mode)) return FileError::kAccessDenied;
    return S_ISREG(about.st_mode) ? FileError::kNone : FileError::kNotAFile;
  }
  [[nodiscard]] Outcome lock_once() override {
    if (unbroken([&] { return calls_.lock(open_->file()); }) == 0) return {};
    if (knows_no_locks(errno)) return {Step::kMissing};
    return {errno == EWOULDBLOCK ? Step::kBusy : Step::kFailed, file_error(errno)};
  }
  [[nodiscard]] Result<std::optional<std::uint64_t>> look_again() const override {
    struct stat about {};
    struct stat named {};
    if (!tell(about)) return file_error(errno);
    if (unbroken([&] { return calls_.stat(os_path_.c_str(), &named); }) == -1) {
      if (errno != ENOENT) return file_error(errno);
      return std::optional<std::uint64_t>();
    }
    if (!same_file(about, named)) return std::optional<std::uint64_t>();
    // The system's root may write what is marked read-only; the mark is meant all the same.
    if ((about.st_mode & kAnyWrite) == 0) return FileError::kAccessDenied;
    return std::optional(static_cast<std::uint64_t>(about.st_size));
  }
  [[nodiscard]] std::optional<std::uint64_t> size_now() const override {
    struct stat about {};
    if (!tell(about)) return std::nullopt;
    return static_cast<std::uint64_t>(about.st_size);
  }
  [[nodiscard]] bool set_room_aside(std::size_t count) override {
    const auto end = static_cast<off_t>(size());
    const auto length = static_cast<off_t>(count);
    return unbroken([&] { return calls_.reserve(open_->file(), end, length); }) != -1 ||
           file_error(errno) != FileError::kNoSpace;
  }
  [[nodiscard]] Result<std::size_t> write_once(std::string_view content) override {
    const auto count =
        unbroken([&] { return calls_.write(open_->file(), content.data(), content.size()); });
    if (count == -1) return file_error(errno);
    return static_cast<std::size_t>(count);
  }
  [[nodiscard]] FileError set_size(std::uint64_t size) override {
    const auto end = static_cast<off_t>(size);
    return why(unbroken([&] { return calls_.ftruncate(open_->file(), end); }));
  }
  [[nodiscard]] FileError flush() override {
    return why(unbroken([&] { return calls_.fsync(open_->file()); }));
  }
  [[nodiscard]] FileError flush_name() override { return files_.flush_folder(os_path_); }
  [[nodiscard]] std::int64_t now() const override { return calls_.now(); }
  void pause(int milliseconds) const override { calls_.pause(milliseconds); }

 private:
  // A pipe or terminal of the logbook's name must neither hold the program up nor steer it.
  static constexpr int kFlags = O_RDWR | O_APPEND | O_NONBLOCK | O_NOCTTY;

  static FileError why(int result) { return result == -1 ? file_error(errno) : FileError::kNone; }
  [[nodiscard]] bool tell(struct stat& about) const {
    return unbroken([&] { return calls_.fstat(open_->file(), &about); }) == 0;
  }

  const PosixFiles& files_;
  SystemCalls& calls_;
  std::string os_path_;
  std::optional<Open> open_;
};

PosixFiles::PosixFiles(const PathMap& drives, SystemCalls& calls)
    : StagedFiles(drives), calls_(calls) {}

std::optional<struct stat> PosixFiles::about(const std::string& path) const {
  const auto os_path = to_os(path);
  struct stat result {};
  if (!os_path.ok() || unbroken([&] { return calls_.stat(os_path.value->c_str(), &result); }) == -1)
    return std::nullopt;
  return result;
}

FileError PosixFiles::folder_writable(const std::string& os_path) const {
  struct stat folder {};
  if (unbroken([&] { return calls_.stat(folder_of(os_path).c_str(), &folder); }) == -1)
    return file_error(errno);
  if (!S_ISDIR(folder.st_mode)) return FileError::kNotFound;
  return (folder.st_mode & kAnyWrite) == 0 ? FileError::kAccessDenied : FileError::kNone;
}

FileError PosixFiles::flush_folder(const std::string& os_path) const {
  const Open folder(calls_, folder_of(os_path), O_RDONLY | O_DIRECTORY);
  if (!folder.ok()) return folder.error();
  // A file system that cannot flush a folder says EINVAL; there is nothing more to be done then.
  if (unbroken([&] { return calls_.fsync(folder.file()); }) == -1 && errno != EINVAL)
    return file_error(errno);
  return FileError::kNone;
}

// ---- Reading

FileError PosixFiles::regular(const Open& file) const {
  if (!file.ok()) return file.error();
  struct stat found {};
  if (unbroken([&] { return calls_.fstat(file.file(), &found); }) == -1) return file_error(errno);
  if (S_ISDIR(found.st_mode)) return FileError::kAccessDenied;
  return S_ISREG(found.st_mode) ? FileError::kNone : FileError::kNotAFile;
}

Result<std::string> PosixFiles::part_of(int file, std::uint64_t from, std::uint64_t count) const {
  // The end may be asked for as "as much as there is": no room is taken for what is not there.
  constexpr std::size_t kBlock = 1U << 16U;
  constexpr auto kBeyond = static_cast<std::uint64_t>(std::numeric_limits<off_t>::max());
  std::string content;
  try {
    while (content.size() < count && content.size() < kBeyond - std::min(from, kBeyond)) {
      const std::size_t done = content.size();
      content.resize(done +
                     static_cast<std::size_t>(std::min<std::uint64_t>(count - done, kBlock)));
      const auto got = unbroken([&] {
        return calls_.read_at(file, content.data() + done, content.size() - done,
                              static_cast<off_t>(from + done));
      });
      if (got == -1) return file_error(errno);
      content.resize(done + static_cast<std::size_t>(got));
      if (got == 0) break;
    }
  } catch (const std::bad_alloc&) {
    return FileError::kNoMemory;
  }
  return content;
}

Result<std::string> PosixFiles::read_part(const std::string& path, std::uint64_t from,
                                          std::uint64_t count) const {
  const auto os_path = to_os(path);
  if (!os_path.ok()) return os_path.error;
  const Open file(calls_, *os_path.value, O_RDONLY | O_NOCTTY | O_NONBLOCK);
  if (const auto error = regular(file); error != FileError::kNone) return error;
  return part_of(file.file(), from, count);
}

Result<std::string> PosixFiles::read(const std::string& path, std::uint64_t largest) const {
  const auto os_path = to_os(path);
  if (!os_path.ok()) return os_path.error;
  // Without waiting: opening a pipe would last until somebody writes into it.
  const Open file(calls_, *os_path.value, O_RDONLY | O_NOCTTY | O_NONBLOCK);
  if (const auto error = regular(file); error != FileError::kNone) return error;
  std::string content;
  std::array<char, 1U << 16U> block;
  try {
    for (;;) {
      const auto count =
          unbroken([&] { return calls_.read(file.file(), block.data(), block.size()); });
      if (count == -1) return file_error(errno);
      if (count == 0) return content;
      content.append(block.data(), static_cast<std::size_t>(count));
      // Counted while reading, for a file may grow under it.
      if (content.size() > largest) return FileError::kOther;
    }
  } catch (const std::bad_alloc&) {
    return FileError::kNoMemory;
  }
}

// ---- Replacing

void PosixFiles::let_owner_use(int file) const {
  constexpr mode_t kOwner = S_IRUSR | S_IWUSR;
  constexpr mode_t kPermissions = 07777;
  struct stat about {};
  if (calls_.fstat(file, &about) == 0 && (about.st_mode & kOwner) != kOwner)
    (void)calls_.fchmod(file, (about.st_mode & kPermissions) | kOwner);
}

/// A new file that will be renamed.
class PosixFiles::New : public Beside {
 public:
  /// `old` is what it replaces.
  New(const PosixFiles& files, std::optional<struct stat> old)
      : files_(files), calls_(files.calls_), old_(old) {}

  [[nodiscard]] FileError make(const std::string& path) override {
    const auto os_path = files_.to_os(path);
    if (!os_path.ok()) return os_path.error;
    // Never a file or link that somebody else put there.
    open_.emplace(calls_, *os_path.value, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
    return open_->ok() ? FileError::kNone : open_->error();
  }
  [[nodiscard]] Result<std::size_t> write(std::string_view content) override {
    const auto count =
        unbroken([&] { return calls_.write(open_->file(), content.data(), content.size()); });
    if (count == -1) return file_error(errno);
    return static_cast<std::size_t>(count);
  }
  [[nodiscard]] FileError finish() override {
    constexpr mode_t kPermissions = 0777;
    // A medium without permissions refuses this; the file itself is none the worse for it.
    if (old_)
      // Renamed over, the old file's rights would be gone with it.
      (void)calls_.fchmod(open_->file(), old_->st_mode & kPermissions);
    else
      files_.let_owner_use(open_->file());
    if (unbroken([&] { return calls_.fsync(open_->file()); }) == -1) return file_error(errno);
    return open_->close();
  }

 private:
  const PosixFiles& files_;
  SystemCalls& calls_;
  std::optional<struct stat> old_;
  std::optional<Open> open_;
};

Result<std::unique_ptr<StagedFiles::Beside>> PosixFiles::beside(const std::string& path) {
  const auto target = to_os(path);
  if (!target.ok()) return target.error;
  if (const auto error = folder_writable(*target.value); error != FileError::kNone) return error;
  const Look there = look_at(*target.value);
  if (const auto error = why_no_place(there); error != FileError::kNone) return error;
  std::optional<struct stat> old;
  if (there.there == There::kFile) {
    old = about(path);
    // A rename asks the folder only, so a file that is protected would be replaced.
    if (!old || (old->st_mode & kAnyWrite) == 0 || calls_.access(target.value->c_str(), W_OK) == -1)
      return FileError::kAccessDenied;
  }
  return std::unique_ptr<Beside>(std::make_unique<New>(*this, old));
}

void PosixFiles::forget_cached(const std::string& path) {
  const auto os_path = to_os(path);
  if (const Open file(calls_, os_path.ok() ? *os_path.value : "", O_RDONLY); file.ok())
    (void)calls_.forget_cached(file.file());
}

std::uint64_t PosixFiles::process() const {
  return static_cast<std::uint64_t>(::getpid());
}

FileError PosixFiles::commit(const StagedFile& staged, Over over) {
  const auto from = to_os(staged.temporary);
  const auto to = to_os(staged.path);
  if (!from.ok()) return from.error;
  if (!to.ok()) return to.error;
  // Opened first: whatever can be refused is refused before anything has changed.
  const Open folder(calls_, folder_of(*to.value), O_RDONLY | O_DIRECTORY);
  if (!folder.ok()) return folder.error();
  const FileError error =
      over == Over::kRefuse ? rename_new(*from.value, *to.value) : move_over(staged);
  if (error != FileError::kNone) return error;
  // The new file is in its place from here on. Should the folder not be flushed, a power failure
  // may still bring back the old one, whole as well; to call that a failed save would be untrue.
  (void)unbroken([&] { return calls_.fsync(folder.file()); });
  return FileError::kNone;
}

FileError PosixFiles::rename_new(const std::string& from, const std::string& to) const {
  const auto unable = [] {
    // EINVAL is a file system without such a rename; EPERM and EMLINK are one without links.
    return errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP || errno == EPERM ||
           errno == EMLINK;
  };
  if (unbroken([&] { return calls_.rename_new(from.c_str(), to.c_str()); }) == 0)
    return FileError::kNone;
  if (!unable()) return file_error(errno);
  // A second name is refused where something is, as the rename would have been.
  if (unbroken([&] { return calls_.link(from.c_str(), to.c_str()); }) == 0) {
    // Should the second name stay, it is cleared with what dead processes leave.
    (void)unbroken([&] { return calls_.unlink(from.c_str()); });
    return FileError::kNone;
  }
  if (!unable()) return file_error(errno);
  // A medium without links: between the look and the rename nobody else is kept out.
  const Look found = look_at(to);
  if (found.there == There::kCannotTell) return found.error;
  if (found.there != There::kNo) return FileError::kExists;
  const int renamed = unbroken([&] { return calls_.rename(from.c_str(), to.c_str()); });
  return renamed == -1 ? file_error(errno) : FileError::kNone;
}

FileError PosixFiles::move_over(const StagedFile& staged) {
  const auto from = to_os(staged.temporary);
  const auto to = to_os(staged.path);
  if (!from.ok()) return from.error;
  if (!to.ok()) return to.error;
  const int moved = unbroken([&] { return calls_.rename(from.value->c_str(), to.value->c_str()); });
  return moved == -1 ? file_error(errno) : FileError::kNone;
}

void PosixFiles::discard(const StagedFile& staged) {
  if (const auto os_path = to_os(staged.temporary); os_path.ok())
    (void)unbroken([&] { return calls_.unlink(os_path.value->c_str()); });
}

// ---- The logbook

Result<std::unique_ptr<LockedLog>> PosixFiles::lock_log(const std::string& path) {
  const auto os_path = to_os(path);
  if (!os_path.ok()) return os_path.error;
  // Only a logbook that is to be made needs a folder that can be written.
  if (look_at(*os_path.value).there == There::kNo) {
    if (const auto error = folder_writable(*os_path.value); error != FileError::kNone) return error;
  }
  auto log = std::make_unique<Log>(*this, *os_path.value);
  if (const FileError error = log->open(); error != FileError::kNone) return error;
  return {std::move(log)};
}

bool PosixFiles::is_running(std::uint64_t process) const {
  // 0 would ask about every process of the group.
  if (process == 0) return false;
  // A process of another user (EPERM) is one that lives.
  return calls_.ask_process(static_cast<pid_t>(process)) == 0 || errno != ESRCH;
}

// ---- Claiming

/// An open file that is locked, and removed before the lock goes.
class PosixFiles::LockClaim : public Claim {
 public:
  LockClaim(SystemCalls& calls, std::string os_path)
      : calls_(calls),
        os_path_(std::move(os_path)),
        // Not exclusively: the file of a copy that was killed stays, and its lock does not.
        open_(calls, os_path_, O_WRONLY | O_CREAT | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW) {
    error_ = make();
  }
  ~LockClaim() override {
    if (error_ == FileError::kNone) (void)unbroken([&] { return calls_.unlink(os_path_.c_str()); });
  }
  LockClaim(const LockClaim&) = delete;
  LockClaim& operator=(const LockClaim&) = delete;

  [[nodiscard]] FileError error() const { return error_; }
  [[nodiscard]] bool is_locked() const override { return is_locked_; }

 private:
  [[nodiscard]] FileError make() {
    if (!open_.ok()) return open_.error();
    if (unbroken([&] { return calls_.try_lock(open_.file()); }) != 0) {
      if (!knows_no_locks(errno)) return file_error(errno);
      is_locked_ = false;
    }
    struct stat opened {};
    struct stat named {};
    if (unbroken([&] { return calls_.fstat(open_.file(), &opened); }) == -1)
      return file_error(errno);
    const int found = unbroken([&] { return calls_.stat(os_path_.c_str(), &named); });
    if (found == -1 && errno != ENOENT) return file_error(errno);
    // Between our opening the file and locking it another copy gave up its claim: what we hold is
    // no longer what the path names.
    return found == 0 && same_file(opened, named) ? FileError::kNone : FileError::kLocked;
  }

  SystemCalls& calls_;
  std::string os_path_;
  Open open_;
  bool is_locked_ = true;
  FileError error_ = FileError::kNone;
};

Result<std::unique_ptr<Claim>> PosixFiles::claim(const std::string& path) {
  const auto os_path = to_os(path);
  if (!os_path.ok()) return os_path.error;
  if (const auto error = folder_writable(*os_path.value); error != FileError::kNone) return error;
  auto claim = std::make_unique<LockClaim>(calls_, *os_path.value);
  if (claim->error() != FileError::kNone) return claim->error();
  return {std::move(claim)};
}

// ---- What is there

Look PosixFiles::look(const std::string& path) const {
  const auto os_path = to_os(path);
  if (!os_path.ok()) {
    if (os_path.error == FileError::kNotFound) return {};
    return {There::kCannotTell, os_path.error};
  }
  return look_at(*os_path.value);
}

Look PosixFiles::look_at(const std::string& os_path) const {
  const char* const name = os_path.c_str();
  struct stat found {};
  if (unbroken([&] { return calls_.stat(name, &found); }) == 0) {
    if (S_ISDIR(found.st_mode)) return {There::kFolder};
    if (!S_ISREG(found.st_mode)) return {There::kOther};
    return {There::kFile, FileError::kNone, static_cast<std::uint64_t>(found.st_size)};
  }
  if (errno != ENOENT && errno != ENOTDIR) return {There::kCannotTell, file_error(errno)};
  // A link may lead to a share that is not mounted now: what it names is not gone for that.
  if (unbroken([&] { return calls_.lstat(name, &found); }) == 0)
    return {There::kCannotTell, S_ISLNK(found.st_mode) ? FileError::kBadLink : FileError::kOther};
  if (errno != ENOENT && errno != ENOTDIR) return {There::kCannotTell, file_error(errno)};
  return {};
}

std::optional<DateTime> PosixFiles::modified(const std::string& path) const {
  const auto found = about(path);
  if (!found) return std::nullopt;
  std::tm when{};
  if (::localtime_r(&found->st_mtim.tv_sec, &when) == nullptr) return std::nullopt;
  return DateTime{when.tm_year + 1900, when.tm_mon + 1, when.tm_mday,
                  when.tm_hour,        when.tm_min,     when.tm_sec};
}

Result<std::vector<FolderEntry>> PosixFiles::list(const std::string& folder) const {
  const auto os_path = to_os(folder);
  if (!os_path.ok()) return os_path.error;
  const auto close = [this](DIR* opened) { (void)calls_.closedir(opened); };
  const std::unique_ptr<DIR, decltype(close)> open(calls_.opendir(os_path.value->c_str()), close);
  if (open == nullptr) return file_error(errno);
  std::vector<FolderEntry> entries;
  try {
    while (const dirent* entry = calls_.readdir(open.get())) {
      const std::string name = static_cast<const char*>(entry->d_name);
      // A name with a backslash cannot be said in a path of the program.
      if (name == "." || name == ".." || name.find('\\') != std::string::npos) continue;
      bool is_a_folder = entry->d_type == DT_DIR;
      bool is_other = !is_a_folder && entry->d_type != DT_REG;
      // Some file systems tell no types; a link is what it leads to.
      if (entry->d_type == DT_UNKNOWN || entry->d_type == DT_LNK) {
        const Look target = look_at(*os_path.value + "/" + name);
        is_a_folder = target.there == There::kFolder;
        is_other = target.there == There::kOther;
      }
      if (!is_other) entries.push_back({name, is_a_folder});
    }
  } catch (const std::bad_alloc&) {
    return FileError::kNoMemory;
  }
  if (errno != 0) return file_error(errno);
  return entries;
}

// ---- Changing what is there

FileError PosixFiles::create_folder(const std::string& path) {
  const auto os_path = to_os(path);
  if (!os_path.ok()) return os_path.error;
  if (const auto found = about(path))
    return S_ISDIR(found->st_mode) ? FileError::kNone : FileError::kAccessDenied;
  if (const auto error = folder_writable(*os_path.value); error != FileError::kNone) return error;
  if (unbroken([&] { return calls_.mkdir(os_path.value->c_str(), kNewFolder); }) == -1)
    // Another copy of the program may have made it since the look.
    return errno == EEXIST && is_folder(path) ? FileError::kNone : file_error(errno);
  return FileError::kNone;
}

FileError PosixFiles::remove(const std::string& path) {
  const auto os_path = to_os(path);
  if (!os_path.ok()) return os_path.error;
  const auto found = about(path);
  if (found && (found->st_mode & kAnyWrite) == 0) return FileError::kAccessDenied;
  if (const auto error = folder_writable(*os_path.value); error != FileError::kNone) return error;
  const bool is_a_folder = found && S_ISDIR(found->st_mode);
  const int gone = unbroken([&] {
    return is_a_folder ? calls_.rmdir(os_path.value->c_str())
                       : calls_.unlink(os_path.value->c_str());
  });
  return gone == -1 ? file_error(errno) : FileError::kNone;
}

FileError PosixFiles::clear_read_only(const std::string& path) {
  const auto os_path = to_os(path);
  if (!os_path.ok()) return os_path.error;
  const auto found = about(path);
  if (!found) return FileError::kNotFound;
  if ((found->st_mode & S_IWUSR) != 0) return FileError::kNone;
  constexpr mode_t kPermissions = 07777;
  const mode_t mode = (found->st_mode & kPermissions) | S_IWUSR;
  return calls_.chmod(os_path.value->c_str(), mode) == -1 ? file_error(errno) : FileError::kNone;
}

std::optional<std::uint64_t> PosixFiles::free_space(const std::string& path) const {
  auto os_path = to_os(path);
  if (!os_path.ok()) return std::nullopt;
  struct statvfs room {};
  // A file that is not there yet will lie on its folder's disk.
  if (calls_.statvfs(os_path.value->c_str(), &room) == -1 &&
      calls_.statvfs(folder_of(*os_path.value).c_str(), &room) == -1)
    return std::nullopt;
  return static_cast<std::uint64_t>(room.f_bavail) * room.f_frsize;
}

bool PosixFiles::same(const std::string& a, const std::string& b) const {
  const auto os_a = to_os(a);
  const auto os_b = to_os(b);
  if (!os_a.ok() || !os_b.ok()) return false;
  // Equal paths are one file also where it does not exist yet.
  if (*os_a.value == *os_b.value) return true;
  const auto found_a = about(a);
  const auto found_b = about(b);
  if (found_a && found_b) return same_file(*found_a, *found_b);
  if (found_a || found_b || name_of(*os_a.value) != name_of(*os_b.value)) return false;
  struct stat folder_a {};
  struct stat folder_b {};
  return calls_.stat(folder_of(*os_a.value).c_str(), &folder_a) == 0 &&
         calls_.stat(folder_of(*os_b.value).c_str(), &folder_b) == 0 &&
         same_file(folder_a, folder_b);
}

}  // namespace platform::posix
