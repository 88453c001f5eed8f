#pragma once
// What is added to a barometer reading to give the pressure at sea level.

#include <optional>
#include <string>
#include <string_view>

#include "elements/formulas/units.h"
#include "ship/data/ShipFixedData.h"

namespace elements {

/// The temperature of a field's text with every space removed; nothing when that leaves it empty.
/// The number at the start of the text counts.
[[nodiscard]] std::optional<Celsius> air_temperature_of(std::string_view text);

/// Total correction of a barometer reading, in hPa. Never NaN.
///
/// Card type "2" is its fixed correction. Card type "1" corrects the reading for the instrument and
/// reduces it over the barometer's height with the air temperature as the mean of the air column
/// (hydrostatic equation of an isothermal atmosphere, standard gravity, gas constant of dry air);
/// where the result lies outside -50 to 80 hPa, or there is no temperature, the card's correction
/// for the loading state takes its place. No loading state chosen: its height and correction count
/// as empty, that is as 0.
/// Without a card the reading itself comes back: odd and intended, for the range check then refuses
/// the doubled pressure and so sends the observer to the card.
[[nodiscard]] Hectopascal total_correction(Hectopascal reading, const BarometerCard& card,
                                           std::optional<Celsius> air);

/// A total correction for display: a plus sign, a blank and "1.2", but "-01.2", "+12.3". The
/// positive value keeps the blank of its number format, the negative one is filled with a zero.
[[nodiscard]] std::string total_correction_text(Hectopascal correction);

/// The second half of that: sign in front, a decimal behind, a zero after the sign up to five
/// characters, no blanks at the ends.
[[nodiscard]] std::string with_sign_and_decimal(std::string_view number);

}  // namespace elements
