#pragma once
// What the figures of the report stand for: the code tables of the manual on codes, one row for
// each line that has words. Nothing of a screen is in here: a dialog shows the rows in an order of
// its own.

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "text/id.h"
#include "text/texts.h"

namespace codetables {

/// A line of a table.
struct CodeRow {
  std::string_view figures;  ///< "95", "/" …
  text::Id text;             ///< what they stand for
};

/// Figures of two digits that stand for a number: `first` for `start`, each further one for `step`
/// more, in units of the last of `decimals`.
struct FigureRange {
  int first = 0;
  int last = 0;
  text::Id text;  ///< its "%s" is the number
  int start = 0;
  int step = 0;
  int decimals = 0;
};

/// One table as one or two members of the record read it.
struct CodeTable {
  std::string_view number;                   ///< the manual's, "0200" to "5239"
  std::array<std::string_view, 2> symbols;   ///< members of the record; the second may be empty
  std::span<const CodeRow> rows;             ///< in the order of their figures, solidi last
  std::span<const FigureRange> ranges = {};  ///< beside the rows
  bool lines_begin_with_figures = false;     ///< the texts are lines such as "    5    Steady"
};

/// All of them in the order of their numbers. A number stands twice where symbols read its figures
/// in words of their own.
[[nodiscard]] std::span<const CodeTable> code_tables();

/// The table that serves a member of the record ("ww"); nullptr for one that holds no code, and for
/// any other text.
[[nodiscard]] const CodeTable* table_of(std::string_view symbol);

/// The (first) table of a number ("4677"); nullptr when there is none.
[[nodiscard]] const CodeTable* table_numbered(std::string_view number);

/// The figures stand for something in the table; any bytes are survived.
[[nodiscard]] bool holds(const CodeTable& table, std::string_view figures);

/// What the figures stand for, without the figures themselves: "Haze" for ww "05". Nothing for
/// figures that the table does not have; any bytes are survived.
[[nodiscard]] std::optional<std::string> meaning(const CodeTable& table, std::string_view figures,
                                                 text::Language language);

}  // namespace codetables
