#include "headless/line_choice.h"

#include <algorithm>

#include "headless/script.h"
#include "text/numbers.h"
#include "text/strings.h"
#include "ui/dump.h"

namespace headless {
namespace {

std::optional<int> line_that_reads(const ui::Control& control, const std::string& wanted) {
  const auto at = std::find(control.items.begin(), control.items.end(), wanted);
  if (at != control.items.end()) return static_cast<int>(at - control.items.begin());
  // In English whatever the screen shows, so that one script plays in both languages.
  for (std::size_t i = 0; i < control.item_refs.size(); ++i) {
    const auto english = text::resolve(control.item_refs[i], text::Language::kEnglish);
    if (english == wanted || ui::without_access_key(english) == wanted) return static_cast<int>(i);
  }
  return std::nullopt;
}

// A line of several columns by its first one.
std::optional<int> line_that_begins(const ui::Control& control, std::string_view wanted) {
  if (wanted.empty()) return std::nullopt;
  const auto begins = [&](const std::string& line) {
    return line.size() > wanted.size() && line.starts_with(wanted) && line[wanted.size()] == ' ';
  };
  const auto at = std::find_if(control.items.begin(), control.items.end(), begins);
  if (at == control.items.end() ||
      std::find_if(at + 1, control.items.end(), begins) != control.items.end())
    return std::nullopt;
  return static_cast<int>(at - control.items.begin());
}

std::optional<int> index_meant(const ui::Control& control, std::string_view written) {
  if (!text::is_all_digits(written)) return std::nullopt;
  const int index = text::leading_int(written);
  if (static_cast<std::size_t>(index) >= control.items.size()) return std::nullopt;
  return index;
}

// An item's text may begin with a blank, which the words of a command cannot tell from the gap.
std::string menu_text(const ui::MenuItem& item) {
  const auto english = text::trim(text::resolve(item.text, text::Language::kEnglish));
  std::string plain = ui::without_access_key(english.substr(0, english.find('\t')));
  while (plain.ends_with('.') || plain.ends_with(' ')) plain.pop_back();
  return plain;
}

}  // namespace

std::optional<int> line_meant(const ui::Control& control, std::string_view written) {
  const std::string exact = plain_text(written);
  const std::string trimmed(text::trim(written));
  const bool needless_zeros = trimmed.size() > 1 && trimmed.front() == '0';
  const std::optional<int> index =
      is_quoted(written) ? std::nullopt : index_meant(control, trimmed);
  if (index && !needless_zeros) return index;
  if (const auto line = line_that_reads(control, exact)) return line;
  if (!is_quoted(written)) {
    if (const auto line = line_that_reads(control, trimmed)) return line;
  }
  if (!index && control.kind == ui::Kind::kList) return line_that_begins(control, exact);
  return index;
}

std::optional<int> row_meant(const ui::Control& tree, std::string_view wanted) {
  const auto by = [&](auto same) -> std::optional<int> {
    const auto at = std::find_if(tree.rows.begin(), tree.rows.end(), same);
    if (at == tree.rows.end()) return std::nullopt;
    return static_cast<int>(at - tree.rows.begin());
  };
  if (const auto row = by([&](const ui::TreeRow& r) { return same_word(r.path, wanted); }))
    return row;
  return by([&](const ui::TreeRow& r) { return same_word(r.text, wanted); });
}

const ui::MenuItem* item_meant(std::span<const ui::MenuItem> items, std::string_view path) {
  for (const ui::MenuItem& item : items) {
    const std::string own = menu_text(item);
    if (own.empty()) continue;
    if (same_word(text::trim(path), own)) return &item;
    if (path.size() > own.size() && path[own.size()] == '/' &&
        same_word(path.substr(0, own.size()), own)) {
      if (const auto* const found = item_meant(item.children, path.substr(own.size() + 1)))
        return found;
    }
  }
  return nullptr;
}

const ui::MenuItem* item_with_shortcut(std::span<const ui::MenuItem> items, std::string_view keys) {
  for (const ui::MenuItem& item : items) {
    if (!item.shortcut.empty() && same_word(item.shortcut, keys)) return &item;
    if (const auto* const found = item_with_shortcut(item.children, keys)) return found;
  }
  return nullptr;
}

}  // namespace headless
