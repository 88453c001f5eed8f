#include "desktop/picture_label.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QStyle>
#include <utility>

#include "desktop/drawing_painter.h"

namespace desktop {
namespace {

// The name by which Qt looks for a file in the folders that it was told.
constexpr const char* kPictures = "pictures";

}  // namespace

void set_picture_folder(const QString& folder) {
  QDir::setSearchPaths(QLatin1String(kPictures), {folder});
}

bool PictureLabel::show_file(const QString& name) {
  QPixmap picture;
  // Names come from the program itself, but a picture is never looked for elsewhere.
  const bool plain = !name.isEmpty() && !name.contains(QLatin1Char('/'));
  const bool found = plain && picture.load(QLatin1String(kPictures) + QLatin1Char(':') + name);
  setPixmap(picture);
  return found;
}

void PictureLabel::show_drawing(std::shared_ptr<const ui::Drawing> drawing) {
  if (drawing_ == drawing) return;
  drawing_ = std::move(drawing);
  update();
}

std::optional<ui::Point> PictureLabel::point_at(QPointF position) const {
  if (drawing_ != nullptr)
    return ui::DrawingPlace(*drawing_, width(), height()).point_at({position.x(), position.y()});
  const QPixmap picture = pixmap(Qt::ReturnByValue);
  if (picture.isNull()) return std::nullopt;
  const QRectF place = QStyle::alignedRect(
      layoutDirection(), alignment(), picture.deviceIndependentSize().toSize(), contentsRect());
  if (!place.contains(position)) return std::nullopt;
  return ui::Point{(position.x() - place.left()) / place.width(),
                   1 - (position.y() - place.top()) / place.height()};
}

void PictureLabel::paintEvent(QPaintEvent* event) {
  if (drawing_ == nullptr) {
    ClickableLabel::paintEvent(event);
    return;
  }
  QPainter painter(this);
  // Not the label's own palette: what can be clicked has its text in the colour of links.
  paint(painter, QRectF(rect()), *drawing_, QApplication::palette(this));
}

}  // namespace desktop
