#include "text/strings.h"

#include <algorithm>

namespace text {
namespace {

bool is_blank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

bool continues(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// Bytes of the character at the start of a non-empty text.
std::size_t step(std::string_view text) {
  // A stray byte is a character by itself, so that any bytes can be gone through.
  std::size_t n = 1;
  if ((static_cast<unsigned char>(text.front()) & 0xC0U) != 0xC0U) return n;
  while (n < text.size() && n < 4 && continues(text[n])) ++n;
  return n;
}

// Code point of a three-byte character, 0 for any other.
unsigned three_byte(std::string_view one) {
  if (one.size() != 3) return 0;
  const auto byte = [&](std::size_t i) {
    return static_cast<unsigned>(static_cast<unsigned char>(one[i]));
  };
  return ((byte(0) & 0x0FU) << 12U) | ((byte(1) & 0x3FU) << 6U) | (byte(2) & 0x3FU);
}

}  // namespace

std::string_view trim(std::string_view text) {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

std::string_view without_byte_order_mark(std::string_view text) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  while (text.starts_with(kMark)) text.remove_prefix(kMark.size());
  return text;
}

std::string without_spaces(std::string_view text) {
  std::string result(text);
  std::erase(result, ' ');
  return result;
}

std::string replace_all(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  if (from.empty()) return std::string(text);
  for (std::size_t at = text.find(from); at != std::string_view::npos; at = text.find(from)) {
    result.append(text.substr(0, at)).append(to);
    text.remove_prefix(at + from.size());
  }
  return result.append(text);
}

bool is_all_digits(std::string_view text) {
  return !text.empty() &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string narrow(std::string_view text, WideSpace wide_space) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::string_view one = text.substr(0, step(text));
    const unsigned code = three_byte(one);
    if (code >= 0xFF01U && code <= 0xFF5EU) {
      result.push_back(static_cast<char>(code - 0xFEE0U));
    } else if (code == 0x3000U) {
      if (wide_space == WideSpace::kToSpace) result.push_back(' ');
    } else if (code == 0x2212U) {
      result.push_back('-');
    } else {
      result.append(one);
    }
    text.remove_prefix(one.size());
  }
  return result;
}

std::size_t length(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); text.remove_prefix(step(text))) ++count;
  return count;
}

std::string_view first(std::string_view text, std::size_t count) {
  std::size_t bytes = 0;
  for (; count > 0 && bytes < text.size(); --count) bytes += step(text.substr(bytes));
  return text.substr(0, bytes);
}

}  // namespace text
