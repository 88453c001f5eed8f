#include "desktop/picture_label.h"

#include <QDir>
#include <QPainter>
#include <QStyle>
#include <algorithm>
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

bool PictureLabel::show_file(const QString& name, bool fitted) {
  QPixmap picture;
  // Names come from the program itself, but a picture is never looked for elsewhere.
  const bool plain = !name.isEmpty() && !name.contains(QLatin1Char('/'));
  const bool found = plain && picture.load(QLatin1String(kPictures) + QLatin1Char(':') + name);
  fitted_ = fitted ? picture : QPixmap();
  scaled_ = {};
  setPixmap(fitted ? QPixmap() : picture);
  if (fitted && found) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    updateGeometry();
    update();
  }
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
  if (picture.isNull() && fitted_.isNull()) return std::nullopt;
  const QRectF place =
      fitted_.isNull()
          ? QStyle::alignedRect(layoutDirection(), alignment(),
                                picture.deviceIndependentSize().toSize(), contentsRect())
          : fitted_place();
  if (!place.contains(position)) return std::nullopt;
  return ui::Point{(position.x() - place.left()) / place.width(),
                   1 - (position.y() - place.top()) / place.height()};
}

QSize PictureLabel::sizeHint() const {
  return fitted_.isNull() ? ClickableLabel::sizeHint() : fitted_.size() / 2;
}

QSize PictureLabel::minimumSizeHint() const {
  return fitted_.isNull() ? ClickableLabel::minimumSizeHint() : fitted_.size() / 4;
}

// Where a small screen makes it narrow it is low as well.
bool PictureLabel::hasHeightForWidth() const {
  return !fitted_.isNull() || ClickableLabel::hasHeightForWidth();
}

int PictureLabel::heightForWidth(int width) const {
  if (fitted_.isNull()) return ClickableLabel::heightForWidth(width);
  const int shown = std::min(width, sizeHint().width());
  return shown * fitted_.height() / fitted_.width();
}

// Left and at the top, where the text beside it begins.
QRect PictureLabel::fitted_place() const {
  const QSize most = size().boundedTo(sizeHint());
  return {QPoint(0, 0), fitted_.size().scaled(most, Qt::KeepAspectRatio)};
}

void PictureLabel::paintEvent(QPaintEvent* event) {
  if (!fitted_.isNull()) {
    const QRect place = fitted_place();
    const QSize points = place.size() * devicePixelRatioF();
    if (scaled_.size() != points)
      scaled_ = fitted_.scaled(points, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainter(this).drawPixmap(place, scaled_);
    return;
  }
  if (drawing_ == nullptr) {
    ClickableLabel::paintEvent(event);
    return;
  }
  QPainter painter(this);
  paint(painter, QRectF(rect()), *drawing_, palette());
}

}  // namespace desktop
