#include "headless/screen_watch.h"

#include <algorithm>

namespace headless {
namespace {

std::string arrow(const std::string& from, const std::string& to) {
  return ui::quoted(from) + " -> " + ui::quoted(to);
}

// They show nothing else, so a change of it is told once, as their text.
bool caption_is_value(ui::Kind kind) {
  return kind == ui::Kind::kLabel || kind == ui::Kind::kButton;
}

void add_flag_changes(const ui::ControlView& was, const ui::ControlView& is,
                      std::vector<std::string>& out) {
  if (was.visible != is.visible) out.push_back(is.name + (is.visible ? ": shown" : ": hidden"));
  const std::string why = is.why.empty() ? "" : " " + ui::quoted(is.why);
  if (was.enabled != is.enabled)
    out.push_back(is.name + (is.enabled ? ": enabled" : ": disabled" + why));
  if (was.locked != is.locked)
    out.push_back(is.name + (is.locked ? ": locked" + why : ": unlocked"));
}

// A few lines by their text; many as a number.
void add_tick_changes(const ui::ControlView& was, const ui::ControlView& is,
                      std::vector<std::string>& out) {
  if (was.line_ticked == is.line_ticked) return;
  constexpr std::size_t kFew = 3;
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < is.line_ticked.size(); ++i) {
    if (i < was.line_ticked.size() && was.line_ticked[i] == is.line_ticked[i]) continue;
    std::string line = is.name;
    line.append(": ").append(ui::quoted(is.lines[i]));
    lines.push_back(line.append(is.line_ticked[i] ? " ticked" : " no longer ticked"));
  }
  if (lines.size() <= kFew) {
    out.insert(out.end(), lines.begin(), lines.end());
    return;
  }
  const auto ticked = std::count(is.line_ticked.begin(), is.line_ticked.end(), true);
  out.push_back(is.name + ": " + std::to_string(ticked) + " of " +
                std::to_string(is.line_ticked.size()) + " lines ticked");
}

void add_changes(const ui::ControlView& was, const ui::ControlView& is, bool new_language,
                 std::vector<std::string>& out) {
  if (!(new_language && caption_is_value(is.kind)) && was.text != is.text && !is.repeats)
    out.push_back(is.name + ": " + arrow(was.text, is.text));
  if (!new_language) {
    if (!caption_is_value(is.kind) && was.caption != is.caption)
      out.push_back(is.name + " caption: " + arrow(was.caption, is.caption));
    if (was.unit != is.unit) out.push_back(is.name + " unit: " + arrow(was.unit, is.unit));
    if (was.drawing != is.drawing && is.repeats) {
      if (!is.follows_keys) out.push_back(is.name + ": drawn anew");
    } else if (was.drawing != is.drawing) {
      out.push_back(is.name + " drawing:");
      for (const std::string& line : is.drawing) out.push_back("  " + line);
    }
    if (was.lines == is.lines) add_tick_changes(was, is, out);
    const bool choice = is.kind == ui::Kind::kChoice;
    const bool lines_are_told = is.kind != ui::Kind::kList || !is.repeats;
    if ((lines_are_told && was.lines != is.lines) || was.line_disabled != is.line_disabled) {
      if (is.kind == ui::Kind::kTree) {
        out.push_back(is.name + " rows:");
        for (const std::string& line : is.lines) out.push_back("  " + line);
      } else {
        out.push_back(is.name + (choice ? " choices: " : " lines: ") + ui::describe_lines(is));
      }
    }
  }
  add_flag_changes(was, is, out);
}

}  // namespace

void ScreenWatch::look() {
  seen_ = {screen_.title(), screen_.language(), ui::menu_lines(screen_), screen_.focused(),
           ui::views_of(screen_)};
}

void ScreenWatch::expect_text(const ui::Control& control, std::string_view text) {
  for (ui::ControlView& view : seen_.views) {
    if (view.name == control.name) view.text = text;
  }
}

void ScreenWatch::expect_tick(const ui::Control& list, int line, bool on) {
  const auto at = static_cast<std::size_t>(line);
  for (ui::ControlView& view : seen_.views) {
    if (view.name == list.name && at < view.line_ticked.size()) view.line_ticked[at] = on;
  }
}

void ScreenWatch::expect_focus(const ui::Control* control) {
  seen_.focused = control;
}

std::vector<std::string> ScreenWatch::changes(bool with_focus) {
  const Seen was = seen_;
  look();
  if (!with_focus) seen_.focused = was.focused;
  std::vector<std::string> out;
  // Every text is another one then: one line says so for all of them.
  const bool new_language = was.language != seen_.language;
  if (was.title != seen_.title) out.push_back("title: " + arrow(was.title, seen_.title));
  if (new_language) {
    out.emplace_back(seen_.language == text::Language::kJapanese ? "language: Japanese"
                                                                 : "language: English");
  } else {
    for (const std::string& line : seen_.menu) {
      if (std::find(was.menu.begin(), was.menu.end(), line) == was.menu.end()) out.push_back(line);
    }
  }
  for (std::size_t i = 0; i < seen_.views.size() && i < was.views.size(); ++i)
    add_changes(was.views[i], seen_.views[i], new_language, out);
  if (was.focused != seen_.focused && seen_.focused != nullptr)
    out.push_back("focus: " + seen_.focused->name);
  return out;
}

}  // namespace headless
