#pragma once
// Numbers to text and back without the process locale: a decimal comma in a report is a wrong
// report. Each function does what the printf or atof form named beside it does in the "C" locale.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// Where a number may have its point.
enum class Point {
  kNone,      ///< a whole number
  kInside,    ///< figures on both sides: "1.5"
  kNotFirst,  ///< "5." too
  kAnywhere,  ///< "5." and ".5" too
};

/// What a text must look like to be a number and nothing else: digits, and what the form allows.
/// Blanks, exponents and signs of thousands are never part of a number.
struct NumberForm {
  bool sign = false;  ///< one "+" or "-" may stand in front
  Point point = Point::kNone;
};
inline constexpr NumberForm kSignedWhole{true, Point::kNone};
inline constexpr NumberForm kSignedDecimal{true, Point::kInside};
/// Of the barometer card, whose files hold corrections such as "+5.".
inline constexpr NumberForm kCorrection{true, Point::kNotFirst};
/// Typed into a field: the figures before or behind the point may be left out.
inline constexpr NumberForm kTypedDecimal{true, Point::kAnywhere};
inline constexpr NumberForm kTypedSpeed{false, Point::kAnywhere};

/// True for a text of that form.
[[nodiscard]] bool is_number(std::string_view text, NumberForm form);

/// The number of a text of the form kTypedDecimal with at most 12 characters behind its sign, which
/// is more than any field takes.
[[nodiscard]] std::optional<double> strict_number(std::string_view text);

/// The number when the text holds digits only (blanks around are let pass) and lies in the range.
[[nodiscard]] std::optional<int> whole_number(std::string_view text, int lowest, int highest);

/// The numbers from first to last with zeros in front up to so many digits ("00", "01" …): the
/// lines of a drop-down.
[[nodiscard]] std::vector<std::string> numbered_lines(int first, int last, int digits);

/// The integer part of a value of any size, toward zero. Clamped to +-1e15, where every whole
/// number is still exact; NaN gives 0.
[[nodiscard]] constexpr long long truncated(double value) {
  constexpr double kLimit = 1e15;
  if (value >= kLimit) return static_cast<long long>(kLimit);
  if (value <= -kLimit) return static_cast<long long>(-kLimit);
  return value == value ? static_cast<long long>(value) : 0;
}

}  // namespace text
