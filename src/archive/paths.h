#pragma once
// Joining and comparing paths as the officer knows them ("C:\kavrel\data").

#include <string>
#include <string_view>

namespace archive {

/// The folder with exactly one "\" at its end; empty stays empty.
[[nodiscard]] std::string with_backslash(std::string_view folder);

/// The folder without a "\" at its end, except that of a drive ("C:\").
[[nodiscard]] std::string without_backslash(std::string_view folder);

/// Folder and name with one "\" between them; the name alone when the folder is empty.
[[nodiscard]] std::string join(std::string_view folder, std::string_view name);

/// Takes the next part of a path off its front: "C:", then "kavrel", then "data", then empty.
[[nodiscard]] std::string_view first_part(std::string_view& rest);

/// True when the texts are equal but for the case of the letters A to Z.
[[nodiscard]] bool equal_ignoring_case(std::string_view a, std::string_view b);

/// The order of names in a list: by letters whatever their case, equal ones by their bytes.
[[nodiscard]] bool comes_before(std::string_view a, std::string_view b);

}  // namespace archive
