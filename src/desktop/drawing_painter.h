#pragma once
// Paints a drawing in Qt: on a window, on a picture, on paper.

#include <QPalette>
#include <QRectF>

#include "ui/drawing.h"

class QPainter;

namespace desktop {

/// Fills the room with paper and paints the drawing in it (ui::DrawingPlace). Lines, markers and
/// texts have the size of the painter's font, whatever the room and the device.
void paint(QPainter& painter, const QRectF& room, const ui::Drawing& drawing,
           const QPalette& palette);

}  // namespace desktop
