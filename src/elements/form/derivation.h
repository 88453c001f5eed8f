#pragma once
// What follows from entries on a ship: the pressure at sea level of the reading, the dew point of
// the bulbs, the humidity of air and dew point, the true wind of the apparent one, and the VOSClim
// values, which are what the fields of the apparent wind say (vosclim_fields.h).
//
// A value is computed from what is accepted in the fields alone, with two exceptions that history
// forces, both told by Entries: a pressure that was typed over the reduced one stays, and so do a
// dew point that no bulbs gave and, while the air is too dry for the formula, that of earlier
// bulbs.

#include <optional>

#include "elements/form/entries.h"
#include "elements/formulas/true_wind.h"

namespace elements {

/// The entries with what follows computed anew. A reading that gives an impossible pressure now is
/// marked wrong, and the pressure stays. Figures may differ then from what their fields show: see
/// show_changes().
[[nodiscard]] Entries derived(Entries entries, const ShipFixedData& ship, Follows what);

/// The dew point that the bulbs give; nothing when one is missing or the air is too dry.
[[nodiscard]] std::optional<Celsius> dew_point_of_bulbs(const Entries& entries,
                                                        const ShipFixedData& ship);
/// True when the record's dew point is what the bulbs gave when they last gave one.
[[nodiscard]] bool dew_point_is_of_bulbs(const Entries& entries);

/// The true wind of the accepted entries, nothing when one is missing.
[[nodiscard]] std::optional<TrueWindTexts> true_wind_of(const Entries& entries);

}  // namespace elements
