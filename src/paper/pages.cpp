#include "paper/pages.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "paper/drawing_painter.h"
#include "text/ids.h"
#include "text/texts.h"

namespace paper {
namespace {

// Below the lines of a page: a blank line and the one with the page's number.
constexpr std::size_t kLinesOfFooter = 2;
// What stands beside the lines, the number of the page and the texts of drawings: never larger, in
// points.
constexpr double kSmallLetters = 8;

double dots_of(double points, const ui::Sheets& sheets) {
  return points * sheets.size.dots_per_inch / kPointsOfAnInch;
}

// Of a drawing on the width of a page: the shape that it has on the screen.
double height_of(const ui::Drawing& drawing, double width, double letter_height, double column) {
  if (drawing.same_scale)
    return width * std::abs((drawing.y.last - drawing.y.first) /
                            ((drawing.x.last - drawing.x.first) * drawing.x_unit));
  return width * drawing.lines * letter_height / (drawing.characters * column);
}

// Where a drawing stands: pages count from 0.
struct Spot {
  std::size_t page = 0;
  Box room;
};

// The layout of a whole document, from which its number of pages is known before the first is
// drawn.
class Pages {
 public:
  Pages(const ui::Sheets& sheets, const SheetSize& size, const Proportions& letters)
      : sheets_(sheets),
        letters_(letters),
        measures_(measure_page(sheets, size, letters)),
        lines_(ui::folded(sheets.lines, measures_.room.columns)),
        width_(dots_of(size.room_across(), sheets)),
        height_(dots_of(size.room_down(), sheets)) {}

  [[nodiscard]] bool draw(PageCanvas& canvas) const {
    canvas.set_letters(small_letters());
    const std::vector<Spot> spots = place_drawings(canvas.letter_height());
    const std::size_t count = spots.empty() ? pages_of_lines() : spots.back().page + 1;
    for (std::size_t page = 0; page < count; ++page) {
      if (page > 0 && !canvas.next_page()) return false;
      draw_lines(canvas, page);
      canvas.set_letters(small_letters());
      for (std::size_t i = 0; i < spots.size(); ++i)
        if (spots[i].page == page)
          paint(canvas, spots[i].room, sheets_.drawings[i], inks_of_print());
      if (count > 1) draw_footer(canvas, page + 1, count);
    }
    return true;
  }

 private:
  [[nodiscard]] std::size_t line_count() const { return lines_ == nullptr ? 0 : lines_->size(); }
  [[nodiscard]] std::size_t pages_of_lines() const {
    const std::size_t per_page = measures_.room.lines;
    return std::max<std::size_t>(1, (line_count() + per_page - 1) / per_page);
  }

  // Below the last line, each whole on one page; what comes first never begins with an empty sheet.
  [[nodiscard]] std::vector<Spot> place_drawings(double letter_height) const {
    std::vector<Spot> spots;
    const double most = height_ - static_cast<double>(kLinesOfFooter) * measures_.line_height;
    std::size_t page = pages_of_lines() - 1;
    double y =
        static_cast<double>(line_count() - page * measures_.room.lines) * measures_.line_height;
    for (const ui::Drawing& drawing : sheets_.drawings) {
      if (y > 0) y += measures_.line_height;
      const double height =
          std::min(height_of(drawing, width_, letter_height, small_column()), most);
      if (y > 0 && y + height > most) {
        ++page;
        y = 0;
      }
      spots.push_back({page, {0, y, width_, y + height}});
      y += height;
    }
    return spots;
  }

  void draw_lines(PageCanvas& canvas, std::size_t page) const {
    const std::size_t first = page * measures_.room.lines;
    if (first >= line_count()) return;
    canvas.set_letters(measures_.letter_height);
    double baseline = canvas.ascent();
    for (const std::string& line : lines_->lines(first, measures_.room.lines)) {
      canvas.write_in_columns(line, {0, baseline}, measures_.column, kBlack);
      baseline += measures_.line_height;
    }
  }

  // On a line of its own at the foot of the paper.
  void draw_footer(PageCanvas& canvas, std::size_t page, std::size_t count) const {
    const std::string words = text::fill(text::bilingual(text::id::kPageOf, sheets_.language),
                                         {std::to_string(page), std::to_string(count)});
    const double width = static_cast<double>(ui::columns_of(words)) * small_column();
    canvas.write_in_columns(words, {(width_ - width) / 2, height_ - canvas.descent()},
                            small_column(), kBlack);
  }

  [[nodiscard]] double small_letters() const {
    return std::min<double>(measures_.letter_height, std::floor(dots_of(kSmallLetters, sheets_)));
  }
  [[nodiscard]] double small_column() const { return letters_.column * small_letters(); }

  const ui::Sheets& sheets_;
  Proportions letters_;
  PageMeasures measures_;
  std::shared_ptr<const ui::Document> lines_;
  double width_;
  double height_;
};

}  // namespace

SheetSize sheet_of(double width, double height, const Margins& least) {
  const auto margin = [](double points) {
    return std::max(kLeastMargin * kPointsOfAMillimetre, points);
  };
  return {width,
          height,
          {margin(least.left), margin(least.top), margin(least.right), margin(least.bottom)}};
}

PageMeasures measure_page(const ui::Sheets& sheets, const SheetSize& size,
                          const Proportions& letters) {
  const int least = static_cast<int>(std::ceil(dots_of(sheets.size.least_points, sheets)));
  const int most = static_cast<int>(dots_of(sheets.size.most_points, sheets));
  const double width = dots_of(size.room_across(), sheets);
  const double height = dots_of(size.room_down(), sheets);
  const std::size_t widest =
      std::max<std::size_t>(1, sheets.lines == nullptr ? 1 : sheets.lines->widest());
  const double fitting = width / (static_cast<double>(widest) * letters.column);
  PageMeasures measures;
  measures.letter_height =
      fitting >= most ? most : std::max(least, static_cast<int>(std::floor(fitting)));
  measures.column = letters.column * measures.letter_height;
  measures.line_height = letters.line * measures.letter_height;
  const auto whole = [](double number) { return static_cast<std::size_t>(std::max(0.0, number)); };
  const std::size_t lines = whole(height / measures.line_height);
  measures.room.lines = lines > kLinesOfFooter ? lines - kLinesOfFooter : 1;
  measures.room.columns = std::max<std::size_t>(2, whole(width / measures.column));
  return measures;
}

bool draw_pages(const ui::Sheets& sheets, const SheetSize& size, const Proportions& letters,
                PageCanvas& canvas) {
  return Pages(sheets, size, letters).draw(canvas);
}

}  // namespace paper
