#include "observation/report_file.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "fakes/fake_files.h"
#include "observation/save_journal.h"
#include "records.h"

namespace {

using fakes::FakeFiles;
using observation::SaveOutcome;
using observation::SaveRequest;
using platform::FileError;
using records::with;

TEST(ReportFileName, IsYearMonthDayAndHourAsStored) {
  EXPECT_EQ(observation::report_file_name(records::full()), "14111512.tlx");
  EXPECT_EQ(observation::report_file_name(records::fresh()), ".tlx");
  EXPECT_EQ(observation::report_file_name(
                with({{"Year", "7"}, {"Month", "1"}, {"YY", "2"}, {"GG", "3"}})),
            "7123.tlx");
  EXPECT_EQ(observation::report_path("C:\\out files\\", records::full()),
            "C:\\out files\\14111512.tlx");
}

TEST(ReportFileName, LiesInItsFolderAlsoWhenTheFolderLacksItsBackslash) {
  EXPECT_EQ(observation::report_path("A:\\TLX", records::full()), "A:\\TLX\\14111512.tlx");
  EXPECT_EQ(observation::earlier_report_path("A:\\TLX", records::full()), "A:\\TLX\\14111509.tlx");
  EXPECT_EQ(observation::report_path("", records::full()), "14111512.tlx");
}

TEST(EarlierReport, RollsBackDayMonthAndYear) {
  struct Row {
    int year, month, day, hour;
    const char* expected;
  };
  for (const Row& row :
       {Row{2014, 11, 15, 12, "14111509.tlx"}, Row{2014, 11, 15, 3, "14111500.tlx"},
        Row{2014, 11, 15, 2, "14111423.tlx"}, Row{2016, 3, 1, 1, "16022922.tlx"},
        Row{2015, 3, 1, 1, "15022822.tlx"}, Row{2100, 3, 1, 0, "00022921.tlx"},
        Row{2015, 1, 1, 0, "14123121.tlx"}, Row{2000, 1, 1, 2, "99123123.tlx"},
        Row{2009, 5, 1, 0, "09043021.tlx"}, Row{2014, 2, 1, 0, "14013121.tlx"},
        Row{2014, 4, 1, 0, "14033121.tlx"}, Row{2014, 6, 1, 0, "14053121.tlx"},
        Row{2014, 7, 1, 0, "14063021.tlx"}, Row{2014, 8, 1, 0, "14073121.tlx"},
        Row{2014, 9, 1, 0, "14083121.tlx"}, Row{2014, 10, 1, 0, "14093021.tlx"},
        Row{2014, 11, 1, 0, "14103121.tlx"}, Row{2014, 12, 1, 0, "14113021.tlx"}})
    EXPECT_EQ(observation::earlier_report_file_name(row.year, row.month, row.day, row.hour),
              row.expected);
}

TEST(EarlierReport, SpacesAreReplacedInTheNameAndNeverInTheFolder) {
  EXPECT_EQ(observation::earlier_report_path(
                "C:\\my reports\\",
                with({{"Year", "2016"}, {"Month", "03"}, {"YY", "01"}, {"GG", "01"}})),
            "C:\\my reports\\16022922.tlx");
}

TEST(ReportDate, ComesFromTheFileName) {
  const auto date = observation::report_date("C:\\out\\14111512.tlx");
  ASSERT_TRUE(date);
  EXPECT_EQ(date->year, "2014");
  EXPECT_EQ(date->month, "11");
  EXPECT_EQ(date->day, "15");
  EXPECT_EQ(date->hour, "12");
  for (const char* name :
       {"", ".tlx", "1411151.tlx", "141115123.tlx", "1411151x.tlx", "14111512.txt", "14111512"})
    EXPECT_FALSE(observation::report_date(name)) << name;
}

TEST(ObservationDate, MustBeSetAndOfTheCalendar) {
  struct Row {
    const char *year, *month, *day, *hour;
    bool valid;
  };
  for (const Row& row : {Row{"2014", "11", "15", "12", true}, Row{"2014", "11", "15", "23", true},
                         Row{"2014", "11", "15", "24", false}, Row{"2014", "11", "31", "12", false},
                         Row{"2014", "02", "29", "12", false}, Row{"2016", "02", "29", "12", true},
                         Row{"2100", "02", "29", "12", false}, Row{"2000", "02", "29", "12", true},
                         Row{"2014", "13", "01", "12", false}, Row{"2014", "00", "01", "12", false},
                         Row{"2014", "01", "00", "12", false}, Row{"", "11", "15", "12", false},
                         Row{"2014", "", "15", "12", false}, Row{"2014", "11", "", "12", false},
                         Row{"2014", "11", "15", "", false}, Row{"2014", "11", "//", "12", false},
                         Row{"2014", "11", "15", "1x", false},
                         // The figures name the report: each field has as many as it is wide.
                         Row{"14", "11", "15", "12", false}, Row{"02014", "11", "15", "12", false},
                         Row{"2014", "011", "15", "12", false}, Row{"2014", "1", "15", "12", false},
                         Row{"2014", "11", "5", "12", false}, Row{"2014", "11", "015", "12", false},
                         Row{"2014", "11", "15", "6", false}, Row{"2014", "11", "15", "006", false},
                         Row{"2014", "11", "15", "+6", false}})
    EXPECT_EQ(observation::has_valid_date(with(
                  {{"Year", row.year}, {"Month", row.month}, {"YY", row.day}, {"GG", row.hour}})),
              row.valid)
        << row.year << " " << row.month << " " << row.day << " " << row.hour;
}

TEST(ObservationDate, FaultNamesTheFieldAndWhatItMayHold) {
  struct Row {
    const char *year, *month, *day, *hour, *field;
    std::size_t figures;
    int low, high;
  };
  for (const Row& row : {
           Row{"", "", "", "", "Year", 4, 0, 9999},
           Row{"214", "13", "99", "99", "Year", 4, 0, 9999},
           Row{"2014", "011", "15", "12", "Month", 2, 1, 12},
           Row{"2014", "13", "15", "12", "Month", 2, 1, 12},
           Row{"2014", "11", "31", "12", "YY", 2, 1, 30},
           Row{"2014", "02", "0", "12", "YY", 2, 1, 28},
           Row{"2016", "02", "30", "12", "YY", 2, 1, 29},
           Row{"2014", "11", "15", "6", "GG", 2, 0, 23},
           Row{"2014", "11", "15", "24", "GG", 2, 0, 23},
       }) {
    const auto fault = observation::date_fault(
        with({{"Year", row.year}, {"Month", row.month}, {"YY", row.day}, {"GG", row.hour}}));
    ASSERT_TRUE(fault) << row.field;
    EXPECT_EQ(fault->field, row.field);
    EXPECT_EQ(fault->figures, row.figures) << row.field;
    EXPECT_EQ(fault->low, row.low) << row.field;
    EXPECT_EQ(fault->high, row.high) << row.field;
  }
}

TEST(LogbookPath, PutsABackslashBetweenWhereThereIsNone) {
  EXPECT_EQ(observation::logbook_path("C:\\log\\"), "C:\\log\\immt5.log");
  EXPECT_EQ(observation::logbook_path("C:\\log"), "C:\\log\\immt5.log");
}

TEST(ReportContent, HoldsASpaceForEveryAmpersand) {
  EXPECT_EQ(observation::report_file_content("A&B&&C *"), "A B  C *");
}

// ---- The save

const std::string kReport = "C:\\out\\14111512.tlx";
const std::string kLogbook = "C:\\log\\immt5.log";
const std::string kJournal = "C:\\log\\.kavrel-save";
const std::string kPutAside = "C:\\log\\.kavrel-save-damaged";
using Snapshot = std::map<std::string, std::string>;

SaveRequest request(bool replace = true) {
  return {kReport, kLogbook, "BBXX NEW&.....", "LINE2", replace};
}

FakeFiles folders() {
  FakeFiles files;
  files.add_folder("C:\\out");
  files.add_folder("C:\\log");
  return files;
}

FakeFiles with_old_files() {
  FakeFiles files = folders();
  files.add_file(kReport, "BBXX OLD .....");
  files.add_file(kLogbook, "LINE1\n");
  return files;
}

const Snapshot kOld = {{kReport, "BBXX OLD ....."}, {kLogbook, "LINE1\n"}};
const Snapshot kNew = {{kReport, "BBXX NEW ....."}, {kLogbook, "LINE1\nLINE2\n"}};

TEST(Save, WritesBothFiles) {
  FakeFiles files = folders();
  EXPECT_EQ(observation::save(files, request(false)).outcome, SaveOutcome::kSaved);
  EXPECT_EQ(files.snapshot(), (Snapshot{{kReport, "BBXX NEW ....."}, {kLogbook, "LINE2\n"}}));
  EXPECT_EQ(files.log(),
            (std::vector<std::string>{"lock " + kLogbook, "list C:\\out\\", "list C:\\log\\",
                                      "stage " + kReport, "note " + kJournal, "append " + kLogbook,
                                      "commit " + kReport, "remove " + kJournal}));
}

TEST(Save, ExistingReportIsReplacedOnlyWhenAllowed) {
  FakeFiles files = with_old_files();
  EXPECT_EQ(observation::save(files, request(false)).outcome, SaveOutcome::kAlreadyExists);
  EXPECT_EQ(files.snapshot(), kOld);
  for (const std::string& done : files.log())
    EXPECT_TRUE(done.starts_with("lock") || done.starts_with("list")) << done;
  EXPECT_EQ(observation::save(files, request(true)).outcome, SaveOutcome::kSaved);
  EXPECT_EQ(files.snapshot(), kNew);
}

TEST(Save, ReplacesOnlyTheReportThatWasAllowedToGo) {
  SaveRequest allowed = request();
  allowed.replaces = kOld.at(kReport);
  {
    FakeFiles files = with_old_files();
    EXPECT_EQ(observation::save(files, allowed).outcome, SaveOutcome::kSaved);
    EXPECT_EQ(files.snapshot(), kNew);
  }
  {
    FakeFiles files = with_old_files();
    files.add_file(kReport, "BBXX OF ANOTHER");
    const auto before = files.snapshot();
    EXPECT_EQ(observation::save(files, allowed).outcome, SaveOutcome::kAlreadyExists);
    EXPECT_EQ(files.snapshot(), before);
  }
  {
    // It has gone, and another one comes while the save is under way.
    struct Shared : FakeFiles {
      FileError commit(const platform::StagedFile& staged, platform::Over over) override {
        add_file(kReport, "BBXX OF ANOTHER");
        return FakeFiles::commit(staged, over);
      }
    } files;
    static_cast<FakeFiles&>(files) = with_old_files();
    ASSERT_EQ(files.remove(kReport), FileError::kNone);
    EXPECT_EQ(observation::save(files, allowed).outcome, SaveOutcome::kAlreadyExists);
    EXPECT_EQ(files.content(kReport), "BBXX OF ANOTHER");
    EXPECT_EQ(files.content(kLogbook), kOld.at(kLogbook));
  }
  FakeFiles files = with_old_files();
  files.fail_path(kReport, FileError::kOther);
  const auto result = observation::save(files, allowed);
  EXPECT_EQ(result.outcome, SaveOutcome::kReportFailed);
  EXPECT_EQ(result.error, FileError::kOther);
  EXPECT_EQ(files.snapshot(), kOld);
}

TEST(Save, TheSameObservationTwiceLeavesTwoLines) {
  FakeFiles files = folders();
  EXPECT_EQ(observation::save(files, request(false)).outcome, SaveOutcome::kSaved);
  EXPECT_EQ(observation::save(files, request(false)).outcome, SaveOutcome::kAlreadyExists);
  EXPECT_EQ(observation::save(files, request(true)).outcome, SaveOutcome::kSaved);
  EXPECT_EQ(files.content(kLogbook), "LINE2\nLINE2\n");
}

/// Which operation of a save into old files is the n-th.
std::string operation_of(int n) {
  FakeFiles files = with_old_files();
  (void)observation::save(files, request());
  const std::string& done = files.log()[static_cast<std::size_t>(n) - 1];
  return done.substr(0, done.find(' '));
}
int operations() {
  FakeFiles files = with_old_files();
  (void)observation::save(files, request());
  return files.operations();
}

TEST(Save, EveryOperationThatFailsLeavesBothFilesAsTheyWere) {
  constexpr FileError kErrors[] = {FileError::kNotFound,    FileError::kAccessDenied,
                                   FileError::kNoSpace,     FileError::kMediumMissing,
                                   FileError::kTooManyOpen, FileError::kOther};
  const std::map<std::string, SaveOutcome> failures = {
      {"lock", SaveOutcome::kLogbookFailed},   {"read_log", SaveOutcome::kLogbookFailed},
      {"stage", SaveOutcome::kReportFailed},   {"note", SaveOutcome::kLogbookFailed},
      {"append", SaveOutcome::kLogbookFailed}, {"commit", SaveOutcome::kReportFailed}};
  for (const FileError error : kErrors) {
    for (int n = 1; n <= operations(); ++n) {
      FakeFiles files = with_old_files();
      files.fail_at(n, error);
      const std::string what = operation_of(n);
      const auto result = observation::save(files, request());
      if (const auto failure = failures.find(what); failure != failures.end()) {
        EXPECT_EQ(result.outcome, failure->second) << what;
        EXPECT_EQ(result.error, error) << what;
        EXPECT_EQ(files.snapshot(), kOld) << what;
      } else {
        // Neither the clearing of old staged files nor that of the journal decides over a save.
        EXPECT_EQ(result.outcome, SaveOutcome::kSaved) << what;
        EXPECT_EQ(files.content(kReport), kNew.at(kReport));
        EXPECT_EQ(files.content(kLogbook), kNew.at(kLogbook));
      }
    }
  }
}

TEST(Save, AReportThatCannotBeSeenIsNotTakenForMissing) {
  FakeFiles files = with_old_files();
  files.fail_look(kReport, FileError::kAccessDenied);
  const auto result = observation::save(files, request(false));
  EXPECT_EQ(result.outcome, SaveOutcome::kReportFailed);
  EXPECT_EQ(result.error, FileError::kAccessDenied);
  EXPECT_EQ(files.snapshot(), kOld);
}

TEST(Save, AHeldLogbookIsSaidAndNothingIsDone) {
  FakeFiles files = with_old_files();
  files.set_held(kLogbook);
  const auto result = observation::save(files, request());
  EXPECT_EQ(result.outcome, SaveOutcome::kLogbookFailed);
  EXPECT_EQ(result.error, FileError::kLocked);
  EXPECT_EQ(files.snapshot(), kOld);
}

TEST(Save, ADriveWithoutLocksIsSaid) {
  FakeFiles files = with_old_files();
  EXPECT_FALSE(observation::save(files, request()).without_lock);
  files.set_lockless();
  const auto result = observation::save(files, request());
  EXPECT_EQ(result.outcome, SaveOutcome::kSaved);
  EXPECT_TRUE(result.without_lock);
}

TEST(Save, ALastLineWithoutItsEndIsClosedAndTold) {
  for (const auto& [before, number] : {std::pair("LI", 1U), std::pair("LINE1\nLIN", 2U),
                                       std::pair("LINE1\nLINE2\r", 2U), std::pair("\n\nX", 3U)}) {
    FakeFiles files = with_old_files();
    files.add_file(kLogbook, before);
    const auto result = observation::save(files, request());
    EXPECT_EQ(result.outcome, SaveOutcome::kSaved);
    EXPECT_EQ(result.closed_line, number);
    EXPECT_EQ(files.content(kLogbook), std::string(before) + "\nLINE2\n");
    EXPECT_EQ(observation::save(files, request()).closed_line, 0U) << "told once";
  }
  FakeFiles files = with_old_files();
  files.add_file(kLogbook, "LINE1\nLIN");
  files.fail_next(FakeFiles::Operation::kCommit, FileError::kOther);
  EXPECT_EQ(observation::save(files, request()).closed_line, 0U);
  EXPECT_EQ(files.content(kLogbook), "LINE1\nLIN") << "as it was, with all that is wrong with it";
}

// Where there are no locks another program may have written behind the line meanwhile, and finished
// what it found noted: nothing of its own is cut off.
TEST(Save, CutsOffNothingButItsOwnLine) {
  struct Shared : FakeFiles {
    FileError commit(const platform::StagedFile& /*staged*/, platform::Over /*over*/) override {
      add_file(kLogbook, *content(kLogbook) + "LINE OF ANOTHER\n");
      return FileError::kNotFound;
    }
  } files;
  static_cast<FakeFiles&>(files) = with_old_files();
  const auto result = observation::save(files, request());
  EXPECT_EQ(result.outcome, SaveOutcome::kLineLeft);
  EXPECT_EQ(files.content(kLogbook), kNew.at(kLogbook) + "LINE OF ANOTHER\n");
}

TEST(Save, ALineThatCannotBeTakenBackIsSaidAndItsSaveFinishedTheNextTime) {
  FakeFiles files = with_old_files();
  files.fail_next(FakeFiles::Operation::kCommit, FileError::kAccessDenied);
  files.fail_next(FakeFiles::Operation::kCut, FileError::kOther);
  const auto result = observation::save(files, request());
  EXPECT_EQ(result.outcome, SaveOutcome::kLineLeft);
  EXPECT_EQ(result.error, FileError::kAccessDenied);
  EXPECT_EQ(files.content(kReport), kOld.at(kReport));
  EXPECT_EQ(files.content(kLogbook), kNew.at(kLogbook));
  FakeFiles later = files;
  const auto recovery = observation::recover(later, "C:\\out\\", "C:\\log");
  EXPECT_EQ(recovery.outcome, observation::Recovered::kFinished);
  EXPECT_EQ(recovery.report, "14111512.tlx");
  EXPECT_EQ(later.snapshot(), kNew);
  EXPECT_EQ(observation::save(files, request()).outcome, SaveOutcome::kSaved);
  EXPECT_EQ(files.snapshot(), kNew) << "one line";
}

TEST(Save, AKillBetweenAnyTwoStepsIsRepairedByTheNextStart) {
  for (int n = 1; n <= operations(); ++n) {
    for (const bool after : {false, true}) {
      FakeFiles files = with_old_files();
      if (after)
        files.kill_after(n);
      else
        files.kill_before(n);
      EXPECT_THROW((void)observation::save(files, request()), FakeFiles::Killed);
      files.heal();
      files.restart();
      (void)observation::recover(files, "C:\\out", "C:\\log\\");
      const auto now = files.snapshot();
      EXPECT_TRUE(now == kOld || now == kNew) << n << after;
      // The very same save again doubles nothing unless it had been told as done.
      if (now == kOld) {
        EXPECT_EQ(observation::save(files, request()).outcome, SaveOutcome::kSaved);
        EXPECT_EQ(files.snapshot(), kNew);
      }
    }
  }
}

// ---- What an interrupted save left

/// These files and what a save leaves there that is killed before its last rename.
FakeFiles killed_before_rename(FakeFiles files, const SaveRequest& request) {
  FakeFiles trial = files;
  (void)observation::save(trial, request);
  int commit = 1;
  while (!trial.log()[static_cast<std::size_t>(commit) - 1].starts_with("commit")) ++commit;
  files.kill_before(commit);
  EXPECT_THROW((void)observation::save(files, request), FakeFiles::Killed);
  files.heal();
  files.restart();
  files.clear_log();
  return files;
}

FakeFiles interrupted(bool existed = true, bool replace = true) {
  return killed_before_rename(existed ? with_old_files() : folders(), request(replace));
}

observation::Recovery recover(FakeFiles& files) {
  return observation::recover(files, "C:\\out\\", "C:\\log\\");
}

TEST(Recover, DoesNothingWhereNothingWasLeft) {
  FakeFiles files = folders();
  EXPECT_EQ(recover(files).outcome, observation::Recovered::kNothing);
  EXPECT_TRUE(files.snapshot().empty()) << "no logbook comes of it";
  EXPECT_EQ(observation::recover(files, "", "C:\\log").outcome, observation::Recovered::kNothing);
  EXPECT_EQ(observation::recover(files, "C:\\out", "").outcome, observation::Recovered::kNothing);
}

TEST(Recover, FinishesWhatOnlyWantsItsRename) {
  for (const bool existed : {true, false}) {
    FakeFiles files = interrupted(existed);
    const auto recovery = recover(files);
    EXPECT_EQ(recovery.outcome, observation::Recovered::kFinished);
    EXPECT_EQ(recovery.report, "14111512.tlx");
    EXPECT_EQ(recovery.line, existed ? 2U : 1U);
    EXPECT_EQ(files.content(kReport), kNew.at(kReport));
    EXPECT_EQ(files.content(kLogbook), existed ? kNew.at(kLogbook) : "LINE2\n");
    EXPECT_EQ(files.snapshot().size(), 2U);
  }
}

TEST(Recover, NeverReplacesAReportThatTheSaveWasNotToReplace) {
  FakeFiles files = interrupted(false, false);
  files.add_file(kReport, "theirs");
  EXPECT_EQ(recover(files).outcome, observation::Recovered::kTakenBack);
  EXPECT_EQ(files.snapshot(), (Snapshot{{kReport, "theirs"}})) << "and no logbook, as before";
}

TEST(Recover, LeavesALineBetweenOthersAndTellsWhich) {
  FakeFiles files = interrupted();
  for (const auto& [path, content] : files.snapshot())
    if (path.ends_with(".part")) files.discard({path, path});
  files.add_file(kLogbook, "LINE1\nLINE2\nLINE3\n");
  const auto recovery = recover(files);
  EXPECT_EQ(recovery.outcome, observation::Recovered::kLineLeft);
  EXPECT_EQ(recovery.line, 2U);
  EXPECT_EQ(files.snapshot(),
            (Snapshot{{kReport, kOld.at(kReport)}, {kLogbook, "LINE1\nLINE2\nLINE3\n"}}));
}

TEST(Recover, CutsOffOnlyWhatTheSaveWrote) {
  for (const char* behind : {"L", "LINE2", "LINE3", "LINE3\nLINE4\n", "x"}) {
    FakeFiles files = interrupted();
    const std::string logbook = std::string("LINE1\n") + behind;
    files.add_file(kLogbook, logbook);
    const bool ours = std::string("LINE2\n").starts_with(behind);
    const auto recovery = recover(files);
    EXPECT_EQ(recovery.outcome,
              ours ? observation::Recovered::kTakenBack : observation::Recovered::kPutAside)
        << behind;
    EXPECT_EQ(files.content(kLogbook), ours ? "LINE1\n" : logbook) << behind;
    EXPECT_EQ(files.content(kReport), kOld.at(kReport));
    EXPECT_EQ(files.content(kPutAside).has_value(), !ours);
  }
}

TEST(Recover, PutsAsideWhatIsNoJournalOfTheseFiles) {
  const std::string whole = *interrupted().content(kJournal);
  std::string changed = whole;
  changed[changed.size() / 2] ^= 1;
  for (const std::string& journal :
       {std::string(), whole.substr(0, whole.size() / 2), changed, "kavrel-save 2\n" + whole,
        std::string("anything"), std::string(2U << 20U, 'x')}) {
    FakeFiles files = interrupted();
    files.add_file(kJournal, journal);
    EXPECT_EQ(recover(files).outcome, observation::Recovered::kPutAside);
    EXPECT_EQ(files.content(kPutAside), journal);
    EXPECT_FALSE(files.content(kJournal));
    EXPECT_EQ(files.content(kReport), kOld.at(kReport));
    EXPECT_EQ(files.content(kLogbook), kNew.at(kLogbook)) << "nothing is cut off on its word";
  }
  // The logbook is not the one any more.
  FakeFiles shorter = interrupted();
  shorter.add_file(kLogbook, "L\n");
  EXPECT_EQ(recover(shorter).outcome, observation::Recovered::kPutAside);
  EXPECT_EQ(shorter.content(kLogbook), "L\n");
}

// The line is in this logbook, so the save is finished where its report belongs.
TEST(Recover, FinishesASaveOfAnotherReportFolder) {
  FakeFiles files = interrupted();
  files.add_folder("C:\\other");
  const auto recovery = observation::recover(files, "C:\\other", "C:\\log");
  EXPECT_EQ(recovery.outcome, observation::Recovered::kFinished);
  EXPECT_EQ(recovery.report, "14111512.tlx");
  EXPECT_EQ(files.snapshot(), kNew);
}

// ---- The folder of the report is away

constexpr const char* kAwayReport = "E:\\out\\14111512.tlx";

/// A save of reports on drive E: that was killed before its last rename; the drive is away now.
FakeFiles interrupted_on_a_drive() {
  FakeFiles files = with_old_files();
  files.add_folder("E:\\out");
  SaveRequest there = request(false);
  there.report_path = kAwayReport;
  files = killed_before_rename(files, there);
  files.set_medium_missing('E');
  return files;
}

TEST(RecoverAway, TellsKeepsEverythingAndFinishesWhenTheFolderIsBack) {
  for (const char* const reports : {"C:\\out\\", "E:\\out\\"}) {
    FakeFiles files = interrupted_on_a_drive();
    const auto before = files.snapshot();
    for (int start = 1; start <= 2; ++start) {
      const auto told = observation::recover(files, reports, "C:\\log\\");
      EXPECT_EQ(told.outcome, observation::Recovered::kNothing);
      EXPECT_TRUE(told.unreachable);
      EXPECT_EQ(told.error, FileError::kMediumMissing);
      EXPECT_EQ(told.failed, "E:\\out\\");
      EXPECT_EQ(told.report, "14111512.tlx");
      EXPECT_EQ(told.line, 2U);
      EXPECT_EQ(files.snapshot(), before);
    }
    files.set_medium_missing('E', false);
    EXPECT_EQ(observation::recover(files, reports, "C:\\log\\").outcome,
              observation::Recovered::kFinished);
    EXPECT_EQ(files.content(kAwayReport), kNew.at(kReport));
    EXPECT_EQ(files.content(kLogbook), kNew.at(kLogbook));
    EXPECT_FALSE(files.content(kJournal));
  }
}

// A stick that is mounted below another drive leaves nothing at all behind.
TEST(RecoverAway, TakesAFolderThatIsNotThereForOneThatIsAway) {
  FakeFiles files = with_old_files();
  files.add_file(kLogbook, kNew.at(kLogbook));
  observation::Journal gone = *observation::read_journal(*interrupted().content(kJournal));
  gone.folder = "C:\\gone\\";
  files.add_file(kJournal, observation::write_journal(gone));
  const auto before = files.snapshot();
  const auto told = recover(files);
  EXPECT_TRUE(told.unreachable);
  EXPECT_EQ(told.error, FileError::kNotFound);
  EXPECT_EQ(files.snapshot(), before);
}

TEST(RecoverAway, ASaveMeanwhileWritesNothingUnlessItIsToGoOnWithoutThatReport) {
  FakeFiles files = interrupted_on_a_drive();
  const auto before = files.snapshot();
  SaveRequest another = {"C:\\out\\14111518.tlx", kLogbook, "BBXX LATER", "LINE3", false};
  auto result = observation::save(files, another);
  EXPECT_EQ(result.outcome, SaveOutcome::kLogbookFailed);
  EXPECT_EQ(result.error, FileError::kMediumMissing);
  EXPECT_EQ(result.failed, "E:\\out\\");
  EXPECT_TRUE(result.recovered.unreachable);
  EXPECT_EQ(files.snapshot(), before);
  another.leave_unreachable = true;
  result = observation::save(files, another);
  EXPECT_EQ(result.outcome, SaveOutcome::kSaved);
  EXPECT_EQ(result.recovered.outcome, observation::Recovered::kLineLeft);
  EXPECT_EQ(result.recovered.line, 2U);
  EXPECT_EQ(files.content(kLogbook), "LINE1\nLINE2\nLINE3\n");
  EXPECT_EQ(files.content("C:\\out\\14111518.tlx"), "BBXX LATER");
  EXPECT_FALSE(files.content(kJournal));
}

// The report is renamed behind its line: without the whole line it never was.
TEST(RecoverAway, TakesALineBackThatIsNotWhole) {
  for (const char* const behind : {"", "LI", "LINE2"}) {
    FakeFiles files = interrupted_on_a_drive();
    files.add_file(kLogbook, std::string("LINE1\n") + behind);
    const auto told = recover(files);
    EXPECT_EQ(told.outcome, observation::Recovered::kTakenBack) << behind;
    EXPECT_EQ(files.content(kLogbook), kOld.at(kLogbook)) << behind;
    EXPECT_FALSE(files.content(kJournal));
  }
}

// Another program may call the same folder by another name.
TEST(RecoverAway, KnowsAFolderOfAnotherNameByWhatWasStagedOrSavedInIt) {
  for (const bool renamed : {false, true}) {
    FakeFiles files = interrupted();
    observation::Journal journal = *observation::read_journal(*files.content(kJournal));
    journal.folder = "E:\\elsewhere\\";
    files.add_file(kJournal, observation::write_journal(journal));
    files.set_medium_missing('E');
    const std::string staged = "C:\\out\\" + journal.staged;
    if (renamed) {
      ASSERT_EQ(files.commit({kReport, staged}), FileError::kNone);
    }
    EXPECT_EQ(recover(files).outcome, observation::Recovered::kFinished);
    EXPECT_EQ(files.snapshot(), kNew);
  }
}

TEST(Recover, TellsTheLineThatTheInterruptedSaveHadClosed) {
  const std::string closed = "LINE1\nLIN";
  for (const bool lost : {false, true}) {
    FakeFiles files = with_old_files();
    files.add_file(kLogbook, closed);
    files = killed_before_rename(files, request());
    ASSERT_EQ(files.content(kLogbook), closed + "\nLINE2\n") << "killed behind the line";
    if (lost)
      for (const auto& [path, content] : files.snapshot())
        if (path.ends_with(".part")) files.discard({path, path});
    FakeFiles later = files;
    const auto told = recover(files);
    EXPECT_EQ(told.outcome,
              lost ? observation::Recovered::kLineLeft : observation::Recovered::kFinished);
    EXPECT_EQ(told.line, 3U);
    EXPECT_EQ(told.closed_line, 2U);
    EXPECT_EQ(recover(files).closed_line, 0U) << "told once";
    // The very same save again finishes it and tells it as its own.
    if (!lost) {
      EXPECT_EQ(observation::save(later, request()).closed_line, 2U);
    }
  }
  FakeFiles part = with_old_files();
  part.add_file(kLogbook, closed);
  part = killed_before_rename(part, request());
  part.add_file(kLogbook, closed + "\nLI");
  const auto told = recover(part);
  EXPECT_EQ(told.outcome, observation::Recovered::kTakenBack);
  EXPECT_EQ(told.closed_line, 0U) << "it is as it was";
  EXPECT_EQ(part.content(kLogbook), closed);
}

TEST(Recover, NamesTheFileThatIsInTheWay) {
  const struct {
    const char* what;
    std::function<void(FakeFiles&)> harm;
    std::string failed;
    FileError error;
  } rows[] = {
      {"look", [](FakeFiles& f) { f.fail_look(kJournal, FileError::kBadLink); }, kJournal,
       FileError::kBadLink},
      {"read", [](FakeFiles& f) { f.fail_path(kJournal, FileError::kAccessDenied); }, kJournal,
       FileError::kAccessDenied},
      {"report", [](FakeFiles& f) { f.fail_look(kReport, FileError::kOther); }, kReport,
       FileError::kOther},
      {"rename", [](FakeFiles& f) { f.fail_path(kReport, FileError::kNoSpace); }, kReport,
       FileError::kNoSpace},
      {"logbook", [](FakeFiles& f) { f.set_read_only(kLogbook); }, kLogbook,
       FileError::kAccessDenied},
      {"aside",
       [](FakeFiles& f) {
         f.add_file(kJournal, "damaged");
         f.fail_path(kPutAside, FileError::kNoSpace);
       },
       kJournal, FileError::kNoSpace},
      {"a folder that cannot be put aside",
       [](FakeFiles& f) {
         (void)f.remove(kJournal);
         f.add_folder(kJournal);
         f.fail_path(kPutAside, FileError::kNotFound);
       },
       kJournal, FileError::kNotAFile},
  };
  for (const auto& row : rows) {
    FakeFiles files = interrupted();
    row.harm(files);
    const auto before = files.snapshot();
    const auto told = recover(files);
    EXPECT_EQ(told.outcome, observation::Recovered::kNothing) << row.what;
    EXPECT_EQ(told.error, row.error) << row.what;
    EXPECT_EQ(told.failed, row.failed) << row.what;
    const auto result = observation::save(files, request());
    EXPECT_EQ(result.outcome, SaveOutcome::kLogbookFailed) << row.what;
    EXPECT_EQ(result.failed, row.failed) << row.what;
    EXPECT_EQ(files.snapshot(), before) << row.what;
  }
  // Whoever holds the logbook sees to it; without its disk nobody can tell.
  FakeFiles held = interrupted();
  held.set_held(kLogbook);
  EXPECT_EQ(recover(held).error, FileError::kNone);
  FakeFiles away = interrupted();
  away.set_medium_missing('C');
  EXPECT_EQ(recover(away).error, FileError::kNone);
}

TEST(Recover, ClearsWhatDeadProcessesStagedAndNothingElse) {
  FakeFiles files = with_old_files();
  files.restart();  // this program is number 2 now
  for (const char* path : {"C:\\out\\.kavrel-1-0.part", "C:\\log\\.kavrel-77-3.part"})
    files.add_file(path, "x");
  for (const char* path :
       {"C:\\out\\.kavrel-x-0.part", "C:\\out\\a.part", "C:\\log\\.kavrel-1-0.part.txt"})
    files.add_file(path, "x");
  files.add_file("C:\\out\\.kavrel-2-0.part", "of this very program");
  auto expected = files.snapshot();
  expected.erase("C:\\out\\.kavrel-1-0.part");
  expected.erase("C:\\log\\.kavrel-77-3.part");
  EXPECT_EQ(recover(files).outcome, observation::Recovered::kNothing);
  EXPECT_EQ(files.snapshot(), expected);
}

TEST(Recover, WhatCannotBeReadNowStaysForTheNextTime) {
  FakeFiles before = interrupted();
  for (int n = 1;; ++n) {
    FakeFiles files = interrupted();
    files.fail_at(n, FileError::kOther);
    const auto recovery = recover(files);
    if (files.operations() < interrupted().operations() + n) break;
    files.heal();
    if (recovery.error != FileError::kNone) {
      EXPECT_EQ(recovery.outcome, observation::Recovered::kNothing) << n;
      EXPECT_EQ(files.snapshot(), before.snapshot()) << n;
    }
    (void)recover(files);
    EXPECT_EQ(files.snapshot(), kNew) << n;
  }
  for (const std::string& path : {kJournal, kReport}) {
    FakeFiles files = interrupted();
    files.fail_look(path, FileError::kOther);
    EXPECT_EQ(recover(files).error, FileError::kOther);
    EXPECT_EQ(observation::save(files, request()).error, FileError::kOther);
    EXPECT_EQ(files.snapshot(), before.snapshot());
  }
}

}  // namespace
