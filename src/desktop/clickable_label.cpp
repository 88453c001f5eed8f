#include "desktop/clickable_label.h"

#include <QMouseEvent>

#include "desktop/style.h"

namespace desktop {

void ClickableLabel::set_clickable(bool on) {
  if (clickable_ == on) return;
  clickable_ = on;
  setCursor(on ? Qt::PointingHandCursor : Qt::ArrowCursor);
  dress(*this, on ? Dress::kLink : Dress::kPlain);
}

void ClickableLabel::dress_anew() {
  if (clickable_) dress(*this, Dress::kLink);
}

void ClickableLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) dress_anew();
}

void ClickableLabel::mouseReleaseEvent(QMouseEvent* event) {
  // Let go beside it is no click, as on a button.
  if (clickable_ && event->button() == Qt::LeftButton && rect().contains(event->pos()))
    Q_EMIT clicked(event->position());
}

}  // namespace desktop
