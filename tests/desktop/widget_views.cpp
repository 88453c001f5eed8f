#include "widget_views.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "desktop/picture_label.h"
#include "text/strings.h"

namespace tests {
namespace {

// The caption in what a screen reader says, which is the group's and the unit as well; all of it
// where the caption is not in it.
std::string spoken_caption(const desktop::Binding& binding, const std::string& caption) {
  std::string spoken = binding.widget()->accessibleName().toStdString();
  const std::string line = text::replace_all(caption, "\n", " ");
  return spoken.find(text::trim(line)) == std::string::npos ? spoken : caption;
}

std::string caption_on(const desktop::Binding& binding, const std::string& caption) {
  const QWidget* const widget = binding.widget();
  if (const auto* const button = qobject_cast<const QAbstractButton*>(widget))
    return button->text().toStdString();
  // A picture says its caption only where its file is missing; screen readers always do.
  if (binding.control().kind == ui::Kind::kPicture) return spoken_caption(binding, caption);
  if (const auto* const label = qobject_cast<const QLabel*>(widget))
    return label->text().toStdString();
  // A layout may leave a caption out where a group's title says it; screen readers still say it.
  return binding.caption_label == nullptr ? spoken_caption(binding, caption)
                                          : binding.caption_label->text().toStdString();
}

bool is_locked(const QWidget* widget) {
  if (const auto* const edit = qobject_cast<const QLineEdit*>(widget)) return edit->isReadOnly();
  if (const auto* const box = qobject_cast<const QComboBox*>(widget))
    return box->lineEdit() != nullptr && box->lineEdit()->isReadOnly();
  return false;
}

std::string text_on(const desktop::Binding& binding, const ui::ControlView& view) {
  const auto shown = binding.shown();
  switch (binding.control().kind) {
    case ui::Kind::kLabel:
    case ui::Kind::kButton:
      return view.caption;
    case ui::Kind::kTick:
      return shown.checked ? "on" : "off";
    case ui::Kind::kDropDown:
    case ui::Kind::kList:
    case ui::Kind::kChoice:
      return shown.selected < 0 ? std::string() : shown.items.value(shown.selected).toStdString();
    case ui::Kind::kTree: {
      const auto& rows = binding.control().rows;
      return shown.selected < 0 ? std::string()
                                : rows[static_cast<std::size_t>(shown.selected)].path;
    }
    default:
      return shown.content.toStdString();
  }
}

}  // namespace

std::vector<ui::ControlView> widget_views(const desktop::ScreenWindow& window) {
  std::vector<ui::ControlView> views;
  for (const auto& binding : window.bindings()) {
    const ui::Control& control = binding->control();
    ui::ControlView view;
    view.name = control.name;
    view.kind = control.kind;
    const std::string caption = ui::without_access_key(window.shown_screen().caption(control));
    // The window may have given it a letter; tests of their own see to these.
    view.caption =
        ui::without_access_key(caption_on(*binding, text::replace_all(caption, "\r\n", "\n")));
    if (binding->unit_label != nullptr) view.unit = binding->unit_label->text().toStdString();
    view.text = text_on(*binding, view);
    if (const auto* const picture = qobject_cast<desktop::PictureLabel*>(binding->widget());
        picture != nullptr && picture->drawing() != nullptr)
      view.drawing = ui::describe(*picture->drawing());
    for (const QString& line : binding->shown().items) view.lines.push_back(line.toStdString());
    for (const QString& code : binding->shown().codes)
      view.line_codes.push_back(code.toStdString());
    if (control.kind == ui::Kind::kChoice) {
      const auto buttons = binding->widget()->findChildren<QRadioButton*>();
      std::vector<bool> off;
      for (const QRadioButton* const button : buttons)
        off.push_back(!button->isEnabledTo(binding->widget()));
      if (std::find(off.begin(), off.end(), true) != off.end()) view.line_disabled = off;
    }
    view.line_ticked = binding->shown().ticked;
    view.enabled = binding->widget()->isEnabledTo(binding->widget()->parentWidget());
    view.visible = !binding->widget()->isHidden();
    view.locked = control.kind == ui::Kind::kReadOnly ? false : is_locked(binding->widget());
    const std::string tip = binding->widget()->toolTip().toStdString();
    const std::string spoken = binding->widget()->accessibleDescription().toStdString();
    if (!tip.empty() && spoken.ends_with(tip)) view.why = tip;
    if (tip.find(control.shortcut) != std::string::npos) view.shortcut = control.shortcut;
    view.focused = binding->owns(window.focusWidget());
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

}  // namespace tests
