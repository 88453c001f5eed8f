#pragma once
// What the groups say that the form has fields for: one row of functions for each.

#include <string_view>

#include "explain/plain/sentence.h"
#include "observation/report_groups.h"

namespace explain {

/// Adds what the group says; the record holds what it carried.
void say_group(Sentence& sentence, const Heard& heard, observation::Group group);

/// The elements of the group, where it is missing from a report.
[[nodiscard]] text::Id name_of_missing(observation::Group group);

/// A ship usually sends the group, judged by what she sent.
[[nodiscard]] bool is_usual(const Heard& heard, observation::Group group);

}  // namespace explain
