#pragma once
// What the keyboard does in a control with lines: the line that an arrow key, Home or End leads to,
// and the line that typed characters stand for.

#include <optional>
#include <string>
#include <string_view>

#include "ui/screen.h"

namespace ui {

/// True when the key goes from line to line in controls of this kind: the arrows, Home and End
/// where there are only lines; Up and Down in a combo, whose other keys move in its text; all but
/// Left and Right, which open and close rows, in a tree. The page keys go through lists and trees.
[[nodiscard]] bool goes_through_lines(Kind kind, Key key);

/// True when typed characters look for a line in controls of this kind.
[[nodiscard]] bool finds_lines(Kind kind);

/// True for a list whose lines have boxes that Space ticks.
[[nodiscard]] bool ticks_lines(const Control& control);

/// True where the key is the control's own, and no widget's for its text: it goes through the lines,
/// ticks one, turns a page, or has a handler.
[[nodiscard]] bool means_line(const Control& control, Key key);

/// Lines that a page key goes on by.
inline constexpr int kLinesOfPage = 10;

/// The line that the key leads to. Disabled lines are stepped over; with nothing chosen, Up and
/// Left lead to the last line, Down and Right to the first. Nothing when there is no further line.
[[nodiscard]] std::optional<int> line_after(const Control& control, Key key);

/// The line that `character` stands for when `typed` was typed before it; `typed` becomes what is
/// to be remembered for the next one. A line with a code is found by the code, once no other line
/// can be meant; any other by the beginning of its text, leading blanks left out. Characters that
/// lead to no line together begin anew with the last one.
[[nodiscard]] std::optional<int> line_typed(const Control& control, std::string& typed,
                                            std::string_view character);

}  // namespace ui
