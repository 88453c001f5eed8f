#include "ui/dump.h"

#include <algorithm>

#include "text/strings.h"

namespace ui {
namespace {

constexpr std::size_t kNumbersShownWhole = 6;
constexpr std::size_t kRowsShown = 60;
constexpr std::string_view kHex = "0123456789ABCDEF";

bool looks_like_number(std::string_view line) {
  return !line.empty() && line.find_first_not_of("0123456789+-. ") == std::string_view::npos;
}

bool is_upper_or_digit(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

char upper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Bytes of the well-formed UTF-8 character at the start of a non-empty text, 0 when there is none.
std::size_t well_formed(std::string_view text) {
  const auto byte = [&](std::size_t i) {
    return static_cast<unsigned>(static_cast<unsigned char>(text[i]));
  };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t size = lead >= 0xC2 && lead < 0xE0   ? 2
                           : lead >= 0xE0 && lead < 0xF0 ? 3
                           : lead >= 0xF0 && lead < 0xF5 ? 4
                                                         : 0;
  if (size == 0 || text.size() < size) return 0;
  for (std::size_t i = 1; i < size; ++i) {
    if ((byte(i) & 0xC0U) != 0x80U) return 0;
  }
  const bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
  const bool surrogate = lead == 0xED && byte(1) >= 0xA0;
  const bool too_large = lead == 0xF4 && byte(1) >= 0x90;
  return overlong || surrogate || too_large ? 0 : size;
}

void append_byte(std::string& out, char c) {
  const auto byte = static_cast<unsigned char>(c);
  out += "\\x";
  out += kHex[byte >> 4U];
  out += kHex[byte & 0x0FU];
}

void append_escaped(std::string& out, char c) {
  switch (c) {
    case '\n':
      out += "\\n";
      break;
    case '\r':
      out += "\\r";
      break;
    case '\t':
      out += "\\t";
      break;
    case '"':
      out += "\\\"";
      break;
    case '\\':
      out += "\\\\";
      break;
    default:
      if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
        append_byte(out, c);
      } else {
        out += c;
      }
  }
}

std::string row_line(const TreeRow& row) {
  std::string line(static_cast<std::size_t>(std::max(row.depth, 0)) * 2, ' ');
  line += row.expanded ? "- " : row.can_expand ? "+ " : "  ";
  line += row.text;
  if (row.marked) line += " *";
  return line;
}

bool shows_value(Kind kind) {
  return kind != Kind::kLabel && kind != Kind::kButton;
}

void add_flag(std::string& flags, std::string_view flag) {
  flags += flags.empty() ? "" : ", ";
  flags += flag;
}

std::string flags_of(const ControlView& view) {
  std::string flags;
  if (!view.visible) add_flag(flags, "hidden");
  if (!view.enabled) add_flag(flags, "disabled");
  if (view.locked) add_flag(flags, "locked");
  if (!view.why.empty()) add_flag(flags, "why " + quoted(view.why));
  if (!view.shortcut.empty()) add_flag(flags, "key " + view.shortcut);
  if (view.focused) add_flag(flags, "focus");
  // Elsewhere it is only how wide the field is drawn.
  const bool typed = view.kind == Kind::kEdit || view.kind == Kind::kCombo;
  if (typed && view.max_length > 0) add_flag(flags, "max " + std::to_string(view.max_length));
  return flags;
}

std::string tree_rows(const ControlView& view) {
  std::string result;
  for (std::size_t i = 0; i < view.lines.size() && i < kRowsShown; ++i)
    result += "\n    " + view.lines[i];
  if (view.lines.size() > kRowsShown)
    result += "\n    … (" + std::to_string(view.lines.size()) + " rows)";
  return result;
}

std::string drawn_shapes(const ControlView& view) {
  std::string result;
  // The axes stand on the control's own line.
  for (std::size_t i = 1; i < view.drawing.size(); ++i) result += "\n    " + view.drawing[i];
  return result;
}

void add_menu_lines(std::vector<std::string>& lines, std::span<const MenuItem> items,
                    const std::string& path, text::Language language) {
  for (const MenuItem& item : items) {
    const std::string at = path + std::string(text::resolve(item.text, language));
    if (item.children.empty()) {
      lines.push_back("menu " + quoted(at) + (item.enabled ? "" : " [disabled]"));
    } else {
      add_menu_lines(lines, item.children, at + "/", language);
    }
  }
}

}  // namespace

std::string shown_text(const Screen& screen, const Control& control) {
  switch (control.kind) {
    case Kind::kLabel:
    case Kind::kButton:
      return screen.caption(control);
    case Kind::kTick:
      return control.checked ? "on" : "off";
    case Kind::kDropDown:
    case Kind::kList:
    case Kind::kChoice:
    case Kind::kTree:
      return control.selected_text();
    case Kind::kReadOnly:
    case Kind::kEdit:
    case Kind::kMemo:
    case Kind::kCombo:
    case Kind::kPicture:
      break;
  }
  return control.content;
}

ControlView view_of(const Screen& screen, const Control& control) {
  ControlView view;
  view.name = control.name;
  view.kind = control.kind;
  view.caption = screen.caption(control);
  view.unit = screen.unit(control);
  view.text = shown_text(screen, control);
  view.lines = control.items;
  for (const TreeRow& row : control.rows) view.lines.push_back(row_line(row));
  if (control.kind == Kind::kChoice) view.line_codes = control.item_codes;
  if (control.drawing != nullptr) view.drawing = describe(*control.drawing);
  view.repeats = control.repeats;
  view.follows_keys = control.follows_keys;
  const auto& disabled = control.item_disabled;
  if (std::find(disabled.begin(), disabled.end(), true) != disabled.end())
    view.line_disabled = disabled;
  if (control.kind == Kind::kList) view.line_ticked = control.item_ticked;
  view.enabled = control.enabled;
  view.visible = control.visible;
  view.locked = control.read_only;
  view.focused = screen.focused() == &control;
  view.max_length = control.max_length;
  view.why = control.why_locked;
  view.shortcut = control.shortcut;
  return view;
}

std::vector<ControlView> views_of(const Screen& screen) {
  std::vector<ControlView> views;
  for (const Control* const control : screen.controls()) views.push_back(view_of(screen, *control));
  return views;
}

std::string describe_lines(const ControlView& view) {
  const auto& lines = view.lines;
  const bool shorten = lines.size() > kNumbersShownWhole &&
                       std::all_of(lines.begin(), lines.end(), looks_like_number);
  std::string result;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (shorten && i == 2) {
      result += ", … ";
      i = lines.size() - 1;
    } else if (i > 0) {
      result += ", ";
    }
    if (i < view.line_codes.size()) result += view.line_codes[i] + " ";
    result += quoted(lines[i]);
    if (i < view.line_disabled.size() && view.line_disabled[i]) result += " [disabled]";
    if (i < view.line_ticked.size() && view.line_ticked[i]) result += " [ticked]";
  }
  if (shorten) result += " (" + std::to_string(lines.size()) + " lines)";
  return result;
}

std::string describe(const ControlView& view) {
  std::string line = view.name + " " + std::string(name_of(view.kind));
  if (!view.caption.empty()) line.append(" ").append(quoted(view.caption));
  if (!view.drawing.empty()) {
    line.append(" of ").append(view.drawing.front());
  } else if (shows_value(view.kind)) {
    line.append(" = ").append(quoted(view.text));
  }
  if (!view.unit.empty()) line.append(" unit ").append(quoted(view.unit));
  if (view.kind != Kind::kTree && !view.lines.empty()) line += " of " + describe_lines(view);
  if (const std::string flags = flags_of(view); !flags.empty()) line += " [" + flags + "]";
  if (view.kind == Kind::kTree) line += tree_rows(view);
  return line + drawn_shapes(view);
}

std::vector<std::string> menu_lines(const Screen& screen) {
  std::vector<std::string> lines;
  add_menu_lines(lines, screen.menu(), {}, screen.language());
  return lines;
}

std::string dump(const Screen& screen) {
  std::string result = "screen " + screen.class_name() + " " + quoted(screen.title()) + "\n";
  for (const std::string& line : menu_lines(screen)) result += "  " + line + "\n";
  for (const ControlView& view : views_of(screen)) result += "  " + describe(view) + "\n";
  return result;
}

std::string quoted(std::string_view text) {
  static constexpr std::string_view kWideSpace = "\u3000";
  std::string result = "\"";
  while (!text.empty()) {
    const std::size_t size = well_formed(text);
    if (size == 0) {
      append_byte(result, text.front());
    } else if (size == 1) {
      append_escaped(result, text.front());
    } else if (text.starts_with(kWideSpace)) {
      result += "\\u3000";
    } else {
      result += text.substr(0, size);
    }
    text.remove_prefix(std::max<std::size_t>(size, 1));
  }
  return result + "\"";
}

bool is_utf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t size = well_formed(text);
    if (size == 0) return false;
    text.remove_prefix(size);
  }
  return true;
}

std::string without_access_key(std::string_view caption) {
  std::string result;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    // The key behind a Japanese text stands in brackets of its own: "(&Y)".
    if (caption.substr(i).starts_with("(&") && i + 3 < caption.size() && caption[i + 3] == ')' &&
        caption[i + 2] != '&') {
      i += 3;
      continue;
    }
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    result += caption[i];
  }
  return result;
}

char access_key(std::string_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    // Both characters are taken: "&&" is a sign that is shown, and no beginning of a key.
    const char key = upper(caption[++i]);
    if (is_upper_or_digit(key)) return key;
  }
  return 0;
}

}  // namespace ui
