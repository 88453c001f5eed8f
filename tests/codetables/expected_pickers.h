#pragma once
// What the dialogs that pick codes must show, typed here once more and knowing nothing of the rows
// that make them.

#include <string>
#include <vector>

#include "codetables/code_pickers.h"

namespace expected {

struct Line {
  const char* code;
  const char* english;
  const char* japanese;
};

struct Code {
  const char* control;
  const char* english;  ///< caption
  const char* japanese;
  const char* field;  ///< name of the record's field
  std::vector<Line> lines;
  /// Codes of the lines that have a picture: of "CL" and 1 it is CL1.jpg, captioned "CL 1".
  const char* pictures = "";
  bool drawn = false;  ///< what is chosen is drawn beside the lines
};

struct Picker {
  const codetables::CodePicker* row;
  const char* class_name;
  const char* topic;  ///< number of the help page
  const char* english;
  const char* japanese;
  std::vector<Code> codes;
  /// Texts around, in both languages by the control's name.
  std::vector<Line> labels;
};

[[nodiscard]] const std::vector<Picker>& pickers();

}  // namespace expected
