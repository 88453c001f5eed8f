#include "desktop/desktop_printer.h"

#include <QApplication>
#include <QBuffer>
#include <QFontDatabase>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <cmath>

#include "desktop/drawing_painter.h"

namespace desktop {
namespace {

QPalette paper() {
  return {Qt::black, Qt::white, Qt::white, Qt::darkGray, Qt::gray,
          Qt::black, Qt::white, Qt::white, Qt::white};
}

// Of a drawing on the width of a page: the shape that it has on the screen.
double height_of(const ui::Drawing& drawing, double width, const QFontMetricsF& metrics) {
  if (drawing.same_scale)
    return width *
           std::abs((drawing.y.last - drawing.y.first) / (drawing.x.last - drawing.x.first));
  return width * drawing.lines * metrics.height() /
         (drawing.characters * metrics.horizontalAdvance(QLatin1Char('0')));
}

}  // namespace

bool DesktopPrinter::has_default_printer() const {
  return !QPrinterInfo::defaultPrinter().isNull();
}

ui::PageRoom DesktopPrinter::page_room(const ui::Sheets& /*sheets*/) const {
  return {60, 92};
}

ui::PrintResult DesktopPrinter::print(const ui::Sheets& sheets) {
  QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
  dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
  if (dialog.exec() != QDialog::Accepted) return ui::PrintResult::kCancelled;
  printer.setDocName(QString::fromStdString(sheets.name));
  return print_on(printer, sheets) ? ui::PrintResult::kSuccess : ui::PrintResult::kFailed;
}

std::optional<std::string> DesktopPrinter::pdf(const ui::Sheets& sheets) const {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  if (!print_on(writer, sheets)) return std::nullopt;
  return bytes.toStdString();
}

bool print_on(QPagedPaintDevice& device, const ui::Sheets& sheets) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  // A report lines up under its ruler only in a fixed pitch. 92 characters must fit the narrow side
  // of the paper.
  constexpr int kPointSize = 8;
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSize(kPointSize);
  // Points of the paper: without the device they would be those of the screen.
  painter.setFont(QFont(font, &device));
  const QFontMetricsF metrics(painter.font(), &device);
  const double page_height = device.height();
  double y = 0;
  // What comes first never begins with an empty sheet, however low the paper is.
  const auto make_room = [&](double height) {
    if (y == 0 || y + height <= page_height) return true;
    y = 0;
    return device.newPage();
  };
  const std::size_t count = sheets.lines == nullptr ? 0 : sheets.lines->size();
  for (std::size_t at = 0; at < count; ++at) {
    const std::string line = sheets.lines->lines(at, 1).front();
    if (!make_room(metrics.lineSpacing())) return false;
    painter.drawText(QPointF(0, y + metrics.ascent()), QString::fromStdString(line));
    y += metrics.lineSpacing();
  }
  for (const ui::Drawing& drawing : sheets.drawings) {
    if (y > 0) y += metrics.lineSpacing();
    const double width = device.width();
    const double height = std::min(height_of(drawing, width, metrics), page_height);
    if (!make_room(height)) return false;
    paint(painter, QRectF(0, y, width, height), drawing, paper());
    y += height;
  }
  return painter.end();
}

}  // namespace desktop
