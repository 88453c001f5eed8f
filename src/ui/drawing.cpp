#include "ui/drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "text/numbers.h"
#include "ui/dump.h"

namespace ui {
namespace {

constexpr std::size_t kShapesShown = 60;
constexpr std::size_t kPointsShown = 8;

// At most four decimals, none that says nothing.
std::string number(double value) {
  std::string written = text::format_fixed(value, 4);
  if (written.find('.') == std::string::npos) return written;
  written.erase(written.find_last_not_of('0') + 1);
  if (written.ends_with('.')) written.pop_back();
  if (written == "-0") written.erase(0, 1);
  return written;
}

std::string written(Point point) {
  std::string out(1, '(');
  return out.append(number(point.x)).append(" ").append(number(point.y)).append(")");
}

std::string written(const std::vector<Point>& points) {
  std::string out;
  const bool cut = points.size() > kPointsShown;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (cut && i == kPointsShown - 1) {
      out += " …";
      i = points.size() - 1;
    }
    out.append(" ").append(written(points[i]));
  }
  return cut ? out + " (" + std::to_string(points.size()) + " points)" : out;
}

std::string written(const Axis& axis) {
  std::string name = axis.name;
  if (!name.empty()) name += ' ';
  return name + number(axis.first) + " to " + number(axis.last);
}

std::string_view name_of(Marker::Sign sign) {
  static constexpr std::array<std::string_view, 4> kNames = {"dot", "ring", "cross", "speck"};
  return kNames[static_cast<std::size_t>(sign)];
}

std::string_view name_of(ShortText::Side side) {
  static constexpr std::array<std::string_view, 5> kNames = {"", " left", " right", " above",
                                                             " below"};
  return kNames[static_cast<std::size_t>(side)];
}

struct Describe {
  std::string operator()(const Area& area) const {
    return "area " + std::string(ui::name_of(area.ink)) + written(area.outline);
  }
  std::string operator()(const Polyline& line) const {
    std::string out;
    if (line.thick) out += "thick ";
    if (line.dashed) out += "dashed ";
    if (line.arrow) out += "arrow ";
    out.append("line ").append(ui::name_of(line.ink));
    if (line.specks) out.append(" with specks");
    return out + written(line.points);
  }
  std::string operator()(const Marker& marker) const {
    return std::string(name_of(marker.sign)) + " " + std::string(ui::name_of(marker.ink)) + " " +
           written(marker.at);
  }
  std::string operator()(const ShortText& text) const {
    return "text " + std::string(ui::name_of(text.ink)) + " " + quoted(text.text) +
           std::string(name_of(text.side)) + " " + written(text.at);
  }
  std::string operator()(const WindBarb& barb) const {
    std::string out("barb ");
    out.append(ui::name_of(barb.ink));
    if (barb.calm) {
      out.append(" calm");
    } else {
      if (barb.from) {
        out.append(" from ").append(std::to_string(*barb.from));
      } else {
        out.append(" variable");
      }
      if (barb.knots) out.append(" ").append(number(*barb.knots)).append(" kn");
      if (barb.southern) out.append(" southern");
    }
    return out.append(" ").append(written(barb.at));
  }
};

// Its inks in the order in which they are painted, then its texts.
std::string written_ground(const std::vector<Shape>& ground) {
  std::vector<std::string_view> inks;
  std::string texts;
  for (const Shape& shape : ground) {
    const Ink ink = std::visit([](const auto& any) { return any.ink; }, shape);
    if (const auto* const text = std::get_if<ShortText>(&shape)) {
      texts.append(" ").append(quoted(text->text));
    } else if (std::find(inks.begin(), inks.end(), ui::name_of(ink)) == inks.end()) {
      inks.push_back(ui::name_of(ink));
    }
  }
  std::string out = "ground of";
  for (const std::string_view ink : inks) out.append(" ").append(ink);
  return out.append(texts);
}

bool is_within(const Axis& axis, double value) {
  return value >= std::min(axis.first, axis.last) && value <= std::max(axis.first, axis.last);
}

// How far along the axis a value lies, 0 to 1 within it.
double share(const Axis& axis, double value) {
  return (value - axis.first) / (axis.last - axis.first);
}

}  // namespace

std::string_view name_of(Ink ink) {
  static constexpr std::array<std::string_view, kInks> kNames = {
      "text", "faint", "mark", "land", "water", "ice", "caution", "alarm", "coast"};
  return kNames[static_cast<std::size_t>(ink)];
}

bool is_inside(const Drawing& drawing, Point point) {
  return is_within(drawing.x, point.x) && is_within(drawing.y, point.y);
}

std::vector<std::string> describe(const Drawing& drawing) {
  std::vector<std::string> lines{written(drawing.x) + ", " + written(drawing.y)};
  if (!drawing.ground.empty()) lines.push_back(written_ground(drawing.ground));
  const std::size_t shown = std::min(drawing.shapes.size(), kShapesShown);
  for (std::size_t i = 0; i < shown; ++i)
    lines.push_back(std::visit(Describe{}, drawing.shapes[i]));
  if (shown < drawing.shapes.size())
    lines.push_back("… (" + std::to_string(drawing.shapes.size()) + " shapes)");
  return lines;
}

BarbStrokes strokes_of(const WindBarb& barb) {
  constexpr double kRadius = 0.16;
  constexpr double kArm = 0.12;  // of a cross
  BarbStrokes strokes;
  const auto add_cross = [&strokes](Point at) {
    for (const double side : {-1.0, 1.0})
      strokes.lines.push_back(
          {{at.x - kArm, at.y - side * kArm}, {at.x + kArm, at.y + side * kArm}});
  };
  if (barb.calm || !barb.from) {
    strokes.circle = kRadius;
    if (!barb.calm) add_cross({});
    return strokes;
  }
  const double bearing = *barb.from * std::numbers::pi / 180;
  const Point along{std::sin(bearing), std::cos(bearing)};
  // Clockwise from the shaft, which is the side of the low pressure; south of the equator that is
  // the other one.
  const double side = barb.southern ? -1 : 1;
  const Point aside{along.y * side, -along.x * side};
  const auto place = [&](double up_shaft, double out) {
    return Point{along.x * (up_shaft - 0.5) + aside.x * out,
                 along.y * (up_shaft - 0.5) + aside.y * out};
  };
  strokes.lines.push_back({place(0, 0), place(1, 0)});
  if (!barb.knots) {
    add_cross(place(1, 0));
    return strokes;
  }
  constexpr double kLength = 0.42;  // of a long feather, across and towards the end of the shaft
  constexpr double kLean = 0.16;
  constexpr double kGap = 0.15;
  constexpr double kPennant = 0.24;  // along the shaft
  constexpr double kMostKnots = 200;
  auto fives = std::lround(std::clamp(*barb.knots, 0.0, kMostKnots) / 5);
  double at = 1;
  for (; fives >= 10; fives -= 10) {
    strokes.pennants.push_back({place(at, 0), place(at, kLength), place(at - kPennant, 0)});
    at -= kPennant;
  }
  if (at < 1) at -= kGap / 2;
  // At the very end one short feather would be taken for a long one.
  if (at == 1.0 && fives == 1) at -= kGap;
  for (; fives >= 2; fives -= 2) {
    strokes.lines.push_back({place(at, 0), place(at + kLean, kLength)});
    at -= kGap;
  }
  if (fives == 1) strokes.lines.push_back({place(at, 0), place(at + kLean / 2, kLength / 2)});
  return strokes;
}

DrawingPlace::DrawingPlace(const Drawing& drawing, double width, double height)
    : x_(drawing.x), y_(drawing.y), width_(std::max(width, 0.0)), height_(std::max(height, 0.0)) {
  if (!drawing.same_scale) return;
  const double across = std::abs(x_.last - x_.first);
  const double up = std::abs(y_.last - y_.first);
  const double unit = drawing.x_unit;
  const double fitting = width_ / (across * unit);
  const double scale = drawing.sides_cut ? height_ / up : std::min(fitting, height_ / up);
  if (scale > fitting) {
    // In a room of no height there is nothing to choose from.
    const double middle = (x_.first + x_.last) / 2;
    const double shown = (x_.last - x_.first) * fitting / scale;
    x_.first = middle - shown / 2;
    x_.last = middle + shown / 2;
    return;
  }
  corner_ = {(width_ - across * unit * scale) / 2, (height_ - up * scale) / 2};
  width_ = across * unit * scale;
  height_ = up * scale;
}

Point DrawingPlace::pixel_of(Point point) const {
  return {corner_.x + share(x_, point.x) * width_, corner_.y + (1 - share(y_, point.y)) * height_};
}

std::optional<Point> DrawingPlace::point_at(Point pixel) const {
  const double right = (pixel.x - corner_.x) / width_;
  const double up = 1 - (pixel.y - corner_.y) / height_;
  // A room of no size gives no numbers, and so no point.
  if (!(right >= 0 && right <= 1 && up >= 0 && up <= 1)) return std::nullopt;
  return Point{x_.first + right * (x_.last - x_.first), y_.first + up * (y_.last - y_.first)};
}

}  // namespace ui
