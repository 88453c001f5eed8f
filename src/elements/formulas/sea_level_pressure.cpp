#include "elements/formulas/sea_level_pressure.h"

#include "elements/formulas/rounding.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

constexpr std::size_t kFigures = 4;
constexpr std::size_t kTooManyDigits = 6;

}  // namespace

ReadingParts split_reading(std::string_view reading) {
  if (reading.empty()) return {};
  const long long tenths = truncated(text::leading_number(reading) * 10.0);
  ReadingParts parts{text::format_int(tenths / 10), text::format_int(tenths % 10)};
  if (parts.whole.size() > kFigures) parts.whole = "0";
  return parts;
}

std::string cut_to_one_decimal(std::string_view reading) {
  reading = text::trim(reading);
  if (const auto point = reading.find('.'); point != std::string_view::npos)
    reading = reading.substr(0, point + 2);
  return std::string(reading);
}

bool is_reading(std::string_view reading) {
  const auto point = reading.find('.');
  if (point == std::string_view::npos)
    return text::is_all_digits(reading) && reading.size() != kTooManyDigits;
  return text::is_all_digits(reading.substr(0, point)) && point + 2 == reading.size() &&
         text::is_all_digits(reading.substr(point + 1));
}

PressureRange pressure_range(Hectopascal sea_level) {
  const double value = sea_level.value;
  if (!(value >= 870.0 && value < 1070.0)) return PressureRange::kRefused;
  return value < 930.0 || value > 1050.0 ? PressureRange::kAsks : PressureRange::kAccepted;
}

PressureRange pppp_range(int pppp) {
  const auto in = [pppp](int low, int high) { return pppp >= low && pppp <= high; };
  if (in(0, 500) || in(9300, 9999)) return PressureRange::kAccepted;
  return in(501, 700) || in(8700, 9299) ? PressureRange::kAsks : PressureRange::kRefused;
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
  result.range = pressure_range(result.value);
  result.reading = text::format_fixed(read.value, 1, 6, '0');
  result.display = text::format_fixed(result.value.value, 1, 6, '0');
  result.pppp = pppp_of(result.display);
  return result;
}

std::string pppp_of(std::string_view pressure) {
  std::string figures(pressure);
  std::erase(figures, '.');
  if (figures.size() > kFigures) return figures.substr(figures.size() - kFigures);
  figures.insert(0, kFigures - figures.size(), '0');
  return figures;
}

void store_pppp(Struct_Weather& record, const std::string& pppp) {
  if (!pppp.empty() && pppp != record.PPPP) record.a.clear();
  record.PPPP = pppp;
}

}  // namespace elements
