#pragma once
// Whether what a control of the system is given to draw has the room for it.

#include <gtest/gtest.h>

#include <string>

#include "win32/screen_window.h"
#include "win32/utf.h"
#include "win32/widgets.h"

namespace tests {

/// `has_keys`: an "&" names an access key and is not drawn.
inline void expect_whole(HWND window, bool has_keys, const std::string& name) {
  if (window == nullptr || !win32::is_shown(window)) return;
  const std::wstring text = win32::text_on(window);
  const HDC canvas = GetDC(window);
  const HGDIOBJ before =
      SelectObject(canvas, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
  RECT wanted{};
  const auto keys = static_cast<UINT>(has_keys ? 0 : DT_NOPREFIX);
  DrawTextW(canvas, text.c_str(), -1, &wanted, DT_CALCRECT | keys);
  SelectObject(canvas, before);
  ReleaseDC(window, canvas);
  RECT room{};
  GetClientRect(window, &room);
  EXPECT_LE(wanted.right, room.right) << name << ": " << win32::narrow(text);
  EXPECT_LE(wanted.bottom, room.bottom) << name << ": " << win32::narrow(text);
}

/// A field that is as wide as its text shows it from its first letter.
inline void expect_from_beginning(HWND field, const std::string& name) {
  if (field == nullptr || !win32::is_shown(field)) return;
  wchar_t kind[32]{};
  GetClassNameW(field, kind, 31);
  if (std::wstring(kind) != L"Edit" || GetWindowTextLengthW(field) == 0) return;
  const auto left_of = [field](int letter) {
    const auto place = SendMessageW(field, EM_POSFROMCHAR, static_cast<WPARAM>(letter), 0);
    return static_cast<short>(LOWORD(place));
  };
  RECT room{};
  GetClientRect(field, &room);
  if (left_of(GetWindowTextLengthW(field) - 1) - left_of(0) >= room.right) return;
  EXPECT_GE(left_of(0), 0) << name << ": " << win32::narrow(win32::text_on(field));
}

/// Captions, units, labels, buttons, tick boxes and fields.
inline void expect_texts_whole(const win32::ScreenWindow& window) {
  for (const auto& widget : window.widgets()) {
    const ui::Control& control = widget->control();
    expect_whole(widget->caption_label, true, control.name);
    expect_whole(widget->unit_label, false, control.name);
    expect_from_beginning(widget->focus_window(), control.name);
    if (control.kind == ui::Kind::kLabel) expect_whole(widget->window(), false, control.name);
    if (control.kind == ui::Kind::kButton || control.kind == ui::Kind::kTick)
      expect_whole(widget->window(), true, control.name);
  }
}

}  // namespace tests
