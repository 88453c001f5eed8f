#pragma once
// A code of the record as a choice: the lines of its table with the code beside each.

#include <span>
#include <string>
#include <string_view>

#include "codetables/code_pickers.h"
#include "ui/control.h"

namespace codetables {

/// Offers these lines and chooses none. Until the screen is opened, and where it is open already,
/// the texts are made of `item_refs` by the screen (Screen::relabel).
void offer(ui::Control& choice, std::span<const CodeRow> lines);

/// The figures of a table that the record's code stands for, by `reads`. They need not be there.
[[nodiscard]] std::string figures_of(std::string_view code, Reads reads = Reads::kCode);

/// The line of these figures, -1 when the choice does not offer it.
[[nodiscard]] int line_of(const ui::Control& choice, std::string_view figures);

/// The figures of the chosen line, empty when none is chosen.
[[nodiscard]] std::string chosen_figures(const ui::Control& choice);

/// What OK leaves in place of the record's `code`: the figures of the chosen line. Without a
/// choice, and where the choice is what the code stands for already, the code as it is.
[[nodiscard]] std::string code_after(const ui::Control& choice, const std::string& code,
                                     Reads reads = Reads::kCode);

}  // namespace codetables
