#include "ui/screen.h"

#include <algorithm>
#include <utility>

#include "text/ids.h"
#include "text/numbers.h"
#include "text/reasons.h"
#include "text/strings.h"
#include "ui/line_keys.h"

namespace ui {
namespace {

// What stands between whole figures and decimals, as keyboards and input methods give it.
constexpr std::string_view kPoints[] = {".", ",", "．", "，", "。", "、", "｡", "､"};

struct Found {
  std::size_t at = std::string_view::npos;
  std::size_t size = 0;  ///< bytes of the point itself
};

Found first_point(std::string_view text) {
  Found first;
  for (const std::string_view point : kPoints) {
    if (const auto at = text.find(point); at < first.at) first = {at, point.size()};
  }
  return first;
}

bool is_too_long(std::string_view text, const Control& field) {
  return field.max_length > 0 && text::length(text) > static_cast<std::size_t>(field.max_length);
}

bool is_typed_into(const Control& control) {
  return control.kind == Kind::kEdit || control.kind == Kind::kCombo;
}

// A text that is only read has nothing locked in it.
bool is_locked(const Control& control) {
  return is_typed_into(control) && control.read_only && !control.on_arrow;
}

// Its arrows lead from one thing to the next.
bool is_gone_through(const Control& control) {
  return control.on_arrow && control.read_only;
}

bool same_keys(std::string_view a, std::string_view b) {
  const auto small = [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char one, char other) { return small(one) == small(other); });
}

}  // namespace

// One event at a time: a message shown by a handler makes a windowing system send focus events of
// its own.
class Screen::Handling {
 public:
  explicit Handling(Screen& screen)
      // A screen that has closed handles nothing more.
      : screen_(screen), first_(!screen.handling_ && !screen.result_) {
    if (!first_) return;
    screen_.handling_ = true;
    looked_for_.swap(screen_.looked_for_);
    std::swap(moved_on_, screen_.moved_on_);
  }
  ~Handling() {
    if (first_) screen_.handling_ = false;
  }
  Handling(const Handling&) = delete;
  Handling& operator=(const Handling&) = delete;
  explicit operator bool() const { return first_; }
  /// What had been typed before this event to find a line.
  [[nodiscard]] const std::string& looked_for() const { return looked_for_; }
  /// The focus moved on by itself with the event before.
  [[nodiscard]] bool moved_on() const { return moved_on_; }

 private:
  Screen& screen_;
  bool first_;
  std::string looked_for_;
  bool moved_on_ = false;
};

Screen::Screen(Services& services, std::string_view class_name, text::Ref title)
    : services_(services), class_name_(class_name), title_(title) {}

std::string Screen::title() const {
  return std::string(services_.texts.get(title_));
}

Control* Screen::find(std::string_view name) const {
  const auto at = std::find_if(controls_.begin(), controls_.end(),
                               [&](const Control* c) { return c->name == name; });
  return at == controls_.end() ? nullptr : *at;
}

Control* Screen::pressed_by(std::string_view keys) const {
  const bool character = text::length(keys) == 1;
  const bool is_typed = focused_ != nullptr && !focused_->read_only && is_typed_into(*focused_);
  if (keys.empty() || (character && is_typed)) return nullptr;
  const auto at = std::find_if(controls_.begin(), controls_.end(), [&](const Control* c) {
    return c->enabled && c->visible && same_keys(c->shortcut, keys);
  });
  return at == controls_.end() ? nullptr : *at;
}

std::string Screen::caption(const Control& control) const {
  if (!control.literal_caption.empty()) return control.literal_caption;
  return std::string(services_.texts.get(control.caption));
}

std::string Screen::english_caption(const Control& control) const {
  if (!control.literal_caption.empty()) return control.literal_caption;
  return std::string(text::resolve(control.caption, text::Language::kEnglish));
}

std::string Screen::unit(const Control& control) const {
  return std::string(services_.texts.get(control.unit));
}

void Screen::open() {
  const Handling handling(*this);
  if (!handling || opened_) return;
  opened_ = true;
  // The lines first: on_open() chooses among them.
  relabel();
  on_open();
  if (!result_ && focused_ == nullptr) {
    if (Control* const first = neighbour(nullptr, true)) focus(*first);
  }
}

void Screen::type(Control& control, std::string_view text) {
  const Handling handling(*this);
  if (handling) type_inside(control, text);
}

void Screen::type_by_key(Control& control, std::string_view text) {
  const Handling handling(*this);
  if (!handling) return;
  const Control* const typed_into = type_inside(control, text);
  if (typed_into == nullptr || typed_into != focused_ || result_) return;
  if (!services_.moves_on || !is_full(*typed_into)) return;
  // Enter behind the last figure means OK, and no other button that Tab would come to.
  const Control* const next = neighbour(focused_, true);
  if (next == nullptr || (next->kind == Kind::kButton && next->role != Role::kAccept)) return;
  const unsigned told = services_.messages.told();
  tab(Key::kTab);
  // Who has answered a message on the way has seen where the focus is.
  moved_on_ = focused_ != typed_into && services_.messages.told() == told;
}

bool Screen::is_full(const Control& control) const {
  if (!control.moves_on_when_full || control.max_length == 0) return false;
  const auto characters =
      text::length(control.narrow ? text::narrow(control.content) : control.content);
  return characters >= static_cast<std::size_t>(control.max_length);
}

// The control whose text ends with what was typed; none where nothing was.
Control* Screen::type_inside(Control& control, std::string_view text) {
  if (!control.can_focus() || control.read_only) return nullptr;
  if (!is_typed_into(control)) return nullptr;
  if (Control* const last = type_across_point(control, text)) return last;
  // As a field of that length takes it. With a point in it the text belongs to two fields, and what
  // does not fit into them stays whole for the person to see.
  const bool split = control.continues_in != nullptr && first_point(text).size > 0;
  if (control.max_length > 0 && !split)
    text = text::first(text, static_cast<std::size_t>(control.max_length));
  put_typed(control, text);
  return &control;
}

void Screen::put_typed(Control& control, std::string_view text) {
  const Speaking of(*this, control);
  control.unchecked = true;
  control.set(text);
  if (control.on_change) control.on_change();
}

// "1009.3" in the field of the whole figures: 1009 there, 3 in that of the tenths, which is given
// back. None, with nothing done, when there is no point, nowhere to go on, or no room for it all.
Control* Screen::type_across_point(Control& control, std::string_view text) {
  Control* const next = control.continues_in;
  if (next == nullptr || !next->can_focus() || next->read_only) return nullptr;
  const auto [at, size] = first_point(text);
  if (at == std::string_view::npos) return nullptr;
  const std::string_view whole = text::trim(text.substr(0, at));
  const std::string_view decimals = text::trim(text.substr(at + size));
  if (is_too_long(whole, control) || is_too_long(decimals, *next) ||
      first_point(decimals).at != std::string_view::npos)
    return nullptr;
  put_typed(control, whole);
  const bool has_decimals = !decimals.empty();
  if (has_decimals) put_typed(*next, decimals);
  if (focused_ != &control) focus(control);
  move_focus_inside(*next);
  // Behind a point alone there stands what was there before, and nobody has typed it.
  return has_decimals ? next : &control;
}

void Screen::choose(Control& control, int index) {
  const Handling handling(*this);
  if (handling) choose_inside(control, index);
}

void Screen::choose_inside(Control& control, int index) {
  if (!control.enabled || !control.visible || control.read_only) return;
  const std::size_t lines =
      control.kind == Kind::kTree ? control.rows.size() : control.items.size();
  const bool valid = index >= 0 && static_cast<std::size_t>(index) < lines;
  if (valid && static_cast<std::size_t>(index) < control.item_disabled.size() &&
      control.item_disabled[static_cast<std::size_t>(index)]) {
    return;
  }
  const Speaking of(*this, control);
  control.unchecked = true;
  control.selected = valid ? index : -1;
  if (valid && (control.kind == Kind::kCombo || control.kind == Kind::kDropDown)) {
    control.content = control.items[static_cast<std::size_t>(index)];
  }
  if (control.on_change) control.on_change();
}

void Screen::tick(Control& control, bool on) {
  const Handling handling(*this);
  if (!handling || !control.enabled || !control.visible || control.checked == on) return;
  const Speaking of(*this, control);
  control.checked = on;
  if (control.on_change) control.on_change();
}

void Screen::tick_line(Control& list, int line, bool on) {
  const Handling handling(*this);
  if (handling) tick_line_inside(list, line, on);
}

void Screen::tick_line_inside(Control& list, int line, bool on) {
  if (!list.enabled || !list.visible || list.read_only) return;
  const auto at = static_cast<std::size_t>(line);
  if (line < 0 || at >= list.item_ticked.size() || list.item_ticked[at] == on) return;
  list.item_ticked[at] = on;
  if (list.on_change) list.on_change();
}

void Screen::press(Control& control) {
  const Handling handling(*this);
  if (!handling || !control.enabled || !control.visible) return;
  if (control.can_focus()) {
    if (!move_focus_inside(control)) return;
  } else if (!control.only_shows && !leave_focused(control)) {
    return;
  }
  press_inside(control);
}

void Screen::press_at(Control& picture, Point place) {
  const Handling handling(*this);
  if (!handling || !picture.enabled || !picture.visible || picture.kind != Kind::kPicture) return;
  static const Drawing kFile;  // has the coordinates of a file's picture
  if (!is_inside(picture.drawing == nullptr ? kFile : *picture.drawing, place)) return;
  if (!leave_focused(picture)) return;
  if (picture.on_point) {
    picture.on_point(place);
  } else {
    press_inside(picture);
  }
}

void Screen::press_inside(Control& button) {
  if (button.role == Role::kAccept && !check_skipped_fields()) return;
  if (button.on_press) {
    button.on_press();
    return;
  }
  switch (button.role) {
    case Role::kAccept:
      on_ok();
      break;
    case Role::kDismiss:
      on_cancel();
      break;
    case Role::kHelp:
      on_help();
      break;
    case Role::kNone:
      break;
  }
}

bool Screen::move_focus(Control& to) {
  const Handling handling(*this);
  return handling && move_focus_inside(to);
}

bool Screen::move_focus_inside(Control& to) {
  if (!to.can_focus()) return false;
  if (&to == focused_) return true;
  Control* const before = focused_;
  if (!leave_focused(to)) return false;
  // The check may have moved the focus itself (to the field after the one that a dialog filled,
  // say), or closed the screen, or switched off the control that was to have it.
  if (focused_ != before || result_ || !to.can_focus()) return false;
  enter(to);
  return true;
}

void Screen::enter(Control& control) {
  if (control.on_enter) control.on_enter();
  focused_ = &control;
  selection_length_ = is_gone_through(control) ? 0 : selection_on_focus_;
  ++focus_serial_;
  on_focused();
}

void Screen::tab(Key key) {
  on_tab(key);
  const bool forward = key == Key::kTab;
  Control* const before = focused_;
  const Control* const next = neighbour(before, forward);
  if (next == nullptr || next == before || !leave_focused(*next)) return;
  if (focused_ != before || result_) return;
  // Looked for anew: what was taken just now may ask something of a field, or nothing more.
  Control* const now = neighbour(before, forward);
  if (now != nullptr && now != before) enter(*now);
}

bool Screen::leave_focused(const Control& to) {
  Control* const from = focused_;
  if (from == nullptr || from == &to) return true;
  if (to.role == Role::kDismiss || to.role == Role::kHelp || check_can_wait(*from, to)) {
    from->unchecked = true;
    return true;
  }
  if (check(*from)) return true;
  // Anew, for the front end's own focus may have moved already.
  if (focused_ == from) focus(*from);
  return false;
}

// What a field goes through when it is left.
bool Screen::check(Control& field) {
  const Speaking of(*this, field);
  const bool typed = is_typed_into(field) && !field.read_only;
  if (typed && field.enabled && field.unchecked && is_too_long(field.content, field)) {
    services_.messages.error_filled(text::id::kTextTooLong, {text::format_int(field.max_length)});
    return false;
  }
  // An input method gives full-width figures; every check behind this knows the others only.
  if (typed && field.narrow) {
    if (std::string narrowed = text::narrow(field.content); narrowed != field.content)
      field.set(narrowed);
  }
  if (!field.enabled) return true;
  if (field.on_leave && !field.on_leave()) return false;
  field.unchecked = false;
  return true;
}

// OK makes up for the checks of fields that were left by Help, or changed while another control had
// the focus. False when one was refused: it has the focus then.
bool Screen::check_skipped_fields() {
  for (Control* const field : controls_) {
    if (!field->unchecked || !field->can_focus()) continue;
    Control* const before = focused_;
    const bool passed = check(*field);
    if (!passed && focused_ == before) focus(*field);
    if (!passed || result_ || focused_ != before) return false;
  }
  return true;
}

void Screen::key(Key key) {
  const Handling handling(*this);
  if (!handling) return;
  switch (key) {
    case Key::kF1:
      on_f1(focused_);
      return;
    case Key::kTab:
      // There is no time limit: to press Tab once more is less than an element left out.
      if (!handling.moved_on()) tab(key);
      return;
    case Key::kShiftTab:
      tab(key);
      return;
    case Key::kUp:
    case Key::kDown:
    case Key::kLeft:
    case Key::kRight:
    case Key::kHome:
    case Key::kEnd:
    case Key::kPageUp:
    case Key::kPageDown:
      if (focused_ != nullptr && is_gone_through(*focused_)) {
        focused_->on_arrow(key);
        return;
      }
      if (focused_ != nullptr && focused_->on_page && focused_->kind == Kind::kMemo) {
        if (key == Key::kPageUp || key == Key::kPageDown) focused_->on_page(key == Key::kPageDown);
        return;
      }
      if (focused_ == nullptr || !goes_through_lines(focused_->kind, key)) return;
      if (const auto line = line_after(*focused_, key)) choose_inside(*focused_, *line);
      return;
    case Key::kSpace:
      if (focused_ != nullptr && focused_->selected >= 0 && ticks_lines(*focused_)) {
        const auto at = static_cast<std::size_t>(focused_->selected);
        tick_line_inside(*focused_, focused_->selected, !focused_->item_ticked[at]);
      }
      return;
    case Key::kEnter:
    case Key::kEscape:
      break;
  }
  if (on_enter_or_escape(key)) return;
  if (key == Key::kEscape) {
    on_cancel();
    return;
  }
  // Enter presses the button that has the focus, else OK; a field is left for that, so it is
  // checked first.
  Control* target = focused_;
  if (target == nullptr || target->kind != Kind::kButton) {
    const auto ok = std::find_if(controls_.begin(), controls_.end(), [](const Control* c) {
      return c->role == Role::kAccept && c->can_focus();
    });
    if (ok == controls_.end()) return;
    target = *ok;
    if (!move_focus_inside(*target)) return;
  }
  press_inside(*target);
}

void Screen::find_line(std::string_view character) {
  const Handling handling(*this);
  if (!handling || focused_ == nullptr || !finds_lines(focused_->kind)) return;
  std::string typed = handling.looked_for();
  const auto line = line_typed(*focused_, typed, character);
  if (line && *line != focused_->selected) choose_inside(*focused_, *line);
  looked_for_ = std::move(typed);
}

void Screen::command(const MenuItem& item) {
  const Handling handling(*this);
  if (!handling || !item.enabled || !item.on_command) return;
  // The command may change the menu that the item lives in.
  const auto run = item.on_command;
  run();
}

void Screen::expand(Control& tree, std::size_t row) {
  const Handling handling(*this);
  if (!handling || !tree.enabled || row >= tree.rows.size()) return;
  if (!tree.rows[row].can_expand || tree.rows[row].expanded) return;
  const auto before = tree.rows.size();
  tree.rows[row].expanded = true;
  if (tree.on_expand) tree.on_expand(row);
  // The chosen row has moved down with those that came in above it.
  if (tree.selected > static_cast<int>(row))
    tree.selected += static_cast<int>(tree.rows.size() - before);
}

void Screen::collapse(Control& tree, std::size_t row) {
  const Handling handling(*this);
  if (!handling || !tree.enabled || row >= tree.rows.size() || !tree.rows[row].expanded) return;
  const int depth = tree.rows[row].depth;
  std::size_t end = row + 1;
  while (end < tree.rows.size() && tree.rows[end].depth > depth) ++end;
  const auto begin = tree.rows.begin();
  tree.rows.erase(begin + static_cast<std::ptrdiff_t>(row) + 1,
                  begin + static_cast<std::ptrdiff_t>(end));
  tree.rows[row].expanded = false;
  if (tree.selected >= static_cast<int>(end)) {
    tree.selected -= static_cast<int>(end - row - 1);
  } else if (tree.selected > static_cast<int>(row)) {
    // The chosen row is gone from sight: the folder that holds it stands for it.
    tree.selected = static_cast<int>(row);
    if (tree.on_change) tree.on_change();
  }
}

bool Screen::reveal(Control& tree, std::string_view path) {
  const Handling handling(*this);
  if (!handling || !tree.enabled || !tree.visible) return false;
  const auto at = std::find_if(tree.rows.begin(), tree.rows.end(),
                               [&](const TreeRow& row) { return row.path == path; });
  if (at != tree.rows.end()) {
    tree.selected = static_cast<int>(at - tree.rows.begin());
  } else if (!tree.on_reveal || !tree.on_reveal(path)) {
    return false;
  }
  if (tree.on_change) tree.on_change();
  return true;
}

void Screen::close_box() {
  const Handling handling(*this);
  if (handling) on_cancel();
}

void Screen::idle() {
  if (!opened_ || result_) return;
  // A pause is no event: half a code may go on, and a Tab be late.
  const std::string looked_for = looked_for_;
  const bool moved_on = moved_on_;
  {
    const Handling handling(*this);
    on_idle(static_cast<bool>(handling));
  }
  looked_for_ = looked_for;
  moved_on_ = moved_on;
}

void Screen::event_failed(const std::exception_ptr& thrown) {
  const Handling handling(*this);
  services_.messages.error_filled(text::id::kEventFailed, {text::reason_of(thrown, language())});
}

void Screen::on_f1(Control* /*focused*/) {
  on_help();
}

void Screen::on_help() {
  const text::HelpTopic topic = text::dialog_topic(class_name_);
  if (!topic.base.empty()) services_.help.show(topic);
}

void Screen::close(int result) {
  result_ = result;
}

void Screen::focus(Control& control) {
  if (!control.can_focus()) return;
  // Left without its check, for which OK makes up.
  if (focused_ != nullptr && focused_ != &control) focused_->unchecked = true;
  focused_ = &control;
  selection_length_ = is_gone_through(control) ? 0 : -1;
  ++focus_serial_;
  on_focused();
}

bool Screen::refuse(Control& control, text::Id message, std::string_view argument) {
  const Speaking of(*this, control);
  if (argument.empty()) {
    services_.messages.error(message);
  } else {
    services_.messages.error_filled(message, {argument});
  }
  focus(control);
  return false;
}

Control* Screen::neighbour(const Control* from, bool forward) const {
  const std::size_t count = controls_.size();
  if (count == 0) return nullptr;
  std::size_t at = forward ? count - 1 : 0;
  if (from != nullptr) {
    at = static_cast<std::size_t>(std::find(controls_.begin(), controls_.end(), from) -
                                  controls_.begin());
  }
  Control* passed = nullptr;
  for (std::size_t i = 0; i < count; ++i) {
    at = forward ? (at + 1) % count : (at + count - 1) % count;
    Control* const next = controls_[at];
    // What repeats others is looked at, not gone through.
    if (!next->can_focus() || next->repeats) continue;
    if (!forward || next == from || !(next->passed_over || is_locked(*next))) return next;
    if (passed == nullptr) passed = next;
  }
  return passed;
}

void Screen::relabel() {
  for (Control* const control : controls_) {
    if (control->item_refs.empty()) continue;
    control->items.clear();
    for (const text::Ref ref : control->item_refs)
      control->items.emplace_back(services_.texts.get(ref));
  }
}

void Screen::set_menu(std::vector<MenuItem> items) {
  menu_ = std::move(items);
  ++menu_serial_;
}

}  // namespace ui
