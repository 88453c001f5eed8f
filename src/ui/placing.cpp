#include "ui/placing.h"

#include <algorithm>
#include <iterator>

namespace ui {

std::optional<Corner> place_beside(const Place& field, const Size& box, const Place& display,
                                   int gap) {
  if (box.width > display.width || box.height > display.height) return std::nullopt;
  const int across = std::clamp(field.left, display.left, display.right() - box.width);
  const int down = std::clamp(field.top, display.top, display.bottom() - box.height);
  const Corner corners[] = {{field.right() + gap, down},
                            {across, field.bottom() + gap},
                            {across, field.top - gap - box.height},
                            {field.left - gap - box.width, down}};
  const auto* const at =
      std::find_if(std::begin(corners), std::end(corners), [&](const Corner& corner) {
        return corner.left >= display.left && corner.left + box.width <= display.right() &&
               corner.top >= display.top && corner.top + box.height <= display.bottom();
      });
  return at == std::end(corners) ? std::nullopt : std::optional(*at);
}

Corner title_of(const Place& kept) {
  return {kept.left + kept.width / 2, kept.top};
}

Place fitted(const Place& kept, const Place& display, const Size& least) {
  const int width = std::max(std::min(kept.width, display.width), least.width);
  const int height = std::max(std::min(kept.height, display.height), least.height);
  const auto within = [](int from, int first, int last) {
    return std::clamp(from, first, std::max(first, last));
  };
  return {within(kept.left, display.left, display.right() - width),
          within(kept.top, display.top, display.bottom() - height), width, height};
}

Corner drawn_back(const Place& grown, const Place& display) {
  Corner corner = grown.corner();
  if (grown.right() > display.right())
    corner.left = std::max(display.left, display.right() - grown.width);
  if (grown.bottom() > display.bottom())
    corner.top = std::max(display.top, display.bottom() - grown.height);
  return corner;
}

}  // namespace ui
