// What is drawn of a sea map: land and sea where they are, each coast once and no cut, the ship and
// her track, also where tiles are missing or odd.

#include "map/map_drawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "fakes/sample_sea_map.h"

namespace {

using map::Place;
using map::ShipOnMap;
using map::Step;
using ui::Ink;
using ui::Point;

constexpr Step kAllSteps[] = {Step::kTile, Step::kTenDegrees, Step::kFiveDegrees, Step::kOneDegree};
constexpr int kPixels = 400;

template <class Shape>
std::vector<Shape> all_of(const std::vector<ui::Shape>& shapes, Ink ink) {
  std::vector<Shape> found;
  for (const ui::Shape& shape : shapes) {
    if (const auto* const one = std::get_if<Shape>(&shape); one != nullptr && one->ink == ink)
      found.push_back(*one);
  }
  return found;
}

bool is_within(const std::vector<Point>& outline, Point at) {
  bool inside = false;
  Point from = outline.back();
  for (const Point to : outline) {
    if ((from.y >= at.y) != (to.y >= at.y) &&
        from.x + (at.y - from.y) / (to.y - from.y) * (to.x - from.x) > at.x)
      inside = !inside;
    from = to;
  }
  return inside;
}

// The ink of the last area of the ground that holds the point, as a painter leaves it.
std::string painted(const ui::Drawing& drawing, Point at) {
  std::string ink = "paper";
  for (const ui::Shape& shape : drawing.ground) {
    const auto* const area = std::get_if<ui::Area>(&shape);
    if (area != nullptr && is_within(area->outline, at)) ink = ui::name_of(area->ink);
  }
  return ink;
}

std::vector<std::string> names(const ui::Drawing& drawing) {
  std::vector<std::string> texts;
  for (const ui::ShortText& text : all_of<ui::ShortText>(drawing.ground, Ink::kText))
    texts.push_back(text.text);
  return texts;
}

class AMap : public testing::Test {
 protected:
  ui::Drawing draw(const ShipOnMap& ship, Step step, int pixels = kPixels) {
    return map::map_drawing(ship, map::view_around(*ship.at, step), pixels, sample.sea_map, texts);
  }
  ui::Drawing draw(Place at, Step step) { return draw(ShipOnMap{at, {}, {}}, step); }

  /// Another tile in the place of the one that bears this name.
  void put(const map::Tile& tile, const std::vector<map::Ring>& rings) {
    sample.files.add_file(std::string(fakes::kSampleSeaMap) + "\\" + map::file_name(tile),
                          fakes::tile_text(tile, rings));
  }

  fakes::SampleSeaMap sample;
  text::Texts texts;
};

TEST_F(AMap, HasLandAndSeaWhereTheyAre) {
  for (const Step step : kAllSteps) {
    const ui::Drawing drawing = draw({33, 136.3}, step);
    EXPECT_EQ(painted(drawing, {136.4, 33.2}), "land");
    EXPECT_EQ(painted(drawing, {135.9, 33.1}), "water");  // the lake
    if (step == Step::kOneDegree) continue;
    EXPECT_EQ(painted(drawing, {134.5, 32.5}), "water");
    EXPECT_EQ(painted(drawing, {136.3, 34.9}), "land");
  }
  const ui::Drawing sheet = draw({33, 136.3}, Step::kTile);
  EXPECT_EQ(painted(sheet, {141.9, 33}), "land");  // of the neighbour
  EXPECT_EQ(painted(sheet, {142.1, 33}), "water");
  EXPECT_EQ(painted(sheet, {120, 20}), "water");
}

TEST_F(AMap, GoesOnInTheNeighbouringTilesWithoutASeam) {
  const ui::Drawing drawing = draw({33, 140}, Step::kTenDegrees);
  for (const double x : {139.99, 139.9999, 140.0001, 140.01})
    EXPECT_EQ(painted(drawing, {x, 33}), "land") << x;
  // The cut along 140 E is no coast.
  for (const ui::Polyline& line : all_of<ui::Polyline>(drawing.ground, Ink::kCoast)) {
    for (std::size_t i = 0; i + 1 < line.points.size(); ++i)
      EXPECT_FALSE(line.points[i].x == 140 && line.points[i + 1].x == 140);
  }
}

TEST_F(AMap, StrokesTheWholeCoast) {
  const ui::Drawing drawing = draw({33, 140}, Step::kTile);
  double length = 0;
  for (const ui::Polyline& line : all_of<ui::Polyline>(drawing.ground, Ink::kCoast)) {
    for (std::size_t i = 0; i + 1 < line.points.size(); ++i)
      length += std::hypot(line.points[i + 1].x - line.points[i].x,
                           line.points[i + 1].y - line.points[i].y);
  }
  // 12 by 6 degrees, the lake's 3 by 2, and the triangle.
  EXPECT_NEAR(length, 2 * (12 + 6) + 2 * (3 + 2) + 2 + 2 * std::sqrt(5.0), 1e-6);
}

TEST_F(AMap, KeepsAnIslandThatIsTooSmallAsASpeck) {
  for (const Step step : {Step::kTile, Step::kTenDegrees, Step::kFiveDegrees}) {
    const auto specks = all_of<ui::Marker>(draw({25, 150.3}, step).ground, Ink::kCoast);
    ASSERT_EQ(specks.size(), 1U) << static_cast<int>(step);
    EXPECT_EQ(specks[0].sign, ui::Marker::Sign::kSpeck);
    EXPECT_NEAR(specks[0].at.x, 150, 0.01);
    EXPECT_NEAR(specks[0].at.y, 25, 0.01);
  }
  EXPECT_TRUE(all_of<ui::Marker>(draw({-20, -150}, Step::kTile).ground, Ink::kCoast).empty());
}

TEST_F(AMap, DrawsOneSpeckForManyRocksAtOnePlace) {
  std::vector<map::Ring> rocks;
  for (int i = 0; i < 100; ++i) {
    const double x = 150.5 + i * 0.0001;
    rocks.push_back(fakes::ring_of(false, {x, 5, x + 0.001, 5, x, 5.001}));
  }
  put(map::tile_of({5, 150.5}), rocks);
  EXPECT_EQ(all_of<ui::Marker>(draw({5, 151}, Step::kTile).ground, Ink::kCoast).size(), 1U);
}

TEST_F(AMap, IsThinnedToWhatCanBeSeen) {
  map::Ring wavy;
  constexpr int kPoints = 50000;
  for (int i = 0; i < kPoints; ++i) {
    const double angle = 2 * std::acos(-1.0) * i / kPoints;
    const double radius = 6000 + 3 * std::sin(angle * 4000);
    wavy.points.push_back({static_cast<std::int32_t>(150000 + radius * std::cos(angle)),
                           static_cast<std::int32_t>(10000 + radius * std::sin(angle))});
  }
  put(map::tile_of({10, 150}), {wavy});
  const ui::Drawing drawing = draw({10, 150}, Step::kTile);
  std::size_t points = 0;
  for (const ui::Area& area : all_of<ui::Area>(drawing.ground, Ink::kLand))
    points += area.outline.size();
  // A circle of 48 pixels radius.
  EXPECT_GT(points, 50U);
  EXPECT_LT(points, 600U);
  EXPECT_EQ(painted(drawing, {150, 10}), "land");
  EXPECT_EQ(painted(drawing, {155.7, 10}), "land");
  EXPECT_EQ(painted(drawing, {156.3, 10}), "water");
}

TEST_F(AMap, NamesTheLinesOfItsGraticule) {
  std::vector<std::string> expected = {"34°30′N", "34°40′N", "34°50′N",  "35°N",     "35°10′N",
                                       "35°20′N", "35°30′N", "138°30′E", "138°40′E", "138°50′E"};
  for (const char* const degrees : {"139°", "140°"}) {
    for (const char* const minutes : {"", "10′", "20′", "30′", "40′", "50′"})
      expected.push_back(std::string(degrees).append(minutes).append("E"));
  }
  for (const char* const last : {"141°E", "141°10′E", "141°20′E", "141°30′E"})
    expected.emplace_back(last);
  EXPECT_EQ(names(draw({35, 140}, Step::kOneDegree)), expected);
  const auto fiji = names(draw({-17, 179}, Step::kTenDegrees));
  for (const char* const name : {"12°S", "22°S", "174°E", "180°", "178°W"})
    EXPECT_NE(std::find(fiji.begin(), fiji.end(), name), fiji.end()) << name;
  const auto guinea = names(draw({0, 0}, Step::kFiveDegrees));
  for (const char* const name : {"2°S", "1°S", "0°", "1°N", "2°N", "1°W", "1°E"})
    EXPECT_NE(std::find(guinea.begin(), guinea.end(), name), guinea.end()) << name;
}

TEST_F(AMap, HasLinesAReadableWayApartInEveryStepAndPlace) {
  for (const double latitude : {-89.9, -75.0, -59.0, 0.0, 35.0, 66.0, 84.0, 90.0}) {
    for (const Step step : kAllSteps) {
      const ui::Drawing drawing = draw({latitude, 179.9}, step);
      std::vector<double> across;
      std::vector<double> up;
      for (const ui::Polyline& line : all_of<ui::Polyline>(drawing.ground, Ink::kFaint)) {
        ASSERT_EQ(line.points.size(), 2U);
        if (line.points[0].x == line.points[1].x)
          across.push_back(line.points[0].x * drawing.x_unit);
        else
          up.push_back(line.points[0].y);
        for (const Point end : line.points) EXPECT_LE(std::abs(end.y), 90);
      }
      const double height = drawing.y.last - drawing.y.first;
      ASSERT_GE(up.size(), 2U);
      ASSERT_GE(across.size(), 2U);
      EXPECT_LE(up.size(), 8U);
      for (const auto& lines : {across, up}) {
        for (std::size_t i = 0; i + 1 < lines.size(); ++i)
          EXPECT_GE(lines[i + 1] - lines[i], height / 8.1)
              << latitude << " " << static_cast<int>(step);
      }
    }
  }
}

// The edges of a view are sums: their difference is not always to the last bit the step's degrees.
TEST_F(AMap, HasEnoughLinesAtEveryMinute) {
  constexpr int kPrime = 13;  // so that every minute of an hour comes up
  for (int minutes = -80 * 60; minutes <= 80 * 60; minutes += kPrime) {
    for (const Step step : {Step::kTenDegrees, Step::kFiveDegrees, Step::kOneDegree}) {
      const ui::Drawing drawing = draw({minutes / 60.0, 10}, step);
      const auto lines = all_of<ui::Polyline>(drawing.ground, Ink::kFaint);
      const auto parallels = std::count_if(lines.begin(), lines.end(), [](const auto& line) {
        return line.points[0].y == line.points[1].y;
      });
      ASSERT_GE(parallels, 4) << minutes << " minutes, step " << static_cast<int>(step);
    }
  }
}

TEST_F(AMap, ShowsTheShipWithHerArrowAndTrack) {
  const ShipOnMap ship{Place{20, 150}, 90, 15, {{18, 147}, {19, 148.5}}};
  const ui::Drawing drawing = draw(ship, Step::kTenDegrees);
  ASSERT_EQ(drawing.shapes.size(), 5U);
  EXPECT_EQ(std::get<ui::Polyline>(drawing.shapes[0]).points,
            (std::vector<Point>{{147, 18}, {148.5, 19}, {150, 20}}));
  EXPECT_EQ(std::get<ui::Marker>(drawing.shapes[1]).at, (Point{147, 18}));
  EXPECT_EQ(std::get<ui::Marker>(drawing.shapes[2]).at, (Point{148.5, 19}));
  const auto& arrow = std::get<ui::Polyline>(drawing.shapes[3]);
  EXPECT_TRUE(arrow.arrow);
  EXPECT_EQ(arrow.points[0], (Point{150, 20}));
  EXPECT_GT(arrow.points[1].x, 151);
  EXPECT_EQ(std::get<ui::Marker>(drawing.shapes[4]).at, (Point{150, 20}));
  EXPECT_EQ(draw({20, 150}, Step::kTile).shapes.size(), 1U);
}

TEST_F(AMap, LeadsTheTrackOverTheDateLineTheShortWay) {
  for (const double side : {-1.0, 1.0}) {
    const ShipOnMap ship{
        Place{-17, side * 179}, {}, {}, {{-15, side * -178}, {-16, side * -179.5}}};
    for (const Step step : kAllSteps) {
      const ui::Drawing drawing = draw(ship, step);
      const auto& line = std::get<ui::Polyline>(drawing.shapes[0]);
      for (std::size_t i = 0; i + 1 < line.points.size(); ++i)
        EXPECT_LE(std::abs(line.points[i + 1].x - line.points[i].x), 1.6);
      EXPECT_TRUE(ui::is_inside(drawing, line.points.back()));
    }
  }
}

TEST_F(AMap, OfATileThatCannotBeUsedSaysSoAndShowsTheRest) {
  for (const char* const content : {"", "no tile\n", "kavrel sea map 1\n"}) {
    fakes::FakeFiles files;
    if (*content != 0) {
      for (const map::Tile& tile : map::all_tiles())
        files.add_file(std::string(fakes::kSampleSeaMap) + "\\" + map::file_name(tile), content);
    }
    map::SeaMap none(files, fakes::kSampleSeaMap);
    const ShipOnMap ship{Place{33, 136}, 90, 15, {{32, 135}}};
    for (const Step step : kAllSteps) {
      for (const bool japanese : {false, true}) {
        texts.language = japanese ? text::Language::kJapanese : text::Language::kEnglish;
        const ui::Drawing drawing =
            map::map_drawing(ship, map::view_around(*ship.at, step), kPixels, none, texts);
        const auto words = all_of<ui::ShortText>(drawing.shapes, Ink::kText);
        ASSERT_FALSE(words.empty());
        EXPECT_EQ(words[0].text, japanese ? "地図なし" : "no map");
        EXPECT_TRUE(ui::is_inside(drawing, words[0].at));
        EXPECT_TRUE(all_of<ui::Area>(drawing.ground, Ink::kWater).empty());
        EXPECT_FALSE(all_of<ui::Polyline>(drawing.ground, Ink::kFaint).empty());
        EXPECT_EQ(std::get<ui::Marker>(drawing.shapes.back()).at, (Point{136, 33}));
        EXPECT_EQ(all_of<ui::Polyline>(drawing.shapes, Ink::kMark).size(), 2U);
      }
    }
  }
}

TEST_F(AMap, HasSeaAroundAMissingNeighbour) {
  sample.files.add_file(std::string(fakes::kSampleSeaMap) + "\\E140N40.src", "damaged");
  const ui::Drawing drawing = draw({33, 139.5}, Step::kTenDegrees);
  EXPECT_EQ(painted(drawing, {139, 33}), "land");
  EXPECT_EQ(painted(drawing, {141, 33}), "paper");
  const auto words = all_of<ui::ShortText>(drawing.shapes, Ink::kText);
  ASSERT_EQ(words.size(), 1U);
  EXPECT_GT(words[0].at.x, 140);
}

// Whatever a tile's file may hold.
TEST_F(AMap, SurvivesRingsOfAnyShape) {
  const map::Tile tile = map::tile_of({10, 150});
  const std::vector<std::vector<double>> shapes = {
      {150, 10},
      {150, 10, 150, 10, 150, 10},
      {150, 10, 151, 11},
      {140, 40, 180, 40, 180, -10, 140, -10},
      {140, 40, 140, 40, 140, 40},
      {140, -10, 180, -10},
      {150, 10, 150, 40, 150, 10},
      {140, 10, 180, 10.001, 140, 10.002},
      {140, 40, 180, -10, 180, 40, 140, -10},
      {149.999, 10, 150, 10.001, 150.001, 10, 150, 9.999},
  };
  for (const bool water : {false, true}) {
    for (const auto& degrees : shapes) {
      fakes::FakeFiles files;
      fakes::add_sea_map(files);
      files.add_file(std::string(fakes::kSampleSeaMap) + "\\" + map::file_name(tile),
                     fakes::tile_text(tile, {fakes::ring_of(water, degrees)}));
      map::SeaMap odd(files, fakes::kSampleSeaMap);
      ASSERT_NE(odd.coast(tile), nullptr);
      for (const Step step : kAllSteps) {
        for (const Place at :
             {Place{10, 150}, Place{40, 140}, Place{-9.9, 179.9}, Place{39, 141}}) {
          const map::MapView view = map::view_around(at, step);
          const ui::Drawing drawing =
              map::map_drawing({at, 10, 10, {at}}, view, kPixels, odd, texts);
          for (const ui::Shape& shape : drawing.ground) {
            const auto* const area = std::get_if<ui::Area>(&shape);
            if (area == nullptr) continue;
            // Cut off a few pixels beside what is shown.
            for (const Point point : area->outline) {
              EXPECT_TRUE(std::isfinite(point.x) && std::isfinite(point.y));
              EXPECT_GE(point.y, view.south - 0.01 * view.height());
              EXPECT_LE(point.y, view.north + 0.01 * view.height());
            }
          }
        }
      }
    }
  }
}

TEST_F(AMap, OfAWholeTileOfLandIsLandToItsLimits) {
  put(map::tile_of({10, 150}), {fakes::ring_of(false, {140, 40, 180, 40, 180, -10, 140, -10})});
  const ui::Drawing drawing = draw({10, 150}, Step::kTile);
  EXPECT_EQ(painted(drawing, {140.001, 10}), "land");
  EXPECT_EQ(painted(drawing, {179.9, 10}), "land");
  EXPECT_EQ(painted(drawing, {180.1, 10}), "water");
}

TEST_F(AMap, IsToldInAFewLines) {
  const ShipOnMap ship{Place{33, 141}, 0, 15, {{32, 138}}};
  EXPECT_EQ(ui::describe(draw(ship, Step::kTenDegrees)),
            (std::vector<std::string>{
                "longitude 126.6 to 155.4, latitude 28 to 38",
                "ground of water land coast faint \"28°N\" \"30°N\" \"32°N\" \"34°N\" \"36°N\" "
                "\"38°N\" \"128°E\" \"130°E\" \"132°E\" \"134°E\" \"136°E\" \"138°E\" "
                "\"140°E\" \"142°E\" \"144°E\" \"146°E\" \"148°E\" \"150°E\" \"152°E\" "
                "\"154°E\"",
                "line mark (138 32) (141 33)",
                "speck mark (138 32)",
                "thick arrow line mark (141 33) (141 34.5)",
                "dot mark (141 33)",
            }));
}

TEST(MapText, OfAnAngleHasItsMinutesAndItsSide) {
  const text::Texts texts;
  EXPECT_EQ(map::latitude_text(0, texts), "0°");
  EXPECT_EQ(map::latitude_text(35 * 60 + 5, texts), "35°05′N");
  EXPECT_EQ(map::latitude_text(-30, texts), "0°30′S");
  EXPECT_EQ(map::latitude_text(-5400, texts), "90°S");
  EXPECT_EQ(map::longitude_text(139 * 60 + 45, texts), "139°45′E");
  EXPECT_EQ(map::longitude_text(181 * 60, texts), "179°W");
  EXPECT_EQ(map::longitude_text(-181 * 60, texts), "179°E");
  for (const int half_turn : {-10800, 10800})
    EXPECT_EQ(map::longitude_text(half_turn, texts), "180°");
  EXPECT_EQ(map::longitude_text(360 * 60, texts), "0°");
}

}  // namespace
