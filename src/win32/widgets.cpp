#include "win32/widgets.h"

#include "win32/system.h"

#include <commctrl.h>
#include <imm.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "ui/dump.h"
#include "ui/spoken.h"
#include "win32/spoken_words.h"
#include "win32/utf.h"

namespace win32 {
namespace {

constexpr UINT_PTR kListening = 1;

// What a control is called and by which keys it is pressed; empty without keys.
std::string with_keys(const std::string& name, std::string_view keys) {
  if (keys.empty()) return {};
  if (name.find(keys) != std::string::npos) return name;
  std::string both = name;
  both.append(" (").append(keys).append(")");
  return both;
}

// One row per ui::Kind, in its order.
constexpr std::array<Maker, 12> kMakers = {
    make_label, make_read_only, make_line, make_memo,   make_combo,   make_combo,
    make_list,  make_choice,    make_tick, make_button, make_picture, make_tree,
};

// Without the signs of access keys.
std::wstring without_signs(std::wstring_view text) {
  std::wstring result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == L'&' && i + 1 < text.size()) ++i;
    result += text[i];
  }
  return result;
}

// Places the widget itself.
class WidgetBox : public Box {
 public:
  explicit WidgetBox(Widget& widget) : widget_(widget) {}
  [[nodiscard]] bool shown() const override { return widget_.control().visible; }
  [[nodiscard]] Span across() const override { return widget_.across(); }
  [[nodiscard]] Span down(int width) const override { return widget_.down(width); }
  void place(const Place& place) override { widget_.place(place); }

 private:
  Widget& widget_;
};

}  // namespace

std::wstring text_on(HWND window) {
  const int length = GetWindowTextLengthW(window);
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  const int read = GetWindowTextW(window, text.data(), length + 1);
  text.resize(static_cast<std::size_t>(std::max(read, 0)));
  return text;
}

bool put_text(HWND window, const std::wstring& text) {
  if (text_on(window) == text) return false;
  SetWindowTextW(window, text.c_str());
  return true;
}

MONITORINFO info_of(HMONITOR display) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  GetMonitorInfoW(display, &info);
  return info;
}

void move_to(HWND window, const Place& place) {
  RECT now{};
  GetWindowRect(window, &now);
  MapWindowPoints(HWND_DESKTOP, GetParent(window), reinterpret_cast<POINT*>(&now), 2);
  if (now.left == place.left && now.top == place.top && now.right == place.right() &&
      now.bottom == place.bottom())
    return;
  SetWindowPos(window, nullptr, place.left, place.top, place.width, place.height,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
  // What wraps or is cut stands elsewhere within it.
  InvalidateRect(window, nullptr, TRUE);
}

std::wstring with_system_ends(std::string_view text) {
  std::wstring result;
  for (const wchar_t c : wide(text)) {
    if (c == L'\r') continue;
    if (c == L'\n') result += L'\r';
    result += c;
  }
  return result;
}

std::string with_plain_ends(std::wstring_view text) {
  std::string result = narrow(text);
  std::erase(result, '\r');
  return result;
}

std::wstring escaped(std::string_view text) {
  std::wstring result;
  for (const wchar_t c : wide(text)) {
    if (c == L'&') result += c;
    result += c;
  }
  return result;
}

std::string unescaped(std::wstring_view text) {
  return narrow(without_signs(text));
}

std::wstring drawn(std::string_view text) {
  return without_signs(with_system_ends(text));
}

void keep_input_method_out(HWND window) {
  ImmAssociateContextEx(window, nullptr, 0);
}

// Its own mark: IsWindowVisible() asks the windows around it, too.
bool is_shown(HWND window) {
  return (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

void show_window(HWND window, bool on) {
  if (window != nullptr && is_shown(window) != on) ShowWindow(window, on ? SW_SHOWNA : SW_HIDE);
}

Widget::Widget(ui::Screen& screen, ui::Control& control, Host& host, HWND parent)
    : screen_(screen), control_(control), host_(host), parent_(parent) {}

Widget::~Widget() {
  for (const HWND window : listened_) {
    RemoveWindowSubclass(window, part_proc, kListening);
    say_no_more(window);
  }
  for (const HWND window : windows_) DestroyWindow(window);
}

HWND Widget::make(const wchar_t* kind, DWORD style, DWORD extended) {
  const HWND window = CreateWindowExW(extended, kind, L"", style | WS_CHILD | WS_VISIBLE, 0, 0, 0,
                                      0, parent_, nullptr, GetModuleHandleW(nullptr), nullptr);
  windows_.push_back(window);
  listen(window);
  if (const std::wstring_view name = kind; name != WC_EDITW && name != WC_COMBOBOXW)
    keep_input_method_out(window);
  take_font(window);
  darken_control(window, look().dark());
  return window;
}

void Widget::listen(HWND window) {
  listened_.push_back(window);
  SetWindowSubclass(window, part_proc, kListening, reinterpret_cast<DWORD_PTR>(this));
}

void Widget::unmake(HWND window) {
  RemoveWindowSubclass(window, part_proc, kListening);
  say_no_more(window);
  std::erase(windows_, window);
  std::erase(listened_, window);
  DestroyWindow(window);
}

void Widget::take_font(HWND window) {
  SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font()), TRUE);
}

HFONT Widget::font() const {
  return is_title ? look().bold() : look().named(control_.font);
}

bool Widget::owns(HWND part) const {
  return part != nullptr && std::find(listened_.begin(), listened_.end(), part) != listened_.end();
}

RECT Widget::stands() const {
  RECT all{};
  for (const HWND window : listened_) {
    if (GetParent(window) != parent_ || !is_shown(window)) continue;
    RECT one{};
    GetWindowRect(window, &one);
    MapWindowPoints(HWND_DESKTOP, parent_, reinterpret_cast<POINT*>(&one), 2);
    UnionRect(&all, &all, &one);
  }
  return all;
}

LRESULT CALLBACK Widget::part_proc(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR /*id*/,
                                   DWORD_PTR widget) {
  try {
    return reinterpret_cast<Widget*>(widget)->on_message(window, message, w, l);
  } catch (...) {  // no exception may cross the system's own code
    return 0;
  }
}

LRESULT Widget::pass_on(HWND window, UINT message, WPARAM w, LPARAM l) {
  return DefSubclassProc(window, message, w, l);
}

LRESULT Widget::on_message(HWND window, UINT message, WPARAM w, LPARAM l) {
  const LRESULT result = pass_on(window, message, w, l);
  if (message == WM_SETFOCUS || message == WM_KILLFOCUS) host_.focus_moved();
  return result;
}

Dress Widget::dress() const {
  const bool field = control_.kind == ui::Kind::kEdit || control_.kind == ui::Kind::kCombo;
  const bool shown_only = control_.kind == ui::Kind::kReadOnly;
  if (field || shown_only) {
    if (control_.mark == ui::kWrongMark) return Dress::kWrong;
    if (control_.mark == ui::kMissingMark) return Dress::kMissing;
    if (control_.read_only || shown_only) return Dress::kLocked;
  }
  if (control_.kind == ui::Kind::kLabel && control_.on_press) return Dress::kLink;
  return Dress::kPlain;
}

Span Widget::field_across(int besides) const {
  const ui::Extent extent = ui::extent_of(control_);
  Span span;
  span.least = span.wanted = look().width_for(font(), extent.least_characters) + besides;
  span.grows = extent.grows;
  if (!extent.grows) span.most = span.wanted;
  if (extent.most_characters > 0)
    span.most = look().width_for(font(), extent.most_characters) + besides;
  return span;
}

std::unique_ptr<Box> Widget::box() {
  return std::make_unique<WidgetBox>(*this);
}

void Widget::place(const Place& place) {
  move_to(window(), place);
}

void Widget::dress_anew() {
  for (const HWND window : windows_) {
    take_font(window);
    if (!look().dark()) lighten_control(window);
    darken_control(window, look().dark());
  }
  dressed_ = false;
}

void Widget::show_flags() {
  for (const HWND window : windows_) {
    if ((IsWindowEnabled(window) != FALSE) != control_.enabled)
      EnableWindow(window, control_.enabled ? TRUE : FALSE);
    show_window(window, control_.visible);
  }
}

void Widget::show_labels() {
  if (caption_label != nullptr) {
    if (put_text(caption_label, with_system_ends(caption()))) host_.room_changed();
    show_window(caption_label, control_.visible);
  }
  if (unit_label != nullptr) {
    if (put_text(unit_label, wide(screen_.unit(control_)))) host_.room_changed();
    show_window(unit_label, control_.visible);
  }
}

void Widget::show() {
  show_state();
  show_flags();
  show_labels();
  if (was_visible_ != control_.visible) {
    was_visible_ = control_.visible;
    host_.room_changed();
  }
  if (const ui::Extent room = ui::extent_of(control_); room != room_) {
    room_ = room;
    host_.room_changed();
  }
  if (const Dress wanted = dress(); !dressed_ || wanted != dress_) {
    dress_ = wanted;
    dressed_ = true;
    for (const HWND window : windows_) InvalidateRect(window, nullptr, TRUE);
  }
  say();
  // Whoever wonders why a field is locked is told.
  tip_ = control_.why_locked.empty()
             ? with_keys(ui::without_access_key(screen_.caption(control_)), control_.shortcut)
             : control_.why_locked;
}

void Widget::speak(const std::wstring& name, const std::wstring& state) {
  for (const HWND window : listened_) say_of(window, name, state);
}

void Widget::say_anew() {
  speak(wide(spoken_name_), wide(spoken_state_));
}

void Widget::say() {
  const std::string name = ui::spoken_name(screen_, control_, titles);
  const std::string state = ui::spoken_state(screen_, control_);
  if (name == spoken_name_ && state == spoken_state_) return;
  spoken_name_ = name;
  spoken_state_ = state;
  say_anew();
}

std::unique_ptr<Widget> make_widget(ui::Screen& screen, ui::Control& control, Host& host,
                                    HWND parent) {
  return kMakers[static_cast<std::size_t>(control.kind)](screen, control, host, parent);
}

}  // namespace win32
