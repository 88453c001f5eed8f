#pragma once
// A canvas of paper in Qt: what is painted goes to wherever the painter paints.

#include <QColor>
#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <string_view>
#include <vector>

#include "paper/canvas.h"

namespace desktop {

[[nodiscard]] inline QColor colour_of(paper::Colour colour) {
  return {colour.red, colour.green, colour.blue};
}

/// `Kind` is the kind of canvas that it is. Texts are in the painter's font.
template <class Kind>
class QtCanvas : public Kind {
 public:
  explicit QtCanvas(QPainter& painter)
      : painter_(painter), metrics_(painter.font(), painter.device()) {
    painter.setRenderHint(QPainter::Antialiasing);
  }

  void fill(const std::vector<ui::Point>& outline, paper::Colour colour, bool exact) override {
    painter_.setRenderHint(QPainter::Antialiasing, !exact);
    set_brush(colour);
    painter_.drawPolygon(pixels_of(outline));
    painter_.setRenderHint(QPainter::Antialiasing);
  }
  void stroke(const std::vector<ui::Point>& line, const paper::Pen& pen) override {
    set_pen(pen);
    // The corner where an outline closes is one like the others.
    if (pen.sharp && line.size() > 2 && line.front() == line.back()) {
      painter_.drawPolygon(pixels_of(line));
    } else {
      painter_.drawPolyline(pixels_of(line));
    }
  }
  void fill_circle(ui::Point centre, double radius, paper::Colour colour) override {
    set_brush(colour);
    painter_.drawEllipse(QPointF(centre.x, centre.y), radius, radius);
  }
  void stroke_circle(ui::Point centre, double radius, const paper::Pen& pen) override {
    set_pen(pen);
    painter_.drawEllipse(QPointF(centre.x, centre.y), radius, radius);
  }
  void write(std::string_view text, ui::Point at, paper::Colour colour) override {
    painter_.setPen(colour_of(colour));
    painter_.drawText(QPointF(at.x, at.y), text_of(text));
  }

  [[nodiscard]] double width_of(std::string_view text) const override {
    return metrics_.horizontalAdvance(text_of(text));
  }
  [[nodiscard]] double ascent() const override { return metrics_.ascent(); }
  // A letter is as many whole dots high as the toolkit makes a line of text.
  [[nodiscard]] double descent() const override {
    return static_cast<double>(painter_.fontMetrics().height()) - metrics_.ascent();
  }

  void clip(const paper::Box& box) override {
    painter_.save();
    painter_.setClipRect(QRectF(box.left, box.top, box.width(), box.height()));
  }
  void clip_no_more() override { painter_.restore(); }

 protected:
  [[nodiscard]] QPainter& painter() const { return painter_; }
  void set_font(const QFont& font) {
    painter_.setFont(font);
    metrics_ = QFontMetricsF(font, painter_.device());
  }

 private:
  static QString text_of(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  }
  static QPolygonF pixels_of(const std::vector<ui::Point>& points) {
    QPolygonF pixels;
    pixels.reserve(static_cast<qsizetype>(points.size()));
    for (const ui::Point point : points) pixels << QPointF(point.x, point.y);
    return pixels;
  }
  void set_brush(paper::Colour colour) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(colour_of(colour));
  }
  void set_pen(const paper::Pen& pen) {
    QPen with(colour_of(pen.colour), pen.width);
    with.setJoinStyle(pen.sharp ? Qt::MiterJoin : Qt::RoundJoin);
    if (pen.dashed) with.setDashPattern({paper::kDash, paper::kGap});
    painter_.setPen(with);
    painter_.setBrush(Qt::NoBrush);
  }

  QPainter& painter_;
  QFontMetricsF metrics_;
};

}  // namespace desktop
