#pragma once
// Wind waves and swell as an observer enters them: periods in seconds, heights in metres, swell
// directions in tens of degrees. "//" is unknown everywhere, "00" no waves.

#include <string>
#include <string_view>
#include <vector>

namespace codetables {

inline constexpr int kNorthInTens = 36;               ///< tens of degrees, the highest direction
inline constexpr int kLongestWavePeriod = 29;         ///< seconds; longer ones are no sea waves
inline constexpr int kLongestWavePeriodOffered = 25;  ///< seconds; a dialog doubts longer ones
inline constexpr double kHighestWave = 14.5;          ///< metres
inline constexpr std::string_view kNoWaves = "00";    ///< as a direction, a period or a height
inline constexpr std::string_view kWaveUnknown = "//";
inline constexpr std::string_view kWaveIndeterminate =
    "99";  ///< confused: no one direction or period
/// The height of waves below a quarter of a metre; the report has "00" beside their period.
inline constexpr std::string_view kSmallestHeight = "0.2";

/// The lines to choose from. The smallest height is offered as `smallest`.
[[nodiscard]] std::vector<std::string> swell_direction_lines(bool first_swell);
[[nodiscard]] std::vector<std::string> swell_period_lines();
[[nodiscard]] std::vector<std::string> wind_wave_period_lines();
[[nodiscard]] std::vector<std::string> wave_height_lines(std::string_view smallest);

enum class WaveCheck {
  kTaken,
  kNoNumber,  ///< empty, or no number
  kOutOfRange,
  kDoubted,  ///< a period longer than those that are offered
};

/// What was typed, and the text that is kept of it when it is taken.
struct CheckedWave {
  WaveCheck check = WaveCheck::kNoNumber;
  std::string text;
};

/// 01 to 36, "//" and "00"; of the first swell "99" too. One figure gets its zero.
[[nodiscard]] CheckedWave check_swell_direction(std::string_view typed, bool first_swell);
/// 00 to 29 and "//"; of wind waves "99" too. One figure gets its zero.
[[nodiscard]] CheckedWave check_wave_period(std::string_view typed, bool wind_wave);
/// 0.0 to 14.5 and "//", kept with one decimal; "00" stays. A height written as less than 0.25,
/// with any blanks, is the smallest.
[[nodiscard]] CheckedWave check_wave_height(std::string_view typed);

/// How a dialog shows a height that the form has: the smallest as `smallest`, and so a height of
/// zero beside a real period, which is what the report says of it.
[[nodiscard]] std::string wave_height_shown(std::string_view height, std::string_view period,
                                            std::string_view smallest);

/// True when period and height say that there are no waves.
[[nodiscard]] bool are_no_waves(std::string_view period, std::string_view height);

/// The probable height of the wind waves in the open sea at this Beaufort force (0 to 12), metres
/// with one decimal; " -" for force 0.
[[nodiscard]] std::string_view probable_wave_height(int beaufort_force);

}  // namespace codetables
