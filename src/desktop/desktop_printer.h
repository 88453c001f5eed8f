#pragma once
// The printer port in Qt: the default printer, the system's print dialog, and pages that go to the
// queue chosen in it as a PDF, the same that is kept as a file.

#include <QElapsedTimer>
#include <QPageLayout>
#include <optional>

#include "desktop/print_queue.h"
#include "ui/printer.h"

namespace desktop {

class DesktopPrinter : public ui::Printer {
 public:
  /// `patience` is how long a scheduler that does not answer is waited for.
  explicit DesktopPrinter(Patience patience = std::chrono::seconds(5)) : patience_(patience) {}

  /// True as well where the scheduler does not answer: it may have one. Printing then fails.
  [[nodiscard]] bool has_default_printer() const override;
  [[nodiscard]] ui::PageRoom page_room(const ui::Sheets& sheets) const override;
  /// Page numbers, selection and print-to-file are hidden in the dialog. Success: the queue has
  /// taken all pages; one that is stopped prints them when it goes on.
  [[nodiscard]] ui::PrintResult print(const ui::Sheets& sheets) override;
  [[nodiscard]] std::optional<std::string> pdf(const ui::Sheets& sheets) const override;

 private:
  [[nodiscard]] QPageLayout paper() const;

  Patience patience_;
  mutable std::optional<QPageLayout> paper_;  ///< of the default printer, as last asked for
  mutable QElapsedTimer paper_age_;
};

}  // namespace desktop
