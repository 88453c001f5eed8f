#pragma once
// A file's picture in other sizes.

#include <cstdint>
#include <vector>

namespace paper {

/// Rows from the top; each pixel 0xAARRGGBB, its colours already as faint as it is see-through.
struct Image {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

/// The picture in so many pixels, at least one each way. Smaller, each is the mean of what it stands
/// for; larger, what lies between two pixels is between their colours.
[[nodiscard]] Image scaled(const Image& image, int width, int height);

/// Its pixels on a background, 0x00RRGGBB.
[[nodiscard]] std::uint32_t on_background(std::uint32_t pixel, std::uint32_t background);

}  // namespace paper
