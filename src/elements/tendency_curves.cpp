#include "elements/tendency_curves.h"

#include <array>
#include <vector>

namespace elements {
namespace {

struct Curve {
  char characteristic;
  std::array<ui::Point, 3> points;
};

// Where the words name two forms, the first of them is drawn.
constexpr Curve kCurves[] = {
    {'0', {{{0, 0.3}, {0.6, 0.9}, {1, 0.5}}}},  // up, then down; not below where it began
    {'1', {{{0, 0.1}, {0.5, 0.9}, {1, 0.9}}}},  // up, then steady
    {'2', {{{0, 0.1}, {0.5, 0.5}, {1, 0.9}}}},  // up
    {'3', {{{0, 0.4}, {0.4, 0.1}, {1, 0.9}}}},  // down, then up; above where it began
    {'4', {{{0, 0.5}, {0.5, 0.5}, {1, 0.5}}}},  // steady
    {'5', {{{0, 0.7}, {0.6, 0.1}, {1, 0.5}}}},  // down, then up; not above where it began
    {'6', {{{0, 0.9}, {0.5, 0.1}, {1, 0.1}}}},  // down, then steady
    {'7', {{{0, 0.9}, {0.5, 0.5}, {1, 0.1}}}},  // down
    {'8', {{{0, 0.6}, {0.4, 0.9}, {1, 0.1}}}},  // up, then down; below where it began
};

constexpr int kCells = 4;  // the most that one kind of tendency offers
constexpr double kTop = 1.5;

}  // namespace

std::span<const ui::Point> tendency_curve(char characteristic) {
  for (const Curve& curve : kCurves) {
    if (curve.characteristic == characteristic) return curve.points;
  }
  return {};
}

std::shared_ptr<const ui::Drawing> tendency_drawing(std::string_view characteristics, int chosen) {
  constexpr double kMargin = 0.15;
  ui::Drawing drawing;
  drawing.x = {"curve", 0, kCells};
  drawing.y = {"pressure", 0, kTop};
  drawing.characters = 40;
  drawing.lines = 5;
  int cell = 0;
  for (const char characteristic : characteristics) {
    const auto curve = tendency_curve(characteristic);
    if (!curve.empty()) {
      const ui::Ink ink = cell == chosen ? ui::Ink::kMark : ui::Ink::kText;
      std::vector<ui::Point> points;
      for (const ui::Point point : curve)
        points.push_back({cell + kMargin + point.x * (1 - 2 * kMargin), point.y});
      drawing.shapes.emplace_back(
          ui::ShortText{{cell + 0.5, 1.25}, std::string(1, characteristic), {}, ink});
      drawing.shapes.emplace_back(ui::Polyline{std::move(points), ink, cell == chosen});
    }
    ++cell;
  }
  return std::make_shared<const ui::Drawing>(std::move(drawing));
}

int tendency_cell(ui::Point place) {
  return static_cast<int>(place.x);
}

}  // namespace elements
