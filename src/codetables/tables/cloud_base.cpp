#include "codetables/tables/cloud_base.h"

#include <algorithm>
#include <iterator>

#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {
namespace {

// Where the classes 0 to 9 begin. The last one has no end: it is shown as its beginning.
constexpr int kTable1600[] = {0, 50, 100, 200, 300, 600, 1000, 1500, 2000, 2500};

}  // namespace

std::string cloud_base_metres(std::string_view h) {
  if (h.size() != 1 || !text::is_all_digits(h)) return {};
  const auto code = static_cast<std::size_t>(h.front() - '0');
  const bool is_last = code + 1 == std::size(kTable1600);
  return text::format_int(is_last ? kTable1600[code] : kTable1600[code + 1] - 1);
}

std::string cloud_base_code(std::string_view metres) {
  if (!text::is_all_digits(metres)) return std::string(metres);
  const auto* const above =
      std::upper_bound(std::begin(kTable1600), std::end(kTable1600), text::leading_int(metres));
  return text::format_int(std::distance(std::begin(kTable1600), above) - 1);
}

}  // namespace codetables
