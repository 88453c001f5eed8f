#include "codetables/tables/pressure_figures.h"

#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {
namespace {

constexpr std::size_t kFigures = 4;

// The thousands are dropped in the report; no possible pressure lies near 500 hPa or 1500 hPa.
double hectopascal_of(int pppp) {
  constexpr int kNoThousands = 5000;
  return (pppp < kNoThousands ? pppp + 10000 : pppp) / 10.0;
}

}  // namespace

PressureRange pressure_range(Hectopascal sea_level) {
  constexpr double kLowestUsual = 930.0;
  constexpr double kHighestUsual = 1050.0;
  const double value = sea_level.value;
  if (!(value >= kLowestPressure && value < kBeyondPressures)) return PressureRange::kRefused;
  return value < kLowestUsual || value > kHighestUsual ? PressureRange::kAsks
                                                       : PressureRange::kAccepted;
}

PressureRange pppp_range(int pppp) {
  if (pppp < 0 || pppp > 9999) return PressureRange::kRefused;
  const double value = hectopascal_of(pppp);
  return value == kBeyondPressures ? PressureRange::kAsks : pressure_range({value});
}

std::string pressure_text(Hectopascal pressure) {
  return text::format_fixed(pressure.value, 1, 6, '0');
}

std::string pppp_of(std::string_view pressure) {
  std::string figures(pressure);
  std::erase(figures, '.');
  if (figures.size() > kFigures) return figures.substr(figures.size() - kFigures);
  figures.insert(0, kFigures - figures.size(), '0');
  return figures;
}

std::string pressure_shown(std::string_view pppp) {
  if (!text::is_all_digits(pppp)) return std::string(pppp);
  return pressure_text({hectopascal_of(text::leading_int(pppp))});
}

}  // namespace codetables
