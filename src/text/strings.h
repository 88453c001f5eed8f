#pragma once
// Small text helpers. Texts are UTF-8; blanks are ASCII spaces and tabs unless said otherwise.

#include <string>
#include <string_view>

namespace text {

/// Without blanks (space, tab, line ends) at both ends.
[[nodiscard]] std::string_view trim(std::string_view text);

/// True for a control character: a byte below 0x20, and 0x7F.
[[nodiscard]] constexpr bool is_control(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == '\x7f';
}

/// True when the text holds a control character.
[[nodiscard]] constexpr bool has_control(std::string_view text) {
  for (const char c : text)
    if (is_control(c)) return true;
  return false;
}

/// Without the byte order mark that editors of other systems put in front of a UTF-8 text, however
/// often they did. It says nothing, and left there it would be part of the first word.
[[nodiscard]] std::string_view without_byte_order_mark(std::string_view text);

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
