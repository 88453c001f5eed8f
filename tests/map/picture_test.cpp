// The map on the main window, and the larger one that it opens.

#include "map/CPictureStatic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "fakes/fake_ports.h"
#include "fakes/sample_sea_map.h"
#include "map/CSeaMapDlg.h"
#include "text/ids.h"
#include "ui/dump.h"

namespace id = text::id;

namespace {

using map::Place;
using map::ShipOnMap;

class CMapOwnerDlg : public ui::Screen {
 public:
  CMapOwnerDlg(ui::Services& services, map::SeaMap& sea_map)
      : Screen(services, "CMapOwnerDlg", {id::kMapTitle}),
        picture(*this, "map", {id::kMapTitle}, services, sea_map) {
    field.on_leave = [this] { return field.content != "bad"; };
  }
  ui::Edit field{*this, "field"};
  ui::Edit other{*this, "other"};
  CPictureStatic picture;
};

class ThePicture : public testing::Test {
 protected:
  ThePicture() { screen.open(); }
  fakes::SampleSeaMap sample;
  fakes::World world;
  CMapOwnerDlg screen{world.services, sample.sea_map};
};

const ShipOnMap kShip{Place{33, 141}, 90, 15, {{32, 138}}};

TEST_F(ThePicture, IsEmptyWithoutAPosition) {
  ASSERT_NE(screen.picture.drawing, nullptr);
  EXPECT_TRUE(screen.picture.drawing->shapes.empty());
  EXPECT_TRUE(screen.picture.drawing->ground.empty());
  screen.picture.show(kShip);
  EXPECT_FALSE(screen.picture.drawing->shapes.empty());
  screen.picture.show({});
  EXPECT_TRUE(screen.picture.drawing->shapes.empty());
  EXPECT_TRUE(screen.picture.drawing->ground.empty());
}

TEST_F(ThePicture, IsEmptyForAPositionThatIsNone) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinite = std::numeric_limits<double>::infinity();
  for (const Place none : {Place{nan, 0}, Place{0, nan}, Place{infinite, 0}, Place{0, -infinite},
                           Place{90.1, 0}, Place{-91, 0}}) {
    screen.picture.show({none, 90, 15, {}});
    EXPECT_TRUE(screen.picture.drawing->shapes.empty());
    screen.picture.show({Place{33, 141}, {}, {}, {none}});
    EXPECT_EQ(screen.picture.drawing->shapes.size(), 1U);  // the ship, no track
  }
}

TEST_F(ThePicture, AlwaysHasRoom) {
  const int characters = screen.picture.drawing->characters;
  const int lines = screen.picture.drawing->lines;
  screen.picture.show(kShip);
  EXPECT_EQ(screen.picture.drawing->characters, characters);
  EXPECT_EQ(screen.picture.drawing->lines, lines);
}

TEST_F(ThePicture, IsDrawnAnewOnlyWhenSomethingDiffers) {
  screen.picture.show(kShip);
  const auto before = screen.picture.drawing;
  screen.picture.show(kShip);
  EXPECT_EQ(screen.picture.drawing, before);
  ShipOnMap moved = kShip;
  const auto differs = [&] {
    const auto was = screen.picture.drawing;
    screen.picture.show(moved);
    return screen.picture.drawing != was;
  };
  moved.at->latitude += 1;
  EXPECT_TRUE(differs());
  moved.course = 91;
  EXPECT_TRUE(differs());
  moved.speed.reset();
  EXPECT_TRUE(differs());
  moved.track.clear();
  EXPECT_TRUE(differs());
  EXPECT_FALSE(differs());
  world.japanese();
  EXPECT_TRUE(differs());
  EXPECT_FALSE(differs());
}

TEST_F(ThePicture, TakesNoFocus) {
  EXPECT_FALSE(screen.picture.can_focus());
  screen.key(ui::Key::kTab);
  EXPECT_EQ(screen.focused(), &screen.other);
  screen.key(ui::Key::kTab);
  EXPECT_EQ(screen.focused(), &screen.field);
}

TEST_F(ThePicture, OpensTheLargerOneByAClickAndByItsKey) {
  screen.picture.show(kShip);
  EXPECT_EQ(screen.pressed_by("F7"), &screen.picture);
  int opened = 0;
  const auto closes = [&](ui::Screen& larger) {
    ++opened;
    larger.key(ui::Key::kEscape);
  };
  world.windows.expect_screen("CSeaMapDlg", closes);
  screen.press_at(screen.picture, {141, 33});
  EXPECT_EQ(opened, 1);
  world.windows.expect_screen("CSeaMapDlg", closes);
  screen.press(*screen.pressed_by("F7"));
  EXPECT_EQ(opened, 2);
  EXPECT_EQ(screen.focused(), &screen.field);
}

TEST_F(ThePicture, ChecksTheFieldBeforeItOpens) {
  screen.picture.show(kShip);
  screen.type(screen.field, "bad");
  screen.press(screen.picture);
  EXPECT_EQ(screen.focused(), &screen.field);
}

TEST_F(ThePicture, TellsThatThereIsNoPosition) {
  world.windows.expect(id::kMapNoPosition);
  screen.press(screen.picture);
  world.japanese();
  world.windows.expect(id::kMapNoPosition);
  screen.press(screen.picture);
}

// ---- The larger map

class TheLargerMap : public testing::Test {
 protected:
  fakes::SampleSeaMap sample;
  fakes::World world;
  [[nodiscard]] static double height(const CSeaMapDlg& larger) {
    return larger.picture.drawing->y.last - larger.picture.drawing->y.first;
  }
};

TEST_F(TheLargerMap, StepsInAndOutAroundTheShip) {
  CSeaMapDlg larger(world.services, sample.sea_map, kShip);
  larger.open();
  EXPECT_EQ(larger.focused(), &larger.shown);
  EXPECT_NEAR(height(larger), 10, 1e-9);
  const auto plus = [&] { larger.press(*larger.pressed_by("+")); };
  const auto minus = [&] { larger.press(*larger.pressed_by("-")); };
  plus();
  EXPECT_NEAR(height(larger), 5, 1e-9);
  EXPECT_EQ(larger.shown.selected_text(), "5 degrees");
  plus();
  EXPECT_NEAR(height(larger), 1, 1e-9);
  plus();
  EXPECT_NEAR(height(larger), 1, 1e-9);
  EXPECT_EQ(larger.shown.selected_text(), "1 degree");
  for (int i = 0; i < 3; ++i) minus();
  EXPECT_NEAR(height(larger), 50, 1e-9);
  EXPECT_EQ(larger.shown.selected_text(), "whole sheet");
  minus();
  EXPECT_NEAR(height(larger), 50, 1e-9);
  EXPECT_EQ(larger.focused(), &larger.shown);
  larger.key(ui::Key::kDown);
  EXPECT_NEAR(height(larger), 10, 1e-9);
  larger.key(ui::Key::kEnd);
  EXPECT_NEAR(height(larger), 1, 1e-9);
  larger.choose(larger.shown, -1);  // no line
  EXPECT_NEAR(height(larger), 50, 1e-9);
}

TEST_F(TheLargerMap, TellsWhereTheShipIsAndWhatALengthIs) {
  CSeaMapDlg larger(world.services, sample.sea_map, kShip);
  larger.open();
  EXPECT_EQ(larger.caption(larger.position), "Position 33°N 141°E");
  EXPECT_EQ(
      larger.caption(larger.legend),
      "Not for navigation. From south to north 600 nautical miles. The arrow is the run of 6 h.");
  larger.key(ui::Key::kHome);
  EXPECT_EQ(
      larger.caption(larger.legend),
      "Not for navigation. From south to north 3000 nautical miles. The arrow is the run of 24 h.");
  larger.key(ui::Key::kEnd);
  EXPECT_EQ(
      larger.caption(larger.legend),
      "Not for navigation. From south to north 60 nautical miles. The arrow is the run of 1 h.");
}

TEST_F(TheLargerMap, DoesNotCallAnArrowARunThatIsNone) {
  ShipOnMap slow = kShip;
  slow.speed = 1;
  CSeaMapDlg larger(world.services, sample.sea_map, slow);
  larger.open();
  EXPECT_EQ(larger.caption(larger.legend),
            "Not for navigation. From south to north 600 nautical miles. The arrow is the course.");
  slow.speed.reset();
  CSeaMapDlg still(world.services, sample.sea_map, slow);
  still.open();
  EXPECT_EQ(still.caption(still.legend),
            "Not for navigation. From south to north 600 nautical miles.");
}

TEST_F(TheLargerMap, SpeaksJapanese) {
  world.japanese();
  CSeaMapDlg larger(world.services, sample.sea_map, kShip);
  larger.open();
  EXPECT_EQ(larger.title(), "位置図");
  EXPECT_EQ(larger.shown.selected_text(), "10度");
  EXPECT_EQ(larger.caption(larger.position), "船位 33°N 141°E");
  EXPECT_EQ(larger.caption(larger.legend),
            "航海には使用しないこと。南北600海里。矢印は6時間の航程。");
}

TEST_F(TheLargerMap, ClosesByEscapeAndEnterAndHasHelp) {
  for (const ui::Key key : {ui::Key::kEscape, ui::Key::kEnter}) {
    CSeaMapDlg larger(world.services, sample.sea_map, kShip);
    larger.open();
    larger.key(ui::Key::kF1);
    EXPECT_FALSE(larger.result());
    larger.key(key);
    EXPECT_TRUE(larger.result());
  }
  EXPECT_EQ(world.help_viewer.shown.size(), 2U);
}

TEST_F(TheLargerMap, OpensWhereThereIsNoMapAtAll) {
  fakes::FakeFiles files;
  map::SeaMap none(files, fakes::kSampleSeaMap);
  CSeaMapDlg larger(world.services, none, kShip);
  larger.open();
  EXPECT_NE(ui::dump(larger).find("\"no map\""), std::string::npos);
}

}  // namespace
