#include "elements/formulas/barometer_correction.h"

#include <cmath>

#include "text/numbers.h"
#include "text/strings.h"

namespace elements {
namespace {

constexpr double kZeroCelsiusInKelvin = 273.15;
constexpr double kGravity = 9.80665;        // m/s2, standard gravity
constexpr double kGasConstantDry = 287.05;  // J/(kg K)
constexpr double kSmallest = -50.0;         // hPa, accepted
constexpr double kLargest = 80.0;           // hPa, accepted

struct LoadingValues {
  Metre height;
  Hectopascal correction;
};

LoadingValues loading_values(const BarometerCard& card) {
  switch (card.loading_state) {
    case LoadingState::kFullLoad:
      return {{text::leading_number(card.height_full_load)},
              {text::leading_number(card.total_correction_full_load)}};
    case LoadingState::kInBallast:
      return {{text::leading_number(card.height_ballast)},
              {text::leading_number(card.total_correction_ballast)}};
    case LoadingState::kNotChosen:
      break;
  }
  return {};
}

}  // namespace

std::optional<Celsius> air_temperature_of(std::string_view text) {
  const auto degrees = text::number_at_start(text::without_spaces(text));
  if (!degrees) return std::nullopt;
  return Celsius{*degrees};
}

Hectopascal total_correction(Hectopascal reading, const BarometerCard& card,
                             std::optional<Celsius> air) {
  if (card.type == CardType::kTotalCorrection) return {text::leading_number(card.total_correction)};
  if (card.type != CardType::kHeightAndTemperature) return reading;

  const LoadingValues loading = loading_values(card);
  if (!air) return loading.correction;
  const double kelvin = kZeroCelsiusInKelvin + air->value;
  const double instrumental = text::leading_number(card.instrumental_correction);
  const double k = std::exp(kGravity * loading.height.value / (kGasConstantDry * kelvin)) - 1.0;
  const double total = instrumental + (reading.value + instrumental) * k;
  // Written so that a NaN (absolute zero typed as the temperature) falls back as well.
  return total >= kSmallest && total <= kLargest ? Hectopascal{total} : loading.correction;
}

std::string total_correction_text(Hectopascal correction) {
  return with_sign_and_decimal(text::format_fixed(correction.value, 1, 4));
}

std::string with_sign_and_decimal(std::string_view number) {
  std::string result(number);
  if (result.empty() || (result.front() != '+' && result.front() != '-')) result.insert(0, 1, '+');
  const auto point = result.find('.');
  if (point == std::string::npos) {
    result += ".0";
  } else if (point + 1 == result.size()) {
    result += '0';
  }
  if (result.size() < 5) result.insert(1, 1, '0');
  return std::string(text::trim(result));
}

}  // namespace elements
