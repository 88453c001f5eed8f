#pragma once
// The way from figures to words: what the text of a field says, what a group of the report says, and
// what a field accepts. The code tables give the words of the codes (codetables/tables); a measured
// value is its number with its unit.

#include <string>
#include <string_view>

#include "elements/form/entries.h"
#include "elements/form/field_editors.h"
#include "elements/form/fields.h"
#include "observation/report_groups.h"
#include "text/texts.h"

namespace elements {

/// What a text that the field has accepted says: "10km<=VV<20km" of "97", "15.2 °C" of "15.2", that
/// nothing was observed of solidi. Empty for an empty text; a code that its table does not have says
/// so. Any bytes are survived.
[[nodiscard]] std::string words_of(Field field, std::string_view shown, text::Language language);

/// What a group of this record says, symbol by symbol: "h: 300 to 600 m; VV: 10km<=VV<20km". A
/// symbol that has nothing is left out; empty when all of them are.
[[nodiscard]] std::string words_of(observation::Group group, const Struct_Weather& record,
                                   const ShipFixedData& ship, text::Language language);

/// What the field accepts on this day: "90 to 99, //", "-2.0 to 37.0 °C".
[[nodiscard]] std::string accepted_texts(Field field, const Struct_Weather& record,
                                         const platform::Clock& clock, text::Language language);

/// The same between these bounds.
[[nodiscard]] std::string accepted_texts(Field field, Bounds bounds, text::Language language);

/// The group of the report that the field goes to; nothing for one that only the logbook or nobody
/// has.
[[nodiscard]] std::optional<observation::Group> group_of(Field field);

}  // namespace elements
