#include "codetables/tables/sea_waves.h"

#include <array>

#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {
namespace {

constexpr double kStep = 0.5;

// Two figures from a text of digits.
std::string two_figures(std::string_view digits) {
  return text::format_digits(text::leading_int(digits), 2);
}

// Whole numbers up to a largest one. What is a number of another form is out of range.
CheckedWave check_figures(std::string_view typed, int largest) {
  if (!text::strict_number(typed)) return {};
  const bool taken = text::whole_number(typed, 0, largest).has_value();
  if (!taken) return {WaveCheck::kOutOfRange, {}};
  return {WaveCheck::kTaken, two_figures(typed)};
}

bool is_real_period(std::string_view period) {
  return text::whole_number(period, 1, kLongestWavePeriod).has_value();
}

// "00" and "0.0".
bool is_zero(std::string_view height) {
  return text::strict_number(height) == 0.0;
}

}  // namespace

std::vector<std::string> swell_direction_lines(bool first_swell) {
  std::vector<std::string> lines = text::numbered_lines(1, kNorthInTens, 2);
  if (first_swell) lines.emplace_back(kWaveIndeterminate);
  lines.emplace_back(kWaveUnknown);
  lines.emplace_back(kNoWaves);
  return lines;
}

std::vector<std::string> swell_period_lines() {
  std::vector<std::string> lines = text::numbered_lines(1, kLongestWavePeriodOffered, 2);
  lines.emplace_back(kWaveUnknown);
  return lines;
}

std::vector<std::string> wind_wave_period_lines() {
  std::vector<std::string> lines = swell_period_lines();
  lines.emplace_back(kWaveIndeterminate);
  return lines;
}

std::vector<std::string> wave_height_lines(std::string_view smallest) {
  std::vector<std::string> lines{std::string(smallest)};
  for (int steps = 1; steps * kStep <= kHighestWave; ++steps)
    lines.push_back(text::format_fixed(steps * kStep, 1));
  lines.emplace_back(kWaveUnknown);
  return lines;
}

CheckedWave check_swell_direction(std::string_view typed, bool first_swell) {
  typed = text::trim(typed);
  if (typed == kWaveUnknown || (first_swell && typed == kWaveIndeterminate))
    return {WaveCheck::kTaken, std::string(typed)};
  return check_figures(typed, kNorthInTens);
}

CheckedWave check_wave_period(std::string_view typed, bool wind_wave) {
  typed = text::trim(typed);
  if (typed == kWaveUnknown || (wind_wave && typed == kWaveIndeterminate))
    return {WaveCheck::kTaken, std::string(typed)};
  CheckedWave checked = check_figures(typed, kLongestWavePeriod);
  if (checked.check == WaveCheck::kTaken && text::leading_int(typed) > kLongestWavePeriodOffered)
    checked.check = WaveCheck::kDoubted;
  return checked;
}

CheckedWave check_wave_height(std::string_view typed) {
  typed = text::trim(typed);
  if (typed == kWaveUnknown || typed == kNoWaves) return {WaveCheck::kTaken, std::string(typed)};
  if (text::without_spaces(typed) == "<0.25")
    return {WaveCheck::kTaken, std::string(kSmallestHeight)};
  const auto metres = text::strict_number(typed);
  if (!metres) return {};
  if (*metres < 0.0 || *metres > kHighestWave) return {WaveCheck::kOutOfRange, {}};
  // Zero without the sign that "-0" would leave it.
  return {WaveCheck::kTaken, text::format_fixed(*metres == 0.0 ? 0.0 : *metres, 1)};
}

std::string wave_height_shown(std::string_view height, std::string_view period,
                              std::string_view smallest) {
  const bool is_smallest = height == kSmallestHeight || (is_zero(height) && is_real_period(period));
  return std::string(is_smallest ? smallest : height);
}

bool are_no_waves(std::string_view period, std::string_view height) {
  return period == kNoWaves && is_zero(height);
}

std::string_view probable_wave_height(int beaufort_force) {
  static constexpr std::array<std::string_view, 13> kHeights = {
      " -", "0.1", "0.2", "0.6", "1.0", "2.0", "3.0", "4.0", "5.5", "7.0", "9.0", "11.5", "14.0"};
  return kHeights.at(static_cast<std::size_t>(beaufort_force));
}

}  // namespace codetables
