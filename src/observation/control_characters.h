#pragma once
// Control characters have no place in a report or in a line of the logbook: a line end tears one
// record into two, a tab or an escape is read as something else by whoever receives it. The
// encoders copy the fields as they stand, so whoever is about to encode asks here first.

#include <optional>
#include <string_view>

#include "observation/Struct_Weather.h"

namespace observation {

/// The first text field that holds a control character (a byte below 0x20, or 0x7F), by the name
/// that observation files give it: "CallSign", "TTT", "ship.imo_number". Nothing when the report
/// and the line come out without one. Every field of the record counts, those of the ship that the
/// logbook copies.
[[nodiscard]] std::optional<std::string_view> control_character_field(const Struct_Weather& record,
                                                                      const ShipFixedData& ship);

}  // namespace observation
