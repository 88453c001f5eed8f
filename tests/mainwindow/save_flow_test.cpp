#include "mainwindow/save_flow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "elements/CSaveErrorInfoDlg.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "observation/logbook_encoder.h"
#include "observation/report_encoder.h"
#include "text/ids.h"
#include "text/reasons.h"

namespace {

namespace id = text::id;
using fakes::FakeFiles;
using mainwindow::save_errors;
using mainwindow::save_observation;
using mainwindow::SaveEnd;
using platform::FileError;

constexpr const char* kReport = "C:\\tlx\\14111512.tlx";
constexpr const char* kLogbook = "C:\\log\\immt5.log";

// An observation with every group that is asked for.
struct Save {
  FakeFiles files;
  fakes::World world{files};
  ShipFixedData ship;
  KeyObservationItems items;
  mainwindow::Folders folders;
  Struct_Weather record{ship, items};
  std::vector<mainwindow::SaveError> remarks;

  Save() {
    folders.reports = "C:\\tlx\\";
    folders.logbook = "C:\\log\\";
    files.add_folder("C:\\tlx\\");
    files.add_folder("C:\\log\\");
    ship.call_sign = record.CallSign = "JABC";
    const std::pair<std::string Struct_Weather::*, const char*> figures[] = {
        {&Struct_Weather::Year, "2014"},  {&Struct_Weather::Month, "11"},
        {&Struct_Weather::YY, "15"},      {&Struct_Weather::GG, "12"},
        {&Struct_Weather::Qc, "1"},       {&Struct_Weather::LaDeg, "35"},
        {&Struct_Weather::LaMin, "30"},   {&Struct_Weather::LoDeg, "140"},
        {&Struct_Weather::LoMin, "30"},   {&Struct_Weather::h, "4"},
        {&Struct_Weather::VV, "97"},      {&Struct_Weather::N, "6"},
        {&Struct_Weather::dd, "18"},      {&Struct_Weather::ff, "12"},
        {&Struct_Weather::SnT, "0"},      {&Struct_Weather::TTT, "152"},
        {&Struct_Weather::SnTd, "0"},     {&Struct_Weather::TdTdTd, "101"},
        {&Struct_Weather::PPPP, "0132"},  {&Struct_Weather::a, "2"},
        {&Struct_Weather::ppp, "011"},    {&Struct_Weather::Nh, "4"},
        {&Struct_Weather::CL, "5"},       {&Struct_Weather::CM, "2"},
        {&Struct_Weather::CH, "0"},       {&Struct_Weather::Ds, "2"},
        {&Struct_Weather::Vs, "3"},       {&Struct_Weather::Ss, "0"},
        {&Struct_Weather::TwTwTw, "185"}, {&Struct_Weather::dw1dw1, "00"},
        {&Struct_Weather::dw2dw2, "00"},
    };
    for (const auto& [member, value] : figures) record.*member = value;
  }

  void removable_logbook() {
    folders.logbook = "A:\\";
    world.drives.list.insert(world.drives.list.begin(), {'A', platform::DriveType::kRemovable, 2});
    files.add_folder("A:\\");
  }
  SaveEnd save() {
    return save_observation(world.services, {record, ship, items, folders, remarks});
  }
  /// The same with drives of the test's own.
  SaveEnd save_on(platform::Drives& drives) {
    ui::Services services{world.clock,     world.locale,  drives,        files,
                          world.code_page, world.printer, world.windows, world.texts,
                          world.messages,  world.help};
    return save_observation(services, {record, ship, items, folders, remarks});
  }
  [[nodiscard]] std::string errors() const {
    std::string lines;
    for (const auto& error : save_errors({record, ship, items, folders, remarks}, world.texts))
      lines.append(error.text).append("\r\n");
    return lines;
  }
  [[nodiscard]] std::string message() const {
    std::string message;
    std::string missing;
    observation::encode_report(record, message, missing, observation::wants_wet_bulb(ship),
                               world.texts.language);
    return message;
  }
  [[nodiscard]] std::string line() const {
    return observation::encode_logbook(record, ship, items) + "\n";
  }
  [[nodiscard]] std::string logbook() const { return files.content(kLogbook).value_or("none"); }

  /// The save ends so, both files and the observation are as they were.
  void expect_nothing_written(SaveEnd end) {
    const auto files_before = files.snapshot();
    const Struct_Weather record_before = record;
    EXPECT_EQ(save(), end);
    EXPECT_EQ(files.snapshot(), files_before);
    EXPECT_TRUE(record == record_before);
    world.windows.verify();
    EXPECT_TRUE(world.windows.notices.size() % 2 == 0);  // every notice was taken away
  }
};

void in_both_languages(const std::function<void(Save&)>& check) {
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    Save save;
    save.world.texts.language = language;
    check(save);
    for (const ui::MessageBox& box : save.world.windows.boxes) {
      EXPECT_FALSE(box.text.empty());
      // Below a failed save stand the file and the cause.
      const std::string notice =
          box.text_id == id::kSaveFailed ? box.text.substr(0, box.text.find('\n')) : box.text;
      EXPECT_EQ(notice, text::bilingual(box.text_id, language)) << box.text_id;
    }
  }
}

std::function<void(ui::Screen&)> press(const char* name) {
  return [name](ui::Screen& screen) { screen.press(*screen.find(name)); };
}

TEST(SaveFlow, WritesTheReportAndOneLineOfTheLogbookAndSaysSo) {
  in_both_languages([](Save& s) {
    s.world.windows.expect(id::kSaved);
    EXPECT_EQ(s.errors(), "");
    EXPECT_EQ(s.save(), SaveEnd::kSaved);
    EXPECT_EQ(s.files.content(kReport), s.message());
    EXPECT_EQ(s.files.content(kLogbook), s.line());
    const std::vector<std::string> notices = {"show CShowStatusDlg", "hide CShowStatusDlg"};
    EXPECT_EQ(s.world.windows.notices, notices);
  });
}

TEST(SaveFlow, AControlCharacterIsToldWithItsFieldAndNothingIsWritten) {
  for (const WeatherField& field : weather_fields()) {
    for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
      for (const char control : {'\n', '\r', '\t', '\0', '\x1b', '\x7f'}) {
        Save s;
        s.world.texts.language = language;
        (s.record.*field.member) += control;
        s.world.windows.expect(id::kControlCharacter);
        s.expect_nothing_written(SaveEnd::kNotSaved);
        ASSERT_EQ(s.world.windows.boxes.size(), 1U);
        EXPECT_NE(s.world.windows.boxes.front().text.find(field.name), std::string::npos);
      }
    }
  }
  Save s;
  s.ship.imo_number = "90747\n9";
  s.world.windows.expect(id::kControlCharacter);
  s.expect_nothing_written(SaveEnd::kNotSaved);
}

TEST(SaveFlow, GivenTextsAreToTheLetter) {
  struct Row {
    text::Id message;
    const char *english, *japanese;  // nullptr: not given
  };
  const Row rows[] = {
      {id::kNoDateEntered, "Can't save because of no date inputting",
       "観測日付が入力されていません"},
      {id::kNowSaving, "Now saving. Please wait.", nullptr},
      {id::kAskReplaceReport, "Weather report file exist. Replace it? ", nullptr},
      {id::kInsertDisk, "Please insert or replace the floppy disk.", nullptr},
      {id::kInsertDiskAgain, "Please insert or replace the floppy disk.", nullptr},
      {id::kDiskFull, "Disk is full. Exchange floppy disk ", nullptr},
      {id::kSaveCancelled,
       "Save of the weather report and the marine meteorological logbook is canceled.", nullptr},
      {id::kSaved, "Save success", "気象電報の保存が終了しました"},
      {id::kSaveFailed, "SetFDMount", "保存に失敗しました"},
      {id::kSaveErrorTitle, "Error message", nullptr},
      {id::kSaveErrorNoSave, "No Save", nullptr},
      {id::kSaveErrorSaveAs, "Save as", "このまま保存する"},
      {id::kSaveErrorCorrect, "Correct input data", nullptr},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(text::bilingual(row.message, text::Language::kEnglish), row.english);
    const auto japanese = text::bilingual(row.message, text::Language::kJapanese);
    EXPECT_NE(japanese, row.english);
    if (row.japanese != nullptr) {
      EXPECT_EQ(japanese, row.japanese);
    }
  }
}

TEST(SaveFlow, TheNoticeSaysThatItIsSavingAndStaysWhileItAsks) {
  Save s;
  s.files.add_file(kReport, "old");
  s.world.windows.expect(id::kAskReplaceReport, "no");
  EXPECT_EQ(s.save(), SaveEnd::kNotSaved);
  const ui::MessageBox& box = s.world.windows.boxes.back();
  EXPECT_EQ(box.title, "Brenmoor");
  EXPECT_EQ(box.buttons.size(), 2U);
  EXPECT_EQ(s.world.windows.notices.front(), "show CShowStatusDlg");
  EXPECT_EQ(s.world.windows.notices.back(), "hide CShowStatusDlg");
}

TEST(SaveFlow, StopsWithoutADate) {
  struct Row {
    const char *year, *month, *day, *hour;
  };
  for (const Row& row :
       {Row{"", "", "", ""}, Row{"2014", "", "15", "12"}, Row{"2014", "11", "", "12"},
        Row{"2014", "11", "15", ""}, Row{"", "11", "15", "12"}, Row{"2014", "02", "30", "12"},
        Row{"2014", "13", "15", "12"}, Row{"2014", "11", "31", "12"}, Row{"2014", "11", "15", "24"},
        Row{"2014", "00", "15", "12"}, Row{"2014", "11", "00", "12"}, Row{"2014", "11", "//", "12"},
        Row{"2015", "02", "29", "12"}}) {
    in_both_languages([&](Save& s) {
      s.record.Year = row.year;
      s.record.Month = row.month;
      s.record.YY = row.day;
      s.record.GG = row.hour;
      s.world.windows.expect(id::kNoDateEntered);
      s.expect_nothing_written(SaveEnd::kNotSaved);
      EXPECT_TRUE(s.world.windows.notices.empty());
    });
  }
}

TEST(SaveFlow, TakesAnyHourOfTheDay) {
  for (const char* hour : {"00", "01", "13", "23"}) {
    Save s;
    s.record.GG = hour;
    s.world.windows.expect(id::kSaved);
    EXPECT_EQ(s.save(), SaveEnd::kSaved);
    EXPECT_TRUE(s.files.is_file(std::string("C:\\tlx\\141115") + hour + ".tlx"));
  }
}

TEST(SaveFlow, MissingGroupsBrokenRulesAndRefusedEntriesAreListedTogether) {
  in_both_languages([](Save& s) {
    s.record.PPPP = "";
    s.record.N = "3";
    s.remarks = {{"Error: first\nsecond"}};
    const auto language = s.world.texts.language;
    std::string rule(text::bilingual(id::kLowestAboveTotal, language));
    const std::string expected = "Group4PPPP   " +
                                 std::string(text::bilingual(id::kNoValueInput, language)) +
                                 "\r\n" + rule + "\r\nError: first second\r\n";
    EXPECT_EQ(s.errors(), expected);
    std::string shown;
    s.world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& screen) {
      shown = fakes::lines_of(*screen.find("errors"));
      EXPECT_EQ(screen.title(), text::bilingual(id::kSaveErrorTitle, language));
      screen.press(*screen.find("no_save"));
    });
    s.expect_nothing_written(SaveEnd::kNotSaved);
    EXPECT_EQ(shown, expected);
  });
}

TEST(SaveFlow, TheWetBulbIsAskedForWhenTheDewPointIsComputed) {
  Save s;
  s.ship.dew_point_method = DewPointMethod::kComputed;
  EXPECT_EQ(s.errors(), "Group8SnTbTbTb   No value input\r\n");
  s.ship.dew_point_method = DewPointMethod::kDirect;
  EXPECT_EQ(s.errors(), "");
}

TEST(SaveFlow, ErrorsLeaveThreeWaysOut) {
  in_both_languages([](Save& s) {
    s.record.PPPP = "";
    s.world.windows.expect_screen("CSaveErrorInfoDlg", press("no_save"));
    s.expect_nothing_written(SaveEnd::kNotSaved);
    s.world.windows.expect_screen("CSaveErrorInfoDlg", press("correct"));
    s.expect_nothing_written(SaveEnd::kCorrect);
    s.world.windows.expect_screen("CSaveErrorInfoDlg",
                                  [](ui::Screen& screen) { screen.close_box(); });
    s.expect_nothing_written(SaveEnd::kCorrect);
    s.world.windows.expect_screen("CSaveErrorInfoDlg",
                                  [](ui::Screen& screen) { screen.key(ui::Key::kEscape); });
    s.expect_nothing_written(SaveEnd::kCorrect);
    s.world.windows.expect_screen("CSaveErrorInfoDlg",
                                  [](ui::Screen& screen) { screen.key(ui::Key::kEnter); });
    s.expect_nothing_written(SaveEnd::kCorrect);
    s.world.windows.expect_screen("CSaveErrorInfoDlg", press("save_as"));
    s.world.windows.expect(id::kSaved);
    EXPECT_EQ(s.save(), SaveEnd::kSaved);
    EXPECT_EQ(s.files.content(kReport), s.message());
    EXPECT_EQ(s.logbook(), s.line());
  });
}

TEST(SaveFlow, AnExistingReportIsReplacedOnYesOnlyAndTheLogbookGetsASecondLine) {
  in_both_languages([](Save& s) {
    s.world.windows.expect(id::kSaved);
    ASSERT_EQ(s.save(), SaveEnd::kSaved);
    const std::string first = s.line();
    s.record.N = "7";
    s.world.windows.expect(id::kAskReplaceReport, "no");
    s.expect_nothing_written(SaveEnd::kNotSaved);
    s.world.windows.expect(id::kAskReplaceReport, "close");
    s.expect_nothing_written(SaveEnd::kNotSaved);
    s.world.windows.expect(id::kAskReplaceReport, "yes");
    s.world.windows.expect(id::kSaved);
    EXPECT_EQ(s.save(), SaveEnd::kSaved);
    EXPECT_EQ(s.files.content(kReport), s.message());
    EXPECT_EQ(s.logbook(), first + s.line());
  });
}

TEST(SaveFlow, ALogbookFolderMayEndWithoutABackslash) {
  Save s;
  s.folders.logbook = "C:\\log";
  s.world.windows.expect(id::kSaved);
  EXPECT_EQ(s.save(), SaveEnd::kSaved);
  EXPECT_EQ(s.logbook(), s.line());
}

TEST(SaveFlow, WithoutAFolderNothingIsWrittenAnywhere) {
  for (std::string mainwindow::Folders::*folder :
       {&mainwindow::Folders::reports, &mainwindow::Folders::logbook}) {
    Save s;
    (s.folders.*folder).clear();
    s.world.windows.expect(id::kSaveFailed);
    s.expect_nothing_written(SaveEnd::kNotSaved);
  }
}

TEST(SaveFlow, EveryFailedWriteLeavesBothFilesAndSaysSo) {
  for (const FileError error : {FileError::kAccessDenied, FileError::kNoSpace,
                                FileError::kMediumMissing, FileError::kOther}) {
    using Operation = FakeFiles::Operation;
    for (const Operation operation : {Operation::kLock, Operation::kStage, Operation::kNote,
                                      Operation::kAppend, Operation::kCommit}) {
      in_both_languages([&](Save& s) {
        s.files.add_file(kReport, "old report");
        s.files.add_file(kLogbook, "old line\n");
        s.files.fail_next(operation, error);
        s.world.windows.expect(id::kAskReplaceReport, "yes");
        s.world.windows.expect(id::kSaveFailed);
        s.expect_nothing_written(SaveEnd::kNotSaved);
        const bool of_logbook = operation == Operation::kLock || operation == Operation::kAppend;
        const std::string file = operation == Operation::kNote ? "C:\\log\\.kavrel-save"
                                 : of_logbook                  ? kLogbook
                                                               : kReport;
        const text::Texts& texts = s.world.texts;
        EXPECT_EQ(s.world.windows.boxes.back().text,
                  std::string(texts.get(id::kSaveFailed)) + "\n" +
                      text::fill(texts.get(id::kFileNotSaved),
                                 {file, texts.get(text::reason_of(error))}));
        // And the same save goes well afterwards.
        s.files.heal();
        s.world.windows.expect(id::kAskReplaceReport, "yes");
        s.world.windows.expect(id::kSaved);
        EXPECT_EQ(s.save(), SaveEnd::kSaved);
        EXPECT_EQ(s.logbook(), "old line\n" + s.line());
      });
    }
  }
}

// The box shows the text of the id with these words in its places.
void expect_words(const ui::MessageBox& box, text::Id id, text::Language language,
                  std::initializer_list<std::string_view> words) {
  EXPECT_EQ(box.text_id, id);
  EXPECT_EQ(box.text, text::fill(text::bilingual(id, language), words));
}

constexpr text::Language kLanguages[] = {text::Language::kEnglish, text::Language::kJapanese};

TEST(SaveFlow, AHeldLogbookIsTriedAgainOrLeft) {
  for (const text::Language language : kLanguages) {
    Save s;
    s.world.texts.language = language;
    s.files.set_held(kLogbook);
    s.world.windows.expect(id::kLogbookLocked, "cancel");
    s.world.windows.expect(id::kSaveCancelled);
    s.expect_nothing_written(SaveEnd::kNotSaved);
    const ui::MessageBox& box = s.world.windows.boxes.front();
    expect_words(box, id::kLogbookLocked, language, {kLogbook});
    const bool english = language == text::Language::kEnglish;
    EXPECT_EQ(box.buttons.at(0).label, english ? "Retry" : "再試行");
    EXPECT_EQ(box.buttons.at(1).label, english ? "Cancel" : "ｷｬﾝｾﾙ");
    EXPECT_EQ(box.close_result, box.buttons.at(1).result);

    s.world.windows.expect(id::kLogbookLocked, "retry");
    s.world.windows.expect(id::kLogbookLocked, "cancel");
    s.world.windows.expect(id::kSaveCancelled);
    s.expect_nothing_written(SaveEnd::kNotSaved);

    s.files.set_held(kLogbook, false);
    s.files.fail_next(FakeFiles::Operation::kLock, FileError::kLocked);
    s.world.windows.expect(id::kLogbookLocked, "retry");
    s.world.windows.expect(id::kSaved);
    EXPECT_EQ(s.save(), SaveEnd::kSaved);
    EXPECT_EQ(s.logbook(), s.line());
  }
}

TEST(SaveFlow, ADriveWithoutLocksIsToldOnceInARun) {
  Save s;
  s.files.set_lockless();
  s.world.windows.expect(id::kLogbookWithoutLock);
  s.world.windows.expect(id::kSaved);
  EXPECT_EQ(s.save(), SaveEnd::kSaved);
  expect_words(s.world.windows.boxes.front(), id::kLogbookWithoutLock, text::Language::kEnglish,
               {kLogbook});
  s.world.windows.expect(id::kAskReplaceReport, "yes");
  s.world.windows.expect(id::kSaved);
  EXPECT_EQ(s.save(), SaveEnd::kSaved);
}

TEST(SaveFlow, ADamagedLastLineIsToldWithItsNumber) {
  Save s;
  s.files.add_file(kLogbook, "whole\nhal");
  s.world.windows.expect(id::kLogbookLineClosed);
  s.world.windows.expect(id::kSaved);
  EXPECT_EQ(s.save(), SaveEnd::kSaved);
  EXPECT_EQ(s.logbook(), "whole\nhal\n" + s.line());
  expect_words(s.world.windows.boxes.front(), id::kLogbookLineClosed, text::Language::kEnglish,
               {"2", kLogbook});
}

TEST(SaveFlow, ALineThatCouldNotBeTakenBackIsTold) {
  Save s;
  s.files.fail_next(FakeFiles::Operation::kCommit, FileError::kOther);
  s.files.fail_next(FakeFiles::Operation::kCut, FileError::kOther);
  s.world.windows.expect(id::kSaveLineLeft);
  s.world.windows.expect(id::kSaveFailed);
  EXPECT_EQ(s.save(), SaveEnd::kNotSaved);
  EXPECT_EQ(s.logbook(), s.line());
  expect_words(s.world.windows.boxes.front(), id::kSaveLineLeft, text::Language::kEnglish,
               {kLogbook});
  // The next save of it finishes it, and leaves one line.
  s.world.windows.expect(id::kSaved);
  EXPECT_EQ(s.save(), SaveEnd::kSaved);
  EXPECT_EQ(s.logbook(), s.line());
}

TEST(SaveFlow, AReportThatAppearsMeanwhileIsAskedAbout) {
  Save s;
  s.files.fail_next(FakeFiles::Operation::kCommit, FileError::kExists);
  s.world.windows.expect(id::kAskReplaceReport, "yes");
  s.world.windows.expect(id::kSaved);
  EXPECT_EQ(s.save(), SaveEnd::kSaved);
  EXPECT_EQ(s.logbook(), s.line());
  Save no;
  no.files.fail_next(FakeFiles::Operation::kCommit, FileError::kExists);
  no.world.windows.expect(id::kAskReplaceReport, "no");
  no.expect_nothing_written(SaveEnd::kNotSaved);
}

// A report that another program has put there since is never replaced unasked.
TEST(SaveFlow, AYesIsForTheReportThatWasAskedAbout) {
  for (const char* const answer : {"yes", "no"}) {
    Save s;
    s.files.add_file(kReport, "BBXX FIRST");
    s.files.fail_next(FakeFiles::Operation::kLock, FileError::kLocked);
    s.world.windows.expect(id::kAskReplaceReport, "yes");
    s.world.windows.expect(id::kLogbookLocked, "retry");
    s.world.windows.while_open = [&] {
      if (s.world.windows.boxes.back().text_id == id::kLogbookLocked)
        s.files.add_file(kReport, "BBXX OF ANOTHER");
    };
    s.world.windows.expect(id::kAskReplaceReport, answer);
    const bool yes = answer == std::string_view("yes");
    if (yes) s.world.windows.expect(id::kSaved);
    EXPECT_EQ(s.save(), yes ? SaveEnd::kSaved : SaveEnd::kNotSaved);
    s.world.windows.verify();
    EXPECT_EQ(s.files.content(kReport), yes ? s.message() : "BBXX OF ANOTHER");
    EXPECT_EQ(s.logbook(), yes ? s.line() : "none");
  }
}

/// Leaves a save of a report on drive E: that was killed before its last rename, and takes the
/// drive away.
void interrupt_on_a_drive(Save& s) {
  s.files.add_folder("E:\\out");
  const observation::SaveRequest request = {"E:\\out\\14111506.tlx", kLogbook, "BBXX", "LINE"};
  FakeFiles trial = s.files;
  (void)observation::save(trial, request);
  const auto at = std::find_if(trial.log().begin(), trial.log().end(),
                               [](const auto& done) { return done.starts_with("commit"); });
  s.files.kill_before(static_cast<int>(at - trial.log().begin()) + 1);
  EXPECT_THROW((void)observation::save(s.files, request), FakeFiles::Killed);
  s.files.heal();
  s.files.restart();
  s.files.set_medium_missing('E');
}

TEST(SaveFlow, AnInterruptedSaveWhoseDriveIsAwayIsToldAtTheStartAndAskedAboutBeforeASave) {
  for (const text::Language language : kLanguages) {
    Save s;
    s.world.texts.language = language;
    interrupt_on_a_drive(s);
    const std::string reason(s.world.texts.get(text::reason_of(FileError::kMediumMissing)));
    const auto before = s.files.snapshot();
    s.world.windows.expect(id::kSaveUnreachable);
    EXPECT_EQ(mainwindow::recover_save(s.world.services, s.folders), "");
    EXPECT_EQ(s.files.snapshot(), before);
    for (const char* const answer : {"no", "close"}) {
      s.world.windows.expect(id::kAskLeaveUnreachable, answer);
      s.world.windows.expect(id::kSaveCancelled);
      s.expect_nothing_written(SaveEnd::kNotSaved);
    }
    s.world.windows.expect(id::kAskLeaveUnreachable, "yes");
    s.world.windows.expect(id::kSaveLineWithoutReport);
    s.world.windows.expect(id::kSaved);
    EXPECT_EQ(s.save(), SaveEnd::kSaved);
    s.world.windows.verify();
    EXPECT_EQ(s.logbook(), "LINE\n" + s.line());
    EXPECT_EQ(s.files.content(kReport), s.message());
    for (const ui::MessageBox& box : s.world.windows.boxes)
      if (box.text_id == id::kSaveUnreachable || box.text_id == id::kAskLeaveUnreachable)
        expect_words(box, box.text_id, language, {"14111506.tlx", "1", "E:\\out\\", reason});
  }
}

TEST(SaveFlow, AJournalThatCannotBeReadIsToldAtTheStartWithFileAndReason) {
  constexpr const char* kJournal = "C:\\log\\.kavrel-save";
  const std::function<FileError(Save&)> troubles[] = {
      [](Save& s) {
        s.files.fail_look(kJournal, FileError::kBadLink);
        return FileError::kBadLink;
      },
      [](Save& s) {
        s.files.fail_path(kJournal, FileError::kAccessDenied);
        return FileError::kAccessDenied;
      },
      [](Save& s) {
        s.files.fail_path(kJournal, FileError::kOther);
        return FileError::kOther;
      },
  };
  for (const text::Language language : kLanguages) {
    for (const auto& harm : troubles) {
      Save s;
      s.world.texts.language = language;
      s.files.add_file(kJournal, "note");
      const FileError why = harm(s);
      const auto before = s.files.snapshot();
      s.world.windows.expect(id::kSaveNotRecovered);
      EXPECT_EQ(mainwindow::recover_save(s.world.services, s.folders), "");
      expect_words(s.world.windows.boxes.back(), id::kSaveNotRecovered, language,
                   {kJournal, s.world.texts.get(text::reason_of(why))});
      EXPECT_EQ(s.files.snapshot(), before);
    }
    Save folder;
    folder.world.texts.language = language;
    folder.files.add_folder(kJournal);
    folder.world.windows.expect(id::kSaveNoteDamaged);
    EXPECT_EQ(mainwindow::recover_save(folder.world.services, folder.folders), "");
  }
}

TEST(SaveFlow, TheLineThatAnInterruptedSaveHadClosedIsTold) {
  Save s;
  observation::Recovery recovery{observation::Recovered::kFinished, "14111512.tlx", 3};
  recovery.closed_line = 2;
  s.world.windows.expect(id::kSaveFinished);
  s.world.windows.expect(id::kLogbookLineClosed);
  mainwindow::tell_recovery(s.world.services, s.folders, recovery);
  expect_words(s.world.windows.boxes.back(), id::kLogbookLineClosed, text::Language::kEnglish,
               {"2", kLogbook});
}

TEST(SaveFlow, EveryEndOfAnInterruptedSaveIsToldInBothLanguages) {
  using observation::Recovered;
  const struct {
    Recovered outcome;
    text::Id id;
    std::vector<std::string_view> words;
  } rows[] = {
      {Recovered::kFinished, id::kSaveFinished, {"14111512.tlx", "7"}},
      {Recovered::kTakenBack, id::kSaveTakenBack, {"14111512.tlx"}},
      {Recovered::kLineLeft, id::kSaveLineWithoutReport, {"14111512.tlx", "7"}},
      {Recovered::kPutAside, id::kSaveNoteDamaged, {"C:\\log\\.kavrel-save-damaged"}},
  };
  for (const text::Language language : kLanguages) {
    for (const auto& row : rows) {
      Save s;
      s.world.texts.language = language;
      s.world.windows.expect(row.id);
      mainwindow::tell_recovery(s.world.services, s.folders, {row.outcome, "14111512.tlx", 7});
      const std::string& told = s.world.windows.boxes.back().text;
      for (const std::string_view word : row.words)
        EXPECT_NE(told.find(word), std::string::npos) << told;
      EXPECT_EQ(told.find('%'), std::string::npos) << told;
    }
    Save s;
    mainwindow::tell_recovery(s.world.services, s.folders, {});
    EXPECT_TRUE(s.world.windows.boxes.empty());
  }
}

TEST(SaveFlow, FoldersThatAreGoneOrReadOnlyAndAFullDiskLeaveBothFiles) {
  const std::function<void(Save&)> troubles[] = {
      [](Save& s) { s.folders.reports = "C:\\gone\\"; },
      [](Save& s) { s.folders.logbook = "C:\\gone\\"; },
      [](Save& s) { s.files.fail_path(kLogbook, FileError::kAccessDenied); },
      [](Save& s) { s.files.fail_path(kReport, FileError::kAccessDenied); },
      [](Save& s) { s.files.set_free_space('C', 100); },
      [](Save& s) { s.files.set_medium_missing('C'); },
  };
  for (const auto& trouble : troubles) {
    Save s;
    trouble(s);
    s.world.windows.expect(id::kSaveFailed);
    s.expect_nothing_written(SaveEnd::kNotSaved);
    const std::string& told = s.world.windows.boxes.back().text;
    EXPECT_TRUE(told.starts_with("SetFDMount\nThe file C:\\")) << told;
    EXPECT_TRUE(told.ends_with(").")) << "the cause: " << told;
  }
}

TEST(SaveFlow, AMissingDiskIsAskedForUntilItIsThereOrTheOfficerGivesUp) {
  in_both_languages([](Save& s) {
    s.removable_logbook();
    s.world.drives.medium['A'] = false;
    s.world.windows.expect(id::kInsertDisk, "cancel");
    s.world.windows.expect(id::kSaveCancelled);
    s.expect_nothing_written(SaveEnd::kNotSaved);
    s.world.windows.expect(id::kInsertDisk, "ok");
    s.world.windows.expect(id::kInsertDiskAgain, "cancel");
    s.world.windows.expect(id::kSaveCancelled);
    s.expect_nothing_written(SaveEnd::kNotSaved);
    EXPECT_EQ(s.world.windows.boxes.front().buttons.size(), 2U);
  });
}

// A drive into which a disk is put when it is asked for.
struct InsertedDisk : fakes::FakeDrives {
  mutable int empty_looks = 0;
  [[nodiscard]] bool medium_present(char /*letter*/) const override { return empty_looks-- <= 0; }
};

TEST(SaveFlow, ADiskPutInIsWrittenTo) {
  Save s;
  s.removable_logbook();
  InsertedDisk drives;
  drives.list = s.world.drives.list;
  drives.empty_looks = 2;
  s.world.windows.expect(id::kInsertDisk, "ok");
  s.world.windows.expect(id::kInsertDiskAgain, "ok");
  s.world.windows.expect(id::kSaved);
  EXPECT_EQ(s.save_on(drives), SaveEnd::kSaved);
  EXPECT_EQ(s.files.content("A:\\immt5.log"), s.line());
}

// A disk that is full until it is exchanged.
struct ExchangedDisk : FakeFiles {
  mutable int full_looks = 0;
  [[nodiscard]] std::optional<std::uint64_t> free_space(const std::string& path) const override {
    if (path.front() != 'A') return FakeFiles::free_space(path);
    return full_looks-- > 0 ? 20 : 1000000;
  }
};

TEST(SaveFlow, AFullDiskIsExchangedOrGivenUp) {
  for (const bool exchanged : {true, false}) {
    Save s;
    s.removable_logbook();
    ExchangedDisk files;
    files.full_looks = exchanged ? 2 : 1000;
    files.add_folder("C:\\tlx\\");
    files.add_folder("A:\\");
    ui::Services services{s.world.clock,     s.world.locale,  s.world.drives,  files,
                          s.world.code_page, s.world.printer, s.world.windows, s.world.texts,
                          s.world.messages,  s.world.help};
    s.world.windows.expect(id::kDiskFull, "ok");
    if (exchanged) {
      s.world.windows.expect(id::kDiskFull, "ok");
      s.world.windows.expect(id::kSaved);
    } else {
      s.world.windows.expect(id::kDiskFull, "cancel");
      s.world.windows.expect(id::kSaveCancelled);
    }
    EXPECT_EQ(save_observation(services, {s.record, s.ship, s.items, s.folders, {}}),
              exchanged ? SaveEnd::kSaved : SaveEnd::kNotSaved);
    EXPECT_EQ(files.content("A:\\immt5.log").has_value(), exchanged);
    EXPECT_EQ(files.content(kReport).has_value(), exchanged);
    s.world.windows.verify();
  }
}

TEST(SaveFlow, RoomIsEnoughForBothFilesAndTheNoteBesideThemToTheByte) {
  Save s;
  s.removable_logbook();
  const std::uint64_t files = s.message().size() + s.line().size() + 1;
  const std::uint64_t needed =
      observation::room_for({kReport, "A:\\immt5.log", s.message(),
                             observation::encode_logbook(s.record, s.ship, s.items)});
  EXPECT_GT(needed, files + s.line().size()) << "the note holds the line";
  EXPECT_LT(needed, files + 1000);
  s.files.set_free_space('A', needed - 1);
  s.world.windows.expect(id::kDiskFull, "cancel");
  s.world.windows.expect(id::kSaveCancelled);
  s.expect_nothing_written(SaveEnd::kNotSaved);
  s.files.set_free_space('A', needed);
  s.world.windows.expect(id::kSaved);
  EXPECT_EQ(s.save(), SaveEnd::kSaved);
}

TEST(SaveFlow, AReportOnADiskThatIsPutInLateIsAskedAbout) {
  Save s;
  s.removable_logbook();
  s.folders.reports = "A:\\";
  s.files.add_file("A:\\14111512.tlx", "old");
  s.files.set_medium_missing('A');
  InsertedDisk drives;
  drives.list = s.world.drives.list;
  drives.empty_looks = 1;
  s.world.windows.expect(id::kInsertDisk, "cancel");
  s.world.windows.expect(id::kSaveCancelled);
  EXPECT_EQ(s.save_on(drives), SaveEnd::kNotSaved);
  s.files.set_medium_missing('A', false);
  EXPECT_EQ(s.files.content("A:\\14111512.tlx"), "old");
  s.world.windows.expect(id::kAskReplaceReport, "yes");
  s.world.windows.expect(id::kSaved);
  EXPECT_EQ(s.save_on(drives), SaveEnd::kSaved);
  EXPECT_EQ(s.files.content("A:\\14111512.tlx"), s.message());
}

// The last report but for its pressure, which had been ten hectopascals higher.
constexpr const char* kThreeHoursAgo =
    "BBXX JABC 15094 99355 11405 41497 61812 10152 20101 40232 52011 84520 22223 00185 .....";

std::string doubted(const Save& s, std::string_view text) {
  return std::string(text::half("Doubt: /*E*/要確認：", s.world.texts.language)).append(text);
}

TEST(SaveDoubts, StandBelowTheErrorsWithAWordInFront) {
  in_both_languages([](Save& s) {
    s.record.N = "3";
    s.record.VV = "93";
    s.record.ww = "02";
    const auto language = s.world.texts.language;
    std::string shown;
    s.world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& screen) {
      shown = fakes::lines_of(*screen.find("errors"));
      screen.press(*screen.find("no_save"));
    });
    s.expect_nothing_written(SaveEnd::kNotSaved);
    const std::string doubt(
        text::half("The visibility is below 1 km (VV 93), but the weather (ww 02) tells no "
                   "cause./*E*/視程が1km未満（VV 93）なのに、現在天気（ww "
                   "02）に原因がありません。",
                   language));
    EXPECT_EQ(shown, s.errors() + doubted(s, doubt) + "\r\n");
    EXPECT_NE(s.errors(), "");
  });
}

TEST(SaveDoubts, RefuseNothing) {
  in_both_languages([](Save& s) {
    s.record.TTT = "352";
    s.record.TdTdTd = "201";
    s.world.windows.expect_screen("CSaveErrorInfoDlg", press("no_save"));
    s.expect_nothing_written(SaveEnd::kNotSaved);
    s.world.windows.expect_screen("CSaveErrorInfoDlg", press("correct"));
    s.expect_nothing_written(SaveEnd::kCorrect);
    s.world.windows.expect_screen("CSaveErrorInfoDlg", press("save_as"));
    s.world.windows.expect(id::kSaved);
    EXPECT_EQ(s.save(), SaveEnd::kSaved);
    EXPECT_EQ(s.files.content(kReport), s.message());
    EXPECT_EQ(s.logbook(), s.line());
    s.world.windows.verify();
  });
}

TEST(SaveDoubts, HoldTheObservationAgainstTheLastReports) {
  in_both_languages([](Save& s) {
    s.files.add_file("C:\\tlx\\14111509.tlx", kThreeHoursAgo);
    std::string shown;
    s.world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& screen) {
      shown = fakes::lines_of(*screen.find("errors"));
      screen.press(*screen.find("save_as"));
    });
    s.world.windows.expect(id::kSaved);
    EXPECT_EQ(s.save(), SaveEnd::kSaved);
    const std::string doubt(
        text::half("The pressure was 1023.2 hPa three hours ago. With a change of 1.1 hPa it would "
                   "be 1024.3 hPa now, not 1013.2 hPa./*E*/3時間前の気圧は1023.2 "
                   "hPaです。変化量が1.1 hPaなら1024.3 hPaになりますが、入力は1013.2 hPaです。",
                   s.world.texts.language));
    EXPECT_NE(shown.find(doubted(s, doubt) + "\r\n"), std::string::npos) << shown;
    s.world.windows.verify();
  });
}

// Nothing there, nothing that can be read, and nothing that may be read.
TEST(SaveDoubts, OfThePastNeedReportsThatCanBeRead) {
  for (const char* const content : {"", "no report", "BBXX", "\xff\xfe", "BBXX JABC 15094"}) {
    Save s;
    s.files.add_file("C:\\tlx\\14111509.tlx", content);
    s.files.add_file("C:\\tlx\\14111512.tlx.bak", kThreeHoursAgo);
    s.files.add_file("C:\\tlx\\14111409.txt", kThreeHoursAgo);
    s.files.add_file("C:\\tlx\\14111109.tlx", kThreeHoursAgo);
    s.files.add_folder("C:\\tlx\\14111506.tlx\\");
    s.world.windows.expect(id::kSaved);
    EXPECT_EQ(s.save(), SaveEnd::kSaved) << content;
    s.world.windows.verify();
  }
  Save s;
  s.files.add_file("C:\\tlx\\14111509.tlx", kThreeHoursAgo);
  s.files.fail_next(FakeFiles::Operation::kRead, FileError::kAccessDenied);
  s.world.windows.expect(id::kSaved);
  EXPECT_EQ(s.save(), SaveEnd::kSaved);
}

// What is asked on the way to the files does not bring the list again.
TEST(SaveDoubts, AreAskedAboutOnceInASave) {
  Save s;
  s.record.TTT = "352";
  s.files.add_file(kReport, "old");
  s.removable_logbook();
  s.files.set_medium_missing('A');
  InsertedDisk drives;
  drives.list = s.world.drives.list;
  drives.empty_looks = 1;
  s.world.windows.expect_screen("CSaveErrorInfoDlg", press("save_as"));
  s.world.windows.expect(id::kAskReplaceReport, "yes");
  s.world.windows.expect(id::kInsertDisk, "cancel");
  s.world.windows.expect(id::kSaveCancelled);
  EXPECT_EQ(s.save_on(drives), SaveEnd::kNotSaved);
  s.world.windows.verify();
}

// Without a line, what is wrong comes before what is only doubted.
TEST(SaveDoubts, LeadWhoChoseNoLineOnlyWhereNothingIsWrong) {
  for (const bool wrong : {false, true}) {
    Save s;
    s.record.VV = "93";
    s.record.ww = "02";
    if (wrong) s.record.PPPP = "";
    std::vector<mainwindow::SaveError> to_correct;
    s.world.windows.expect_screen("CSaveErrorInfoDlg", press("correct"));
    mainwindow::Saving saving{s.record, s.ship, s.items, s.folders, s.remarks};
    saving.correct = [&](const std::vector<mainwindow::SaveError>& errors) { to_correct = errors; };
    EXPECT_EQ(save_observation(s.world.services, saving), SaveEnd::kCorrect);
    ASSERT_EQ(to_correct.size(), 1U);
    EXPECT_EQ(to_correct.front().doubt, !wrong);
    // And a line that was chosen, whichever it is.
    s.world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& screen) {
      screen.choose(*screen.find("errors"), wrong ? 1 : 0);
      screen.press(*screen.find("correct"));
    });
    EXPECT_EQ(save_observation(s.world.services, saving), SaveEnd::kCorrect);
    ASSERT_EQ(to_correct.size(), 1U);
    EXPECT_TRUE(to_correct.front().doubt);
    const std::vector<std::string_view> places = {"VV", "ww"};
    EXPECT_EQ(to_correct.front().where, places);
  }
}

}  // namespace
