// Drawings in pixels.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "paper/characters.h"
#include "paper/colour.h"
#include "paper/drawing_painter.h"
#include "paper/raster.h"
#include "paper/stroke.h"

namespace {

using paper::Colour;
using ui::Ink;

std::uint32_t pixel_of(Colour colour) {
  return (std::uint32_t{colour.red} << 16U) | (std::uint32_t{colour.green} << 8U) | colour.blue;
}

constexpr double kLetter = 20;  // high, half as wide, a fifth of it below the base line

// Letters are blocks.
class Image : public paper::Raster {
 public:
  explicit Image(int size = 200) : Image(size, size) {}
  Image(int width, int height)
      : Image(std::vector<std::uint32_t>(
                  static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0xFF00FF),
              width, height) {}

  [[nodiscard]] std::uint32_t at(int x, int y) const {
    return pixels_[static_cast<std::size_t>(y * width_ + x)];
  }
  [[nodiscard]] const std::vector<std::uint32_t>& pixels() const { return pixels_; }
  [[nodiscard]] int width() const { return width_; }
  [[nodiscard]] int height() const { return static_cast<int>(pixels_.size()) / width_; }

  void write(std::string_view text, ui::Point at, Colour colour) override {
    const double right = at.x + width_of(text);
    const double top = at.y - ascent();
    const double bottom = at.y + descent();
    fill({{at.x, top}, {right, top}, {right, bottom}, {at.x, bottom}}, colour, true);
  }
  [[nodiscard]] double width_of(std::string_view text) const override {
    return static_cast<double>(paper::characters_of(text).size()) * kLetter / 2;
  }
  [[nodiscard]] double ascent() const override { return kLetter * 0.8; }
  [[nodiscard]] double descent() const override { return kLetter * 0.2; }

 private:
  // A vector keeps its place when it is moved.
  Image(std::vector<std::uint32_t> pixels, int width, int height)
      : Raster({pixels.data(), width, height}), pixels_(std::move(pixels)), width_(width) {}

  std::vector<std::uint32_t> pixels_;
  int width_;
};

ui::Drawing unit_drawing() {
  ui::Drawing drawing;
  drawing.x = {"x", 0, 10};
  drawing.y = {"y", 0, 10};
  return drawing;
}

// Columns, or rows, that hold anything but paper, first and last.
std::pair<int, int> extent(const Image& image, std::uint32_t paper, bool across) {
  std::pair<int, int> found{1000, -1};
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.at(x, y) == paper) continue;
      const int place = across ? x : y;
      found = {std::min(found.first, place), std::max(found.second, place)};
    }
  }
  return found;
}

class Drawn : public testing::TestWithParam<bool> {
 protected:
  void paint(Image& image, const ui::Drawing& drawing) const {
    paper::paint(image,
                 {0, 0, static_cast<double>(image.width()), static_cast<double>(image.height())},
                 drawing, inks);
  }
  [[nodiscard]] std::uint32_t ink(Ink which) const { return pixel_of(inks.of(which)); }

  paper::Inks inks = GetParam() ? paper::inks_on({30, 30, 30}, paper::kWhite)
                                : paper::inks_on(paper::kWhite, paper::kBlack);
  std::uint32_t blank = pixel_of(inks.paper);
};

TEST_P(Drawn, AreasFillTheirPlaceInTheColourOfTheirInk) {
  for (const Ink which : {Ink::kLand, Ink::kWater, Ink::kIce}) {
    ui::Drawing drawing = unit_drawing();
    drawing.shapes = {ui::Area{{{0, 0}, {5, 0}, {5, 5}, {0, 5}}, which}};
    Image image;
    paint(image, drawing);
    EXPECT_NE(ink(which), blank);
    EXPECT_EQ(image.at(50, 150), ink(which));  // the lower left quarter, to its edges
    EXPECT_EQ(image.at(99, 100), ink(which));
    EXPECT_EQ(image.at(0, 199), ink(which));
    EXPECT_EQ(image.at(100, 150), blank);
    EXPECT_EQ(image.at(50, 99), blank);
    EXPECT_EQ(image.at(150, 50), blank);
  }
}

TEST_P(Drawn, AnAreaWithinItselfIsAHole) {
  ui::Drawing drawing = unit_drawing();
  drawing.shapes = {
      ui::Area{{{1, 1}, {9, 1}, {9, 9}, {1, 9}, {1, 1}, {4, 4}, {6, 4}, {6, 6}, {4, 6}, {4, 4}},
               Ink::kLand}};
  Image image;
  paint(image, drawing);
  EXPECT_EQ(image.at(40, 100), ink(Ink::kLand));
  EXPECT_EQ(image.at(100, 100), blank);
}

// Two areas that share a slanting edge have no gap between them where they are the ground.
TEST_P(Drawn, TheGroundHasNoGaps) {
  ui::Drawing drawing = unit_drawing();
  drawing.ground = {ui::Area{{{0, 0}, {10, 0}, {3.3, 10}, {0, 10}}, Ink::kWater},
                    ui::Area{{{10, 0}, {10, 10}, {3.3, 10}}, Ink::kWater}};
  Image image;
  paint(image, drawing);
  for (const std::uint32_t pixel : image.pixels()) ASSERT_EQ(pixel, ink(Ink::kWater));
}

TEST_P(Drawn, LaterShapesLieOnEarlierOnes) {
  ui::Drawing drawing = unit_drawing();
  const std::vector<ui::Point> all = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
  drawing.shapes = {ui::Area{all, Ink::kWater}, ui::Area{all, Ink::kLand}};
  drawing.ground = {ui::Area{all, Ink::kIce}};
  Image image;
  paint(image, drawing);
  EXPECT_EQ(image.at(100, 100), ink(Ink::kLand));
}

TEST_P(Drawn, LinesAndMarkersAreWhereTheirPointsAre) {
  ui::Drawing line = unit_drawing();
  line.shapes = {ui::Polyline{{{0, 5}, {10, 5}}, Ink::kMark, true}};
  Image across;
  paint(across, line);
  for (const int x : {5, 100, 195}) EXPECT_EQ(across.at(x, 100), ink(Ink::kMark)) << x;
  // 0.16 of a letter: from 98.4 to 101.6.
  EXPECT_EQ(across.at(100, 99), ink(Ink::kMark));
  EXPECT_EQ(across.at(100, 97), blank);
  EXPECT_EQ(across.at(100, 102), blank);
  ui::Drawing dot = unit_drawing();
  dot.shapes = {ui::Marker{{2.5, 7.5}, ui::Marker::Sign::kDot}};
  Image dotted;
  paint(dotted, dot);
  EXPECT_EQ(dotted.at(50, 50), ink(Ink::kMark));
  // A radius of 0.37 letters.
  EXPECT_EQ(extent(dotted, blank, true), std::pair(42, 57));
  EXPECT_EQ(extent(dotted, blank, false), std::pair(42, 57));
  ui::Drawing ring = unit_drawing();
  ring.shapes = {ui::Marker{{2.5, 7.5}, ui::Marker::Sign::kRing}};
  Image ringed;
  paint(ringed, ring);
  EXPECT_EQ(ringed.at(50, 50), blank);
  EXPECT_EQ(extent(ringed, blank, true), std::pair(42, 57));
  ui::Drawing cross = unit_drawing();
  cross.shapes = {ui::Marker{{2.5, 7.5}, ui::Marker::Sign::kCross}};
  Image crossed;
  paint(crossed, cross);
  EXPECT_EQ(crossed.at(50, 50), ink(Ink::kMark));
  EXPECT_EQ(crossed.at(45, 45), ink(Ink::kMark));
  EXPECT_EQ(crossed.at(54, 45), ink(Ink::kMark));
  EXPECT_EQ(crossed.at(50, 43), blank);
}

TEST_P(Drawn, ADashedLineHasGapsOfHalfADash) {
  ui::Drawing line = unit_drawing();
  line.shapes = {ui::Polyline{{{0, 5}, {10, 5}}, Ink::kMark, true, true}};
  Image image;
  paint(image, line);
  int inked = 0;
  int changes = 0;
  for (int x = 0; x < 200; ++x) {
    inked += image.at(x, 100) == ink(Ink::kMark) ? 1 : 0;
    if (x > 0) changes += (image.at(x, 100) == blank) != (image.at(x - 1, 100) == blank) ? 1 : 0;
  }
  // A pen of 3.2 dots: a dash of 12.8 every 19.2 dots, the last of them cut.
  EXPECT_NEAR(changes / 2, 10, 1);
  EXPECT_GE(inked, 10 * 11);
  EXPECT_LE(inked, 10 * 13 + 8);
}

TEST_P(Drawn, AnArrowEndsInItsHeadAndNotBehindIt) {
  ui::Drawing line = unit_drawing();
  ui::Polyline arrow{{{1, 5}, {9, 5}}, Ink::kMark};
  arrow.arrow = true;
  line.shapes = {arrow};
  Image image;
  paint(image, line);
  const auto [first, last] = extent(image, blank, true);
  EXPECT_NEAR(first, 19, 1);
  EXPECT_NEAR(last, 179, 1);
  // The head is 12 dots long and 10.8 wide at its end.
  EXPECT_EQ(image.at(169, 96), ink(Ink::kMark));
  EXPECT_EQ(image.at(160, 96), blank);
}

TEST_P(Drawn, TextsStandOnTheirSideOfThePoint) {
  using Side = ui::ShortText::Side;
  struct Row {
    Side side;
    std::pair<int, int> across;
    std::pair<int, int> down;
  };
  // Thirty dots wide and twenty high around (100, 100), eight away from a marker there.
  const Row kRows[] = {{Side::kCentre, {85, 114}, {90, 109}},
                       {Side::kLeft, {62, 91}, {90, 109}},
                       {Side::kRight, {108, 137}, {90, 109}},
                       {Side::kAbove, {85, 114}, {72, 91}},
                       {Side::kBelow, {85, 114}, {108, 127}}};
  for (const Row& row : kRows) {
    ui::Drawing drawing = unit_drawing();
    drawing.shapes = {ui::ShortText{{5, 5}, "MMM", row.side}};
    Image image;
    paint(image, drawing);
    EXPECT_EQ(extent(image, blank, true), row.across) << static_cast<int>(row.side);
    EXPECT_EQ(extent(image, blank, false), row.down) << static_cast<int>(row.side);
  }
}

TEST_P(Drawn, NamesAtAnEdgeStandThereAndKeepClear) {
  using Edge = ui::ShortText::Edge;
  const auto name = [](ui::Point at, Edge edge) {
    return ui::ShortText{at, "MM", ui::ShortText::Side::kCentre, Ink::kText, edge};
  };
  ui::Drawing drawing = unit_drawing();
  drawing.ground = {name({7, 5}, Edge::kLeft)};
  Image left;
  paint(left, drawing);
  EXPECT_EQ(extent(left, blank, true), std::pair(4, 23));
  EXPECT_EQ(extent(left, blank, false), std::pair(80, 99));
  drawing.ground = {name({7, 5}, Edge::kBottom)};
  Image bottom;
  paint(bottom, drawing);
  EXPECT_EQ(extent(bottom, blank, true), std::pair(144, 163));
  EXPECT_EQ(extent(bottom, blank, false), std::pair(180, 199));
  // One that would be cut, one that would touch another, one on a marker: none of them.
  drawing.ground = {name({9.5, 5}, Edge::kBottom)};
  Image cut;
  paint(cut, drawing);
  EXPECT_EQ(extent(cut, blank, true).second, -1);
  drawing.ground = {name({2, 5}, Edge::kBottom), name({3.2, 5}, Edge::kBottom)};
  Image touching;
  paint(touching, drawing);
  EXPECT_EQ(extent(touching, blank, true), std::pair(44, 63));
  drawing.ground = {name({2, 5}, Edge::kBottom)};
  drawing.shapes = {ui::Marker{{2.8, 0.2}, ui::Marker::Sign::kDot}};
  Image marked;
  paint(marked, drawing);
  EXPECT_EQ(extent(marked, blank, true), std::pair(48, 63));
}

TEST_P(Drawn, NothingIsPaintedOutsideItsRange) {
  ui::Drawing drawing = unit_drawing();
  drawing.y.last = 5;
  drawing.same_scale = true;  // twice as wide as high: a band in the middle
  drawing.shapes = {ui::Area{{{-50, -50}, {50, -50}, {50, 50}, {-50, 50}}, Ink::kWater}};
  Image image;
  paint(image, drawing);
  EXPECT_EQ(image.at(100, 49), blank);
  EXPECT_EQ(image.at(100, 50), ink(Ink::kWater));
  EXPECT_EQ(image.at(100, 149), ink(Ink::kWater));
  EXPECT_EQ(image.at(100, 150), blank);
}

TEST_P(Drawn, StandsInItsRoomAlone) {
  ui::Drawing drawing = unit_drawing();
  drawing.shapes = {ui::Area{{{-9, -9}, {19, -9}, {19, 19}, {-9, 19}}, Ink::kWater}};
  Image image;
  paper::paint(image, {20, 30, 120, 80}, drawing, inks);
  EXPECT_EQ(extent(image, 0xFF00FF, true), std::pair(20, 119));
  EXPECT_EQ(extent(image, 0xFF00FF, false), std::pair(30, 79));
}

TEST_P(Drawn, PointsThatAreNoNumbersOrFarAwayDoNoHarm) {
  const double nan = std::nan("");
  ui::Drawing drawing = unit_drawing();
  drawing.shapes = {ui::Area{{{nan, 0}, {1, nan}, {5, 5}}},
                    ui::Polyline{{{nan, nan}, {1, 1}}},
                    ui::Polyline{{{-1e12, 5}, {1e12, 5}}},
                    ui::Polyline{{{-1e12, 5}, {1e12, 5}}, Ink::kMark, true, true},
                    ui::Area{{{-1e9, -1e9}, {1e9, -1e9}, {0, 1e9}}, Ink::kWater},
                    ui::Polyline{{{3, 3}, {3, 3}}},
                    ui::Marker{{nan, 1}},
                    ui::ShortText{{nan, nan}, "x"},
                    ui::WindBarb{{nan, 0}, 180, 20},
                    ui::Area{},
                    ui::Polyline{}};
  Image image;
  paint(image, drawing);
  EXPECT_EQ(image.at(100, 150), ink(Ink::kWater));
  Image nothing(1, 1);
  paper::paint(nothing, {0, 0, 0, 0}, drawing, inks);
  EXPECT_EQ(nothing.at(0, 0), 0xFF00FFU);
}

INSTANTIATE_TEST_SUITE_P(Paper, Drawn, testing::Values(false, true),
                         [](const auto& row) { return row.param ? "dark" : "light"; });

// ---- Pens

TEST(Stroke, HasSquareEndsAndMeetsItselfInItsCorners) {
  Image image;
  paper::Pen pen{{0, 0, 0}, 10, false, true};
  image.stroke({{50, 100}, {100, 100}, {100, 50}}, pen);
  EXPECT_EQ(image.at(45, 100), 0U);
  EXPECT_NE(image.at(44, 100), 0U);
  EXPECT_EQ(image.at(104, 104), 0U);  // the very corner
  EXPECT_EQ(image.at(100, 45), 0U);
  EXPECT_NE(image.at(90, 90), 0U);
  Image round;
  pen.sharp = false;
  round.stroke({{50, 100}, {100, 100}, {100, 50}}, pen);
  EXPECT_NE(round.at(104, 104), 0U);
  EXPECT_EQ(round.at(102, 102), 0U);
}

TEST(Stroke, ThatCrossesItselfHasNoHole) {
  Image image;
  image.stroke({{50, 50}, {150, 150}, {150, 50}, {50, 150}}, {{0, 0, 0}, 20});
  EXPECT_EQ(image.at(100, 100), 0U);
}

TEST(Raster, MixesAtTheEdgesAsMuchAsIsCovered) {
  Image image;
  image.fill({{0, 0}, {200, 0}, {200, 200}, {0, 200}}, {255, 255, 255}, true);
  image.fill({{10.25, 10}, {20, 10}, {20, 20.5}, {10.25, 20.5}}, {0, 0, 0}, false);
  EXPECT_EQ(image.at(15, 15), 0U);
  EXPECT_EQ(image.at(10, 15), 0x404040U);  // three quarters
  EXPECT_EQ(image.at(15, 20), 0x808080U);  // half
}

}  // namespace
