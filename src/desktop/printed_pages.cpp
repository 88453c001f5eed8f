#include "desktop/printed_pages.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QIODevice>
#include <QPainter>
#include <QPalette>
#include <QPdfWriter>
#include <QRawFont>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "desktop/drawing_painter.h"
#include "desktop/fixed_pitch.h"
#include "text/ids.h"
#include "text/texts.h"

namespace desktop {
namespace {

constexpr double kLeastMargin = 10;  // millimetres
constexpr double kPointsOfAnInch = 72;
constexpr double kMillimetresOfAPoint = 25.4 / kPointsOfAnInch;
// Below the lines of a page: a blank line and the one with the page's number.
constexpr std::size_t kLinesOfFooter = 2;
// What stands beside the lines, the number of the page and the texts of drawings: never larger, in
// points.
constexpr int kSmallLetters = 8;

QPalette white_paper() {
  return {Qt::black, Qt::white, Qt::white, Qt::darkGray, Qt::gray,
          Qt::black, Qt::white, Qt::white, Qt::white};
}

// Widths are fractions of the height only where nothing is fitted to the dots of a screen.
QFont font_of(const QString& family, int dots) {
  QFont font(family);
  font.setPixelSize(dots);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(QFont::PreferQuality);
  return font;
}

// A family's measures for letters one dot high, taken from letters so high that rounding is
// nothing.
struct Proportions {
  double column = 0.5;
  double line = 1;
};
constexpr int kMeasured = 1000;

Proportions proportions_of(const QString& family) {
  const QFontMetricsF metrics(font_of(family, kMeasured));
  return {metrics.horizontalAdvance(QLatin1Char('0')) / kMeasured,
          metrics.lineSpacing() / kMeasured};
}

// One character of a text, which may take two units.
struct Character {
  char32_t code = 0;
  qsizetype units = 1;
  bool wide = false;
};
Character character_at(const QString& text, qsizetype at) {
  const QChar first = text[at];
  if (first.unicode() < 0x80) return {first.unicode()};  // nearly all there is, and quickly told
  const bool pair = first.isHighSurrogate() && at + 1 < text.size();
  const char32_t code =
      pair ? QChar::surrogateToUcs4(first, text[at + 1]) : char32_t{first.unicode()};
  const qsizetype units = pair ? 2 : 1;
  return {code, units, ui::columns_of(text.mid(at, units).toStdString()) > 1};
}

// A line on paper: what would move the print head or the text behind it takes one blank column.
QString shown(const std::string& line) {
  QString text = QString::fromStdString(line);
  for (QChar& c : text)
    if (c.category() == QChar::Other_Control) c = QLatin1Char(' ');
  return text;
}

// Puts lines into columns. Neighbours of one width that the font has are drawn at once; any other
// character comes from a font that has it, whose widths are its own, and stands in its columns
// alone.
class LinePainter {
 public:
  /// In the painter's font.
  LinePainter(QPainter& painter, bool wide_in_columns, double column)
      : painter_(painter),
        raw_(QRawFont::fromFont(painter.font(), QFontDatabase::Japanese)),
        column_(column),
        wide_in_columns_(wide_in_columns) {}

  void draw(const QString& line, double left, double baseline) {
    std::size_t column = 0;
    for (qsizetype at = 0; at < line.size();) {
      const qsizetype from = at;
      const std::size_t first_column = column;
      Character next = character_at(line, at);
      const bool wide = next.wide;
      const bool alone = stands_alone(next);
      do {
        at += next.units;
        column += wide ? 2 : 1;
        if (at < line.size()) next = character_at(line, at);
      } while (at < line.size() && !alone && next.wide == wide && !stands_alone(next));
      painter_.drawText(QPointF(left + static_cast<double>(first_column) * column_, baseline),
                        line.mid(from, at - from));
    }
  }

 private:
  [[nodiscard]] bool stands_alone(const Character& character) const {
    if (character.code < 0x80) return false;  // every family has these
    return (character.wide && !wide_in_columns_) || !raw_.supportsCharacter(character.code);
  }

  QPainter& painter_;
  QRawFont raw_;
  double column_;
  bool wide_in_columns_;
};

// Of a drawing on the width of a page: the shape that it has on the screen.
double height_of(const ui::Drawing& drawing, double width, const QFontMetricsF& metrics) {
  if (drawing.same_scale)
    return width * std::abs((drawing.y.last - drawing.y.first) /
                            ((drawing.x.last - drawing.x.first) * drawing.x_unit));
  return width * drawing.lines * metrics.height() /
         (drawing.characters * metrics.horizontalAdvance(QLatin1Char('0')));
}

// Where a drawing stands: pages count from 0.
struct Spot {
  std::size_t page = 0;
  QRectF room;
};

// The layout of a whole document, from which its number of pages is known before the first is
// drawn.
class Pages {
 public:
  Pages(const ui::Sheets& sheets, const QPageLayout& paper)
      : sheets_(sheets),
        measures_(measure_page(sheets, paper)),
        lines_(ui::folded(sheets.lines, measures_.room.columns)),
        family_(fixed_pitch_family()),
        wide_in_columns_(keeps_columns(family_)),
        paper_(paper.paintRectPixels(sheets.size.dots_per_inch).size()) {}

  /// Ends early, with false, when `goes_well` says that the rest is of no use.
  [[nodiscard]] bool draw(QPdfWriter& writer, const std::function<bool()>& goes_well) {
    QPainter painter;
    if (!painter.begin(&writer)) return false;
    painter.setFont(font_of(family_, small_letters()));
    const std::vector<Spot> spots = place_drawings(QFontMetricsF(painter.font(), &writer));
    const std::size_t count = spots.empty() ? pages_of_lines() : spots.back().page + 1;
    for (std::size_t page = 0; page < count; ++page) {
      if (!goes_well() || (page > 0 && !writer.newPage())) return false;
      draw_lines(painter, page);
      painter.setFont(font_of(family_, small_letters()));
      for (std::size_t i = 0; i < spots.size(); ++i)
        if (spots[i].page == page)
          paint(painter, spots[i].room, sheets_.drawings[i], white_paper());
      if (count > 1) draw_footer(painter, page + 1, count);
    }
    return painter.end();
  }

 private:
  [[nodiscard]] std::size_t line_count() const { return lines_ == nullptr ? 0 : lines_->size(); }
  [[nodiscard]] std::size_t pages_of_lines() const {
    const std::size_t per_page = measures_.room.lines;
    return std::max<std::size_t>(1, (line_count() + per_page - 1) / per_page);
  }

  // Below the last line, each whole on one page; what comes first never begins with an empty sheet.
  [[nodiscard]] std::vector<Spot> place_drawings(const QFontMetricsF& metrics) const {
    std::vector<Spot> spots;
    const double width = paper_.width();
    const double most =
        paper_.height() - static_cast<double>(kLinesOfFooter) * measures_.line_height;
    std::size_t page = pages_of_lines() - 1;
    double y =
        static_cast<double>(line_count() - page * measures_.room.lines) * measures_.line_height;
    for (const ui::Drawing& drawing : sheets_.drawings) {
      if (y > 0) y += measures_.line_height;
      const double height = std::min(height_of(drawing, width, metrics), most);
      if (y > 0 && y + height > most) {
        ++page;
        y = 0;
      }
      spots.push_back({page, {0, y, width, height}});
      y += height;
    }
    return spots;
  }

  void draw_lines(QPainter& painter, std::size_t page) const {
    const std::size_t first = page * measures_.room.lines;
    if (first >= line_count()) return;
    painter.setFont(font_of(family_, measures_.letter_height));
    LinePainter columns(painter, wide_in_columns_, measures_.column);
    double baseline = QFontMetricsF(painter.font(), painter.device()).ascent();
    for (const std::string& line : lines_->lines(first, measures_.room.lines)) {
      columns.draw(shown(line), 0, baseline);
      baseline += measures_.line_height;
    }
  }

  // On a line of its own at the foot of the paper.
  void draw_footer(QPainter& painter, std::size_t page, std::size_t count) const {
    painter.setFont(font_of(family_, small_letters()));
    const std::string words = text::fill(text::bilingual(text::id::kPageOf, sheets_.language),
                                         {std::to_string(page), std::to_string(count)});
    const double column = proportions_of(family_).column * small_letters();
    const double width = static_cast<double>(ui::columns_of(words)) * column;
    LinePainter(painter, wide_in_columns_, column)
        .draw(shown(words), (paper_.width() - width) / 2,
              paper_.height() - QFontMetricsF(painter.font(), painter.device()).descent());
  }

  [[nodiscard]] int small_letters() const {
    const double dots = kSmallLetters * sheets_.size.dots_per_inch / kPointsOfAnInch;
    return std::min(measures_.letter_height, static_cast<int>(dots));
  }

  const ui::Sheets& sheets_;
  PageMeasures measures_;
  std::shared_ptr<const ui::Document> lines_;
  QString family_;
  bool wide_in_columns_;
  QSizeF paper_;
};

// Hands on what is written, and remembers that something was not taken: who draws the pages does
// not ask.
class Outlet : public QIODevice {
 public:
  explicit Outlet(const TakeBytes& take) : take_(take) { open(QIODevice::WriteOnly); }
  [[nodiscard]] bool whole() const { return whole_; }

 protected:
  qint64 readData(char* /*data*/, qint64 /*most*/) override { return -1; }
  qint64 writeData(const char* data, qint64 size) override {
    if (whole_) whole_ = take_({data, static_cast<std::size_t>(size)});
    return whole_ ? size : -1;
  }

 private:
  const TakeBytes& take_;
  bool whole_ = true;
};

}  // namespace

QPageLayout paper_of(const QPageSize& size, const QMarginsF& least,
                     QPageLayout::Orientation orientation) {
  const auto margin = [](double points) {
    return std::max(kLeastMargin, points * kMillimetresOfAPoint);
  };
  const QMarginsF margins(margin(least.left()), margin(least.top()), margin(least.right()),
                          margin(least.bottom()));
  return {size, orientation, margins, QPageLayout::Millimeter, margins};
}

PageMeasures measure_page(const ui::Sheets& sheets, const QPageLayout& paper) {
  const Proportions proportions = proportions_of(fixed_pitch_family());
  const double dots_of_a_point = sheets.size.dots_per_inch / kPointsOfAnInch;
  const int least = static_cast<int>(std::ceil(sheets.size.least_points * dots_of_a_point));
  const int most = static_cast<int>(sheets.size.most_points * dots_of_a_point);
  const QSizeF room = paper.paintRectPixels(sheets.size.dots_per_inch).size();
  const std::size_t widest =
      std::max<std::size_t>(1, sheets.lines == nullptr ? 1 : sheets.lines->widest());
  const double fitting = room.width() / (static_cast<double>(widest) * proportions.column);
  PageMeasures measures;
  measures.letter_height =
      fitting >= most ? most : std::max(least, static_cast<int>(std::floor(fitting)));
  measures.column = proportions.column * measures.letter_height;
  measures.line_height = proportions.line * measures.letter_height;
  const auto whole = [](double number) { return static_cast<std::size_t>(std::max(0.0, number)); };
  const std::size_t lines = whole(room.height() / measures.line_height);
  measures.room.lines = lines > kLinesOfFooter ? lines - kLinesOfFooter : 1;
  measures.room.columns = std::max<std::size_t>(2, whole(room.width() / measures.column));
  return measures;
}

bool write_pdf(const ui::Sheets& sheets, const QPageLayout& paper, const TakeBytes& take) {
  Outlet outlet(take);
  {
    QPdfWriter writer(&outlet);
    writer.setPageLayout(paper);
    writer.setResolution(sheets.size.dots_per_inch);
    writer.setTitle(QString::fromStdString(sheets.name));
    if (!Pages(sheets, paper).draw(writer, [&outlet] { return outlet.whole(); })) return false;
  }
  return outlet.whole();
}

}  // namespace desktop
