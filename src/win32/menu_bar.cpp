#include "win32/menu_bar.h"

#include <algorithm>

#include "ui/access_keys.h"
#include "ui/dump.h"
#include "win32/utf.h"

namespace win32 {
namespace {

constexpr unsigned kFirstId = 1000;

std::string small(std::string_view keys) {
  std::string result(keys);
  for (char& c : result)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return result;
}

void add_lines(std::vector<std::string>& lines, HMENU menu, const std::string& above) {
  const int count = GetMenuItemCount(menu);
  for (int i = 0; i < count; ++i) {
    wchar_t text[256]{};
    GetMenuStringW(menu, static_cast<UINT>(i), text, 255, MF_BYPOSITION);
    std::wstring shown = text;
    shown = shown.substr(0, shown.find(L'\t'));
    std::string path = above;
    path += ui::without_access_key(narrow(shown));
    if (const HMENU below = GetSubMenu(menu, i)) {
      path += '/';
      add_lines(lines, below, path);
      continue;
    }
    const UINT state = GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
    std::string line = "menu ";
    line.append(ui::quoted(path));
    if ((state & MF_GRAYED) != 0) line.append(" [disabled]");
    lines.push_back(std::move(line));
  }
}

}  // namespace

MenuBar::~MenuBar() {
  if (menu_ == nullptr) return;
  SetMenu(window_, nullptr);
  DestroyMenu(menu_);
}

HMENU MenuBar::made_of(std::span<const ui::MenuItem> items, text::Language language, bool bar) {
  const HMENU menu = bar ? CreateMenu() : CreatePopupMenu();
  std::vector<std::string> english;
  for (const ui::MenuItem& item : items)
    english.emplace_back(text::resolve(item.text, text::Language::kEnglish));
  const std::vector<char> keys = ui::access_keys(english);
  for (std::size_t i = 0; i < items.size(); ++i) {
    const ui::MenuItem& item = items[i];
    std::wstring label = wide(ui::with_access_key(text::resolve(item.text, language), keys[i]));
    if (!item.children.empty()) {
      const HMENU below = made_of(item.children, language, false);
      AppendMenuW(menu, MF_POPUP | MF_STRING, reinterpret_cast<UINT_PTR>(below), label.c_str());
      continue;
    }
    // A title of the bar has no room for it.
    if (!item.shortcut.empty() && !bar) {
      label += L'\t';
      label += wide(item.shortcut);
    }
    const auto id = kFirstId + static_cast<unsigned>(commands_.size());
    commands_.push_back(item);
    const auto state = static_cast<UINT>(item.enabled ? MF_ENABLED : MF_GRAYED);
    AppendMenuW(menu, MF_STRING | state, id, label.c_str());
  }
  return menu;
}

void MenuBar::show(std::span<const ui::MenuItem> items, text::Language language) {
  const HMENU old = menu_;
  commands_.clear();
  menu_ = made_of(items, language, true);
  SetMenu(window_, menu_);
  if (old != nullptr) DestroyMenu(old);
  DrawMenuBar(window_);
}

std::optional<ui::MenuItem> MenuBar::item(unsigned id) const {
  if (id < kFirstId || id - kFirstId >= commands_.size()) return std::nullopt;
  return commands_[id - kFirstId];
}

std::optional<ui::MenuItem> MenuBar::run_by(std::string_view keys) const {
  if (keys.empty()) return std::nullopt;
  const auto at = std::find_if(commands_.begin(), commands_.end(), [&](const ui::MenuItem& item) {
    return item.enabled && small(item.shortcut) == small(keys);
  });
  return at == commands_.end() ? std::nullopt : std::optional(*at);
}

std::vector<std::string> MenuBar::lines() const {
  std::vector<std::string> lines;
  if (menu_ != nullptr) add_lines(lines, menu_, {});
  return lines;
}

}  // namespace win32
