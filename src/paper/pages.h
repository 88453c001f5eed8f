#pragma once
// Lines and drawings on pages of paper: what is printed, what is kept as a file, and what a view of
// the pages has to break like are one layout.

#include "paper/canvas.h"
#include "ui/printer.h"

namespace paper {

/// The edges of a sheet of paper that nothing is printed on, in points (a 72nd of an inch).
struct Margins {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  bool operator==(const Margins&) const = default;
};

/// In points.
struct SheetSize {
  double width = 0;
  double height = 0;
  Margins margins;
  [[nodiscard]] double room_across() const { return width - margins.left - margins.right; }
  [[nodiscard]] double room_down() const { return height - margins.top - margins.bottom; }
};
inline constexpr double kPointsOfAnInch = 72;
inline constexpr double kPointsOfAMillimetre = kPointsOfAnInch / 25.4;
inline constexpr double kA4Width = 210 * kPointsOfAMillimetre;
inline constexpr double kA4Height = 297 * kPointsOfAMillimetre;

/// Of a margin, in millimetres.
inline constexpr double kLeastMargin = 10;
/// Paper of this size whose margins are the least ones, but nowhere less than kLeastMargin.
[[nodiscard]] SheetSize sheet_of(double width, double height, const Margins& least = {});

/// Of a family whose letters stand in columns, for letters one dot high.
struct Proportions {
  double column = 0.5;
  double line = 1;
};

/// What one page has room for, and how large its letters are (ui::PrintSize).
struct PageMeasures {
  ui::PageRoom room;
  int letter_height = 1;   ///< of the font, in dots
  double column = 1;       ///< width of one, in dots
  double line_height = 1;  ///< in dots
};
[[nodiscard]] PageMeasures measure_page(const ui::Sheets& sheets, const SheetSize& size,
                                        const Proportions& letters);

/// Pages of one size, the first of which is there already. Places are counted from the corner
/// within the margins, in dots of ui::PrintSize.
class PageCanvas : public Canvas {
 public:
  /// Letters of this height, in the family that the proportions are of.
  virtual void set_letters(double dots) = 0;
  /// write(), each character at the left of its own columns of so many dots.
  virtual void write_in_columns(std::string_view text, ui::Point at, double column,
                                Colour colour) = 0;
  /// False when what comes is of no use any more.
  [[nodiscard]] virtual bool next_page() = 0;
};

/// A new page starts where one is full, and for a drawing that the rest of a page has no room for; a
/// drawing is as wide as the page, and never higher. Nothing is held but a page of lines. False when
/// the canvas said so.
[[nodiscard]] bool draw_pages(const ui::Sheets& sheets, const SheetSize& size,
                              const Proportions& letters, PageCanvas& canvas);

}  // namespace paper
