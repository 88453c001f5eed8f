#include "text/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "text/strings.h"

namespace text {
namespace {

std::string pad(std::string digits, int width, char fill) {
  const auto wanted = static_cast<std::size_t>(std::max(width, 0));
  if (digits.size() >= wanted) return digits;
  // Zeros go behind the minus and blanks in front of it, as printf has it.
  const bool behind_sign = fill == '0' && !digits.empty() && digits.front() == '-';
  digits.insert(behind_sign ? 1U : 0U, wanted - digits.size(), fill);
  return digits;
}

bool is_blank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}
bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

std::string_view skip_blanks(std::string_view text) {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  return text;
}

}  // namespace

std::string format_fixed(double value, int precision, int width, char fill) {
  // The longest finite double has 309 digits before the point.
  std::array<char, 400> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::fixed, precision);
  return pad(std::string(buffer.data(), result.ptr), width, fill);
}

std::string format_int(long long value, int width, char fill) {
  return pad(std::to_string(value), width, fill);
}

std::string format_digits(long long value, int digits) {
  return pad(std::to_string(value), value < 0 ? digits + 1 : digits, '0');
}

double leading_number(std::string_view text) {
  return number_at_start(text).value_or(0.0);
}

std::optional<double> number_at_start(std::string_view text) {
  text = skip_blanks(text);
  // from_chars takes no "+", and behind one that was taken off it would take a "-".
  if (!text.empty() && text.front() == '+') {
    text.remove_prefix(1);
    if (!text.empty() && text.front() == '-') return std::nullopt;
  }
  // from_chars would take "inf" and "nan"; only a digit, perhaps behind a point, starts a number
  // here.
  std::string_view digits = text;
  if (!digits.empty() && digits.front() == '-') digits.remove_prefix(1);
  if (!digits.empty() && digits.front() == '.') digits.remove_prefix(1);
  if (digits.empty() || !is_digit(digits.front())) return std::nullopt;
  double value = 0.0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc{}) return std::nullopt;
  return value;
}

int leading_int(std::string_view text) {
  text = skip_blanks(text);
  bool negative = false;
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
    negative = text.front() == '-';
    text.remove_prefix(1);
  }
  constexpr long long kLimit = std::numeric_limits<int>::max();
  long long value = 0;
  for (const char c : text) {
    if (!is_digit(c)) break;
    // At every figure, before it can overflow.
    value = std::min(value * 10 + (c - '0'), kLimit);
  }
  return static_cast<int>(negative ? -value : value);
}

bool is_number(std::string_view text, NumberForm form) {
  const bool has_sign = text.starts_with('+') || text.starts_with('-');
  if (form.sign && has_sign) text.remove_prefix(1);
  const auto point = text.find('.');
  if (form.point == Point::kNone || point == std::string_view::npos) return is_all_digits(text);
  const std::string_view whole = text.substr(0, point);
  const std::string_view decimals = text.substr(point + 1);
  if (decimals.empty()) return form.point != Point::kInside && is_all_digits(whole);
  const bool whole_may_be_missing = form.point == Point::kAnywhere && whole.empty();
  return is_all_digits(decimals) && (whole_may_be_missing || is_all_digits(whole));
}

std::optional<double> strict_number(std::string_view text) {
  constexpr std::size_t kLongest = 12;
  const std::size_t sign = text.starts_with('+') || text.starts_with('-') ? 1 : 0;
  if (text.size() - sign > kLongest || !is_number(text, kTypedDecimal)) return std::nullopt;
  return leading_number(text);
}

std::optional<int> whole_number(std::string_view text, int lowest, int highest) {
  text = trim(text);
  if (!is_all_digits(text)) return std::nullopt;
  const int number = leading_int(text);
  if (number < lowest || number > highest) return std::nullopt;
  return number;
}

std::vector<std::string> numbered_lines(int first, int last, int digits) {
  std::vector<std::string> lines;
  for (int number = first; number <= last; ++number) lines.push_back(format_digits(number, digits));
  return lines;
}

}  // namespace text
