#include "win32/keys.h"

#include <algorithm>
#include <span>

#include "win32/utf.h"

namespace win32 {
namespace {

struct KeyRow {
  WPARAM key;
  ui::Key told;
};

constexpr KeyRow kWindowKeys[] = {
    {VK_F1, ui::Key::kF1},
    {VK_RETURN, ui::Key::kEnter},
    {VK_ESCAPE, ui::Key::kEscape},
};

constexpr KeyRow kLineKeys[] = {
    {VK_UP, ui::Key::kUp},        {VK_DOWN, ui::Key::kDown},     {VK_LEFT, ui::Key::kLeft},
    {VK_RIGHT, ui::Key::kRight},  {VK_HOME, ui::Key::kHome},     {VK_END, ui::Key::kEnd},
    {VK_PRIOR, ui::Key::kPageUp}, {VK_NEXT, ui::Key::kPageDown}, {VK_SPACE, ui::Key::kSpace},
};

std::optional<ui::Key> key_in(std::span<const KeyRow> rows, const Pressed& pressed) {
  if (!pressed.plain()) return std::nullopt;
  const auto at = std::find_if(rows.begin(), rows.end(),
                               [&](const KeyRow& row) { return row.key == pressed.key; });
  return at == rows.end() ? std::nullopt : std::optional(at->told);
}

bool is_held(int key) {
  return GetKeyState(key) < 0;
}

}  // namespace

Pressed pressed(const MSG& message) {
  return {message.wParam, is_held(VK_CONTROL), is_held(VK_MENU), is_held(VK_SHIFT)};
}

std::string name_of(const Pressed& pressed) {
  const bool letter =
      (pressed.key >= 'A' && pressed.key <= 'Z') || (pressed.key >= '0' && pressed.key <= '9');
  const bool function = pressed.key >= VK_F1 && pressed.key <= VK_F24;
  // The keys of a letter alone write it.
  if (!function && !(letter && (pressed.control || pressed.alt))) return {};
  std::string name;
  if (pressed.control) name += "Ctrl+";
  if (pressed.alt) name += "Alt+";
  if (pressed.shift) name += "Shift+";
  if (function) {
    name += 'F';
    name += std::to_string(pressed.key - VK_F1 + 1);
  } else {
    name += static_cast<char>(pressed.key);
  }
  return name;
}

std::optional<ui::Key> window_key(const Pressed& pressed) {
  return key_in(kWindowKeys, pressed);
}

std::optional<ui::Key> line_key(const Pressed& pressed) {
  return key_in(kLineKeys, pressed);
}

std::optional<ui::Key> tab_key(const Pressed& pressed) {
  if (pressed.key != VK_TAB || pressed.control || pressed.alt) return std::nullopt;
  return pressed.shift ? ui::Key::kShiftTab : ui::Key::kTab;
}

std::string written(const MSG& message) {
  const auto unit = static_cast<wchar_t>(message.wParam);
  constexpr wchar_t kDelete = 0x7F;
  if (unit <= L' ' || unit == kDelete || unit == L'\u3000') return {};
  return narrow(std::wstring(1, unit));
}

}  // namespace win32
