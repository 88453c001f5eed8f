#pragma once
// What a screen looks like, worked out once for every front end: which control goes where, where
// its caption stands, how many characters and lines it has room for, what takes up the room left,
// and what scrolls. A front end draws the plan with its own widgets, fonts and gaps and decides
// nothing else, so that a screen looks the same in each.

#include <string>
#include <vector>

#include "ui/layout.h"
#include "ui/screen.h"

namespace ui {

/// Where the caption of a control stands.
enum class CaptionPlace {
  kNone,    ///< nowhere: it has none, shows it itself, or the layout leaves it out
  kBeside,  ///< left of it
  kAbove,
  kColumn,  ///< left of it, in a column of the grid that holds captions only
};

/// A part of a screen. What is not listed for its type is as it is made.
struct PlanNode {
  enum class Type {
    kRows,     ///< children one below the other
    kColumns,  ///< children side by side
    kFlow,  ///< the same, going on below where the width is short; where a child of a line can take
            ///< up room it takes what is left
    kGroup,  ///< a frame around children one below the other, titled by the label `name`
    kGrid,   ///< children are its lines; the cells of those that are a kLine stand in columns
    kLine,   ///< children side by side, at most `columns` of them in a grid
    kLines,  ///< the lines of the choice `name`, `columns` side by side; children are the pictures
             ///< that stand left of theirs. Lines without one stand side by side above
    kButtons,  ///< the same for buttons
    kSpace,    ///< takes up what room is left
    kControl,
  };
  Type type = Type::kRows;
  std::string name;  ///< of the control or choice; of a group's title, empty when it has none
  CaptionPlace caption = CaptionPlace::kNone;  ///< control
  bool has_unit = false;                       ///< control: a text stands behind the value
  bool room_behind_unit = false;               ///< control: room that is left goes behind the unit
  int columns = 0;  ///< grid: controls on a line, each with its caption and value; lines: pictures
  std::vector<PlanNode> beside;  ///< group: controls beside its title; they flow with it
  std::vector<PlanNode> children;
  bool operator==(const PlanNode&) const = default;
};

struct Plan {
  /// A menu bar stands above the body and stays there when the body scrolls. Such a window is a
  /// form of many fields: its gaps are small.
  bool has_menu = false;
  /// A kRows. It scrolls as a whole, and only where the display has no room for all of it; one with
  /// a flow up and down only.
  PlanNode body;
  /// A kRows that stands below the body and stays there when the body scrolls; no children: nothing.
  PlanNode foot;
};

/// The plan of an open screen by its class's layout. A screen that has none, or one that is not
/// well formed, has its controls stacked, the buttons that close it on one line at the end. A name
/// of the layout that is no control is passed over; a control that the layout forgets comes last.
/// It is the same in both languages.
[[nodiscard]] Plan plan_of(const Screen& screen);
/// The same by this layout.
[[nodiscard]] Plan plan_of(const Screen& screen, const LayoutNode& root);

/// What stands in a grid, and where. Each control has two of its columns, so that captions and
/// values line up; without a caption in a column of its own it takes both.
struct GridCell {
  enum class Holds {
    kCaption,  ///< that of the control `node`
    kControl,
    kPart,  ///< of any type, over the grid's whole width
  };
  Holds holds = Holds::kControl;
  const PlanNode* node = nullptr;  ///< of the grid that was asked for
  int row = 0;
  int column = 0;
  int columns = 1;  ///< that it takes
};
[[nodiscard]] std::vector<GridCell> cells_of(const PlanNode& grid);

/// True when the control shows its caption itself, as a button does.
[[nodiscard]] bool shows_own_caption(Kind kind);

/// The room that a control wants. 0 means: as much as what it shows needs.
struct Extent {
  int least_characters = 0;  ///< figures of its font
  int most_characters = 0;   ///< 0: no limit
  int least_lines = 0;
  bool grows = false;  ///< takes up the room left on its line
  bool operator==(const Extent&) const = default;
};

/// For the control as it is now: a value without a largest length makes room for what it holds.
[[nodiscard]] Extent extent_of(const Control& control);

/// How the lines of a choice stand.
enum class ChoiceLook {
  kSideBySide,   ///< all lines together are short
  kBelow,        ///< one below the other
  kBehindCodes,  ///< one below the other, the codes in a column of their own
};
[[nodiscard]] ChoiceLook look_of(const Control& choice);

}  // namespace ui
