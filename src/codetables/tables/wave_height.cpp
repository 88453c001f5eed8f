#include "codetables/tables/wave_height.h"

#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {

std::string half_metre_figures(std::string_view metres) {
  if (metres.empty() || metres == "//") return std::string(metres);
  return text::format_digits(text::truncated(text::leading_number(metres) * 2.0 + 0.5), 2);
}

std::string metres_of_figures(std::string_view figures) {
  if (!text::is_all_digits(figures)) return std::string(figures);
  return text::format_fixed(text::leading_number(figures) / 2.0, 1);
}

}  // namespace codetables
