#pragma once
// What a screen puts on paper, and the port that takes it there.

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/texts.h"
#include "ui/drawing.h"

namespace ui {

/// Lines in a fixed pitch, handed out piece by piece: the listing of a logbook is longer than what
/// anybody wants to hold.
class Document {
 public:
  Document() = default;
  virtual ~Document() = default;
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  /// How many lines it has. It stays the same, whatever becomes of the file behind it.
  [[nodiscard]] virtual std::size_t size() const = 0;
  /// columns_of() its widest line.
  [[nodiscard]] virtual std::size_t widest() const = 0;
  /// `count` lines from line `first` (from 0) on, or what there is of them; UTF-8, without line
  /// ends.
  [[nodiscard]] virtual std::vector<std::string> lines(std::size_t first,
                                                       std::size_t count) const = 0;
};

/// How many columns of a fixed pitch a text takes: two for a character as wide as it is high
/// (Japanese, full-width forms), one for any other.
[[nodiscard]] std::size_t columns_of(std::string_view text);

/// A document that is held whole.
[[nodiscard]] std::shared_ptr<const Document> document_of(std::vector<std::string> lines);

/// The document with no line wider than so many columns: a wider one goes on in further lines. It
/// is the same object when it has none; `columns` is at least 2.
[[nodiscard]] std::shared_ptr<const Document> folded(std::shared_ptr<const Document> document,
                                                     std::size_t columns);

/// The three numbers that every print is made with, and what they stand for here: letters as large
/// as the widest line leaves room for on the paper, but never larger than `most_points` nor smaller
/// than `least_points`, measured at `dots_per_inch`. A line that has no room even in the smallest
/// letters goes on below.
struct PrintSize {
  int most_points = 16;
  int least_points = 5;
  int dots_per_inch = 600;
};

/// Lines from the top of the first page, and below them the drawings, each whole on one page.
struct Sheets {
  std::string name;                       ///< among the printer's jobs
  std::shared_ptr<const Document> lines;  ///< none: drawings alone
  std::vector<Drawing> drawings = {};
  PrintSize size = {};
  /// "page 2 of 7" below the lines where there is more than one page.
  text::Language language = text::Language::kEnglish;
};

/// What a page of the printer's paper has room for.
struct PageRoom {
  std::size_t lines = 1;
  std::size_t columns = 2;
};

enum class PrintResult { kSuccess, kCancelled, kFailed };

class Printer {
 public:
  virtual ~Printer() = default;
  [[nodiscard]] virtual bool has_default_printer() const = 0;
  /// On the paper of the default printer; on A4 when there is none. For a view of the pages that
  /// breaks where the paper will.
  [[nodiscard]] virtual PageRoom page_room(const Sheets& sheets) const = 0;
  /// Shows the system's print dialog and prints. What failed may have printed some of its pages.
  [[nodiscard]] virtual PrintResult print(const Sheets& sheets) = 0;
  /// The bytes of a PDF file with the pages that page_room() tells; nothing when it cannot be made.
  [[nodiscard]] virtual std::optional<std::string> pdf(const Sheets& sheets) const = 0;
};

}  // namespace ui
