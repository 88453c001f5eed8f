#pragma once
// The three writers that make the columns of a logbook line. None ever cuts: a text too long for
// its columns is blanked, so that the columns behind it stay in their places.

#include <string>
#include <string_view>

namespace observation {

/// Padded on the right with spaces; with the flag every space of that, padding and inner ones
/// alike, becomes "/". Too long gives spaces, flag or not.
void write_left(std::string& line, std::string_view text, std::size_t width, bool solidus);

/// Padded on the left with "0"; empty or too long gives spaces. With the flag a space inside
/// becomes "/".
void write_zero(std::string& line, std::string_view text, std::size_t width, bool solidus);

/// The text up to its first "." as write_zero() does it, but with the flag a space inside becomes
/// "0".
void write_integer(std::string& line, std::string_view text, std::size_t width, bool zero);

}  // namespace observation
