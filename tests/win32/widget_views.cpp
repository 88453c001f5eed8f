#include "widget_views.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "text/strings.h"
#include "win32/utf.h"

namespace tests {
namespace {

// The caption in what a screen reader says, which is the group's and the unit as well; all of it where
// the caption is not in it.
std::string spoken_caption(const win32::Widget& widget, const std::string& caption) {
  const std::string& spoken = widget.spoken_name();
  const std::string line = text::replace_all(caption, "\n", " ");
  return spoken.find(text::trim(line)) == std::string::npos ? spoken : caption;
}

std::string caption_on(const win32::Widget& widget, const std::string& caption) {
  switch (widget.control().kind) {
    case ui::Kind::kButton:
    case ui::Kind::kTick:
    case ui::Kind::kLabel:
      return widget.shown().content;
    default:
      break;
  }
  // A layout may leave a caption out where a group's title says it; screen readers still say it.
  return widget.caption_label == nullptr
             ? spoken_caption(widget, caption)
             : win32::with_plain_ends(win32::text_on(widget.caption_label));
}

std::string text_on(const win32::Widget& widget, const ui::ControlView& view) {
  const auto shown = widget.shown();
  switch (widget.control().kind) {
    case ui::Kind::kLabel:
    case ui::Kind::kButton:
      return view.caption;
    case ui::Kind::kTick:
      return shown.checked ? "on" : "off";
    case ui::Kind::kDropDown:
    case ui::Kind::kList:
    case ui::Kind::kChoice:
      return shown.selected < 0 ? std::string()
                                : shown.items[static_cast<std::size_t>(shown.selected)];
    case ui::Kind::kTree:
      return shown.selected < 0
                 ? std::string()
                 : widget.control().rows[static_cast<std::size_t>(shown.selected)].path;
    default:
      return shown.content;
  }
}

bool is_locked(const win32::Widget& widget) {
  const ui::Kind kind = widget.control().kind;
  if (kind != ui::Kind::kEdit && kind != ui::Kind::kCombo) return false;
  return (GetWindowLongPtrW(widget.focus_window(), GWL_STYLE) & ES_READONLY) != 0;
}

}  // namespace

std::vector<ui::ControlView> widget_views(const win32::ScreenWindow& window) {
  std::vector<ui::ControlView> views;
  for (const auto& widget : window.widgets()) {
    const ui::Control& control = widget->control();
    const auto shown = widget->shown();
    ui::ControlView view;
    view.name = control.name;
    view.kind = control.kind;
    const std::string caption = ui::without_access_key(window.shown_screen().caption(control));
    const std::string wanted = text::replace_all(caption, "\r\n", "\n");
    // The window may have given it a letter; a label has none and shows its text as it is.
    const std::string read = caption_on(*widget, wanted);
    view.caption = ui::without_access_key(read);
    if (widget->unit_label != nullptr)
      view.unit = win32::narrow(win32::text_on(widget->unit_label));
    view.text = text_on(*widget, view);
    if (shown.drawing != nullptr) view.drawing = ui::describe(*shown.drawing);
    view.lines = shown.items;
    view.line_codes = shown.codes;
    view.line_ticked = shown.ticked;
    const HWND stands_for = widget->window();
    view.enabled = stands_for == nullptr || IsWindowEnabled(stands_for) != FALSE;
    if (control.kind == ui::Kind::kChoice) {
      const auto& off = shown.disabled;
      const auto count = std::count(off.begin(), off.end(), true);
      view.enabled = off.empty() || count < static_cast<std::ptrdiff_t>(off.size());
      if (view.enabled && count > 0) view.line_disabled = off;
    }
    view.visible = stands_for == nullptr || win32::is_shown(stands_for);
    view.locked = is_locked(*widget);
    const std::string& tip = widget->tip();
    if (!tip.empty() && widget->spoken_state().ends_with(tip)) view.why = tip;
    if (tip.find(control.shortcut) != std::string::npos) view.shortcut = control.shortcut;
    view.focused = widget->owns(GetFocus());
    views.push_back(std::move(view));
  }
  return views;
}

std::vector<ui::ControlView> control_views(const ui::Screen& screen) {
  std::vector<ui::ControlView> views = ui::views_of(screen);
  for (std::size_t i = 0; i < views.size(); ++i) {
    ui::ControlView& view = views[i];
    const ui::Control& control = *screen.controls()[i];
    view.max_length = 0;
    view.repeats = false;  // no widget shows it
    view.follows_keys = false;
    view.caption = ui::without_access_key(view.caption);
    if (control.kind == ui::Kind::kReadOnly) view.locked = false;
    if (control.kind == ui::Kind::kTree) {
      view.lines.clear();
      for (const ui::TreeRow& row : control.rows) view.lines.push_back(row.text);
    }
    const bool is_caption = view.kind == ui::Kind::kButton || view.kind == ui::Kind::kLabel;
    if (is_caption) view.text = ui::without_access_key(view.text);
    view.text = text::replace_all(view.text, "\r\n", "\n");
    view.caption = text::replace_all(view.caption, "\r\n", "\n");
  }
  return views;
}

void expect_in_step(const win32::ScreenWindow& window, const ui::Screen& screen,
                    const std::string& when) {
  EXPECT_EQ(win32::narrow(win32::text_on(window.frame())), screen.title()) << when;
  EXPECT_EQ(window.menu_bar().lines(), [&] {
    std::vector<std::string> lines;
    for (const std::string& line : ui::menu_lines(screen))
      lines.push_back(ui::without_access_key(line));
    return lines;
  }()) << when;
  const auto shown = widget_views(window);
  const auto held = control_views(screen);
  ASSERT_EQ(shown.size(), held.size());
  for (std::size_t i = 0; i < held.size(); ++i)
    EXPECT_EQ(ui::describe(shown[i]), ui::describe(held[i])) << when;
}

}  // namespace tests
