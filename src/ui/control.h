#pragma once
// A control holds its own value; a front end only copies it to a widget and tells what the person
// did.

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "text/texts.h"
#include "ui/drawing.h"

namespace ui {

class Screen;
enum class Key;

enum class Kind {
  kLabel,     ///< a text; clickable when on_press is set
  kReadOnly,  ///< a value that is shown, never typed
  kEdit,      ///< one line of text
  kMemo,      ///< several lines, read-only
  kCombo,     ///< editable drop-down
  kDropDown,  ///< drop-down of fixed lines
  kList,      ///< list box
  kChoice,    ///< one of several (radio buttons); the items are their texts
  kTick,      ///< tick box
  kButton,
  kPicture,  ///< a file's picture or a drawing; clickable when on_press or on_point is set
  kTree,
};

/// "edit", "combo" … as `show` prints it.
[[nodiscard]] std::string_view name_of(Kind kind);

/// A visible row of a tree. Rows are in display order; a level is read when its parent is expanded.
struct TreeRow {
  std::string text;
  std::string path;  ///< what the row stands for
  int depth = 0;
  bool can_expand = true;
  bool expanded = false;
  bool marked = false;  ///< set apart (remote and CD-ROM drives)
};

/// What a button is for (OK, Cancel, Help); the shared behaviours follow from it.
enum class Role { kNone, kAccept, kDismiss, kHelp };

/// A font of the front end's choice whose characters are all one column wide, and Japanese ones two.
inline constexpr std::string_view kFixedPitch = "fixed pitch";

// States of a value that a front end shows by a colour and tells in words (Control::mark).
inline constexpr std::string_view kMissingMark = "missing";  ///< something of it is not entered yet
inline constexpr std::string_view kWrongMark = "wrong";      ///< what stands there was refused

/// State of one control. Screens declare the kinds below as members, in reading order.
class Control {
 public:
  /// One with a role closes the screen and stands behind all others that have none, whichever was
  /// declared first.
  Control(Screen& owner, Kind control_kind, std::string_view control_name, text::Ref text = {},
          Role closing_role = Role::kNone);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;  // a screen may own controls that hold more than this

  const std::string name;  ///< stable: layouts, scripts and tests use it
  const Kind kind;
  const Role role;  ///< of a button

  /// On a label, button or tick box; beside (or above) anything else.
  text::Ref caption;
  /// Instead of `caption` where the text is not in the table (a report group, a date).
  std::string literal_caption;
  text::Ref unit;  ///< behind the value
  /// What a screen reader says in place of the caption, where that is missing or not its own.
  text::Ref spoken;
  /// What an edit, combo, memo, read-only text or picture (its file name) holds.
  std::string content;
  std::vector<std::string> items;  ///< lines of a combo, drop-down, list or choice
  /// When set, `items` is made of these in the language of the moment.
  std::vector<text::Ref> item_refs;
  std::vector<bool> item_disabled;  ///< choice only; empty means all enabled
  /// The code of each line, by which the keyboard finds it. A choice shows it in front of the line;
  /// the lines of a list hold their codes themselves.
  std::vector<std::string> item_codes;
  std::vector<bool> item_marked;  ///< lines of a list or drop-down set apart; empty: none
  /// Of a list: each line has a box beside it, and more than one may be ticked; empty: none has.
  /// Which line is selected is another matter.
  std::vector<bool> item_ticked;
  std::vector<TreeRow> rows;  ///< tree only
  /// Picture only: what is drawn, instead of a file. Another drawing is another object.
  std::shared_ptr<const Drawing> drawing;
  /// What it shows tells what other controls say already. Where changes are listed, a picture's name
  /// is enough, and a text is not listed.
  bool repeats = false;
  /// Of a picture that repeats others: it is drawn anew with nearly every key, and where changes are
  /// listed that says nothing, so it is left out.
  bool follows_keys = false;
  int selected = -1;  ///< line of a drop-down, list, choice or tree
  int most_lines =
      0;  ///< of a list or memo, shown at once; the others scroll; 0: as many as its kind has
  int beside_line =
      -1;  ///< picture: the line of the screen's choice that it shows, where it shows one
  bool checked = false;
  bool enabled = true;
  bool visible = true;
  bool read_only = false;  ///< an edit that is shown but locked; it can have the focus
  int max_length = 0;  ///< in characters, 0 is no limit; a longer line of a choice is broken, and
                       ///< a memo has room for so many side by side
  std::string font;    ///< font family asked for; empty is the usual one; or kFixedPitch
  bool narrow = true;  ///< full-width characters are narrowed before checks
  std::string mark;    ///< kMissingMark or kWrongMark; empty for none
  Control* continues_in = nullptr;  ///< the field of the decimals: a point goes on to it
  /// Its figures always fill it: with the last one of max_length, typed by a key at the end of its
  /// text, the focus moves on as Tab moves it (Screen::type_by_key).
  bool moves_on_when_full = false;
  /// Nothing is asked of it now: Tab passes it by, Shift+Tab and a click reach it. Tab passes by
  /// what is locked in any case.
  bool passed_over = false;
  /// Figures are typed into it (a solidus among them): a front end asks its input method for them.
  bool figures = false;
  bool unchecked = false;  ///< typed into, or left, without its check since; kept by the screen
  /// Keys that press it whatever field of the screen has the focus ("F7"), or a character that does
  /// where it can not be typed ("+"); empty for none. The text outlives the control.
  std::string_view shortcut;
  /// Pressing it only shows something: what is being typed into the field that has the focus stays
  /// there as it is, and is not checked.
  bool only_shows = false;
  std::string why_locked;  ///< why it is locked or disabled, for the person; empty when it is not

  /// Runs when the focus leaves after the content was narrowed; false refuses: the focus comes back
  /// and the text is selected. Skipped while Cancel or Help is being pressed; OK makes up for it.
  std::function<bool()> on_leave;
  /// After the person typed, chose or ticked.
  std::function<void()> on_change;
  /// Button pressed, label or picture clicked, tree or list line double-clicked.
  std::function<void()> on_press;
  /// Picture clicked at a place: in the coordinates of its drawing; those of a file's picture go
  /// from 0 to 1, from the left and from the bottom.
  std::function<void(Point)> on_point;
  /// Memo that shows one page of several: PageDown (forward) and PageUp turn it instead of scrolling.
  std::function<void(bool forward)> on_page;
  /// Read-only text that tells one of many things: the arrows, Home, End and the page keys lead to
  /// another instead of moving in the text, and none of it is selected when the focus comes.
  std::function<void(Key)> on_arrow;
  /// Before the focus enters.
  std::function<void()> on_enter;
  /// Tree: a row is about to be opened; insert its children behind it.
  std::function<void(std::size_t row)> on_expand;
  /// Tree: opens the rows above what the path names and selects it; false, with nothing changed,
  /// when there is no such thing. Front ends go through Screen::reveal().
  std::function<bool(std::string_view path)> on_reveal;

  [[nodiscard]] bool can_focus() const;
  /// The text of the selected line, empty when there is none.
  [[nodiscard]] std::string selected_text() const;
  /// Sets the content and, in a drop-down or combo, selects the line that equals it.
  void set(std::string_view value);
};

// One type per kind, so that a screen reads like its form.
template <Kind kKind>
class Simple : public Control {
 public:
  Simple(Screen& owner, std::string_view control_name, text::Ref text = {})
      : Control(owner, kKind, control_name, text) {}
};
using Label = Simple<Kind::kLabel>;
using ReadOnly = Simple<Kind::kReadOnly>;
using Memo = Simple<Kind::kMemo>;
using DropDown = Simple<Kind::kDropDown>;
using List = Simple<Kind::kList>;
using Tick = Simple<Kind::kTick>;
using Picture = Simple<Kind::kPicture>;
using Tree = Simple<Kind::kTree>;

class Edit : public Control {
 public:
  Edit(Screen& owner, std::string_view control_name, text::Ref text = {}, int largest = 0)
      : Control(owner, Kind::kEdit, control_name, text) {
    max_length = largest;
  }
};

class Combo : public Control {
 public:
  Combo(Screen& owner, std::string_view control_name, text::Ref text = {}, int largest = 0)
      : Control(owner, Kind::kCombo, control_name, text) {
    max_length = largest;
  }
};

class Choice : public Control {
 public:
  Choice(Screen& owner, std::string_view control_name, text::Ref text, std::vector<text::Ref> lines)
      : Control(owner, Kind::kChoice, control_name, text) {
    item_refs = std::move(lines);
  }
};

class Button : public Control {
 public:
  Button(Screen& owner, std::string_view control_name, text::Ref text,
         Role closing_role = Role::kNone)
      : Control(owner, Kind::kButton, control_name, text, closing_role) {}
};

}  // namespace ui
