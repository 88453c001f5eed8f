#include "ui/plan.h"

#include <algorithm>
#include <set>
#include <utility>

#include "text/strings.h"

namespace ui {
namespace {

using Type = PlanNode::Type;
using LayoutType = LayoutNode::Type;

constexpr int kWideField = 24;    // characters; a longer field grows with the window
constexpr int kDefaultField = 8;  // where no largest length is given
constexpr int kNarrowestValue = 4;
constexpr int kWidestValue = 40;
constexpr int kFewestLines = 4;  // an empty list still looks like a list
constexpr int kMostLines = 14;
constexpr int kMemoCharacters = 60;
constexpr int kMemoLines = 8;
constexpr std::size_t kOneLine = 48;  // characters of a choice

int characters_in(const Control& control) {
  return static_cast<int>(text::length(control.content));
}

// What a layout says about a screen's controls; remembers which are placed.
class Planner {
 public:
  explicit Planner(const Screen& screen) : screen_(screen) {}

  Plan plan(const LayoutNode& root) {
    Plan plan;
    plan.has_menu = !screen_.menu().empty();
    for (const LayoutNode& child : root.children) {
      if (child.type == LayoutType::kFoot) {
        for (const LayoutNode& part : child.children) add(part, plan.foot);
      } else {
        add(child, plan.body);
      }
    }
    for (const Control* const control : screen_.controls()) {
      // What a layout forgot is shown all the same: nobody can correct what nobody sees.
      if (!placed_.contains(control->name)) plan.body.children.push_back(bare(*control));
    }
    return plan;
  }

 private:
  static PlanNode bare(const Control& control) {
    PlanNode node;
    node.type = Type::kControl;
    node.name = control.name;
    return node;
  }

  PlanNode placed(const Control& control, CaptionPlace captions, bool above) {
    placed_.insert(control.name);
    PlanNode node = bare(control);
    // Asked in English, so that the plan is one in both languages.
    if (!shows_own_caption(control.kind) && !screen_.english_caption(control).empty())
      node.caption = captions;
    node.has_unit = control.unit.id.number != 0;
    node.room_behind_unit = node.has_unit && (above || node.caption == CaptionPlace::kColumn);
    return node;
  }

  void add_control(const LayoutNode& from, CaptionPlace beside, PlanNode& into) {
    const Control* const control = screen_.find(from.name);
    if (control == nullptr) return;
    const bool above = from.caption == LayoutNode::Caption::kAbove;
    const CaptionPlace captions = above ? CaptionPlace::kAbove
                                  : from.caption == LayoutNode::Caption::kNone ? CaptionPlace::kNone
                                                                               : beside;
    into.children.push_back(placed(*control, captions, above));
  }

  void add_line(const LayoutNode& from, PlanNode& into) {
    PlanNode line;
    line.type = from.type == LayoutType::kButtons ? Type::kButtons : Type::kLine;
    PlanNode space;
    space.type = Type::kSpace;
    // Buttons stand at the right end of their line.
    if (line.type == Type::kButtons) line.children.push_back(space);
    bool grows = false;
    for (const LayoutNode& child : from.children) {
      add_control(child, CaptionPlace::kBeside, line);
      const Control* const control = screen_.find(child.name);
      grows = grows || (control != nullptr && extent_of(*control).grows);
    }
    // A field that grows takes the room itself.
    if (line.type == Type::kLine && !grows) line.children.push_back(space);
    into.children.push_back(std::move(line));
  }

  // The cells are filled in order: a line with more controls than columns goes on in the next.
  void add_grid(const LayoutNode& from, PlanNode& into) {
    PlanNode grid;
    grid.type = Type::kGrid;
    grid.columns = from.grid_columns;
    for (const LayoutNode& line : from.children) {
      if (line.type != LayoutType::kRow) {
        add(line, grid);
        continue;
      }
      PlanNode cells;
      cells.type = Type::kLine;
      for (const LayoutNode& child : line.children) {
        if (static_cast<int>(cells.children.size()) == grid.columns) {
          grid.children.push_back(std::exchange(cells, {}));
          cells.type = Type::kLine;
        }
        add_control(child, CaptionPlace::kColumn, cells);
      }
      grid.children.push_back(std::move(cells));
    }
    into.children.push_back(std::move(grid));
  }

  void add_lines(const LayoutNode& from, PlanNode& into) {
    const Control* const choice = screen_.find(from.name);
    if (choice == nullptr) return;
    PlanNode lines = placed(*choice, CaptionPlace::kNone, false);
    lines.type = Type::kLines;
    lines.columns = from.grid_columns;
    for (const LayoutNode& row : from.children) {
      for (const LayoutNode& picture : row.children)
        add_control(picture, CaptionPlace::kNone, lines);
    }
    into.children.push_back(std::move(lines));
  }

  // The rows of names within it are no lines: where one ends is the width's to say.
  void add_flow(const LayoutNode& from, PlanNode& into) {
    PlanNode flow;
    flow.type = Type::kFlow;
    for (const LayoutNode& child : from.children) {
      if (child.type != LayoutType::kRow) {
        add(child, flow);
        continue;
      }
      for (const LayoutNode& name : child.children) add_control(name, CaptionPlace::kBeside, flow);
    }
    into.children.push_back(std::move(flow));
  }

  bool grows_down(const PlanNode& node) const {
    const Control* const control = node.type == Type::kControl ? screen_.find(node.name) : nullptr;
    if (control != nullptr && control->drawing != nullptr && control->drawing->grows &&
        !control->drawing->low)
      return true;
    return std::any_of(node.children.begin(), node.children.end(),
                       [this](const PlanNode& child) { return grows_down(child); });
  }

  void add_box(const LayoutNode& from, Type type, PlanNode& into) {
    PlanNode box;
    box.type = type;
    if (type == Type::kGroup && screen_.find(from.name) != nullptr) {
      box.name = from.name;
      placed_.insert(from.name);
      PlanNode beside;
      for (const LayoutNode& each : from.beside) add_control(each, CaptionPlace::kBeside, beside);
      box.beside = std::move(beside.children);
    }
    for (const LayoutNode& child : from.children) add(child, box);
    // Beside a higher column its rows stay together at the top, but for a picture that takes the
    // room.
    const bool beside = into.type == Type::kColumns || into.type == Type::kFlow;
    if (type == Type::kRows && beside && !grows_down(box)) {
      box.children.emplace_back();
      box.children.back().type = Type::kSpace;
    }
    into.children.push_back(std::move(box));
  }

  void add(const LayoutNode& from, PlanNode& into) {
    switch (from.type) {
      case LayoutType::kRows:
        return add_box(from, Type::kRows, into);
      case LayoutType::kColumns:
        return add_box(from, Type::kColumns, into);
      case LayoutType::kFlow:
        return add_flow(from, into);
      case LayoutType::kFoot:  // never within something else
        return;
      case LayoutType::kGroup:
        return add_box(from, Type::kGroup, into);
      case LayoutType::kGrid:
        return add_grid(from, into);
      case LayoutType::kLines:
        return add_lines(from, into);
      case LayoutType::kRow:
      case LayoutType::kButtons:
        return add_line(from, into);
      case LayoutType::kSpace:
        into.children.emplace_back();
        into.children.back().type = Type::kSpace;
        return;
      case LayoutType::kControl:
        return add_control(from, CaptionPlace::kBeside, into);
    }
  }

  const Screen& screen_;
  std::set<std::string_view> placed_;
};

// Its controls in order, those that close it on one line at the end.
LayoutNode stacked(const Screen& screen) {
  LayoutNode root;
  LayoutNode buttons;
  buttons.type = LayoutType::kButtons;
  for (const Control* const control : screen.controls()) {
    LayoutNode leaf;
    leaf.type = LayoutType::kControl;
    leaf.name = control->name;
    if (control->role != Role::kNone) {
      buttons.children.push_back(std::move(leaf));
      continue;
    }
    LayoutNode row;
    row.type = LayoutType::kRow;
    row.children.push_back(std::move(leaf));
    root.children.push_back(std::move(row));
  }
  if (!buttons.children.empty()) root.children.push_back(std::move(buttons));
  return root;
}

Extent extent_of_edit(const Control& edit) {
  const int length = edit.max_length;
  if (length == 0)
    return {std::clamp(characters_in(edit) + 1, kDefaultField, kWideField), 0, 1, true};
  if (length > kWideField) return {kWideField, 0, 1, true};
  return {length, length + 1, 1, false};
}

Extent extent_of_value(const Control& value) {
  const int length = value.max_length;
  const int shown = length > 0 ? length : characters_in(value);
  return {std::clamp(shown, kNarrowestValue, kWidestValue), length > 0 ? length + 1 : 0, 1,
          length == 0};
}

}  // namespace

Plan plan_of(const Screen& screen) {
  const LayoutResult layout = parse_layout(layout_source(screen.class_name()));
  const bool usable = layout.error.empty() && !layout.root.children.empty();
  return plan_of(screen, usable ? layout.root : stacked(screen));
}

Plan plan_of(const Screen& screen, const LayoutNode& root) {
  return Planner(screen).plan(root);
}

std::vector<GridCell> cells_of(const PlanNode& grid) {
  using Holds = GridCell::Holds;
  std::vector<GridCell> cells;
  int row = 0;
  for (const PlanNode& line : grid.children) {
    if (line.type != PlanNode::Type::kLine) {
      cells.push_back({Holds::kPart, &line, row++, 0, grid.columns * 2});
      continue;
    }
    int column = 0;
    for (const PlanNode& control : line.children) {
      const bool captioned = control.caption == CaptionPlace::kColumn;
      if (captioned) cells.push_back({Holds::kCaption, &control, row, column});
      const int own = captioned ? 1 : 0;
      cells.push_back({Holds::kControl, &control, row, column + own, 2 - own});
      column += 2;
    }
    ++row;
  }
  return cells;
}

bool shows_own_caption(Kind kind) {
  return kind == Kind::kLabel || kind == Kind::kTick || kind == Kind::kButton ||
         kind == Kind::kPicture;
}

Extent extent_of(const Control& control) {
  switch (control.kind) {
    case Kind::kEdit:
      return extent_of_edit(control);
    case Kind::kReadOnly:
      return extent_of_value(control);
    case Kind::kMemo:
      return {control.max_length > 0 ? control.max_length : kMemoCharacters, 0,
              control.most_lines > 0 ? control.most_lines : kMemoLines, true};
    case Kind::kTree:
      return {44, 0, 12, true};
    case Kind::kCombo:
    case Kind::kDropDown:
      return {control.max_length, 0, 1, false};
    case Kind::kList:
      if (control.most_lines > 0) return {0, 0, control.most_lines, true};
      return {0, 0, std::clamp(static_cast<int>(control.items.size()), kFewestLines, kMostLines),
              true};
    case Kind::kChoice:
      return {0, control.max_length, 0, false};
    case Kind::kLabel:
    case Kind::kTick:
    case Kind::kButton:
      break;
    case Kind::kPicture:
      if (control.drawing == nullptr) break;
      return {control.drawing->characters, 0, control.drawing->lines, control.drawing->grows};
  }
  return {};
}

ChoiceLook look_of(const Control& choice) {
  if (!choice.item_codes.empty()) return ChoiceLook::kBehindCodes;
  std::size_t characters = 0;
  for (const std::string& line : choice.items) characters += text::length(line);
  return characters <= kOneLine ? ChoiceLook::kSideBySide : ChoiceLook::kBelow;
}

}  // namespace ui
