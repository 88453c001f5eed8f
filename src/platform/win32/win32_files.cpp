#include "platform/win32/win32_files.h"

#include <algorithm>
#include <limits>
#include <new>

#include "platform/paths.h"
#include "platform/system/appended_log.h"
#include "platform/system/patience.h"
#include "platform/win32/wide.h"

namespace platform::win32 {

namespace {

// ERROR_DISK_QUOTA_EXCEEDED and ERROR_NO_SUCH_DEVICE, which not every header has.
constexpr DWORD kQuotaExceeded = 1295;
constexpr DWORD kNoSuchDevice = 433;
/// With a virus scanner that looks at what was just written; milliseconds.
constexpr int kScannersPatience = 1000;
/// What a file keeps when its content is replaced.
constexpr DWORD kKeptAttributes =
    FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;

/// What a lock says where the file system has none to give.
bool knows_no_locks(DWORD error_number) {
  return error_number == ERROR_NOT_SUPPORTED || error_number == ERROR_INVALID_FUNCTION ||
         error_number == ERROR_CALL_NOT_IMPLEMENTED;
}

bool is_missing(DWORD error_number) {
  return error_number == ERROR_FILE_NOT_FOUND || error_number == ERROR_PATH_NOT_FOUND;
}

bool same_file(const BY_HANDLE_FILE_INFORMATION& a, const BY_HANDLE_FILE_INFORMATION& b) {
  return a.dwVolumeSerialNumber == b.dwVolumeSerialNumber && a.nFileIndexHigh == b.nFileIndexHigh &&
         a.nFileIndexLow == b.nFileIndexLow;
}

std::uint64_t whole_of(DWORD high, DWORD low) {
  constexpr unsigned kHalf = 32;
  return std::uint64_t{high} << kHalf | low;
}

std::wstring folder_of(const std::wstring& path) {
  const auto at = path.find_last_of(L"\\/");
  return at == std::wstring::npos ? std::wstring(L".") : path.substr(0, at + 1);
}

bool equal_names(const std::wstring& a, const std::wstring& b) {
  return ::CompareStringOrdinal(a.c_str(), static_cast<int>(a.size()), b.c_str(),
                                static_cast<int>(b.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace

FileError file_error(DWORD error_number) {
  // A computer or share that does not answer is a drive that is not there.
  static constexpr struct {
    DWORD error_number;
    FileError error;
  } kReasons[] = {
      {ERROR_FILE_NOT_FOUND, FileError::kNotFound},
      {ERROR_PATH_NOT_FOUND, FileError::kNotFound},
      {ERROR_DIRECTORY, FileError::kNotFound},
      {ERROR_NO_MORE_FILES, FileError::kNotFound},
      {ERROR_ACCESS_DENIED, FileError::kAccessDenied},
      {ERROR_WRITE_PROTECT, FileError::kAccessDenied},
      {ERROR_NETWORK_ACCESS_DENIED, FileError::kAccessDenied},
      {ERROR_PRIVILEGE_NOT_HELD, FileError::kAccessDenied},
      {ERROR_DISK_FULL, FileError::kNoSpace},
      {ERROR_HANDLE_DISK_FULL, FileError::kNoSpace},
      {kQuotaExceeded, FileError::kNoSpace},
      {ERROR_FILE_TOO_LARGE, FileError::kNoSpace},
      {ERROR_NOT_READY, FileError::kMediumMissing},
      {ERROR_INVALID_DRIVE, FileError::kMediumMissing},
      {ERROR_NO_MEDIA_IN_DRIVE, FileError::kMediumMissing},
      {ERROR_WRONG_DISK, FileError::kMediumMissing},
      {ERROR_DEVICE_NOT_CONNECTED, FileError::kMediumMissing},
      {ERROR_DEV_NOT_EXIST, FileError::kMediumMissing},
      {ERROR_BAD_NETPATH, FileError::kMediumMissing},
      {ERROR_BAD_NET_NAME, FileError::kMediumMissing},
      {ERROR_NETNAME_DELETED, FileError::kMediumMissing},
      {ERROR_NETWORK_UNREACHABLE, FileError::kMediumMissing},
      {ERROR_HOST_UNREACHABLE, FileError::kMediumMissing},
      {ERROR_UNEXP_NET_ERR, FileError::kMediumMissing},
      {ERROR_SEM_TIMEOUT, FileError::kMediumMissing},
      {ERROR_REM_NOT_LIST, FileError::kMediumMissing},
      {ERROR_NO_NET_OR_BAD_PATH, FileError::kMediumMissing},
      {ERROR_NO_NETWORK, FileError::kMediumMissing},
      {ERROR_NOT_CONNECTED, FileError::kMediumMissing},
      {kNoSuchDevice, FileError::kMediumMissing},
      {ERROR_FILE_INVALID, FileError::kMediumMissing},
      {ERROR_UNRECOGNIZED_VOLUME, FileError::kMediumMissing},
      {ERROR_NOT_DOS_DISK, FileError::kMediumMissing},
      {ERROR_CANT_RESOLVE_FILENAME, FileError::kBadLink},
      {ERROR_TOO_MANY_OPEN_FILES, FileError::kTooManyOpen},
      {ERROR_INVALID_NAME, FileError::kBadName},
      {ERROR_BAD_PATHNAME, FileError::kBadName},
      {ERROR_FILENAME_EXCED_RANGE, FileError::kBadName},
      {ERROR_BUFFER_OVERFLOW, FileError::kBadName},
      {ERROR_SHARING_VIOLATION, FileError::kLocked},
      {ERROR_LOCK_VIOLATION, FileError::kLocked},
      {ERROR_USER_MAPPED_FILE, FileError::kLocked},
      {ERROR_DELETE_PENDING, FileError::kLocked},
      {ERROR_FILE_EXISTS, FileError::kExists},
      {ERROR_ALREADY_EXISTS, FileError::kExists},
      {ERROR_NOT_ENOUGH_MEMORY, FileError::kNoMemory},
      {ERROR_OUTOFMEMORY, FileError::kNoMemory},
      {ERROR_NO_SYSTEM_RESOURCES, FileError::kNoMemory},
  };
  const auto* const row =
      std::find_if(std::begin(kReasons), std::end(kReasons),
                   [&](const auto& each) { return each.error_number == error_number; });
  return row == std::end(kReasons) ? FileError::kOther : row->error;
}

/// A file that closes itself.
class Win32Files::Open {
 public:
  Open(SystemCalls& calls, const std::wstring& path, DWORD access, DWORD disposition,
       DWORD flags = FILE_ATTRIBUTE_NORMAL)
      : calls_(calls), file_(calls.create_file(path.c_str(), access, disposition, flags)) {
    if (ok()) return;
    error_number_ = ::GetLastError();
    is_being_deleted_ = calls.is_being_deleted();
  }
  ~Open() { (void)close(); }
  Open(const Open&) = delete;
  Open& operator=(const Open&) = delete;

  [[nodiscard]] bool ok() const { return file_ != INVALID_HANDLE_VALUE; }
  [[nodiscard]] HANDLE file() const { return file_; }
  [[nodiscard]] DWORD error_number() const { return error_number_; }
  [[nodiscard]] bool is_being_deleted() const { return !ok() && is_being_deleted_; }
  [[nodiscard]] FileError error() const {
    return is_being_deleted() ? FileError::kLocked : file_error(error_number_);
  }
  FileError close() {
    if (!ok()) return FileError::kNone;
    const bool closed = calls_.close(file_);
    file_ = INVALID_HANDLE_VALUE;
    return closed ? FileError::kNone : file_error(::GetLastError());
  }

 private:
  SystemCalls& calls_;
  HANDLE file_;
  DWORD error_number_ = 0;
  bool is_being_deleted_ = false;
};

/// The file under its path, open and locked.
class Win32Files::Log : public AppendedLog {
 public:
  Log(const Win32Files& files, std::wstring path)
      : files_(files), calls_(files.calls_), path_(std::move(path)) {}
  ~Log() override {
    if (goes_with_lock()) files_.take_away(path_);
  }
  Log(const Log&) = delete;
  Log& operator=(const Log&) = delete;

  [[nodiscard]] Result<std::string> read(std::uint64_t from, std::uint64_t count) const override {
    return files_.part_of(open_->file(), from, count);
  }

 protected:
  [[nodiscard]] Outcome open_old() override {
    open_.emplace(calls_, path_, kAccess, OPEN_EXISTING);
    return opened(ERROR_FILE_NOT_FOUND);
  }
  [[nodiscard]] Outcome make_new() override {
    open_.emplace(calls_, path_, kAccess, CREATE_NEW);
    if (!open_->ok() && file_error(open_->error_number()) == FileError::kExists)
      return {Step::kInTheWay, files_.look_at(path_).error};
    return opened(ERROR_SUCCESS);
  }
  [[nodiscard]] FileError why_unfit() const override { return files_.regular(*open_); }
  [[nodiscard]] Outcome lock_once() override {
    if (calls_.lock(open_->file())) return {};
    const DWORD why = ::GetLastError();
    if (knows_no_locks(why)) return {Step::kMissing};
    return {file_error(why) == FileError::kLocked ? Step::kBusy : Step::kFailed, file_error(why)};
  }
  [[nodiscard]] Result<std::optional<std::uint64_t>> look_again() const override {
    BY_HANDLE_FILE_INFORMATION held{};
    if (!calls_.about(open_->file(), held)) return file_error(::GetLastError());
    const Open name(calls_, path_, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
    if (!name.ok()) {
      if (!is_missing(name.error_number()) && !name.is_being_deleted()) return name.error();
      return std::optional<std::uint64_t>();
    }
    BY_HANDLE_FILE_INFORMATION named{};
    if (!calls_.about(name.file(), named)) return file_error(::GetLastError());
    if (!same_file(held, named)) return std::optional<std::uint64_t>();
    // Of a share it is the name, opened after the lock was had, that is asked about of the other
    // computer anew.
    return std::optional(whole_of(named.nFileSizeHigh, named.nFileSizeLow));
  }
  [[nodiscard]] std::optional<std::uint64_t> size_now() const override {
    BY_HANDLE_FILE_INFORMATION now{};
    if (!calls_.about(open_->file(), now)) return std::nullopt;
    return whole_of(now.nFileSizeHigh, now.nFileSizeLow);
  }
  // Without a lock it is left: room for less than there is meanwhile would cut off what somebody else
  // wrote.
  [[nodiscard]] bool set_room_aside(std::size_t count) override {
    return !is_locked() || calls_.reserve(open_->file(), size() + count) ||
           file_error(::GetLastError()) != FileError::kNoSpace;
  }
  [[nodiscard]] Result<std::size_t> write_once(std::string_view content) override {
    DWORD count = 0;
    if (!calls_.write_at_end(open_->file(), content.data(), static_cast<DWORD>(content.size()),
                             count))
      return file_error(::GetLastError());
    return static_cast<std::size_t>(count);
  }
  [[nodiscard]] FileError set_size(std::uint64_t size) override {
    return calls_.set_size(open_->file(), size) ? FileError::kNone : file_error(::GetLastError());
  }
  [[nodiscard]] FileError flush() override {
    return calls_.flush(open_->file()) ? FileError::kNone : file_error(::GetLastError());
  }
  [[nodiscard]] std::int64_t now() const override { return calls_.now(); }
  void pause(int milliseconds) const override { calls_.pause(milliseconds); }

 private:
  static constexpr DWORD kAccess = GENERIC_READ | GENERIC_WRITE;

  [[nodiscard]] Outcome opened(DWORD missing) const {
    if (open_->ok()) return {};
    if (missing != ERROR_SUCCESS && open_->error_number() == missing)
      return {Step::kMissing, open_->error()};
    // Of a file that was removed the name stays for as long as somebody has it open.
    return {open_->error() == FileError::kLocked ? Step::kBusy : Step::kFailed, open_->error()};
  }

  const Win32Files& files_;
  SystemCalls& calls_;
  std::wstring path_;
  std::optional<Open> open_;
};

Win32Files::Win32Files(const PathMap& drives, SystemCalls& calls)
    : StagedFiles(drives), calls_(calls) {}

Result<std::wstring> Win32Files::os(const std::string& path) const {
  const auto os_path = to_os(path);
  return os_path.ok() ? wide_path(*os_path.value) : Result<std::wstring>(os_path.error);
}

std::optional<BY_HANDLE_FILE_INFORMATION> Win32Files::about(const std::wstring& path) const {
  // With this flag folders are opened too.
  const Open found(calls_, path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  BY_HANDLE_FILE_INFORMATION result{};
  if (!found.ok() || !calls_.about(found.file(), result)) return std::nullopt;
  return result;
}

// ---- Reading

FileError Win32Files::regular(const Open& file) const {
  if (!file.ok()) return file.error();
  if (calls_.file_type(file.file()) != FILE_TYPE_DISK) return FileError::kNotAFile;
  BY_HANDLE_FILE_INFORMATION found{};
  if (!calls_.about(file.file(), found)) return file_error(::GetLastError());
  return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? FileError::kAccessDenied
                                                                  : FileError::kNone;
}

Result<std::string> Win32Files::part_of(HANDLE file, std::uint64_t from,
                                        std::uint64_t count) const {
  // The end may be asked for as "as much as there is": no room is taken for what is not there.
  constexpr std::size_t kBlock = 1U << 16U;
  constexpr auto kBeyond = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  std::string content;
  try {
    while (content.size() < count && content.size() < kBeyond - std::min(from, kBeyond)) {
      const std::size_t done = content.size();
      const auto size = std::min<std::uint64_t>(count - done, kBlock);
      content.resize(done + static_cast<std::size_t>(size));
      DWORD got = 0;
      if (!calls_.read_at(file, content.data() + done, static_cast<DWORD>(size), from + done, got))
        return file_error(::GetLastError());
      content.resize(done + got);
      if (got == 0) break;
    }
  } catch (const std::bad_alloc&) {
    return FileError::kNoMemory;
  }
  return content;
}

Result<std::string> Win32Files::read_part(const std::string& path, std::uint64_t from,
                                          std::uint64_t count) const {
  const auto os_path = os(path);
  if (!os_path.ok()) return os_path.error;
  const Open file(calls_, *os_path.value, GENERIC_READ, OPEN_EXISTING);
  if (const auto error = regular(file); error != FileError::kNone) return error;
  return part_of(file.file(), from, count);
}

Result<std::string> Win32Files::read(const std::string& path, std::uint64_t largest) const {
  // One byte more than is taken tells that there is more, however the file grows meanwhile.
  const std::uint64_t count = largest + (largest < ~std::uint64_t{0} ? 1 : 0);
  auto content = read_part(path, 0, count);
  if (content.ok() && content.value->size() > largest) return FileError::kOther;
  return content;
}

// ---- Replacing

/// A new file that will be moved.
class Win32Files::New : public Beside {
 public:
  /// `kept`: attributes of what it replaces.
  New(const Win32Files& files, DWORD kept) : files_(files), calls_(files.calls_), kept_(kept) {}

  [[nodiscard]] FileError make(const std::string& path) override {
    const auto os_path = files_.os(path);
    if (!os_path.ok()) return os_path.error;
    path_ = *os_path.value;
    open_.emplace(calls_, path_, GENERIC_WRITE, CREATE_NEW);
    if (open_->ok()) return FileError::kNone;
    const bool exists = file_error(open_->error_number()) == FileError::kExists;
    return exists ? FileError::kExists : open_->error();
  }
  [[nodiscard]] Result<std::size_t> write(std::string_view content) override {
    constexpr std::size_t kLargest = 1U << 24U;
    DWORD count = 0;
    if (!calls_.write_at_end(open_->file(), content.data(),
                             static_cast<DWORD>(std::min(content.size(), kLargest)), count))
      return file_error(::GetLastError());
    return std::size_t{count};
  }
  [[nodiscard]] FileError finish() override {
    if (!calls_.flush(open_->file())) return file_error(::GetLastError());
    if (const FileError error = open_->close(); error != FileError::kNone) return error;
    // A medium without attributes refuses this; the file itself is none the worse for it.
    if (kept_ != 0) (void)calls_.set_attributes(path_.c_str(), kept_);
    return FileError::kNone;
  }

 private:
  const Win32Files& files_;
  SystemCalls& calls_;
  DWORD kept_;
  std::wstring path_;
  std::optional<Open> open_;
};

Result<std::unique_ptr<StagedFiles::Beside>> Win32Files::beside(const std::string& path) {
  const auto target = os(path);
  if (!target.ok()) return target.error;
  const Look there = look_at(*target.value);
  if (const auto error = why_no_place(there); error != FileError::kNone) return error;
  DWORD kept = 0;
  if (there.there == There::kFile) {
    if (const auto error = why_protected(*target.value); error != FileError::kNone) return error;
    if (const auto old = about(*target.value)) kept = old->dwFileAttributes & kKeptAttributes;
  }
  return std::unique_ptr<Beside>(std::make_unique<New>(*this, kept));
}

// Where a file that nobody has open is opened past the memory, what the memory holds of it is given
// up.
void Win32Files::forget_cached(const std::string& path) {
  if (const auto os_path = os(path); os_path.ok())
    const Open past_memory(calls_, *os_path.value, GENERIC_READ, OPEN_EXISTING,
                           FILE_FLAG_NO_BUFFERING);
}

std::uint64_t Win32Files::process() const {
  return ::GetCurrentProcessId();
}

FileError Win32Files::why_protected(const std::wstring& path) const {
  // A file that nobody may write is not to be replaced either, and one that another program keeps to
  // itself is found here, before anything is written: the move would only say that it is denied.
  Patience patience(calls_.now() + kScannersPatience);
  for (;;) {
    const Open old(calls_, path, GENERIC_WRITE | DELETE, OPEN_EXISTING);
    if (old.ok()) return FileError::kNone;
    if (old.error() != FileError::kLocked) return old.error();
    const int pause = patience.next_pause(calls_.now());
    if (pause == 0) return old.error();
    calls_.pause(pause);
  }
}

FileError Win32Files::move(const StagedFile& staged, DWORD flags) const {
  const auto from = os(staged.temporary);
  const auto to = os(staged.path);
  if (!from.ok()) return from.error;
  if (!to.ok()) return to.error;
  Patience patience(calls_.now() + kScannersPatience);
  for (;;) {
    if (calls_.move(from.value->c_str(), to.value->c_str(), flags)) return FileError::kNone;
    const DWORD why = ::GetLastError();
    // That somebody has the old file open without leave to replace it is told as "denied".
    const bool may_pass = why == ERROR_SHARING_VIOLATION || why == ERROR_LOCK_VIOLATION ||
                          (why == ERROR_ACCESS_DENIED && look_at(*to.value).there == There::kFile);
    const int pause = may_pass ? patience.next_pause(calls_.now()) : 0;
    if (pause == 0) return file_error(why);
    calls_.pause(pause);
  }
}

FileError Win32Files::commit(const StagedFile& staged, Over over) {
  return move(staged,
              MOVEFILE_WRITE_THROUGH | (over == Over::kReplace ? MOVEFILE_REPLACE_EXISTING : 0U));
}

FileError Win32Files::move_over(const StagedFile& staged) {
  return move(staged, MOVEFILE_REPLACE_EXISTING);
}

void Win32Files::discard(const StagedFile& staged) {
  if (const auto os_path = os(staged.temporary); os_path.ok())
    (void)calls_.delete_file(os_path.value->c_str());
}

void Win32Files::take_away(const std::wstring& path) const {
  for (int i = 0; i < kTries; ++i) {
    const auto name = to_wide(next_name());
    const std::wstring aside = folder_of(path) + name.value_or(L"");
    if (calls_.move(path.c_str(), aside.c_str(), 0)) {
      (void)calls_.delete_file(aside.c_str());
      return;
    }
    if (file_error(::GetLastError()) == FileError::kExists) continue;
    (void)calls_.delete_file(path.c_str());
    return;
  }
}

// ---- The logbook

Result<std::unique_ptr<LockedLog>> Win32Files::lock_log(const std::string& path) {
  const auto os_path = os(path);
  if (!os_path.ok()) return os_path.error;
  auto log = std::make_unique<Log>(*this, *os_path.value);
  if (const FileError error = log->open(); error != FileError::kNone) return error;
  return {std::move(log)};
}

bool Win32Files::is_running(std::uint64_t process) const {
  constexpr std::uint64_t kLargest = std::numeric_limits<DWORD>::max();
  return process != 0 && process <= kLargest && calls_.is_running(static_cast<DWORD>(process));
}

// ---- Claiming

/// An open file that is locked, and removed before the lock goes.
class Win32Files::LockClaim : public Claim {
 public:
  LockClaim(const Win32Files& files, std::wstring path)
      : files_(files),
        calls_(files.calls_),
        path_(std::move(path)),
        // Not a new one only: the file of a copy that was killed stays, and its lock does not.
        open_(calls_, path_, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS) {
    error_ = make();
  }
  ~LockClaim() override {
    if (error_ == FileError::kNone) files_.take_away(path_);
  }
  LockClaim(const LockClaim&) = delete;
  LockClaim& operator=(const LockClaim&) = delete;

  [[nodiscard]] FileError error() const { return error_; }
  [[nodiscard]] bool is_locked() const override { return is_locked_; }

 private:
  [[nodiscard]] FileError make() {
    if (const FileError error = files_.regular(open_); error != FileError::kNone) return error;
    if (!calls_.lock(open_.file())) {
      const DWORD why = ::GetLastError();
      if (!knows_no_locks(why)) return file_error(why);
      is_locked_ = false;
    }
    BY_HANDLE_FILE_INFORMATION opened{};
    if (!calls_.about(open_.file(), opened)) return file_error(::GetLastError());
    const Open name(calls_, path_, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
    BY_HANDLE_FILE_INFORMATION named{};
    const bool found = name.ok() && calls_.about(name.file(), named);
    if (!found && !is_missing(name.error_number()) && !name.is_being_deleted())
      return name.ok() ? file_error(::GetLastError()) : name.error();
    // Between our opening the file and locking it another copy gave up its claim: what we hold is
    // no longer what the path names.
    return found && same_file(opened, named) ? FileError::kNone : FileError::kLocked;
  }

  const Win32Files& files_;
  SystemCalls& calls_;
  std::wstring path_;
  Open open_;
  bool is_locked_ = true;
  FileError error_ = FileError::kNone;
};

Result<std::unique_ptr<Claim>> Win32Files::claim(const std::string& path) {
  const auto os_path = os(path);
  if (!os_path.ok()) return os_path.error;
  auto claim = std::make_unique<LockClaim>(*this, *os_path.value);
  if (claim->error() != FileError::kNone) return claim->error();
  return {std::move(claim)};
}

// ---- What is there

Look Win32Files::look(const std::string& path) const {
  const auto os_path = os(path);
  if (os_path.ok()) return look_at(*os_path.value);
  if (os_path.error == FileError::kNotFound) return {};
  return {There::kCannotTell, os_path.error};
}

Look Win32Files::look_at(const std::wstring& path) const {
  const Open found(calls_, path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  if (found.ok()) {
    if (calls_.file_type(found.file()) != FILE_TYPE_DISK) return {There::kOther};
    BY_HANDLE_FILE_INFORMATION about{};
    if (!calls_.about(found.file(), about))
      return {There::kCannotTell, file_error(::GetLastError())};
    if ((about.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return {There::kFolder};
    return {There::kFile, FileError::kNone, whole_of(about.nFileSizeHigh, about.nFileSizeLow)};
  }
  // A name that somebody has removed and somebody still holds is on its way out.
  if (found.error() != FileError::kNotFound) return {There::kCannotTell, found.error()};
  // A link may lead to a share that is not there now: what it names is not gone for that.
  WIN32_FILE_ATTRIBUTE_DATA name{};
  if (calls_.attributes(path.c_str(), name)) {
    const bool is_link = (name.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    return {There::kCannotTell, is_link ? FileError::kBadLink : FileError::kOther};
  }
  if (const FileError error = file_error(::GetLastError()); error != FileError::kNotFound)
    return {There::kCannotTell, error};
  return {};
}

std::optional<DateTime> Win32Files::modified(const std::string& path) const {
  const auto os_path = os(path);
  const auto found = os_path.ok() ? about(*os_path.value) : std::nullopt;
  SYSTEMTIME utc{};
  SYSTEMTIME local{};
  if (!found || ::FileTimeToSystemTime(&found->ftLastWriteTime, &utc) == 0 ||
      ::SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local) == 0)
    return std::nullopt;
  return DateTime{local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
}

Result<std::vector<FolderEntry>> Win32Files::list(const std::string& folder) const {
  const auto os_path = to_os(folder);
  if (!os_path.ok()) return os_path.error;
  const bool ends = os_path.value->ends_with('\\');
  const auto pattern = wide_path(*os_path.value + (ends ? "*" : "\\*"));
  if (!pattern.ok()) return pattern.error;
  std::vector<FolderEntry> entries;
  WIN32_FIND_DATAW entry{};
  const HANDLE search = calls_.find_first(pattern.value->c_str(), entry);
  if (search == INVALID_HANDLE_VALUE) {
    // The top of a drive holds not even "." when it is empty.
    const DWORD why = ::GetLastError();
    if (why == ERROR_FILE_NOT_FOUND && look(folder).there == There::kFolder) return entries;
    return file_error(why);
  }
  DWORD why = ERROR_NO_MORE_FILES;
  try {
    do {
      const auto name = to_utf8(static_cast<const wchar_t*>(entry.cFileName));
      if (!name || *name == "." || *name == "..") continue;
      bool is_folder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
      // What is both hidden and the system's is nobody's to choose, such as the folder of what was
      // deleted. Files of ours may be hidden, and are found.
      constexpr DWORD kSystems = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
      bool is_other = (entry.dwFileAttributes & FILE_ATTRIBUTE_DEVICE) != 0 ||
                      (entry.dwFileAttributes & kSystems) == kSystems;
      // A link is what it leads to.
      if ((entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        const Look target = look(join(folder, *name));
        if (target.there == There::kFolder) is_folder = true;
        is_other = is_other || target.there == There::kOther;
      }
      if (!is_other) entries.push_back({*name, is_folder});
    } while (calls_.find_next(search, entry));
    why = ::GetLastError();
  } catch (const std::bad_alloc&) {
    why = ERROR_NOT_ENOUGH_MEMORY;
  }
  (void)calls_.find_close(search);
  if (why != ERROR_NO_MORE_FILES) return file_error(why);
  return entries;
}

// ---- Changing what is there

FileError Win32Files::create_folder(const std::string& path) {
  const auto os_path = os(path);
  if (!os_path.ok()) return os_path.error;
  if (const Look found = look_at(*os_path.value); found.there != There::kNo) {
    if (found.there == There::kFolder) return FileError::kNone;
    return found.there == There::kCannotTell ? found.error : FileError::kAccessDenied;
  }
  if (calls_.create_folder(os_path.value->c_str())) return FileError::kNone;
  const FileError error = file_error(::GetLastError());
  // Another copy of the program may have made it since the look.
  return error == FileError::kExists && is_folder(path) ? FileError::kNone : error;
}

FileError Win32Files::remove(const std::string& path) {
  const auto os_path = os(path);
  if (!os_path.ok()) return os_path.error;
  const bool is_a_folder = look_at(*os_path.value).there == There::kFolder;
  const bool gone = is_a_folder ? calls_.remove_folder(os_path.value->c_str())
                                : calls_.delete_file(os_path.value->c_str());
  return gone ? FileError::kNone : file_error(::GetLastError());
}

FileError Win32Files::clear_read_only(const std::string& path) {
  const auto os_path = os(path);
  if (!os_path.ok()) return os_path.error;
  WIN32_FILE_ATTRIBUTE_DATA found{};
  if (!calls_.attributes(os_path.value->c_str(), found)) return file_error(::GetLastError());
  if ((found.dwFileAttributes & FILE_ATTRIBUTE_READONLY) == 0) return FileError::kNone;
  const DWORD left = found.dwFileAttributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY);
  const DWORD wanted = left == 0 ? static_cast<DWORD>(FILE_ATTRIBUTE_NORMAL) : left;
  return calls_.set_attributes(os_path.value->c_str(), wanted) ? FileError::kNone
                                                               : file_error(::GetLastError());
}

std::optional<std::uint64_t> Win32Files::free_space(const std::string& path) const {
  const auto os_path = os(path);
  if (!os_path.ok()) return std::nullopt;
  // A file will lie on its folder's disk, there or not yet.
  const bool is_a_folder = look_at(*os_path.value).there == There::kFolder;
  const std::wstring folder = is_a_folder ? *os_path.value : folder_of(*os_path.value);
  std::uint64_t room = 0;
  return calls_.free_space(folder.c_str(), room) ? std::optional(room) : std::nullopt;
}

bool Win32Files::same(const std::string& a, const std::string& b) const {
  const auto os_a = os(a);
  const auto os_b = os(b);
  if (!os_a.ok() || !os_b.ok()) return false;
  // Equal paths are one file also where it does not exist yet.
  if (equal_names(*os_a.value, *os_b.value)) return true;
  const auto found_a = about(*os_a.value);
  const auto found_b = about(*os_b.value);
  if (found_a && found_b) return same_file(*found_a, *found_b);
  const std::wstring folder_a = folder_of(*os_a.value);
  const std::wstring folder_b = folder_of(*os_b.value);
  if (found_a || found_b ||
      !equal_names(os_a.value->substr(folder_a.size()), os_b.value->substr(folder_b.size())))
    return false;
  const auto above_a = about(folder_a);
  const auto above_b = about(folder_b);
  return above_a && above_b && same_file(*above_a, *above_b);
}

}  // namespace platform::win32
