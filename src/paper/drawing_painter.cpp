#include "paper/drawing_painter.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <variant>
#include <vector>

namespace paper {
namespace {

// A value that could not be computed has no place.
bool is_somewhere(ui::Point point) {
  return std::isfinite(point.x) && std::isfinite(point.y);
}

Box moved(const Box& box, double across, double down) {
  return {box.left + across, box.top + down, box.right + across, box.bottom + down};
}

bool holds(const Box& room, const Box& box) {
  return box.left >= room.left && box.top >= room.top && box.right <= room.right &&
         box.bottom <= room.bottom;
}

bool overlap(const Box& a, const Box& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

// One per kind of shape. Widths and lengths are parts of a letter's height.
class Brush {
 public:
  Brush(Canvas& canvas, const ui::DrawingPlace& place, ui::Point corner, const Inks& inks)
      : canvas_(canvas),
        place_(place),
        corner_(corner),
        inks_(inks),
        letter_(canvas.letter_height()) {}

  /// Areas of the ground leave no gap between them.
  void set_exact(bool exact) { exact_ = exact; }

  [[nodiscard]] Box shown() const {
    const ui::Point at = place_.corner();
    return moved({at.x, at.y, at.x + place_.width(), at.y + place_.height()}, corner_.x, corner_.y);
  }

  void operator()(const ui::Area& area) const {
    canvas_.fill(dots_of(area.outline), inks_.of(area.ink), exact_);
  }

  void operator()(const ui::Polyline& line) const {
    const Pen pen{inks_.of(line.ink), letter_ * (line.thick ? 0.16 : 0.07), line.dashed};
    std::vector<ui::Point> dots = dots_of(line.points);
    if (line.arrow && dots.size() > 1) draw_head(dots, pen.colour);
    canvas_.stroke(dots, pen);
    if (!line.specks) return;
    for (const ui::Point dot : dots) canvas_.fill_circle(dot, letter_ * kSpeck, pen.colour);
  }

  void operator()(const ui::WindBarb& barb) const {
    if (!is_somewhere(barb.at)) return;
    const ui::BarbStrokes strokes = ui::strokes_of(barb);
    const ui::Point at = dot_of(barb.at);
    const double shaft = letter_ * 1.7;
    const auto placed = [&](const std::vector<ui::Point>& points) {
      std::vector<ui::Point> dots;
      dots.reserve(points.size());
      for (const ui::Point point : points)
        dots.push_back({at.x + point.x * shaft, at.y - point.y * shaft});
      return dots;
    };
    const Pen pen{inks_.of(barb.ink), letter_ * 0.09, false, true};
    for (const auto& line : strokes.lines) canvas_.stroke(placed(line), pen);
    if (strokes.circle > 0) canvas_.stroke_circle(at, strokes.circle * shaft, pen);
    for (const auto& pennant : strokes.pennants) {
      std::vector<ui::Point> outline = placed(pennant);
      canvas_.fill(outline, pen.colour, false);
      outline.push_back(outline.front());
      canvas_.stroke(outline, pen);
    }
  }

  void operator()(const ui::Marker& marker) const {
    if (!is_somewhere(marker.at)) return;
    const ui::Point at = dot_of(marker.at);
    const double half = letter_ * 0.3;
    const Pen pen{inks_.of(marker.ink), letter_ * 0.14};
    switch (marker.sign) {
      case ui::Marker::Sign::kDot:
        canvas_.fill_circle(at, half + pen.width / 2, pen.colour);
        break;
      case ui::Marker::Sign::kRing:
        canvas_.stroke_circle(at, half, pen);
        break;
      case ui::Marker::Sign::kSpeck:
        canvas_.fill_circle(at, letter_ * kSpeck, pen.colour);
        break;
      case ui::Marker::Sign::kCross:
        for (const double side : {-half, half})
          canvas_.stroke({{at.x - half, at.y - side}, {at.x + half, at.y + side}}, pen);
        break;
    }
  }

  void operator()(const ui::ShortText& text) {
    if (!is_somewhere(text.at)) return;
    const Box box = box_of(text);
    if (text.edge != ui::ShortText::Edge::kNone) {
      // Two names that touch are read as one.
      const double gap = letter_ * 0.4;
      const Box apart{box.left - gap, box.top, box.right + gap, box.bottom};
      const bool covers = std::any_of(taken_.begin(), taken_.end(),
                                      [&](const Box& other) { return overlap(other, apart); });
      if (covers || !holds(shown(), box)) return;
      taken_.push_back(box);
    }
    canvas_.write(text.text, {box.left, box.top + canvas_.ascent()}, inks_.of(text.ink));
  }

  /// Texts at an edge keep clear of this shape.
  void keep_clear(const ui::Shape& shape) {
    if (const auto* const text = std::get_if<ui::ShortText>(&shape)) {
      if (text->edge == ui::ShortText::Edge::kNone && is_somewhere(text->at))
        taken_.push_back(box_of(*text));
    } else if (const auto* const marker = std::get_if<ui::Marker>(&shape)) {
      if (marker->sign == ui::Marker::Sign::kSpeck || !is_somewhere(marker->at)) return;
      const ui::Point at = dot_of(marker->at);
      const double half = letter_ * 0.5;
      taken_.push_back({at.x - half, at.y - half, at.x + half, at.y + half});
    }
  }

 private:
  static constexpr double kSpeck = 0.12;

  [[nodiscard]] ui::Point dot_of(ui::Point point) const {
    const ui::Point pixel = place_.pixel_of(point);
    return {corner_.x + pixel.x, corner_.y + pixel.y};
  }

  [[nodiscard]] std::vector<ui::Point> dots_of(const std::vector<ui::Point>& points) const {
    std::vector<ui::Point> dots;
    dots.reserve(points.size());
    for (const ui::Point point : points) {
      if (is_somewhere(point)) dots.push_back(dot_of(point));
    }
    return dots;
  }

  [[nodiscard]] Box box_of(const ui::ShortText& text) const {
    using Side = ui::ShortText::Side;
    using Edge = ui::ShortText::Edge;
    const double width = canvas_.width_of(text.text);
    const double height = letter_;
    const ui::Point at = dot_of(text.at);
    const double gap = letter_ * 0.2;
    const Box seen = shown();
    // On the line's upper or right side: a line through its own name is hard to read.
    if (text.edge == Edge::kLeft) return moved({0, -height, width, 0}, seen.left + gap, at.y);
    if (text.edge == Edge::kBottom) return moved({0, -height, width, 0}, at.x + gap, seen.bottom);
    const Box centred = moved({-width / 2, -height / 2, width / 2, height / 2}, at.x, at.y);
    const double away = letter_ * 0.4;  // clear of a marker at the point
    switch (text.side) {
      case Side::kLeft:
        return moved(centred, -width / 2 - away, 0);
      case Side::kRight:
        return moved(centred, width / 2 + away, 0);
      case Side::kAbove:
        return moved(centred, 0, -height / 2 - away);
      case Side::kBelow:
        return moved(centred, 0, height / 2 + away);
      case Side::kCentre:
        break;
    }
    return centred;
  }

  // At the end of the line, which is shortened: else its own end would stick out at the tip.
  void draw_head(std::vector<ui::Point>& line, Colour colour) const {
    const ui::Point tip = line.back();
    const ui::Point before = line[line.size() - 2];
    const double length = std::hypot(tip.x - before.x, tip.y - before.y);
    if (!(length > 0)) return;
    const double share = std::min(letter_ * 0.6, length) / length;
    const ui::Point back{(tip.x - before.x) * share, (tip.y - before.y) * share};
    const ui::Point aside{-back.y * 0.45, back.x * 0.45};
    canvas_.fill({tip,
                  {tip.x - back.x + aside.x, tip.y - back.y + aside.y},
                  {tip.x - back.x - aside.x, tip.y - back.y - aside.y}},
                 colour, false);
    line.back() = {tip.x - back.x * 0.6, tip.y - back.y * 0.6};
  }

  Canvas& canvas_;
  const ui::DrawingPlace& place_;
  ui::Point corner_;
  const Inks& inks_;
  double letter_;
  bool exact_ = false;
  std::vector<Box> taken_;  ///< where no text at an edge has room
};

}  // namespace

void paint(Canvas& canvas, const Box& room, const ui::Drawing& drawing, const Inks& inks) {
  if (!(room.width() > 0 && room.height() > 0)) return;
  canvas.fill({{room.left, room.top},
               {room.right, room.top},
               {room.right, room.bottom},
               {room.left, room.bottom}},
              inks.paper, true);
  const ui::DrawingPlace place(drawing, room.width(), room.height());
  Brush brush(canvas, place, {room.left, room.top}, inks);
  canvas.clip(brush.shown());
  for (const ui::Shape& shape : drawing.shapes) brush.keep_clear(shape);
  brush.set_exact(true);
  for (const ui::Shape& shape : drawing.ground) std::visit(brush, shape);
  brush.set_exact(false);
  for (const ui::Shape& shape : drawing.shapes) std::visit(brush, shape);
  canvas.clip_no_more();
}

}  // namespace paper
