#include "ui/spoken.h"

#include "text/ids.h"
#include "text/strings.h"
#include "ui/dump.h"

namespace ui {
namespace {

void collect(const Screen& screen, const PlanNode& node, std::vector<const Control*>& around,
             Titles& titles) {
  const Control* const named = node.name.empty() ? nullptr : screen.find(node.name);
  const bool titled = node.type == PlanNode::Type::kGroup && named != nullptr;
  if (titled) {
    around.push_back(named);
  } else if (named != nullptr && !around.empty()) {
    titles[named] = around;
  }
  for (const PlanNode& child : node.children) collect(screen, child, around, titles);
  if (titled) around.pop_back();
}

// A caption may be broken into lines.
std::string in_one_line(const std::string& caption) {
  std::string line = without_access_key(caption);
  line = text::replace_all(line, "\r\n", " ");
  return text::replace_all(line, "\n", " ");
}

std::string caption_of(const Screen& screen, const Control& control) {
  if (control.spoken.id.number != 0)
    return std::string(text::resolve(control.spoken, screen.language()));
  std::string caption = in_one_line(screen.caption(control));
  // Else what is drawn would be called as the field that it is drawn for.
  if (caption.empty() && control.kind == Kind::kPicture)
    caption = text::bilingual(text::id::kSpokenDrawing, screen.language());
  return caption;
}

void append(std::string& name, const std::string& part, std::string_view between) {
  if (text::trim(part).empty()) return;
  if (!name.empty()) name.append(between);
  name.append(text::trim(part));
}

}  // namespace

Titles titles_of(const Screen& screen, const Plan& plan) {
  Titles titles;
  std::vector<const Control*> around;
  collect(screen, plan.body, around, titles);
  collect(screen, plan.foot, around, titles);
  return titles;
}

std::string spoken_name(const Screen& screen, const Control& control,
                        const std::vector<const Control*>& titles) {
  const std::string_view between = text::bilingual(text::id::kSpokenBetween, screen.language());
  const std::string caption = caption_of(screen, control);
  std::string name;
  const bool alone = control.kind == Kind::kLabel || control.role != Role::kNone;
  if (!alone)
    for (const Control* const title : titles) {
      // A group of one field often has its name.
      const std::string group = in_one_line(screen.caption(*title));
      if (group != caption) append(name, group, between);
    }
  append(name, caption, between);
  append(name, screen.unit(control), between);
  return name.empty() && !alone ? screen.title() : name;
}

std::string spoken_state(const Screen& screen, const Control& control) {
  std::string state;
  if (!control.mark.empty())
    state = text::bilingual(
        control.mark == kWrongMark ? text::id::kSpokenWrong : text::id::kSpokenMissing,
        screen.language());
  append(state, control.why_locked, " ");
  return state;
}

}  // namespace ui
