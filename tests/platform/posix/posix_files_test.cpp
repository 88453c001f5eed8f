// What only the real files can show: every system call failing in turn, a process that ends between
// any two of them, and two processes at one file.

#include "platform/posix/posix_files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <csignal>

#include <map>

#include "fakes/temp_folder.h"
#include "platform/posix/failing_calls.h"
#include "platform/system/process.h"

namespace {

using fakes::TempFolder;
using platform::FileError;
using platform::There;
using DriveMap = platform::posix::PosixDriveMap;
using platform::posix::PosixFiles;
using tests::FailingCalls;

constexpr const char* kLog = "C:\\out\\immt5.log";
constexpr const char* kReport = "C:\\out\\14111512.tlx";

/// A fresh folder with an old report and an old logbook in it, or without them.
struct Place {
  TempFolder temp;
  FailingCalls calls;
  DriveMap map{temp.path()};
  PosixFiles files{map, calls};

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
};

using Work = std::function<FileError(PosixFiles&)>;

FileError replace_report(PosixFiles& files) {
  return files.replace(kReport, "new content");
}
FileError append(PosixFiles& files, std::string_view line) {
  const auto log = files.lock_log(kLog);
  return log.ok() ? (*log.value)->append(line) : log.error;
}
FileError append_line(PosixFiles& files) {
  return append(files, "new line\n");
}
FileError note_plan(PosixFiles& files) {
  return files.note("C:\\out\\.kavrel-save", "new content");
}
FileError put_new_report(PosixFiles& files) {
  const auto staged = files.stage("C:\\out\\new.tlx", "new content");
  if (!staged.ok()) return staged.error;
  const FileError error = files.commit(*staged.value, platform::Over::kRefuse);
  if (error != FileError::kNone) files.discard(*staged.value);
  return error;
}
FileError copy_report(PosixFiles& files) {
  return files.copy(kReport, "C:\\out\\copy");
}
FileError take_line_back(PosixFiles& files) {
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

TEST(PosixFiles, StagedNameIsFoundByNoSearchOfTheProgram) {
  Place place(true);
  for (const char* path : {kReport, kLog, "C:\\out\\kavrel.ini", "C:\\out\\FIXDATA.DAT"}) {
    const auto staged = place.files.stage(path, "x");
    ASSERT_TRUE(staged.ok());
    for (const char* pattern : {".tlx", "immt5.log", ".ini", ".DAT"})
      EXPECT_EQ(staged.value->temporary.find(pattern), std::string::npos) << pattern;
    EXPECT_EQ(staged.value->temporary.substr(0, 7), "C:\\out\\") << "in the same folder";
  }
}

TEST(PosixFiles, AFailureOfAnyCallLeavesOldOrNewFilesAndTellsWhich) {
  for (const auto& operation : kOperations) {
    for (const bool with_old : {true, false}) {
      const auto after = done(operation.work, with_old);
      const int calls = calls_of(operation.work, with_old);
      for (int n = 1; n <= calls; ++n) {
        for (const int error_number : {ENOSPC, EACCES, EIO}) {
          Place place(with_old);
          auto before = place.contents();
          place.calls.fail_at(n, error_number);
          const FileError error = operation.work(place.files);
          const std::string where = std::string(operation.name) + (with_old ? " old " : " new ") +
                                    std::to_string(n) + " " + place.calls.log().back();
          auto now = place.contents();
          now.erase(".part");
          // A logbook without a line is as good as none.
          if (!with_old && now.contains("immt5.log") && now["immt5.log"].empty())
            now.erase("immt5.log");
          if (error == FileError::kNone)
            EXPECT_EQ(now, after) << where;
          else
            EXPECT_EQ(now, before) << where;
        }
      }
    }
  }
}

TEST(PosixFiles, AnInterruptedCallIsMadeAgain) {
  for (const auto& operation : kOperations) {
    const int calls = calls_of(operation.work, true);
    ASSERT_GT(calls, 3) << operation.name;
    const auto after = done(operation.work, true);
    for (int n = 1; n <= calls; ++n) {
      Place place(true);
      place.calls.fail_at(n, EINTR);
      const FileError error = operation.work(place.files);
      // The question whether a file may be written is not repeated: its "no" is taken.
      if (place.calls.log()[static_cast<std::size_t>(n) - 1] == "access") continue;
      EXPECT_EQ(error, FileError::kNone) << operation.name << n;
      EXPECT_EQ(place.contents(), after) << operation.name << n;
    }
  }
}

TEST(PosixFiles, AShortWriteIsContinuedWhenReplacing) {
  const int calls = calls_of(replace_report, true);
  for (int n = 1; n <= calls; ++n) {
    Place place(true);
    place.calls.short_at(n);
    EXPECT_EQ(replace_report(place.files), FileError::kNone);
    EXPECT_EQ(place.temp.content("out/14111512.tlx"), "new content") << n;
  }
}

TEST(PosixFiles, AShortWriteIsCutBackWhenAppending) {
  for (const bool with_old : {true, false}) {
    Place trial(with_old);
    (void)append_line(trial.files);
    const auto& log = trial.calls.log();
    const auto write = std::find(log.begin(), log.end(), "write");
    ASSERT_NE(write, log.end());
    Place place(with_old);
    const auto before = place.contents();
    place.calls.short_at(static_cast<int>(write - log.begin()) + 1);
    EXPECT_EQ(append_line(place.files), FileError::kNoSpace);
    EXPECT_EQ(place.contents(), before) << "what was created is gone again";
  }
}

TEST(PosixFiles, AppendSetsRoomAsideAndWritesOnce) {
  Place place(true);
  ASSERT_EQ(append_line(place.files), FileError::kNone);
  const auto& log = place.calls.log();
  EXPECT_EQ(std::count(log.begin(), log.end(), "write"), 1);
  const auto lock = std::find(log.begin(), log.end(), "lock");
  const auto reserve = std::find(log.begin(), log.end(), "reserve");
  const auto write = std::find(log.begin(), log.end(), "write");
  EXPECT_LT(lock, reserve);
  EXPECT_LT(reserve, write);
  EXPECT_NE(std::find(write, log.end(), "fsync"), log.end());
}

TEST(PosixFiles, AFullDiskIsSeenBeforeTheLineIsWritten) {
  Place trial(true);
  (void)append_line(trial.files);
  const auto& log = trial.calls.log();
  const auto reserve = std::find(log.begin(), log.end(), "reserve") - log.begin() + 1;
  Place full(true);
  full.calls.fail_at(static_cast<int>(reserve), ENOSPC);
  EXPECT_EQ(append_line(full.files), FileError::kNoSpace);
  EXPECT_EQ(std::count(full.calls.log().begin(), full.calls.log().end(), "write"), 0);
  Place unable(true);
  unable.calls.fail_at(static_cast<int>(reserve), EOPNOTSUPP);
  EXPECT_EQ(append_line(unable.files), FileError::kNone) << "a file system that cannot reserve";
  EXPECT_EQ(unable.temp.content("out/immt5.log"), "old\nnew line\n");
}

// ---- A process that ends between any two calls

/// Runs the work in a process of its own that ends before its n-th call; its exit status.
int run_killed(const Place& place, const Work& work, int n) {
  const pid_t child = ::fork();
  if (child == 0) {
    FailingCalls calls;
    PosixFiles files(place.map, calls);
    calls.kill_at(n);
    (void)work(files);
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(PosixFiles, AKillBetweenAnyTwoCallsLeavesEachFileWholeOldOrNew) {
  for (const auto& operation : kOperations) {
    for (const bool with_old : {true, false}) {
      const auto after = done(operation.work, with_old);
      for (int n = 1, status = FailingCalls::kKilled; status == FailingCalls::kKilled; ++n) {
        Place place(with_old);
        const auto before = place.contents();
        status = run_killed(place, operation.work, n);
        ASSERT_TRUE(status == 0 || status == FailingCalls::kKilled) << status;
        auto now = place.contents();
        now.erase(".part");
        if (!with_old && now.contains("immt5.log") && now["immt5.log"].empty())
          now.erase("immt5.log");
        EXPECT_TRUE(now == before || now == after)
            << operation.name << (with_old ? " old " : " new ") << n;
        // Whatever was left behind does not stand in the way of the next run.
        EXPECT_EQ(replace_report(place.files), FileError::kNone) << operation.name << n;
        EXPECT_EQ(append_line(place.files), FileError::kNone) << operation.name << n;
      }
    }
  }
}

TEST(PosixFiles, ALeftOverStagedFileDoesNotStopTheNextSave) {
  Place place(true);
  for (int i = 0; i < 3; ++i)
    place.temp.write(
        "out/.kavrel-" + std::to_string(::getpid()) + "-" + std::to_string(i) + ".part",
        "left over");
  EXPECT_EQ(replace_report(place.files), FileError::kNone);
  EXPECT_EQ(place.temp.content("out/14111512.tlx"), "new content");
}

// ---- Two copies of the program

void append_many(const DriveMap& map, char letter, int lines) {
  platform::posix::SystemCalls calls;
  PosixFiles files(map, calls);
  constexpr std::size_t kRecord = 172;
  const std::string line = std::string(kRecord, letter) + "\n";
  for (int i = 0; i < lines; ++i) {
    // On a machine that is busy otherwise the other process may hold the logbook for longer than it
    // is waited for; who is told so tries again.
    FileError error = FileError::kLocked;
    while (error == FileError::kLocked) error = append(files, line);
    if (error != FileError::kNone) ::_exit(1);
  }
}

TEST(PosixFiles, TwoProcessesTearNoLine) {
  constexpr int kLines = 10000;
  Place place(false);
  std::vector<pid_t> children;
  for (const char letter : {'a', 'b'}) {
    const pid_t child = ::fork();
    if (child == 0) {
      append_many(place.map, letter, kLines);
      ::_exit(0);
    }
    children.push_back(child);
  }
  for (const pid_t child : children) {
    int status = 1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
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

TEST(PosixFiles, NoLineIsLostWhenAnotherProcessTakesItsOwnBack) {
  // One process appends and takes back, and so removes the file whenever it had created it; every
  // line of the other one must be there in the end.
  constexpr int kLines = 500;
  Place place(false);
  const pid_t child = ::fork();
  if (child == 0) {
    platform::posix::SystemCalls calls;
    PosixFiles files(place.map, calls);
    for (int i = 0; i < kLines; ++i)
      if (const auto log = files.lock_log(kLog); log.ok()) {
        const auto before = (*log.value)->size();
        if ((*log.value)->append("x\n") == FileError::kNone) (void)(*log.value)->cut(before);
      }
    ::_exit(0);
  }
  platform::posix::SystemCalls calls;  // with a clock that does wait
  PosixFiles files(place.map, calls);
  for (int i = 0; i < kLines; ++i) EXPECT_EQ(append(files, "kept\n"), FileError::kNone);
  int status = 1;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  std::size_t kept = 0;
  const std::string content = place.temp.content("out/immt5.log");
  for (auto at = content.find("kept\n"); at != std::string::npos;
       at = content.find("kept\n", at + 1))
    ++kept;
  EXPECT_EQ(kept, static_cast<std::size_t>(kLines));
}

// ---- The lock

/// Another process that holds the logbook until it is told to let go by the end of its life.
class Holder {
 public:
  explicit Holder(const std::string& os_path) {
    int ready[2];
    EXPECT_EQ(::pipe(ready), 0);
    child_ = ::fork();
    if (child_ == 0) {
      platform::posix::SystemCalls calls;
      const int file = ::open(os_path.c_str(), O_RDWR);
      const bool held = calls.lock(file) == 0;
      (void)!::write(ready[1], held ? "y" : "n", 1);
      for (;;) ::pause();
    }
    char answer = 'n';
    EXPECT_EQ(::read(ready[0], &answer, 1), 1);
    EXPECT_EQ(answer, 'y');
    ::close(ready[0]);
    ::close(ready[1]);
  }
  ~Holder() { let_go(); }
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;
  void let_go() {
    if (child_ == 0) return;
    ::kill(child_, SIGKILL);
    ::waitpid(child_, nullptr, 0);
    child_ = 0;
  }

 private:
  pid_t child_ = 0;
};

TEST(PosixFiles, AHeldLogbookIsTriedForAFewSecondsAndNotForEver) {
  Place place(true);
  Holder holder(place.temp / "out/immt5.log");
  std::int64_t passed = 0;
  place.calls.while_paused = [&](std::int64_t now) { passed = now; };
  EXPECT_EQ(append_line(place.files), FileError::kLocked);
  EXPECT_GE(passed, 2000);
  EXPECT_LE(passed, 10000);
  EXPECT_EQ(place.temp.content("out/immt5.log"), "old\n");
}

TEST(PosixFiles, ALogbookThatIsLetGoMeanwhileIsHad) {
  Place place(true);
  Holder holder(place.temp / "out/immt5.log");
  place.calls.while_paused = [&](std::int64_t now) {
    if (now > 1000) holder.let_go();
  };
  EXPECT_EQ(append_line(place.files), FileError::kNone);
  EXPECT_EQ(place.temp.content("out/immt5.log"), "old\nnew line\n");
}

TEST(PosixFiles, AFileSystemWithoutLocksStillServesAndSaysSo) {
  for (const int error_number : {ENOLCK, EOPNOTSUPP, ENOSYS, EINVAL}) {
    Place place(true);
    place.calls.fail_all("lock", error_number);
    const auto log = place.files.lock_log(kLog);
    ASSERT_TRUE(log.ok()) << error_number;
    EXPECT_FALSE((*log.value)->is_locked());
    EXPECT_EQ((*log.value)->append("new line\n"), FileError::kNone);
    EXPECT_EQ(place.temp.content("out/immt5.log"), "old\nnew line\n");
  }
}

TEST(PosixFiles, ALinkThatLeadsNowhereIsNamedAsThat) {
  Place place(true);
  for (const char* name : {"dangling", "loop"}) {
    std::filesystem::create_symlink(name == std::string("loop") ? "loop" : "none/none",
                                    place.temp / "out/" + name);
    const std::string path = std::string("C:\\out\\") + name;
    EXPECT_EQ(place.files.lock_log(path).error, FileError::kBadLink) << name;
    EXPECT_EQ(place.files.stage(path, "x").error, FileError::kBadLink) << name;
  }
}

TEST(PosixFiles, ASharedNameIsRefusedWithWhateverTheFileSystemCanDo) {
  for (const int rename_new : {0, EINVAL, ENOSYS}) {
    for (const int link : {0, EPERM, EOPNOTSUPP}) {
      for (const bool with_old : {true, false}) {
        Place place(with_old);
        if (rename_new != 0) place.calls.fail_all("rename_new", rename_new);
        if (link != 0) place.calls.fail_all("link", link);
        const auto before = place.contents();
        const auto staged = place.files.stage(kReport, "new content");
        const FileError error = place.files.commit(*staged.value, platform::Over::kRefuse);
        EXPECT_EQ(error, with_old ? FileError::kExists : FileError::kNone) << rename_new << link;
        place.files.discard(*staged.value);
        if (with_old)
          EXPECT_EQ(place.contents(), before);
        else
          EXPECT_EQ(place.contents(),
                    (std::map<std::string, std::string>{{"14111512.tlx", "new content"}}));
      }
    }
  }
}

TEST(PosixFiles, ANewFileServesItsOwnerWhateverTheMaskTakesAway) {
  Place place(false);
  const mode_t before = ::umask(0777);
  EXPECT_EQ(replace_report(place.files), FileError::kNone);
  EXPECT_EQ(append_line(place.files), FileError::kNone);
  ::umask(before);
  for (const char* name : {"out/14111512.tlx", "out/immt5.log"}) {
    struct stat about {};
    ASSERT_EQ(::stat((place.temp / name).c_str(), &about), 0);
    EXPECT_EQ(about.st_mode & 0777U, 0600U) << name;
  }
}

TEST(PosixFiles, AFileAboveTheLimitOfSizeIsAFullDiskAndNoSignal) {
  Place place(true);
  const pid_t child = ::fork();
  if (child == 0) {
    platform::prepare_process();
    const rlimit limit{4, 4};  // what the logbook has
    ::setrlimit(RLIMIT_FSIZE, &limit);
    platform::posix::SystemCalls calls;
    PosixFiles files(place.map, calls);
    const bool told =
        append_line(files) == FileError::kNoSpace && replace_report(files) == FileError::kNoSpace;
    ::_exit(told ? 0 : 1);
  }
  int status = 1;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(place.temp.content("out/immt5.log"), "old\n");
  EXPECT_EQ(place.temp.content("out/14111512.tlx"), "old");
}

// ---- Odds and ends

TEST(PosixFiles, NamesCompareAsTheFileSystemDoes) {
  Place place(true);
  EXPECT_TRUE(place.files.is_file("C:\\out\\14111512.tlx"));
  EXPECT_FALSE(place.files.is_file("C:\\out\\14111512.TLX"));
}

TEST(PosixFiles, ALookTellsWhatIsMissingFromWhatCannotBeSeen) {
  Place place(true);
  const std::string out = place.temp / "out/";
  std::filesystem::create_symlink("none", out + "dangling");
  std::filesystem::create_symlink("loop", out + "loop");
  std::filesystem::create_symlink("immt5.log", out + "link");
  const std::string long_name(300, 'n');
  const struct {
    std::string path;
    There there;
    FileError error;
  } rows[] = {
      {kLog, There::kFile, FileError::kNone},
      {"C:\\out\\link", There::kFile, FileError::kNone},
      {"C:\\out", There::kFolder, FileError::kNone},
      {"Z:\\dev\\null", There::kOther, FileError::kNone},
      {"C:\\out\\none", There::kNo, FileError::kNone},
      {"C:\\out\\immt5.log\\x", There::kNo, FileError::kNone},
      {"C:\\out\\dangling", There::kCannotTell, FileError::kBadLink},
      {"C:\\out\\loop", There::kCannotTell, FileError::kBadLink},
      {"C:\\out\\" + long_name, There::kCannotTell, FileError::kBadName},
      {"A:\\x", There::kCannotTell, FileError::kMediumMissing},
      {std::string("C:\\a\0b", 6), There::kNo, FileError::kNone},
  };
  for (const auto& row : rows) {
    const platform::Look found = place.files.look(row.path);
    EXPECT_EQ(found.there, row.there) << row.path;
    EXPECT_EQ(found.error, row.error) << row.path;
    EXPECT_EQ(place.files.is_file(row.path), row.there == There::kFile) << row.path;
    EXPECT_EQ(place.files.is_folder(row.path), row.there == There::kFolder) << row.path;
  }
  EXPECT_EQ(place.files.look(kLog).size, 4U);
}

TEST(PosixFiles, OnlyTheAnswerNoSuchNameMeansThatNothingIsThere) {
  for (const char* path : {kLog, "C:\\out\\none"}) {
    Place trial(true);
    (void)trial.files.look(path);
    for (int n = 1; n <= trial.calls.count(); ++n) {
      for (const int error_number : {EACCES, EIO, ENFILE, ENOMEM, ESTALE, ELOOP}) {
        Place place(true);
        place.calls.fail_at(n, error_number);
        const platform::Look found = place.files.look(path);
        EXPECT_EQ(found.there, There::kCannotTell) << path << n << " " << error_number;
        EXPECT_EQ(found.error, platform::posix::file_error(error_number));
      }
    }
  }
}

TEST(PosixFiles, ReplacedFileKeepsItsPermissions) {
  Place place(true);
  constexpr mode_t kMode = 0640;
  ASSERT_EQ(::chmod((place.temp / "out/14111512.tlx").c_str(), kMode), 0);
  ASSERT_EQ(replace_report(place.files), FileError::kNone);
  struct stat about {};
  ASSERT_EQ(::stat((place.temp / "out/14111512.tlx").c_str(), &about), 0);
  EXPECT_EQ(about.st_mode & 0777U, kMode);
}

TEST(PosixFiles, SameFileIsKnownThroughLinksAndDrives) {
  Place place(true);
  std::filesystem::create_symlink("immt5.log", place.temp / "out/link");
  std::filesystem::create_directory_symlink("out", place.temp / "way");
  EXPECT_TRUE(place.files.same(kLog, "C:\\out\\link"));
  EXPECT_TRUE(place.files.same(kLog, "C:\\way\\immt5.log"));
  EXPECT_TRUE(place.files.same("C:\\out\\none", "C:\\way\\none")) << "not there yet, one place";
  EXPECT_FALSE(place.files.same("C:\\out\\none", "C:\\way\\other"));
  EXPECT_FALSE(place.files.same(kLog, kReport));
  EXPECT_FALSE(place.files.same(kLog, "Q:\\immt5.log"));
}

TEST(PosixFiles, NamesThatCannotBeSaidAreNotListed) {
  Place place(true);
  place.temp.write("out/a\\b", "x");
  const auto entries = place.files.list("C:\\out");
  ASSERT_TRUE(entries.ok());
  EXPECT_EQ(entries.value->size(), 2U);
}

TEST(PosixFiles, DevicesAndPipesAreNotAppendedTo) {
  Place place(true);
  ASSERT_EQ(::mkfifo((place.temp / "out/pipe").c_str(), 0600), 0);
  EXPECT_EQ(place.files.lock_log("C:\\out\\pipe").error, FileError::kNotAFile);
  EXPECT_EQ(place.files.lock_log("Z:\\dev\\null").error, FileError::kNotAFile);
  EXPECT_EQ(place.files.replace("Z:\\dev\\null", "x"), FileError::kNotAFile);
  EXPECT_EQ(place.files.read("Z:\\dev\\zero").error, FileError::kNotAFile);
}

TEST(PosixFiles, AbsentMediumIsToldApart) {
  Place place(true);
  EXPECT_EQ(place.files.read("A:\\x").error, FileError::kMediumMissing);
  EXPECT_EQ(place.files.replace("A:\\x", "y"), FileError::kMediumMissing);
  EXPECT_EQ(place.files.lock_log("A:\\x").error, FileError::kMediumMissing);
  EXPECT_EQ(place.files.free_space("A:\\x"), std::nullopt);
  EXPECT_FALSE(place.files.is_folder("A:\\"));
  EXPECT_FALSE(place.files.same("A:\\", "A:\\"));
}

TEST(PosixFiles, CurrentFolderStaysWhenThereIsNoSuchFolder) {
  Place place(true);
  place.files.set_current_folder("C:\\out");
  place.files.set_current_folder("C:\\none");
  EXPECT_EQ(place.files.current_folder(), "C:\\out");
  place.files.set_current_folder("..");
  EXPECT_EQ(place.files.current_folder(), "C:\\");
}

TEST(FileErrors, ErrnoValuesBecomeReasons) {
  const struct {
    int error_number;
    FileError error;
  } rows[] = {
      {ENOENT, FileError::kNotFound},      {ENOTDIR, FileError::kNotFound},
      {EACCES, FileError::kAccessDenied},  {EPERM, FileError::kAccessDenied},
      {EROFS, FileError::kAccessDenied},   {EISDIR, FileError::kAccessDenied},
      {ENOSPC, FileError::kNoSpace},       {EDQUOT, FileError::kNoSpace},
      {EFBIG, FileError::kNoSpace},        {ENOMEDIUM, FileError::kMediumMissing},
      {ENODEV, FileError::kMediumMissing}, {ELOOP, FileError::kBadLink},
      {EMFILE, FileError::kTooManyOpen},   {ENFILE, FileError::kTooManyOpen},
      {EINVAL, FileError::kBadName},       {ENAMETOOLONG, FileError::kBadName},
      {EILSEQ, FileError::kBadName},       {EWOULDBLOCK, FileError::kLocked},
      {EEXIST, FileError::kExists},        {EIO, FileError::kOther},
      {ENOTEMPTY, FileError::kOther},
  };
  for (const auto& row : rows)
    EXPECT_EQ(platform::posix::file_error(row.error_number), row.error) << row.error_number;
}

}  // namespace
