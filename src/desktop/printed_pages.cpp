#include "desktop/printed_pages.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QIODevice>
#include <QPainter>
#include <QPdfWriter>
#include <QRawFont>
#include <algorithm>
#include <optional>

#include "desktop/fixed_pitch.h"
#include "desktop/qt_canvas.h"

namespace desktop {
namespace {

// Widths are fractions of the height only where nothing is fitted to the dots of a screen.
QFont font_of(const QString& family, int dots) {
  QFont font(family);
  font.setPixelSize(dots);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(QFont::PreferQuality);
  return font;
}

// Taken from letters so high that rounding is nothing.
paper::Proportions proportions_of(const QString& family) {
  constexpr int kMeasured = 1000;
  const QFontMetricsF metrics(font_of(family, kMeasured));
  return {metrics.horizontalAdvance(QLatin1Char('0')) / kMeasured,
          metrics.lineSpacing() / kMeasured};
}

// What there is to print on, in whole dots.
paper::SheetSize sheet_of(const ui::Sheets& sheets, const QPageLayout& paper) {
  const QSizeF room = paper.paintRectPixels(sheets.size.dots_per_inch).size();
  const double points = paper::kPointsOfAnInch / sheets.size.dots_per_inch;
  return {room.width() * points, room.height() * points, {}};
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
QString shown(std::string_view line) {
  QString text = QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size()));
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
  LinePainter(QPainter& painter, bool wide_in_columns)
      : painter_(painter),
        raw_(QRawFont::fromFont(painter.font(), QFontDatabase::Japanese)),
        wide_in_columns_(wide_in_columns) {}

  void draw(const QString& line, QPointF at_left, double width_of_column) {
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
      painter_.drawText(at_left + QPointF(static_cast<double>(first_column) * width_of_column, 0),
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
  bool wide_in_columns_;
};

// The pages of a file that is written.
class PdfCanvas : public QtCanvas<paper::PageCanvas> {
 public:
  /// `goes_well` says whether what comes is of any use.
  PdfCanvas(QPainter& painter, QPdfWriter& writer, const std::function<bool()>& goes_well)
      : QtCanvas(painter),
        writer_(writer),
        goes_well_(goes_well),
        family_(fixed_pitch_family()),
        wide_in_columns_(keeps_columns(family_)) {}

  void set_letters(double dots) override {
    set_font(font_of(family_, static_cast<int>(dots)));
    lines_.emplace(painter(), wide_in_columns_);
  }
  [[nodiscard]] bool next_page() override { return goes_well_() && writer_.newPage(); }
  void write_in_columns(std::string_view text, ui::Point at, double column,
                        paper::Colour colour) override {
    painter().setPen(colour_of(colour));
    lines_->draw(shown(text), {at.x, at.y}, column);
  }

 private:
  QPdfWriter& writer_;
  const std::function<bool()>& goes_well_;
  QString family_;
  bool wide_in_columns_;
  std::optional<LinePainter> lines_;  ///< in these letters
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
    return std::max(paper::kLeastMargin, points / paper::kPointsOfAMillimetre);
  };
  const QMarginsF margins(margin(least.left()), margin(least.top()), margin(least.right()),
                          margin(least.bottom()));
  return {size, orientation, margins, QPageLayout::Millimeter, margins};
}

PageMeasures measure_page(const ui::Sheets& sheets, const QPageLayout& paper) {
  return paper::measure_page(sheets, sheet_of(sheets, paper), proportions_of(fixed_pitch_family()));
}

bool write_pdf(const ui::Sheets& sheets, const QPageLayout& paper, const TakeBytes& take) {
  Outlet outlet(take);
  {
    QPdfWriter writer(&outlet);
    writer.setPageLayout(paper);
    writer.setResolution(sheets.size.dots_per_inch);
    writer.setTitle(QString::fromStdString(sheets.name));
    QPainter painter;
    if (!painter.begin(&writer)) return false;
    const std::function<bool()> goes_well = [&outlet] { return outlet.whole(); };
    PdfCanvas canvas(painter, writer, goes_well);
    if (!paper::draw_pages(sheets, sheet_of(sheets, paper), proportions_of(fixed_pitch_family()),
                           canvas) ||
        !painter.end())
      return false;
  }
  return outlet.whole();
}

}  // namespace desktop
