#include "codetables/tables/code_metres.h"

#include "elements/formulas/rounding.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

constexpr std::string_view kTable4377[] = {"49",   "199",  "499",   "999",   "1999",
                                           "3999", "9999", "19999", "49999", "59999"};
constexpr std::string_view kTable1600[] = {"49",  "99",   "199",  "299",  "599",
                                           "999", "1499", "1999", "2499", "2500"};

}  // namespace

std::string visibility_metres(std::string_view vv) {
  if (vv == "//") return {};
  if (vv.size() == 2 && vv[0] == '9' && text::is_all_digits(vv))
    return std::string(kTable4377[vv[1] - '0']);
  return std::string(vv);
}

std::string cloud_base_metres(std::string_view h) {
  if (h.size() != 1 || !text::is_all_digits(h)) return {};
  return std::string(kTable1600[h[0] - '0']);
}

std::string half_metre_figures(std::string_view metres) {
  if (metres.empty() || metres == "//") return std::string(metres);
  return text::format_digits(truncated(text::leading_number(metres) * 2.0 + 0.5), 2);
}

std::string metres_of_figures(std::string_view figures) {
  if (!text::is_all_digits(figures)) return std::string(figures);
  return text::format_fixed(text::leading_number(figures) / 2.0, 1);
}

}  // namespace elements
