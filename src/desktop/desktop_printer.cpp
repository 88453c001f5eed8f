#include "desktop/desktop_printer.h"

#include <QApplication>
#include <QPageSize>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryFile>

#include "desktop/printed_pages.h"
#include "desktop/qt_words.h"

namespace desktop {
namespace {

// Milliseconds. Who goes through a list of reports asks for the room of a page again and again, and
// a scheduler that does not answer must not stop him each time.
constexpr qint64 kPaperIsGood = 60'000;

// The paper that a printer has by itself or was given in the dialog.
QPageLayout paper_in(const QPrinter& printer) {
  QPageLayout layout = printer.pageLayout();
  layout.setUnits(QPageLayout::Point);
  const QMarginsF least = layout.minimumMargins() | layout.margins();
  return paper_of(layout.pageSize(), least, layout.orientation());
}

// That of the default printer, A4 when there is none that answers.
QPageLayout usual_paper(Patience patience) {
  if (ask_scheduler(patience) == Scheduler::kAnswers) {
    const SilenceGuard guard(patience);
    const QPrinterInfo usual = QPrinterInfo::defaultPrinter();
    if (!usual.isNull()) {
      QPrinter printer(usual, QPrinter::HighResolution);
      printer.setPageSize(usual.defaultPageSize());  // Qt itself begins with that of the locale
      return paper_in(printer);
    }
  }
  return paper_of(QPageSize(QPageSize::A4));
}

class WaitCursor {
 public:
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

bool choose(QPrinter& printer, text::Language language) {
  speak_qt(language);
  QWidget never_shown;
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  // Without page range, selection, current page and print-to-file. Where a queue could print a
  // range by itself Qt shows its box of ranges all the same, whenever the dialog is shown.
  dialog.setOptions(QAbstractPrintDialog::PrintCollateCopies |
                    QAbstractPrintDialog::PrintShowPageSize);
  if (auto* const ranges = dialog.findChild<QWidget*>("gbPrintRange"))
    ranges->setParent(&never_shown);
  return dialog.exec() == QDialog::Accepted;
}

// What was chosen in the dialog, in the words of the scheduler.
std::vector<std::pair<QByteArray, QByteArray>> options_of(const QPrinter& printer) {
  std::vector<std::pair<QByteArray, QByteArray>> options;
  options.emplace_back("media", printer.pageLayout().pageSize().key().toUtf8());
  if (printer.copyCount() > 1) {
    options.emplace_back("copies", QByteArray::number(printer.copyCount()));
    options.emplace_back("Collate", printer.collateCopies() ? "True" : "False");
  }
  if (printer.duplex() == QPrinter::DuplexNone) options.emplace_back("sides", "one-sided");
  if (printer.duplex() == QPrinter::DuplexLongSide || printer.duplex() == QPrinter::DuplexAuto)
    options.emplace_back("sides", "two-sided-long-edge");
  if (printer.duplex() == QPrinter::DuplexShortSide)
    options.emplace_back("sides", "two-sided-short-edge");
  if (printer.pageOrder() == QPrinter::LastPageFirst)
    options.emplace_back("outputorder", "reverse");
  if (printer.colorMode() == QPrinter::GrayScale)
    options.emplace_back("print-color-mode", "monochrome");
  // The rest (when to print, several pages on a sheet, what is the printer's own) Qt keeps as a
  // list of names and values under a key that it has no name for in its public headers.
  constexpr auto kOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);
  const QStringList rest = printer.printEngine()->property(kOptions).toStringList();
  for (qsizetype i = 0; i + 1 < rest.size(); i += 2)
    if (!rest[i + 1].isEmpty()) options.emplace_back(rest[i].toUtf8(), rest[i + 1].toUtf8());
  return options;
}

bool send_pages(const ui::Sheets& sheets, const QPrinter& printer, Patience patience) {
  QTemporaryFile file;
  if (!file.open()) return false;
  const auto take = [&file](std::string_view bytes) {
    const auto size = static_cast<qint64>(bytes.size());
    return file.write(bytes.data(), size) == size;
  };
  if (!write_pdf(sheets, paper_in(printer), take) || !file.flush()) return false;
  // The part behind a slash is a set of options of the same queue.
  const QString queue = printer.printerName().section('/', 0, 0);
  return send({queue, QString::fromStdString(sheets.name), file.fileName(), options_of(printer)},
              patience);
}

}  // namespace

QPageLayout DesktopPrinter::paper() const {
  if (!paper_ || paper_age_.hasExpired(kPaperIsGood)) {
    paper_ = usual_paper(patience_);
    paper_age_.start();
  }
  return *paper_;
}

bool DesktopPrinter::has_default_printer() const {
  switch (ask_scheduler(patience_)) {
    case Scheduler::kAbsent:
      return false;
    case Scheduler::kSilent:
      return true;
    case Scheduler::kAnswers:
      break;
  }
  const SilenceGuard guard(patience_);
  return !QPrinterInfo::defaultPrinter().isNull();
}

ui::PageRoom DesktopPrinter::page_room(const ui::Sheets& sheets) const {
  return measure_page(sheets, paper()).room;
}

ui::PrintResult DesktopPrinter::print(const ui::Sheets& sheets) {
  paper_.reset();
  // Qt would ask on, and wait for a minute each time.
  if (ask_scheduler(patience_) != Scheduler::kAnswers) return ui::PrintResult::kFailed;
  std::optional<SilenceGuard> guard(std::in_place, patience_);
  QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
  if (!choose(printer, sheets.language)) return ui::PrintResult::kCancelled;
  guard.reset();  // what is sent now has a patience of its own, and many pages take long
  const WaitCursor cursor;
  return send_pages(sheets, printer, patience_) ? ui::PrintResult::kSuccess
                                                : ui::PrintResult::kFailed;
}

std::optional<std::string> DesktopPrinter::pdf(const ui::Sheets& sheets) const {
  const WaitCursor cursor;
  std::string bytes;
  const auto take = [&bytes](std::string_view more) {
    bytes.append(more);
    return true;
  };
  if (!write_pdf(sheets, paper(), take)) return std::nullopt;
  return bytes;
}

}  // namespace desktop
