#include "ui/line_keys.h"

#include <algorithm>
#include <vector>

#include "text/strings.h"
#include "ui/dump.h"

namespace ui {
namespace {

int number_of_lines(const Control& control) {
  return static_cast<int>(control.kind == Kind::kTree ? control.rows.size() : control.items.size());
}

bool can_be_chosen(const Control& control, int line) {
  const auto at = static_cast<std::size_t>(line);
  return at >= control.item_disabled.size() || !control.item_disabled[at];
}

bool is_page_key(Key key) {
  return key == Key::kPageUp || key == Key::kPageDown;
}

// The line, or the next one towards the selected line that can be chosen; nothing when that is the
// selected one itself.
std::optional<int> nearest_to_choose(const Control& control, int line) {
  const int step = line > control.selected ? -1 : 1;
  while (line != control.selected && !can_be_chosen(control, line)) line += step;
  return line == control.selected ? std::nullopt : std::optional(line);
}

// What a person types for the line.
std::string name_of_line(const Control& control, int line) {
  const auto at = static_cast<std::size_t>(line);
  if (at < control.item_codes.size()) return control.item_codes[at];
  return without_access_key(text::trim(control.items[at]));
}

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool begins_with(std::string_view name, std::string_view typed) {
  return name.size() >= typed.size() &&
         std::equal(typed.begin(), typed.end(), name.begin(),
                    [](char a, char b) { return lower(a) == lower(b); });
}

// All lines whose names begin so, from line `from` round to the one before it.
std::vector<int> lines_that_begin(const Control& control, std::string_view typed, int from) {
  std::vector<int> found;
  const int count = number_of_lines(control);
  for (int i = 0; i < count; ++i) {
    const int line = (from + i) % count;
    if (can_be_chosen(control, line) && begins_with(name_of_line(control, line), typed))
      found.push_back(line);
  }
  return found;
}

// Half a code is no code: a line that only begins so is not chosen on the way to another.
std::optional<int> line_of_code(const Control& control, const std::vector<int>& found,
                                std::string_view typed) {
  if (found.size() == 1) return found.front();
  const auto whole = std::find_if(found.begin(), found.end(), [&](int line) {
    return name_of_line(control, line).size() == typed.size();
  });
  return whole == found.end() ? std::nullopt : std::optional(*whole);
}

}  // namespace

bool goes_through_lines(Kind kind, Key key) {
  const bool sideways = key == Key::kLeft || key == Key::kRight;
  const bool to_an_end = key == Key::kHome || key == Key::kEnd;
  if (is_page_key(key)) return kind == Kind::kList || kind == Kind::kTree;
  if (!sideways && !to_an_end && key != Key::kUp && key != Key::kDown) return false;
  if (kind == Kind::kCombo) return !sideways && !to_an_end;
  if (kind == Kind::kTree) return !sideways;
  return finds_lines(kind);
}

bool ticks_lines(const Control& control) {
  return control.kind == Kind::kList && !control.item_ticked.empty() &&
         control.item_ticked.size() == control.items.size();
}

bool finds_lines(Kind kind) {
  return kind == Kind::kChoice || kind == Kind::kList || kind == Kind::kDropDown;
}

bool means_line(const Control& control, Key key) {
  if (key == Key::kSpace) return ticks_lines(control);
  if (control.on_arrow && control.read_only) return true;
  if (control.kind == Kind::kMemo) return is_page_key(key) && control.on_page;
  return goes_through_lines(control.kind, key);
}

std::optional<int> line_after(const Control& control, Key key) {
  const int count = number_of_lines(control);
  if (is_page_key(key) && control.selected >= 0) {
    // The lines at the ends are reached from any line on the last page.
    const int to = control.selected + (key == Key::kPageDown ? kLinesOfPage : -kLinesOfPage);
    return nearest_to_choose(control, std::clamp(to, 0, std::max(count - 1, 0)));
  }
  const bool forward =
      key == Key::kPageDown || key == Key::kDown || key == Key::kRight || key == Key::kHome;
  const int step = forward ? 1 : -1;
  const bool from_an_end = key == Key::kHome || key == Key::kEnd || control.selected < 0;
  int line = !from_an_end ? control.selected + step : forward ? 0 : count - 1;
  while (line >= 0 && line < count && !can_be_chosen(control, line)) line += step;
  if (line < 0 || line >= count || line == control.selected) return std::nullopt;
  return line;
}

std::optional<int> line_typed(const Control& control, std::string& typed,
                              std::string_view character) {
  // What begins anew means the next line, what goes on may still mean the chosen one.
  const bool goes_on = !typed.empty();
  const int next = control.selected + 1;
  typed += character;
  auto found = lines_that_begin(control, typed, goes_on ? std::max(control.selected, 0) : next);
  if (found.empty() && goes_on) {
    typed = character;
    found = lines_that_begin(control, typed, next);
  }
  if (found.empty()) {
    typed.clear();
    return std::nullopt;
  }
  if (!control.item_codes.empty()) return line_of_code(control, found, typed);
  return found.front();
}

}  // namespace ui
