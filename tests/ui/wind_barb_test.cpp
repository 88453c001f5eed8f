// The wind's sign of weather charts, as values.

#include <gtest/gtest.h>

#include <cmath>

#include "ui/drawing.h"

namespace {

using ui::Point;
using ui::WindBarb;

WindBarb wind(int from, double knots) {
  WindBarb barb;
  barb.from = from;
  barb.knots = knots;
  return barb;
}

double length(const std::vector<Point>& line) {
  return std::hypot(line.back().x - line.front().x, line.back().y - line.front().y);
}

TEST(WindBarb, HasFeathersForItsSpeed) {
  struct Row {
    double knots;
    int pennants, longer, shorter;
  };
  for (const Row& row :
       {Row{0, 0, 0, 0}, Row{2, 0, 0, 0}, Row{3, 0, 0, 1}, Row{5, 0, 0, 1}, Row{7, 0, 0, 1},
        Row{8, 0, 1, 0}, Row{10, 0, 1, 0}, Row{18, 0, 2, 0}, Row{25, 0, 2, 1}, Row{48, 1, 0, 0},
        Row{50, 1, 0, 0}, Row{65, 1, 1, 1}, Row{100, 2, 0, 0}}) {
    const ui::BarbStrokes strokes = strokes_of(wind(270, row.knots));
    int longer = 0;
    int shorter = 0;
    for (std::size_t i = 1; i < strokes.lines.size(); ++i)
      (length(strokes.lines[i]) > 0.3 ? longer : shorter)++;
    EXPECT_EQ(static_cast<int>(strokes.pennants.size()), row.pennants) << row.knots;
    EXPECT_EQ(longer, row.longer) << row.knots;
    EXPECT_EQ(shorter, row.shorter) << row.knots;
    EXPECT_EQ(strokes.circle, 0) << row.knots;
  }
}

TEST(WindBarb, PointsWhenceTheWindBlows) {
  const auto end = [](int from) { return strokes_of(wind(from, 10)).lines.front().back(); };
  EXPECT_NEAR(end(270).x, -0.5, 1e-9);
  EXPECT_NEAR(end(270).y, 0, 1e-9);
  EXPECT_NEAR(end(360).y, 0.5, 1e-9);
  EXPECT_NEAR(end(90).x, 0.5, 1e-9);
  EXPECT_NEAR(end(180).y, -0.5, 1e-9);
}

TEST(WindBarb, HasItsFeathersTowardsTheLowPressure) {
  // A west wind has the low in the north on the northern half of the globe, in the south on the
  // southern one.
  for (const double knots : {5.0, 10.0, 50.0}) {
    WindBarb barb = wind(270, knots);
    const auto highest = [&] {
      double most = 0;
      const ui::BarbStrokes strokes = strokes_of(barb);
      for (const auto* const parts : {&strokes.lines, &strokes.pennants})
        for (const auto& part : *parts)
          for (const Point point : part)
            if (std::abs(point.y) > std::abs(most)) most = point.y;
      return most;
    };
    EXPECT_GT(highest(), 0.1) << knots;
    barb.southern = true;
    EXPECT_LT(highest(), -0.1) << knots;
  }
}

TEST(WindBarb, IsACircleWhereThereIsNoDirection) {
  WindBarb barb;
  EXPECT_GT(strokes_of(barb).circle, 0);
  EXPECT_EQ(strokes_of(barb).lines.size(), 2U) << "variable: with a cross";
  barb = wind(270, 0);
  barb.calm = true;
  EXPECT_GT(strokes_of(barb).circle, 0);
  EXPECT_TRUE(strokes_of(barb).lines.empty());
}

TEST(WindBarb, HasACrossAtItsEndWhereTheSpeedIsNotKnown) {
  WindBarb barb;
  barb.from = 270;
  const auto strokes = strokes_of(barb);
  ASSERT_EQ(strokes.lines.size(), 3U);
  for (std::size_t i : {1U, 2U})
    EXPECT_NEAR((strokes.lines[i].front().x + strokes.lines[i].back().x) / 2, -0.5, 1e-9);
}

TEST(WindBarb, KeepsWithinItsShaftAtAnySpeed) {
  for (int knots = 0; knots <= 300; ++knots) {
    const ui::BarbStrokes strokes = strokes_of(wind(30, knots));
    for (const auto* const parts : {&strokes.lines, &strokes.pennants})
      for (const auto& part : *parts)
        for (const Point point : part) EXPECT_LE(std::hypot(point.x, point.y), 0.9) << knots;
  }
}

TEST(WindBarb, IsDescribed) {
  ui::Drawing drawing;
  WindBarb barb = wind(270, 18);
  barb.at = {-3, 0.5};
  barb.southern = true;
  drawing.shapes.emplace_back(barb);
  drawing.shapes.emplace_back(WindBarb{});
  barb.calm = true;
  drawing.shapes.emplace_back(barb);
  ui::Polyline line{{{0, 0}, {1, 1}}};
  line.specks = true;
  drawing.shapes.emplace_back(line);
  EXPECT_EQ(
      ui::describe(drawing),
      (std::vector<std::string>{"0 to 1, 0 to 1", "barb mark from 270 18 kn southern (-3 0.5)",
                                "barb mark variable (0 0)", "barb mark calm (-3 0.5)",
                                "line text with specks (0 0) (1 1)"}));
}

}  // namespace
