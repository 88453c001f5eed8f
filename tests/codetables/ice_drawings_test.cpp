// Ice drawn from the codes of the report.

#include "codetables/ice_drawings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

using ui::Ink;

constexpr auto kEnglish = text::Language::kEnglish;

template <class S>
std::vector<S> all(const ui::Drawing& drawing) {
  std::vector<S> found;
  for (const ui::Shape& shape : drawing.shapes) {
    if (const auto* const one = std::get_if<S>(&shape)) found.push_back(*one);
  }
  return found;
}

int areas(const ui::Drawing& drawing, Ink ink) {
  int count = 0;
  for (const ui::Area& area : all<ui::Area>(drawing)) count += area.ink == ink ? 1 : 0;
  return count;
}

int floes(const ui::Drawing& drawing, bool dashed) {
  int count = 0;
  for (const ui::Polyline& line : all<ui::Polyline>(drawing))
    count += line.points.size() == 7 && line.dashed == dashed ? 1 : 0;
  return count;
}

// Area of a polygon, for what a share of it is ice.
double size_of(const std::vector<ui::Point>& outline) {
  double twice = 0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const ui::Point a = outline[i];
    const ui::Point b = outline[(i + 1) % outline.size()];
    twice += a.x * b.y - b.x * a.y;
  }
  return std::abs(twice) / 2;
}

struct Bearing {
  const char* code;
  double east;  // of the ice, seen from the ship
  double north;
  const char* english;
  const char* japanese;
};
constexpr Bearing kBearings[] = {
    {"1", 1, 1, "NE", "北東"},  {"2", 1, 0, "E", "東"},      {"3", 1, -1, "SE", "南東"},
    {"4", 0, -1, "S", "南"},    {"5", -1, -1, "SW", "南西"}, {"6", -1, 0, "W", "西"},
    {"7", -1, 1, "NW", "北西"}, {"8", 0, 1, "N", "北"},
};

TEST(IceEdge, LiesWhereTheCodeSaysAndItsPointOfTheCompassIsMarked) {
  for (const Bearing& row : kBearings) {
    const ui::Drawing rose = codetables::ice_edge(row.code, kEnglish);
    ASSERT_EQ(areas(rose, Ink::kIce), 1) << row.code;
    ASSERT_EQ(areas(rose, Ink::kWater), 1) << row.code;
    for (const ui::Area& area : all<ui::Area>(rose)) {
      ui::Point middle;
      for (const ui::Point point : area.outline) {
        middle.x += point.x / static_cast<double>(area.outline.size());
        middle.y += point.y / static_cast<double>(area.outline.size());
      }
      // The water lies on the other side.
      const double side = area.ink == Ink::kIce ? 1 : -1;
      const double away = std::hypot(middle.x, middle.y);
      EXPECT_NEAR(side * middle.x / away, row.east / std::hypot(row.east, row.north), 0.02);
      EXPECT_NEAR(side * middle.y / away, row.north / std::hypot(row.east, row.north), 0.02);
    }
    int marked = 0;
    for (const ui::ShortText& text : all<ui::ShortText>(rose)) {
      if (text.ink != Ink::kMark) continue;
      ++marked;
      EXPECT_EQ(text.text, row.english);
    }
    EXPECT_EQ(marked, 1) << row.code;
  }
}

TEST(IceEdge, NamesEveryPointOfTheCompassInItsPlaceInBothLanguages) {
  for (const bool japanese : {false, true}) {
    const ui::Drawing rose =
        codetables::ice_edge("", japanese ? text::Language::kJapanese : kEnglish);
    const auto texts = all<ui::ShortText>(rose);
    ASSERT_EQ(texts.size(), 8U);
    for (const Bearing& row : kBearings) {
      const auto at = std::find_if(texts.begin(), texts.end(), [&](const ui::ShortText& text) {
        return text.text == (japanese ? row.japanese : row.english);
      });
      ASSERT_NE(at, texts.end()) << row.english;
      EXPECT_NEAR(std::atan2(at->at.x, at->at.y), std::atan2(row.east, row.north), 1e-9);
    }
  }
}

TEST(IceEdge, HasTheShipInTheMiddleWhateverTheCode) {
  for (const char* const code : {"", "0", "1", "8", "9", "/", "x", "\xff", "10"}) {
    const auto ships = all<ui::Marker>(codetables::ice_edge(code, kEnglish));
    ASSERT_EQ(ships.size(), 1U) << code;
    EXPECT_EQ(ships[0].at, ui::Point{});
  }
}

TEST(IceEdge, IsAroundAShipInALeadAndAShipInTheIceOnly) {
  const ui::Drawing lead = codetables::ice_edge("0", kEnglish);
  EXPECT_EQ(areas(lead, Ink::kIce), 1);
  EXPECT_EQ(areas(lead, Ink::kWater), 1);
  EXPECT_LT(size_of(all<ui::Area>(lead)[1].outline), size_of(all<ui::Area>(lead)[0].outline) / 2);
  const ui::Drawing ice = codetables::ice_edge("9", kEnglish);
  EXPECT_EQ(areas(ice, Ink::kIce), 1);
  EXPECT_EQ(areas(ice, Ink::kWater), 0);
  for (const char* const code : {"", "/", "x", "10", "\xff"})
    EXPECT_TRUE(all<ui::Area>(codetables::ice_edge(code, kEnglish)).empty()) << code;
}

struct Tenths {
  const char* code;
  int least;
  int most;
  const char* says;
};

// Of the twenty cells a tenth is two.
TEST(IceField, HasAsManyTenthsOfFloesAsItsLineSays) {
  for (const Tenths& row :
       {Tenths{"0", 0, 0, "ci 0"}, Tenths{"2", 0, 2, "ci 2: < 3/10"},
        Tenths{"3", 4, 6, "ci 3: 4/10 - 6/10"}, Tenths{"4", 7, 8, "ci 4: 7/10 - 8/10"},
        Tenths{"5", 9, 9, "ci 5: >= 9/10, < 10/10"}}) {
    const ui::Drawing field = codetables::ice_field(row.code);
    EXPECT_EQ(floes(field, false), row.least * 2) << row.code;
    EXPECT_EQ(floes(field, false) + floes(field, true), row.most * 2) << row.code;
    EXPECT_EQ(areas(field, Ink::kIce), row.least * 2) << row.code;
    EXPECT_EQ(areas(field, Ink::kWater), 1);
    ASSERT_EQ(all<ui::ShortText>(field).size(), 1U);
    EXPECT_EQ(all<ui::ShortText>(field)[0].text, row.says);
  }
}

// Columns in which there is ice, from the left to the right.
std::string columns(const ui::Drawing& field) {
  std::string found(10, '.');
  for (const ui::Area& area : all<ui::Area>(field)) {
    if (area.ink != Ink::kIce) continue;
    double left = 10;
    double right = 0;
    for (const ui::Point point : area.outline) {
      left = std::min(left, point.x);
      right = std::max(right, point.x);
    }
    const bool fast = area.outline.size() == 4;
    for (int column = 0; column < 10; ++column) {
      if (column + 0.5 > left && column + 0.5 < right)
        found[static_cast<std::size_t>(column)] = fast ? '#' : 'o';
    }
  }
  return found;
}

TEST(IceField, ShowsStripsAndFastIceWhereTheConcentrationIsNotUniform) {
  const std::string strips = columns(codetables::ice_field("6"));
  EXPECT_NE(strips.find("o."), std::string::npos) << strips;
  EXPECT_NE(strips.find(".o"), std::string::npos) << strips;
  EXPECT_EQ(strips.find('#'), std::string::npos) << strips;
  EXPECT_EQ(columns(codetables::ice_field("8")).substr(0, 3), "###");
  EXPECT_EQ(columns(codetables::ice_field("9")).substr(0, 3), "###");
  EXPECT_LT(floes(codetables::ice_field("8"), false), floes(codetables::ice_field("9"), false));
  EXPECT_LT(floes(codetables::ice_field("6"), false), floes(codetables::ice_field("7"), false));
  EXPECT_EQ(columns(codetables::ice_field("1")), "###....###");
  EXPECT_EQ(all<ui::Marker>(codetables::ice_field("1")).size(), 1U);
}

TEST(IceField, IsEmptyWhereNothingIsKnown) {
  EXPECT_TRUE(codetables::ice_field("").shapes.empty());
  for (const char* const code : {"/", "x", "10", "\xff"}) {
    EXPECT_TRUE(all<ui::Area>(codetables::ice_field(code)).empty()) << code;
    EXPECT_EQ(all<ui::ShortText>(codetables::ice_field(code))[0].text, "ci " + std::string(code));
  }
}

}  // namespace
