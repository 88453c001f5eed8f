#pragma once
// A screen is a list of controls with handlers. A front end tells it what the person did through
// the functions under "What the person did" and after each copies the controls' state to its
// widgets: one event in, one refresh out.
//
// The whole contract of the program with its front ends stands in this room:
//   windows.h    what the program asks a front end to do: show a message, run a screen
//   screen.h     what a front end tells a screen, and what it reads of it
//   control.h    the values that it shows, one kind of widget for each kind of control
//   plan.h       where everything stands and how much room it has
//   drawing.h    what is drawn in a picture, and which point was clicked
//   menu.h       the menu bar
//   line_keys.h  which keys choose a line: handed to Screen::key and Screen::find_line
//   dump.h       a screen as a text; what a front end shows, read back, gives the same text

#include <exception>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"
#include "ui/menu.h"
#include "ui/services.h"
#include "ui/window_place.h"

namespace ui {

enum class Key {
  kF1,
  kEnter,
  kEscape,
  kTab,
  kShiftTab,
  kUp,
  kDown,
  kLeft,
  kRight,
  kHome,
  kEnd,
  kPageUp,
  kPageDown,
  kSpace
};

class Screen {
 public:
  /// `class_name` names the layout and the help topic.
  Screen(Services& services, std::string_view class_name, text::Ref title);
  virtual ~Screen() = default;
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  // What a front end reads.
  [[nodiscard]] const std::string& class_name() const { return class_name_; }
  [[nodiscard]] virtual std::string title() const;
  [[nodiscard]] std::span<Control* const> controls() const { return controls_; }
  [[nodiscard]] Control* find(std::string_view name) const;
  /// The control that these keys press now (Control::shortcut, in any case): nothing where it is
  /// hidden or disabled, or where a character is typed into the field that has the focus.
  [[nodiscard]] Control* pressed_by(std::string_view keys) const;
  [[nodiscard]] std::string caption(const Control& control) const;
  [[nodiscard]] std::string english_caption(const Control& control) const;
  [[nodiscard]] std::string unit(const Control& control) const;
  [[nodiscard]] Control* focused() const { return focused_; }
  /// Changes whenever the focus is to be set anew, also to the same control.
  [[nodiscard]] unsigned focus_serial() const { return focus_serial_; }
  /// Characters to select when the focus is set; a length of -1 is all.
  [[nodiscard]] int selection_length() const { return selection_length_; }
  /// The control that a message is about which is shown now: the one that is being checked, chosen
  /// in or refused. A front end puts the message beside it. Nullptr when it is about none.
  [[nodiscard]] const Control* speaks_of() const { return speaks_of_; }
  [[nodiscard]] std::span<const MenuItem> menu() const { return menu_; }
  /// Changes whenever the menu bar is to be redrawn.
  [[nodiscard]] unsigned menu_serial() const { return menu_serial_; }
  /// Set once the screen has closed.
  [[nodiscard]] std::optional<int> result() const { return result_; }
  [[nodiscard]] text::Language language() const { return services_.texts.language; }

  /// Where its window stood when it was closed last; nothing: it has no place of its own.
  [[nodiscard]] virtual std::optional<WindowPlace> kept_place() const { return std::nullopt; }
  /// The window is about to be closed and stands here.
  virtual void keep_place(const WindowPlace& /*place*/) {}

  // What the person did. An event that comes while another is being handled is dropped.
  /// Fills texts, runs on_open() and puts the focus on the first control. Called once by the front
  /// end; a screen may close itself in on_open() and is then never shown.
  void open();
  /// Typed text in place of the content, cut at max_length. Where the control continues in another,
  /// a point or comma goes on there: what follows it replaces the other's content, and the focus
  /// moves; a text that does not fit into both stays whole for the person to see and is refused
  /// when the field is left. Nothing happens to a locked or disabled control.
  void type(Control& control, std::string_view text);
  /// The same, where the last character was typed by a key or given by an input method at the end
  /// of the text. When that made a field full whose figures always fill it
  /// (Control::moves_on_when_full; counted as half-width figures), the focus moves on as Tab moves
  /// it: a refused field keeps it. It stays before a button other than OK. A Tab that comes next,
  /// with nothing else in between, is the one that a hand presses behind every figure: it does
  /// nothing, once. Front ends tell a correction in the middle of a text, what is pasted, dropped or
  /// taken back as type().
  void type_by_key(Control& control, std::string_view text);
  /// Picked a line; an index outside the lines picks none.
  void choose(Control& control, int index);
  void tick(Control& control, bool on);
  /// Ticked a line of a list with ticks, or took the tick away. The selected line stays.
  void tick_line(Control& list, int line, bool on);
  /// Pressed a button, clicked a label or picture, double-clicked a list or tree line. The focus
  /// moves first (labels and pictures do not take it, but the field that has it is checked), so
  /// that a refused field keeps it and nothing is pressed.
  void press(Control& control);
  /// Clicked a picture at a place (Control::on_point); without a handler for places it is pressed.
  /// A place outside the picture is none.
  void press_at(Control& picture, Point place);
  /// Moves the focus. False when the field that has it refused to let go.
  bool move_focus(Control& to);
  /// The arrows, Home, End and the page keys choose a line where the focused control has lines
  /// (ui/line_keys.h); Space ticks the selected one of a list with ticks. The page keys turn the
  /// page of a memo that has several.
  void key(Key key);
  /// A character typed where the focused control has lines and no text: chooses the line it stands
  /// for, together with the characters typed before it when nothing else happened in between.
  void find_line(std::string_view character);
  void command(const MenuItem& item);
  void expand(Control& tree, std::size_t row);
  void collapse(Control& tree, std::size_t row);
  /// Picks what the path names in a tree, opening the rows above it. False when there is no such
  /// thing.
  bool reveal(Control& tree, std::string_view path);
  void close_box();
  /// A key or a click that none of these tells of: it moved the caret, or went to a menu or to
  /// another window. A Tab behind it is meant.
  void did_something_else() { moved_on_ = false; }

  /// A front end could not bring one of these to its end, because something threw: tells the person
  /// why. What has been entered stays. Events that the message brings along are dropped.
  void event_failed(const std::exception_ptr& thrown);

  /// While it lives, the messages of this screen are about the control.
  class Speaking {
   public:
    Speaking(Screen& screen, const Control& of) : screen_(screen), before_(screen.speaks_of_) {
      screen_.speaks_of_ = &of;
    }
    ~Speaking() { screen_.speaks_of_ = before_; }
    Speaking(const Speaking&) = delete;
    Speaking& operator=(const Speaking&) = delete;

   private:
    Screen& screen_;
    const Control* before_;
  };

  // What nobody did.
  /// Nothing has happened for a while. Every open screen is told, also one that lies behind others
  /// and is in the middle of a handler.
  void idle();

 protected:
  [[nodiscard]] Services& services() const { return services_; }

  virtual void on_open() {}
  /// The OK button (and Enter), once every field that was changed or left without its check has
  /// passed it. The default closes with kOk.
  virtual void on_ok() { close(ui::kOk); }
  /// The Cancel button, Escape and the close box. The default closes with kCancel.
  virtual void on_cancel() { close(ui::kCancel); }
  /// F1. The default opens the help topic.
  virtual void on_f1(Control* focused);
  /// Returns true when Enter or Escape was dealt with; the default is false: OK and Cancel follow.
  virtual bool on_enter_or_escape(Key) { return false; }
  /// The default opens the dialog's help topic.
  virtual void on_help();
  /// True when the check of `from` may wait, because `to`, where the focus goes, can answer for it (a
  /// box "unknown" beside an empty field). OK makes up for it, as it does after Help.
  [[nodiscard]] virtual bool check_can_wait(const Control& /*from*/, const Control& /*to*/) const {
    return false;
  }
  /// The focus is on another control now (focused()), whoever gave it.
  virtual void on_focused() {}
  /// Tab, or Tab with Shift, before the field is checked and the focus moves.
  virtual void on_tab(Key) {}

  /// Time for what nobody waits for, such as writing a file. It must not change what the screen
  /// shows. `undisturbed`: no handler is running, so a message may be shown.
  virtual void on_idle(bool /*undisturbed*/) {}

  void close(int result);
  /// Gives the focus without a check, its text selected.
  void focus(Control& control);
  /// Refuses what a control holds: the message, then the focus on the control. Always false. Where
  /// the text of the table has a place for it, `argument` is filled in. A check that refuses the
  /// field being left (Control::on_leave) only shows its message: the focus stays by itself.
  bool refuse(Control& control, text::Id message, std::string_view argument = {});
  /// The control to which Tab (or Tab with Shift) leads from this one: the next in tab order that
  /// can have the focus and is no text that repeats others; forwards none that is passed over
  /// (Control::passed_over) or locked. The same one when there is no other.
  [[nodiscard]] Control* neighbour(const Control* from, bool forward) const;
  /// Texts of all choices in the language of the moment; after a language switch call it again.
  void relabel();
  void set_menu(std::vector<MenuItem> items);
  /// Characters selected when a field gets the focus; -1 is all.
  void select_on_focus(int length) { selection_on_focus_ = length; }

 private:
  friend class Control;
  class Handling;

  [[nodiscard]] bool is_full(const Control& control) const;
  void tab(Key key);
  void enter(Control& control);
  bool leave_focused(const Control& to);
  bool check(Control& field);
  bool check_skipped_fields();
  Control* type_inside(Control& control, std::string_view text);
  Control* type_across_point(Control& control, std::string_view text);
  void put_typed(Control& control, std::string_view text);
  void press_inside(Control& button);
  bool move_focus_inside(Control& to);
  void choose_inside(Control& control, int index);
  void tick_line_inside(Control& list, int line, bool on);

  Services& services_;
  std::string class_name_;
  text::Ref title_;
  std::vector<Control*> controls_;
  std::vector<MenuItem> menu_;
  Control* focused_ = nullptr;
  const Control* speaks_of_ = nullptr;
  unsigned focus_serial_ = 0;
  unsigned menu_serial_ = 0;
  int selection_length_ = -1;
  int selection_on_focus_ = -1;
  std::string looked_for_;  ///< typed so far to find a line; every other event forgets it
  std::optional<int> result_;
  bool opened_ = false;
  bool handling_ = false;
  bool moved_on_ = false;  ///< by itself, with the event before; every other event forgets it
};

}  // namespace ui
