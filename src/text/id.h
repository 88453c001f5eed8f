#pragma once
// Id of a text in the string table. A type of its own: a width or a bound is never taken for a
// text.

#include <compare>
#include <cstddef>

namespace text {

struct Id {
  int number = 0;  ///< as the table has it; 0 is no text

  constexpr Id() = default;
  explicit constexpr Id(int of_table) : number(of_table) {}
  /// A plain 0 says "no text" in a table of rows; no other number becomes an id by itself.
  constexpr Id(std::nullptr_t /*zero*/) {}

  /// True for a text, false for none.
  explicit constexpr operator bool() const { return number != 0; }
  auto operator<=>(const Id&) const = default;
};

/// The text that stands `offset` lines further in a block of the table (labels of days, of
/// languages, of code figures).
[[nodiscard]] constexpr Id operator+(Id id, int offset) {
  return Id(id.number + offset);
}

}  // namespace text
