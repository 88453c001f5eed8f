#pragma once
// The printer port on this system: the default printer, the system's print dialog, and pages drawn
// on the printer that was chosen in it. What is kept as a file is a PDF with the same pages.

#include <chrono>
#include <functional>
#include <optional>

#include "paper/pages.h"
#include "ui/printer.h"
#include "win32/system.h"

namespace win32 {

/// The paper of a printer and what it cannot reach of it.
[[nodiscard]] paper::SheetSize sheet_of(HDC printer);

/// All pages as one job of this printer, into a file where one is named. Cancelled: the person gave
/// up where the system asked for a file's name, or took the job away.
[[nodiscard]] ui::PrintResult print_on(HDC printer, const ui::Sheets& sheets,
                                       const wchar_t* file = nullptr);

class Printer : public ui::Printer {
 public:
  /// The window that the print dialog belongs to.
  using Owner = std::function<HWND()>;
  explicit Printer(Owner owner = &GetActiveWindow) : owner_(std::move(owner)) {}

  [[nodiscard]] bool has_default_printer() const override;
  [[nodiscard]] ui::PageRoom page_room(const ui::Sheets& sheets) const override;
  /// Page numbers, selection and print-to-file are hidden in the dialog. Success: the system has
  /// taken all pages; a printer that is stopped prints them when it goes on.
  [[nodiscard]] ui::PrintResult print(const ui::Sheets& sheets) override;
  [[nodiscard]] std::optional<std::string> pdf(const ui::Sheets& sheets) const override;

 private:
  [[nodiscard]] const paper::SheetSize& sheet() const;

  Owner owner_;
  mutable std::optional<paper::SheetSize> sheet_;  ///< of the default printer, as last asked for
  mutable std::chrono::steady_clock::time_point asked_;
};

}  // namespace win32
