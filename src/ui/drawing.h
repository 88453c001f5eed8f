#pragma once
// A drawing as a value: lines, areas, markers and short texts in a range of coordinates. Maps,
// curves and pictures of waves are drawings; every front end paints them in its own colours and
// size, a printer prints them, and a script reads what is on them.

#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace ui {

struct Point {
  double x = 0;
  double y = 0;
  bool operator==(const Point&) const = default;
};

/// What a colour stands for. A front end takes it from its palette, light or dark.
enum class Ink {
  kText,
  kFaint,    ///< grids and other things that only help
  kMark,     ///< what the drawing is about: the ship, the curve
  kLand,     ///< for areas
  kWater,    ///< for areas
  kIce,      ///< for areas
  kCaution,  ///< what is to be looked at
  kAlarm,    ///< what is wrong
  kCoast,    ///< where land and water meet
};
inline constexpr int kInks = 9;

/// "text", "faint" … as `show` prints it.
[[nodiscard]] std::string_view name_of(Ink ink);

struct Polyline {
  std::vector<Point> points;
  Ink ink = Ink::kText;
  bool thick = false;
  bool dashed = false;
  bool arrow = false;   ///< ends in a head of the size of a letter
  bool specks = false;  ///< a speck at each of its points, which may be one alone
  bool operator==(const Polyline&) const = default;
};

/// Filled; its last point is joined with its first one.
struct Area {
  std::vector<Point> outline;
  Ink ink = Ink::kLand;
  bool operator==(const Area&) const = default;
};

/// A sign of the size of a letter, whatever the scale.
struct Marker {
  enum class Sign { kDot, kRing, kCross, kSpeck };  ///< a speck is as small as can be seen
  Point at;
  Sign sign = Sign::kDot;
  Ink ink = Ink::kMark;
  bool operator==(const Marker&) const = default;
};

/// The sign for a wind on weather charts, whatever the scale: a shaft that points whence the wind
/// blows, with feathers for its speed at that end. The middle of the shaft is at the point.
struct WindBarb {
  Point at;
  std::optional<int> from;      ///< degrees; nothing: variable
  std::optional<double> knots;  ///< nothing: not known
  bool calm = false;            ///< a circle, whatever the others say
  bool southern = false;        ///< south of the equator the feathers are on the other side
  Ink ink = Ink::kMark;
  bool operator==(const WindBarb&) const = default;
};

/// A text of the size of other texts, in the language of the moment.
struct ShortText {
  enum class Side { kCentre, kLeft, kRight, kAbove, kBelow };
  Point at;
  std::string text;
  Side side = Side::kCentre;  ///< where it stands, seen from the point
  Ink ink = Ink::kText;
  /// Names a line of a grid: stands beside the line at this edge of what is shown, wherever that
  /// edge is, and is left out where it would be cut or cover a marker or another text.
  enum class Edge { kNone, kLeft, kBottom };
  Edge edge = Edge::kNone;
  bool operator==(const ShortText&) const = default;
};

using Shape = std::variant<Area, Polyline, Marker, ShortText, WindBarb>;

/// What a wind barb is drawn of, in lengths of the usual shaft to the right of its point and up.
struct BarbStrokes {
  std::vector<std::vector<Point>> lines;     ///< the shaft first
  std::vector<std::vector<Point>> pennants;  ///< filled
  double circle = 0;                         ///< radius of a circle around the point; 0: none
};
/// Rounded to 5 knots: a short feather for 5, a long one for 10, a pennant for 50; a shaft alone is a
/// wind of less than 3. A cross at the end of the shaft: the speed is not known. A circle with a
/// cross: variable; a circle alone: calm.
[[nodiscard]] BarbStrokes strokes_of(const WindBarb& barb);

/// One direction of a drawing, from left to right or from the bottom up.
struct Axis {
  std::string name = {};  ///< for scripts: "longitude"
  double first = 0;       ///< at the left edge or the bottom
  double last = 1;        ///< at the right edge or the top; other than `first`, also less
  bool operator==(const Axis&) const = default;
};

struct Drawing {
  Axis x;
  Axis y;
  /// One unit is as long across as up; what room that leaves stays empty on both sides.
  bool same_scale = false;
  int characters = 40;  ///< least width, in figures of the usual font
  int lines = 12;       ///< least height
  bool grows = false;   ///< takes up the room that is left across and down
  bool low = false;     ///< with `grows`: only across; its height is the least one
  /// With `grows`: its window is made so large that it has so many times its least room, as far as
  /// the display goes.
  double roomy = 1;
  /// Painted in this order; what lies outside the range is cut off.
  std::vector<Shape> shapes = {};
  /// Painted before all others, its areas to the pixel, so that two that share an edge leave no gap.
  /// It may be of many shapes: what is told of it is short.
  std::vector<Shape> ground = {};
  /// With `same_scale`: what one unit across is in units up (on a map less than 1, since the
  /// meridians come together towards a pole).
  double x_unit = 1;
  /// With `same_scale`: the height is always filled, and of the width as much is shown around its
  /// middle as there is room for.
  bool sides_cut = false;
  bool operator==(const Drawing&) const = default;
};

/// True when the point lies within both axes, edges included.
[[nodiscard]] bool is_inside(const Drawing& drawing, Point point);

/// The axes on the first line, what the ground is made of and the texts on it on the second, then a
/// line for each other shape; many shapes, and a shape of many points, are cut short with their
/// number.
[[nodiscard]] std::vector<std::string> describe(const Drawing& drawing);

/// Where a drawing lies in a room of so many pixels, and so where its points are and what a click
/// means.
class DrawingPlace {
 public:
  /// `drawing` is looked at here only. Width and height are those of the room.
  DrawingPlace(const Drawing& drawing, double width, double height);

  /// The corner at the top left, in pixels from that of the room.
  [[nodiscard]] Point corner() const { return corner_; }
  [[nodiscard]] double width() const { return width_; }
  [[nodiscard]] double height() const { return height_; }

  /// Pixels of one unit up.
  [[nodiscard]] double scale() const { return height_ / std::abs(y_.last - y_.first); }

  /// Pixels from the top left corner of the room.
  [[nodiscard]] Point pixel_of(Point point) const;
  /// The coordinates at a pixel of the room; nothing beside the drawing.
  [[nodiscard]] std::optional<Point> point_at(Point pixel) const;

 private:
  Axis x_;
  Axis y_;
  Point corner_;
  double width_;
  double height_;
};

}  // namespace ui
