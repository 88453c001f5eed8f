#include "elements/formulas/sea_level_pressure.h"

#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

constexpr std::size_t kLongestWhole = 4;
constexpr std::size_t kTooManyDigits = 6;

}  // namespace

ReadingParts split_reading(std::string_view reading) {
  if (reading.empty()) return {};
  const long long tenths = text::truncated(text::leading_number(reading) * 10.0);
  ReadingParts parts{text::format_int(tenths / 10), text::format_int(tenths % 10)};
  if (parts.whole.size() > kLongestWhole) parts.whole = "0";
  return parts;
}

std::string cut_to_one_decimal(std::string_view reading) {
  reading = text::trim(reading);
  if (const auto point = reading.find('.'); point != std::string_view::npos)
    reading = reading.substr(0, point + 2);
  return std::string(reading);
}

bool is_reading(std::string_view reading) {
  if (!text::is_number(reading, {false, text::Point::kInside})) return false;
  const auto point = reading.find('.');
  return point == std::string_view::npos ? reading.size() != kTooManyDigits
                                         : point + 2 == reading.size();
}

Hectopascal sea_level_pressure(Hectopascal reading, const BarometerCard& card,
                               std::optional<Celsius> air) {
  return {reading.value + total_correction(reading, card, air).value};
}

std::optional<SeaLevelPressure> reduce_reading(std::string_view reading, const BarometerCard& card,
                                               std::optional<Celsius> air) {
  const std::string cut = cut_to_one_decimal(reading);
  if (!is_reading(cut)) return std::nullopt;
  const Hectopascal read{text::leading_number(cut)};
  SeaLevelPressure result;
  result.value = sea_level_pressure(read, card, air);
  result.range = codetables::pressure_range(result.value);
  result.reading = codetables::pressure_text(read);
  result.display = codetables::pressure_text(result.value);
  result.pppp = codetables::pppp_of(result.display);
  return result;
}

}  // namespace elements
