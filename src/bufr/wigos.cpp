#include "bufr/wigos.h"

#include <algorithm>
#include <array>
#include <optional>

#include "text/numbers.h"
#include "text/strings.h"

namespace bufr {
namespace {

struct Part {
  const char* name;
  int highest;  ///< all ones of the element's bits mean missing
  int WigosIdentifier::*member;
};

constexpr std::array<Part, 3> kParts{{{"series", 14, &WigosIdentifier::series},
                                      {"issuer", 65534, &WigosIdentifier::issuer},
                                      {"issue number", 65534, &WigosIdentifier::issue}}};
constexpr std::size_t kLongestLocal = 16;

bool is_letter_or_figure(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

std::variant<WigosIdentifier, std::string> wigos_identifier(std::string_view text) {
  WigosIdentifier result;
  for (const Part& part : kParts) {
    const auto end = text.find('-');
    if (end == std::string_view::npos)
      return std::string("it has four parts, series-issuer-issue-local");
    const std::string_view figures = text.substr(0, end);
    const auto number =
        text::is_all_digits(figures) ? text::whole_number(figures, 0, part.highest) : std::nullopt;
    if (!number)
      return std::string("the ")
          .append(part.name)
          .append(" is a number from 0 to ")
          .append(std::to_string(part.highest));
    result.*part.member = *number;
    text.remove_prefix(end + 1);
  }
  if (text.empty() || text.size() > kLongestLocal ||
      !std::all_of(text.begin(), text.end(), is_letter_or_figure))
    return std::string("the local identifier is 1 to 16 letters and figures");
  result.local = text;
  return result;
}

}  // namespace bufr
