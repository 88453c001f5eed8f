#pragma once
// Small text helpers. Texts are UTF-8; blanks are ASCII spaces and tabs unless said otherwise.

#include <string>
#include <string_view>

namespace text {

/// Without blanks (space, tab, line ends) at both ends.
[[nodiscard]] std::string_view trim(std::string_view text);

/// Without any space.
[[nodiscard]] std::string without_spaces(std::string_view text);

/// Every `from` replaced by `to`.
[[nodiscard]] std::string replace_all(std::string_view text, std::string_view from,
                                      std::string_view to);

/// True when the text is not empty and holds digits 0-9 only.
[[nodiscard]] bool is_all_digits(std::string_view text);

/// What becomes of a full-width space when a text is narrowed.
enum class WideSpace { kRemoved, kToSpace };

/// Full-width (double-byte) letters, digits and signs U+FF01-U+FF5E to their single-width forms,
/// the minus sign U+2212 to "-". Everything else stays. Any bytes are survived.
[[nodiscard]] std::string narrow(std::string_view text, WideSpace wide_space = WideSpace::kToSpace);

/// Number of characters (code points) of a UTF-8 text; a stray byte counts as one.
[[nodiscard]] std::size_t length(std::string_view text);

/// The first `count` characters.
[[nodiscard]] std::string_view first(std::string_view text, std::size_t count);

}  // namespace text
