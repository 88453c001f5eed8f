#include "codetables/code_choice.h"

#include <algorithm>

#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {

void offer(ui::Control& choice, std::span<const CodeRow> lines) {
  choice.item_refs.clear();
  choice.items.clear();
  choice.item_codes.clear();
  choice.selected = -1;
  for (const CodeRow& line : lines) {
    choice.item_refs.push_back({line.text});
    choice.item_codes.emplace_back(line.figures);
  }
}

std::string figures_of(std::string_view code, Reads reads) {
  const std::string_view trimmed = text::trim(code);
  if (reads == Reads::kFirstFigure) return std::string(trimmed.substr(0, 1));
  if (!text::number_at_start(trimmed)) return std::string(trimmed);
  return text::format_int(text::leading_int(trimmed));
}

int line_of(const ui::Control& choice, std::string_view figures) {
  const auto at = std::find(choice.item_codes.begin(), choice.item_codes.end(), figures);
  return at == choice.item_codes.end() ? -1 : static_cast<int>(at - choice.item_codes.begin());
}

std::string chosen_figures(const ui::Control& choice) {
  if (choice.selected < 0) return {};
  return choice.item_codes[static_cast<std::size_t>(choice.selected)];
}

std::string code_after(const ui::Control& choice, const std::string& code, Reads reads) {
  std::string chosen = chosen_figures(choice);
  const bool stays = chosen.empty() || chosen == figures_of(code, reads);
  return stays ? code : chosen;
}

}  // namespace codetables
