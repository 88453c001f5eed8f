#pragma once
// Colours of drawings: what each ink is on light paper and on dark.

#include <array>
#include <cstddef>
#include <cstdint>

#include "ui/drawing.h"

namespace paper {

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Colour&) const = default;
};
inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kWhite{255, 255, 255};

struct Inks {
  std::array<Colour, ui::kInks> ink{};
  Colour paper = kWhite;
  [[nodiscard]] Colour of(ui::Ink which) const { return ink[static_cast<std::size_t>(which)]; }
};

/// Between black and white, by what is seen first: the largest and the smallest part of the colour.
[[nodiscard]] bool is_dark(Colour colour);

/// For a window with such texts on such paper. Lines, signs and texts of a drawing are read on its
/// paper, land, water and ice alike.
[[nodiscard]] Inks inks_on(Colour paper, Colour text);

/// For a printer.
[[nodiscard]] inline Inks inks_of_print() {
  return inks_on(kWhite, kBlack);
}

}  // namespace paper
