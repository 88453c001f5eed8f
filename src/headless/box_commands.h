#pragma once
// What a script can do while a message or question is on top.

#include <optional>
#include <string>

#include "headless/script.h"
#include "ui/windows.h"

namespace headless {

class ScriptWindows;

/// `"KAVREL for WIN": "Input error" [OK]`.
[[nodiscard]] std::string describe(const ui::MessageBox& box);

/// Carries out one command; the result of the box once it is answered. Ends the run when the
/// command cannot be carried out.
[[nodiscard]] std::optional<int> answer_box(ScriptWindows& windows, const ui::MessageBox& box,
                                            const Line& line);

}  // namespace headless
