#include "paper/stroke.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <numbers>
#include <utility>

namespace paper {
namespace {

using Points = std::vector<ui::Point>;

ui::Point operator+(ui::Point a, ui::Point b) {
  return {a.x + b.x, a.y + b.y};
}
ui::Point operator-(ui::Point a, ui::Point b) {
  return {a.x - b.x, a.y - b.y};
}
ui::Point operator*(ui::Point a, double by) {
  return {a.x * by, a.y * by};
}
double length(ui::Point a) {
  return std::hypot(a.x, a.y);
}

double turning(const Points& outline) {
  double area = 0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const ui::Point a = outline[i];
    const ui::Point b = outline[(i + 1) % outline.size()];
    area += a.x * b.y - b.x * a.y;
  }
  return area;
}

// Without points that repeat the one before: a piece between them has no direction.
Points without_repeats(const Points& line) {
  Points kept;
  std::copy_if(line.begin(), line.end(), std::back_inserter(kept), [&kept](ui::Point point) {
    return kept.empty() || length(point - kept.back()) > 1e-9;
  });
  return kept;
}

// A line far beyond what is shown; no sheet of paper has so many.
bool has_too_many_dashes(const Points& line, double width) {
  constexpr double kMost = 20'000;
  double rest = kMost * width * (kDash + kGap);
  for (std::size_t i = 1; i < line.size() && rest >= 0; ++i) rest -= length(line[i] - line[i - 1]);
  return rest < 0;
}

std::vector<Points> dashes_of(const Points& line, double width) {
  std::vector<Points> dashes;
  Points dash{line.front()};
  bool draws = true;
  double left = width * kDash;  // of the dash or the gap that is under way
  for (std::size_t i = 1; i < line.size(); ++i) {
    ui::Point from = line[i - 1];
    double rest = length(line[i] - from);
    const ui::Point along = (line[i] - from) * (1 / rest);
    while (rest > left) {
      from = from + along * left;
      rest -= left;
      if (draws) {
        dash.push_back(from);
        dashes.push_back(std::exchange(dash, {}));
      } else {
        dash = {from};
      }
      draws = !draws;
      left = width * (draws ? kDash : kGap);
    }
    left -= rest;
    if (draws) dash.push_back(line[i]);
  }
  if (draws && dash.size() > 1) dashes.push_back(std::move(dash));
  return dashes;
}

class Stroke {
 public:
  explicit Stroke(const Pen& pen) : pen_(pen), half_(pen.width / 2), beyond_(pen.dashed ? 0 : 1) {}

  void draw(const Points& line) {
    for (std::size_t i = 1; i < line.size(); ++i) {
      const ui::Point step = line[i] - line[i - 1];
      const ui::Point along = step * (half_ / length(step));
      const ui::Point aside{-along.y, along.x};
      const ui::Point from = i == 1 ? line[i - 1] - along * beyond_ : line[i - 1];
      const ui::Point to = i + 1 == line.size() ? line[i] + along * beyond_ : line[i];
      add({from + aside, to + aside, to - aside, from - aside});
      if (i + 1 == line.size()) continue;
      if (pen_.sharp) {
        corner(line[i], along, line[i + 1] - line[i]);
      } else {
        add(circle_of(line[i], half_));
      }
    }
  }

  [[nodiscard]] std::vector<Points> outlines() && { return std::move(outlines_); }

 private:
  // The edges go on until they meet, but not far beyond the corner.
  void corner(ui::Point at, ui::Point along, ui::Point next) {
    constexpr double kFarthest = 2;  // half widths
    const ui::Point on = next * (half_ / length(next));
    const double side = along.x * on.y - along.y * on.x > 0 ? -1 : 1;
    const ui::Point first = ui::Point{-along.y, along.x} * side;
    const ui::Point last = ui::Point{-on.y, on.x} * side;
    const ui::Point middle = (first + last) * 0.5;
    const double away = length(middle);
    Points outline{at, at + first, at + last};
    if (away * kFarthest > half_)
      outline.insert(outline.begin() + 2, at + middle * (half_ * half_ / (away * away)));
    add(std::move(outline));
  }

  void add(Points outline) {
    if (turning(outline) > 0) std::reverse(outline.begin(), outline.end());
    outlines_.push_back(std::move(outline));
  }

  const Pen& pen_;
  double half_;
  double beyond_;  ///< half widths that its ends reach beyond their points
  std::vector<Points> outlines_;
};

}  // namespace

std::vector<Points> outlines_of(const Points& line, const Pen& pen) {
  const Points points = without_repeats(line);
  if (points.size() < 2 || !(pen.width > 0)) return {};
  Stroke stroke(pen);
  if (!pen.dashed || has_too_many_dashes(points, pen.width)) {
    stroke.draw(points);
  } else {
    for (const Points& dash : dashes_of(points, pen.width)) stroke.draw(dash);
  }
  return std::move(stroke).outlines();
}

Points circle_of(ui::Point centre, double radius) {
  constexpr double kOff = 0.1;
  constexpr int kFewest = 12;
  const double turn = 2 * std::numbers::pi;
  int sides = kFewest;
  if (radius > 1)
    sides = std::max(sides, static_cast<int>(std::ceil(turn / (2 * std::acos(1 - kOff / radius)))));
  Points outline;
  for (int i = 0; i < sides; ++i) {
    const double angle = -turn * i / sides;
    outline.push_back({centre.x + std::cos(angle) * radius, centre.y + std::sin(angle) * radius});
  }
  return outline;
}

}  // namespace paper
