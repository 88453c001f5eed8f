#include "win32/painter.h"

#include <cmath>
#include <string>
#include <string_view>

#include "paper/drawing_painter.h"
#include "paper/raster.h"
#include "win32/bitmap.h"
#include "win32/utf.h"

namespace win32 {
namespace {

// Shapes go into the pixels, letters through the system.
class BitmapCanvas : public paper::Raster {
 public:
  BitmapCanvas(Bitmap& bitmap, HFONT font)
      : Raster({bitmap.pixels(), bitmap.width(), bitmap.height()}),
        dc_(bitmap.dc()),
        font_(dc_, font) {
    SetBkMode(dc_, TRANSPARENT);
    SetTextAlign(dc_, TA_LEFT | TA_BASELINE | TA_NOUPDATECP);
    GetTextMetricsW(dc_, &metrics_);
  }

  void write(std::string_view text, ui::Point at, paper::Colour colour) override {
    const std::wstring words = wide(text);
    SetTextColor(dc_, RGB(colour.red, colour.green, colour.blue));
    const paper::Box& box = clipped_to();
    const RECT within{std::lround(box.left), std::lround(box.top), std::lround(box.right),
                      std::lround(box.bottom)};
    ExtTextOutW(dc_, static_cast<int>(std::lround(at.x)), static_cast<int>(std::lround(at.y)),
                ETO_CLIPPED, &within, words.c_str(), static_cast<UINT>(words.size()), nullptr);
    GdiFlush();  // the next shape goes past the system
  }
  [[nodiscard]] double width_of(std::string_view text) const override {
    const std::wstring words = wide(text);
    SIZE size{};
    GetTextExtentPoint32W(dc_, words.c_str(), static_cast<int>(words.size()), &size);
    return size.cx;
  }
  [[nodiscard]] double ascent() const override { return metrics_.tmAscent; }
  [[nodiscard]] double descent() const override { return metrics_.tmDescent; }

 private:
  HDC dc_;
  Selected font_;
  TEXTMETRICW metrics_{};
};

}  // namespace

void paint(HDC dc, const ui::Drawing& drawing, const RECT& room, HFONT font, double /*scale*/,
           const paper::Inks& inks) {
  const int width = room.right - room.left;
  const int height = room.bottom - room.top;
  if (width <= 0 || height <= 0) return;
  Bitmap bitmap(width, height);
  if (!bitmap.is_there()) return;
  {
    BitmapCanvas canvas(bitmap, font);
    const paper::Box whole{0, 0, static_cast<double>(width), static_cast<double>(height)};
    paper::paint(canvas, whole, drawing, inks);
  }
  BitBlt(dc, room.left, room.top, width, height, bitmap.dc(), 0, 0, SRCCOPY);
}

SIZE room_of(const ui::Drawing& drawing, HDC dc, HFONT font) {
  const Selected selected(dc, font);
  SIZE figure{};
  GetTextExtentPoint32W(dc, L"0", 1, &figure);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  return {figure.cx * drawing.characters,
          (metrics.tmHeight + metrics.tmExternalLeading) * drawing.lines};
}

}  // namespace win32
