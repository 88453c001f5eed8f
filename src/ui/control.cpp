#include "ui/control.h"

#include <algorithm>
#include <array>

#include "ui/screen.h"

namespace ui {

std::string_view name_of(Kind kind) {
  static constexpr std::array<std::string_view, 12> kNames = {
      "label", "read-only", "edit", "memo",   "combo",   "drop-down",
      "list",  "choice",    "tick", "button", "picture", "tree"};
  return kNames[static_cast<std::size_t>(kind)];
}

Control::Control(Screen& owner, Kind control_kind, std::string_view control_name, text::Ref text,
                 Role closing_role)
    : name(control_name), kind(control_kind), role(closing_role), caption(text) {
  auto at = owner.controls_.end();
  if (role == Role::kNone) {
    while (at != owner.controls_.begin() && (*(at - 1))->role != Role::kNone) --at;
  }
  owner.controls_.insert(at, this);
}

bool Control::can_focus() const {
  if (!enabled || !visible) return false;
  return kind != Kind::kLabel && kind != Kind::kReadOnly && kind != Kind::kPicture;
}

std::string Control::selected_text() const {
  if (selected < 0) return {};
  const auto at = static_cast<std::size_t>(selected);
  if (kind == Kind::kTree) return at < rows.size() ? rows[at].path : std::string();
  return at < items.size() ? items[at] : std::string();
}

void Control::set(std::string_view value) {
  content = value;
  const auto at = std::find(items.begin(), items.end(), value);
  selected = at == items.end() ? -1 : static_cast<int>(at - items.begin());
}

}  // namespace ui
