#pragma once
// Past weather W1 and W2: what the codes of table 4561 that are ticked give.

#include <array>
#include <string>
#include <string_view>

namespace codetables {

inline constexpr int kNoPastWeather = -1;           ///< not entered
inline constexpr int kPastWeatherNotObserved = 10;  ///< the solidus
inline constexpr int kPastWeatherBoxes = 11;

/// W1 and W2 as numbers: a code 0-9, or one of the two above.
struct PastWeather {
  int W1 = kNoPastWeather;
  int W2 = kNoPastWeather;
  bool operator==(const PastWeather&) const = default;
};

/// One box for each code 0-9, and kPastWeatherNotObserved.
using PastWeatherTicks = std::array<bool, kPastWeatherBoxes>;

/// The boxes of both codes.
[[nodiscard]] PastWeatherTicks past_weather_ticks(const PastWeather& codes);

/// The highest code and the second highest; one alone counts twice, or once beside a W2 that was
/// not observed. Nothing for no tick.
[[nodiscard]] PastWeather past_weather_of(const PastWeatherTicks& ticked);

/// True for the boxes of the amount of cloud, of which one alone can be true.
[[nodiscard]] constexpr bool is_cloud_state(int code) {
  return code >= 0 && code <= 2;
}

/// The record's figure as a number; a text that is none is not entered.
[[nodiscard]] int past_weather_number(std::string_view figure);
/// "0" to "9", "/", or empty.
[[nodiscard]] std::string past_weather_figure(int number);

}  // namespace codetables
