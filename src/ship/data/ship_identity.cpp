#include "ship/data/ship_identity.h"

#include <algorithm>

#include "text/strings.h"

namespace {

constexpr std::size_t kCallSignLength = 7;
constexpr std::size_t kImoNumberLength = 7;
constexpr std::size_t kManufacturerLength = 60;

bool is_capital_or_digit(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

}  // namespace

std::string tidy_identifier(std::string_view text) {
  return text::without_spaces(text::narrow(text, text::WideSpace::kRemoved));
}

std::string tidy_manufacturer(std::string_view text) {
  // The file fills this field up with "_", so none may be part of it.
  const std::string narrowed = text::replace_all(text::narrow(text), "_", "");
  return std::string(text::trim(narrowed));
}

bool is_call_sign(std::string_view text) {
  // An empty one passes: OK asks for it.
  return text.size() <= kCallSignLength &&
         std::all_of(text.begin(), text.end(), is_capital_or_digit);
}

bool is_imo_number(std::string_view text) {
  return text.empty() || (text.size() == kImoNumberLength && text::is_all_digits(text));
}

bool is_manufacturer(std::string_view text) {
  return text.size() <= kManufacturerLength && std::all_of(text.begin(), text.end(), [](char c) {
           return is_capital_or_digit(c) || c == ' ' || c == '.' || c == ',';
         });
}
