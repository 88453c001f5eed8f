#pragma once
// Which line of a control, or which command of a menu, the words of a script mean.

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "ui/screen.h"

namespace headless {

/// Index of the line that `written` means: a number is an index from 0 when there is such a line
/// (a number with needless zeros, such as "06", is a text first); else the line that reads so; else
/// the choice whose English text reads so, or the only line of a list whose first column does. A
/// text in double quotes is never an index.
[[nodiscard]] std::optional<int> line_meant(const ui::Control& control, std::string_view written);

/// Row of a tree by its path or, when there is none, its text.
[[nodiscard]] std::optional<int> row_meant(const ui::Control& tree, std::string_view wanted);

/// The menu command of a path of English texts ("File/Print"), access keys, trailing points and
/// what follows a tab left out. A command's own text may hold a slash. Nothing when there is none.
[[nodiscard]] const ui::MenuItem* item_meant(std::span<const ui::MenuItem> items,
                                             std::string_view path);

/// The menu command with this shortcut ("Ctrl+S", in any case). Nothing when there is none.
[[nodiscard]] const ui::MenuItem* item_with_shortcut(std::span<const ui::MenuItem> items,
                                                     std::string_view keys);

}  // namespace headless
