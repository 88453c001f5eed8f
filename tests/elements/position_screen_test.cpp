#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "elements/CPositionDlg.h"
#include "elements/dialog_checks.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using Values = CPositionDlg::Values;

struct PositionScreen : testing::Test {
  fakes::World world;
  bool land = false;
  std::vector<std::pair<double, double>> asked;

  CPositionDlg::LandTest land_test() {
    return [this](double latitude, double longitude) {
      asked.emplace_back(latitude, longitude);
      return land;
    };
  }
};

TEST_F(PositionScreen, HasItsTextsInBothLanguages) {
  const CPositionDlg dialog(world.services, {}, "", {});
  EXPECT_EQ(dialog.title(), "Observation position (Latitude, Longitude)");
  world.japanese();
  EXPECT_EQ(dialog.title(), "観測位置（緯度、経度）");
  EXPECT_EQ(dialog.caption(dialog.latitude_degrees), "緯度");
}

TEST_F(PositionScreen, MinuteListsAre00To59) {
  const CPositionDlg dialog(world.services, {}, "", {});
  for (const ui::Combo* const list : {&dialog.latitude_minutes, &dialog.longitude_minutes}) {
    ASSERT_EQ(list->items.size(), 60U);
    EXPECT_EQ(list->items.front(), "00");
    EXPECT_EQ(list->items.back(), "59");
  }
}

struct QuadrantRow {
  int latitude;
  int longitude;
  const char* quadrant;
};
constexpr QuadrantRow kQuadrants[] = {{0, 0, "1"}, {1, 0, "3"}, {1, 1, "5"}, {0, 1, "7"}};

TEST_F(PositionScreen, QuadrantFollowsTheHemispheresAlsoOnEquatorAndMeridians) {
  const char* const positions[][4] = {{"34", "56", "138", "5"},
                                      {"0", "0", "0", "0"},
                                      {"00", "00", "180", "00"},
                                      {"90", "00", "000", "00"},
                                      {"00", "30", "179", "59"}};
  for (const auto& p : positions) {
    for (const QuadrantRow& row : kQuadrants) {
      CPositionDlg dialog(world.services, {}, "", {});
      dialog.open();
      fakes::enter(dialog, dialog.latitude_degrees, p[0]);
      fakes::enter(dialog, dialog.latitude_minutes, p[1]);
      fakes::enter(dialog, dialog.longitude_degrees, p[2]);
      fakes::enter(dialog, dialog.longitude_minutes, p[3]);
      dialog.choose(dialog.latitude_side, row.latitude);
      dialog.choose(dialog.longitude_side, row.longitude);
      dialog.press(dialog.ok);
      EXPECT_EQ(dialog.result(), ui::kOk);
      EXPECT_EQ(dialog.values().Qc, row.quadrant) << p[0] << p[2];
    }
  }
}

TEST_F(PositionScreen, PartsComeBackWithLeadingZeros) {
  CPositionDlg dialog(world.services, {}, "7", {});
  dialog.open();
  fakes::enter(dialog, dialog.latitude_degrees, "５");
  fakes::enter(dialog, dialog.latitude_minutes, "6");
  fakes::enter(dialog, dialog.longitude_degrees, "7");
  fakes::enter(dialog, dialog.longitude_minutes, "8");
  dialog.key(ui::Key::kEnter);
  EXPECT_EQ(dialog.values(), (Values{"05", "06", "007", "08", "7"}));
}

TEST_F(PositionScreen, OpensOnThePositionOfTheRecord) {
  for (const QuadrantRow& row : kQuadrants) {
    CPositionDlg dialog(world.services, {"34", "56", "138", "05", row.quadrant}, "5", {});
    dialog.open();
    EXPECT_EQ(dialog.latitude_degrees.content, "34");
    EXPECT_EQ(dialog.latitude_minutes.selected_text(), "56");
    EXPECT_EQ(dialog.longitude_degrees.content, "138");
    EXPECT_EQ(dialog.longitude_minutes.selected_text(), "05");
    EXPECT_EQ(dialog.latitude_side.selected, row.latitude);
    EXPECT_EQ(dialog.longitude_side.selected, row.longitude);
    EXPECT_FALSE(dialog.last_report_hint.visible) << "the record's own quadrant needs no hint";
    dialog.press(dialog.ok);
    EXPECT_EQ(dialog.values(), (Values{"34", "56", "138", "05", row.quadrant}));
  }
}

TEST_F(PositionScreen, OffersTheHemispheresOfTheLastReportAndSaysSo) {
  for (const QuadrantRow& row : kQuadrants) {
    CPositionDlg dialog(world.services, {}, row.quadrant, {});
    dialog.open();
    EXPECT_EQ(dialog.latitude_side.selected, row.latitude);
    EXPECT_EQ(dialog.longitude_side.selected, row.longitude);
    EXPECT_TRUE(dialog.last_report_hint.visible);
    dialog.choose(dialog.latitude_side, 1);
    EXPECT_TRUE(dialog.last_report_hint.visible) << "the longitude is still the last report's";
    dialog.choose(dialog.longitude_side, 0);
    EXPECT_FALSE(dialog.last_report_hint.visible);
  }
}

// Every combination of what was chosen on the form, the record's quadrant and the last report's.
TEST_F(PositionScreen, OffersTheLastReportsSideOnlyWhereNobodyChose) {
  for (const std::string last : {"", "1", "3", "5", "7"}) {
    for (const int latitude : {-1, 0, 1}) {
      for (const int longitude : {-1, 0, 1}) {
        const auto last_row =
            std::find_if(std::begin(kQuadrants), std::end(kQuadrants),
                         [&](const QuadrantRow& r) { return last == r.quadrant; });
        const bool none = last_row == std::end(kQuadrants);
        const int last_latitude = none ? -1 : last_row->latitude;
        const int last_longitude = none ? -1 : last_row->longitude;
        CPositionDlg dialog(world.services, {"34", "56", "138", "05", ""}, last, {},
                            {latitude, longitude});
        dialog.open();
        SCOPED_TRACE(last + " " + std::to_string(latitude) + " " + std::to_string(longitude));
        EXPECT_EQ(dialog.latitude_side.selected, latitude < 0 ? last_latitude : latitude);
        EXPECT_EQ(dialog.longitude_side.selected, longitude < 0 ? last_longitude : longitude);
        EXPECT_EQ(dialog.last_report_hint.visible, !none && (latitude < 0 || longitude < 0));
        if (none) continue;
        const text::Id hint = longitude >= 0  ? id::kLastLatitudeSideHint
                              : latitude >= 0 ? id::kLastLongitudeSideHint
                                              : id::kLastReportHint;
        if (latitude < 0 || longitude < 0) {
          EXPECT_EQ(dialog.caption(dialog.last_report_hint),
                    text::bilingual(hint, text::Language::kEnglish));
        }
        // Choosing what was offered takes the hint away; the officer's own side never had one.
        if (latitude < 0) dialog.choose(dialog.latitude_side, last_latitude);
        if (longitude < 0) dialog.choose(dialog.longitude_side, last_longitude);
        EXPECT_FALSE(dialog.last_report_hint.visible);
        dialog.press(dialog.ok);
        const int shown[] = {dialog.latitude_side.selected, dialog.longitude_side.selected};
        for (const QuadrantRow& row : kQuadrants) {
          if (row.latitude == shown[0] && row.longitude == shown[1]) {
            EXPECT_EQ(dialog.values().Qc, row.quadrant);
          }
        }
      }
    }
  }
}

TEST_F(PositionScreen, AssumesNoHemisphereWithoutAReport) {
  for (const char* none : {"", "0", "2", "x", "11"}) {
    CPositionDlg dialog(world.services, {"34", "56", "138", "05", none}, none, {});
    dialog.open();
    EXPECT_EQ(dialog.latitude_side.selected, -1) << none;
    EXPECT_EQ(dialog.longitude_side.selected, -1) << none;
    EXPECT_FALSE(dialog.last_report_hint.visible) << none;
  }
}

struct PositionRefusal {
  Values in;
  text::Id message;
  const char* focus;
};

TEST_F(PositionScreen, OkRefusesAMissingOrImpossiblePartAndAHemisphereNobodyChose) {
  const PositionRefusal rows[] = {
      {{"", "56", "138", "05", "1"}, text::Id(35018), "latitude_degrees"},
      {{"91", "56", "138", "05", "1"}, text::Id(35018), "latitude_degrees"},
      {{"34", "", "138", "05", "1"}, text::Id(35019), "latitude_minutes"},
      {{"34", "60", "138", "05", "1"}, text::Id(35019), "latitude_minutes"},
      {{"34", "56", "", "05", "1"}, text::Id(35020), "longitude_degrees"},
      {{"34", "56", "181", "05", "1"}, text::Id(35020), "longitude_degrees"},
      {{"34", "56", "138", "", "1"}, text::Id(35021), "longitude_minutes"},
      {{"34", "56", "138", "//", "1"}, text::Id(35021), "longitude_minutes"},
      {{"90", "01", "138", "05", "1"}, id::kBeyondThePole, "latitude_minutes"},
      {{"34", "56", "180", "01", "1"}, id::kBeyondTheDateLine, "longitude_minutes"},
      {{"34", "56", "138", "05", ""}, id::kNoLatitudeSide, "latitude_side"},
  };
  land = true;
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    world.texts.language = language;
    for (const PositionRefusal& row : rows) {
      CPositionDlg dialog(world.services, row.in, "", land_test());
      dialog.open();
      const std::string before = fakes::dump(dialog);
      world.windows.expect(row.message);
      dialog.press(dialog.ok);
      EXPECT_FALSE(dialog.result()) << row.message;
      EXPECT_EQ(fakes::dump(dialog), before) << row.message;
      EXPECT_EQ(dialog.values(), row.in) << row.message;
      EXPECT_EQ(dialog.focused(), dialog.find(row.focus)) << row.message;
      EXPECT_EQ(world.windows.boxes.back().text, text::bilingual(row.message, language));
    }
  }
  EXPECT_TRUE(asked.empty()) << "an incomplete position is not looked up";
}

TEST_F(PositionScreen, OkAsksForTheSideOfTheMeridianToo) {
  CPositionDlg dialog(world.services, {"34", "56", "138", "05", ""}, "", {});
  dialog.open();
  dialog.choose(dialog.latitude_side, 0);
  const std::string before = fakes::dump(dialog);
  world.windows.expect(id::kNoLongitudeSide);
  dialog.press(dialog.ok);
  EXPECT_FALSE(dialog.result());
  EXPECT_EQ(fakes::dump(dialog), before);
  EXPECT_EQ(dialog.focused(), &dialog.longitude_side);
}

TEST_F(PositionScreen, LeavingATypedPartOutOfRangeRefusesIt) {
  const std::pair<const char*, std::pair<const char*, text::Id>> rows[] = {
      {"latitude_degrees", {"91", text::Id(35018)}},
      {"latitude_degrees", {"-1", text::Id(35018)}},
      {"latitude_degrees", {"x", text::Id(35018)}},
      {"latitude_minutes", {"60", text::Id(35019)}},
      {"longitude_degrees", {"181", text::Id(35020)}},
      {"longitude_degrees", {"1 2", text::Id(35020)}},
      {"longitude_minutes", {"60", text::Id(35021)}},
      {"longitude_minutes", {"9.", text::Id(35021)}},
  };
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    world.texts.language = language;
    for (const auto& [name, what] : rows) {
      CPositionDlg dialog(world.services, {"34", "56", "138", "05", "1"}, "", {});
      dialog.open();
      fakes::enter(dialog, *dialog.find(name), what.first);
      const std::string before = fakes::dump(dialog);
      world.windows.expect(what.second);
      EXPECT_FALSE(dialog.move_focus(dialog.ok)) << what.first;
      EXPECT_EQ(fakes::dump(dialog), before) << what.first;
      EXPECT_EQ(dialog.focused(), dialog.find(name));
      EXPECT_EQ(world.windows.boxes.back().text, text::bilingual(what.second, language));
    }
  }
}

TEST_F(PositionScreen, RangeMessagesAreAsGiven) {
  const std::pair<text::Id, const char*> rows[] = {
      {text::Id{35018}, "Error: Input data is out of range.\nIt must be \"00<=Latitude(deg)<=90\""},
      {text::Id{35019}, "Error: Input data is out of range.\nIt must be \"00<=Latitude(min)<=59\""},
      {text::Id{35020},
       "Error: Input data is out of range.\nIt must be \"000<=Longitude(deg)<=180\""},
      // It says latitude, and has always said so.
      {text::Id{35021}, "Error: Input data is out of range.\nIt must be \"00<=Latitude(min)<=59\""},
      {text::Id{37011}, "Waning: Ship's position is on land or coastal region.\nIs it correct "}};
  for (const auto& [message, english] : rows) {
    EXPECT_EQ(text::bilingual(message, text::Language::kEnglish), english);
    EXPECT_NE(text::bilingual(message, text::Language::kJapanese), english);
  }
  EXPECT_NE(text::bilingual(text::Id{35021}, text::Language::kJapanese).find("経度"),
            std::string::npos);
}

TEST_F(PositionScreen, PositionOnLandIsKeptOnYesOnly) {
  land = true;
  const Values before{"", "", "", "", ""};
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    world.texts.language = language;
    for (const std::string answer : {"yes", "no", "close"}) {
      CPositionDlg dialog(world.services, before, "1", land_test());
      dialog.open();
      fakes::enter(dialog, dialog.latitude_degrees, "35");
      fakes::enter(dialog, dialog.latitude_minutes, "00");
      fakes::enter(dialog, dialog.longitude_degrees, "139");
      fakes::enter(dialog, dialog.longitude_minutes, "00");
      dialog.move_focus(dialog.ok);
      const std::string state = fakes::dump(dialog);
      world.windows.expect(text::Id{37011}, answer);
      dialog.press(dialog.ok);
      if (answer == "yes") {
        EXPECT_EQ(dialog.result(), ui::kOk);
        EXPECT_EQ(dialog.values(), (Values{"35", "00", "139", "00", "1"}));
      } else {
        EXPECT_FALSE(dialog.result());
        EXPECT_EQ(dialog.values(), before);
        EXPECT_EQ(fakes::dump(dialog), state);
        EXPECT_EQ(dialog.focused(), &dialog.latitude_degrees);
      }
    }
  }
}

TEST_F(PositionScreen, LandTestGetsSignedDegreesAndAPositionAtSeaIsNotAsked) {
  const double latitudes[] = {10.5, -10.5, -10.5, 10.5};
  const double longitudes[] = {20.75, 20.75, -20.75, -20.75};
  for (std::size_t i = 0; i < 4; ++i) {
    CPositionDlg dialog(world.services, {"10", "30", "020", "45", kQuadrants[i].quadrant}, "",
                        land_test());
    dialog.open();
    dialog.press(dialog.ok);
    EXPECT_EQ(dialog.result(), ui::kOk);
    ASSERT_EQ(asked.size(), i + 1);
    EXPECT_DOUBLE_EQ(asked.back().first, latitudes[i]);
    EXPECT_DOUBLE_EQ(asked.back().second, longitudes[i]);
  }
}

TEST_F(PositionScreen, CancelHandsBackWhatWasHandedIn) {
  const Values in{"34", "56", "138", "05", "1"};
  CPositionDlg dialog(world.services, in, "5", land_test());
  dialog.open();
  fakes::enter(dialog, dialog.latitude_degrees, "99");
  dialog.press(dialog.cancel);
  EXPECT_EQ(dialog.result(), ui::kCancel);
  EXPECT_EQ(dialog.values(), in);
  EXPECT_TRUE(asked.empty());
}

TEST_F(PositionScreen, HelpOpensItsTopic) {
  CPositionDlg dialog(world.services, {}, "", {});
  dialog.open();
  checks::help_opens(world, dialog, dialog.help, "11-2");
}

}  // namespace
