#pragma once
// One observation to one line of the marine meteorological logbook (IMMT-5, 172 columns).

#include <string>

#include "observation/Struct_Weather.h"
#include "observation/logbook_columns.h"

namespace observation {

/// The line without its line end. It is 172 characters long but for two gaps that are kept on
/// purpose: a temperature unit or a sea-temperature method that the format does not know writes
/// nothing, and the columns behind it move one to the left.
[[nodiscard]] std::string encode_logbook(const Struct_Weather& record, const ShipFixedData& ship,
                                         const KeyObservationItems& items);

}  // namespace observation
