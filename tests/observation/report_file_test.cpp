#include "observation/report_file.h"

#include <gtest/gtest.h>

#include <map>

#include "fakes/fake_files.h"
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
  EXPECT_EQ(files.log(), (std::vector<std::string>{"stage " + kReport, "append " + kLogbook,
                                                   "commit " + kReport}));
}

TEST(Save, ExistingReportIsReplacedOnlyWhenAllowed) {
  FakeFiles files = with_old_files();
  EXPECT_EQ(observation::save(files, request(false)).outcome, SaveOutcome::kAlreadyExists);
  EXPECT_EQ(files.snapshot(), kOld);
  EXPECT_TRUE(files.log().empty());
  EXPECT_EQ(observation::save(files, request(true)).outcome, SaveOutcome::kSaved);
  EXPECT_EQ(files.snapshot(), kNew);
}

TEST(Save, TheSameObservationTwiceLeavesTwoLines) {
  FakeFiles files = folders();
  EXPECT_EQ(observation::save(files, request(false)).outcome, SaveOutcome::kSaved);
  EXPECT_EQ(observation::save(files, request(false)).outcome, SaveOutcome::kAlreadyExists);
  EXPECT_EQ(observation::save(files, request(true)).outcome, SaveOutcome::kSaved);
  EXPECT_EQ(files.content(kLogbook), "LINE2\nLINE2\n");
}

TEST(Save, EveryOperationThatFailsLeavesBothFilesAsTheyWere) {
  constexpr FileError kErrors[] = {FileError::kNotFound, FileError::kAccessDenied,
                                   FileError::kNoSpace, FileError::kMediumMissing,
                                   FileError::kOther};
  for (const FileError error : kErrors) {
    for (int n = 1; n <= 3; ++n) {
      for (const bool existed : {true, false}) {
        FakeFiles files = existed ? with_old_files() : folders();
        const Snapshot before = files.snapshot();
        files.fail_at(n, error);
        const auto result = observation::save(files, request());
        EXPECT_EQ(result.outcome, n == 2 ? SaveOutcome::kLogbookFailed : SaveOutcome::kReportFailed)
            << n;
        EXPECT_EQ(result.error, error) << n;
        EXPECT_EQ(files.snapshot(), before) << n;
      }
    }
  }
}

TEST(Save, ALineThatCannotBeTakenBackIsSaid) {
  FakeFiles files = with_old_files();
  files.fail_next(FakeFiles::Operation::kCommit, FileError::kAccessDenied);
  files.fail_next(FakeFiles::Operation::kTakeBack, FileError::kOther);
  const auto result = observation::save(files, request());
  EXPECT_EQ(result.outcome, SaveOutcome::kLineLeft);
  EXPECT_EQ(result.error, FileError::kAccessDenied);
  EXPECT_EQ(files.snapshot(),
            (Snapshot{{kReport, "BBXX OLD ....."}, {kLogbook, "LINE1\nLINE2\n"}}));
}

TEST(Save, AKillBetweenAnyTwoStepsLeavesEachFileWholeOldOrNew) {
  for (int n = 1; n <= 3; ++n) {
    for (const bool after : {false, true}) {
      FakeFiles files = with_old_files();
      if (after)
        files.kill_after(n);
      else
        files.kill_before(n);
      EXPECT_THROW((void)observation::save(files, request()), FakeFiles::Killed);
      const auto report = files.content(kReport);
      const auto logbook = files.content(kLogbook);
      EXPECT_TRUE(report == kOld.at(kReport) || report == kNew.at(kReport)) << n << after;
      EXPECT_TRUE(logbook == kOld.at(kLogbook) || logbook == kNew.at(kLogbook)) << n << after;
      if (report == kNew.at(kReport)) {
        EXPECT_EQ(logbook, kNew.at(kLogbook)) << "a replaced report has its line";
      }
      for (const auto& [path, content] : files.snapshot())
        EXPECT_TRUE(path == kReport || path == kLogbook || !path.ends_with(".tlx")) << path;
      // The next start saves the same observation again.
      files.heal();
      EXPECT_EQ(observation::save(files, request()).outcome, SaveOutcome::kSaved);
      EXPECT_EQ(files.content(kReport), kNew.at(kReport));
    }
  }
}

}  // namespace
