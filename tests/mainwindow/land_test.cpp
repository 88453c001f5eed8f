// The main window with a sea map: the question of the position screen, the review, and what is said
// of tiles that cannot be used.

#include <gtest/gtest.h>

#include "fakes/sample_sea_map.h"
#include "mainwindow/ship_on_map.h"
#include "mainwindow/window.h"
#include "ui/windows.h"

namespace {

namespace id = text::id;
using main_window::Opened;

using fakes::kSampleSeaMap;
// An island between 30 and 31 N, 150 and 151 E, and sea all around the globe.
constexpr map::Place kIsland{30.5, 150.5};

struct WithMap {
  WithMap() {
    for (const map::Tile& tile : map::all_tiles()) {
      std::vector<map::Ring> rings;
      if (tile == map::tile_of(kIsland))
        rings.push_back(fakes::ring_of(false, {150, 30, 151, 30, 151, 31, 150, 31}));
      files.add_file(path_of(tile), fakes::tile_text(tile, rings));
    }
  }
  static std::string path_of(const map::Tile& tile) {
    return std::string(kSampleSeaMap) + "\\" + map::file_name(tile);
  }
  fakes::FakeFiles files;
  map::SeaMap map{files, kSampleSeaMap};
  Opened opened{fakes::sample_ship(), {}, false, &map};

  void type_time(const char* hour = "12") {
    opened.type("Year", "2014");
    opened.type("Month", "11");
    opened.type("YY", "15");
    opened.type("GG", hour);
  }
  // North and east.
  void type_position(const char* la_deg, const char* la_min, const char* lo_deg,
                     const char* lo_min) {
    opened.choose("north_south", 0);
    opened.choose("east_west", 0);
    opened.type("LaDeg", la_deg);
    opened.type("LaMin", la_min);
    opened.type("LoDeg", lo_deg);
    opened.type("LoMin", lo_min);
  }
  void expect_review(const std::string& text) {
    opened.world.windows.expect_screen("CHour3ErrorDlg", [this, text](ui::Screen& screen) {
      EXPECT_EQ(screen.find("warnings")->content, text);
      ++reviews;
      screen.press(*screen.find("ok"));
    });
  }
  // The position screen with these figures, and OK pressed so often as there are answers to the
  // question, once where there is none.
  void expect_position(const char* la_deg, const char* la_min, const char* lo_deg,
                       const char* lo_min, std::vector<std::string> answers) {
    opened.world.windows.expect_screen("CPositionDlg", [=, this](ui::Screen& screen) {
      const std::pair<const char*, const char*> fields[] = {{"latitude_degrees", la_deg},
                                                            {"latitude_minutes", la_min},
                                                            {"longitude_degrees", lo_deg},
                                                            {"longitude_minutes", lo_min}};
      for (const auto& [name, text] : fields)
        ASSERT_TRUE(fakes::enter(screen, *screen.find(name), text)) << name;
      screen.choose(*screen.find("latitude_side"), 0);
      screen.choose(*screen.find("longitude_side"), 0);
      for (const std::string& answer : answers) {
        opened.world.windows.expect(text::Id{37011}, answer);
        screen.press(*screen.find("ok"));
        if (answer == "no") {
          EXPECT_FALSE(screen.result().has_value()) << "the screen stays open";
        }
      }
      if (answers.empty()) screen.press(*screen.find("ok"));
      if (!screen.result()) screen.press(*screen.find("cancel"));
    });
  }
  bool open_position() { return opened.window.open_element(1); }
  std::string position() {
    const Struct_Weather& record = opened.window.form().record();
    return record.LaDeg + " " + record.LaMin + " " + record.LoDeg + " " + record.LoMin;
  }

  int reviews = 0;
};

constexpr const char* kOnLand =
    "Waning: Ship's position is on land or coastal region.Is it correct \r\n";
constexpr const char* kMovedInLatitude =
    "Warning: Input data is out of standard range."
    "It takes normally the value of \"0.7<Change of latitude\".Is it correct \r\n";

TEST(Land, IsAskedAboutAndKeptOnlyOnYes) {
  WithMap ship;
  ship.expect_position("30", "30", "150", "30", {"no"});
  const std::string before = ship.opened.state();
  EXPECT_FALSE(ship.open_position());
  EXPECT_EQ(ship.opened.state(), before);

  ship.expect_position("30", "30", "150", "30", {"no", "yes"});
  EXPECT_TRUE(ship.open_position());  // and no review says it again
  EXPECT_EQ(ship.position(), "30 30 150 30");
}

TEST(Land, IsNotAskedAboutAgainForTheSamePosition) {
  WithMap ship;
  ship.expect_position("30", "30", "150", "30", {"yes"});
  EXPECT_TRUE(ship.open_position());
  ship.expect_position("30", "30", "150", "30", {});
  EXPECT_TRUE(ship.open_position());
  // Another one is, and then so is the first: the officer's Yes was for where the ship is.
  ship.expect_position("30", "31", "150", "30", {"yes"});
  EXPECT_TRUE(ship.open_position());
  ship.expect_position("30", "30", "150", "30", {"yes"});
  EXPECT_TRUE(ship.open_position());
}

TEST(Land, IsNoQuestionAtSeaAndOneWithinTwoMilesOfTheCoast) {
  WithMap ship;
  ship.expect_position("29", "57", "150", "30", {});
  EXPECT_TRUE(ship.open_position());
  ship.expect_position("29", "59", "150", "30", {"yes"});
  EXPECT_TRUE(ship.open_position());
}

TEST(Land, IsWarnedOfByTheReviewWhenThePositionIsTyped) {
  WithMap ship;
  ship.type_time();
  ship.expect_review(kOnLand);
  ship.type_position("30", "30", "150", "30");
  EXPECT_EQ(ship.reviews, 1);
  EXPECT_EQ(ship.position(), "30 30 150 30") << "a warning refuses nothing";
  // Nobody has confirmed it: a new hour is reviewed as well.
  ship.expect_review(kOnLand);
  ship.opened.type("GG", "15");
  EXPECT_EQ(ship.reviews, 2);
}

TEST(Land, StandsBeforeTheMovementInOneReview) {
  WithMap ship;
  ship.opened.files.add_file("C:\\out\\14111509.tlx", "BBXX JXKV 15094 99280 11505 41498 52710");
  ship.type_time();
  ship.expect_review(std::string(kOnLand) + kMovedInLatitude);
  ship.type_position("30", "30", "150", "30");
  EXPECT_EQ(ship.reviews, 1);
}

TEST(Land, ThatWasConfirmedIsToldBesideAMovementOnly) {
  WithMap ship;
  ship.opened.files.add_file("C:\\out\\14111509.tlx", "BBXX JXKV 15094 99280 11505 41498 52710");
  ship.expect_position("30", "30", "150", "30", {"yes"});
  EXPECT_TRUE(ship.open_position());  // no date yet, so nothing to compare with, and no review
  ship.expect_review(std::string(kOnLand) + kMovedInLatitude);
  ship.type_time();
  EXPECT_EQ(ship.reviews, 1);
}

TEST(Land, IsNotKnownWithoutAMap) {
  Opened opened;
  opened.world.windows.expect_screen("CPositionDlg", [](ui::Screen& screen) {
    for (const auto& [name, text] :
         {std::pair{"latitude_degrees", "30"}, std::pair{"latitude_minutes", "30"},
          std::pair{"longitude_degrees", "150"}, std::pair{"longitude_minutes", "30"}})
      ASSERT_TRUE(fakes::enter(screen, *screen.find(name), text));
    screen.choose(*screen.find("latitude_side"), 0);
    screen.choose(*screen.find("longitude_side"), 0);
    screen.press(*screen.find("ok"));
  });
  EXPECT_TRUE(opened.window.open_element(1));
  EXPECT_EQ(opened.window.find("position_map"), nullptr);
}

TEST(SeaMapTrouble, IsToldOnceForATileAndStopsNothing) {
  WithMap ship;
  ASSERT_EQ(ship.files.remove("C:\\kavrel\\SeaMap\\E020N40.src"), platform::FileError::kNone);
  ship.opened.world.windows.expect(id::kSeaMapUnusable);
  ship.type_position("10", "30", "050", "30");
  ASSERT_EQ(ship.opened.world.windows.boxes.size(), 1U);
  const std::string& told = ship.opened.world.windows.boxes[0].text;
  EXPECT_NE(told.find("C:\\kavrel\\SeaMap\\E020N40.src"), std::string::npos) << told;
  EXPECT_NE(told.find("no such file"), std::string::npos) << told;
  EXPECT_EQ(ship.position(), "10 30 050 30");
  ship.opened.type("LaMin", "31");
  ship.opened.type("LoMin", "31");
  EXPECT_EQ(ship.opened.world.windows.boxes.size(), 1U);
}

TEST(SeaMapTrouble, IsOneWhereTheWholeFolderIsAway) {
  fakes::FakeFiles files;
  map::SeaMap map(files, kSampleSeaMap);
  EXPECT_EQ(map.at({10, 50}), map::Land::kNotKnown);
  EXPECT_EQ(map.at({10, 100}), map::Land::kNotKnown);
  const auto troubles = map.take_troubles();
  ASSERT_EQ(troubles.size(), 1U);
  EXPECT_EQ(troubles[0].path, kSampleSeaMap);
  EXPECT_EQ(troubles[0].error, platform::FileError::kNotFound);
  EXPECT_EQ(map.at({-10, 150}), map::Land::kNotKnown);
  EXPECT_TRUE(map.take_troubles().empty());
}

TEST(SeaMapTrouble, NamesADamagedTile) {
  WithMap ship;
  const map::Place red_sea{15, 41};
  ship.files.add_file("C:\\kavrel\\SeaMap\\E020N40.src",
                      fakes::tile_text(map::tile_of(red_sea), {}) + "x");
  ship.opened.world.windows.expect(id::kSeaMapUnusable);
  ship.type_position("10", "30", "050", "30");
  ASSERT_EQ(ship.opened.world.windows.boxes.size(), 1U);
  EXPECT_NE(ship.opened.world.windows.boxes[0].text.find("damaged"), std::string::npos);
}

// ---- What the map shows

TEST(ShipOnMap, IsEmptyWithoutAWholePosition) {
  WithMap ship;
  ship.opened.choose("north_south", 0);
  ship.opened.choose("east_west", 0);
  for (const auto& [name, text] :
       {std::pair{"LaDeg", "30"}, std::pair{"LaMin", "30"}, std::pair{"LoDeg", "160"}}) {
    ship.opened.type(name, text);
    EXPECT_FALSE(mainwindow::ship_on_map(ship.opened.window.form(), {}).at.has_value()) << name;
  }
  ship.opened.type("LoMin", "06");
  const auto shown = mainwindow::ship_on_map(ship.opened.window.form(), {});
  ASSERT_TRUE(shown.at.has_value());
  EXPECT_EQ(*shown.at, (map::Place{30.5, 160.1}));
}

TEST(ShipOnMap, IsSouthAndWestOfZeroByItsHemispheres) {
  WithMap ship;
  ship.opened.choose("north_south", 1);
  ship.opened.choose("east_west", 1);
  for (const auto& [name, text] : {std::pair{"LaDeg", "30"}, std::pair{"LaMin", "30"},
                                   std::pair{"LoDeg", "100"}, std::pair{"LoMin", "15"}})
    ship.opened.type(name, text);
  EXPECT_EQ(mainwindow::ship_on_map(ship.opened.window.form(), {}).at,
            (map::Place{-30.5, -100.25}));
}

TEST(ShipOnMap, TakesCourseAndSpeedOfTheApparentWindBeforeTheirCodes) {
  ShipFixedData with = fakes::sample_ship();
  with.wind_input_method = WindInputMethod::kApparentWind;
  with.wind_speed_method = WindSpeedMethod::kAnemometer;
  Opened opened(with);
  const struct {
    const char* ds;
    const char* vs;
    const char* course;
    const char* speed;
    std::optional<double> course_shown;
    std::optional<double> speed_shown;
  } rows[] = {
      {"", "", "", "", {}, {}},
      {"1", "1", "", "", 45.0, 3.0},
      {"8", "9", "", "", 360.0, 43.0},
      {"0", "0", "", "", {}, 0.0},
      {"9", "4", "", "", {}, 18.0},
      {"/", "/", "", "", {}, {}},
      {"2", "2", "123", "14.5", 123.0, 14.5},
      {"2", "2", "123", "", 90.0, 8.0},
      {"2", "2", "", "14.5", 90.0, 8.0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.ds) + row.vs + " " + row.course + " " + row.speed);
    ShipFixedData ship = with;
    KeyObservationItems items;
    elements::ObservationForm form(ship, items, opened.world.clock);
    form.put({{elements::Field::kLaDeg, "30"},
              {elements::Field::kLaMin, "30"},
              {elements::Field::kLoDeg, "150"},
              {elements::Field::kLoMin, "30"}});
    form.choose_hemispheres(0, 0);
    form.put({{elements::Field::kDs, row.ds},
              {elements::Field::kVs, row.vs},
              {elements::Field::kCourse, row.course},
              {elements::Field::kShipSpeed, row.speed}});
    const auto shown = mainwindow::ship_on_map(form, {});
    EXPECT_EQ(shown.course, row.course_shown);
    EXPECT_EQ(shown.speed, row.speed_shown);
  }
}

// What is drawn besides the ship: specks of the track.
int specks(main_window::Opened& opened) {
  int found = 0;
  for (const ui::Shape& shape : opened.control("position_map").drawing->shapes) {
    const auto* const marker = std::get_if<ui::Marker>(&shape);
    if (marker != nullptr && marker->sign == ui::Marker::Sign::kSpeck) ++found;
  }
  return found;
}

TEST(ShipOnMap, TheTrackFollowsTheHourOfTheObservation) {
  WithMap ship;
  for (const char* const name : {"14111300", "14111412", "14111506", "14111509", "14111512"})
    ship.opened.files.add_file(std::string("C:\\out\\") + name + ".tlx",
                               "BBXX JXKV 15094 99305 11600 41498 52710");
  ship.type_time("12");
  ship.type_position("30", "30", "160", "06");
  EXPECT_EQ(specks(ship.opened), 3) << "not its own, which is being written again";
  ship.opened.type("GG", "09");
  EXPECT_EQ(specks(ship.opened), 2);
  ship.opened.type("YY", "20");
  EXPECT_EQ(specks(ship.opened), 0) << "another passage";
}

TEST(ShipOnMap, HasTheTrackFromTheOldestReportOn) {
  WithMap ship;
  ship.type_position("30", "30", "160", "06");
  const auto shown = mainwindow::ship_on_map(ship.opened.window.form(),
                                             {{7, 305, 1790}, {5, 10, 1799}, {1, 20, 1800}});
  EXPECT_EQ(shown.track, (std::vector<map::Place>{{2.0, 180.0}, {-1.0, -179.9}, {30.5, -179.0}}));
}

}  // namespace
