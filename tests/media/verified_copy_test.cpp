// A copy is whole or not there, whatever fails and wherever the program ends; and nothing is
// deleted before its copy was compared.

#include "media/verified_copy.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <map>

#include "fakes/fake_files.h"
#include "fakes/rounds.h"
#include "fakes/temp_folder.h"
#include "platform/posix/failing_calls.h"
#include "platform/posix/posix_files.h"
#include "platform/system/process.h"

namespace {

using fakes::FakeFiles;
using fakes::TempFolder;
using media::copy_file;
using media::CopyOutcome;
using media::CopyResult;
using media::look_at_place;
using media::Place;
using media::remove_copied;
using platform::FileError;
using DriveMap = platform::posix::PosixDriveMap;
using platform::posix::PosixFiles;
using tests::FailingCalls;

constexpr const char* kFrom = "C:\\log\\immt5.log";
constexpr const char* kTo = "C:\\copy\\immt5.log";
constexpr const char* kPart = ".kavrel-";

const std::string kOld = "an older copy\n";

/// Longer than two pieces, with every byte.
const std::string& source() {
  static const std::string text = [] {
    std::string made;
    for (unsigned i = 0; made.size() < (5U << 19U); ++i)
      made.append(std::to_string(i)).push_back(static_cast<char>(i));
    return made;
  }();
  return text;
}

/// What copies does with the place as it is when the officer is asked.
CopyResult copy(platform::Files& files) {
  const auto place = look_at_place(files, kTo);
  if (!place.ok()) return {CopyOutcome::kFailed, place.error, kTo};
  return copy_file(files, kFrom, kTo, *place.value);
}

struct OnDisk {
  TempFolder temp;
  FailingCalls calls;
  DriveMap map{temp.path()};
  PosixFiles files{map, calls};

  explicit OnDisk(bool with_old, const std::string& content = source()) {
    temp.write("log/immt5.log", content);
    temp.folder("copy");
    if (with_old) temp.write("copy/immt5.log", kOld);
  }
  [[nodiscard]] std::string copied() const { return temp.content("copy/immt5.log"); }
  [[nodiscard]] bool is_copied() const { return copied() == source(); }
};

// ---- What a copy does

TEST(VerifiedCopy, HoldsTheSameBytesAndLeavesNothingBeside) {
  for (const bool with_old : {true, false}) {
    for (const std::string& content :
         {source(), std::string(), std::string(1, '\0'), std::string(1U << 20U, 'x')}) {
      OnDisk disk(with_old, content);
      EXPECT_EQ(copy(disk.files).outcome, CopyOutcome::kDone);
      EXPECT_EQ(disk.copied(), content);
      EXPECT_EQ(disk.temp.content("log/immt5.log"), content);
      EXPECT_EQ(disk.temp.names("copy"), std::vector<std::string>{"immt5.log"});
    }
  }
}

TEST(VerifiedCopy, NeverHoldsMoreThanAPieceOfTheFile) {
  class Counting : public FakeFiles {
   public:
    [[nodiscard]] platform::Result<std::string> read(const std::string& path,
                                                     std::uint64_t largest) const override {
      ADD_FAILURE() << "read whole: " << path;
      return FakeFiles::read(path, largest);
    }
    [[nodiscard]] platform::Result<std::string> read_part(const std::string& path,
                                                          std::uint64_t from,
                                                          std::uint64_t count) const override {
      EXPECT_LE(count, 1U << 20U);
      return FakeFiles::read_part(path, from, count);
    }
  };
  Counting files;
  files.add_file(kFrom, source());
  files.add_file(kTo, kOld);
  EXPECT_EQ(copy(files).outcome, CopyOutcome::kDone);
  EXPECT_EQ(remove_copied(files, kFrom, kTo).outcome, CopyOutcome::kDone);
  EXPECT_EQ(files.content(kTo), source());
}

TEST(VerifiedCopy, AFileThatAppearsOrChangesAfterTheLookIsNotReplaced) {
  const std::string theirs = "theirs\n";
  for (const bool with_old : {true, false}) {
    OnDisk disk(with_old);
    const auto place = look_at_place(disk.files, kTo);
    ASSERT_TRUE(place.ok());
    disk.temp.write("copy/immt5.log", theirs);
    EXPECT_EQ(copy_file(disk.files, kFrom, kTo, *place.value).outcome, CopyOutcome::kPlaceChanged);
    EXPECT_EQ(disk.copied(), theirs);
    EXPECT_EQ(disk.temp.names("copy"), std::vector<std::string>{"immt5.log"});
  }
}

TEST(VerifiedCopy, AFileThatAppearsInTheMomentOfTheRenameIsNotReplaced) {
  class Intruder : public platform::posix::SystemCalls {
   public:
    explicit Intruder(const TempFolder& temp) : temp_(temp) {}
    int rename_new(const char* from, const char* to) override {
      temp_.write("copy/immt5.log", "theirs");
      return SystemCalls::rename_new(from, to);
    }

   private:
    const TempFolder& temp_;
  };
  const OnDisk disk(false);
  Intruder calls(disk.temp);
  PosixFiles files(disk.map, calls);
  EXPECT_EQ(copy(files).outcome, CopyOutcome::kPlaceChanged);
  EXPECT_EQ(disk.copied(), "theirs");
  EXPECT_EQ(disk.temp.names("copy"), std::vector<std::string>{"immt5.log"});
}

TEST(VerifiedCopy, AFileThatWentAfterTheLookIsNotMissed) {
  OnDisk disk(true);
  const auto place = look_at_place(disk.files, kTo);
  std::filesystem::remove(disk.temp / "copy/immt5.log");
  EXPECT_EQ(copy_file(disk.files, kFrom, kTo, *place.value).outcome, CopyOutcome::kDone);
  EXPECT_TRUE(disk.is_copied());
}

TEST(VerifiedCopy, ASourceThatGrowsWhileItIsCopiedGivesNoCopy) {
  class Growing : public FakeFiles {
   public:
    [[nodiscard]] platform::Result<platform::StagedFile> stage_pieces(
        const std::string& path, const platform::NextPiece& next) override {
      auto staged = FakeFiles::stage_pieces(path, next);
      add_file(kFrom, *content(kFrom) + "one line more\n");
      return staged;
    }
  };
  Growing files;
  files.add_file(kFrom, "LINE\n");
  files.add_folder("C:\\copy");
  const CopyResult result = copy(files);
  EXPECT_EQ(result.outcome, CopyOutcome::kDiffers);
  EXPECT_EQ(files.snapshot(),
            (std::map<std::string, std::string>{{kFrom, "LINE\none line more\n"}}));
}

TEST(VerifiedCopy, AMediumThatKeepsOtherBytesGivesNoCopy) {
  class Damaging : public platform::posix::SystemCalls {
   public:
    ssize_t write(int file, const void* from, std::size_t size) override {
      std::string bytes(static_cast<const char*>(from), size);
      bytes[size / 2] ^= 1;
      return SystemCalls::write(file, bytes.data(), size);
    }
  };
  for (const bool with_old : {true, false}) {
    const OnDisk disk(with_old);
    Damaging calls;
    PosixFiles files(disk.map, calls);
    const CopyResult result = copy(files);
    EXPECT_EQ(result.outcome, CopyOutcome::kDiffers);
    EXPECT_EQ(result.failed, kTo);
    EXPECT_EQ(disk.copied(), with_old ? kOld : "");
    EXPECT_EQ(disk.temp.names("copy").size(), with_old ? 1U : 0U);
  }
}

TEST(VerifiedCopy, ReadsBackFromTheMedium) {
  OnDisk disk(false);
  ASSERT_EQ(copy(disk.files).outcome, CopyOutcome::kDone);
  const auto& log = disk.calls.log();
  const auto first = [&](const char* name) { return std::find(log.begin(), log.end(), name); };
  ASSERT_NE(first("forget_cached"), log.end());
  EXPECT_LT(first("fsync"), first("forget_cached"));
  EXPECT_NE(std::find(first("forget_cached"), log.end(), "read_at"), log.end());
}

// ---- One file under two names

/// Makes the copy's place another name of the source.
const std::pair<const char*, std::function<void(const TempFolder&)>> kAliases[] = {
    {"a hard link",
     [](const TempFolder& temp) {
       std::filesystem::create_hard_link(temp / "log/immt5.log", temp / "copy/immt5.log");
     }},
    {"a symbolic link",
     [](const TempFolder& temp) {
       std::filesystem::create_symlink(temp / "log/immt5.log", temp / "copy/immt5.log");
     }},
    {"a link to the folder",
     [](const TempFolder& temp) {
       std::filesystem::remove(temp / "copy");
       std::filesystem::create_directory_symlink(temp / "log", temp / "copy");
     }},
};

TEST(VerifiedCopy, OneFileUnderTwoNamesIsNeitherCopiedNorDeleted) {
  for (const auto& [what, make] : kAliases) {
    OnDisk disk(false);
    make(disk.temp);
    EXPECT_EQ(copy(disk.files).outcome, CopyOutcome::kSameFile) << what;
    EXPECT_EQ(remove_copied(disk.files, kFrom, kTo).outcome, CopyOutcome::kSameFile) << what;
    EXPECT_EQ(disk.temp.content("log/immt5.log"), source()) << what;
  }
}

TEST(VerifiedCopy, OneFileUnderTwoNamesIsNotDeletedWhateverCallFails) {
  for (const auto& [what, make] : kAliases) {
    for (int n = 1;; ++n) {
      OnDisk disk(false, "LINE\n");
      make(disk.temp);
      disk.calls.fail_at(n, EIO);
      EXPECT_NE(remove_copied(disk.files, kFrom, kTo).outcome, CopyOutcome::kDone) << what << n;
      EXPECT_EQ(disk.temp.content("log/immt5.log"), "LINE\n") << what << n;
      if (disk.calls.count() < n) break;
    }
  }
}

TEST(VerifiedCopy, OtherSpellingsOfOneFileAreOneFile) {
  OnDisk disk(false);
  for (const char* const spelt :
       {"c:\\log\\immt5.log", "C:\\log\\\\immt5.log", "C:\\copy\\..\\log\\immt5.log",
        "C:\\log\\.\\immt5.log", "C:/log/immt5.log"}) {
    EXPECT_EQ(copy_file(disk.files, kFrom, spelt, {}).outcome, CopyOutcome::kSameFile) << spelt;
    EXPECT_EQ(remove_copied(disk.files, kFrom, spelt).outcome, CopyOutcome::kSameFile) << spelt;
    EXPECT_EQ(disk.temp.content("log/immt5.log"), source()) << spelt;
  }
}

// ---- What cannot be copied

TEST(VerifiedCopy, NamesTheFileAndTheCause) {
  const struct {
    const char* what;
    std::function<void(FakeFiles&)> make;
    FileError error;
    const char* failed;
  } rows[] = {
      {"no source", [](FakeFiles& f) { (void)f.remove(kFrom); }, FileError::kNotFound, kFrom},
      {"no folder", [](FakeFiles& f) { (void)f.remove("C:\\copy"); }, FileError::kNotFound, kTo},
      {"a read-only folder", [](FakeFiles& f) { f.set_read_only("C:\\copy"); },
       FileError::kAccessDenied, kTo},
      {"a read-only file",
       [](FakeFiles& f) {
         f.add_file(kTo, kOld);
         f.set_read_only(kTo);
       },
       FileError::kAccessDenied, kTo},
      {"a folder of the name", [](FakeFiles& f) { f.add_folder(kTo); }, FileError::kNotAFile, kTo},
      {"a pipe of the name", [](FakeFiles& f) { f.add_other(kTo); }, FileError::kNotAFile, kTo},
      {"one cannot tell", [](FakeFiles& f) { f.fail_look(kTo, FileError::kBadLink); },
       FileError::kBadLink, kTo},
      {"a full disk", [](FakeFiles& f) { f.set_free_space('C', 100); }, FileError::kNoSpace, kTo},
      {"a source that cannot be read", [](FakeFiles& f) { f.fail_path(kFrom, FileError::kOther); },
       FileError::kOther, kFrom},
  };
  for (const auto& row : rows) {
    FakeFiles files;
    files.add_file(kFrom, source());
    files.add_folder("C:\\copy");
    row.make(files);
    const auto before = files.snapshot();
    const CopyResult result = copy(files);
    EXPECT_EQ(result.outcome, CopyOutcome::kFailed) << row.what;
    EXPECT_EQ(result.error, row.error) << row.what;
    EXPECT_EQ(result.failed, row.failed) << row.what;
    EXPECT_EQ(files.snapshot(), before) << row.what;
  }
}

TEST(VerifiedCopy, AFileThatGrowsBeyondTheLimitOfTheSystemLeavesNothing) {
  const OnDisk disk(true);
  const pid_t child = ::fork();
  if (child == 0) {
    platform::prepare_process();
    const rlimit limit{1U << 20U, 1U << 20U};
    (void)::setrlimit(RLIMIT_FSIZE, &limit);
    platform::posix::SystemCalls calls;
    PosixFiles files(disk.map, calls);
    ::_exit(copy(files).error == FileError::kNoSpace ? 0 : 1);
  }
  int status = -1;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(disk.copied(), kOld);
  EXPECT_EQ(disk.temp.names("copy"), std::vector<std::string>{"immt5.log"});
}

// ---- Deleting what was copied

TEST(VerifiedCopy, OnlyASourceThatEqualsItsCopyIsDeleted) {
  const struct {
    const char* what;
    std::optional<std::string> copy;
    CopyOutcome outcome;
  } rows[] = {
      {"equal", source(), CopyOutcome::kDone},
      {"shorter", source().substr(1), CopyOutcome::kDiffers},
      {"longer", source() + "x", CopyOutcome::kDiffers},
      {"one byte", "x" + source().substr(1), CopyOutcome::kDiffers},
      {"empty", "", CopyOutcome::kDiffers},
      {"gone", std::nullopt, CopyOutcome::kFailed},
  };
  for (const auto& row : rows) {
    FakeFiles files;
    files.add_file(kFrom, source());
    if (row.copy) files.add_file(kTo, *row.copy);
    const auto before = files.snapshot();
    const CopyResult result = remove_copied(files, kFrom, kTo);
    EXPECT_EQ(result.outcome, row.outcome) << row.what;
    if (row.outcome == CopyOutcome::kDone) {
      EXPECT_EQ(files.content(kFrom), std::nullopt);
      EXPECT_EQ(files.content(kTo), source());
    } else {
      EXPECT_EQ(files.snapshot(), before) << row.what;
      EXPECT_EQ(result.failed, kTo) << row.what;
    }
  }
}

TEST(VerifiedCopy, AFileThatCannotBeDeletedIsNamed) {
  FakeFiles files;
  files.add_file(kFrom, source());
  files.add_file(kTo, source());
  files.set_read_only(kFrom);
  const CopyResult result = remove_copied(files, kFrom, kTo);
  EXPECT_EQ(result.outcome, CopyOutcome::kFailed);
  EXPECT_EQ(result.error, FileError::kAccessDenied);
  EXPECT_EQ(result.failed, kFrom);
  EXPECT_EQ(files.content(kFrom), source());
}

// ---- Every operation fails, every call is the last

/// Copies and, when that went well, deletes the source: the longest way there is.
CopyResult move(platform::Files& files) {
  const CopyResult copied = copy(files);
  return copied.outcome == CopyOutcome::kDone ? remove_copied(files, kFrom, kTo) : copied;
}

/// The source is gone only where the copy is whole, and the copy's place holds the old or the new.
void expect_whole(const std::string& source, const std::string& from, const std::string& to,
                  bool with_old, const std::string& where) {
  EXPECT_TRUE(from == source || (from.empty() && to == source)) << where;
  EXPECT_TRUE(to == source || to == (with_old ? kOld : std::string())) << where;
}

TEST(VerifiedCopy, FailureOfAnyOperationLeavesSourceAndCopyWhole) {
  for (const FileError error : {FileError::kOther, FileError::kNoSpace, FileError::kMediumMissing,
                                FileError::kExists, FileError::kNotFound}) {
    for (const bool with_old : {true, false}) {
      int n = 1;
      for (bool through = false; !through; n += fakes::stride()) {
        FakeFiles files;
        files.add_file(kFrom, source());
        files.add_folder("C:\\copy");
        if (with_old) files.add_file(kTo, kOld);
        files.fail_at(n, error);
        const int before = files.operations();
        const CopyResult result = move(files);
        through = files.operations() - before < n;
        const std::string where = std::to_string(n) + " " + files.log().back();
        const bool gone = !files.content(kFrom);
        expect_whole(source(), files.content(kFrom).value_or(""), files.content(kTo).value_or(""),
                     with_old, where);
        EXPECT_EQ(gone, result.outcome == CopyOutcome::kDone) << where;
        for (const auto& [path, content] : files.snapshot())
          EXPECT_EQ(path.find(kPart), std::string::npos) << where;
      }
      EXPECT_GT(n, 10) << "that is no whole copy";
    }
  }
}

TEST(VerifiedCopy, AProgramKilledAtAnyOperationLeavesSourceAndCopyWhole) {
  for (const auto kill : {&FakeFiles::kill_before, &FakeFiles::kill_after}) {
    for (const bool with_old : {true, false}) {
      int n = 1;
      for (bool through = false; !through; n += fakes::stride()) {
        FakeFiles files;
        files.add_file(kFrom, source());
        files.add_folder("C:\\copy");
        if (with_old) files.add_file(kTo, kOld);
        (files.*kill)(n);
        try {
          (void)move(files);
          through = true;
        } catch (const FakeFiles::Killed&) {
        }
        expect_whole(source(), files.content(kFrom).value_or(""), files.content(kTo).value_or(""),
                     with_old, std::to_string(n));
        files.heal();
        files.restart();
        // The next copy finds its way through, and nothing is left beside.
        platform::clear_staged(files, "C:\\copy");
        if (!files.content(kFrom)) continue;
        EXPECT_EQ(copy(files).outcome, CopyOutcome::kDone) << n;
        EXPECT_EQ(files.snapshot().size(), 2U) << n;
      }
      EXPECT_GT(n, 10) << "that is no whole copy";
    }
  }
}

template <class Trouble>
void at_every_call(bool with_old, const Trouble& trouble) {
  // Short, for each of its calls is a process.
  const std::string logbook = "LINE1\nLINE2\n";
  int n = 1;
  for (bool through = false; !through; n += fakes::stride()) {
    const OnDisk disk(with_old, logbook);
    const pid_t child = ::fork();
    if (child == 0) {
      FailingCalls calls;
      PosixFiles files(disk.map, calls);
      trouble(calls, n);
      const bool done = move(files).outcome == CopyOutcome::kDone;
      ::_exit(calls.count() < n ? 2 : done ? 1 : 0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    const std::string where = "call " + std::to_string(n) + (with_old ? " old" : " new");
    const std::string from = disk.temp.content("log/immt5.log");
    expect_whole(logbook, from, disk.copied(), with_old, where);
    // Told as done only when it is.
    if (WEXITSTATUS(status) < 2) {
      EXPECT_EQ(from, WEXITSTATUS(status) == 1 ? "" : logbook) << where;
    }
    through = WEXITSTATUS(status) == 2;
  }
  EXPECT_GT(n, 30) << "that is no whole copy";
}

TEST(VerifiedCopy, AnySystemCallMayFailOrBeTheLast) {
  for (const bool with_old : {true, false}) {
    at_every_call(with_old, [](FailingCalls& calls, int n) { calls.fail_at(n, EIO); });
    at_every_call(with_old, [](FailingCalls& calls, int n) { calls.fail_at(n, ENOSPC); });
    at_every_call(with_old, [](FailingCalls& calls, int n) { calls.kill_at(n); });
    at_every_call(with_old, [](FailingCalls& calls, int n) { calls.die_at(n); });
    at_every_call(with_old, [](FailingCalls& calls, int n) { calls.full_from(n); });
    at_every_call(with_old, [](FailingCalls& calls, int n) { calls.short_at(n); });
  }
}

}  // namespace
