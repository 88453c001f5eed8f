#include "win32/bitmap.h"

namespace win32 {

Bitmap::Bitmap(int width, int height)
    : width_(width), height_(height), dc_(CreateCompatibleDC(nullptr)) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;  // rows from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (bitmap_ == nullptr) return;
  before_ = SelectObject(dc_, bitmap_);
  pixels_ = static_cast<std::uint32_t*>(bits);
}

Bitmap::~Bitmap() {
  if (bitmap_ != nullptr) {
    SelectObject(dc_, before_);
    DeleteObject(bitmap_);
  }
  DeleteDC(dc_);
}

}  // namespace win32
