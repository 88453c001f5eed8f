#pragma once
// A screen written out as text: every control with its kind, caption, text, lines and flags. A
// front end that reads its widgets back into the same views prints the same text; a difference is
// an error of the front end.

#include <string>
#include <string_view>
#include <vector>

#include "ui/screen.h"

namespace ui {

/// What a person can see of one control.
struct ControlView {
  std::string name;
  Kind kind = Kind::kLabel;
  std::string caption;  ///< with its access key
  std::string unit;
  std::string text;                     ///< shown_text()
  std::vector<std::string> lines;       ///< of a combo, drop-down, list, choice or tree
  std::vector<std::string> line_codes;  ///< choice only: shown in front of each line; often empty
  std::vector<bool> line_disabled;      ///< choice only; empty when all can be picked
  std::vector<bool> line_ticked;        ///< list only; empty when its lines have no boxes
  std::vector<std::string> drawing;     ///< describe() of a picture's drawing; empty without one
  bool repeats = false;                 ///< Control::repeats
  bool follows_keys = false;            ///< Control::follows_keys
  bool enabled = true;
  bool visible = true;
  bool locked = false;
  bool focused = false;
  int max_length = 0;
  std::string why;            ///< why it is locked or disabled
  std::string shortcut = {};  ///< keys that press it
  bool operator==(const ControlView&) const = default;
};

/// The value that a control shows: the content of an edit, combo, memo, read-only text or picture;
/// the picked line of a drop-down, list or choice; the path of a tree's row; "on" or "off"; the
/// caption of a label or button.
[[nodiscard]] std::string shown_text(const Screen& screen, const Control& control);

[[nodiscard]] ControlView view_of(const Screen& screen, const Control& control);
[[nodiscard]] std::vector<ControlView> views_of(const Screen& screen);

/// One line (a tree: one more for each row; a drawing: one more for each shape), without a line end
/// at the end: `call_sign edit "Call sign" = "JABC" [focus, max 7]`.
[[nodiscard]] std::string describe(const ControlView& view);
/// `"0", "1", … "99" (100 lines)` for a long list of numbers; every line of any other list, with
/// " [ticked]" behind those that are.
[[nodiscard]] std::string describe_lines(const ControlView& view);

/// One line for each command of the menu bar: `menu "File/Exit"`, with " [disabled]" when greyed.
[[nodiscard]] std::vector<std::string> menu_lines(const Screen& screen);

/// Title, menu and all controls, a line end behind each line.
[[nodiscard]] std::string dump(const Screen& screen);

/// The text in double quotes with \n \r \t \" \\ escapes; other control characters and bytes that
/// are not UTF-8 as \xNN, the full-width space as \u3000, so that blanks are seen.
[[nodiscard]] std::string quoted(std::string_view text);

/// True when the text is well-formed UTF-8.
[[nodiscard]] bool is_utf8(std::string_view text);

/// A caption without its access key: "はい(&Y)" gives "はい", "&Save" gives "Save", "&&" is "&".
[[nodiscard]] std::string without_access_key(std::string_view caption);
/// The access key of a caption, in upper case; 0 when there is none.
[[nodiscard]] char access_key(std::string_view caption);

}  // namespace ui
