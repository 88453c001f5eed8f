#include "codetables/wave_drawings.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "codetables/compass.h"
#include "codetables/tables/sea_waves.h"
#include "text/numbers.h"

namespace codetables {
namespace {

using ui::Area;
using ui::Drawing;
using ui::Ink;
using ui::Point;
using ui::Polyline;
using ui::ShortText;

// ---- Heights. Across: shares of the drawing's width; up: metres above the trough.

constexpr double kLowest = -4.0;
constexpr double kHighest = 17.0;
constexpr double kLeft = 12.0;  // the scale's figures stand left of it
constexpr double kRight = 100.0;
constexpr double kCrests = 3.0;  // in the drawing

struct Outline {
  Ink ink;
  std::vector<Point> points;
};

// A cargo ship with 8 metres of freeboard, its bow on the right.
const std::vector<Outline>& ship() {
  static const std::vector<Outline> kShip = {
      {Ink::kFaint, {{26, kLowest}, {23, 8}, {84, 8}, {93, 9.5}, {87, kLowest}}},
      {Ink::kLand,
       {{27, 8}, {27, 15}, {30, 15}, {30, 16.5}, {34, 16.5}, {34, 15}, {38, 15}, {38, 8}}},
  };
  return kShip;
}

constexpr double kScale[] = {0, 5, 10, 15};  // metres

// A comb, as one line.
void add_scale(Drawing& drawing) {
  Polyline line{{}, Ink::kFaint};
  for (const double metres : kScale)
    line.points.insert(line.points.end(), {{kLeft, metres}, {kRight, metres}, {kLeft, metres}});
  drawing.shapes.emplace_back(std::move(line));
  for (const double metres : kScale)
    drawing.shapes.emplace_back(ShortText{{kLeft / 2, metres},
                                          text::format_fixed(metres, 0).append(" m"),
                                          ShortText::Side::kCentre,
                                          Ink::kText});
}

// The surface of waves of this height, the middle crest amidships.
std::vector<Point> surface(double height) {
  std::vector<Point> points;
  constexpr int kPoints = 36;
  for (int i = 0; i <= kPoints; ++i) {
    const double share = static_cast<double>(i) / kPoints;
    const double phase = (share - 0.5) * kCrests * 2.0 * std::numbers::pi;
    points.push_back({kLeft + share * (kRight - kLeft), height / 2.0 * (1.0 + std::cos(phase))});
  }
  return points;
}

// ---- Directions. A compass card of radius 1 around the ship.

constexpr double kEdge = 1.3;

// The rim with a mark every 30 degrees, as one line.
std::vector<Point> rim() {
  std::vector<Point> points;
  for (int degrees = 0; degrees <= 360; degrees += 10) {
    points.push_back(at_bearing(degrees, 1.0));
    if (degrees % 30 != 0) continue;
    points.push_back(at_bearing(degrees, 0.92));
    points.push_back(at_bearing(degrees, 1.0));
  }
  return points;
}

void add_card(Drawing& drawing) {
  drawing.shapes.emplace_back(Polyline{rim(), Ink::kFaint});
  static constexpr std::pair<int, const char*> kPoints[] = {
      {0, "N"}, {90, "E"}, {180, "S"}, {270, "W"}};
  for (const auto& [degrees, name] : kPoints)
    drawing.shapes.emplace_back(
        ShortText{at_bearing(degrees, 1.15), name, ShortText::Side::kCentre, Ink::kText});
}

// From the rim to near the ship, with a head.
void add_arrow(Drawing& drawing, double degrees, const std::string& name) {
  constexpr double kHead = 0.2;
  const Point tip = at_bearing(degrees, 0.2);
  drawing.shapes.emplace_back(Polyline{{at_bearing(degrees, 0.9), tip}, Ink::kMark, true});
  const Point across = at_bearing(degrees + 90, kHead / 2);
  const Point back = at_bearing(degrees, 0.2 + kHead);
  drawing.shapes.emplace_back(
      Area{{tip, {back.x + across.x, back.y + across.y}, {back.x - across.x, back.y - across.y}},
           Ink::kMark});
  const Point beside = at_bearing(degrees + 16, 0.72);
  drawing.shapes.emplace_back(ShortText{beside, name, ShortText::Side::kCentre, Ink::kText});
}

}  // namespace

std::shared_ptr<const Drawing> drawn_heights(const std::vector<DrawnWaves>& waves,
                                             std::optional<double> reference) {
  Drawing drawing;
  drawing.x = {"along the ship", 0, 100};
  drawing.y = {"metres", kLowest, kHighest};
  drawing.characters = 34;
  drawing.lines = 8;
  for (const Outline& outline : ship())
    drawing.shapes.emplace_back(Area{outline.points, outline.ink});
  bool filled = false;
  for (const DrawnWaves& row : waves) {
    if (!row.metres) continue;
    std::vector<Point> points = surface(*row.metres);
    if (!filled) {
      std::vector<Point> outline = points;
      outline.insert(outline.end(), {{kRight, kLowest}, {kLeft, kLowest}});
      drawing.shapes.emplace_back(Area{std::move(outline), Ink::kWater});
    }
    drawing.shapes.emplace_back(Polyline{std::move(points), Ink::kMark, !filled});
    filled = true;
  }
  add_scale(drawing);
  if (reference)
    drawing.shapes.emplace_back(
        Polyline{{{kLeft, *reference}, {kRight, *reference}}, Ink::kCaution, false, true});
  // Each name over a crest of its own, clear of the highest waves and still in the drawing.
  double highest = 0;
  for (const DrawnWaves& row : waves) highest = std::max(highest, row.metres.value_or(0));
  highest = std::min(highest, kScale[3]);
  double crest = (kLeft + kRight) / 2;
  for (const DrawnWaves& row : waves) {
    if (row.metres.value_or(0) <= 0) continue;  // no waves have no crest
    drawing.shapes.emplace_back(
        ShortText{{crest, highest}, row.name, ShortText::Side::kAbove, Ink::kText});
    crest += (kRight - kLeft) / kCrests;
  }
  return std::make_shared<const Drawing>(std::move(drawing));
}

std::shared_ptr<const Drawing> drawn_directions(
    const std::vector<std::optional<double>>& directions) {
  Drawing drawing;
  drawing.x = {"east", -kEdge, kEdge};
  drawing.y = {"north", -kEdge, kEdge};
  drawing.same_scale = true;
  drawing.characters = 17;
  drawing.lines = 8;
  add_card(drawing);
  for (std::size_t i = 0; i < directions.size(); ++i) {
    const double tens = directions[i].value_or(0);
    if (tens >= 1 && tens <= kNorthInTens)
      add_arrow(drawing, tens * 10.0, text::format_int(static_cast<long long>(i) + 1));
  }
  return std::make_shared<const Drawing>(std::move(drawing));
}

}  // namespace codetables
