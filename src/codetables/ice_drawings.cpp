#include "codetables/ice_drawings.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <vector>

#include "codetables/compass.h"
#include "text/ids.h"

namespace codetables {
namespace {

namespace id = text::id;
using ui::Ink;
using ui::Point;

std::string word(text::Id text, text::Language language) {
  return std::string(text::bilingual(text, language));
}

// ---- The rose

constexpr double kEdge = 0.45;      // of the ice from the ship; the sea in sight reaches to 1
constexpr double kLead = 0.22;      // half the width of a lead
constexpr double kNames = 1.17;     // of the points of the compass
constexpr double kHalfRoom = 1.36;  // with the names

// One row a bearing: code figure, degrees from the north clockwise.
struct Bearing {
  std::string_view figures;
  int degrees;
  text::Id name;
};
constexpr Bearing kBearings[] = {
    {"1", 45, id::kCompassNortheast},  {"2", 90, id::kCompassEast},
    {"3", 135, id::kCompassSoutheast}, {"4", 180, id::kCompassSouth},
    {"5", 225, id::kCompassSouthwest}, {"6", 270, id::kCompassWest},
    {"7", 315, id::kCompassNorthwest}, {"8", 360, id::kCompassNorth},
};
constexpr std::string_view kShipInLead = "0";
constexpr std::string_view kShipInIce = "9";

// Along the horizon clockwise.
std::vector<Point> arc(double from, double to) {
  constexpr int kSteps = 36;
  std::vector<Point> points;
  for (int i = 0; i <= kSteps; ++i)
    points.push_back(at_bearing(from + (to - from) * i / kSteps, 1));
  return points;
}

void append(std::vector<Point>& points, const std::vector<Point>& more) {
  points.insert(points.end(), more.begin(), more.end());
}

// Water on the ship's side of the edge, ice beyond it.
void add_edge(ui::Drawing& rose, double bearing, text::Language language) {
  const double half = std::acos(kEdge) / kRadiansInADegree;
  rose.shapes.emplace_back(ui::Area{arc(bearing + half, bearing - half + 360), Ink::kWater});
  rose.shapes.emplace_back(ui::Area{arc(bearing - half, bearing + half), Ink::kIce});
  rose.shapes.emplace_back(ui::Polyline{
      {at_bearing(bearing - half, 1), at_bearing(bearing + half, 1)}, Ink::kMark, true});
  rose.shapes.emplace_back(ui::Polyline{{{}, at_bearing(bearing, kEdge)}, Ink::kMark, false, true});
  rose.shapes.emplace_back(
      ui::ShortText{at_bearing(bearing, (1 + kEdge) / 2), word(id::kIceOnDrawing, language)});
}

// Ice all around, but for the lead.
void add_ice(ui::Drawing& rose, bool with_lead, text::Language language) {
  rose.shapes.emplace_back(ui::Area{arc(0, 360), Ink::kIce});
  if (with_lead) {
    const double half = std::asin(kLead) / kRadiansInADegree;
    std::vector<Point> water = arc(90 - half, 90 + half);
    append(water, arc(270 - half, 270 + half));
    rose.shapes.emplace_back(ui::Area{water, Ink::kWater});
    for (const double side : {-1.0, 1.0}) {
      rose.shapes.emplace_back(ui::Polyline{
          {at_bearing(270 + side * half, 1), at_bearing(90 - side * half, 1)}, Ink::kMark, true});
    }
  }
  for (const double side : {0.0, 180.0}) {
    rose.shapes.emplace_back(
        ui::ShortText{at_bearing(side, (1 + kLead) / 2), word(id::kIceOnDrawing, language)});
  }
}

// ---- The field of ice

constexpr int kAcross = 10;
constexpr int kUp = 2;

// One row a code: how many tenths of the water are covered from the left to the right, "#" for fast
// ice without a gap.
struct Field {
  std::string_view figures;
  std::string_view tenths;   ///< at least
  std::string_view to = {};  ///< at most, where that is more
  std::string_view says = {};
};
constexpr Field kFields[] = {
    {"0", "0000000000"},
    {"1", "###0000###"},
    {"2", "0000000000", "2222222222", "< 3/10"},
    {"3", "4444444444", "6666666666", "4/10 - 6/10"},
    {"4", "7777777777", "8888888888", "7/10 - 8/10"},
    {"5", "9999999999", {}, ">= 9/10, < 10/10"},
    {"6", "0880008800"},
    {"7", "4994449944"},
    {"8", "###2222222", "###4444444"},
    {"9", "###7777777", "###9999999"},
};
constexpr std::string_view kShipInOpenLead = "1";

// Every tenth of the cells has the same rank of 0 to 9, and no two of them are neighbours.
int rank(int column, int row) {
  return (3 * column + 5 * row) % 10;
}

bool covers(std::string_view tenths, int column, int row) {
  if (tenths.empty()) return false;
  const char figure = tenths[static_cast<std::size_t>(column)];
  return rank(column, row) < figure - '0';
}

// Six corners, cut otherwise from floe to floe.
std::vector<Point> floe(int column, int row) {
  const double cut = 0.16 + 0.05 * (rank(column, row) % 3);
  const double left = column + 0.06;
  const double right = column + 0.94;
  const double low = row + 0.08;
  const double high = row + 0.92;
  return {{left + cut, low},       {right, low + cut}, {right - cut / 2, high - cut},
          {right - 2 * cut, high}, {left, high - cut}, {left + cut / 3, low + cut}};
}

std::vector<Point> closed(std::vector<Point> outline) {
  outline.push_back(outline.front());
  return outline;
}

void add_fast_ice(ui::Drawing& drawing, std::string_view tenths) {
  for (std::size_t from = tenths.find('#'); from < tenths.size();) {
    const std::size_t to = std::min(tenths.find_first_not_of('#', from), tenths.size());
    const auto left = static_cast<double>(from);
    const auto right = static_cast<double>(to);
    drawing.shapes.emplace_back(
        ui::Area{{{left, 0}, {right, 0}, {right, kUp}, {left, kUp}}, Ink::kIce});
    for (const double edge : {left, right}) {
      if (edge > 0 && edge < kAcross)
        drawing.shapes.emplace_back(ui::Polyline{{{edge, 0}, {edge, kUp}}, Ink::kMark, true});
    }
    from = tenths.find('#', to);
  }
}

void add_floes(ui::Drawing& drawing, const Field& field) {
  for (int column = 0; column < kAcross; ++column) {
    for (int row = 0; row < kUp; ++row) {
      const bool there = covers(field.tenths, column, row);
      if (!there && !covers(field.to, column, row)) continue;
      if (there) drawing.shapes.emplace_back(ui::Area{floe(column, row), Ink::kIce});
      drawing.shapes.emplace_back(
          ui::Polyline{closed(floe(column, row)), there ? Ink::kText : Ink::kMark, false, !there});
    }
  }
}

}  // namespace

ui::Drawing ice_edge(std::string_view figures, text::Language language) {
  ui::Drawing rose;
  rose.x = {"east", -kHalfRoom, kHalfRoom};
  rose.y = {"north", -kHalfRoom, kHalfRoom};
  rose.same_scale = true;
  rose.characters = 34;
  rose.lines = 14;
  if (figures == kShipInLead || figures == kShipInIce)
    add_ice(rose, figures == kShipInLead, language);
  for (const Bearing& bearing : kBearings) {
    if (bearing.figures == figures) add_edge(rose, bearing.degrees, language);
  }
  rose.shapes.emplace_back(ui::Polyline{arc(0, 360)});
  for (const Bearing& bearing : kBearings) {
    const bool chosen = bearing.figures == figures;
    rose.shapes.emplace_back(
        ui::ShortText{at_bearing(bearing.degrees, kNames), word(bearing.name, language),
                      ui::ShortText::Side::kCentre, chosen ? Ink::kMark : Ink::kText});
  }
  rose.shapes.emplace_back(ui::Marker{});
  return rose;
}

ui::Drawing ice_field(std::string_view figures) {
  constexpr double kTextRoom = 0.7;
  ui::Drawing drawing;
  drawing.x = {"", 0, kAcross};
  drawing.y = {"", 0, kUp + kTextRoom};
  drawing.characters = 60;
  drawing.lines = 6;
  const auto* const field = std::find_if(std::begin(kFields), std::end(kFields),
                                         [&](const Field& row) { return row.figures == figures; });
  const Point above{kAcross / 2.0, kUp + kTextRoom / 2};
  if (figures.empty()) return drawing;
  std::string says = std::string("ci ").append(figures);
  if (field == std::end(kFields)) {
    drawing.shapes.emplace_back(ui::ShortText{{kAcross / 2.0, kUp / 2.0}, "?"});
    drawing.shapes.emplace_back(ui::ShortText{above, says});
    return drawing;
  }
  drawing.shapes.emplace_back(
      ui::Area{{{0, 0}, {kAcross, 0}, {kAcross, kUp}, {0, kUp}}, Ink::kWater});
  add_fast_ice(drawing, field->tenths);
  add_floes(drawing, *field);
  if (figures == kShipInOpenLead)
    drawing.shapes.emplace_back(ui::Marker{{kAcross / 2.0, kUp / 2.0}});
  if (!field->says.empty()) says.append(": ").append(field->says);
  drawing.shapes.emplace_back(ui::ShortText{above, says});
  return drawing;
}

}  // namespace codetables
