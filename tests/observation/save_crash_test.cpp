// A save on real files whose process ends, or whose disk dies, at any system call; and what the
// next start and the next save make of what is left.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <map>

#include "fakes/temp_folder.h"
#include "observation/report_file.h"
#include "platform/posix/failing_calls.h"
#include "platform/posix/posix_files.h"

namespace {

using fakes::TempFolder;
using observation::Recovered;
using observation::Recovery;
using observation::SaveOutcome;
using observation::SaveRequest;
using observation::SaveResult;
using platform::FileError;
using DriveMap = platform::posix::PosixDriveMap;
using platform::posix::PosixFiles;
using tests::FailingCalls;

constexpr const char* kReports = "C:\\tlx\\";
constexpr const char* kLogbook = "C:\\log\\";

using Contents = std::map<std::string, std::string>;

struct Place {
  TempFolder temp;
  FailingCalls calls;
  DriveMap map{temp.path()};
  PosixFiles files{map, calls};

  explicit Place(bool with_old) {
    temp.folder("tlx");
    temp.folder("log");
    if (!with_old) return;
    temp.write("tlx/14111512.tlx", "BBXX OLD .....");
    temp.write("log/immt5.log", "LINE1\n");
  }
  /// All files of both folders. A logbook without a line is as good as none.
  [[nodiscard]] Contents contents() const {
    Contents result;
    for (const char* folder : {"tlx", "log"}) {
      for (const std::string& name : temp.names(folder)) {
        const std::string path = std::string(folder) + "/" + name;
        if (name != "immt5.log" || !temp.content(path).empty()) result[path] = temp.content(path);
      }
    }
    return result;
  }
};

Contents old_files(bool with_old) {
  if (!with_old) return {};
  return {{"tlx/14111512.tlx", "BBXX OLD ....."}, {"log/immt5.log", "LINE1\n"}};
}
Contents new_files(bool with_old) {
  return {{"tlx/14111512.tlx", "BBXX NEW ....."},
          {"log/immt5.log", with_old ? "LINE1\nLINE2\n" : "LINE2\n"}};
}

SaveRequest request(bool replace) {
  return {std::string(kReports) + "14111512.tlx", std::string(kLogbook) + "immt5.log",
          "BBXX NEW&.....", "LINE2", replace};
}

template <class Work>
int in_process(const Place& place, const Work& work) {
  const pid_t child = ::fork();
  if (child == 0) {
    FailingCalls calls;
    PosixFiles files(place.map, calls);
    work(files, calls);
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// Runs the work with trouble at its first call, its second, ... in a process of its own, until it
/// goes through, and then the check.
template <class Work, class Check>
void at_every_call(bool with_old, void (FailingCalls::*trouble)(int), const Work& work,
                   const Check& check) {
  constexpr int kMany = 500;
  int n = 1;
  for (bool through = false; !through; ++n) {
    ASSERT_LT(n, kMany);
    Place place(with_old);
    const int status = in_process(place, [&](PosixFiles& files, FailingCalls& calls) {
      (calls.*trouble)(n);
      work(files);
      if (calls.count() < n) ::_exit(1);
    });
    through = status == 1;
    ASSERT_TRUE(status == 0 || status == 1 || status == FailingCalls::kKilled) << status;
    check(place, "call " + std::to_string(n) + (with_old ? " old" : " new"));
  }
  EXPECT_GT(n, 20) << "that is no whole save";
}

void save_it(PosixFiles& files, bool replace) {
  (void)observation::save(files, request(replace));
}

const auto kTroubles = {&FailingCalls::kill_at, &FailingCalls::die_at};

TEST(SaveCrash, AfterTheNextStartBothFilesAreOldOrBothNewAndNothingElseIsLeft) {
  for (const auto trouble : kTroubles) {
    for (const bool with_old : {true, false}) {
      at_every_call(
          with_old, trouble, [&](PosixFiles& files) { save_it(files, with_old); },
          [&](Place& place, const std::string& where) {
            const Contents before = place.contents();
            const Recovery recovery = observation::recover(place.files, kReports, kLogbook);
            EXPECT_EQ(recovery.error, FileError::kNone) << where;
            const Contents now = place.contents();
            EXPECT_TRUE(now == old_files(with_old) || now == new_files(with_old)) << where;
            // What is told is what is there.
            if (recovery.outcome == Recovered::kFinished) {
              EXPECT_EQ(now, new_files(with_old)) << where;
              EXPECT_EQ(recovery.line, with_old ? 2U : 1U) << where;
              EXPECT_EQ(recovery.report, "14111512.tlx") << where;
            } else if (recovery.outcome == Recovered::kTakenBack) {
              EXPECT_EQ(now, old_files(with_old)) << where;
            } else {
              EXPECT_EQ(recovery.outcome, Recovered::kNothing) << where;
              EXPECT_FALSE(before.contains("log/.kavrel-save")) << where;
            }
            EXPECT_EQ(observation::recover(place.files, kReports, kLogbook).outcome,
                      Recovered::kNothing)
                << where << ": told once";
            EXPECT_EQ(place.contents(), now) << where;
          });
    }
  }
}

TEST(SaveCrash, SavingAgainWithoutAStartNeverDoublesTheLine) {
  for (const auto trouble : kTroubles) {
    for (const bool with_old : {true, false}) {
      at_every_call(
          with_old, trouble, [&](PosixFiles& files) { save_it(files, with_old); },
          [&](Place& place, const std::string& where) {
            if (place.contents() == new_files(with_old)) return;  // saved, and the officer told
            const SaveResult again = observation::save(place.files, request(with_old));
            EXPECT_EQ(again.outcome, SaveOutcome::kSaved) << where;
            EXPECT_EQ(place.contents(), new_files(with_old)) << where;
          });
    }
  }
}

TEST(SaveCrash, TheSameProgramSavesAgainWhenItsDiskIsBack) {
  for (const bool with_old : {true, false}) {
    for (int n = 1;; ++n) {
      Place place(with_old);
      place.calls.die_at(n);
      const SaveResult first = observation::save(place.files, request(with_old));
      const bool through = place.calls.count() < n;
      place.calls.heal();
      if (first.outcome == SaveOutcome::kSaved) {
        if (through) break;
        EXPECT_EQ(observation::recover(place.files, kReports, kLogbook).error, FileError::kNone);
        EXPECT_EQ(place.contents(), new_files(with_old)) << n;
        continue;
      }
      const SaveResult again = observation::save(place.files, request(with_old));
      EXPECT_EQ(again.outcome, SaveOutcome::kSaved) << n;
      // What this very process staged and could not remove goes when it is gone itself.
      Contents now = place.contents();
      std::erase_if(now, [](const auto& file) { return file.first.ends_with(".part"); });
      EXPECT_EQ(now, new_files(with_old)) << n;
    }
  }
}

TEST(SaveCrash, AKilledRepairIsRepairedAgain) {
  for (const bool with_line : {true, false}) {
    for (const bool with_old : {true, false}) {
      // Killed with the report still staged and all of the line there, or half of it.
      const auto interrupt = [&](Place& place) {
        const pid_t child = ::fork();
        if (child == 0) {
          // The rename that puts the report in its place is the last; killed before it.
          FailingCalls trial;
          Place other(with_old);
          PosixFiles trial_files(other.map, trial);
          save_it(trial_files, with_old);
          const auto& log = trial.log();
          int last = 0;
          for (std::size_t i = 0; i < log.size(); ++i)
            if (log[i] == "rename" || log[i] == "rename_new") last = static_cast<int>(i) + 1;
          FailingCalls calls;
          PosixFiles files(place.map, calls);
          calls.kill_at(last);
          save_it(files, with_old);
          ::_exit(0);
        }
        ::waitpid(child, nullptr, 0);
        const std::filesystem::path log = place.temp / "log/immt5.log";
        if (!with_line) std::filesystem::resize_file(log, std::filesystem::file_size(log) - 3);
      };
      for (int n = 1, through = 0; through == 0; ++n) {
        Place place(with_old);
        interrupt(place);
        ASSERT_TRUE(place.contents().contains("log/.kavrel-save"));
        const int status = in_process(place, [&](PosixFiles& files, FailingCalls& calls) {
          calls.kill_at(n);
          (void)observation::recover(files, kReports, kLogbook);
          ::_exit(1);
        });
        through = status == 1 ? 1 : 0;
        (void)observation::recover(place.files, kReports, kLogbook);
        EXPECT_EQ(place.contents(), with_line ? new_files(with_old) : old_files(with_old)) << n;
      }
    }
  }
}

TEST(SaveCrash, FailureOfAnySingleCallLeavesBothOldOrBothNew) {
  for (const bool with_old : {true, false}) {
    for (const int error_number : {EIO, ENOSPC, EACCES}) {
      for (int n = 1;; ++n) {
        Place place(with_old);
        place.calls.fail_at(n, error_number);
        const SaveResult result = observation::save(place.files, request(with_old));
        if (place.calls.count() < n) break;
        const std::string where =
            place.calls.log()[static_cast<std::size_t>(n) - 1] + " " + std::to_string(n);
        Contents now = place.contents();
        std::erase_if(now, [](const auto& file) { return file.first.ends_with(".part"); });
        if (result.outcome == SaveOutcome::kSaved) {
          now.erase("log/.kavrel-save");
          EXPECT_EQ(now, new_files(with_old)) << where;
        } else {
          EXPECT_NE(result.error, FileError::kNone) << where;
          now.erase("log/.kavrel-save");
          EXPECT_EQ(now, old_files(with_old)) << where;
        }
      }
    }
  }
}

TEST(SaveCrash, WritersOfOneHourLeaveOneReportAndOneLine) {
  constexpr int kWriters = 8;
  Place place(false);
  std::vector<pid_t> children;
  for (int i = 0; i < kWriters; ++i) {
    const pid_t child = ::fork();
    if (child == 0) {
      platform::posix::SystemCalls calls;
      PosixFiles files(place.map, calls);
      SaveRequest mine = request(false);
      mine.message = "BBXX " + std::to_string(i);
      mine.logbook_line = "LINE" + std::to_string(i);
      const auto result = observation::save(files, mine);
      ::_exit(result.outcome == SaveOutcome::kSaved           ? 0
              : result.outcome == SaveOutcome::kAlreadyExists ? 1
                                                              : 2);
    }
    children.push_back(child);
  }
  std::map<int, int> ends;
  for (const pid_t child : children) {
    int status = 0;
    ::waitpid(child, &status, 0);
    ++ends[WEXITSTATUS(status)];
  }
  EXPECT_EQ(ends, (std::map<int, int>{{0, 1}, {1, kWriters - 1}}));
  const Contents now = place.contents();
  ASSERT_EQ(now.size(), 2U);
  const std::string report = now.at("tlx/14111512.tlx");
  EXPECT_EQ(now.at("log/immt5.log"), "LINE" + report.substr(5) + "\n");
}

TEST(SaveCrash, AReportThatAppearsBetweenTheLookAndTheRenameIsNotReplaced) {
  // Another program, which knows no lock, puts it there at the last moment.
  class Intruder : public platform::posix::SystemCalls {
   public:
    explicit Intruder(const TempFolder& temp) : temp_(temp) {}
    int rename_new(const char* from, const char* to) override {
      if (std::string(to).ends_with(".tlx")) temp_.write("tlx/14111512.tlx", "theirs");
      return SystemCalls::rename_new(from, to);
    }

   private:
    const TempFolder& temp_;
  };
  Place place(false);
  place.temp.write("log/immt5.log", "LINE1\n");
  Intruder calls(place.temp);
  PosixFiles files(place.map, calls);
  EXPECT_EQ(observation::save(files, request(false)).outcome, SaveOutcome::kAlreadyExists);
  EXPECT_EQ(place.contents(),
            (Contents{{"tlx/14111512.tlx", "theirs"}, {"log/immt5.log", "LINE1\n"}}));
}

TEST(SaveCrash, TheJournalCostsOneFlush) {
  Place place(true);
  ASSERT_EQ(observation::save(place.files, request(true)).outcome, SaveOutcome::kSaved);
  const auto& log = place.calls.log();
  // The report, the journal, the line, the report's folder.
  EXPECT_EQ(std::count(log.begin(), log.end(), "fsync"), 4);
}

}  // namespace
