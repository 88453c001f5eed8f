#include "desktop/drawing_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <variant>
#include <vector>

#include "desktop/style.h"

namespace desktop {
namespace {

QString text_of(const std::string& utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QPointF point_of(ui::Point pixel) {
  return {pixel.x, pixel.y};
}

// A value that could not be computed has no place.
bool is_somewhere(ui::Point point) {
  return std::isfinite(point.x) && std::isfinite(point.y);
}

// One per kind of shape.
class Brush {
 public:
  Brush(QPainter& painter, const ui::DrawingPlace& place, const QPalette& palette)
      : painter_(painter),
        place_(place),
        palette_(palette),
        metrics_(painter.font(), painter.device()),
        letter_(painter.fontMetrics().height()) {}

  void operator()(const ui::Area& area) const {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(colour_of(area.ink, palette_));
    painter_.drawPolygon(pixels_of(area.outline));
  }

  void operator()(const ui::Polyline& line) const {
    QPen pen(colour_of(line.ink, palette_), letter_ * (line.thick ? 0.16 : 0.07));
    pen.setJoinStyle(Qt::RoundJoin);
    if (line.dashed) pen.setStyle(Qt::DashLine);
    painter_.setPen(pen);
    painter_.setBrush(Qt::NoBrush);
    QPolygonF pixels = pixels_of(line.points);
    if (line.arrow && pixels.size() > 1) {
      draw_head(pixels, pen.color());
      painter_.setPen(pen);
    }
    painter_.drawPolyline(pixels);
    if (!line.specks) return;
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(pen.color());
    for (const QPointF& pixel : pixels) painter_.drawEllipse(pixel, letter_ * 0.12, letter_ * 0.12);
  }

  void operator()(const ui::WindBarb& barb) const {
    if (!is_somewhere(barb.at)) return;
    const ui::BarbStrokes strokes = ui::strokes_of(barb);
    const QPointF at = point_of(place_.pixel_of(barb.at));
    const double shaft = letter_ * 1.7;
    const auto polygon = [&](const std::vector<ui::Point>& points) {
      QPolygonF pixels;
      for (const ui::Point point : points) pixels << at + QPointF(point.x, -point.y) * shaft;
      return pixels;
    };
    const QColor colour = colour_of(barb.ink, palette_);
    QPen pen(colour, letter_ * 0.09);
    pen.setJoinStyle(Qt::MiterJoin);
    painter_.setPen(pen);
    painter_.setBrush(Qt::NoBrush);
    for (const auto& line : strokes.lines) painter_.drawPolyline(polygon(line));
    if (strokes.circle > 0)
      painter_.drawEllipse(at, strokes.circle * shaft, strokes.circle * shaft);
    painter_.setBrush(colour);
    for (const auto& pennant : strokes.pennants) painter_.drawPolygon(polygon(pennant));
  }

  void operator()(const ui::Marker& marker) const {
    if (!is_somewhere(marker.at)) return;
    const QColor colour = colour_of(marker.ink, palette_);
    const QPointF at = point_of(place_.pixel_of(marker.at));
    const double half = letter_ * 0.3;
    painter_.setPen(QPen(colour, letter_ * 0.14));
    painter_.setBrush(Qt::NoBrush);
    switch (marker.sign) {
      case ui::Marker::Sign::kDot:
        painter_.setBrush(colour);
        [[fallthrough]];
      case ui::Marker::Sign::kRing:
        painter_.drawEllipse(at, half, half);
        break;
      case ui::Marker::Sign::kSpeck:
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(colour);
        painter_.drawEllipse(at, letter_ * 0.12, letter_ * 0.12);
        break;
      case ui::Marker::Sign::kCross:
        painter_.drawLine(at + QPointF(-half, -half), at + QPointF(half, half));
        painter_.drawLine(at + QPointF(-half, half), at + QPointF(half, -half));
        break;
    }
  }

  void operator()(const ui::ShortText& text) {
    if (!is_somewhere(text.at)) return;
    const QRectF box = box_of(text);
    if (text.edge != ui::ShortText::Edge::kNone) {
      const QRectF shown(point_of(place_.corner()), QSizeF(place_.width(), place_.height()));
      // Two names that touch are read as one.
      const QRectF apart = box.adjusted(-letter_ * 0.4, 0, letter_ * 0.4, 0);
      const bool covers = std::ranges::any_of(
          taken_, [&apart](const QRectF& other) { return other.intersects(apart); });
      if (covers || !shown.contains(box)) return;
      taken_.push_back(box);
    }
    painter_.setPen(colour_of(text.ink, palette_));
    painter_.drawText(QPointF(box.left(), box.top() + metrics_.ascent()), text_of(text.text));
  }

  /// Texts at an edge keep clear of this shape.
  void keep_clear(const ui::Shape& shape) {
    const double half = letter_ * 0.5;
    if (const auto* const text = std::get_if<ui::ShortText>(&shape)) {
      if (text->edge == ui::ShortText::Edge::kNone && is_somewhere(text->at))
        taken_.push_back(box_of(*text));
    } else if (const auto* const marker = std::get_if<ui::Marker>(&shape)) {
      if (marker->sign != ui::Marker::Sign::kSpeck && is_somewhere(marker->at))
        taken_.emplace_back(point_of(place_.pixel_of(marker->at)) - QPointF(half, half),
                            QSizeF(2 * half, 2 * half));
    }
  }

 private:
  [[nodiscard]] QRectF box_of(const ui::ShortText& text) const {
    using Side = ui::ShortText::Side;
    using Edge = ui::ShortText::Edge;
    const QSizeF size(metrics_.horizontalAdvance(text_of(text.text)), metrics_.height());
    const QPointF at = point_of(place_.pixel_of(text.at));
    const double gap = letter_ * 0.2;
    QRectF box({0, 0}, size);
    // On the line's upper or right side: a line through its own name is hard to read.
    if (text.edge == Edge::kLeft) {
      box.moveBottomLeft({place_.corner().x + gap, at.y()});
      return box;
    }
    if (text.edge == Edge::kBottom) {
      box.moveBottomLeft({at.x() + gap, place_.corner().y + place_.height()});
      return box;
    }
    box.moveCenter(at);
    const double away = letter_ * 0.4;  // clear of a marker at the point
    if (text.side == Side::kLeft) box.translate(-size.width() / 2 - away, 0);
    if (text.side == Side::kRight) box.translate(size.width() / 2 + away, 0);
    if (text.side == Side::kAbove) box.translate(0, -size.height() / 2 - away);
    if (text.side == Side::kBelow) box.translate(0, size.height() / 2 + away);
    return box;
  }

  // At the end of the line, which is shortened: else its own end would stick out at the tip.
  void draw_head(QPolygonF& line, const QColor& colour) const {
    const QPointF tip = line.back();
    const QPointF along = tip - line[line.size() - 2];
    const double length = std::hypot(along.x(), along.y());
    if (!(length > 0)) return;
    const QPointF back = along / length * std::min(letter_ * 0.6, length);
    const QPointF aside(-back.y() * 0.45, back.x() * 0.45);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(colour);
    painter_.drawPolygon(QPolygonF({tip, tip - back + aside, tip - back - aside}));
    line.back() = tip - back * 0.6;
  }

  [[nodiscard]] QPolygonF pixels_of(const std::vector<ui::Point>& points) const {
    QPolygonF pixels;
    pixels.reserve(static_cast<qsizetype>(points.size()));
    for (const ui::Point point : points) {
      if (is_somewhere(point)) pixels << point_of(place_.pixel_of(point));
    }
    return pixels;
  }

  QPainter& painter_;
  const ui::DrawingPlace& place_;
  const QPalette& palette_;
  QFontMetricsF metrics_;
  double letter_;
  std::vector<QRectF> taken_;  ///< where no text at an edge has room
};

}  // namespace

void paint(QPainter& painter, const QRectF& room, const ui::Drawing& drawing,
           const QPalette& palette) {
  if (room.isEmpty()) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(room, palette.color(QPalette::Base));
  painter.translate(room.topLeft());
  const ui::DrawingPlace place(drawing, room.width(), room.height());
  painter.setClipRect(QRectF(point_of(place.corner()), QSizeF(place.width(), place.height())));
  Brush brush(painter, place, palette);
  for (const ui::Shape& shape : drawing.shapes) brush.keep_clear(shape);
  for (const ui::Shape& shape : drawing.ground) {
    painter.setRenderHint(QPainter::Antialiasing, !std::holds_alternative<ui::Area>(shape));
    std::visit(brush, shape);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  for (const ui::Shape& shape : drawing.shapes) std::visit(brush, shape);
  painter.restore();
}

}  // namespace desktop
