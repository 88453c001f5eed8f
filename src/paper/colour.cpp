#include "paper/colour.h"

#include <algorithm>

namespace paper {
namespace {

// In the order of ui::Ink, without that of texts, which is the window's own.
constexpr std::array<Colour, ui::kInks - 1> kLight{{{0xB0, 0xB0, 0xB0},
                                                    {0x0B, 0x4A, 0x8F},
                                                    {0xEF, 0xE4, 0xC4},
                                                    {0xD8, 0xEB, 0xF8},
                                                    {0xF7, 0xFB, 0xFF},
                                                    {0x7A, 0x4A, 0x00},
                                                    {0xB0, 0x00, 0x00},
                                                    {0x8A, 0x7A, 0x55}}};
constexpr std::array<Colour, ui::kInks - 1> kDark{{{0x6A, 0x6A, 0x6A},
                                                   {0x8E, 0xC7, 0xFF},
                                                   {0x4A, 0x45, 0x30},
                                                   {0x1C, 0x34, 0x48},
                                                   {0x38, 0x43, 0x4C},
                                                   {0xFF, 0xD2, 0x7F},
                                                   {0xFF, 0x9C, 0x9C},
                                                   {0xA8, 0x9A, 0x6C}}};

}  // namespace

bool is_dark(Colour colour) {
  const auto [least, most] = std::minmax({colour.red, colour.green, colour.blue});
  constexpr int kHalf = 128;
  return (most + least) / 2 < kHalf;
}

Inks inks_on(Colour paper, Colour text) {
  const auto& inks = is_dark(paper) ? kDark : kLight;
  Inks all;
  all.paper = paper;
  all.ink[0] = text;
  for (std::size_t i = 0; i < inks.size(); ++i) all.ink[i + 1] = inks[i];
  return all;
}

}  // namespace paper
