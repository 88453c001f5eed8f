#pragma once
// The characters of a line that goes to paper.

#include <cstddef>
#include <string_view>
#include <vector>

namespace paper {

struct Character {
  char32_t code = 0;
  std::size_t columns = 1;  ///< as ui::columns_of counts
};

/// Those of a UTF-8 text; a byte that belongs to none is U+FFFD. What would move the print head or
/// turn the order of what stands behind it is a blank.
[[nodiscard]] std::vector<Character> characters_of(std::string_view utf8);

}  // namespace paper
