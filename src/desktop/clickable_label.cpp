#include "desktop/clickable_label.h"

#include <QMouseEvent>

namespace desktop {

void ClickableLabel::set_clickable(bool on) {
  if (clickable_ == on) return;
  clickable_ = on;
  setCursor(on ? Qt::PointingHandCursor : Qt::ArrowCursor);
  setProperty("clickable", on);
}

void ClickableLabel::mouseReleaseEvent(QMouseEvent* event) {
  // Let go beside it is no click, as on a button.
  if (clickable_ && event->button() == Qt::LeftButton && rect().contains(event->pos()))
    Q_EMIT clicked(event->position());
}

}  // namespace desktop
