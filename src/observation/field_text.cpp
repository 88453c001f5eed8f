#include "observation/field_text.h"

#include <algorithm>

namespace observation {
namespace {

std::string justified(std::string_view text, std::size_t width, char fill, Spaces spaces) {
  std::string result(width > text.size() ? width - text.size() : 0, fill);
  result.append(text);
  if (spaces == Spaces::kToSolidus) std::replace(result.begin(), result.end(), ' ', '/');
  return result;
}

}  // namespace

void append_normalised(std::string& out, std::string_view field, std::size_t width) {
  const std::size_t before = out.size();
  for (const char c : field)
    if (c != ' ') out.push_back(c);
  if (out.size() == before) out.append(width, '*');
}

std::string normalised(std::string_view field, std::size_t width) {
  std::string result;
  append_normalised(result, field, width);
  return result;
}

std::string right_justified(std::string_view text, std::size_t width, Spaces spaces) {
  return justified(text, width, ' ', spaces);
}

std::string zero_justified(std::string_view text, std::size_t width, Spaces spaces) {
  return justified(text, width, '0', spaces);
}

}  // namespace observation
