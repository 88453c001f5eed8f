#pragma once
// Joining paths as the officer knows them ("C:\kavrel\data").

#include <string>
#include <string_view>

namespace platform {

/// The folder with exactly one "\" at its end; empty stays empty.
[[nodiscard]] std::string with_backslash(std::string_view folder);

/// The folder without a "\" at its end, except that of a drive ("C:\").
[[nodiscard]] std::string without_backslash(std::string_view folder);

/// Folder and name with one "\" between them; the name alone when the folder is empty. A folder
/// that somebody wrote into the settings by hand may lack its backslash; what is in it would then
/// lie beside the folder, where nobody looks for it.
[[nodiscard]] std::string join(std::string_view folder, std::string_view name);

/// The part of a path before its last name, with what parts them; empty when there is none.
[[nodiscard]] std::string_view folder_part(std::string_view path);

/// The last name of a path.
[[nodiscard]] std::string_view name_part(std::string_view path);

/// Takes the next part of a path off its front: "C:", then "kavrel", then "data", then empty.
[[nodiscard]] std::string_view first_part(std::string_view& rest);

}  // namespace platform
