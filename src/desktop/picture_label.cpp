#include "desktop/picture_label.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "desktop/drawing_painter.h"

namespace desktop {
namespace {

// The name by which Qt looks for a file in the folders that it was told.
constexpr const char* kPictures = "pictures";

// The picture in as many points as it takes at most, which for most screens are half of the file's:
// a decoder that is told so is done sooner. `wanted` becomes half the file's size.
QPixmap read_for(const QString& file, double points_a_pixel, QSize& wanted) {
  QImageReader reader(file);
  const QSize natural = reader.size();
  wanted = natural / 2;
  const bool half = points_a_pixel <= 1;
  QPixmap picture;
  const QString key = QFileInfo(file).canonicalFilePath() +
                      (half ? QLatin1String(" half") : QLatin1String(" whole"));
  if (!natural.isValid() || QPixmapCache::find(key, &picture)) return picture;
  if (half) reader.setScaledSize(wanted);
  picture = QPixmap::fromImage(reader.read());
  if (!picture.isNull()) QPixmapCache::insert(key, picture);
  return picture;
}

}  // namespace

void set_picture_folder(const QString& folder) {
  QDir::setSearchPaths(QLatin1String(kPictures), {folder});
}

bool PictureLabel::show_file(const QString& name, bool fitted) {
  // Names come from the program itself, but a picture is never looked for elsewhere.
  const bool plain = !name.isEmpty() && !name.contains(QLatin1Char('/'));
  const QString file = plain ? QLatin1String(kPictures) + QLatin1Char(':') + name : QString();
  wanted_ = {};
  fitted_ = scaled_ = {};
  if (!fitted) {
    QPixmap picture;
    const bool found = plain && picture.load(file);
    setPixmap(picture);
    return found;
  }
  setPixmap({});
  if (plain) fitted_ = read_for(file, devicePixelRatioF(), wanted_);
  if (fitted_.isNull()) return false;
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  updateGeometry();
  update();
  return true;
}

void PictureLabel::show_drawing(std::shared_ptr<const ui::Drawing> drawing) {
  if (drawing_ == drawing) return;
  drawing_ = std::move(drawing);
  const bool grows = drawing_ != nullptr && drawing_->grows;
  const QSizePolicy::Policy across = grows ? QSizePolicy::Expanding : QSizePolicy::Preferred;
  const QSizePolicy::Policy down = grows && drawing_->low ? QSizePolicy::Fixed : across;
  const QSizePolicy now = sizePolicy();
  if (now.horizontalPolicy() != across || now.verticalPolicy() != down) setSizePolicy(across, down);
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
  if (!fitted_.isNull()) return wanted_;
  if (drawing_ != nullptr && drawing_->roomy > 1) return minimumSize() * drawing_->roomy;
  return ClickableLabel::sizeHint();
}

QSize PictureLabel::minimumSizeHint() const {
  return fitted_.isNull() ? ClickableLabel::minimumSizeHint() : wanted_ / 2;
}

// Where a small screen makes it narrow it is low as well.
bool PictureLabel::hasHeightForWidth() const {
  return !fitted_.isNull() || ClickableLabel::hasHeightForWidth();
}

int PictureLabel::heightForWidth(int width) const {
  if (fitted_.isNull()) return ClickableLabel::heightForWidth(width);
  return std::min(width, wanted_.width()) * wanted_.height() / wanted_.width();
}

// Left and at the top, where the text beside it begins.
QRect PictureLabel::fitted_place() const {
  return {QPoint(0, 0), wanted_.scaled(size().boundedTo(wanted_), Qt::KeepAspectRatio)};
}

void PictureLabel::paintEvent(QPaintEvent* event) {
  if (!fitted_.isNull()) {
    const QRect place = fitted_place();
    const QSize points = place.size() * devicePixelRatioF();
    if (scaled_.size() != points) {
      scaled_ = fitted_.size() == points
                    ? fitted_
                    : fitted_.scaled(points, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    QPainter(this).drawPixmap(place, scaled_);
    return;
  }
  if (drawing_ == nullptr) {
    ClickableLabel::paintEvent(event);
    return;
  }
  QPainter painter(this);
  // Not the label's own palette: what can be clicked has its text in the colour of links.
  paint(painter, QRectF(rect()), *drawing_, QApplication::palette(this));
}

}  // namespace desktop
