#pragma once
// What drawings and pages are made with. A device implements it: a window's, a printer's, a file's.
// Places are dots from the top left corner, to the right and down.

#include <string_view>
#include <vector>

#include "paper/colour.h"
#include "ui/drawing.h"

namespace paper {

struct Box {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  [[nodiscard]] double width() const { return right - left; }
  [[nodiscard]] double height() const { return bottom - top; }
  bool operator==(const Box&) const = default;
};

struct Pen {
  Colour colour;
  double width = 1;
  bool dashed = false;
  bool sharp = false;  ///< its corners; else they are round
};
/// Of a dashed line, in widths of its pen.
inline constexpr double kDash = 4;
inline constexpr double kGap = 2;

class Canvas {
 public:
  Canvas() = default;
  virtual ~Canvas() = default;
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  /// An outline whose last point is joined with its first. `exact`: to the dot, so that two that
  /// share an edge leave no gap.
  virtual void fill(const std::vector<ui::Point>& outline, Colour colour, bool exact) = 0;
  virtual void stroke(const std::vector<ui::Point>& line, const Pen& pen) = 0;
  virtual void fill_circle(ui::Point centre, double radius, Colour colour) = 0;
  virtual void stroke_circle(ui::Point centre, double radius, const Pen& pen) = 0;
  /// UTF-8, on one line, from `at` on, which is on its base line.
  virtual void write(std::string_view text, ui::Point at, Colour colour) = 0;

  // Of the letters in use:
  [[nodiscard]] virtual double width_of(std::string_view text) const = 0;
  [[nodiscard]] virtual double ascent() const = 0;
  [[nodiscard]] virtual double descent() const = 0;
  [[nodiscard]] double letter_height() const { return ascent() + descent(); }

  /// Until clip_no_more() nothing is painted outside the box.
  virtual void clip(const Box& box) = 0;
  virtual void clip_no_more() = 0;
};

}  // namespace paper
