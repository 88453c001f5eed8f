#include "desktop/drawing_painter.h"

#include <QPainter>
#include <cmath>
#include <variant>

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
    painter_.drawPolyline(pixels_of(line.points));
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
      case ui::Marker::Sign::kCross:
        painter_.drawLine(at + QPointF(-half, -half), at + QPointF(half, half));
        painter_.drawLine(at + QPointF(-half, half), at + QPointF(half, -half));
        break;
    }
  }

  void operator()(const ui::ShortText& text) const {
    if (!is_somewhere(text.at)) return;
    using Side = ui::ShortText::Side;
    const QString written = text_of(text.text);
    const QFontMetricsF metrics(painter_.font(), painter_.device());
    const QSizeF size(metrics.horizontalAdvance(written), metrics.height());
    const double away = letter_ * 0.4;  // clear of a marker at the point
    QRectF box({0, 0}, size);
    box.moveCenter(point_of(place_.pixel_of(text.at)));
    if (text.side == Side::kLeft) box.translate(-size.width() / 2 - away, 0);
    if (text.side == Side::kRight) box.translate(size.width() / 2 + away, 0);
    if (text.side == Side::kAbove) box.translate(0, -size.height() / 2 - away);
    if (text.side == Side::kBelow) box.translate(0, size.height() / 2 + away);
    painter_.setPen(colour_of(text.ink, palette_));
    painter_.drawText(QPointF(box.left(), box.top() + metrics.ascent()), written);
  }

 private:
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
  double letter_;
};

}  // namespace

void paint(QPainter& painter, const QRectF& room, const ui::Drawing& drawing,
           const QPalette& palette) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(room, palette.color(QPalette::Base));
  painter.translate(room.topLeft());
  const ui::DrawingPlace place(drawing, room.width(), room.height());
  painter.setClipRect(QRectF(point_of(place.corner()), QSizeF(place.width(), place.height())));
  const Brush brush(painter, place, palette);
  for (const ui::Shape& shape : drawing.shapes) std::visit(brush, shape);
  painter.restore();
}

}  // namespace desktop
