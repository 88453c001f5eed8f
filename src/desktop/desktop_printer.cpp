#include "desktop/desktop_printer.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace desktop {

bool DesktopPrinter::has_default_printer() const {
  return !QPrinterInfo::defaultPrinter().isNull();
}

platform::PrintResult DesktopPrinter::print(const std::string& document,
                                            const std::vector<std::string>& lines) {
  QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
  dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
  if (dialog.exec() != QDialog::Accepted) return platform::PrintResult::kCancelled;

  printer.setDocName(QString::fromStdString(document));
  QPainter painter;
  if (!painter.begin(&printer)) return platform::PrintResult::kFailed;
  // A report lines up under its ruler only in a fixed pitch. 92 characters must fit the narrow side
  // of the paper.
  constexpr int kPointSize = 8;
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSize(kPointSize);
  painter.setFont(font);
  const int line_height = painter.fontMetrics().lineSpacing();
  const int page_height = printer.pageLayout().paintRectPixels(printer.resolution()).height();
  int y = 0;
  for (const std::string& line : lines) {
    // The first line never begins with an empty sheet, however low the paper is.
    if (y + line_height > page_height && y > 0) {
      if (!printer.newPage()) return platform::PrintResult::kFailed;
      y = 0;
    }
    painter.drawText(0, y + painter.fontMetrics().ascent(), QString::fromStdString(line));
    y += line_height;
  }
  return painter.end() ? platform::PrintResult::kSuccess : platform::PrintResult::kFailed;
}

}  // namespace desktop
