#include "paper/image.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace paper {
namespace {

constexpr std::array<unsigned, 4> kParts = {24, 16, 8, 0};

// Which pixels one of another size is made of, and how much each counts.
struct Share {
  int first = 0;
  std::vector<float> weights;
};

std::vector<Share> shares(int from, int to) {
  std::vector<Share> all;
  const double ratio = static_cast<double>(from) / to;
  const double reach = std::max(1.0, ratio);
  for (int i = 0; i < to; ++i) {
    const double middle = (i + 0.5) * ratio - 0.5;
    const int first = std::max(0, static_cast<int>(std::ceil(middle - reach)));
    const int last = std::min(from - 1, static_cast<int>(std::floor(middle + reach)));
    Share share{first, {}};
    double sum = 0;
    for (int at = first; at <= last; ++at) {
      const double weight = std::max(0.0, 1 - std::abs(at - middle) / reach);
      share.weights.push_back(static_cast<float>(weight));
      sum += weight;
    }
    for (float& weight : share.weights) weight /= static_cast<float>(sum);
    all.push_back(std::move(share));
  }
  return all;
}

// Mixes pixels that lie `step` apart.
std::uint32_t mixed(const std::uint32_t* first, std::ptrdiff_t step, const Share& share) {
  std::array<float, kParts.size()> sums{};
  for (std::size_t i = 0; i < share.weights.size(); ++i) {
    const std::uint32_t pixel = first[static_cast<std::ptrdiff_t>(i) * step];
    for (std::size_t part = 0; part < kParts.size(); ++part)
      sums[part] += static_cast<float>((pixel >> kParts[part]) & 0xFFU) * share.weights[i];
  }
  std::uint32_t result = 0;
  for (std::size_t part = 0; part < kParts.size(); ++part)
    result |= static_cast<std::uint32_t>(std::lround(std::min(sums[part], 255.0F))) << kParts[part];
  return result;
}

}  // namespace

Image scaled(const Image& image, int width, int height) {
  width = std::max(1, width);
  height = std::max(1, height);
  if (image.pixels.empty() || (width == image.width && height == image.height)) return image;
  const auto count = [](int a, int b) {
    return static_cast<std::size_t>(a) * static_cast<std::size_t>(b);
  };
  Image across{width, image.height, std::vector<std::uint32_t>(count(width, image.height))};
  const std::vector<Share> columns = shares(image.width, width);
  for (int y = 0; y < image.height; ++y) {
    const std::uint32_t* const row = image.pixels.data() + count(y, image.width);
    for (int x = 0; x < width; ++x) {
      const Share& share = columns[static_cast<std::size_t>(x)];
      across.pixels[count(y, width) + static_cast<std::size_t>(x)] =
          mixed(row + share.first, 1, share);
    }
  }
  Image result{width, height, std::vector<std::uint32_t>(count(width, height))};
  const std::vector<Share> rows = shares(image.height, height);
  for (int y = 0; y < height; ++y) {
    const Share& share = rows[static_cast<std::size_t>(y)];
    const std::uint32_t* const row = across.pixels.data() + count(share.first, width);
    for (int x = 0; x < width; ++x)
      result.pixels[count(y, width) + static_cast<std::size_t>(x)] = mixed(row + x, width, share);
  }
  return result;
}

std::uint32_t on_background(std::uint32_t pixel, std::uint32_t background) {
  const std::uint32_t through = 255U - (pixel >> 24U);
  std::uint32_t result = 0;
  for (const unsigned shift : {16U, 8U, 0U}) {
    const std::uint32_t behind = (((background >> shift) & 0xFFU) * through + 127U) / 255U;
    result |= std::min(255U, ((pixel >> shift) & 0xFFU) + behind) << shift;
  }
  return result;
}

}  // namespace paper
