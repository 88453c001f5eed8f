// A drawing as a value: what a script reads of it, where its points are, and what a click on it
// tells the screen.

#include "ui/drawing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "fakes/fake_ports.h"
#include "text/ids.h"
#include "ui/dump.h"
#include "ui/plan.h"

namespace {

using ui::Point;

ui::Drawing chart() {
  ui::Drawing chart;
  chart.x = {"longitude", 130, 150};
  chart.y = {"latitude", 30, 40};
  return chart;
}

TEST(Drawing, TellsItsAxesAndEveryShape) {
  ui::Drawing drawing = chart();
  drawing.shapes = {
      ui::Area{{{130, 30}, {135, 30}, {130, 34.5}}, ui::Ink::kLand},
      ui::Polyline{{{131, 31}, {140.25, 39}}, ui::Ink::kFaint, false, true},
      ui::Polyline{{{131, 31}}, ui::Ink::kMark, true, false},
      ui::Marker{{139.123456, -0.00001}, ui::Marker::Sign::kCross, ui::Ink::kAlarm},
      ui::ShortText{{140, 35}, "東京\n\"x\"", ui::ShortText::Side::kAbove, ui::Ink::kCaution},
      ui::ShortText{{140, 35}, "a"},
  };
  EXPECT_EQ(ui::describe(drawing), (std::vector<std::string>{
                                       "longitude 130 to 150, latitude 30 to 40",
                                       "area land (130 30) (135 30) (130 34.5)",
                                       "dashed line faint (131 31) (140.25 39)",
                                       "thick line mark (131 31)",
                                       "cross alarm (139.1235 0)",
                                       "text caution \"東京\\n\\\"x\\\"\" above (140 35)",
                                       "text text \"a\" (140 35)",
                                   }));
}

TEST(Drawing, CutsLongTellingsShortWithTheirNumber) {
  ui::Drawing drawing = chart();
  ui::Polyline eight;
  for (int i = 1; i <= 8; ++i) eight.points.push_back({static_cast<double>(i), 0});
  ui::Polyline nine = eight;
  nine.points.push_back({9, 0});
  drawing.shapes = {eight, nine};
  const auto lines = ui::describe(drawing);
  EXPECT_EQ(lines[1], "line text (1 0) (2 0) (3 0) (4 0) (5 0) (6 0) (7 0) (8 0)");
  EXPECT_EQ(lines[2], "line text (1 0) (2 0) (3 0) (4 0) (5 0) (6 0) (7 0) … (9 0) (9 points)");
  drawing.shapes.assign(60, ui::Marker{});
  EXPECT_EQ(ui::describe(drawing).size(), 61U);
  drawing.shapes.assign(61, ui::Marker{});
  EXPECT_EQ(ui::describe(drawing).size(), 62U);
  EXPECT_EQ(ui::describe(drawing).back(), "… (61 shapes)");
}

TEST(Drawing, TellsItsGroundInOneLineByInksAndTexts) {
  ui::Drawing drawing = chart();
  ui::Polyline arrow{{{131, 31}, {132, 32}}, ui::Ink::kMark};
  arrow.arrow = true;
  drawing.shapes = {arrow, ui::Marker{{131, 31}, ui::Marker::Sign::kSpeck}};
  drawing.ground.assign(100, ui::Area{{{130, 30}, {135, 30}, {130, 34.5}}, ui::Ink::kWater});
  drawing.ground.emplace_back(ui::Area{});
  drawing.ground.emplace_back(ui::Polyline{{}, ui::Ink::kCoast});
  drawing.ground.emplace_back(ui::Area{});
  drawing.ground.emplace_back(ui::ShortText{{140, 35}, "35°N"});
  drawing.ground.emplace_back(ui::ShortText{{140, 35}, "a \"b\""});
  EXPECT_EQ(ui::describe(drawing),
            (std::vector<std::string>{"longitude 130 to 150, latitude 30 to 40",
                                      "ground of water land coast \"35°N\" \"a \\\"b\\\"\"",
                                      "arrow line mark (131 31) (132 32)", "speck mark (131 31)"}));
}

TEST(Drawing, EveryInkHasANameOfItsOwn) {
  std::set<std::string_view> names;
  for (int ink = 0; ink < ui::kInks; ++ink) names.insert(ui::name_of(static_cast<ui::Ink>(ink)));
  EXPECT_EQ(names.size(), static_cast<std::size_t>(ui::kInks));
  EXPECT_FALSE(names.contains(""));
}

TEST(DrawingPlace, PutsTheFirstCoordinatesAtTheLeftAndTheBottom) {
  const ui::DrawingPlace place(chart(), 200, 50);
  EXPECT_EQ(place.pixel_of({130, 30}), (Point{0, 50}));
  EXPECT_EQ(place.pixel_of({150, 40}), (Point{200, 0}));
  EXPECT_EQ(place.pixel_of({135, 32.5}), (Point{50, 37.5}));
}

TEST(DrawingPlace, TurnsAnAxisThatCountsDown) {
  ui::Drawing drawing = chart();
  std::swap(drawing.y.first, drawing.y.last);
  const ui::DrawingPlace place(drawing, 200, 50);
  EXPECT_EQ(place.pixel_of({130, 40}), (Point{0, 50}));
  EXPECT_TRUE(ui::is_inside(drawing, {140, 35}));
  EXPECT_EQ(place.point_at({0, 0}), (Point{130, 30}));
}

TEST(DrawingPlace, KeepsTheShapeOfThingsInTheMiddleOfItsRoom) {
  ui::Drawing drawing = chart();
  drawing.same_scale = true;  // twice as wide as high
  const ui::DrawingPlace wide(drawing, 500, 100);
  EXPECT_EQ(wide.corner(), (Point{150, 0}));
  EXPECT_EQ(wide.width(), 200);
  EXPECT_EQ(wide.height(), 100);
  const ui::DrawingPlace high(drawing, 100, 500);
  EXPECT_EQ(high.corner(), (Point{0, 225}));
  EXPECT_EQ(high.width(), 100);
  EXPECT_EQ(high.height(), 50);
  EXPECT_EQ(high.point_at({0, 0}), std::nullopt);
  EXPECT_EQ(high.point_at({100, 225}), (Point{150, 40}));
}

TEST(DrawingPlace, KnowsAUnitAcrossThatIsShorterThanOneUp) {
  ui::Drawing drawing = chart();
  drawing.same_scale = true;
  drawing.x_unit = 0.5;  // as wide as high
  const ui::DrawingPlace place(drawing, 300, 100);
  EXPECT_EQ(place.corner(), (Point{100, 0}));
  EXPECT_EQ(place.width(), 100);
  EXPECT_EQ(place.pixel_of({140, 35}), (Point{150, 50}));
}

TEST(DrawingPlace, FillsItsHeightAndCutsTheSides) {
  ui::Drawing drawing = chart();
  drawing.same_scale = true;
  drawing.sides_cut = true;
  const ui::DrawingPlace narrow(drawing, 50, 100);
  EXPECT_EQ(narrow.corner(), (Point{0, 0}));
  EXPECT_EQ(narrow.width(), 50);
  EXPECT_EQ(narrow.height(), 100);
  EXPECT_EQ(narrow.pixel_of({140, 35}), (Point{25, 50}));
  EXPECT_EQ(narrow.point_at({0, 0}), (Point{137.5, 40}));
  EXPECT_EQ(narrow.point_at({50, 100}), (Point{142.5, 30}));
  // Wider than all there is: in the middle, as any other.
  const ui::DrawingPlace wide(drawing, 500, 100);
  EXPECT_EQ(wide.corner(), (Point{150, 0}));
  EXPECT_EQ(wide.width(), 200);
  EXPECT_EQ(wide.pixel_of({130, 40}), (Point{150, 0}));
  for (const auto& [width, height] : {std::pair{0.0, 0.0}, {0.0, 50.0}, {50.0, 0.0}})
    EXPECT_EQ(ui::DrawingPlace(drawing, width, height).point_at({0, 0}), std::nullopt);
}

TEST(DrawingPlace, FindsThePointUnderEveryPixelAgain) {
  for (const bool same_scale : {false, true}) {
    for (const auto& [width, height] : {std::pair{200.0, 50.0}, {50.0, 200.0}, {1366.0, 768.0}}) {
      ui::Drawing drawing = chart();
      drawing.same_scale = same_scale;
      const ui::DrawingPlace place(drawing, width, height);
      for (double x = 130; x <= 150; x += 2.5) {
        for (double y = 30; y <= 40; y += 1.25) {
          // Inside by a hair: rounding may put the edge outside.
          const Point inner{130.001 + (x - 130) * 0.9999, 30.001 + (y - 30) * 0.9997};
          const auto found = place.point_at(place.pixel_of(inner));
          ASSERT_TRUE(found) << x << " " << y;
          EXPECT_NEAR(found->x, inner.x, 1e-9);
          EXPECT_NEAR(found->y, inner.y, 1e-9);
        }
      }
    }
  }
}

TEST(DrawingPlace, HasNoPointBesideItOrInNoRoom) {
  const ui::DrawingPlace place(chart(), 200, 50);
  for (const Point beside : {Point{-1, 10}, Point{201, 10}, Point{10, -1}, Point{10, 51}})
    EXPECT_EQ(place.point_at(beside), std::nullopt);
  EXPECT_EQ(ui::DrawingPlace(chart(), 0, 0).point_at({0, 0}), std::nullopt);
  EXPECT_EQ(ui::DrawingPlace(chart(), -5, -5).point_at({0, 0}), std::nullopt);
}

// ---- On a screen

class CChartDlg : public ui::Screen {
 public:
  explicit CChartDlg(ui::Services& services)
      : Screen(services, "CChartDlg", {text::id::kHelpLabel}) {
    map.drawing = std::make_shared<const ui::Drawing>(chart());
    map.on_point = [this](Point at) { clicked.push_back(at); };
    file.content = "waves.png";
    file.on_point = map.on_point;
    plain.on_press = [this] { ++pressed; };
    field.on_leave = [this] { return field.content != "bad"; };
  }
  ui::Edit field{*this, "field"};
  ui::Picture map{*this, "map", {text::id::kHelpLabel}};
  ui::Picture file{*this, "file"};
  ui::Picture plain{*this, "plain"};
  std::vector<Point> clicked;
  int pressed = 0;
};

class AChart : public testing::Test {
 protected:
  AChart() { screen.open(); }
  fakes::World world;
  CChartDlg screen{world.services};
};

TEST_F(AChart, IsShownWithItsShapes) {
  ui::Drawing drawing = chart();
  drawing.shapes = {ui::Marker{{140, 35}}};
  screen.map.drawing = std::make_shared<const ui::Drawing>(drawing);
  const std::string dump = ui::dump(screen);
  EXPECT_NE(dump.find("  map picture \"Help\" of longitude 130 to 150, latitude 30 to 40\n"
                      "    dot mark (140 35)\n"
                      "  file picture = \"waves.png\"\n"),
            std::string::npos)
      << dump;
}

TEST_F(AChart, HearsWhereItIsClicked) {
  screen.press_at(screen.map, {131, 32});
  EXPECT_EQ(screen.clicked, (std::vector<Point>{{131, 32}}));
  screen.press_at(screen.map, {130, 40});  // the corner
  EXPECT_EQ(screen.clicked.size(), 2U);
}

TEST_F(AChart, HearsNothingOfAClickBesideIt) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const Point beside : {Point{129, 35}, Point{151, 35}, Point{140, 29}, Point{140, 41},
                             Point{nan, 35}, Point{140, nan}})
    screen.press_at(screen.map, beside);
  EXPECT_TRUE(screen.clicked.empty());
}

TEST_F(AChart, OfAFileHasCoordinatesFromNoughtToOne) {
  screen.press_at(screen.file, {0.25, 1});
  screen.press_at(screen.file, {0.25, 1.01});
  EXPECT_EQ(screen.clicked, (std::vector<Point>{{0.25, 1}}));
}

TEST_F(AChart, IsPressedWhereThePlaceMeansNothing) {
  screen.press_at(screen.plain, {0.5, 0.5});
  screen.press(screen.plain);
  EXPECT_EQ(screen.pressed, 2);
}

TEST_F(AChart, IsNotClickedWhileAFieldIsRefusedOrItIsOff) {
  screen.type(screen.field, "bad");
  screen.press_at(screen.map, {131, 32});
  EXPECT_TRUE(screen.clicked.empty());
  EXPECT_EQ(screen.focused(), &screen.field);
  screen.type(screen.field, "good");
  screen.map.enabled = false;
  screen.press_at(screen.map, {131, 32});
  screen.map.enabled = true;
  screen.map.visible = false;
  screen.press_at(screen.map, {131, 32});
  screen.press_at(screen.field, {0, 0});  // a field has no places
  EXPECT_TRUE(screen.clicked.empty());
}

TEST_F(AChart, HasTheRoomThatItsDrawingWants) {
  ui::Drawing drawing = chart();
  drawing.characters = 33;
  drawing.lines = 7;
  screen.map.drawing = std::make_shared<const ui::Drawing>(drawing);
  EXPECT_TRUE(ui::extent_of(screen.map) == (ui::Extent{33, 0, 7, false}));
  drawing.grows = true;
  screen.map.drawing = std::make_shared<const ui::Drawing>(drawing);
  EXPECT_TRUE(ui::extent_of(screen.map) == (ui::Extent{33, 0, 7, true}));
  EXPECT_TRUE(ui::extent_of(screen.file) == ui::Extent{});
}

}  // namespace
