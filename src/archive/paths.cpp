#include "archive/paths.h"

#include <algorithm>

namespace archive {
namespace {

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::string with_backslash(std::string_view folder) {
  while (folder.ends_with('\\')) folder.remove_suffix(1);
  return folder.empty() ? std::string() : std::string(folder) + '\\';
}

std::string without_backslash(std::string_view folder) {
  while (folder.ends_with('\\')) folder.remove_suffix(1);
  return folder.ends_with(':') ? std::string(folder) + '\\' : std::string(folder);
}

std::string join(std::string_view folder, std::string_view name) {
  return with_backslash(folder) + std::string(name);
}

std::string_view first_part(std::string_view& rest) {
  while (rest.starts_with('\\')) rest.remove_prefix(1);
  const std::string_view part = rest.substr(0, rest.find('\\'));
  rest.remove_prefix(part.size());
  return part;
}

bool equal_ignoring_case(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lower(x) == lower(y); });
}

bool comes_before(std::string_view a, std::string_view b) {
  const auto less = [](char x, char y) {
    return static_cast<unsigned char>(lower(x)) < static_cast<unsigned char>(lower(y));
  };
  if (std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), less)) return true;
  return equal_ignoring_case(a, b) && a < b;
}

}  // namespace archive
