#pragma once
// Everything outside the process is behind one of these interfaces. Inside the program a path is
// what the officer knows ("C:\kavrel\file\FIXDATA.DAT"); the implementation owns the map from drive
// letters to the computer's folders.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

struct DateTime {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
  auto operator<=>(const DateTime&) const = default;
};

class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual DateTime local() const = 0;
  [[nodiscard]] virtual DateTime utc() const = 0;
};

/// The user's default locale, as the id that this kind of program has always tested.
class Locale {
 public:
  virtual ~Locale() = default;
  /// Low 10 bits: primary language; 0x0411 for Japanese (primary language 17), 0x0409 for English.
  [[nodiscard]] virtual unsigned locale_id() const = 0;
  /// By the primary language alone, whatever the country.
  [[nodiscard]] bool is_japanese() const {
    constexpr unsigned kPrimaryLanguage = 0x3FF;
    constexpr unsigned kJapanese = 17;
    return (locale_id() & kPrimaryLanguage) == kJapanese;
  }
};

/// Code page 932, in which the ship's files are kept wherever the program runs. It is the same in
/// every locale. Texts inside the program are UTF-8.
class CodePage {
 public:
  virtual ~CodePage() = default;
  /// The text of these bytes, whatever they are: each byte that belongs to no character becomes one
  /// kNoCharacter, and reading goes on with the next byte.
  [[nodiscard]] virtual std::string decode(std::string_view bytes) const = 0;
  /// The one or two bytes of one character; nothing when the code page does not have it or the text
  /// is not exactly one well-formed character. ASCII stands for itself and for nothing else: a yen
  /// sign is refused, not turned into a backslash.
  ///
  /// A few characters have a twin: the wave dash is kept as the full-width tilde, the minus sign as
  /// the full-width hyphen-minus, and so on. decode() gives the twin.
  [[nodiscard]] virtual std::optional<std::string> encode(std::string_view character) const = 0;
};
/// U+FFFD, which no code page has.
inline constexpr std::string_view kNoCharacter = "\xEF\xBF\xBD";

enum class DriveType {
  kUnknown = 0,
  kNone = 1,
  kRemovable = 2,
  kFixed = 3,
  kRemote = 4,
  kCdRom = 5,
  kRamDisk = 6
};

struct Drive {
  char letter = 'C';
  DriveType type = DriveType::kUnknown;
  /// Medium kind of the drive's geometry: 0 unknown, 11 removable other than floppy, 12 fixed, else
  /// a floppy form.
  int media_type = 0;
};

class Drives {
 public:
  virtual ~Drives() = default;
  /// The logical drives in letter order.
  [[nodiscard]] virtual std::vector<Drive> drives() const = 0;
  /// Device kind of a drive number (1 = A) asked as an older system answers it (2 and 7 are
  /// floppies), or nothing on a current system, where `Drive::media_type` counts.
  [[nodiscard]] virtual std::optional<int> older_device_type(int drive_number) const = 0;
  /// True when a medium is in the drive.
  [[nodiscard]] virtual bool medium_present(char letter) const = 0;
  /// Folder of the operating system, such as "C:\system"; its first three characters are the system
  /// root.
  [[nodiscard]] virtual std::string system_folder() const = 0;
  /// Path of the program as it was started.
  [[nodiscard]] virtual std::string program_path() const = 0;
};

enum class FileError {
  kNone,
  kNotFound,
  kAccessDenied,  ///< no permission, read-only medium, a folder where a file was wanted
  kNoSpace,
  kMediumMissing,  ///< the drive is not there or holds no medium
  kNotAFile,       ///< a pipe, a device or a socket where a file was wanted
  kBadLink,        ///< a link that leads nowhere, or in a circle
  kTooManyOpen,    ///< the program or the computer has no room for one more open file
  kBadName,        ///< too long, or with a character that no name may have there
  kLocked,         ///< another program holds the file
  kExists,         ///< something of that name is there already
  kNoMemory,       ///< the computer has no memory left for it
  kOther,
};

/// A value or the reason why there is none.
template <class T>
struct Result {
  std::optional<T> value;
  FileError error = FileError::kNone;

  Result(T v)
      : value(std::move(v)) {}  // NOLINT(google-explicit-constructor): a function returns either
  Result(FileError e) : error(e) {}  // NOLINT(google-explicit-constructor)
  [[nodiscard]] bool ok() const { return value.has_value(); }
};

/// What lies under a path. "Cannot tell" is an answer of its own: whoever takes it for "not there"
/// writes over a file that he could not see.
enum class There {
  kNo,    ///< there is no such name, and nothing else was wrong
  kFile,  ///< a regular file
  kFolder,
  kOther,       ///< a pipe, a device or a socket: it can be neither read nor replaced
  kCannotTell,  ///< not permitted, input or output error, no medium, a link that leads nowhere, ...
};
struct Look {
  There there = There::kNo;
  FileError error = FileError::kNone;  ///< why one cannot tell; else kNone
  std::uint64_t size = 0;              ///< bytes of a file; else 0
};

/// Why no file can be read under the path: kNone for a file, kNotFound only where there is nothing.
[[nodiscard]] FileError why_no_file(const Look& found);

struct FolderEntry {
  std::string name;
  bool is_folder = false;
};

/// A file written and flushed beside its place, not yet in it.
struct StagedFile {
  std::string path;       ///< where it will go
  std::string temporary;  ///< where it lies; no search for ".tlx" or "immt5.log" matches the name
};

/// The next piece of a content, empty behind its end; an error ends whatever asked for it.
using NextPiece = std::function<Result<std::string>()>;

/// The name under which stage() of that process makes its file of that number.
[[nodiscard]] std::string staged_name(std::uint64_t process, unsigned number);
/// The process whose stage() made a file of that name (".kavrel-PID-N.part", without a folder), or
/// nothing for any other name.
[[nodiscard]] std::optional<std::uint64_t> staged_by(std::string_view name);

/// A logbook, held against other copies of the program for as long as the object lives.
class LockedLog {
 public:
  virtual ~LockedLog() = default;
  LockedLog() = default;
  LockedLog(const LockedLog&) = delete;
  LockedLog& operator=(const LockedLog&) = delete;

  /// False where the file system knows no locks: then nobody is kept out.
  [[nodiscard]] virtual bool is_locked() const = 0;
  /// True when there was no such file before.
  [[nodiscard]] virtual bool created() const = 0;
  /// Bytes of the file as this object left it. Behind a failed append() or cut() it tells whether
  /// anything of it stayed.
  [[nodiscard]] virtual std::uint64_t size() const = 0;
  /// `count` bytes from there on, or what there is of them.
  [[nodiscard]] virtual Result<std::string> read(std::uint64_t from, std::uint64_t count) const = 0;
  /// Behind the end in one write, flushed; cut back when it did not go in whole.
  [[nodiscard]] virtual FileError append(std::string_view content) = 0;
  /// Shortens the file to so many bytes.
  [[nodiscard]] virtual FileError cut(std::uint64_t size) = 0;
  /// The file goes with the lock when it is empty then; so does one that was created for the lock.
  virtual void drop_if_empty() = 0;
};

/// What a rename does when something of the new name is there.
enum class Over {
  kReplace,
  kRefuse,  ///< kExists, and nothing is changed
};

/// A place among files that is this copy of the program's alone for as long as the object lives.
class Claim {
 public:
  Claim() = default;
  virtual ~Claim() = default;
  Claim(const Claim&) = delete;
  Claim& operator=(const Claim&) = delete;

  /// False where the file system knows no locks: then nobody is kept out.
  [[nodiscard]] virtual bool is_locked() const = 0;
};

class Files {
 public:
  virtual ~Files() = default;

  /// The whole file. Nothing above `largest` bytes is read (kOther).
  [[nodiscard]] virtual Result<std::string> read(const std::string& path,
                                                 std::uint64_t largest = 64U << 20U) const = 0;
  /// `count` bytes of the file from there on, or what there is of them: for a logbook of any length.
  /// Each call looks anew, so a file that is exchanged between two gives parts of both.
  [[nodiscard]] virtual Result<std::string> read_part(const std::string& path, std::uint64_t from,
                                                      std::uint64_t count) const = 0;

  // Only regular files are read and written; anything else of the name is kNotAFile at once.

  // Replacing: stage() writes beside the place and flushes; commit() renames over the old file and
  // flushes the folder; discard() removes what was staged. A crash before commit() leaves the old
  // file, a crash after it the new one.
  [[nodiscard]] virtual Result<StagedFile> stage(const std::string& path,
                                                 std::string_view content) = 0;
  /// stage() for a content of any length, of which one piece at a time is held. What is read of the
  /// staged file next comes from the medium where the system allows it, not from what it remembers.
  [[nodiscard]] virtual Result<StagedFile> stage_pieces(const std::string& path,
                                                        const NextPiece& next) = 0;
  [[nodiscard]] virtual FileError commit(const StagedFile& staged, Over over = Over::kReplace) = 0;
  virtual void discard(const StagedFile& staged) = 0;
  /// stage() and commit(), with discard() on failure.
  [[nodiscard]] FileError replace(const std::string& path, std::string_view content);

  /// stage() and a rename over the old file without flushing the folder: for a note that must be
  /// whole if it is there, and whose loss in a power failure does no harm. Costs one flush.
  [[nodiscard]] virtual FileError note(const std::string& path, std::string_view content) = 0;

  /// Claims a place by the path of a file that says so and holds nothing. kLocked while another
  /// copy of the program has it (or this one), else why no claim can be made there. However the
  /// program ends, its claims end with it.
  [[nodiscard]] virtual Result<std::unique_ptr<Claim>> claim(const std::string& path) = 0;

  /// Takes the lock that every copy of the program respects, creating the file when there is none.
  /// Tried for a few seconds, then kLocked.
  [[nodiscard]] virtual Result<std::unique_ptr<LockedLog>> lock_log(const std::string& path) = 0;
  /// True when a process of this computer has that number, or when one cannot tell.
  [[nodiscard]] virtual bool is_running(std::uint64_t process) const = 0;

  /// What lies under the path; links are followed.
  [[nodiscard]] virtual Look look(const std::string& path) const = 0;
  // Short for look(), for who shows or offers something: where one cannot tell, there is none. Not
  // for who writes or takes a default because a file is missing: seeding settings, reading the
  // ship's files, backing a file up, asking whether a report may be replaced. They look().
  [[nodiscard]] bool is_file(const std::string& path) const;
  [[nodiscard]] bool is_folder(const std::string& path) const;
  [[nodiscard]] std::optional<std::uint64_t> size(const std::string& path) const;
  /// Local time of the last change.
  [[nodiscard]] virtual std::optional<DateTime> modified(const std::string& path) const = 0;
  /// Files and folders in a folder without "." and "..", and no pipes or devices, in the order the
  /// file system gives them.
  [[nodiscard]] virtual Result<std::vector<FolderEntry>> list(const std::string& folder) const = 0;
  /// One folder; its parent must exist. An existing folder is kNone.
  [[nodiscard]] virtual FileError create_folder(const std::string& path) = 0;
  /// Copies over an existing file; the target is old or new, never half.
  [[nodiscard]] virtual FileError copy(const std::string& from, const std::string& to) = 0;
  [[nodiscard]] virtual FileError remove(const std::string& path) = 0;
  [[nodiscard]] virtual FileError clear_read_only(const std::string& path) = 0;
  /// Bytes free for this user on the drive that holds the path.
  [[nodiscard]] virtual std::optional<std::uint64_t> free_space(const std::string& path) const = 0;
  /// True when both paths name one file or folder.
  [[nodiscard]] virtual bool same(const std::string& a, const std::string& b) const = 0;
  [[nodiscard]] virtual std::string current_folder() const = 0;
  virtual void set_current_folder(const std::string& folder) = 0;
};

/// Removes what processes that are no more staged in the folder. One that lives may be about to
/// rename its file.
void clear_staged(Files& files, const std::string& folder);

class HelpViewer {
 public:
  virtual ~HelpViewer() = default;
  /// Full path of a help file, with "::/" and the topic when there is one. True when a help window
  /// was opened.
  virtual bool show(const std::string& path) = 0;
};

}  // namespace platform
