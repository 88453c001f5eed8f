#pragma once
// A control and its widget: the system's own controls. One small class per control kind: it makes the
// controls, shows the state on them, and reports what the person did. Only what differs is written,
// and what the program writes is never reported.

#include "win32/system.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ui/access_keys.h"
#include "ui/plan.h"
#include "win32/boxes.h"
#include "win32/look.h"

namespace win32 {

/// What a widget asks of its window.
class Host {
 public:
  virtual ~Host() = default;
  [[nodiscard]] virtual const Look& look() const = 0;
  /// Hands what the person did to the screen and then shows everything.
  virtual void hand(const std::function<void()>& event) = 0;
  /// The same once the system is through with the message at hand: a list goes on with its lines
  /// after it told of a click, and the screen's answer may make new ones.
  virtual void hand_later(std::function<void()> event) = 0;
  /// Something wants more or less room than before.
  virtual void room_changed() = 0;
  /// The focus came to this control or went from it.
  virtual void focus_moved() = 0;
};

/// What a control of the system shows, read back from it.
struct Shown {
  std::string content;
  std::vector<std::string> items;
  std::vector<std::string> codes = {};  ///< in front of a choice's lines
  int selected = -1;
  bool checked = false;
  std::vector<bool> ticked = {};    ///< of a list's lines; empty when they have no boxes
  std::vector<bool> disabled = {};  ///< lines of a choice
  std::shared_ptr<const ui::Drawing> drawing = nullptr;
};

class Widget {
 public:
  Widget(ui::Screen& screen, ui::Control& control, Host& host, HWND parent);
  Widget(const Widget&) = delete;
  Widget& operator=(const Widget&) = delete;
  virtual ~Widget();

  [[nodiscard]] ui::Control& control() const { return control_; }
  /// The window that stands for the control; all of its windows.
  [[nodiscard]] virtual HWND window() const {
    return windows_.empty() ? nullptr : windows_.front();
  }
  [[nodiscard]] const std::vector<HWND>& windows() const { return windows_; }
  /// The window that takes the focus, nullptr when none does.
  [[nodiscard]] virtual HWND focus_window() const { return window(); }
  [[nodiscard]] bool owns(HWND part) const;
  /// Where all of it stands, on its part of the window.
  [[nodiscard]] RECT stands() const;

  /// Selects the first `length` characters (all when negative); nothing where there is no text.
  virtual void select(int /*length*/) {}
  /// A page key shows more of what does not fit. False where there is no more in that direction.
  [[nodiscard]] virtual bool scrolls(ui::Key /*page_key*/) { return false; }
  /// Its list is open and has all keys.
  [[nodiscard]] virtual bool keeps_keys() const { return false; }
  /// Closes it; the line on which it stands is chosen.
  virtual void take_open_line() {}

  /// The control's state on the widget.
  void show();
  /// With other fonts and colours.
  virtual void dress_anew();
  [[nodiscard]] virtual Shown shown() const { return {}; }

  // What the window passes on.
  /// WM_COMMAND with this code from one of its windows.
  virtual void command(HWND /*from*/, WORD /*code*/) {}
  virtual LRESULT notify(const NMHDR& /*told*/) { return 0; }
  virtual void draw(const DRAWITEMSTRUCT& /*item*/) {}
  /// What it is dressed in now.
  [[nodiscard]] Dress dress() const;
  [[nodiscard]] virtual bool on_paper() const { return true; }
  /// True for a mark that is framed.
  [[nodiscard]] bool is_wrong() const { return control_.mark == ui::kWrongMark; }

  /// The box that places it.
  [[nodiscard]] virtual std::unique_ptr<Box> box();
  [[nodiscard]] virtual Span across() const = 0;
  [[nodiscard]] virtual Span down(int width) const = 0;
  virtual void place(const Place& place);

  /// Of a choice: its lines are to stand in this many columns, each beside its picture.
  struct BesideLine {
    int line = -1;
    Widget* picture = nullptr;
  };
  virtual void stand_beside(int /*columns*/, std::vector<BesideLine> /*pictures*/) {}

  // Set by the window before the first show().
  std::vector<const ui::Control*> titles;  ///< of the groups around it
  char access_key = '\0';
  bool is_title = false;  ///< of a group
  HWND caption_label = nullptr;
  HWND unit_label = nullptr;

  /// With its access key.
  [[nodiscard]] std::string caption() const {
    return ui::with_access_key(screen_.caption(control_), access_key);
  }
  [[nodiscard]] const std::string& tip() const { return tip_; }
  [[nodiscard]] const std::string& spoken_name() const { return spoken_name_; }
  [[nodiscard]] const std::string& spoken_state() const { return spoken_state_; }

 protected:
  virtual void show_state() = 0;
  /// What a screen reader is to say of its windows; called when it is another.
  virtual void speak(const std::wstring& name, const std::wstring& state);
  /// speak() with what was said last, once there are other windows.
  void say_anew();
  /// Enables, hides and shows its windows.
  virtual void show_flags();
  /// A message to one of its windows. What it does not deal with goes to pass_on().
  virtual LRESULT on_message(HWND window, UINT message, WPARAM w, LPARAM l);
  LRESULT pass_on(HWND window, UINT message, WPARAM w, LPARAM l);

  /// Makes a window of this class on the part of the window that the control stands on; messages to
  /// it go through on_message().
  HWND make(const wchar_t* kind, DWORD style, DWORD extended = 0);
  /// Lets messages to a window that another one made go through on_message().
  void listen(HWND window);
  void unmake(HWND window);
  void take_font(HWND window);

  [[nodiscard]] ui::Screen& screen() const { return screen_; }
  [[nodiscard]] Host& host() const { return host_; }
  [[nodiscard]] const Look& look() const { return host_.look(); }
  [[nodiscard]] virtual HFONT font() const;
  /// Of a field by ui::extent_of(), and so many pixels beside the characters.
  [[nodiscard]] Span field_across(int besides = 0) const;

 private:
  static LRESULT CALLBACK part_proc(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR id,
                                    DWORD_PTR widget);
  void show_labels();
  void say();

  ui::Screen& screen_;
  ui::Control& control_;
  Host& host_;
  HWND parent_;
  std::vector<HWND> windows_;
  std::vector<HWND> listened_;
  ui::Extent room_;
  bool was_visible_ = true;
  std::string spoken_name_;
  std::string spoken_state_;
  std::string tip_;
  Dress dress_ = Dress::kPlain;
  bool dressed_ = false;
};

/// The widget for the control's kind, its windows children of `parent`.
[[nodiscard]] std::unique_ptr<Widget> make_widget(ui::Screen& screen, ui::Control& control,
                                                  Host& host, HWND parent);

// One for each kind; the files are named for the families.
using Maker = std::unique_ptr<Widget> (*)(ui::Screen&, ui::Control&, Host&, HWND);
std::unique_ptr<Widget> make_line(ui::Screen&, ui::Control&, Host&, HWND);
std::unique_ptr<Widget> make_read_only(ui::Screen&, ui::Control&, Host&, HWND);
std::unique_ptr<Widget> make_memo(ui::Screen&, ui::Control&, Host&, HWND);
std::unique_ptr<Widget> make_combo(ui::Screen&, ui::Control&, Host&, HWND);
std::unique_ptr<Widget> make_list(ui::Screen&, ui::Control&, Host&, HWND);
std::unique_ptr<Widget> make_choice(ui::Screen&, ui::Control&, Host&, HWND);
std::unique_ptr<Widget> make_tree(ui::Screen&, ui::Control&, Host&, HWND);
std::unique_ptr<Widget> make_label(ui::Screen&, ui::Control&, Host&, HWND);
std::unique_ptr<Widget> make_tick(ui::Screen&, ui::Control&, Host&, HWND);
std::unique_ptr<Widget> make_button(ui::Screen&, ui::Control&, Host&, HWND);
std::unique_ptr<Widget> make_picture(ui::Screen&, ui::Control&, Host&, HWND);

// Small things that the widgets share.
[[nodiscard]] std::wstring text_on(HWND window);
/// Writes it where it is another; true when it was.
bool put_text(HWND window, const std::wstring& text);
/// Moves the window where it does not stand there already.
void move_to(HWND window, const Place& place);
/// Where nothing is written a key is what it is: with a Japanese input method on, the figure that
/// chooses a line would go to that.
void keep_input_method_out(HWND window);
[[nodiscard]] inline Place place_of(const RECT& rect) {
  return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}
/// Where a display lies, and what of it the task bar leaves.
[[nodiscard]] MONITORINFO info_of(HMONITOR display);
/// The text with line ends as the system's controls want them; and back.
[[nodiscard]] std::wstring with_system_ends(std::string_view text);
[[nodiscard]] std::string with_plain_ends(std::wstring_view text);
/// A text that names no access key, for a control that looks for one; and back.
[[nodiscard]] std::wstring escaped(std::string_view text);
[[nodiscard]] std::string unescaped(std::wstring_view text);
/// A text with an access key as a control draws it: "はい(&Y)" is as wide as "はい(Y)".
[[nodiscard]] std::wstring drawn(std::string_view text);
[[nodiscard]] bool is_shown(HWND window);
void show_window(HWND window, bool on);

/// A window of one size as a box.
class WindowBox : public Box {
 public:
  WindowBox(HWND window, std::function<bool()> shown, std::function<Span()> across,
            std::function<Span(int)> down)
      : window_(window),
        shown_(std::move(shown)),
        across_(std::move(across)),
        down_(std::move(down)) {}
  [[nodiscard]] bool shown() const override { return shown_(); }
  [[nodiscard]] Span across() const override { return across_(); }
  [[nodiscard]] Span down(int width) const override { return down_(width); }
  void place(const Place& place) override { move_to(window_, place); }

 private:
  HWND window_;
  std::function<bool()> shown_;
  std::function<Span()> across_;
  std::function<Span(int)> down_;
};

}  // namespace win32
