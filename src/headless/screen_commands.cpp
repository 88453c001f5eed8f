#include "headless/screen_commands.h"

#include <algorithm>
#include <array>

#include "headless/line_choice.h"
#include "headless/script_windows.h"
#include "text/numbers.h"
#include "text/strings.h"
#include "ui/line_keys.h"
#include "ui/observation_view.h"

namespace headless {
namespace {

bool can_be_typed_into(ui::Kind kind) {
  return kind == ui::Kind::kEdit || kind == ui::Kind::kCombo;
}

bool has_lines(ui::Kind kind) {
  return kind == ui::Kind::kCombo || kind == ui::Kind::kDropDown || kind == ui::Kind::kList ||
         kind == ui::Kind::kChoice || kind == ui::Kind::kTree;
}

std::string a_kind(const ui::Control& control) {
  const std::string_view kind = ui::name_of(control.kind);
  return control.name + " is " + (kind == "edit" ? "an " : "a ") + std::string(kind);
}

std::string because(const ui::Control& control) {
  return control.why_locked.empty() ? std::string() : " (" + control.why_locked + ")";
}

}  // namespace

struct ScreenCommands::Row {
  std::string_view verb;
  void (ScreenCommands::*carry_out)();
};

const ScreenCommands::Row ScreenCommands::kRows[] = {
    {"start", &ScreenCommands::start},   {"show", &ScreenCommands::show},
    {"set", &ScreenCommands::set},       {"focus", &ScreenCommands::focus},
    {"choose", &ScreenCommands::choose}, {"tick", &ScreenCommands::tick},
    {"press", &ScreenCommands::press},   {"click", &ScreenCommands::click},
    {"menu", &ScreenCommands::menu},     {"key", &ScreenCommands::key},
    {"answer", &ScreenCommands::answer}, {"close", &ScreenCommands::close},
    {"expect", &ScreenCommands::expect}, {"expect-message", &ScreenCommands::expect_message},
    {"record", &ScreenCommands::record}, {"report", &ScreenCommands::report},
    {"type", &ScreenCommands::type},
};

void ScreenCommands::carry_out(const Line& line) {
  line_ = line;
  const auto* const row = std::find_if(std::begin(kRows), std::end(kRows),
                                       [&](const Row& r) { return r.verb == line_.verb(); });
  if (row == std::end(kRows)) cannot("no command " + ui::quoted(text::first(line_.verb(), 40)));
  try {
    (this->*row->carry_out)();
  } catch (const EndOfRun&) {
    throw;
  } catch (...) {
    // As in a window: the person is told, and goes on with what was entered.
    screen_.event_failed(std::current_exception());
  }
  if (!screen_.result()) windows_.say_changes(watch_, true);
}

void ScreenCommands::cannot(const std::string& reason) {
  windows_.stop(line_, Status::kCannot, reason);
}

NameAndText ScreenCommands::arguments() {
  const auto split = split_name(line_.rest());
  if (!split) cannot(std::string(line_.verb()) + " wants the name of a control");
  return *split;
}

ui::Control& ScreenCommands::control_named(const NameAndText& name) {
  if (name.is_label) return control_labelled(name.name);
  ui::Control* const control = screen_.find(name.name);
  if (control == nullptr)
    cannot("no control " + std::string(text::first(name.name, 60)) + " in " + screen_.class_name());
  return *control;
}

// A value's caption may stand in a label of its own beside it; the value is meant then.
ui::Control& ScreenCommands::control_labelled(const std::string& label) {
  std::vector<ui::Control*> found;
  for (ui::Control* const control : screen_.controls()) {
    const std::string caption = screen_.english_caption(*control);
    if (!caption.empty() && (caption == label || ui::without_access_key(caption) == label))
      found.push_back(control);
  }
  if (found.size() > 1)
    std::erase_if(found, [](const ui::Control* c) { return c->kind == ui::Kind::kLabel; });
  if (found.empty())
    cannot("no control labelled " + ui::quoted(label) + " in " + screen_.class_name());
  if (found.size() > 1) {
    std::string names;
    for (const ui::Control* const control : found) names += " " + control->name;
    cannot(ui::quoted(label) + " is the label of several controls:" + names);
  }
  return *found.front();
}

ui::Control& ScreenCommands::usable(const NameAndText& name) {
  ui::Control& control = control_named(name);
  if (!control.visible) cannot(control.name + " is hidden");
  if (!control.enabled) cannot(control.name + " is disabled" + because(control));
  return control;
}

bool ScreenCommands::take_focus(ui::Control& control) {
  // What the person does himself is no change that he has to be told.
  watch_.expect_focus(&control);
  return screen_.move_focus(control) && screen_.focused() == &control && !screen_.result();
}

void ScreenCommands::start() {
  cannot("the program is already running");
}

void ScreenCommands::show() {
  const std::string_view rest = text::trim(line_.rest());
  if (!rest.empty()) {
    windows_.say(ui::describe(ui::view_of(screen_, control_named(arguments()))));
    return;
  }
  std::string dump = ui::dump(screen_);
  for (std::size_t at = 0; at < dump.size();) {
    const auto end = dump.find('\n', at);
    windows_.say(std::string_view(dump).substr(at, end - at));
    at = end + 1;
  }
}

void ScreenCommands::set() {
  const NameAndText args = arguments();
  ui::Control& control = usable(args);
  if (!can_be_typed_into(control.kind)) cannot(a_kind(control) + ": nothing can be typed into it");
  if (control.read_only) cannot(control.name + " is locked" + because(control));
  if (!take_focus(control)) {
    if (!screen_.result()) windows_.say("  nothing typed: the focus was not given");
    return;
  }
  const std::string typed = plain_text(args.text);
  watch_.expect_text(control, typed);
  screen_.type(control, typed);
}

// Where the next character goes in the field that has the focus.
struct ScreenCommands::Caret {
  unsigned focus_serial = 0;  ///< the focus was set so: with another one the text is selected anew
  std::size_t at = 0;         ///< characters before it
};

// Key by key as a person types: each character goes to whatever has the focus then.
void ScreenCommands::type() {
  const NameAndText args = arguments();
  ui::Control& control = usable(args);
  if (!can_be_typed_into(control.kind) && !ui::finds_lines(control.kind))
    cannot(a_kind(control) + ": nothing can be typed into it");
  if (control.read_only) cannot(control.name + " is locked" + because(control));
  if (!take_focus(control)) {
    if (!screen_.result()) windows_.say("  nothing typed: the focus was not given");
    return;
  }
  const std::string typed = plain_text(args.text);
  Caret caret{screen_.focus_serial() - 1};
  for (std::string_view rest = typed; !rest.empty() && !screen_.result();) {
    const std::string_view character = text::first(rest, 1);
    rest.remove_prefix(character.size());
    const ui::Control* const before = screen_.focused();
    type_character(character, caret);
    // Refused: the message has been answered, and the text is selected for another one.
    if (rest.empty() || screen_.focused() != before || caret.focus_serial == screen_.focus_serial())
      continue;
    windows_.say("  not typed: " + ui::quoted(rest));
    return;
  }
}

void ScreenCommands::type_character(std::string_view character, Caret& caret) {
  ui::Control* const control = screen_.focused();
  if (ui::Control* const pressed = screen_.pressed_by(character)) {
    screen_.press(*pressed);
    return;
  }
  if (control == nullptr || control->read_only) return;
  if (!can_be_typed_into(control->kind)) {
    screen_.find_line(character);
    watch_.expect_text(*control, ui::shown_text(screen_, *control));
    return;
  }
  const std::string& held = control->content;
  // The selection begins with the text, and what is typed takes its place.
  std::size_t selected = 0;
  if (caret.focus_serial != screen_.focus_serial()) {
    const auto length = text::length(held);
    selected = screen_.selection_length() < 0
                   ? length
                   : std::min(length, static_cast<std::size_t>(screen_.selection_length()));
    caret = {screen_.focus_serial(), 0};
  }
  const std::string_view before = text::first(held, caret.at);
  const std::string_view behind =
      std::string_view(held).substr(text::first(held, caret.at + selected).size());
  std::string wanted(before);
  wanted.append(character).append(behind);
  ++caret.at;
  watch_.expect_text(*control, wanted);
  if (behind.empty()) {
    screen_.type_by_key(*control, wanted);
  } else {
    screen_.type(*control, wanted);
  }
}

void ScreenCommands::focus() {
  ui::Control& control = usable(arguments());
  if (!control.can_focus()) cannot(a_kind(control) + ": it takes no focus");
  take_focus(control);
}

void ScreenCommands::choose() {
  const NameAndText args = arguments();
  ui::Control& control = usable(args);
  if (!has_lines(control.kind)) cannot(a_kind(control) + ": there is nothing to choose");
  if (control.read_only) cannot(control.name + " is locked" + because(control));
  if (control.kind == ui::Kind::kTree) {
    choose_in_tree(control, plain_text(text::trim(args.text)));
    return;
  }
  const std::optional<int> index = line_meant(control, args.text);
  if (!index)
    cannot(control.name + " has no line " + ui::quoted(text::first(plain_text(args.text), 60)));
  const auto at = static_cast<std::size_t>(*index);
  if (at < control.item_disabled.size() && control.item_disabled[at])
    cannot("line " + ui::quoted(control.items[at]) + " of " + control.name + " is disabled");
  const std::string wanted = control.items[at];
  if (!take_focus(control)) {
    if (!screen_.result()) windows_.say("  nothing chosen: the focus was not given");
    return;
  }
  // Entering the field may have filled it anew.
  if (at >= control.items.size() || control.items[at] != wanted)
    cannot(control.name + " has other lines now");
  watch_.expect_text(control, wanted);
  screen_.choose(control, *index);
}

void ScreenCommands::choose_in_tree(ui::Control& tree, const std::string& wanted) {
  if (!take_focus(tree)) return;
  const std::optional<int> row = row_meant(tree, wanted);
  if (row) {
    watch_.expect_text(tree, tree.rows[static_cast<std::size_t>(*row)].path);
    screen_.choose(tree, *row);
  } else if (screen_.reveal(tree, wanted)) {
    // A person opens the folders on the way to what is named.
    watch_.expect_text(tree, tree.selected_text());
  } else {
    cannot(tree.name + " has no row " + ui::quoted(text::first(wanted, 60)));
  }
}

void ScreenCommands::tick() {
  const NameAndText args = arguments();
  ui::Control& control = usable(args);
  if (ui::ticks_lines(control)) return tick_line(control, args.text);
  if (control.kind != ui::Kind::kTick) cannot(a_kind(control) + ", not a tick box");
  if (control.read_only) cannot(control.name + " is locked" + because(control));
  const std::string_view wanted = text::trim(args.text);
  if (wanted != "on" && wanted != "off") cannot("tick NAME on, or tick NAME off");
  if (!take_focus(control)) {
    if (!screen_.result()) windows_.say("  nothing ticked: the focus was not given");
    return;
  }
  watch_.expect_text(control, wanted);
  screen_.tick(control, wanted == "on");
}

// "tick NAME LINE on": the line as `choose` takes it, then the state.
void ScreenCommands::tick_line(ui::Control& list, std::string_view line_and_state) {
  const std::string_view words = text::trim(line_and_state);
  const auto cut = words.rfind(' ');
  const std::string_view wanted = cut == std::string_view::npos ? words : words.substr(cut + 1);
  if (cut == std::string_view::npos || (wanted != "on" && wanted != "off"))
    cannot("tick NAME LINE on, or tick NAME LINE off");
  const std::string_view written = text::trim(words.substr(0, cut));
  const std::optional<int> line = line_meant(list, written);
  if (!line) cannot(list.name + " has no line " + ui::quoted(text::first(plain_text(written), 60)));
  if (!take_focus(list)) {
    if (!screen_.result()) windows_.say("  nothing ticked: the focus was not given");
    return;
  }
  watch_.expect_tick(list, *line, wanted == "on");
  screen_.tick_line(list, *line, wanted == "on");
}

void ScreenCommands::press() {
  ui::Control& control = usable(arguments());
  const bool lines = control.kind == ui::Kind::kList || control.kind == ui::Kind::kTree;
  if (control.kind != ui::Kind::kButton && !control.on_press && control.kind != ui::Kind::kTree)
    cannot(a_kind(control) + " that cannot be pressed");
  if (lines && control.selected < 0) cannot("no line of " + control.name + " is chosen");
  if (control.can_focus()) watch_.expect_focus(&control);
  if (control.kind == ui::Kind::kTree && !control.on_press) {
    const auto row = static_cast<std::size_t>(control.selected);
    if (control.rows[row].expanded) {
      screen_.collapse(control, row);
    } else {
      screen_.expand(control, row);
    }
    return;
  }
  screen_.press(control);
}

// "click NAME" is a press; a picture may be clicked at a place of its coordinates.
void ScreenCommands::click() {
  const NameAndText args = arguments();
  ui::Control& control = usable(args);
  const std::string_view place = text::trim(args.text);
  if (control.kind != ui::Kind::kPicture || (place.empty() && !control.on_point)) return press();
  if (!control.on_point) cannot(a_kind(control) + " that has no places");
  const auto cut = place.find(' ');
  const auto across = text::strict_number(place.substr(0, cut));
  const auto up = cut == std::string_view::npos
                      ? std::nullopt
                      : text::strict_number(text::trim(place.substr(cut)));
  if (!across || !up) cannot(control.name + " wants a place: click " + control.name + " ACROSS UP");
  const ui::Drawing file;
  if (!ui::is_inside(control.drawing == nullptr ? file : *control.drawing, {*across, *up}))
    cannot(control.name + " has no place " + std::string(text::first(place, 40)));
  screen_.press_at(control, {*across, *up});
}

void ScreenCommands::menu() {
  const std::string path = plain_text(text::trim(line_.rest()));
  const ui::MenuItem* const item = item_meant(screen_.menu(), path);
  if (item == nullptr) cannot("no menu command " + ui::quoted(text::first(path, 60)));
  if (!item->children.empty()) cannot(ui::quoted(path) + " is a menu, not a command");
  if (!item->enabled) cannot("the menu command " + ui::quoted(path) + " is greyed");
  screen_.command(*item);
}

void ScreenCommands::key() {
  struct Named {
    std::string_view name;
    ui::Key key;
  };
  static constexpr std::array<Named, 14> kKeys = {{{"F1", ui::Key::kF1},
                                                   {"Enter", ui::Key::kEnter},
                                                   {"Escape", ui::Key::kEscape},
                                                   {"Tab", ui::Key::kTab},
                                                   {"Shift+Tab", ui::Key::kShiftTab},
                                                   {"Up", ui::Key::kUp},
                                                   {"Down", ui::Key::kDown},
                                                   {"Left", ui::Key::kLeft},
                                                   {"Right", ui::Key::kRight},
                                                   {"Home", ui::Key::kHome},
                                                   {"End", ui::Key::kEnd},
                                                   {"PageUp", ui::Key::kPageUp},
                                                   {"PageDown", ui::Key::kPageDown},
                                                   {"Space", ui::Key::kSpace}}};
  const std::string_view wanted = text::trim(line_.rest());
  for (const Named& named : kKeys) {
    if (!same_word(named.name, wanted)) continue;
    screen_.key(named.key);
    return;
  }
  if (const ui::MenuItem* const item = item_with_shortcut(screen_.menu(), wanted)) {
    screen_.command(*item);
  } else if (ui::Control* const control = screen_.pressed_by(wanted)) {
    if (control->can_focus()) watch_.expect_focus(control);
    screen_.press(*control);
  } else if (text::length(wanted) == 1) {
    screen_.find_line(wanted);
  } else {
    cannot("no key " + ui::quoted(text::first(wanted, 40)) +
           "; F1, Enter, Escape, Tab, Shift+Tab, an arrow, Home, End, PageUp, PageDown, Space, one "
           "character or the keys of a menu command or a control");
  }
}

void ScreenCommands::close() {
  screen_.close_box();
}

void ScreenCommands::answer() {
  cannot("there is no question to answer");
}

void ScreenCommands::expect() {
  const NameAndText args = arguments();
  // Also of a locked or disabled control: it is seen, if not used.
  const ui::Control& control = control_named(args);
  if (!control.visible) cannot(control.name + " is hidden");
  const std::string wanted = plain_text(args.text);
  const std::string shown = ui::shown_text(screen_, control);
  if (shown != wanted) {
    windows_.stop(
        line_, Status::kExpectFailed,
        control.name + " shows " + ui::quoted(shown) + ", expected " + ui::quoted(wanted));
  }
}

void ScreenCommands::expect_message() {
  windows_.stop(
      line_, Status::kExpectFailed,
      "expected a message with " + ui::quoted(plain_text(line_.rest())) + ", there is none");
}

void ScreenCommands::record() {
  // The dialogs above the window that holds the observation hold none.
  for (auto at = windows_.screens().rbegin(); at != windows_.screens().rend(); ++at) {
    const auto* const view = dynamic_cast<const ui::ObservationView*>(*at);
    if (view == nullptr) continue;
    for (const auto& [name, value] : view->record_fields())
      windows_.say("  " + name + " = " + ui::quoted(value));
    return;
  }
  cannot("no window that holds an observation is open");
}

void ScreenCommands::report() {
  for (auto at = windows_.screens().rbegin(); at != windows_.screens().rend(); ++at) {
    const auto* const view = dynamic_cast<const ui::ObservationView*>(*at);
    if (view == nullptr) continue;
    windows_.say("report " + ui::quoted(view->report()));
    return;
  }
  cannot("no window that holds an observation is open");
}

}  // namespace headless
