#include "ship/data/vosclim_loading.h"

#include "text/strings.h"

namespace {

// Figures, at most so many, filled up with zeros.
std::optional<std::string> filled(std::string_view figures, std::size_t width) {
  if (!text::is_all_digits(figures) || figures.size() > width) return std::nullopt;
  std::string result(width - figures.size(), '0');
  return result.append(figures);
}

}  // namespace

std::optional<std::string> kept_cargo_height(std::string_view typed) {
  const std::string height = text::without_spaces(typed);
  if (height.empty()) return height;
  return filled(height, kCargoHeightWidth);
}

std::optional<std::string> kept_departure(std::string_view typed) {
  std::string departure = text::without_spaces(typed);
  if (departure.empty()) return departure;
  const bool has_sign = departure.front() == '+' || departure.front() == '-';
  const char sign = has_sign ? departure.front() : '+';
  if (has_sign) departure.erase(0, 1);
  // Beside the sign there is room for two figures: 123 m would not fit.
  auto figures = filled(departure, kDepartureWidth - 1);
  if (figures) figures->insert(figures->begin(), sign);
  return figures;
}
