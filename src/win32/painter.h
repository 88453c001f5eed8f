#pragma once
// Paints a drawing in the system's windows and pictures.

#include "paper/colour.h"
#include "ui/drawing.h"
#include "win32/system.h"

namespace win32 {

/// Fills the room (pixels) with paper and paints the drawing in it (ui::DrawingPlace). Lines, markers
/// and texts have the size of the font, whose letters are as large as the display wants them.
void paint(HDC dc, const ui::Drawing& drawing, const RECT& room, HFONT font, double scale,
           const paper::Inks& inks);

/// Pixels that the drawing wants at least with this font.
[[nodiscard]] SIZE room_of(const ui::Drawing& drawing, HDC dc, HFONT font);

}  // namespace win32
