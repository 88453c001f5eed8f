#pragma once
// The two items on the loading that a VOSClim ship reports beside its observations: how they are
// entered and how they are kept. "" is an item that is not reported.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Characters that can be entered for each; a sign counts.
inline constexpr std::size_t kCargoHeightWidth = 2;
inline constexpr std::size_t kDepartureWidth = 3;

/// Height of the deck cargo above the summer maximum load line, whole metres, as it is kept: two
/// figures ("7" is "07"). Blanks do not count. Nothing for a text that is no height.
[[nodiscard]] std::optional<std::string> kept_cargo_height(std::string_view typed);

/// Departure of the summer maximum load line from the actual sea level, whole metres, positive when
/// the line is above the water, as it is kept: sign and two figures ("5" is "+05", "-3" is "-03").
/// Blanks do not count. Nothing for a text that is no departure, such as a sign alone or three
/// figures.
[[nodiscard]] std::optional<std::string> kept_departure(std::string_view typed);
