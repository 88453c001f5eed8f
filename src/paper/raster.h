#pragma once
// A canvas of pixels in memory, with smooth edges. Letters are left to the system that has them.

#include <cstdint>
#include <vector>

#include "paper/canvas.h"

namespace paper {

/// Rows from the top, each of `width` pixels 0x00RRGGBB.
struct Pixels {
  std::uint32_t* first = nullptr;
  int width = 0;
  int height = 0;
};

class Raster : public Canvas {
 public:
  /// The pixels must outlive the object.
  explicit Raster(Pixels pixels);

  /// What is inside an outline and outside the one within it is filled (even-odd).
  void fill(const std::vector<ui::Point>& outline, Colour colour, bool exact) override;
  void stroke(const std::vector<ui::Point>& line, const Pen& pen) override;
  void fill_circle(ui::Point centre, double radius, Colour colour) override;
  void stroke_circle(ui::Point centre, double radius, const Pen& pen) override;
  void clip(const Box& box) override;
  void clip_no_more() override;

 protected:
  /// In whole pixels.
  [[nodiscard]] const Box& clipped_to() const { return clip_; }

 private:
  using Outlines = std::vector<std::vector<ui::Point>>;
  void fill_all(const Outlines& outlines, Colour colour, bool exact, bool winding);
  void blend(int row, int from, int to, Colour colour);

  Pixels pixels_;
  Box clip_;
  std::vector<float> cover_;  ///< of the row under way
};

}  // namespace paper
