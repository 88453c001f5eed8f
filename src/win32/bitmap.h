#pragma once
// Pixels in memory that the system draws on as well.

#include <cstdint>

#include "win32/system.h"

namespace win32 {

/// An object of the system's drawing (a font, a bitmap) in use by a device until this goes.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
  ~Selected() { SelectObject(dc_, before_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC dc_;
  HGDIOBJ before_;
};

class Bitmap {
 public:
  Bitmap(int width, int height);
  ~Bitmap();
  Bitmap(const Bitmap&) = delete;
  Bitmap& operator=(const Bitmap&) = delete;

  /// False where the system had no room for it; then it is not to be used.
  [[nodiscard]] bool is_there() const { return pixels_ != nullptr; }
  [[nodiscard]] HDC dc() const { return dc_; }
  [[nodiscard]] int width() const { return width_; }
  [[nodiscard]] int height() const { return height_; }
  /// Rows from the top, 0x00RRGGBB. What the system drew is there after GdiFlush().
  [[nodiscard]] std::uint32_t* pixels() { return pixels_; }
  [[nodiscard]] const std::uint32_t* pixels() const { return pixels_; }

 private:
  int width_;
  int height_;
  HDC dc_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
  std::uint32_t* pixels_ = nullptr;
};

}  // namespace win32
