#pragma once
// Which letter, together with Alt, leads to each control of a dialog, each menu and each button of
// a message. Texts that name one ("&Print") keep it; the others get the first letter that is free,
// of the English text in both languages, so that the fingers need to learn it once.

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ui/plan.h"
#include "ui/windows.h"

namespace ui {

/// One letter (A to Z) for each of these English texts, none twice; 0 where none is left. A text
/// that names its letter comes before all others, else the earlier text before the later one.
[[nodiscard]] std::vector<char> access_keys(std::span<const std::string> english);

/// The text with "&" in front of the letter, or "(&X)" behind it where the text does not have the
/// letter, as in Japanese. A text that names a letter stays as it is, and so does one without a key.
[[nodiscard]] std::string with_access_key(std::string_view text, char key);

/// Of the controls of a dialog: its buttons and tick boxes, and the fields, lists and choices whose
/// caption stands beside them. OK, Cancel and Help have Enter, Escape and F1. A window with a menu
/// leaves the letters to its menus.
[[nodiscard]] std::map<const Control*, char> access_keys_of(const Screen& screen, const Plan& plan);
/// Of a message's buttons, 0 for one that is alone: Enter presses it.
[[nodiscard]] std::vector<char> access_keys_of(const MessageBox& box);

}  // namespace ui
