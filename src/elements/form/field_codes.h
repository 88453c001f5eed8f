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

/// What the field shows for the record; empty for fields that the record does not hold.
[[nodiscard]] std::string shown_from_record(Field field, const Struct_Weather& record);

/// Stores PPPP. A changed pressure invalidates the characteristic of the tendency, so `a` is
/// cleared; the same value again, or an emptied one, leaves it.
void store_pppp(Struct_Weather& record, const std::string& pppp);

}  // namespace elements
