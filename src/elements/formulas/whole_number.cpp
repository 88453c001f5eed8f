#include "elements/formulas/whole_number.h"

#include "text/numbers.h"
#include "text/strings.h"

namespace elements {

std::optional<int> whole_number(std::string_view text, int lowest, int highest) {
  text = text::trim(text);
  if (!text::is_all_digits(text)) return std::nullopt;
  const int number = text::leading_int(text);
  if (number < lowest || number > highest) return std::nullopt;
  return number;
}

std::vector<std::string> two_figure_lines(int first, int last) {
  std::vector<std::string> lines;
  for (int number = first; number <= last; ++number)
    lines.push_back(text::format_digits(number, 2));
  return lines;
}

}  // namespace elements
