#include "desktop/drawing_painter.h"

#include "desktop/qt_canvas.h"
#include "desktop/style.h"
#include "paper/drawing_painter.h"

namespace desktop {

void paint(QPainter& painter, const QRectF& room, const ui::Drawing& drawing,
           const QPalette& palette) {
  painter.save();
  QtCanvas<paper::Canvas> canvas(painter);
  paper::paint(canvas, {room.left(), room.top(), room.right(), room.bottom()}, drawing,
               inks_of(palette));
  painter.restore();
}

}  // namespace desktop
