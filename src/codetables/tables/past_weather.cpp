#include "codetables/tables/past_weather.h"

#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {

PastWeatherTicks past_weather_ticks(const PastWeather& codes) {
  PastWeatherTicks ticks{};
  for (const int code : {codes.W1, codes.W2})
    if (code != kNoPastWeather) ticks.at(static_cast<std::size_t>(code)) = true;
  return ticks;
}

PastWeather past_weather_of(const PastWeatherTicks& ticked) {
  PastWeather result;
  for (int code = 0; code < kPastWeatherNotObserved; ++code) {
    if (ticked.at(static_cast<std::size_t>(code))) result = {code, result.W1};
  }
  const bool not_observed = ticked.at(kPastWeatherNotObserved);
  if (result.W1 == kNoPastWeather) {
    if (not_observed) result = {kPastWeatherNotObserved, kPastWeatherNotObserved};
  } else if (result.W2 == kNoPastWeather) {
    result.W2 = not_observed ? kPastWeatherNotObserved : result.W1;
  }
  return result;
}

int past_weather_number(std::string_view figure) {
  if (text::trim(figure) == "/") return kPastWeatherNotObserved;
  return text::whole_number(figure, 0, 9).value_or(kNoPastWeather);
}

std::string past_weather_figure(int number) {
  if (number == kPastWeatherNotObserved) return "/";
  return number == kNoPastWeather ? std::string() : text::format_int(number);
}

}  // namespace codetables
