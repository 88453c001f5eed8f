#pragma once
// The letters of what goes to paper: a fixed pitch with Japanese, from the fonts of this computer.

#include <string>
#include <string_view>

#include "paper/pdf.h"
#include "ui/drawing.h"
#include "win32/system.h"

namespace win32 {

struct PaperLetters {
  std::wstring family;  ///< that of the first face
  paper::Faces faces;
};

/// A family that keeps columns and has Japanese; where no installed one does, one of a fixed pitch.
/// Behind it faces for letters that it lacks. Looked for once.
[[nodiscard]] const PaperLetters& paper_letters();

/// Writes with the device's font, each character at the left of its own columns. `at` is on the base
/// line; the device's text alignment says so.
void write_columns(HDC dc, std::string_view text, ui::Point at, double column);

}  // namespace win32
