#pragma once
// Reads what was put on paper: the words of a PDF and where each stands, as another program tells
// them; and the letters that tests print with.

#include <string>
#include <vector>

#include "paper/pages.h"
#include "paper/pdf.h"

namespace tests {

/// What a command of this computer prints.
[[nodiscard]] std::string output_of(const std::string& command);

/// The bytes of the font file that this computer has for a family.
[[nodiscard]] std::string font_file(const std::string& family);

/// A fixed pitch with Japanese, and behind it one that has more letters.
[[nodiscard]] const paper::Faces& faces();

struct Word {
  double left, top, right, bottom;  ///< points from the top left corner of the paper
  std::string text;
};
struct PrintedPage {
  double width, height;  ///< of the paper, in points
  std::vector<Word> words;
};
[[nodiscard]] std::vector<PrintedPage> pages_of_pdf(const std::string& pdf);

/// A line as it stands on the page: its words at the columns where they begin, blanks between them.
struct PrintedLine {
  double top, bottom;
  std::string text;
};
/// The lines of a page from top to bottom, in columns of so many points from `left` on.
[[nodiscard]] std::vector<PrintedLine> lines_of(PrintedPage page, double left, double column);

/// Sheets of these lines, in the usual size.
[[nodiscard]] ui::Sheets sheets_of(std::vector<std::string> lines);

}  // namespace tests
