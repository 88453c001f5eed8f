#pragma once
// The look of a screen: which control goes where. A layout is a text in resources/layouts, named
// after the class:
//
//   rows                 children one below the other …
//   columns              … or side by side
//   flow                 children side by side, going on below where the width is short; the names of
//                        its rows flow one by one
//   foot                 at the end of a layout: what stays in view below all the rest when that
//                        scrolls; children one below the other
//   group NAME NAME …    a frame titled by the label NAME (its caption is the frame's title; a
//                        label with on_press makes the title clickable); children one below the
//                        other. Further names stand beside the title
//   grid N               N cells a line, filled in order, so that captions and values line up
//   lines NAME N         the lines of the choice NAME, N side by side, each with its picture of the
//                        rows within left of it; those without a picture stand together above
//   row NAME NAME …      controls on one line; a line of names alone is a row too
//   buttons NAME …       the line of buttons at the bottom, right-aligned
//   space                takes up what room is left
//   end                  closes rows, columns, flow, foot, group, grid and lines
//
// A caption stands left of its control; NAME^ puts it above, NAME- leaves it out. "#" starts a
// comment line. Each control is placed exactly once. A screen without a layout has its controls
// stacked in order.

#include <string>
#include <string_view>
#include <vector>

namespace ui {

struct LayoutNode {
  enum class Type {
    kRows,
    kColumns,
    kFlow,
    kFoot,
    kGroup,
    kGrid,
    kLines,
    kRow,
    kButtons,
    kSpace,
    kControl
  };
  enum class Caption { kLeft, kAbove, kNone };

  Type type = Type::kRows;
  std::string name;  ///< of a control, a group's label, or the choice whose lines they are
  int grid_columns = 0;
  Caption caption = Caption::kLeft;
  std::vector<LayoutNode> beside;  ///< the title of a group: controls
  std::vector<LayoutNode> children;
};

struct LayoutResult {
  LayoutNode root;
  std::string error;  ///< line and reason; empty when the layout is well formed
};

[[nodiscard]] LayoutResult parse_layout(std::string_view source);

/// Source of a class's layout, empty when there is none.
[[nodiscard]] std::string_view layout_source(std::string_view class_name);

/// Names of all embedded layouts.
[[nodiscard]] std::vector<std::string_view> layout_names();

/// Names of the controls (and group labels) of a layout in reading order.
[[nodiscard]] std::vector<std::string> placed_names(const LayoutNode& root);

}  // namespace ui
