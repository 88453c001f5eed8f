#pragma once
// Numbers to text and back without the process locale: a decimal comma in a report is a wrong
// report. Each function does what the printf or atof form named beside it does in the "C" locale.

#include <optional>
#include <string>
#include <string_view>

namespace text {

/// "%<width>.<precision>f" ("%0<width>.<precision>f" when `fill` is '0'; the zeros go behind a
/// minus sign). Rounds as printf does: to the nearest decimal of the exact binary value.
[[nodiscard]] std::string format_fixed(double value, int precision, int width = 0, char fill = ' ');

/// "%<width>d" ("%0<width>d" when `fill` is '0').
[[nodiscard]] std::string format_int(long long value, int width = 0, char fill = ' ');

/// "%.<digits>d": at least that many digits, a minus sign not counted.
[[nodiscard]] std::string format_digits(long long value, int digits);

/// The number at the start of the text after blanks, the rest ignored (atof): sign, digits, point,
/// exponent. 0.0 when there is none. Never infinite and never NaN: "inf", "nan" and hexadecimal
/// forms are not numbers here, and a value outside double's range is 0.0.
[[nodiscard]] double leading_number(std::string_view text);

/// The same, but nothing where no number stands at the start: "", "/", "///" and "*" are values
/// that are missing, never 0.0. Everything that is computed from a field's text asks here.
[[nodiscard]] std::optional<double> number_at_start(std::string_view text);

/// The whole number at the start of the text after blanks, the rest ignored (atoi); 0 when there is
/// none. Clamped to the range of int.
[[nodiscard]] int leading_int(std::string_view text);

/// The number of a text that is nothing but a number: an optional sign, digits, at most one point.
[[nodiscard]] std::optional<double> strict_number(std::string_view text);

}  // namespace text
