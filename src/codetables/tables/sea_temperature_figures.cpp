#include "codetables/tables/sea_temperature_figures.h"

#include "codetables/tables/temperature_figures.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {

std::optional<Celsius> sea_temperature(std::string_view text) {
  constexpr double kLowest = -2.0;
  constexpr double kHighest = 37.0;
  const auto value = text::strict_number(text::trim(text));
  if (!value || *value < kLowest || *value > kHighest) return std::nullopt;
  return Celsius{*value};
}

SeaTemperatureFigures sea_temperature_figures(Celsius t, SeaTemperatureMethod method) {
  const TemperatureFigures shared = temperature_figures(t);
  return {sea_temperature_sign(method, shared.text.starts_with('-')), shared.figures};
}

std::string sea_temperature_text(std::string_view Ss, std::string_view TwTwTw) {
  if (!text::is_all_digits(TwTwTw)) return {};
  const double degrees = text::leading_int(TwTwTw) / 10.0;
  const bool below_zero = is_below_zero(Ss) && degrees > 0.0;
  return text::format_fixed(below_zero ? -degrees : degrees, 1);
}

std::string sea_temperature_sign(SeaTemperatureMethod method, bool below_zero) {
  return text::format_int(2 * static_cast<int>(method) + (below_zero ? 1 : 0));
}

bool is_below_zero(std::string_view Ss) {
  return sea_temperature_method(Ss) && (Ss.front() - '0') % 2 == 1;
}

std::optional<SeaTemperatureMethod> sea_temperature_method(std::string_view Ss) {
  if (Ss.size() != 1 || kSeaTemperatureSigns.find(Ss) == std::string_view::npos)
    return std::nullopt;
  return static_cast<SeaTemperatureMethod>((Ss.front() - '0') / 2);
}

}  // namespace codetables
