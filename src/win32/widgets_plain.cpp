// Labels, buttons, tick boxes and pictures.

#include "win32/system.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "ui/dump.h"
#include "win32/picture.h"
#include "win32/utf.h"
#include "win32/widgets.h"

namespace win32 {
namespace {

class LabelWidget : public Widget {
 public:
  LabelWidget(ui::Screen& s, ui::Control& c, Host& host, HWND parent) : Widget(s, c, host, parent) {
    // It is told of the pointer all the same: it may have a tip.
    make(WC_STATICW, SS_LEFT | SS_NOPREFIX | SS_NOTIFY);
  }
  [[nodiscard]] HWND focus_window() const override { return nullptr; }
  [[nodiscard]] bool on_paper() const override { return false; }
  [[nodiscard]] Shown shown() const override { return {with_plain_ends(text_on(window())), {}}; }
  [[nodiscard]] Span across() const override {
    const int width = look().size_of(font(), with_system_ends(caption())).cx;
    return {width, width, width, false};
  }
  [[nodiscard]] Span down(int /*width*/) const override {
    const int height = look().size_of(font(), with_system_ends(caption())).cy;
    return {height, height, height, false};
  }

 protected:
  void show_state() override {
    if (put_text(window(), with_system_ends(caption()))) host().room_changed();
  }
  LRESULT on_message(HWND window, UINT message, WPARAM w, LPARAM l) override {
    if (!control().on_press) return Widget::on_message(window, message, w, l);
    switch (message) {
      case WM_SETCURSOR:
        SetCursor(LoadCursorW(nullptr, IDC_HAND));
        return TRUE;
      case WM_LBUTTONDOWN:
        SetCapture(window);
        return 0;
      case WM_LBUTTONUP: {
        if (GetCapture() != window) return 0;
        ReleaseCapture();
        // Let go beside it is no click, as on a button.
        RECT room{};
        GetClientRect(window, &room);
        const POINT at{GET_X_LPARAM(l), GET_Y_LPARAM(l)};
        if (PtInRect(&room, at) != FALSE) host().hand([this] { screen().press(control()); });
        return 0;
      }
      default:
        return Widget::on_message(window, message, w, l);
    }
  }
};

class ButtonWidget : public Widget {
 public:
  ButtonWidget(ui::Screen& s, ui::Control& c, Host& host, HWND parent)
      : Widget(s, c, host, parent) {
    // Shown as the one that Enter presses; what Enter does is the screen's.
    const bool accepts = c.role == ui::Role::kAccept;
    make(WC_BUTTONW, WS_TABSTOP | static_cast<DWORD>(accepts ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON));
  }
  void command(HWND /*from*/, WORD code) override {
    if (code == BN_CLICKED) host().hand([this] { screen().press(control()); });
  }
  [[nodiscard]] bool on_paper() const override { return false; }
  [[nodiscard]] Shown shown() const override { return {with_plain_ends(text_on(window())), {}}; }
  [[nodiscard]] Span across() const override {
    const std::wstring text = drawn(caption());
    constexpr int kNarrowest = 72;
    const int width =
        std::max(static_cast<int>(look().size_of(font(), text).cx) + look().pixels(20),
                 look().pixels(kNarrowest));
    return {width, width, width, false};
  }
  [[nodiscard]] Span down(int /*width*/) const override {
    const int height = look().line_of(font()) + look().pixels(9);
    return {height, height, height, false};
  }

 protected:
  void show_state() override {
    if (put_text(window(), wide(caption()))) host().room_changed();
  }
};

class TickWidget : public Widget {
 public:
  TickWidget(ui::Screen& s, ui::Control& c, Host& host, HWND parent) : Widget(s, c, host, parent) {
    make(WC_BUTTONW, WS_TABSTOP | BS_CHECKBOX | BS_MULTILINE);
  }
  void command(HWND /*from*/, WORD code) override {
    if (code == BN_CLICKED) host().hand([this] { screen().tick(control(), !control().checked); });
  }
  [[nodiscard]] bool on_paper() const override { return false; }
  [[nodiscard]] Shown shown() const override {
    return {with_plain_ends(text_on(window())), {}, {}, -1, is_checked()};
  }
  [[nodiscard]] Span across() const override {
    const std::wstring text = drawn(caption());
    const int width = static_cast<int>(look().size_of(font(), text).cx) + look().pixels(22);
    return {width, width, width, false};
  }
  [[nodiscard]] Span down(int /*width*/) const override {
    const std::wstring text = drawn(caption());
    const int height =
        std::max<int>(look().size_of(font(), text).cy, look().pixels(13)) + look().pixels(3);
    return {height, height, height, false};
  }

 protected:
  void show_state() override {
    if (put_text(window(), with_system_ends(caption()))) host().room_changed();
    if (is_checked() != control().checked)
      SendMessageW(window(), BM_SETCHECK, control().checked ? BST_CHECKED : BST_UNCHECKED, 0);
  }

 private:
  [[nodiscard]] bool is_checked() const {
    return SendMessageW(window(), BM_GETCHECK, 0, 0) == BST_CHECKED;
  }
};

// A drawing, or the picture of a file; the caption where that is missing.
class PictureWidget : public Widget {
 public:
  PictureWidget(ui::Screen& s, ui::Control& c, Host& host, HWND parent)
      : Widget(s, c, host, parent),
        picture_(
            parent,
            [this](ui::Point at) { this->host().hand([&] { screen().press_at(control(), at); }); },
            [this] { this->host().hand([this] { screen().press(control()); }); }) {
    listen(picture_.window());
    take_look();
  }
  [[nodiscard]] HWND window() const override { return picture_.window(); }
  [[nodiscard]] HWND focus_window() const override { return nullptr; }
  [[nodiscard]] bool on_paper() const override { return false; }
  void dress_anew() override { take_look(); }
  [[nodiscard]] Shown shown() const override {
    Shown result;
    result.content = narrow(file_);
    result.drawing = drawn_;
    return result;
  }
  [[nodiscard]] Span across() const override {
    const SIZE wanted = picture_.wanted(font());
    if (fitted()) return {wanted.cx / 2, wanted.cx, wanted.cx, false};
    const auto* const drawing = control().drawing.get();
    if (drawing == nullptr) return {wanted.cx, wanted.cx, wanted.cx, false};
    const int least = std::max(look().width_for(font(), drawing->characters), 1);
    const int roomy = static_cast<int>(least * std::max(drawing->roomy, 1.0));
    return {least, roomy, drawing->grows ? kNoLimit : roomy, drawing->grows};
  }
  [[nodiscard]] Span down(int width) const override {
    const SIZE wanted = picture_.wanted(font());
    if (fitted()) {
      const int height = std::min<int>(width, wanted.cx) * wanted.cy / std::max<int>(wanted.cx, 1);
      return {height, height, height, false};
    }
    const auto* const drawing = control().drawing.get();
    if (drawing == nullptr) return {wanted.cy, wanted.cy, wanted.cy, false};
    const int least = look().line_of(font()) * drawing->lines;
    const bool grows = drawing->grows && !drawing->low;
    const int roomy =
        drawing->low ? least : static_cast<int>(least * std::max(drawing->roomy, 1.0));
    return {least, roomy, grows ? kNoLimit : roomy, grows};
  }

 protected:
  void show_state() override {
    if (drawn_ != control().drawing) {
      drawn_ = control().drawing;
      picture_.show_drawing(drawn_);
    }
    const std::wstring wanted = wide(control().content);
    if (wanted != file_ || !looked_) {
      looked_ = true;
      file_ = wanted;
      // Names come from the program itself, but a picture is never looked for elsewhere.
      found_ = !file_.empty() && file_.find_first_of(L"/\\:") == std::wstring::npos &&
               picture_.show_file(file_, control().beside_line >= 0);
      host().room_changed();
    }
    if (!found_ && drawn_ == nullptr) {
      const std::wstring text = wide(ui::without_access_key(caption()));
      if (text != text_) {
        text_ = text;
        picture_.show_text(text_);
        host().room_changed();
      }
    }
    picture_.set_clickable(control().on_press || control().on_point);
  }
  void show_flags() override {
    if ((IsWindowEnabled(window()) != FALSE) != control().enabled)
      EnableWindow(window(), control().enabled ? TRUE : FALSE);
    show_window(window(), control().visible);
  }

 private:
  [[nodiscard]] bool fitted() const { return found_ && control().beside_line >= 0; }
  void take_look() { picture_.set_look(font(), look().scale(), look().inks()); }

  Picture picture_;
  std::shared_ptr<const ui::Drawing> drawn_;
  std::wstring file_;
  std::wstring text_;
  bool looked_ = false;
  bool found_ = false;
};

}  // namespace

std::unique_ptr<Widget> make_label(ui::Screen& s, ui::Control& c, Host& host, HWND parent) {
  return std::make_unique<LabelWidget>(s, c, host, parent);
}
std::unique_ptr<Widget> make_button(ui::Screen& s, ui::Control& c, Host& host, HWND parent) {
  return std::make_unique<ButtonWidget>(s, c, host, parent);
}
std::unique_ptr<Widget> make_tick(ui::Screen& s, ui::Control& c, Host& host, HWND parent) {
  return std::make_unique<TickWidget>(s, c, host, parent);
}
std::unique_ptr<Widget> make_picture(ui::Screen& s, ui::Control& c, Host& host, HWND parent) {
  return std::make_unique<PictureWidget>(s, c, host, parent);
}

}  // namespace win32
