// Which part of the globe the map shows, and where the ship's arrow leads on it.

#include "map/map_view.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace {

using map::Place;
using map::ShipOnMap;
using map::Step;

constexpr Step kAllSteps[] = {Step::kTile, Step::kTenDegrees, Step::kFiveDegrees, Step::kOneDegree};

// Every tenth degree of the globe, its rims, the limits of tiles and just beside them.
std::vector<Place> places() {
  std::vector<Place> all;
  for (const double latitude : {90.0, 89.9, 84.0, 70.0, 55.5, 40.01, 40.0, 39.99, 35.0, 10.0, 0.0,
                                -9.99, -10.0, -30.0, -59.9, -60.0, -75.0, -89.9, -90.0}) {
    for (const double longitude : {-180.0, -179.9, -140.0, -100.01, -20.0, -0.1, 0.0, 19.9, 20.0,
                                   139.75, 140.0, 179.9, 180.0})
      all.push_back({latitude, longitude});
  }
  return all;
}

TEST(MapView, HoldsTheShipWellWithinItsRim) {
  for (const Place& ship : places()) {
    for (const Step step : kAllSteps) {
      const map::MapView view = map::view_around(ship, step);
      // An eighth of the height beyond the pole itself, more elsewhere.
      const double rim = 0.12 * view.height();
      EXPECT_GE(ship.latitude, view.south + rim) << ship.latitude << " " << static_cast<int>(step);
      EXPECT_LE(ship.latitude, view.north - rim) << ship.latitude << " " << static_cast<int>(step);
      // In the middle of a room that is higher than wide.
      EXPECT_NEAR(view.near_middle(ship.longitude), view.middle(), 1e-9)
          << ship.latitude << " " << ship.longitude << " " << static_cast<int>(step);
    }
  }
}

TEST(MapView, KeepsShapesInItsMiddleAndNeverShowsTheGlobeTwice) {
  for (const Place& ship : places()) {
    for (const Step step : kAllSteps) {
      const map::MapView view = map::view_around(ship, step);
      const double middle = (view.south + view.north) / 2;
      EXPECT_DOUBLE_EQ(view.x_unit, std::cos(middle * std::acos(-1.0) / 180));
      EXPECT_GT(view.x_unit, 0);
      EXPECT_LE(view.east - view.west, 360.0);
      // The room on the main window is about twice as wide as high, and filled.
      EXPECT_GE((view.east - view.west) * view.x_unit, 1.9 * view.height())
          << ship.latitude << " " << static_cast<int>(step);
    }
  }
}

TEST(MapView, IsAsHighAsItsStep) {
  for (const Place& ship : places()) {
    EXPECT_NEAR(map::view_around(ship, Step::kTenDegrees).height(), 10, 1e-9);
    EXPECT_NEAR(map::view_around(ship, Step::kFiveDegrees).height(), 5, 1e-9);
    EXPECT_NEAR(map::view_around(ship, Step::kOneDegree).height(), 1, 1e-9);
    const double sheet = ship.latitude <= -60 ? 30 : 50;
    EXPECT_NEAR(map::view_around(ship, Step::kTile).height(), sheet, 1e-9) << ship.latitude;
  }
}

TEST(MapView, StaysOnTheTileWhileTheShipIsWellWithin) {
  const map::MapView view = map::view_around({15, 120}, Step::kTile);
  EXPECT_DOUBLE_EQ(view.south, -10);
  EXPECT_DOUBLE_EQ(view.north, 40);
  const map::MapView moved = map::view_around({20, 124}, Step::kTile);
  EXPECT_DOUBLE_EQ(moved.south, -10);
  EXPECT_DOUBLE_EQ(moved.north, 40);
  EXPECT_DOUBLE_EQ(map::view_around({28, 124}, Step::kTile).south, -7);
}

TEST(MapView, IsAroundTheShipInEveryOtherStep) {
  for (const Step step : {Step::kTenDegrees, Step::kFiveDegrees, Step::kOneDegree}) {
    const map::MapView view = map::view_around({-17.5, 179.8}, step);
    EXPECT_DOUBLE_EQ((view.south + view.north) / 2, -17.5);
    EXPECT_NEAR(view.middle(), 179.8, 1e-9);
    EXPECT_GT(view.east, 180);  // on over the date line
  }
}

TEST(MapView, OfTheDateLineIsOneForEastAndWest) {
  for (const Step step : kAllSteps) {
    const map::MapView east = map::view_around({-17.5, 180}, step);
    const map::MapView west = map::view_around({-17.5, -180}, step);
    EXPECT_EQ(east.west, west.west);
    EXPECT_EQ(east.east, west.east);
  }
}

TEST(MapView, TurnsALongitudeToTheSideOfItsMiddle) {
  const map::MapView view = map::view_around({0, 179}, Step::kTenDegrees);
  EXPECT_NEAR(view.near_middle(-179), 181, 1e-9);
  EXPECT_NEAR(view.near_middle(178), 178, 1e-9);
}

// ---- The arrow

ShipOnMap ship_at(Place at, double course, double speed) {
  return {at, course, speed};
}

TEST(Arrow, LeadsWhereTheCourseLeads) {
  constexpr struct {
    double course;
    int right;
    int up;
  } kRows[] = {{0, 0, 1},     {45, 1, 1},   {90, 1, 0},   {135, 1, -1}, {180, 0, -1},
               {225, -1, -1}, {270, -1, 0}, {315, -1, 1}, {360, 0, 1}};
  for (const auto& row : kRows) {
    const Place at{35, 179.9};
    const map::MapView view = map::view_around(at, Step::kTenDegrees);
    const auto arrow = map::arrow_of(ship_at(at, row.course, 15), view);
    ASSERT_TRUE(arrow);
    const double right = (arrow->end.longitude - view.near_middle(at.longitude)) * view.x_unit;
    const double up = arrow->end.latitude - at.latitude;
    // 15 knots for 6 hours are 90 miles, a degree and a half.
    EXPECT_NEAR(std::hypot(right, up), 1.5, 1e-9) << row.course;
    const double each = row.right != 0 && row.up != 0 ? std::sqrt(0.5) : 1.0;
    EXPECT_NEAR(right, 1.5 * each * row.right, 1e-9) << row.course;
    EXPECT_NEAR(up, 1.5 * each * row.up, 1e-9) << row.course;
    EXPECT_TRUE(arrow->is_run);
  }
}

// Away from the middle of the map the ship goes by the map's meridians and parallels all the same:
// on 45 degrees she makes as many miles to the east as to the north.
TEST(Arrow, GoesByTheMapsOwnCoast) {
  const Place at{60, 10};
  const map::MapView view = map::view_around(at, Step::kTile);
  const auto arrow = map::arrow_of(ship_at(at, 45, 12), view);
  ASSERT_TRUE(arrow);
  const double miles_up = arrow->end.latitude - at.latitude;
  const double miles_right =
      (arrow->end.longitude - at.longitude) * std::cos(60 * std::acos(-1.0) / 180);
  EXPECT_NEAR(miles_right, miles_up, 1e-9);
}

TEST(Arrow, IsReadInEveryStepAndAtEverySpeed) {
  for (const Place& at : places()) {
    for (const Step step : kAllSteps) {
      const map::MapView view = map::view_around(at, step);
      for (const double speed : {0.1, 3.0, 15.0, 25.0, 99.0}) {
        for (const double course : {0.0, 33.0, 90.0, 271.0}) {
          const auto arrow = map::arrow_of(ship_at(at, course, speed), view);
          ASSERT_TRUE(arrow);
          const double right =
              (arrow->end.longitude - view.near_middle(at.longitude)) * view.x_unit;
          const double length = std::hypot(right, arrow->end.latitude - at.latitude);
          EXPECT_GE(length, 0.0999 * view.height());
          EXPECT_LE(length, 0.3001 * view.height());
          const double run = speed * view.arrow_hours / 60;
          EXPECT_EQ(arrow->is_run, std::abs(run - length) < 1e-6) << at.latitude << " " << speed;
        }
      }
      // A usual ship's is neither stretched nor cut.
      EXPECT_TRUE(map::arrow_of(ship_at(at, 90, 15), view)->is_run);
    }
  }
}

TEST(Arrow, IsNoneWithoutCourseOrSpeedOrWay) {
  const Place at{35, 140};
  const map::MapView view = map::view_around(at, Step::kTile);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinite = std::numeric_limits<double>::infinity();
  EXPECT_FALSE(map::arrow_of({at, std::nullopt, 12.0}, view));
  EXPECT_FALSE(map::arrow_of({at, 90.0, std::nullopt}, view));
  EXPECT_FALSE(map::arrow_of({std::nullopt, 90.0, 12.0}, view));
  for (const double speed : {0.0, -1.0, nan, infinite})
    EXPECT_FALSE(map::arrow_of({at, 90.0, speed}, view)) << speed;
  EXPECT_FALSE(map::arrow_of({at, nan, 12.0}, view));
}

}  // namespace
