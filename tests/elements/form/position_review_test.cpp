#include "elements/form/position_review.h"

#include <gtest/gtest.h>

#include "elements/CHour3ErrorDlg.h"
#include "elements/CSaveErrorInfoDlg.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using elements::LandTest;
using elements::review_position;

const std::string kLand = "Waning: Ship's position is on land or coastal region.Is it correct \r\n";
const std::string kLatitude =
    "Warning: Input data is out of standard range.It takes normally the value of \"0.7<Change of "
    "latitude\".Is it correct \r\n";
const std::string kLongitude =
    "Warning: Input data is out of standard range.It takes normally the value of \"0.7<Change of "
    "longitude\".Is it correct \r\n";

// Off Cape Town at 2016-03-01 01 UTC; three hours earlier it was 29 February.
struct Review {
  fakes::FakeFiles files;
  text::Texts texts;
  Struct_Weather record{ShipFixedData{}, KeyObservationItems{}};
  LandTest land;
  std::string earlier = "C:\\tlx\\16022922.tlx";

  Review() {
    record.Year = "2016";
    record.Month = "03";
    record.YY = "01";
    record.GG = "01";
    at("3", "30", "00", "017", "00");
  }
  void at(const char* quadrant, const char* la, const char* la_min, const char* lo,
          const char* lo_min) {
    record.Qc = quadrant;
    record.LaDeg = la;
    record.LaMin = la_min;
    record.LoDeg = lo;
    record.LoMin = lo_min;
  }
  void earlier_report(const std::string& latitude, const std::string& longitude) {
    files.add_file(earlier,
                   "BBXX JABC 29224 " + latitude + " " + longitude + " 41/97 81812 10152 .....");
  }
  [[nodiscard]] std::string warnings() const {
    return review_position(record, files, "C:\\tlx\\", land, texts);
  }
};

TEST(PositionReview, WithoutAnEarlierReportOnlyTheLandTestWarns) {
  Review r;
  EXPECT_EQ(r.warnings(), "");
  r.land = [](double, double) { return true; };
  EXPECT_EQ(r.warnings(), kLand);
  r.land = [](double, double) { return false; };
  EXPECT_EQ(r.warnings(), "");
}

TEST(PositionReview, TheLandTestIsAskedInSignedDegrees) {
  struct Row {
    const char* quadrant;
    double latitude, longitude;
  };
  for (const Row& row : {Row{"1", 30.5, 17.25}, Row{"3", -30.5, 17.25}, Row{"5", -30.5, -17.25},
                         Row{"7", 30.5, -17.25}}) {
    Review r;
    r.at(row.quadrant, "30", "30", "017", "15");
    r.land = [&](double latitude, double longitude) {
      return latitude == row.latitude && longitude == row.longitude;
    };
    EXPECT_EQ(r.warnings(), kLand) << row.quadrant;
  }
}

TEST(PositionReview, AnIncompletePositionIsNotReviewed) {
  for (std::string Struct_Weather::*part :
       {&Struct_Weather::Qc, &Struct_Weather::LaDeg, &Struct_Weather::LaMin, &Struct_Weather::LoDeg,
        &Struct_Weather::LoMin}) {
    Review r;
    r.land = [](double, double) { return true; };
    r.earlier_report("99200", "30170");
    (r.record.*part).clear();
    EXPECT_EQ(r.warnings(), "");
  }
}

TEST(PositionReview, TheMovementIsComparedWithTheReportOfThreeHoursEarlier) {
  Review r;
  r.earlier_report("99321", "30170");
  EXPECT_EQ(r.warnings(), "");  // 2.1 degrees in three hours
  r.earlier_report("99322", "30170");
  EXPECT_EQ(r.warnings(), kLatitude);
  r.earlier_report("99300", "30191");
  EXPECT_EQ(r.warnings(), "");
  r.earlier_report("99300", "30192");
  EXPECT_EQ(r.warnings(), kLongitude);
  // One message about the movement, behind that about land.
  r.earlier_report("99330", "30200");
  r.land = [](double, double) { return true; };
  EXPECT_EQ(r.warnings(), kLand + kLongitude);
}

TEST(PositionReview, MinutesBecomeTenthsCut) {
  Review r;
  r.at("3", "30", "59", "017", "00");  // 30.9
  r.earlier_report("99330", "30170");
  EXPECT_EQ(r.warnings(), "");
  r.earlier_report("99331", "30170");
  EXPECT_EQ(r.warnings(), kLatitude);
}

TEST(PositionReview, TheDateLineIsNoException) {
  Review r;
  r.at("3", "30", "00", "179", "54");
  r.earlier_report("99300", "51799");
  EXPECT_EQ(r.warnings(), kLongitude);
}

TEST(PositionReview, AReportWithoutAPositionOrAReportElsewhereTellsNothing) {
  Review r;
  r.earlier_report("99///", "30170");
  EXPECT_EQ(r.warnings(), "");
  r.earlier_report("99200", "3////");
  EXPECT_EQ(r.warnings(), "");
  r.earlier_report("99-00", "30170");
  EXPECT_EQ(r.warnings(), "");
  r.files.add_file(r.earlier, std::string("\xff\x00garbage", 9));
  EXPECT_EQ(r.warnings(), "");
  r.earlier_report("99200", "30170");
  EXPECT_EQ(r.warnings(), kLatitude);
  EXPECT_EQ(review_position(r.record, r.files, "", {}, r.texts), "");
  EXPECT_EQ(review_position(r.record, r.files, "C:\\other\\", {}, r.texts), "");
  r.record.GG = "";
  EXPECT_EQ(r.warnings(), "");
}

// The officer must not take silence for a comparison that was made.
TEST(PositionReview, ReportThatCannotBeReadIsNamedWithTheReason) {
  using platform::FileError;
  const struct {
    FileError error;
    const char* english;
    const char* japanese;
  } rows[] = {
      {FileError::kAccessDenied, "not permitted", "許可されていません"},
      {FileError::kOther, "input or output error", "入出力エラー"},
      {FileError::kBadLink, "a link that leads nowhere or in a circle",
       "リンク先がないか、リンクが循環しています"},
      {FileError::kNotFound, nullptr, nullptr},
      {FileError::kMediumMissing, nullptr, nullptr},
  };
  for (const auto& row : rows) {
    Review r;
    r.earlier_report("99100", "30100");
    r.files.fail_path(r.earlier, row.error);
    const std::string path = r.earlier;
    EXPECT_EQ(r.warnings(), row.english == nullptr
                                ? ""
                                : "The report " + path +
                                      " of three hours earlier cannot be read (" + row.english +
                                      "), so the ship's movement is not checked.\r\n");
    r.texts.language = text::Language::kJapanese;
    EXPECT_EQ(r.warnings(), row.japanese == nullptr
                                ? ""
                                : "3時間前の気象電報 " + path + " を読み込めない（" + row.japanese +
                                      "）ため、船の移動は確認していません。\r\n");
  }
}

TEST(PositionReview, SpeaksTheLanguageOfTheMoment) {
  Review r;
  r.texts.language = text::Language::kJapanese;
  r.land = [](double, double) { return true; };
  r.earlier_report("99200", "30170");
  const std::string warnings = r.warnings();
  EXPECT_EQ(warnings.find("arning"), std::string::npos);
  EXPECT_EQ(std::count(warnings.begin(), warnings.end(), '\n'), 2);
  EXPECT_NE(warnings.find("緯度の変化"), std::string::npos);
}

TEST(PositionWarnings, AreShownInAReadOnlyBoxAndClosedByOk) {
  fakes::World world;
  std::string shown;
  world.windows.expect_screen("CHour3ErrorDlg", [&](ui::Screen& screen) {
    EXPECT_EQ(screen.find("warnings")->kind, ui::Kind::kMemo);
    shown = screen.find("warnings")->content;
    screen.press(*screen.find("ok"));
    EXPECT_EQ(screen.result(), ui::kOk);
  });
  CHour3ErrorDlg::show(world.services, "one\r\ntwo\r\n");
  EXPECT_EQ(shown, "one\r\ntwo\r\n");
  EXPECT_TRUE(world.windows.notices.empty());
}

TEST(PositionWarnings, OpenNothingWhenThereIsNothingToTell) {
  fakes::World world;
  bool hidden = false;
  CHour3ErrorDlg::show(world.services, "", [&] { hidden = true; });
  EXPECT_FALSE(hidden);
  EXPECT_TRUE(world.windows.notices.empty());
}

TEST(PositionWarnings, ABusyNoticeIsTakenAwayAfterASecond) {
  fakes::World world;
  std::vector<std::string> order;
  world.windows.expect_screen("CHour3ErrorDlg", [&](ui::Screen& screen) {
    order.emplace_back("screen");
    screen.press(*screen.find("ok"));
  });
  CHour3ErrorDlg::show(world.services, "one\r\n", [&] {
    order = world.windows.notices;
    order.emplace_back("hidden");
  });
  EXPECT_EQ(order, (std::vector<std::string>{"pause 1000", "hidden", "screen"}));
}

TEST(SaveErrors, TheScreenHasThreeAnswersAndShowsTheListAsItStands) {
  for (const auto& [button, outcome] : {std::pair{"no_save", CSaveErrorInfoDlg::kNoSave},
                                        {"save_as", CSaveErrorInfoDlg::kSaveAs},
                                        {"correct", CSaveErrorInfoDlg::kCorrect}}) {
    fakes::World world;
    CSaveErrorInfoDlg screen(world.services, {"one", "two"});
    screen.open();
    EXPECT_EQ(screen.errors.items, (std::vector<std::string>{"one", "two"}));
    EXPECT_EQ(screen.chosen(), -1);
    EXPECT_EQ(screen.title(), "Error message");
    screen.press(*screen.find(button));
    EXPECT_EQ(screen.result(), static_cast<int>(outcome));
  }
}

TEST(SaveErrors, ALineIsChosenByArrowsAndCorrectedByEnterOrADoubleClick) {
  for (const bool by_enter : {true, false}) {
    fakes::World world;
    CSaveErrorInfoDlg screen(world.services, {"one", "two", "three"});
    screen.open();
    EXPECT_EQ(screen.focused(), &screen.correct);
    ASSERT_TRUE(screen.move_focus(screen.errors));
    screen.key(ui::Key::kDown);
    screen.key(ui::Key::kDown);
    if (by_enter)
      screen.key(ui::Key::kEnter);
    else
      screen.press(screen.errors);
    EXPECT_EQ(screen.result(), static_cast<int>(CSaveErrorInfoDlg::kCorrect));
    EXPECT_EQ(screen.chosen(), 1);
  }
}

TEST(SaveErrors, EnterOnTheDialogAsOpenedChoosesNoLine) {
  fakes::World world;
  CSaveErrorInfoDlg screen(world.services, {"one", "two"});
  screen.open();
  screen.key(ui::Key::kEnter);
  EXPECT_EQ(screen.result(), static_cast<int>(CSaveErrorInfoDlg::kCorrect));
  EXPECT_EQ(screen.chosen(), -1);
}

TEST(SaveErrors, F1TellsOfTheDoubts) {
  fakes::World world;
  CSaveErrorInfoDlg screen(world.services, {"one", "two"});
  screen.open();
  screen.key(ui::Key::kF1);
  EXPECT_EQ(world.help_viewer.shown,
            std::vector<std::string>{"C:\\program\\help\\Kavrel_E.CHM::/Capter32_E.htm"});
  EXPECT_FALSE(screen.result()) << "the list stays";
}

}  // namespace
