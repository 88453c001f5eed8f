#pragma once
// The groups that the form has no field for: some of sections 1 and 2, and all of section 3 and the
// sections behind.

#include <string_view>

#include "explain/plain/sentence.h"

namespace explain {

/// Where in a report a word stands.
enum class Section { kOne, kTwo, kThree, kFour, kFive };

/// Adds what a group without a field says, five figures and solidi; `before` is the group in front
/// of it, which a wind above 99 units belongs to.
void say_other_group(Sentence& sentence, const Heard& heard, Section section,
                     std::string_view figures, std::string_view before);

/// The sea-level figures of a group tell the same as those of another height: 0132 is 1013.2.
void say_station_pressure(Sentence& sentence, std::string_view figures);

}  // namespace explain
