#pragma once
// What a screen puts on paper, and the port that takes it there.

#include <string>
#include <vector>

#include "ui/drawing.h"

namespace ui {

/// Lines in a fixed pitch, from the top of the first page, and below them the drawings, each whole
/// on one page.
struct Sheets {
  std::string document;  ///< its name among the printer's jobs
  std::vector<std::string> lines;
  std::vector<Drawing> drawings = {};
};

enum class PrintResult { kSuccess, kCancelled, kFailed };

class Printer {
 public:
  virtual ~Printer() = default;
  [[nodiscard]] virtual bool has_default_printer() const = 0;
  /// Shows the system's print dialog and prints. What failed may have printed some of its pages.
  [[nodiscard]] virtual PrintResult print(const Sheets& sheets) = 0;
};

}  // namespace ui
