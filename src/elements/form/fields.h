#pragma once
// The entry fields of the main form, by name. A field holds what a person reads and types (hPa,
// degrees, metres, knots); the record holds code figures.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "ship/data/KeyObservationItems.h"

namespace elements {

/// In the form's tab order.
enum class Field : std::uint8_t {
  kYear,
  kMonth,
  kYY,
  kGG,
  kGGExact,
  kgg,
  kLaDeg,
  kLaMin,
  kLoDeg,
  kLoMin,
  kDs,
  kVs,
  kReading,  ///< barometer reading, hPa
  kPPPP,     ///< pressure at sea level, hPa; four figures typed without a point are the code
  ka,
  kppp,      ///< hPa
  kDryBulb,  ///< psychrometer, degrees Celsius
  kWetBulb,
  kAirTemperature,  ///< beside a dew point read directly
  kDewPoint,
  kHumidity,  ///< percent
  kdd,
  kff,  ///< knots; 99 and more go to fff
  kApparentDirection,
  kApparentSpeed,
  kHeading,
  kCourse,
  kShipSpeed,
  kTwTwTw,  ///< degrees Celsius
  kPwPw,
  kHwHw,  ///< metres
  kdw1dw1,
  kPw1Pw1,
  kHw1Hw1,
  kdw2dw2,
  kPw2Pw2,
  kHw2Hw2,
  kPwaPwa,
  kHwaHwa,
  kVV,
  kww,
  kW1,
  kW2,
  kN,
  kNh,
  kCH,
  kCM,
  kCL,
  kh,  ///< metres
  kIs,
  kEsEs,
  kRs,
  kci,
  kSi,
  kbi,
  kDi,
  kzi,
};
inline constexpr std::size_t kFields = 57;

/// The field's name on the form and in scripts ("YY", "reading", "dry_bulb").
[[nodiscard]] std::string_view name_of(Field field);
[[nodiscard]] std::optional<Field> field_named(std::string_view name);

/// The observation item whose "Not observed" switches the field off; none for most.
[[nodiscard]] std::optional<ObservationItem> item_of(Field field);

/// What only a wave recorder measures.
[[nodiscard]] bool needs_wave_recorder(Field field);

}  // namespace elements
