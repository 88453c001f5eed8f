#pragma once
// Paints a drawing in Qt: on a window, on a picture, on paper.

#include <QPalette>
#include <QRectF>

#include "ui/drawing.h"

class QPagedPaintDevice;
class QPainter;

namespace desktop {

/// Fills the room with paper and paints the drawing in it (ui::DrawingPlace). Lines, markers and
/// texts have the size of the painter's font, whatever the room and the device.
void paint(QPainter& painter, const QRectF& room, const ui::Drawing& drawing,
           const QPalette& palette);

/// Prints the drawing under its title, as large as the page's width and height allow, in the
/// colours of white paper. False when the device cannot be painted on.
[[nodiscard]] bool print(QPagedPaintDevice& device, const std::string& title,
                         const ui::Drawing& drawing);

}  // namespace desktop
