#include "codetables/tables/visibility.h"

#include <algorithm>
#include <iterator>

#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {
namespace {

// Where the classes 90 to 99 begin. The last one has no end: it is shown as kFarthest.
constexpr int kTable4377[] = {0, 50, 200, 500, 1000, 2000, 4000, 10000, 20000, 50000};
constexpr int kFarthest = 59999;

}  // namespace

std::string visibility_metres(std::string_view vv) {
  if (vv == "//") return {};
  if (vv.size() != 2 || vv[0] != '9' || !text::is_all_digits(vv)) return std::string(vv);
  const auto code = static_cast<std::size_t>(vv[1] - '0');
  const bool is_last = code + 1 == std::size(kTable4377);
  return text::format_int(is_last ? kFarthest : kTable4377[code + 1] - 1);
}

std::string visibility_code(std::string_view metres) {
  if (!text::is_all_digits(metres)) return std::string(metres);
  const auto* const above =
      std::upper_bound(std::begin(kTable4377), std::end(kTable4377), text::leading_int(metres));
  return text::format_int(90 + std::distance(std::begin(kTable4377), above) - 1);
}

}  // namespace codetables
