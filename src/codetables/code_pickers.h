#pragma once
// The dialogs that pick a code, or a few at once, from code tables, as rows. A new one is a row
// here, a layout and an opener; docs/new-code-dialog.md tells the steps. What has rules of its own
// beyond its tables (present weather, waves, concentration of ice) is a dialog of its own.

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "codetables/tables/code_tables.h"
#include "ui/drawing.h"

namespace codetables {

/// How the record's code finds its line.
enum class Reads : std::uint8_t {
  kCode,         ///< as a number where it begins with one: " 95" and "095" are 95
  kFirstFigure,  ///< by its first character alone
};

/// A picture beside the line of a code; a click on it chooses the line.
struct LinePicture {
  std::string_view code;
  std::string_view file;
};

/// One of the codes that a dialog picks.
struct PickedCode {
  std::string_view symbol;   ///< the field of the record, and of the code table that serves it
  std::string_view control;  ///< name of the lines' control; the title says enough for one alone
  text::Id caption = {};
  std::span<const std::string_view> order = {};  ///< the codes to choose; none: all of the table
  std::span<const LinePicture> pictures = {};    ///< controls CONTROL_CODE, captioned "CL 1"
  Reads reads = Reads::kCode;
  int line_length = 0;  ///< characters after which a line is broken; 0: none is
  /// Draws what the figures of the chosen line stand for (none chosen: empty): control
  /// CONTROL_drawing.
  ui::Drawing (*drawing)(std::string_view figures, text::Language) = nullptr;
};

struct CodePicker {
  std::string_view class_name;  ///< names the layout and the help topic
  text::Id title = {};
  text::Id heading = {};  ///< a text above all
  text::Id group = {};    ///< title of a frame around the lines
  std::span<const PickedCode> codes;
};

extern const CodePicker kMovement;
extern const CodePicker kVisibility;
extern const CodePicker kTotalCloud;
extern const CodePicker kLowestCloud;
extern const CodePicker kCloudBase;
extern const CodePicker kLowCloud;
extern const CodePicker kMiddleCloud;
extern const CodePicker kHighCloud;
extern const CodePicker kIceStage;
extern const CodePicker kIceEdge;
extern const CodePicker kIceTrend;

/// All of them, for what must hold for each.
[[nodiscard]] std::span<const CodePicker* const> code_pickers();

/// The lines to choose in the order of the screen.
[[nodiscard]] std::vector<CodeRow> lines_of(const PickedCode& picked);

}  // namespace codetables
