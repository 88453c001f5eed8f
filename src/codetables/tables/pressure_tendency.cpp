#include "codetables/tables/pressure_tendency.h"

#include <algorithm>

#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {
namespace {

constexpr std::string_view kUnknownCode = "/";

bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace

TendencyKind tendency_kind(std::string_view a, std::string_view amount) {
  if (a == kUnknownCode) return TendencyKind::kUnknown;
  const int code = text::leading_int(a);
  const TendencyKind by_code = code > 3 ? TendencyKind::kDescended : TendencyKind::kRisen;
  if (!text::number_at_start(amount))
    return code == 0 || code == 4 || code == 5 ? TendencyKind::kSame : by_code;
  const int whole = text::leading_int(amount);
  if (whole == 0) return TendencyKind::kSame;
  return whole > 0 ? by_code : TendencyKind::kDescended;
}

std::string_view characteristics(TendencyKind kind) {
  switch (kind) {
    case TendencyKind::kRisen:
      return "0123";
    case TendencyKind::kSame:
      return "045";
    case TendencyKind::kDescended:
      return "5678";
    case TendencyKind::kUnknown:
      break;
  }
  return kUnknownCode;
}

int characteristic_line(TendencyKind kind, std::string_view a) {
  const std::string_view codes = characteristics(kind);
  const auto at = a.size() == 1 ? codes.find(a) : std::string_view::npos;
  return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

std::string characteristic(TendencyKind kind, int line, std::string_view otherwise) {
  if (kind == TendencyKind::kUnknown) return std::string(kUnknownCode);
  const std::string_view codes = characteristics(kind);
  if (line < 0 || static_cast<std::size_t>(line) >= codes.size()) return std::string(otherwise);
  return std::string(codes.substr(static_cast<std::size_t>(line), 1));
}

bool is_tendency_amount(std::string_view amount) {
  if (amount.empty()) return true;
  if (!is_digit(amount.front()) || amount.back() == '.') return false;
  return std::all_of(amount.begin(), amount.end(),
                     [](char c) { return is_digit(c) || c == '.' || c == '-'; });
}

std::string tendency_amount_text(std::string_view amount) {
  if (amount.empty()) return {};
  return text::replace_all(text::format_fixed(text::leading_number(amount), 1, 4), " ", "0");
}

TendencyCheck check_tendency(std::string_view a, std::string_view amount) {
  if (amount.empty()) return TendencyCheck::kAccepted;
  const long long tenths = text::truncated(text::leading_number(amount) * 10.0);
  if (a == "4" && tenths != 0) return TendencyCheck::kSteadyWithAmount;
  if (tenths > 250) return TendencyCheck::kTooLarge;
  return tenths > 150 ? TendencyCheck::kAsks : TendencyCheck::kAccepted;
}

std::string tendency_shown(std::string_view ppp) {
  if (!text::is_all_digits(ppp)) return std::string(ppp);
  return tendency_amount_text(text::format_fixed(text::leading_number(ppp) / 10.0, 1));
}

std::string tendency_stored(std::string_view amount) {
  if (amount.empty() || !is_tendency_amount(amount)) return std::string(amount);
  std::string figures = tendency_amount_text(amount);
  std::erase(figures, '.');
  return figures;
}

}  // namespace codetables
