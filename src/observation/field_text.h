#pragma once
// How a field's text is brought to the width of its symbol.

#include <string>
#include <string_view>

namespace observation {

/// True when the field holds nothing but spaces.
[[nodiscard]] inline bool is_unset(std::string_view field) {
  return field.find_first_not_of(' ') == std::string_view::npos;
}

/// Field normaliser: appends the text without its spaces, or as many "*" as the symbol is wide when
/// nothing is left. Text is neither cut nor filled up.
void append_normalised(std::string& out, std::string_view field, std::size_t width);
[[nodiscard]] std::string normalised(std::string_view field, std::size_t width);

/// What becomes of the spaces of a justified text.
enum class Spaces { kKept, kToSolidus };

/// Padded on the left with spaces to the width; a longer text stays as it is.
[[nodiscard]] std::string right_justified(std::string_view text, std::size_t width,
                                          Spaces spaces = Spaces::kKept);
/// Padded on the left with "0" to the width; a longer text stays as it is.
[[nodiscard]] std::string zero_justified(std::string_view text, std::size_t width,
                                         Spaces spaces = Spaces::kKept);

}  // namespace observation
