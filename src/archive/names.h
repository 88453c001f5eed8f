#pragma once
// Comparing names of files and folders.

#include <string_view>

namespace archive {

/// True when the texts are equal but for the case of the letters A to Z.
[[nodiscard]] bool equal_ignoring_case(std::string_view a, std::string_view b);

/// The order of names in a list: by letters whatever their case, equal ones by their bytes.
[[nodiscard]] bool comes_before(std::string_view a, std::string_view b);

}  // namespace archive
