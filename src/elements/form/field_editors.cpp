#include "elements/form/field_editors.h"

#include <algorithm>
#include <utility>

#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

constexpr int kDecimals = 1;

bool listed(std::string_view list, std::string_view text) {
  while (!list.empty()) {
    const auto end = std::min(list.find(' '), list.size());
    if (list.substr(0, end) == text) return true;
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return false;
}

std::string filled(std::string_view text, std::size_t width) {
  std::string result(text);
  if (result.size() < width) result.insert(0, width - result.size(), '0');
  return result;
}

Checked check_figures(const Editor& editor, std::string_view text, Bounds bounds) {
  // No field takes more than four figures; where no width is given the range limits them.
  const std::size_t longest = editor.width > 0 ? editor.width : 4;
  if (!text::is_all_digits(text) || text.size() > longest) return {};
  const int value = text::leading_int(text);
  if (value < bounds.low || value > bounds.high) return {};
  const bool asks = editor.question && value >= editor.asks_from;
  return {asks ? Verdict::kAsks : Verdict::kAccepted, filled(text, editor.width)};
}

Checked check_number(const Editor& editor, std::string_view text, Bounds bounds) {
  const auto value = text::strict_number(text);
  if (!value || *value < bounds.low || *value > bounds.high) return {};
  const bool asks = editor.question && *value > editor.asks_from;
  std::string shown = text::format_fixed(*value, kDecimals);
  // Minus zero is zero, also where it only comes of the rounding.
  if (text::leading_number(shown) == 0.0) shown = text::format_fixed(0.0, kDecimals);
  return {asks ? Verdict::kAsks : Verdict::kAccepted, std::move(shown)};
}

}  // namespace

Checked check_field(const Editor& editor, std::string_view text, std::optional<Bounds> bounds) {
  if (listed(editor.also, text)) {
    // Solidi stand as they are; a figure of the list is filled like any other.
    return {Verdict::kAccepted,
            text.front() == '/' ? std::string(text) : filled(text, editor.width)};
  }
  const Bounds range = bounds.value_or(Bounds{editor.low, editor.high});
  return editor.accepts == Accepts::kFigures ? check_figures(editor, text, range)
                                             : check_number(editor, text, range);
}

}  // namespace elements
