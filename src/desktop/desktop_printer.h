#pragma once
// The printer port in Qt: the default printer, the system's print dialog, and lines on pages.

#include "platform/ports.h"

namespace desktop {

class DesktopPrinter : public platform::Printer {
 public:
  [[nodiscard]] bool has_default_printer() const override;
  /// Page numbers, selection and print-to-file are hidden in the dialog. A new page starts when one
  /// is full.
  [[nodiscard]] platform::PrintResult print(const std::string& document,
                                            const std::vector<std::string>& lines) override;
};

}  // namespace desktop
