#pragma once
// Paints a drawing on a canvas: lines, markers and texts have the size of the canvas's letters,
// whatever the room and the device.

#include "paper/canvas.h"
#include "paper/colour.h"
#include "ui/drawing.h"

namespace paper {

/// In the room, at its place there (ui::DrawingPlace). The room is filled with paper before.
void paint(Canvas& canvas, const Box& room, const ui::Drawing& drawing, const Inks& inks);

}  // namespace paper
