#pragma once
// The dialogs that pick a code, or a few at once, from code tables, as rows. A new one is a row
// here, a layout and an opener; docs/new-code-dialog.md tells the steps. What has rules of its own
// beyond its tables (present weather, waves, concentration of ice) is a dialog of its own.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "observation/Struct_Weather.h"

namespace codetables {

/// A line to choose, in the order of the screen, which need not be the table's.
struct PickerLine {
  std::string_view code;          ///< as it goes into the record: "95", "/" …
  int text = 0;                   ///< what it means
  std::string_view picture = {};  ///< file of a picture beside the lines; a click on it chooses
};

/// How the record's code finds its line.
enum class Reads : std::uint8_t {
  kCode,         ///< as a number where it begins with one: " 95" and "095" are 95
  kFirstFigure,  ///< by its first character alone
};

/// One of the codes that a dialog picks. Texts are ids of the string table, 0 for none.
struct PickedCode {
  /// The control's name. A picture is named for it and its line, and captioned likewise: "CL 1".
  std::string_view name;
  int caption = 0;
  std::string Struct_Weather::*member = nullptr;  ///< where the record holds it
  std::span<const PickerLine> lines;
  Reads reads = Reads::kCode;
};

struct CodePicker {
  std::string_view class_name;  ///< names the layout and the help topic
  int title = 0;
  int heading = 0;  ///< a text above all
  int group = 0;    ///< title of a frame around the lines
  std::span<const PickedCode> codes;
};

extern const CodePicker kMovement;
extern const CodePicker kVisibility;

/// All of them, for what must hold for each.
[[nodiscard]] std::span<const CodePicker* const> code_pickers();

}  // namespace codetables
