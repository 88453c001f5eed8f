#pragma once
// Where a window comes to stand on a display: by numbers, whatever the front end counts in.

#include <optional>

namespace ui {

struct Corner {
  int left = 0;
  int top = 0;
  bool operator==(const Corner&) const = default;
};

struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};

/// A part of a display, or of what stands on it.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  [[nodiscard]] int right() const { return left + width; }
  [[nodiscard]] int bottom() const { return top + height; }
  [[nodiscard]] Corner corner() const { return {left, top}; }
  [[nodiscard]] Size size() const { return {width, height}; }
  bool operator==(const Place&) const = default;
};

/// Where a box of this size stands beside the field and leaves it in sight: right of it, below, above
/// or left, the first that the display has room for, `gap` away. Nothing where none has.
[[nodiscard]] std::optional<Corner> place_beside(const Place& field, const Size& box,
                                                 const Place& display, int gap);

/// The point by which a kept place belongs to a display: the middle of the title bar, where the
/// window can be reached. A display may have gone since.
[[nodiscard]] Corner title_of(const Place& kept);

/// The kept place as near as the display has room for it, which may be smaller now; never smaller
/// than `least`.
[[nodiscard]] Place fitted(const Place& kept, const Place& display, const Size& least = {});

/// A window that grew to this place, moved up and left as far as its buttons would be beyond the
/// display, yet not so far that its title bar leaves it. What was moved off to the left stays there.
[[nodiscard]] Corner drawn_back(const Place& grown, const Place& display);

}  // namespace ui
