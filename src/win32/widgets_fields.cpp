// Fields: a line that is typed into, a value that is only shown, several lines that are read, and a
// line with a list behind it.

#include "win32/system.h"

#include <commctrl.h>
#include <imm.h>

#include <algorithm>
#include <utility>

#include "ui/dump.h"
#include "win32/utf.h"
#include "win32/widgets.h"

namespace win32 {
namespace {

// What the control itself cuts at; 0 for nothing. A field that goes on in another must see its point.
int largest_length(const ui::Control& control) {
  return control.continues_in == nullptr ? control.max_length : 0;
}

// A character that stands in the text then, typed or given by an input method.
bool writes(UINT message, WPARAM w, LPARAM l) {
  if (message == WM_CHAR) return w >= L' ' && w != 0x7F;
  if (message == WM_IME_CHAR) return true;
  return message == WM_IME_COMPOSITION && (l & GCS_RESULTSTR) != 0;
}

// A line that the person types into, alone or in a drop-down. It tells of a change once the system's
// control is through with the key, and whether it was a key at the end of the text: what is pasted,
// taken back or corrected before the end is none.
class Typed {
 public:
  using Told = std::function<void(const std::string& text, bool by_key)>;

  /// A widget has it before it makes its windows: they get messages while they are being made.
  void begin(HWND edit, Told told) {
    edit_ = edit;
    told_ = std::move(told);
  }
  [[nodiscard]] HWND edit() const { return edit_; }
  /// The control says that its text is another.
  void changed() { changed_ = !writing_; }

  /// Deals with a message to it by `pass_on`.
  template <class PassOn>
  LRESULT take(UINT message, WPARAM w, LPARAM l, PassOn pass_on) {
    constexpr WPARAM kCtrlA = 1;
    if (message == WM_CHAR && w == kCtrlA) {
      SendMessageW(edit_, EM_SETSEL, 0, -1);
      return 0;
    }
    const bool outermost = depth_ == 0;
    ++depth_;
    const LRESULT result = pass_on();
    --depth_;
    if (!outermost || !std::exchange(changed_, false)) return result;
    const std::wstring text = text_on(edit_);
    DWORD end = 0;
    SendMessageW(edit_, EM_GETSEL, 0, reinterpret_cast<LPARAM>(&end));
    told_(narrow(text), writes(message, w, l) && end == text.size());
    return result;
  }

  /// Writes what the program has to say.
  void write(const std::wstring& text, bool caret_at_end) {
    writing_ = true;
    // What is there already is left alone: the caret would go to its beginning.
    if (put_text(edit_, text) && caret_at_end)
      SendMessageW(edit_, EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
    writing_ = false;
  }
  void write_by(const std::function<void()>& act) {
    writing_ = true;
    act();
    writing_ = false;
  }
  void limit(int largest) {
    if (largest == limit_) return;
    limit_ = largest;
    SendMessageW(edit_, EM_LIMITTEXT, static_cast<WPARAM>(largest), 0);
  }
  void lock(bool on) {
    const bool is = (GetWindowLongPtrW(edit_, GWL_STYLE) & ES_READONLY) != 0;
    if (is != on) SendMessageW(edit_, EM_SETREADONLY, on ? TRUE : FALSE, 0);
  }
  void select(int length) {
    SendMessageW(edit_, EM_SETSEL, 0, length);
    SendMessageW(edit_, EM_SCROLLCARET, 0, 0);
  }

 private:
  HWND edit_ = nullptr;
  Told told_;
  int depth_ = 0;
  int limit_ = 0;
  bool changed_ = false;
  bool writing_ = false;
};

Typed::Told teller(ui::Screen& screen, ui::Control& control, Host& host) {
  return [&screen, &control, &host](const std::string& text, bool by_key) {
    host.hand([&] {
      if (by_key) {
        screen.type_by_key(control, text);
      } else {
        screen.type(control, text);
      }
    });
  };
}

// A Japanese input method gives half-width figures there, without being asked for them each time.
void ask_for_figures(HWND edit) {
  using SetInputScope = HRESULT(WINAPI*)(HWND, int);
  constexpr int kHalfWidth = 40;  // letters and figures
  static const auto set = [] {
    const HMODULE library = LoadLibraryExW(L"msctf.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    const FARPROC found = library == nullptr ? nullptr : GetProcAddress(library, "SetInputScope");
    return reinterpret_cast<SetInputScope>(reinterpret_cast<void*>(found));
  }();
  if (set != nullptr) set(edit, kHalfWidth);
}

class LineWidget : public Widget {
 public:
  LineWidget(ui::Screen& s, ui::Control& c, Host& host, HWND parent) : Widget(s, c, host, parent) {
    typed_.begin(make(WC_EDITW, WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL), teller(s, c, host));
    if (c.figures) ask_for_figures(window());
  }
  void select(int length) override { typed_.select(length); }
  void command(HWND /*from*/, WORD code) override {
    if (code == EN_CHANGE) typed_.changed();
  }
  [[nodiscard]] Shown shown() const override { return {narrow(text_on(window())), {}}; }
  [[nodiscard]] Span across() const override { return field_across(); }
  [[nodiscard]] Span down(int /*width*/) const override {
    const int height = look().field_height(font());
    return {height, height, height, false};
  }

 protected:
  void show_state() override {
    if (const int largest = largest_length(control()); largest > 0) typed_.limit(largest);
    // A long text that nobody is typing shows its beginning.
    const bool typing = GetFocus() == window() && !control().on_arrow;
    typed_.write(wide(control().content), typing);
    typed_.lock(control().read_only);
  }
  LRESULT on_message(HWND window, UINT message, WPARAM w, LPARAM l) override {
    return typed_.take(message, w, l, [&] { return Widget::on_message(window, message, w, l); });
  }

 private:
  Typed typed_;
};

// A value that is shown, never typed: looks like a field, takes no focus.
class ReadOnlyWidget : public Widget {
 public:
  ReadOnlyWidget(ui::Screen& s, ui::Control& c, Host& host, HWND parent)
      : Widget(s, c, host, parent) {
    make(WC_STATICW, WS_BORDER | SS_LEFT | SS_NOPREFIX | SS_CENTERIMAGE | SS_NOTIFY);
  }
  [[nodiscard]] HWND focus_window() const override { return nullptr; }
  [[nodiscard]] Shown shown() const override { return {narrow(text_on(window())), {}}; }
  [[nodiscard]] Span across() const override { return field_across(); }
  [[nodiscard]] Span down(int /*width*/) const override {
    const int height = look().field_height(font());
    return {height, height, height, false};
  }

 protected:
  void show_state() override { put_text(window(), wide(control().content)); }
};

// Several lines that are read: as long as the window is wide, or, a page, as long as the paper is.
class MemoWidget : public Widget {
 public:
  MemoWidget(ui::Screen& s, ui::Control& c, Host& host, HWND parent) : Widget(s, c, host, parent) {
    DWORD style = WS_BORDER | WS_TABSTOP | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL;
    if (c.max_length > 0) style |= WS_HSCROLL | ES_AUTOHSCROLL;
    make(WC_EDITW, style);
    constexpr WPARAM kMostText = 1U << 30U;
    SendMessageW(window(), EM_LIMITTEXT, kMostText, 0);
  }
  [[nodiscard]] bool scrolls(ui::Key page_key) override {
    const auto first = [this] { return SendMessageW(window(), EM_GETFIRSTVISIBLELINE, 0, 0); };
    const LRESULT before = first();
    SendMessageW(window(), EM_SCROLL, page_key == ui::Key::kPageDown ? SB_PAGEDOWN : SB_PAGEUP, 0);
    return first() != before;
  }
  [[nodiscard]] Shown shown() const override { return {with_plain_ends(text_on(window())), {}}; }
  [[nodiscard]] Span across() const override {
    return field_across(GetSystemMetricsForDpi(SM_CXVSCROLL, look().dpi()));
  }
  [[nodiscard]] Span down(int /*width*/) const override {
    const int line = look().line_of(font());
    const int least = line * ui::extent_of(control()).least_lines + line / 2;
    constexpr int kLinesOfPage = 30;  // as far as the display has room for them
    const int wanted = control().max_length > 0 ? std::max(line * kLinesOfPage, least) : least;
    return {least, wanted, kNoLimit, true};
  }

 protected:
  void show_state() override { put_text(window(), with_system_ends(control().content)); }
};

// With a line that is typed into, or of fixed lines.
class ComboWidget : public Widget {
 public:
  ComboWidget(ui::Screen& s, ui::Control& c, Host& host, HWND parent) : Widget(s, c, host, parent) {
    typed_.begin(make_box(), teller(s, c, host));
    if (typed_.edit() != nullptr) {
      listen(typed_.edit());
      typed_.limit(largest_length(c));
      if (c.figures) ask_for_figures(typed_.edit());
    }
    set_height();
  }
  void select(int length) override {
    if (typed_.edit() != nullptr) typed_.select(length);
  }
  [[nodiscard]] HWND focus_window() const override {
    return typed_.edit() == nullptr ? window() : typed_.edit();
  }
  [[nodiscard]] bool keeps_keys() const override {
    return SendMessageW(window(), CB_GETDROPPEDSTATE, 0, 0) != 0;
  }
  void take_open_line() override {
    const int line = line_of_box();
    SendMessageW(window(), CB_SHOWDROPDOWN, FALSE, 0);
    if (line >= 0) host().hand([&] { screen().choose(control(), line); });
  }
  void command(HWND from, WORD code) override {
    if (from != window()) return;
    if (code == CBN_EDITCHANGE) typed_.changed();
    if (code == CBN_SELENDOK)
      host().hand_later([this, line = line_of_box()] { screen().choose(control(), line); });
    // A list that is left by Escape or by going elsewhere keeps the line it was led to: what the screen
    // holds is shown again.
    if (code == CBN_CLOSEUP) host().hand_later([] {});
  }
  void dress_anew() override {
    Widget::dress_anew();
    set_height();
  }
  void draw(const DRAWITEMSTRUCT& item) override;
  [[nodiscard]] Shown shown() const override {
    Shown result;
    result.selected = line_of_box();
    result.items = items_of_box();
    const bool has_line = typed_.edit() != nullptr || result.selected >= 0;
    if (has_line) result.content = narrow(text_on(window()));
    return result;
  }
  [[nodiscard]] Span across() const override {
    const int arrow =
        GetSystemMetricsForDpi(SM_CXVSCROLL, look().dpi()) + look().line_of(font()) / 2;
    if (ui::extent_of(control()).least_characters > 0) {
      Span span = field_across(arrow);
      span.most = std::max(span.most, span.wanted);
      return span;
    }
    const int width = widest() + arrow + look().line_of(font());
    return {width, width, width, false};
  }
  [[nodiscard]] Span down(int /*width*/) const override {
    return {height_, height_, height_, false};
  }
  // The height that such a box is given is that of its open list.
  void place(const Place& place) override {
    constexpr int kLines = 16;
    Place open = place;
    const auto lines = std::clamp(static_cast<int>(items_.size()), 1, kLines);
    open.height += lines * look().line_of(font()) + look().pixels(4);
    RECT now{};
    GetWindowRect(window(), &now);
    MapWindowPoints(HWND_DESKTOP, GetParent(window()), reinterpret_cast<POINT*>(&now), 2);
    if (now.left == place.left && now.top == place.top && now.right == place.right() &&
        open.height == open_height_)
      return;
    open_height_ = open.height;
    SetWindowPos(window(), nullptr, open.left, open.top, open.width, open.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    // It selects its text when its size is another, and shows that without the focus as well.
    if (typed_.edit() != nullptr && GetFocus() != typed_.edit())
      SendMessageW(typed_.edit(), EM_SETSEL, static_cast<WPARAM>(-1), 0);
  }

 protected:
  void show_state() override {
    typed_.write_by([this] {
      if (control().items != items_) fill();
      // The line before the text: it writes its own into the field.
      if (line_of_box() != control().selected)
        SendMessageW(window(), CB_SETCURSEL, static_cast<WPARAM>(control().selected), 0);
    });
    if (typed_.edit() == nullptr) return;
    typed_.write(wide(control().content), GetFocus() == typed_.edit());
    typed_.lock(control().read_only);
  }
  LRESULT on_message(HWND window, UINT message, WPARAM w, LPARAM l) override {
    // A wheel that turns over a closed box on the way through a form would change an observation
    // unseen, most of all in the box that was just clicked: it scrolls the form.
    if (message == WM_MOUSEWHEEL && !keeps_keys())
      return SendMessageW(GetParent(this->window()), message, w, l);
    if (window != typed_.edit()) return Widget::on_message(window, message, w, l);
    return typed_.take(message, w, l, [&] { return Widget::on_message(window, message, w, l); });
  }

 private:
  HWND make_box() {
    const bool editable = control().kind == ui::Kind::kCombo;
    DWORD style = WS_TABSTOP | WS_VSCROLL | CBS_AUTOHSCROLL;
    style |= editable ? CBS_DROPDOWN : CBS_DROPDOWNLIST;
    // Lines that are set apart are drawn slanted.
    if (!control().item_marked.empty()) style |= CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
    make(WC_COMBOBOXW, style);
    if (!editable) return nullptr;
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    GetComboBoxInfo(window(), &info);
    return info.hwndItem;
  }

  // As high as a field beside it: the closed box is its line and a frame.
  void set_height() {
    RECT now{};
    GetWindowRect(window(), &now);
    const auto line =
        static_cast<int>(SendMessageW(window(), CB_GETITEMHEIGHT, static_cast<WPARAM>(-1), 0));
    const int frame = static_cast<int>(now.bottom - now.top) - line;
    const int wanted = look().field_height(font()) - frame;
    if (frame >= 0 && wanted > 0)
      SendMessageW(window(), CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), wanted);
    if (!control().item_marked.empty())
      SendMessageW(window(), CB_SETITEMHEIGHT, 0, look().line_of(font()));
    GetWindowRect(window(), &now);
    height_ = std::max(static_cast<int>(now.bottom - now.top), look().field_height(font()));
    open_height_ = 0;
  }

  [[nodiscard]] int line_of_box() const {
    return static_cast<int>(SendMessageW(window(), CB_GETCURSEL, 0, 0));
  }
  [[nodiscard]] std::vector<std::string> items_of_box() const {
    std::vector<std::string> items;
    const auto count = static_cast<int>(SendMessageW(window(), CB_GETCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
      const auto at = static_cast<WPARAM>(i);
      std::wstring text(
          static_cast<std::size_t>(SendMessageW(window(), CB_GETLBTEXTLEN, at, 0)) + 1, L'\0');
      const LRESULT length =
          SendMessageW(window(), CB_GETLBTEXT, at, reinterpret_cast<LPARAM>(text.data()));
      text.resize(static_cast<std::size_t>(std::max<LRESULT>(length, 0)));
      items.push_back(narrow(text));
    }
    return items;
  }

  void fill() {
    items_ = control().items;
    widest_ = -1;
    open_height_ = 0;
    SendMessageW(window(), WM_SETREDRAW, FALSE, 0);
    SendMessageW(window(), CB_RESETCONTENT, 0, 0);
    for (const std::string& item : items_)
      SendMessageW(window(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(item).c_str()));
    SendMessageW(window(), WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window(), nullptr, TRUE);
    host().room_changed();
  }

  [[nodiscard]] int widest() const {
    if (widest_ >= 0 && widest_of_ == font()) return widest_;
    widest_ = 0;
    widest_of_ = font();
    for (const std::string& item : items_)
      widest_ = std::max<int>(widest_, look().size_of(font(), wide(item)).cx);
    return widest_;
  }

  Typed typed_;
  std::vector<std::string> items_;
  int height_ = 0;
  int open_height_ = 0;
  mutable int widest_ = -1;
  mutable HFONT widest_of_ = nullptr;
};

void ComboWidget::draw(const DRAWITEMSTRUCT& item) {
  const bool chosen = (item.itemState & ODS_SELECTED) != 0;
  const bool off = (item.itemState & ODS_DISABLED) != 0;
  const Colours& colours = look().colours();
  FillRect(item.hDC, &item.rcItem,
           look().brush(chosen ? colours.selected
                        : off  ? colours.window
                               : colours.paper));
  const auto line = static_cast<std::size_t>(item.itemID);
  if (line >= items_.size()) return;
  const auto& marked = control().item_marked;
  const HFONT own = line < marked.size() && marked[line] ? look().slanted(font()) : font();
  const HGDIOBJ before = SelectObject(item.hDC, own);
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, chosen ? colours.selected_ink : off ? colours.faint : colours.ink);
  RECT room = item.rcItem;
  room.left += look().pixels(2);
  const std::wstring text = wide(items_[line]);
  DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &room,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
  SelectObject(item.hDC, before);
}

}  // namespace

std::unique_ptr<Widget> make_line(ui::Screen& s, ui::Control& c, Host& host, HWND parent) {
  return std::make_unique<LineWidget>(s, c, host, parent);
}
std::unique_ptr<Widget> make_read_only(ui::Screen& s, ui::Control& c, Host& host, HWND parent) {
  return std::make_unique<ReadOnlyWidget>(s, c, host, parent);
}
std::unique_ptr<Widget> make_memo(ui::Screen& s, ui::Control& c, Host& host, HWND parent) {
  return std::make_unique<MemoWidget>(s, c, host, parent);
}
std::unique_ptr<Widget> make_combo(ui::Screen& s, ui::Control& c, Host& host, HWND parent) {
  return std::make_unique<ComboWidget>(s, c, host, parent);
}

}  // namespace win32
