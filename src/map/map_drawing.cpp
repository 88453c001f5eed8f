#include "map/map_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "text/ids.h"
#include "text/numbers.h"

namespace id = text::id;

namespace map {
namespace {

using ui::Area;
using ui::Drawing;
using ui::Ink;
using ui::Marker;
using ui::Point;
using ui::Polyline;
using ui::ShortText;

constexpr int kMinutes = 60;  // of a degree

struct Box {
  double west = 0;
  double south = 0;
  double east = 0;
  double north = 0;
  [[nodiscard]] bool is_empty() const { return !(west < east && south < north); }
};

Box common(const Box& a, const Box& b) {
  return {std::max(a.west, b.west), std::max(a.south, b.south), std::min(a.east, b.east),
          std::min(a.north, b.north)};
}

// Cuts a polygon off at one side of a box, and again for the next (Sutherland and Hodgman). What is
// outside becomes edges along the box, which nobody sees: it is larger than the view.
template <class Inside, class Cut>
std::vector<Point> cut_off(const std::vector<Point>& outline, Inside inside, Cut cut) {
  std::vector<Point> kept;
  if (outline.empty()) return kept;
  kept.reserve(outline.size() + 4);
  Point from = outline.back();
  for (const Point to : outline) {
    if (inside(from) != inside(to)) kept.push_back(cut(from, to));
    if (inside(to)) kept.push_back(to);
    from = to;
  }
  return kept;
}

std::vector<Point> within(std::vector<Point> outline, const Box& box) {
  const auto at_x = [](double x) {
    return [x](Point a, Point b) { return Point{x, a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x)}; };
  };
  const auto at_y = [](double y) {
    return [y](Point a, Point b) { return Point{a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y), y}; };
  };
  outline = cut_off(
      outline, [&](Point p) { return p.x >= box.west; }, at_x(box.west));
  outline = cut_off(
      outline, [&](Point p) { return p.x <= box.east; }, at_x(box.east));
  outline = cut_off(
      outline, [&](Point p) { return p.y >= box.south; }, at_y(box.south));
  return cut_off(
      outline, [&](Point p) { return p.y <= box.north; }, at_y(box.north));
}

// Land and sea of the tiles in a view, thinned to what can be seen.
class Ground {
 public:
  Ground(const MapView& view, int pixels, Drawing& drawing)
      : view_(view), drawing_(drawing), pixel_(view.height() / pixels) {
    constexpr double kMargin = 3.0;  // pixels: a line along the cut must not show
    const double up = kMargin * pixel_;
    const double across = up / view.x_unit;
    box_ = {view.west - across, view.south - up, view.east + across, view.north + up};
    columns_ = static_cast<std::size_t>((box_.east - box_.west) * view.x_unit / cell()) + 1;
    rows_ = static_cast<std::size_t>((box_.north - box_.south) / cell()) + 1;
    seen_.resize(columns_ * rows_);
  }

  /// Empty for a tile that only touches the view: it need not be read.
  [[nodiscard]] Box part_of(const Tile& tile, int turn) const {
    const Box all{static_cast<double>(tile.west + turn), static_cast<double>(tile.south),
                  static_cast<double>(tile.east + turn), static_cast<double>(tile.north)};
    const Box view{view_.west, view_.south, view_.east, view_.north};
    return common(view, all).is_empty() ? Box{} : common(box_, all);
  }

  void add_sea(const Box& part) {
    Area sea;
    sea.ink = Ink::kWater;
    sea.outline = {{part.west, part.south},
                   {part.east, part.south},
                   {part.east, part.north},
                   {part.west, part.north}};
    drawing_.ground.emplace_back(std::move(sea));
  }

  void add_land(const Coast& coast, int turn) {
    for (const Ring& ring : coast.rings()) {
      const Point low = point_of(ring.south_west, turn);
      const Point high = point_of(ring.north_east, turn);
      if (common(box_, {low.x, low.y, high.x, high.y}).is_empty() && !is_seen(low, high)) continue;
      add_ring(coast, ring, turn);
    }
  }

  // The lines of the coast lie over all land, the specks of the islands over these.
  void finish() {
    for (Polyline& line : lines_) drawing_.ground.emplace_back(std::move(line));
    for (const Point island : islands_) {
      if (const auto place = cell_of(island); place && !seen_[*place]) {
        seen_[*place] = true;
        drawing_.ground.emplace_back(Marker{island, Marker::Sign::kSpeck, Ink::kCoast});
      }
    }
  }

 private:
  // Specks nearer to a coast, or to one another, than this would only be a smear.
  [[nodiscard]] double cell() const { return 4 * pixel_; }

  static Point point_of(CoastPoint point, int turn) {
    return {static_cast<double>(point.longitude) / kUnitsOfDegree + turn,
            static_cast<double>(point.latitude) / kUnitsOfDegree};
  }

  // A ring that has no width is not within a box by the space that they share.
  [[nodiscard]] bool is_seen(Point low, Point high) const {
    return low.x <= box_.east && high.x >= box_.west && low.y <= box_.north && high.y >= box_.south;
  }

  [[nodiscard]] double distance(Point a, Point b) const {
    return std::max(std::abs(a.x - b.x) * view_.x_unit, std::abs(a.y - b.y));
  }

  [[nodiscard]] std::optional<std::size_t> cell_of(Point point) const {
    if (!is_seen(point, point)) return std::nullopt;
    const auto column = static_cast<std::size_t>((point.x - box_.west) * view_.x_unit / cell());
    const auto row = static_cast<std::size_t>((point.y - box_.south) / cell());
    return std::min(row, rows_ - 1) * columns_ + std::min(column, columns_ - 1);
  }

  void add_ring(const Coast& coast, const Ring& ring, int turn) {
    const Point low = point_of(ring.south_west, turn);
    const Point high = point_of(ring.north_east, turn);
    const bool is_small = distance(low, high) < 1.5 * pixel_;
    std::vector<CoastPoint> kept;
    if (!is_small) kept = thinned(coast, ring);
    if (kept.size() < 3 && !ring.water)
      islands_.push_back({(low.x + high.x) / 2, (low.y + high.y) / 2});
    if (is_small) return;
    std::vector<Point> outline;
    outline.reserve(kept.size());
    for (const CoastPoint point : kept) outline.push_back(point_of(point, turn));
    add_lines(coast, kept, outline);
    Area area;
    area.ink = ring.water ? Ink::kWater : Ink::kLand;
    area.outline = within(std::move(outline), box_);
    if (area.outline.size() > 2) drawing_.ground.emplace_back(std::move(area));
  }

  // Points a pixel apart. Those on a limit of the tile stay, for the neighbour goes on from there.
  [[nodiscard]] std::vector<CoastPoint> thinned(const Coast& coast, const Ring& ring) const {
    const Tile& tile = coast.tile();
    const auto is_on_limit = [&tile](CoastPoint point) {
      return point.longitude == tile.west * kUnitsOfDegree ||
             point.longitude == tile.east * kUnitsOfDegree ||
             point.latitude == tile.north * kUnitsOfDegree ||
             point.latitude == tile.south * kUnitsOfDegree;
    };
    std::vector<CoastPoint> kept;
    for (const CoastPoint point : ring.points) {
      if (kept.empty() || is_on_limit(point) ||
          distance(point_of(kept.back(), 0), point_of(point, 0)) >= pixel_)
        kept.push_back(point);
    }
    return kept;
  }

  // The coast is drawn; where the tile was cut it is none.
  void add_lines(const Coast& coast, const std::vector<CoastPoint>& points,
                 const std::vector<Point>& outline) {
    Polyline line;
    line.ink = Ink::kCoast;
    const auto end_line = [&] {
      if (line.points.size() > 1) lines_.push_back(line);
      line.points.clear();
    };
    for (std::size_t i = 0; i < outline.size(); ++i) {
      const std::size_t next = i + 1 < outline.size() ? i + 1 : 0;
      const Point from = outline[i];
      const Point to = outline[next];
      const Point low{std::min(from.x, to.x), std::min(from.y, to.y)};
      const Point high{std::max(from.x, to.x), std::max(from.y, to.y)};
      if (coast.is_cut(points[i], points[next]) || !is_seen(low, high)) {
        end_line();
        continue;
      }
      if (line.points.empty()) line.points.push_back(from);
      line.points.push_back(to);
      if (const auto place = cell_of(to)) seen_[*place] = true;
    }
    end_line();
  }

  const MapView& view_;
  Drawing& drawing_;
  double pixel_;  ///< in degrees of latitude
  Box box_;       ///< somewhat larger than the view
  std::size_t columns_ = 0;
  std::size_t rows_ = 0;
  std::vector<bool> seen_;  ///< cells that hold a coast or an island
  std::vector<Polyline> lines_;
  std::vector<Point> islands_;
};

// In the half of the part where the ship is not.
void add_no_map(const Box& part, const MapView& view, double ship_latitude,
                const text::Texts& texts, Drawing& drawing) {
  constexpr double kSmallest = 0.25;  // in heights of the map: in less the words have no room
  // What is farther aside may be cut off.
  const double aside = view.height() / 2 / view.x_unit;
  const Box seen =
      common(part, {view.middle() - aside, view.south, view.middle() + aside, view.north});
  if (seen.is_empty() || seen.north - seen.south < kSmallest * view.height() ||
      (seen.east - seen.west) * view.x_unit < kSmallest * view.height())
    return;
  const double middle = (seen.south + seen.north) / 2;
  const double quarter = (seen.north - seen.south) / 4;
  ShortText words;
  words.at = {(seen.west + seen.east) / 2, middle + (ship_latitude > middle ? -quarter : quarter)};
  words.text = texts.get(id::kMapMissing);
  drawing.shapes.emplace_back(std::move(words));
}

void add_ground(const MapView& view, int pixels, double ship_latitude, SeaMap& sea_map,
                const text::Texts& texts, Drawing& drawing) {
  Ground ground(view, pixels, drawing);
  for (const Tile& tile : tiles_within(view.west, view.south, view.east, view.north)) {
    for (const int turn : {-kAround, 0, kAround}) {
      const Box part = ground.part_of(tile, turn);
      if (part.is_empty()) continue;
      const auto coast = sea_map.coast(tile);
      if (coast == nullptr) {
        add_no_map(part, view, ship_latitude, texts, drawing);
        continue;
      }
      ground.add_sea(part);
      ground.add_land(*coast, turn);
    }
  }
  ground.finish();
}

// The lines are a readable way apart, in whole minutes.
int latitude_step(double height) {
  constexpr struct {
    double height;
    int minutes;
  } kRows[] = {{1, 10}, {5, 60}, {10, 120}};
  // The difference of two edges is not to the last bit what they were made from.
  constexpr double kRounding = 1e-6;
  for (const auto& row : kRows) {
    if (height <= row.height + kRounding) return row.minutes;
  }
  return 10 * kMinutes;
}

int longitude_step(int latitude_minutes, double x_unit) {
  constexpr double kCloser = 0.75;  // than the parallels
  constexpr std::array<int, 11> kSteps = {10, 20, 30, 60, 120, 300, 600, 1200, 1800, 2700, 5400};
  const auto* const at = std::find_if(kSteps.begin(), kSteps.end(), [&](int step) {
    return step * x_unit >= kCloser * latitude_minutes;
  });
  return at == kSteps.end() ? kSteps.back() : *at;
}

// The first of the lines at or above a degree, in minutes.
int first_line(double degrees, int step) {
  return static_cast<int>(std::ceil(degrees * kMinutes / step)) * step;
}

void add_line(Point from, Point to, Drawing& drawing) {
  Polyline line;
  line.ink = Ink::kFaint;
  line.points = {from, to};
  drawing.ground.emplace_back(std::move(line));
}

void add_name(Point at, std::string name, ShortText::Edge edge, std::vector<ShortText>& names) {
  ShortText text;
  text.at = at;
  text.text = std::move(name);
  text.edge = edge;
  names.push_back(std::move(text));
}

void add_graticule(const MapView& view, const text::Texts& texts, Drawing& drawing) {
  const double south = std::max<double>(view.south, -kPole);
  const double north = std::min<double>(view.north, kPole);
  const int up = latitude_step(view.height());
  const int across = longitude_step(up, view.x_unit);
  std::vector<ShortText> names;
  for (int minutes = first_line(south, up); minutes <= north * kMinutes; minutes += up) {
    const double y = static_cast<double>(minutes) / kMinutes;
    add_line({view.west, y}, {view.east, y}, drawing);
    add_name({view.west, y}, latitude_text(minutes, texts), ShortText::Edge::kLeft, names);
  }
  for (int minutes = first_line(view.west, across); minutes <= view.east * kMinutes;
       minutes += across) {
    const double x = static_cast<double>(minutes) / kMinutes;
    add_line({x, south}, {x, north}, drawing);
    add_name({x, south}, longitude_text(minutes, texts), ShortText::Edge::kBottom, names);
  }
  for (ShortText& name : names) drawing.ground.emplace_back(std::move(name));
}

// From report to report the short way, also over the date line.
void add_track(const std::vector<Place>& track, Point ship, Drawing& drawing) {
  Polyline line;
  line.ink = Ink::kMark;
  line.points = {ship};
  for (auto place = track.rbegin(); place != track.rend(); ++place) {
    const double before = line.points.back().x;
    line.points.push_back({before + wrapped(place->longitude - before), place->latitude});
  }
  if (line.points.size() < 2) return;
  std::reverse(line.points.begin(), line.points.end());
  std::vector<ui::Shape> signs;
  for (std::size_t i = 0; i + 1 < line.points.size(); ++i)
    signs.emplace_back(Marker{line.points[i], Marker::Sign::kSpeck, Ink::kMark});
  drawing.shapes.emplace_back(std::move(line));
  for (ui::Shape& sign : signs) drawing.shapes.push_back(std::move(sign));
}

std::string angle_text(int minutes, std::string_view letter, const text::Texts& texts) {
  const std::string degrees = text::format_int(std::abs(minutes) / kMinutes);
  const int rest = std::abs(minutes) % kMinutes;
  if (rest == 0) return text::fill(texts.get(id::kMapDegrees), {degrees, letter});
  return text::fill(texts.get(id::kMapMinutes), {degrees, text::format_int(rest, 2, '0'), letter});
}

}  // namespace

std::string latitude_text(int minutes, const text::Texts& texts) {
  return angle_text(minutes, minutes > 0 ? "N" : minutes < 0 ? "S" : "", texts);
}

std::string longitude_text(int minutes, const text::Texts& texts) {
  constexpr int kTurn = kAround * kMinutes;
  minutes = ((minutes + kTurn / 2) % kTurn + kTurn) % kTurn - kTurn / 2;
  const bool no_side = minutes == 0 || minutes == -kTurn / 2;
  return angle_text(minutes, no_side ? "" : minutes > 0 ? "E" : "W", texts);
}

Drawing map_drawing(const ShipOnMap& ship, const MapView& view, int pixels, SeaMap& sea_map,
                    const text::Texts& texts) {
  Drawing drawing;
  drawing.x = {"longitude", view.west, view.east};
  drawing.y = {"latitude", view.south, view.north};
  drawing.same_scale = true;
  drawing.x_unit = view.x_unit;
  drawing.sides_cut = true;
  const Point at{view.near_middle(ship.at->longitude), ship.at->latitude};
  add_ground(view, pixels, at.y, sea_map, texts, drawing);
  add_graticule(view, texts, drawing);
  add_track(ship.track, at, drawing);
  if (const auto arrow = arrow_of(ship, view)) {
    Polyline line;
    line.ink = Ink::kMark;
    line.thick = true;
    line.arrow = true;
    line.points = {at, {arrow->end.longitude, arrow->end.latitude}};
    drawing.shapes.emplace_back(std::move(line));
  }
  drawing.shapes.emplace_back(Marker{at, Marker::Sign::kDot, Ink::kMark});
  return drawing;
}

}  // namespace map
