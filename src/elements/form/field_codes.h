#pragma once
// Between what a field of the form shows (metres, hPa, degrees) and the code figures of the record.

#include <string>
#include <string_view>

#include "elements/form/fields.h"
#include "observation/Struct_Weather.h"

namespace elements {

/// The figures for the member of a field whose codec needs nothing but the text: half metres for
/// wave heights, code table 1600 for the cloud base, tenths for the tendency; all others as they
/// are shown.
[[nodiscard]] std::string figures_of(Field field, std::string_view shown);

/// True for a wet bulb below 0 degrees, iced or not.
[[nodiscard]] bool wet_bulb_is_negative(const Struct_Weather& record);

/// What the field shows for the record; empty for fields that the record does not hold.
[[nodiscard]] std::string shown_from_record(Field field, const Struct_Weather& record);

/// "-1.8" from "1" and "018"; figures that are no number come back as they are.
[[nodiscard]] std::string temperature_shown(std::string_view sign, std::string_view figures);

/// Sea-level pressure in hPa from PPPP: "1015.6" from "0156", "998.7" from "9987".
[[nodiscard]] std::string pressure_shown(std::string_view pppp);

/// Code table 1600 from a height in metres: the class whose lower limit it reaches. "/" stays.
[[nodiscard]] std::string cloud_base_code(std::string_view metres);

/// Quadrant (code table 3333) of hemispheres: 0 north or east, 1 south or west; empty when one is
/// not chosen.
[[nodiscard]] std::string quadrant_of(int north_south, int east_west);
/// And back; -1 for anything but a quadrant.
[[nodiscard]] int north_south_of(std::string_view quadrant);
[[nodiscard]] int east_west_of(std::string_view quadrant);

}  // namespace elements
