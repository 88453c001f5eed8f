// A saved report brought back into the form: what is in it, what the officer is told, and what a
// save of it asks and writes.

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "fakes/rounds.h"
#include "mainwindow/correction.h"
#include "observation/logbook_encoder.h"
#include "observation/report_file.h"
#include "observation/report_reader.h"
#include "text/reasons.h"
#include "text/strings.h"
#include "window.h"

namespace {

namespace id = text::id;
using fakes::FakeFiles;
using main_window::Opened;
using platform::FileError;

constexpr const char* kName = "14111512.tlx";
constexpr const char* kReport = "C:\\out\\14111512.tlx";
constexpr const char* kLogbook = "C:\\log\\immt5.log";
constexpr const char* kText =
    "BBXX JXKV 15123 99357 11653 41497 62718 10152 20114 40132 52014 72582 84531 22213 00178 20604 "
    "327// 40905 .....";
constexpr const char* kMenu = "File/Correct weather reports";

/// The line of kText with a humidity, and a second swell that was none or was not observed.
std::string line_of(std::string_view humidity, std::string_view second_swell) {
  const auto read = observation::read_report(
      kText, Struct_Weather(main_window::sample_ship(), KeyObservationItems()));
  Struct_Weather record = read->record;
  record.Year = "2014";
  record.Month = "11";
  record.LogExtra = humidity;
  record.dw2dw2 = second_swell;
  return observation::encode_logbook(record, main_window::sample_ship(), {});
}

struct Correcting : Opened {
  using Opened::Opened;
  void choose_report(int line = 0) {
    world.windows.expect_screen("CQFModifyDlg", [line](ui::Screen& screen) {
      screen.choose(*screen.find("reports"), line);
      screen.press(*screen.find("ok"));
    });
  }
  /// Opens the only report of the folder; the notes, empty when nothing is told.
  std::string correct(const std::string& text, const std::string& path = kReport,
                      bool notes = false) {
    files.add_file(path, text);
    choose_report();
    if (notes) world.windows.expect(id::kCorrectNotes);
    menu(kMenu);
    world.windows.verify();
    return notes ? world.windows.boxes.back().text : std::string();
  }
  void expect_save(bool listed = false) {
    if (listed)
      world.windows.expect_screen("CSaveErrorInfoDlg", [this](ui::Screen& screen) {
        errors = fakes::lines_of(*screen.find("errors"));
        screen.press(*screen.find("save_as"));
      });
    world.windows.expect(id::kAskReplaceReport, "yes");
    world.windows.expect(id::kSaved);
  }
  std::string errors;
};

std::unique_ptr<Correcting> with_line(const std::string& line) {
  auto opened = std::make_unique<Correcting>();
  opened->files.add_file(kLogbook, line + "\n");
  return opened;
}

TEST(Correcting, BringsEveryValueBackAndCountsAsSaved) {
  for (const bool japanese : {false, true}) {
    const auto opened = with_line(line_of("0780", "00"));
    if (japanese) opened->world.japanese();
    opened->correct(kText);
    EXPECT_FALSE(opened->window.unsaved());
    EXPECT_EQ(opened->window.title(), japanese ? "KAVREL for WIN - 14111512.tlx を訂正中"
                                               : "KAVREL for WIN - correcting 14111512.tlx");
    EXPECT_EQ(opened->window.report(), kText);
    const std::pair<const char*, const char*> shown[] = {{"Year", "2014"},
                                                         {"Month", "11"},
                                                         {"YY", "15"},
                                                         {"GG", "12"},
                                                         {"LaDeg", "35"},
                                                         {"LaMin", "42"},
                                                         {"PPPP", "1013.2"},
                                                         {"reading", ""},
                                                         {"air_temperature", "15.2"},
                                                         {"dew_point", "11.4"},
                                                         {"dd", "27"},
                                                         {"ff", "18"},
                                                         {"TwTwTw", "17.8"},
                                                         {"HwHw", "2.0"},
                                                         {"dw2dw2", "00"},
                                                         {"relative_humidity", "78.0"}};
    for (const auto& [name, text] : shown) EXPECT_EQ(opened->shown(name), text) << name;
    EXPECT_EQ(opened->control("north_south").selected, 0);
    EXPECT_EQ(opened->window.focused()->name, "Year");
    opened->type("VV", "96");
    EXPECT_EQ(opened->window.title(),
              japanese ? "KAVREL for WIN - 14111512.tlx を訂正中（未保存） *"
                       : "KAVREL for WIN - correcting 14111512.tlx - not saved *");
  }
}

TEST(Correcting, SavesOverItsFileOnYesAndAddsALine) {
  const std::string line = line_of("0780", "00");
  const auto opened = with_line(line);
  opened->correct(kText);
  opened->type("VV", "96");
  opened->world.windows.expect(id::kAskReplaceReport, "no");
  opened->menu("Save weather report");
  EXPECT_EQ(opened->files.content(kReport), kText);
  EXPECT_EQ(opened->files.content(kLogbook), line + "\n");
  EXPECT_TRUE(opened->window.unsaved());
  opened->expect_save();
  opened->menu("Save weather report");
  std::string report = kText;
  report.replace(report.find("41497"), 5, "41496");
  std::string changed = line;
  changed.replace(21, 2, "96");
  EXPECT_EQ(opened->files.content(kReport), report);
  EXPECT_EQ(opened->files.content(kLogbook), line + "\n" + changed + "\n");
  EXPECT_EQ(opened->window.title(), "KAVREL for WIN - report saved");
}

TEST(Correcting, TakesWhatTheReportLacksFromTheLogbook) {
  for (const char* const humidity : {"", "0780", "1000"}) {
    for (const char* const second : {"00", "//"}) {
      const auto opened = with_line(line_of(humidity, second));
      opened->correct(kText);
      EXPECT_EQ(opened->window.form().record().LogExtra, humidity);
      EXPECT_EQ(opened->window.form().record().dw2dw2, second);
    }
  }
}

// No line of the logbook agrees: that is told, and a second swell that is not shown was none.
TEST(Correcting, WithoutALineSaysSoAndHasNoSecondSwell) {
  struct Row {
    std::optional<std::string> logbook;
    FileError error = FileError::kNone;
    const char* told;
  };
  std::string other = line_of("0780", "00");
  other[30] = '9';
  for (const Row& row : {Row{std::nullopt, FileError::kNone, "has no line that agrees"},
                         Row{"", FileError::kNone, "has no line that agrees"},
                         Row{other + "\n", FileError::kNone, "has no line that agrees"},
                         Row{other + "\n", FileError::kMediumMissing, "cannot be read"}}) {
    for (const bool observed : {true, false}) {
      const auto opened = std::make_unique<Correcting>();
      opened->items.set_observed(ObservationItem::dw2Pw2Hw2, observed);
      if (row.logbook) opened->files.add_file(kLogbook, *row.logbook);
      if (row.error != FileError::kNone) opened->files.fail_path(kLogbook, row.error);
      const std::string told = opened->correct(kText, kReport, true);
      EXPECT_NE(told.find(row.told), std::string::npos) << told;
      EXPECT_NE(told.find(kLogbook), std::string::npos) << told;
      EXPECT_EQ(opened->window.form().record().dw2dw2, observed ? "00" : "//");
      EXPECT_EQ(opened->window.report(), kText);
    }
  }
}

// Where there was no first swell, zeros for the second would say more than was sent.
TEST(Correcting, WithoutALineEverySwellGoesOutAsItWasSent) {
  for (const char* const groups :
       {"30000", "300//", "300// 40905", "399//", "327// 40905", "32727 40905 50602"}) {
    std::string text = kText;
    text.replace(text.find("327// 40905"), 11, groups);
    const auto opened = std::make_unique<Correcting>();
    opened->correct(text, kReport, true);
    EXPECT_NE(opened->window.report().find(std::string(" 20604 ").append(groups)),
              std::string::npos)
        << groups << "\n"
        << opened->window.report();
  }
}

TEST(Correcting, WithoutALineComputesAHumidityThatTheShipComputes) {
  ShipFixedData ship = main_window::sample_ship();
  for (const bool computed : {true, false}) {
    ship.humidity_method = computed ? HumidityMethod::kComputed : HumidityMethod::kDirect;
    const auto opened = std::make_unique<Correcting>(ship);
    opened->correct(kText, kReport, true);
    // 15.2 and 11.4 degrees: 13.5 hPa of 17.3.
    EXPECT_EQ(opened->window.form().record().LogExtra, computed ? "0780" : "");
  }
}

// ---- What is no report

TEST(Correcting, LeavesTheObservationWhereThereIsNoReport) {
  struct Row {
    const char* name;
    std::function<void(FakeFiles&)> prepare;
    text::Id told;
  };
  const Row rows[] = {
      {"empty", [](FakeFiles& f) { f.add_file(kReport, ""); }, id::kCorrectEmpty},
      {"blank", [](FakeFiles& f) { f.add_file(kReport, " \r\n\t"); }, id::kCorrectEmpty},
      {"no report", [](FakeFiles& f) { f.add_file(kReport, "AAXX 15123"); }, id::kCorrectNoReport},
      {"binary", [](FakeFiles& f) { f.add_file(kReport, std::string("\0\xff\x80 BBXXX", 9)); },
       id::kCorrectNoReport},
      {"one long line", [](FakeFiles& f) { f.add_file(kReport, std::string(5000, '9')); },
       id::kCorrectNoReport},
      {"too large",
       [](FakeFiles& f) {
         f.add_file(kReport, kText + std::string(observation::kLargestReport, ' '));
       },
       id::kCorrectTooLarge},
      {"not permitted",
       [](FakeFiles& f) {
         f.add_file(kReport, kText);
         f.fail_path(kReport, FileError::kAccessDenied);
       },
       id::kCorrectUnreadable},
  };
  for (const Row& row : rows) {
    for (const bool japanese : {false, true}) {
      SCOPED_TRACE(row.name);
      const auto opened = std::make_unique<Correcting>();
      if (japanese) opened->world.japanese();
      opened->type("VV", "97");
      const std::string before = opened->state();
      row.prepare(opened->files);
      const auto files = opened->files.snapshot();
      opened->world.windows.expect(id::kAskSaveBeforeCorrecting, "no");
      opened->choose_report();
      opened->world.windows.expect(row.told);
      opened->window.run({0, 0, mainwindow::Command::kCorrectReports});
      opened->world.windows.verify();
      EXPECT_NE(opened->world.windows.boxes.back().text.find(kReport), std::string::npos);
      EXPECT_EQ(opened->state(), before);
      EXPECT_EQ(opened->files.snapshot(), files);
    }
  }
}

TEST(Correcting, NamesAFileThatVanishedOrIsAnotherThingByNow) {
  for (const std::string_view now : {"nothing", "folder", "pipe"}) {
    const auto opened = std::make_unique<Correcting>();
    opened->files.add_file(kReport, kText);
    opened->world.windows.expect_screen("CQFModifyDlg", [&](ui::Screen& screen) {
      screen.choose(*screen.find("reports"), 0);
      (void)opened->files.remove(kReport);
      if (now == "folder") opened->files.add_folder(kReport);
      if (now == "pipe") opened->files.add_other(kReport);
      screen.press(*screen.find("ok"));
    });
    opened->world.windows.expect(id::kCorrectUnreadable);
    opened->menu(kMenu);
    const std::string& told = opened->world.windows.boxes.back().text;
    const FileError why = now == "nothing" ? FileError::kNotFound : FileError::kNotAFile;
    EXPECT_NE(told.find(opened->world.texts.get(text::reason_of(why))), std::string::npos) << told;
    EXPECT_EQ(opened->window.title(), "KAVREL for WIN");
  }
}

// ---- What found no place

TEST(Correcting, TellsWhatFoundNoPlaceWhenOpenedAndBeforeItIsReplaced) {
  struct Row {
    const char *text, *told;
  };
  const Row rows[] = {
      {"ZCZC 12\r\nBBXX JXKV 15123 99357 11653 41497 62718 .....",
       "Not taken over from 14111512.tlx: ZCZC 12 (outside the report)"},
      {"BBXX JXKV 15123 99357 11653 41497 62718 30123 .....",
       "Not taken over from 14111512.tlx: 30123 (a group without a field)"},
      {"BBXX JXKV 15123 99357 11653 41497 62718 1015 .....",
       "Not taken over from 14111512.tlx: 1015 (not a group of five figures)"},
      {"BBXX JXKV 15123 99357 41653 41497 62718 .....",
       "Not taken over from 14111512.tlx: 41653 (not the group expected here)"},
      {"BBXX JXKV 15123 99357 11653 41497 62718 10152 10153 .....",
       "Not taken over from 14111512.tlx: 10153 (a group that is repeated)"},
      {"BBXX JXKV 15123 99357 11653 41497 62718 333 91119 .....",
       "Not taken over from 14111512.tlx: 91119 (section 3 or later)"},
      {"BBXX JXKV 15123 99357 11653 41497 62718 22213 ICE MOSTLY OPEN .....",
       "Not taken over from 14111512.tlx: ICE MOSTLY OPEN (ice in plain language)"},
      {"BBXX J=X 15123 99357 11653 41497 62718 .....",
       "Not taken over from 14111512.tlx: J=X (not a call sign)"},
      {"BBXX PCHM 15123 99357 11653 41497 62718 .....",
       "Not taken over from 14111512.tlx: PCHM (another call sign than this ship's)"},
      {"BBXX JXKV 15123 99357 11653 41497 62718 22213 80130 .....",
       "Not taken over from 14111512.tlx: 80130 (the wet bulb, which this ship does not send)"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    const auto opened = std::make_unique<Correcting>();
    const std::string told = opened->correct(row.text, kReport, true);
    EXPECT_EQ(told.find("Please note before you correct 14111512.tlx:\n"), 0U) << told;
    EXPECT_NE(told.find(row.told), std::string::npos) << told;
    EXPECT_EQ(opened->window.form().record().CallSign, "JXKV");
    opened->expect_save(true);
    opened->menu("Save weather report");
    EXPECT_NE(opened->errors.find(std::string(row.told) + "\r\n"), std::string::npos)
        << opened->errors;
    // The file has given it up now, and there is nothing more to be told.
    opened->expect_save(true);
    opened->menu("Save weather report");
    EXPECT_EQ(opened->errors.find("Not taken over"), std::string::npos) << opened->errors;
  }
}

TEST(Correcting, TellsVeryMuchInFewLinesThatCanBeRead) {
  const auto opened = std::make_unique<Correcting>();
  std::string text = kText;
  text.insert(text.find("....."), std::string(4900, 'x') + " \x01\x02\x1b \x83\x4e\x83\x89 ");
  for (int i = 0; i < 1000; ++i) text.insert(text.find("....."), "30123 ");
  // Three odd words, and every one of the thousand repeats the group 327//; twelve are shown.
  const std::string told = opened->correct(text, kReport, true);
  EXPECT_LT(told.size(), 2000U);
  EXPECT_NE(told.find("... and 991 more\n"), std::string::npos) << told;
  for (const char c : told) EXPECT_FALSE(text::is_control(c) && c != '\n');
}

// A group of precipitation has no field, so the report must not announce one; nobody could enter it.
TEST(Correcting, AnnouncesNoPrecipitationThatFoundNoPlace) {
  struct Row {
    const char *iR, *groups, *sent;
  };
  for (const Row& row : {Row{"1", "60102 70211", "4"},
                         {"0", "60102 333 60101", "4"},
                         {"2", "333 60101", "4"},
                         {"3", "70211", "3"},
                         {"1", "70211", "1"},
                         {"4", "30123", "4"}}) {
    SCOPED_TRACE(std::string(row.iR).append(" ").append(row.groups));
    const auto opened = std::make_unique<Correcting>();
    std::string text = "BBXX JXKV 15123 99357 11653 ";
    text.append(row.iR).append("1497 62718 10152 ").append(row.groups).append(" .....");
    opened->correct(text, kReport, true);
    EXPECT_EQ(opened->window.form().record().iR, row.sent);
    EXPECT_FALSE(opened->window.unsaved());
  }
}

// Somebody's editor or a receiver may have turned the letters round; figures have none.
TEST(Correcting, ReadsSmallLettersAsCapitals) {
  const auto opened = with_line(line_of("0780", "00"));
  std::string text = kText;
  text.insert(text.find("....."), "ICE 35124 ");
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  opened->correct(text, kReport, true);
  EXPECT_NE(opened->window.report().find("BBXX JXKV 15123 99357 11653 41497 62718 10152"),
            std::string::npos);
  EXPECT_NE(opened->window.report().find(" ICE 35124 ....."), std::string::npos);
  EXPECT_EQ(opened->window.title(), "KAVREL for WIN - correcting 14111512.tlx");
}

// ---- Date and name

TEST(Correcting, TellsWhereNameAndReportContradictEachOther) {
  const auto opened = std::make_unique<Correcting>();
  const std::string told = opened->correct(kText, "C:\\out\\14111618.tlx", true);
  EXPECT_NE(told.find("the report is of day 15, 12 UTC. It will be saved as 14111512.tlx, and "
                      "14111618.tlx stays as it is."),
            std::string::npos)
      << told;
  EXPECT_EQ(opened->shown("YY") + opened->shown("GG"), "1512");
  EXPECT_EQ(opened->window.title(), "KAVREL for WIN - correcting 14111618.tlx");
  opened->world.windows.expect(id::kSaved);
  opened->menu("Save weather report");
  EXPECT_EQ(opened->files.content(kReport), kText);
  EXPECT_EQ(opened->files.content("C:\\out\\14111618.tlx"), kText);
}

TEST(Correcting, AsksForTheDateThatANameDoesNotTell) {
  for (const char* const name : {"copy.tlx", "14131512.tlx", "14113112.tlx", "14111524.tlx",
                                 "クラ14.tlx", "114111512.tlx"}) {
    const auto opened = std::make_unique<Correcting>();
    const std::string path = std::string("C:\\out\\") + name;
    const std::string told = opened->correct(kText, path, true);
    EXPECT_NE(told.find("does not tell year and month"), std::string::npos) << told;
    EXPECT_EQ(opened->shown("Year") + opened->shown("Month"), "");
    EXPECT_EQ(opened->shown("YY") + opened->shown("GG"), "1512");
    EXPECT_EQ(opened->window.title(), std::string("KAVREL for WIN - correcting ") + name);
    opened->world.windows.expect(id::kNoDateEntered);
    opened->menu("Save weather report");
    opened->type("Year", "2014");
    opened->type("Month", "11");
    opened->world.windows.expect(id::kSaved);
    opened->menu("Save weather report");
    EXPECT_EQ(opened->files.content(path), kText);
    EXPECT_EQ(opened->files.content(kReport), kText);
  }
}

TEST(Correcting, TakesDayAndHourFromTheNameWhereTheReportLacksThem) {
  const auto opened = std::make_unique<Correcting>();
  const std::string told =
      opened->correct("BBXX JXKV 1512 99357 11653 41497 62718 .....", kReport, true);
  EXPECT_NE(told.find(": 1512 (not a group"), std::string::npos) << told;
  EXPECT_EQ(told.find("do not agree"), std::string::npos) << told;
  EXPECT_EQ(opened->shown("YY") + opened->shown("GG"), "1512");
}

// A new hour is another report: the next observation may be entered over the last one.
TEST(Correcting, NamesTheFileNoLongerOnceTheHourIsAnother) {
  const auto opened = with_line(line_of("0780", "00"));
  std::string text = kText;
  text.insert(text.find("22213"), "30123 ");
  opened->correct(text, kReport, true);
  opened->type("GG", "18");
  EXPECT_EQ(opened->window.title(), "KAVREL for WIN - report not saved *");
  opened->type("GG", "12");
  EXPECT_EQ(opened->window.title(), "KAVREL for WIN - correcting 14111512.tlx - not saved *");
  opened->type("GG", "18");
  // Nothing is replaced, so nothing is told of it; that only the hour is another is doubted.
  opened->world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& screen) {
    opened->errors = fakes::lines_of(*screen.find("errors"));
    screen.press(*screen.find("save_as"));
  });
  opened->world.windows.expect(id::kSaved);
  opened->menu("Save weather report");
  EXPECT_NE(opened->errors.find("Doubt: "), std::string::npos) << opened->errors;
  EXPECT_EQ(opened->errors.find("30123"), std::string::npos) << opened->errors;
  EXPECT_EQ(opened->files.content(kReport), text);
  EXPECT_NE(opened->files.content("C:\\out\\14111518.tlx"), std::nullopt);
  EXPECT_EQ(opened->window.title(), "KAVREL for WIN - report saved");
}

// ---- Checks

TEST(Correcting, ListsValuesThatTheirFieldsRefuse) {
  const auto opened = std::make_unique<Correcting>();
  std::string text = kText;
  text.replace(text.find("10152"), 5, "10999");
  text.replace(text.find("41497"), 5, "41420");
  opened->correct(text, kReport, true);
  EXPECT_EQ(opened->window.report(), text);
  opened->expect_save(true);
  opened->menu("Save weather report");
  for (const text::Id message : {id::kAirTemperatureRange, id::kVisibilityRange}) {
    std::string line(opened->world.texts.get(message));
    line = text::replace_all(line.substr(0, line.find('%')), "\n", " ");
    EXPECT_NE(opened->errors.find(line), std::string::npos) << line << "\n" << opened->errors;
  }
  EXPECT_EQ(opened->files.content(kReport), text);
}

TEST(Correcting, ChecksWhatIsEnteredLikeAnyEntry) {
  const auto opened = with_line(line_of("0780", "00"));
  opened->correct(kText);
  opened->world.windows.expect(id::kVisibilityRange);
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("VV"), "80"));
  opened->window.key(ui::Key::kTab);
  EXPECT_EQ(opened->window.focused()->name, "VV");
  EXPECT_EQ(opened->window.report(), kText);
}

TEST(Correcting, TellsAWindSpeedInMetresPerSecond) {
  std::string text = kText;
  text.replace(text.find("15123"), 5, "15121");
  const auto opened = std::make_unique<Correcting>();
  const std::string told = opened->correct(text, kReport, true);
  EXPECT_NE(told.find("metres per second"), std::string::npos) << told;
  // The ship's data change nothing of it; a speed that is entered is in knots.
  opened->world.windows.expect_screen("CFixDataDlg", [](ui::Screen& screen) {
    fakes::enter(screen, *screen.find("imo_number"), "1234567");
    screen.press(*screen.find("ok"));
  });
  opened->menu("Fixed data");
  EXPECT_EQ(opened->window.report(), text);
  opened->type("ff", "20");
  text.replace(text.find("15121"), 5, "15123");
  text.replace(text.find("62718"), 5, "62720");
  EXPECT_EQ(opened->window.report(), text);
}

// Such values are locked; over the corrected report the next observation may be entered, and theirs
// they are not.
TEST(Correcting, NamesValuesOfElementsNoLongerObservedOnceTheHourIsAnother) {
  for (const bool observed : {true, false}) {
    for (const bool japanese : {false, true}) {
      const auto opened = std::make_unique<Correcting>();
      if (japanese) opened->world.japanese();
      opened->items.set_observed(ObservationItem::ciSibiDizi, observed);
      opened->items.set_observed(ObservationItem::ww, observed);
      std::string text = kText;
      text.insert(text.find("....."), "ICE 3/124 ");
      opened->correct(text, kReport, true);
      // The ice is doubted.
      opened->expect_save(true);
      opened->menu("Save weather report");
      EXPECT_EQ(opened->files.content(kReport), text);
      opened->type("GG", "18");
      if (observed) {
        opened->world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& screen) {
          EXPECT_EQ(fakes::lines_of(*screen.find("errors")).find("ci 3 "), std::string::npos);
          screen.press(*screen.find("save_as"));
        });
        opened->world.windows.expect(id::kSaved);
        opened->menu("Save weather report");
        continue;
      }
      opened->world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& screen) {
        opened->errors = fakes::lines_of(*screen.find("errors"));
        screen.press(*screen.find("correct"));
      });
      opened->menu("Save weather report");
      const std::string why = japanese
                                  ? "（この船では観測しない項目です（メニューの「観測項目」））\r\n"
                                  : " (Not observed on this ship (menu \"Observation item\"))\r\n";
      for (const char* const named : {"ci 3", "bi 1", "Di 2", "zi 4", "ww 25"})
        EXPECT_NE(opened->errors.find(named + why), std::string::npos) << named << opened->errors;
      EXPECT_EQ(opened->errors.find("Si"), std::string::npos);
    }
  }
}

// ---- What is asked before

TEST(Correcting, KeepsTheObservationWhenTheListIsCancelled) {
  const auto opened = std::make_unique<Correcting>();
  opened->files.add_file(kReport, kText);
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("VV"), "9"));
  const std::string before = opened->state();
  opened->world.windows.expect(id::kAskSaveBeforeCorrecting, "no");
  opened->world.windows.expect_screen(
      "CQFModifyDlg", [](ui::Screen& screen) { screen.press(*screen.find("cancel")); });
  opened->menu(kMenu);
  EXPECT_EQ(opened->state(), before);
}

TEST(Correcting, AFieldThatWasHalfTypedGivesWayToTheReport) {
  const auto opened = with_line(line_of("0780", "00"));
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("VV"), "9"));
  opened->files.add_file(kReport, kText);
  opened->world.windows.expect(id::kAskSaveBeforeCorrecting, "no");
  opened->choose_report();
  opened->menu(kMenu);
  EXPECT_EQ(opened->shown("VV"), "97");
  EXPECT_FALSE(opened->window.unsaved());
  opened->world.windows.expect(id::kAskExit, "yes");
  opened->window.close_box();
}

TEST(Correcting, IsItselfAskedAboutBeforeTheNextOne) {
  const auto opened = with_line(line_of("0780", "00"));
  opened->correct(kText);
  opened->type("VV", "96");
  opened->world.windows.expect(id::kAskSaveBeforeCorrecting, "yes");
  opened->expect_save();
  opened->choose_report();
  opened->menu(kMenu);
  EXPECT_EQ(opened->shown("VV"), "96");
  EXPECT_FALSE(opened->window.unsaved());
}

// ---- Any bytes

// A report with bytes of it exchanged, taken out, doubled: whatever comes of it can be saved, kept
// as a draft and taken over again, and every word is in the form or named.
TEST(Correcting, SurvivesAnyBytesInTheFile) {
  std::mt19937 random(14111512);
  const auto pick = [&](std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
  };
  FakeFiles files;
  fakes::World world(files);
  ShipFixedData ship = fakes::psychrometer_ship();
  KeyObservationItems items;
  mainwindow::Folders folders;
  folders.logbook = "C:\\log\\";
  files.add_file(kLogbook, line_of("0780", "00") + "\n");
  world.windows.answer_all("ok");
  int opened_files = 0;
  for (int i = 0; i < fakes::rounds(3000); ++i) {
    std::string text = kText;
    for (std::size_t changes = 1 + pick(6); changes > 0 && !text.empty(); --changes) {
      const std::size_t at = pick(text.size());
      const std::size_t size = 1 + pick(8);
      switch (pick(4)) {
        case 0:
          text[at] = static_cast<char>(pick(256));
          break;
        case 1:
          text.erase(at, size);
          break;
        case 2:
          text.insert(at, text.substr(pick(text.size()), size));
          break;
        default:
          text[at] = "0123456789/ \n=.XB"[pick(18)];
          break;
      }
    }
    files.add_file(kReport, text);
    const auto opened =
        mainwindow::open_report(world.services, {ship, items, folders, {}}, kReport);
    if (!opened) continue;
    ++opened_files;
    elements::ObservationForm form(ship, items, world.clock);
    form.load_record(opened->record);
    const std::string report = form.report().text;
    EXPECT_EQ(observation::encode_logbook(form.record(), ship, items).size(), 172U);
    for (const char c : report) ASSERT_FALSE(text::is_control(c)) << text;
    (void)form.unacceptable();
    (void)mainwindow::unplaced_lines(world.services, opened->correction);
    const std::string draft = elements::encode_draft(
        {ship.call_sign, elements::ship_mark(ship), form.entries(), {}, {}, opened->correction});
    const elements::DraftRead read = elements::decode_draft(draft);
    ASSERT_EQ(read.fault, elements::DraftFault::kNone) << draft;
    elements::ObservationForm restored(ship, items, world.clock);
    restored.load(read.draft.form);
    restored.items_changed();
    ASSERT_EQ(restored.report().text, report) << text;
    // Every group of the file is one of the report or is named; solidi may be left out.
    std::string named;
    for (const auto& each : opened->correction.unplaced) named += " " + each.text + " ";
    std::istringstream words(text);
    for (std::string word; words >> word;) {
      const bool is_group = word.size() == 5 && text::is_all_digits(word);
      if (!is_group || named.find(word) != std::string::npos) continue;
      // Beside a lost group that begins with 6 no precipitation is announced.
      const bool is_announcement = named.find(" 6") != std::string::npos &&
                                   report.find("4" + word.substr(1)) != std::string::npos;
      ASSERT_TRUE(is_announcement || report.find(word) != std::string::npos)
          << word << " of " << text << "\n"
          << report;
    }
  }
  EXPECT_GT(opened_files, fakes::rounds(2000));
}

}  // namespace
