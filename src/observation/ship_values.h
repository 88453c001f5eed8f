#pragma once
// The ship's fixed data and the observation items by the names that observation files use.

#include <cstdint>
#include <string_view>

#include "ship/data/KeyObservationItems.h"
#include "ship/data/ShipFixedData.h"

namespace observation {

enum class Stored : std::uint8_t {
  kStored,
  kUnknownName,
  kBadNumber,    ///< a number was wanted and the text is none
  kNotStorable,  ///< outside the range or the characters that the item can hold
};

/// Sets the item called `name` ("call_sign", "card_type", ...). Methods and states are given by
/// their numbers: wave_recorder and vosclim 0 = yes and 1 = no, aws_fitted 0 = no and 1 = yes,
/// card_type, loading_state and sea_temperature_method also -1 for none. A refusal changes nothing.
[[nodiscard]] Stored store_ship_value(ShipFixedData& ship, std::string_view name,
                                      std::string_view value);

/// Sets the observation item called `name` ("h", "VV", ..., "ciSibiDizi"): 0 = observed, 1 = not. A
/// refusal changes nothing.
[[nodiscard]] Stored store_item_value(KeyObservationItems& items, std::string_view name,
                                      std::string_view value);

/// A call sign that a report can hold: printable ASCII without blanks and without "=", "." and "&",
/// which would end or break the report.
[[nodiscard]] bool is_report_call_sign(std::string_view text);

}  // namespace observation
