#pragma once
// One observation to the text of a ship report (FM 13 SHIP) and the list of what still lacks input.

#include <string>
#include <vector>

#include "observation/Struct_Weather.h"
#include "observation/report_groups.h"
#include "text/texts.h"

namespace observation {

/// True when a save asks for the wet-bulb group: the dew point is computed from dry and wet bulb.
[[nodiscard]] bool wants_wet_bulb(const ShipFixedData& ship);

/// Appends the report to `message`, "BBXX" to "....."; every "*" of the message ends as "/".
/// Replaces `missing` by one line for each group with an empty field, in the order of the message,
/// each ended by CR LF; groups that were left out for having nothing in them are noted too, the
/// wet-bulb group only when asked for. Always 0.
int encode_report(const Struct_Weather& record, std::string& message, std::string& missing,
                  bool wet_bulb_wanted, text::Language language);

/// The groups that encode_report() writes, in order.
[[nodiscard]] std::vector<Group> groups_in_report(const Struct_Weather& record,
                                                  bool wet_bulb_wanted);

}  // namespace observation
