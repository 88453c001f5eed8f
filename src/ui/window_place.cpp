#include "ui/window_place.h"

#include <algorithm>
#include <array>

#include "text/numbers.h"

namespace ui {
namespace {

constexpr std::size_t kParts = 5;
constexpr std::size_t kMostFigures = 5;  // and a sign

}  // namespace

std::string text_of(const WindowPlace& window) {
  const Place& place = window.place;
  std::string text;
  for (const int number : {place.left, place.top, place.width, place.height})
    text.append(text::format_int(number)).push_back(' ');
  text.push_back(window.maximised ? '1' : '0');
  return text;
}

std::optional<WindowPlace> window_place(std::string_view text) {
  std::array<int, kParts> numbers{};
  for (std::size_t i = 0; i < kParts; ++i) {
    const std::string_view word = text.substr(0, text.find(' '));
    if (!text::is_number(word, text::kSignedWhole) || word.size() > kMostFigures + 1)
      return std::nullopt;
    numbers[i] = text::leading_int(word);
    // The last number ends the text, behind all others it goes on.
    if ((word.size() == text.size()) != (i + 1 == kParts)) return std::nullopt;
    text.remove_prefix(std::min(word.size() + 1, text.size()));
  }
  const auto [left, top, width, height, maximised] = numbers;
  if (width <= 0 || height <= 0 || maximised < 0 || maximised > 1) return std::nullopt;
  return WindowPlace{{left, top, width, height}, maximised == 1};
}

}  // namespace ui
