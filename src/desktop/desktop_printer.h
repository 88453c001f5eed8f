#pragma once
// The printer port in Qt: the default printer, the system's print dialog, lines and drawings on
// pages.

#include "ui/printer.h"

class QPagedPaintDevice;

namespace desktop {

class DesktopPrinter : public ui::Printer {
 public:
  [[nodiscard]] bool has_default_printer() const override;
  [[nodiscard]] ui::PageRoom page_room(const ui::Sheets& sheets) const override;
  /// Page numbers, selection and print-to-file are hidden in the dialog.
  [[nodiscard]] ui::PrintResult print(const ui::Sheets& sheets) override;
  [[nodiscard]] std::optional<std::string> pdf(const ui::Sheets& sheets) const override;
};

/// Lays the lines and drawings out on pages, in the colours of white paper. A new page starts where
/// one is full, and for a drawing that the rest of a page has no room for; a drawing is as wide as
/// the page, and never higher. False when the device cannot be painted on.
[[nodiscard]] bool print_on(QPagedPaintDevice& device, const ui::Sheets& sheets);

}  // namespace desktop
