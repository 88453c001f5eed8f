#include "paper/characters.h"

#include "ui/printer.h"

namespace paper {
namespace {

constexpr char32_t kNone = 0xFFFD;

bool is_continuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// Controls of both kinds, and marks that turn the direction of writing.
bool is_no_letter(char32_t code) {
  return code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x200E || code == 0x200F ||
         (code >= 0x2028 && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

// The first character of a text that is not empty, and its bytes.
struct Step {
  char32_t code = kNone;
  std::size_t bytes = 1;
};
Step step_at(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  if (lead < 0x80) return {lead, 1};
  const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
  if (size == 1 || text.size() < size) return {};
  char32_t code = lead & (0xFFU >> (size + 1));
  for (std::size_t i = 1; i < size; ++i) {
    if (!is_continuation(text[i])) return {};
    code = (code << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  const bool exists = code < 0x110000 && (code < 0xD800 || code > 0xDFFF);
  return {exists ? code : kNone, size};
}

}  // namespace

std::vector<Character> characters_of(std::string_view utf8) {
  std::vector<Character> characters;
  characters.reserve(utf8.size());
  while (!utf8.empty()) {
    const Step step = step_at(utf8);
    // Nearly all there is, and quickly told.
    const std::size_t columns = step.bytes == 1 ? 1 : ui::columns_of(utf8.substr(0, step.bytes));
    characters.push_back({is_no_letter(step.code) ? U' ' : step.code, columns});
    utf8.remove_prefix(step.bytes);
  }
  return characters;
}

}  // namespace paper
