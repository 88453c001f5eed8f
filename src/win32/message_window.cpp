#include "win32/message_window.h"

#include "win32/system.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "ui/access_keys.h"
#include "win32/keys.h"
#include "win32/spoken_words.h"
#include "win32/utf.h"
#include "win32/widgets.h"

namespace win32 {
namespace {

constexpr const wchar_t* kKind = L"KavrelMessage";
constexpr int kWidestText = 560;
constexpr int kBesideField = 12;

const wchar_t* icon_of(ui::Sign sign) {
  switch (sign) {
    case ui::Sign::kInformation:
      return IDI_INFORMATION;
    case ui::Sign::kQuestion:
      return IDI_QUESTION;
    case ui::Sign::kWarning:
      break;
  }
  return IDI_WARNING;
}

void register_kind(WNDPROC proc) {
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = proc;
  kind.hInstance = GetModuleHandleW(nullptr);
  kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  kind.lpszClassName = kKind;
  RegisterClassExW(&kind);
}

}  // namespace

MessageWindow::MessageWindow(const ui::MessageBox& box, HWND owner, text::Language language,
                             std::optional<RECT> of)
    : box_(box),
      look_(owner == nullptr ? GetDpiForSystem() : GetDpiForWindow(owner), language,
            system_is_dark()),
      owner_(owner),
      keys_(ui::access_keys_of(box)) {
  static const bool registered = [] {
    register_kind(proc);
    return true;
  }();
  static_cast<void>(registered);
  make();
  lay_out(of);
}

MessageWindow::~MessageWindow() {
  set_filter(frame_, nullptr);
  SetWindowLongPtrW(frame_, GWLP_USERDATA, 0);
  say_no_more(frame_);
  DestroyWindow(frame_);
}

void MessageWindow::make() {
  const HINSTANCE program = GetModuleHandleW(nullptr);
  frame_ = CreateWindowExW(WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT, kKind,
                           wide(box_.title).c_str(), WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 0, 0,
                           owner_, nullptr, program, nullptr);
  SetWindowLongPtrW(frame_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  set_filter(frame_, this);
  darken_frame(frame_, look_.dark());
  const auto make_one = [&](const wchar_t* kind, const std::wstring& text, DWORD style) {
    const HWND made = CreateWindowExW(0, kind, text.c_str(), style | WS_CHILD | WS_VISIBLE, 0, 0, 0,
                                      0, frame_, nullptr, program, nullptr);
    SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(look_.usual()), FALSE);
    darken_control(made, look_.dark());
    keep_input_method_out(made);
    return made;
  };
  text_ = make_one(WC_STATICW, with_system_ends(box_.text), SS_LEFT | SS_NOPREFIX);
  for (std::size_t i = 0; i < box_.buttons.size(); ++i) {
    const std::string label = ui::with_access_key(box_.buttons[i].label, keys_[i]);
    const auto style = static_cast<DWORD>(i == 0 ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
    buttons_.push_back(make_one(WC_BUTTONW, wide(label), WS_TABSTOP | BS_NOTIFY | style));
  }
  say_of(frame_, wide(box_.title), wide(box_.text));
}

void MessageWindow::lay_out(std::optional<RECT> of) {
  const int margin = look_.pixels(14);
  const int gap = look_.pixels(8);
  const int icon = GetSystemMetricsForDpi(SM_CXICON, look_.dpi());
  const std::wstring text = with_system_ends(box_.text);
  const SIZE natural = look_.size_of(look_.usual(), text);
  const int text_width = std::min<int>(natural.cx, look_.pixels(kWidestText)) + look_.pixels(2);
  const int text_height = look_.height_of(look_.usual(), text, text_width);
  std::vector<int> widths;
  int all_buttons = -gap;
  for (const HWND button : buttons_) {
    const std::wstring label = drawn(narrow(text_on(button)));
    const int own = static_cast<int>(look_.size_of(look_.usual(), label).cx) + look_.pixels(20);
    widths.push_back(std::max(own, look_.pixels(76)));
    all_buttons += widths.back() + gap;
  }
  const int width = std::max(icon + margin + text_width, all_buttons) + 2 * margin;
  const int upper = std::max(icon, text_height);
  const int button_height = look_.line_of(look_.usual()) + look_.pixels(9);
  const int height = margin + upper + margin + button_height + margin;
  move_to(text_,
          {margin + icon + margin, margin + (upper - text_height) / 2, text_width, text_height});
  int left = width - margin - all_buttons;
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    move_to(buttons_[i], {left, height - margin - button_height, widths[i], button_height});
    left += widths[i] + gap;
  }
  RECT frame{0, 0, width, height};
  AdjustWindowRectExForDpi(&frame, static_cast<DWORD>(GetWindowLongPtrW(frame_, GWL_STYLE)), FALSE,
                           static_cast<DWORD>(GetWindowLongPtrW(frame_, GWL_EXSTYLE)), look_.dpi());
  const SIZE size{frame.right - frame.left, frame.bottom - frame.top};
  const MONITORINFO display = info_of(MonitorFromWindow(owner_, MONITOR_DEFAULTTOPRIMARY));
  RECT around = display.rcWork;
  if (owner_ != nullptr) GetWindowRect(owner_, &around);
  const Place room = place_of(display.rcWork);
  ui::Corner at = ui::fitted({(around.left + around.right - size.cx) / 2,
                              (around.top + around.bottom - size.cy) / 2, size.cx, size.cy},
                             room)
                      .corner();
  if (of)
    at = ui::place_beside(place_of(*of), {size.cx, size.cy}, room, look_.pixels(kBesideField))
             .value_or(at);
  SetWindowPos(frame_, nullptr, at.left, at.top, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

int MessageWindow::ask() {
  const bool was_enabled = owner_ != nullptr && IsWindowEnabled(owner_) != FALSE;
  if (was_enabled) EnableWindow(owner_, FALSE);
  ShowWindow(frame_, SW_SHOW);
  SetForegroundWindow(frame_);
  if (!buttons_.empty()) SetFocus(buttons_.front());
  NotifyWinEvent(EVENT_SYSTEM_ALERT, frame_, OBJID_WINDOW, CHILDID_SELF);
  run_until([this] { return result_.has_value(); });
  // Before this one goes: else the system gives the keyboard to another program's window.
  if (was_enabled) {
    EnableWindow(owner_, TRUE);
    SetActiveWindow(owner_);
  }
  ShowWindow(frame_, SW_HIDE);
  return result_.value_or(box_.close_result);
}

void MessageWindow::press(std::size_t button) {
  if (button < box_.buttons.size()) result_ = box_.buttons[button].result;
}

void MessageWindow::go(int step) {
  const auto count = static_cast<int>(buttons_.size());
  if (count == 0) return;
  const auto at = std::find(buttons_.begin(), buttons_.end(), GetFocus());
  const int now = at == buttons_.end() ? 0 : static_cast<int>(at - buttons_.begin());
  SetFocus(buttons_[static_cast<std::size_t>((now + step + count) % count)]);
}

bool MessageWindow::press_letter(WPARAM character) {
  auto letter = static_cast<char>(character < 0x80 ? character : 0);
  if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  if (letter == '\0') return false;
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    if (keys_[i] != letter) continue;
    press(i);
    return true;
  }
  return false;
}

bool MessageWindow::filter(const MSG& message) {
  if (message.message == WM_CHAR || message.message == WM_SYSCHAR)
    return message.wParam != VK_SPACE && press_letter(message.wParam);
  if (message.message != WM_KEYDOWN) return false;
  switch (message.wParam) {
    case VK_TAB:
      go(GetKeyState(VK_SHIFT) < 0 ? -1 : 1);
      return true;
    case VK_RIGHT:
    case VK_DOWN:
      go(1);
      return true;
    case VK_LEFT:
    case VK_UP:
      go(-1);
      return true;
    case VK_RETURN: {
      const auto at = std::find(buttons_.begin(), buttons_.end(), GetFocus());
      press(at == buttons_.end() ? 0 : static_cast<std::size_t>(at - buttons_.begin()));
      return true;
    }
    case VK_ESCAPE:
      result_ = box_.close_result;
      return true;
    default:
      return false;
  }
}

LRESULT CALLBACK MessageWindow::proc(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* const self = reinterpret_cast<MessageWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, w, l);
  try {
    return self->on_message(message, w, l);
  } catch (...) {  // no exception may cross the system's own code
    return 0;
  }
}

LRESULT MessageWindow::on_message(UINT message, WPARAM w, LPARAM l) {
  const Colours& colours = look_.colours();
  switch (message) {
    case WM_COMMAND: {
      const auto at = std::find(buttons_.begin(), buttons_.end(), reinterpret_cast<HWND>(l));
      if (at == buttons_.end()) return 0;
      const auto button = static_cast<std::size_t>(at - buttons_.begin());
      if (HIWORD(w) == BN_SETFOCUS) at_ = button;
      if (HIWORD(w) == BN_CLICKED) press(button);
      return 0;
    }
    case WM_CLOSE:
      result_ = box_.close_result;
      return 0;
    case WM_SETFOCUS:
      // Whoever looked into another program finds the button again on which he was.
      if (!buttons_.empty()) SetFocus(buttons_[at_]);
      return 0;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      SetTextColor(reinterpret_cast<HDC>(w), colours.text);
      SetBkColor(reinterpret_cast<HDC>(w), colours.window);
      return reinterpret_cast<LRESULT>(look_.brush(colours.window));
    case WM_ERASEBKGND: {
      RECT all{};
      GetClientRect(frame_, &all);
      FillRect(reinterpret_cast<HDC>(w), &all, look_.brush(colours.window));
      return 1;
    }
    case WM_PAINT: {
      PAINTSTRUCT painting{};
      const HDC canvas = BeginPaint(frame_, &painting);
      const int margin = look_.pixels(14);
      const int icon = GetSystemMetricsForDpi(SM_CXICON, look_.dpi());
      DrawIconEx(canvas, margin, margin, LoadIconW(nullptr, icon_of(box_.sign)), icon, icon, 0,
                 nullptr, DI_NORMAL);
      EndPaint(frame_, &painting);
      return 0;
    }
    default:
      return DefWindowProcW(frame_, message, w, l);
  }
}

}  // namespace win32
