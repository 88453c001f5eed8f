#pragma once
// Pixels that tests look at.

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <utility>

#include "win32/bitmap.h"

namespace tests {

inline constexpr std::uint32_t kUntouched = 0xFF00FF;

/// A picture of this size, that something is drawn on.
class Painted {
 public:
  Painted(int width, int height, const std::function<void(HDC)>& draw) : bitmap_(width, height) {
    if (!bitmap_.is_there()) throw std::runtime_error("no picture of this size");
    std::fill_n(bitmap_.pixels(), width * height, kUntouched);
    draw(bitmap_.dc());
    GdiFlush();
  }

  [[nodiscard]] std::uint32_t at(int x, int y) const {
    return bitmap_.pixels()[y * bitmap_.width() + x] & 0xFFFFFFU;
  }
  [[nodiscard]] int count(std::uint32_t colour) const {
    int found = 0;
    for (int y = 0; y < bitmap_.height(); ++y)
      for (int x = 0; x < bitmap_.width(); ++x) found += at(x, y) == colour ? 1 : 0;
    return found;
  }
  /// Columns that hold anything but this colour, first and last.
  [[nodiscard]] std::pair<int, int> across(std::uint32_t ground) const {
    std::pair<int, int> found{bitmap_.width(), -1};
    for (int y = 0; y < bitmap_.height(); ++y) {
      for (int x = 0; x < bitmap_.width(); ++x) {
        if (at(x, y) == ground) continue;
        found = {std::min(found.first, x), std::max(found.second, x)};
      }
    }
    return found;
  }

 private:
  win32::Bitmap bitmap_;
};

/// A font of the system, until it goes.
class Font {
 public:
  explicit Font(int height, const wchar_t* family = L"Tahoma")
      : font_(CreateFontW(-height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                          OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY,
                          DEFAULT_PITCH, family)) {}
  ~Font() { DeleteObject(font_); }
  Font(const Font&) = delete;
  Font& operator=(const Font&) = delete;
  [[nodiscard]] HFONT get() const { return font_; }

 private:
  HFONT font_;
};

}  // namespace tests
