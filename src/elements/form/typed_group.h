#pragma once
// Typing a whole group of the report: each of its symbols goes through its field's test.

#include <string_view>
#include <vector>

#include "elements/form/answer.h"
#include "elements/form/entries.h"
#include "observation/report_groups.h"

namespace elements {

struct TypedGroup {
  Answer answer;
  Struct_Weather record;       ///< as it is with the group, when accepted
  std::vector<Field> changed;  ///< whose values are others: what follows from them is due
};

/// What a group typed over the entries' record gives; see ObservationForm::leave().
[[nodiscard]] TypedGroup type_group(const Struct_Weather& before, const Surroundings& around,
                                    observation::Group group, std::string_view typed,
                                    Confirmed confirmed);

}  // namespace elements
