// What only the real files can show: every system call failing in turn, a process that ends between
// any two of them, and two that are at one file.

#include "platform/win32/win32_files.h"

#include <gtest/gtest.h>

#include <map>
#include <thread>

#include "platform/port_under_test.h"

namespace {

using platform::FileError;
using platform::There;
using platform::win32::Win32Files;

constexpr const char* kLog = "C:\\out\\immt5.log";
constexpr const char* kReport = "C:\\out\\14111512.tlx";

/// A fresh folder with an old report and an old logbook in it, or without them.
struct Place : tests::PortUnderTest {
  explicit Place(bool with_old) {
    temp.folder("out");
    if (!with_old) return;
    temp.write("out/14111512.tlx", "old");
    temp.write("out/immt5.log", "old\n");
  }
  /// Every file with its content; a name that a crash may leave behind counts as ".part".
  [[nodiscard]] std::map<std::string, std::string> contents() const {
    std::map<std::string, std::string> result;
    for (const std::string& name : temp.names("out"))
      result[name.ends_with(".part") ? ".part" : name] = temp.content("out/" + name);
    return result;
  }
  [[nodiscard]] std::wstring wide(const std::string& path) const {
    return *platform::win32::wide_path(*map.to_os(path).value).value;
  }
};

/// A handle of another program, which shares with others what it says.
class Held {
 public:
  Held(const std::wstring& path, DWORD access, DWORD share)
      : file_(::CreateFileW(path.c_str(), access, share, nullptr, OPEN_EXISTING, 0, nullptr)) {
    EXPECT_NE(file_, INVALID_HANDLE_VALUE) << ::GetLastError();
  }
  ~Held() { let_go(); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;
  void let_go() {
    if (file_ != INVALID_HANDLE_VALUE) ::CloseHandle(file_);
    file_ = INVALID_HANDLE_VALUE;
  }

 private:
  HANDLE file_;
};

/// False where the file system under the folder keeps no attributes.
bool set_attributes(const std::wstring& path, DWORD attributes) {
  return ::SetFileAttributesW(path.c_str(), attributes) != 0 &&
         (::GetFileAttributesW(path.c_str()) & attributes) == attributes;
}

using Work = std::function<FileError(Win32Files&)>;

FileError replace_report(Win32Files& files) {
  return files.replace(kReport, "new content");
}
FileError append(Win32Files& files, std::string_view line) {
  const auto log = files.lock_log(kLog);
  return log.ok() ? (*log.value)->append(line) : log.error;
}
FileError append_line(Win32Files& files) {
  return append(files, "new line\n");
}
FileError note_plan(Win32Files& files) {
  return files.note("C:\\out\\.kavrel-save", "new content");
}
FileError put_new_report(Win32Files& files) {
  const auto staged = files.stage("C:\\out\\new.tlx", "new content");
  if (!staged.ok()) return staged.error;
  const FileError error = files.commit(*staged.value, platform::Over::kRefuse);
  if (error != FileError::kNone) files.discard(*staged.value);
  return error;
}
FileError copy_report(Win32Files& files) {
  return files.copy(kReport, "C:\\out\\copy");
}
FileError take_line_back(Win32Files& files) {
  const auto log = files.lock_log(kLog);
  return log.ok() ? (*log.value)->cut(0) : log.error;
}

struct Operation {
  const char* name;
  Work work;
};
const Operation kOperations[] = {
    {"replace", replace_report}, {"append", append_line}, {"copy", copy_report},
    {"cut", take_line_back},     {"note", note_plan},     {"put new", put_new_report},
};

int calls_of(const Work& work, bool with_old) {
  Place place(with_old);
  const int before = place.calls.count();
  (void)work(place.files);
  return place.calls.count() - before;
}

/// What lies there after the operation has gone through.
std::map<std::string, std::string> done(const Work& work, bool with_old) {
  Place place(with_old);
  (void)work(place.files);
  return place.contents();
}

/// What counts of what lies there: a logbook without a line is as good as none, and a staged file
/// that nobody took away is cleared by a later save.
std::map<std::string, std::string> whole(std::map<std::string, std::string> found, bool with_old) {
  found.erase(".part");
  if (!with_old && found.contains("immt5.log") && found["immt5.log"].empty())
    found.erase("immt5.log");
  return found;
}

TEST(Win32Files, AFailureOfAnyCallLeavesOldOrNewFilesAndTellsWhich) {
  for (const auto& operation : kOperations) {
    for (const bool with_old : {true, false}) {
      const auto after = done(operation.work, with_old);
      const int calls = calls_of(operation.work, with_old);
      ASSERT_GT(calls, 0) << operation.name;
      for (int n = 1; n <= calls; ++n) {
        for (const DWORD error_number :
             {ERROR_DISK_FULL, ERROR_ACCESS_DENIED, ERROR_CRC, ERROR_SHARING_VIOLATION}) {
          Place place(with_old);
          const auto before = place.contents();
          place.calls.fail_at(n, error_number);
          const FileError error = operation.work(place.files);
          const std::string where = std::string(operation.name) + (with_old ? " old " : " new ") +
                                    std::to_string(n) + " " +
                                    place.calls.log()[static_cast<std::size_t>(n) - 1];
          EXPECT_EQ(whole(place.contents(), with_old), error == FileError::kNone ? after : before)
              << where;
          EXPECT_EQ(place.calls.open_files(), 0) << where;
        }
      }
    }
  }
}

TEST(Win32Files, AKillBetweenAnyTwoCallsLeavesEachFileWholeOldOrNew) {
  for (const auto& operation : kOperations) {
    for (const bool with_old : {true, false}) {
      const auto after = done(operation.work, with_old);
      const int calls = calls_of(operation.work, with_old);
      for (int n = 1; n <= calls; ++n) {
        Place place(with_old);
        const auto before = place.contents();
        place.calls.kill_at(n);
        (void)operation.work(place.files);
        place.calls.heal();
        const auto now = whole(place.contents(), with_old);
        EXPECT_TRUE(now == before || now == after)
            << operation.name << (with_old ? " old " : " new ") << n;
        // Whatever was left behind does not stand in the way of the next run.
        EXPECT_EQ(replace_report(place.files), FileError::kNone) << operation.name << n;
        EXPECT_EQ(append_line(place.files), FileError::kNone) << operation.name << n;
      }
    }
  }
}

TEST(Win32Files, AShortWriteIsContinuedWhenReplacing) {
  const int calls = calls_of(replace_report, true);
  for (int n = 1; n <= calls; ++n) {
    Place place(true);
    place.calls.short_at(n);
    EXPECT_EQ(replace_report(place.files), FileError::kNone);
    EXPECT_EQ(place.temp.content("out/14111512.tlx"), "new content") << n;
  }
}

std::vector<std::string> calls_when_appending(bool with_old) {
  Place place(with_old);
  (void)append_line(place.files);
  return place.calls.log();
}

/// Number of the first call of that name, counted from 1.
int number_of(const std::vector<std::string>& log, const char* name) {
  return static_cast<int>(std::find(log.begin(), log.end(), name) - log.begin()) + 1;
}

TEST(Win32Files, AShortWriteIsCutBackWhenAppending) {
  for (const bool with_old : {true, false}) {
    Place place(with_old);
    const auto before = place.contents();
    place.calls.short_at(number_of(calls_when_appending(with_old), "write"));
    EXPECT_EQ(append_line(place.files), FileError::kNoSpace);
    EXPECT_EQ(place.contents(), before) << "what was created is gone again";
  }
}

TEST(Win32Files, AppendSetsRoomAsideAndWritesOnce) {
  const auto log = calls_when_appending(true);
  EXPECT_EQ(std::count(log.begin(), log.end(), "write"), 1);
  EXPECT_LT(number_of(log, "lock"), number_of(log, "reserve"));
  EXPECT_LT(number_of(log, "reserve"), number_of(log, "write"));
  EXPECT_LT(number_of(log, "write"), number_of(log, "flush"));
}

TEST(Win32Files, AFullDiskIsSeenBeforeTheLineIsWritten) {
  const int reserve = number_of(calls_when_appending(true), "reserve");
  Place full(true);
  full.calls.fail_at(reserve, ERROR_DISK_FULL);
  EXPECT_EQ(append_line(full.files), FileError::kNoSpace);
  EXPECT_EQ(std::count(full.calls.log().begin(), full.calls.log().end(), "write"), 0);
  Place unable(true);
  unable.calls.fail_at(reserve, ERROR_NOT_SUPPORTED);
  EXPECT_EQ(append_line(unable.files), FileError::kNone) << "a file system that cannot reserve";
  EXPECT_EQ(unable.temp.content("out/immt5.log"), "old\nnew line\n");
}

// ---- Two that are at one file

TEST(Win32Files, TwoWritersTearNoLineAndLoseNone) {
  constexpr int kLines = 300;
  Place place(false);
  const auto write = [&](char letter) {
    platform::win32::SystemCalls calls;  // with a clock that does wait
    Win32Files files(place.map, calls);
    const std::string line = std::string(172, letter) + "\n";
    for (int i = 0; i < kLines; ++i) {
      FileError error = FileError::kLocked;
      while (error == FileError::kLocked) error = append(files, line);
      EXPECT_EQ(error, FileError::kNone);
    }
  };
  std::thread other(write, 'b');
  write('a');
  other.join();
  std::map<std::string, int> lines;
  const std::string content = place.temp.content("out/immt5.log");
  for (std::size_t at = 0; at < content.size();) {
    const auto end = content.find('\n', at);
    ASSERT_NE(end, std::string::npos) << "a line without its end";
    ++lines[content.substr(at, end - at)];
    at = end + 1;
  }
  EXPECT_EQ(lines, (std::map<std::string, int>{{std::string(172, 'a'), kLines},
                                               {std::string(172, 'b'), kLines}}));
}

TEST(Win32Files, NoLineIsLostWhenAnotherTakesItsOwnBack) {
  // One appends and takes back, and so removes the file whenever it had created it; every line of
  // the other one must be there in the end.
  constexpr int kLines = 100;
  Place place(false);
  std::thread other([&] {
    platform::win32::SystemCalls calls;
    Win32Files files(place.map, calls);
    for (int i = 0; i < kLines; ++i)
      if (const auto log = files.lock_log(kLog); log.ok()) {
        const auto before = (*log.value)->size();
        if ((*log.value)->append("x\n") == FileError::kNone) (void)(*log.value)->cut(before);
      }
  });
  platform::win32::SystemCalls calls;
  Win32Files files(place.map, calls);
  for (int i = 0; i < kLines; ++i) EXPECT_EQ(append(files, "kept\n"), FileError::kNone);
  other.join();
  std::string kept;
  for (int i = 0; i < kLines; ++i) kept += "kept\n";
  EXPECT_EQ(place.temp.content("out/immt5.log"), kept);
}

TEST(Win32Files, AHeldLogbookIsTriedForAFewSecondsAndNotForEver) {
  Place place(true);
  const auto held = place.files.lock_log(kLog);
  ASSERT_TRUE(held.ok());
  std::int64_t passed = 0;
  place.calls.while_paused = [&](std::int64_t now) { passed = now; };
  EXPECT_EQ(append_line(place.files), FileError::kLocked);
  EXPECT_GE(passed, 2000);
  EXPECT_LE(passed, 10000);
  EXPECT_EQ(place.temp.content("out/immt5.log"), "old\n") << "it can be read meanwhile";
}

TEST(Win32Files, ALogbookThatIsLetGoMeanwhileIsHad) {
  Place place(true);
  auto held = place.files.lock_log(kLog);
  ASSERT_TRUE(held.ok());
  place.calls.while_paused = [&](std::int64_t now) {
    if (now > 1000) held.value.reset();
  };
  EXPECT_EQ(append_line(place.files), FileError::kNone);
  EXPECT_EQ(place.temp.content("out/immt5.log"), "old\nnew line\n");
}

TEST(Win32Files, AFileSystemWithoutLocksStillServesAndSaysSo) {
  for (const DWORD error_number : tests::kNoLocks) {
    Place place(true);
    place.calls.fail_all("lock", error_number);
    const auto log = place.files.lock_log(kLog);
    ASSERT_TRUE(log.ok()) << error_number;
    EXPECT_FALSE((*log.value)->is_locked());
    EXPECT_EQ((*log.value)->append("new line\n"), FileError::kNone);
    EXPECT_EQ(place.temp.content("out/immt5.log"), "old\nnew line\n");
  }
}

TEST(Win32Files, WhatAnotherProgramKeepsToItselfIsToldAsHeld) {
  Place place(true);
  const Held report(place.wide(kReport), GENERIC_READ, 0);
  const Held log(place.wide(kLog), GENERIC_READ, 0);
  EXPECT_EQ(place.files.read(kReport).error, FileError::kLocked);
  EXPECT_EQ(replace_report(place.files), FileError::kLocked);
  EXPECT_EQ(place.files.remove(kReport), FileError::kLocked);
  EXPECT_EQ(append_line(place.files), FileError::kLocked);
  EXPECT_EQ(place.files.look(kReport).there, There::kFile) << "it is seen all the same";
  EXPECT_EQ(place.files.look(kReport).size, 3U);
  EXPECT_EQ(place.temp.names("out").size(), 2U);
}

TEST(Win32Files, AReportThatAnotherProgramHasOpenIsReplacedOnceItIsClosed) {
  for (const bool closes : {false, true}) {
    Place place(true);
    // As a viewer has it: everybody may read and write it, but not take it away.
    Held viewer(place.wide(kReport), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    if (closes) place.calls.while_paused = [&](std::int64_t) { viewer.let_go(); };
    EXPECT_EQ(replace_report(place.files), closes ? FileError::kNone : FileError::kLocked);
    EXPECT_EQ(place.contents().at("14111512.tlx"), closes ? "new content" : "old");
    EXPECT_EQ(place.temp.names("out").size(), 2U) << "nothing is left beside it";
  }
}

TEST(Win32Files, WithoutALockNoRoomIsSetAside) {
  Place place(true);
  place.calls.fail_all("lock", ERROR_NOT_SUPPORTED);
  const auto log = place.files.lock_log(kLog);
  ASSERT_TRUE(log.ok());
  // Somebody else, whom no lock keeps out, writes more than the line is long.
  place.temp.write("out/immt5.log", "old\nsomebody else's line, which is longer\n");
  EXPECT_EQ((*log.value)->append("mine\n"), FileError::kNone);
  EXPECT_EQ(place.temp.content("out/immt5.log"),
            "old\nsomebody else's line, which is longer\nmine\n");
  const auto& log_of_calls = place.calls.log();
  EXPECT_EQ(std::count(log_of_calls.begin(), log_of_calls.end(), "reserve"), 0);
}

TEST(Win32Files, AMoveThatAScannerForbidsIsTriedAgain) {
  Place place(true);
  const auto staged = place.files.stage(kReport, "new content");
  ASSERT_TRUE(staged.ok());
  Held scanner(place.wide(staged.value->temporary), GENERIC_READ, FILE_SHARE_READ);
  std::int64_t passed = 0;
  place.calls.while_paused = [&](std::int64_t now) { passed = now; };
  EXPECT_EQ(place.files.commit(*staged.value), FileError::kLocked) << "but not for ever";
  EXPECT_GE(passed, 500);
  EXPECT_LE(passed, 5000);
  EXPECT_EQ(place.temp.content("out/14111512.tlx"), "old");
  place.calls.while_paused = [&](std::int64_t) { scanner.let_go(); };
  EXPECT_EQ(place.files.commit(*staged.value), FileError::kNone);
  EXPECT_EQ(place.temp.content("out/14111512.tlx"), "new content");
}

// ---- Names

TEST(Win32Files, LongAndJapaneseNamesAreNamesLikeOthers) {
  Place place(false);
  std::string path = "C:\\out";
  // Far beyond the 260 characters that older calls allow.
  for (int i = 0; i < 12; ++i) {
    path += "\\気象通報の控え" + std::string(30, 'x') + std::to_string(i);
    ASSERT_EQ(place.files.create_folder(path), FileError::kNone) << i;
  }
  const std::string file = path + "\\14111512.tlx";
  EXPECT_EQ(place.files.replace(file, "x"), FileError::kNone);
  EXPECT_EQ(*place.files.read(file).value, "x");
  {
    const auto log = place.files.lock_log(path + "\\immt5.log");
    ASSERT_TRUE(log.ok());
    EXPECT_EQ((*log.value)->append("x\n"), FileError::kNone);
  }
  EXPECT_EQ(place.files.list(path).value->size(), 2U);
  EXPECT_EQ(place.files.look(file).there, There::kFile);
  EXPECT_GT(place.files.free_space(path).value_or(0), 0U);
  EXPECT_EQ(place.files.list("C:\\out").value->front().name,
            "気象通報の控え" + std::string(30, 'x') + "0");
}

TEST(Win32Files, NamesCompareAsTheFileSystemDoes) {
  Place place(true);
  EXPECT_TRUE(place.files.is_file("C:\\out\\14111512.TLX"));
  EXPECT_TRUE(place.files.same(kReport, "c:\\OUT\\14111512.TLX"));
  EXPECT_TRUE(place.files.same("C:\\out\\none", "C:\\OUT\\NONE")) << "not there yet, one place";
}

TEST(Win32Files, NamesThatNoFileCanHaveAreNamedAsThat) {
  Place place(true);
  for (const char* const path : {"C:\\out\\a?b", "C:\\out\\a*", "C:\\out\\<a>", "C:\\out\\a|b",
                                 "C:\\out\\a:stream", "C:\\out\\\xFF"}) {
    EXPECT_EQ(place.files.look(path).there, There::kCannotTell) << path;
    EXPECT_EQ(place.files.look(path).error, FileError::kBadName) << path;
    EXPECT_EQ(place.files.replace(path, "x"), FileError::kBadName) << path;
  }
  EXPECT_EQ(place.files.look("C:\\out\\" + std::string(300, 'n')).error, FileError::kBadName);
}

TEST(Win32Files, DevicesAreNeitherReadNorWritten) {
  Place place(true);
  const std::string device = "C:\\out\\NUL";
  EXPECT_EQ(place.files.read(device).error, FileError::kNotAFile);
  EXPECT_EQ(place.files.replace(device, "x"), FileError::kNotAFile);
  EXPECT_EQ(place.files.lock_log(device).error, FileError::kNotAFile);
  EXPECT_EQ(place.files.claim(device).error, FileError::kNotAFile);
}

// ---- Odds and ends

TEST(Win32Files, AReplacedFileKeepsItsAttributes) {
  Place place(true);
  if (!set_attributes(place.wide(kReport), FILE_ATTRIBUTE_HIDDEN))
    GTEST_SKIP() << "no attributes here";
  ASSERT_EQ(replace_report(place.files), FileError::kNone);
  EXPECT_NE(::GetFileAttributesW(place.wide(kReport).c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
  EXPECT_EQ(place.temp.content("out/14111512.tlx"), "new content");
}

TEST(Win32Files, WhatTheSystemHidesForItselfIsNotListed) {
  Place place(true);
  ASSERT_EQ(place.files.create_folder("C:\\out\\deleted"), FileError::kNone);
  if (!set_attributes(place.wide("C:\\out\\deleted"),
                      FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM) ||
      !set_attributes(place.wide(kReport), FILE_ATTRIBUTE_HIDDEN))
    GTEST_SKIP() << "no attributes here";
  const auto entries = place.files.list("C:\\out");
  ASSERT_TRUE(entries.ok());
  EXPECT_EQ(entries.value->size(), 2U) << "report and logbook";
  EXPECT_EQ(place.files.look("C:\\out\\deleted").there, There::kFolder) << "it can be named";
}

TEST(Win32Files, OnlyTheAnswerNoSuchNameMeansThatNothingIsThere) {
  for (const char* path : {kLog, "C:\\out\\none"}) {
    Place trial(true);
    (void)trial.files.look(path);
    for (int n = 1; n <= trial.calls.count(); ++n) {
      for (const DWORD error_number :
           {ERROR_ACCESS_DENIED, ERROR_CRC, ERROR_TOO_MANY_OPEN_FILES, ERROR_NOT_ENOUGH_MEMORY}) {
        if (trial.calls.log()[static_cast<std::size_t>(n) - 1] == "close") continue;
        Place place(true);
        place.calls.fail_at(n, error_number);
        const platform::Look found = place.files.look(path);
        EXPECT_EQ(found.there, There::kCannotTell) << path << n << " " << error_number;
        EXPECT_EQ(found.error, platform::win32::file_error(error_number));
      }
    }
  }
}

TEST(Win32Files, AbsentMediumIsToldApart) {
  Place place(true);
  EXPECT_EQ(place.files.read("A:\\x").error, FileError::kMediumMissing);
  EXPECT_EQ(place.files.replace("A:\\x", "y"), FileError::kMediumMissing);
  EXPECT_EQ(place.files.lock_log("A:\\x").error, FileError::kMediumMissing);
  EXPECT_EQ(place.files.free_space("A:\\x"), std::nullopt);
  EXPECT_FALSE(place.files.is_folder("A:\\"));
}

TEST(Win32Files, MemoryThatRunsOutIsAnErrorAndLeavesNothingOpen) {
  class NoMemory : public tests::FailingCalls {
   public:
    bool read_at(HANDLE, void*, DWORD, std::uint64_t, DWORD&) override { throw std::bad_alloc(); }
    bool find_next(HANDLE, WIN32_FIND_DATAW&) override { throw std::bad_alloc(); }
    bool find_close(HANDLE search) override {
      ++closed;
      return SystemCalls::find_close(search);
    }
    int closed = 0;
  };
  const Place place(true);
  NoMemory calls;
  const Win32Files files(place.map, calls);
  EXPECT_EQ(files.read(kReport).error, FileError::kNoMemory);
  EXPECT_EQ(files.read_part(kReport, 0, 1).error, FileError::kNoMemory);
  EXPECT_EQ(files.list("C:\\out").error, FileError::kNoMemory);
  EXPECT_EQ(calls.open_files(), 0);
  EXPECT_EQ(calls.closed, 1);
}

TEST(Win32Errors, NumbersBecomeReasons) {
  const struct {
    DWORD error_number;
    FileError error;
  } rows[] = {
      {ERROR_FILE_NOT_FOUND, FileError::kNotFound},
      {ERROR_PATH_NOT_FOUND, FileError::kNotFound},
      {ERROR_ACCESS_DENIED, FileError::kAccessDenied},
      {ERROR_WRITE_PROTECT, FileError::kAccessDenied},
      {ERROR_DISK_FULL, FileError::kNoSpace},
      {ERROR_HANDLE_DISK_FULL, FileError::kNoSpace},
      {1295, FileError::kNoSpace},
      {ERROR_NOT_READY, FileError::kMediumMissing},
      {ERROR_NO_MEDIA_IN_DRIVE, FileError::kMediumMissing},
      {ERROR_BAD_NETPATH, FileError::kMediumMissing},
      {ERROR_CANT_RESOLVE_FILENAME, FileError::kBadLink},
      {ERROR_TOO_MANY_OPEN_FILES, FileError::kTooManyOpen},
      {ERROR_INVALID_NAME, FileError::kBadName},
      {ERROR_FILENAME_EXCED_RANGE, FileError::kBadName},
      {ERROR_SHARING_VIOLATION, FileError::kLocked},
      {ERROR_LOCK_VIOLATION, FileError::kLocked},
      {ERROR_ALREADY_EXISTS, FileError::kExists},
      {ERROR_FILE_EXISTS, FileError::kExists},
      {ERROR_NOT_ENOUGH_MEMORY, FileError::kNoMemory},
      {ERROR_CRC, FileError::kOther},
      // A stick that was pulled out, a cable that was.
      {433, FileError::kMediumMissing},
      {ERROR_FILE_INVALID, FileError::kMediumMissing},
      {ERROR_UNRECOGNIZED_VOLUME, FileError::kMediumMissing},
      {ERROR_UNEXP_NET_ERR, FileError::kMediumMissing},
      {ERROR_SEM_TIMEOUT, FileError::kMediumMissing},
      {ERROR_NO_NETWORK, FileError::kMediumMissing},
      {ERROR_DIR_NOT_EMPTY, FileError::kOther},
  };
  for (const auto& row : rows)
    EXPECT_EQ(platform::win32::file_error(row.error_number), row.error) << row.error_number;
}

}  // namespace
