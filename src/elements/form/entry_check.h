#pragma once
// May a typed text be taken into its field? The field's own test, the rules that it must keep with
// other elements, and last the questions: nobody confirms a value that is then refused.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "elements/form/answer.h"
#include "elements/form/entries.h"
#include "elements/form/field_editors.h"

namespace elements {

struct CheckedEntry {
  Answer answer;
  std::string value;  ///< as the field is to show it, when accepted
};
/// A trimmed text, not empty, for a field of the entries. Nothing is changed.
[[nodiscard]] CheckedEntry check_entry(const Entries& entries, const Surroundings& around,
                                       Field field, std::string_view typed, Confirmed confirmed);

// The parts of it that a typed group needs too.

/// Bounds of this record and this day; nothing where those of the field's row hold.
[[nodiscard]] std::optional<Bounds> bounds_of(Field field, const Struct_Weather& record,
                                              const platform::Clock& clock);
/// The notice that names what the field accepts.
[[nodiscard]] Notice range_notice(Field field, const Struct_Weather& record,
                                  const platform::Clock& clock);
/// The first question that is not confirmed yet; accepted when all are.
[[nodiscard]] Answer asked(const std::vector<text::Id>& questions, Confirmed confirmed);
/// The question that relates an accepted value to the record, or none.
[[nodiscard]] text::Id question_about(Field field, const std::string& value,
                                      const Struct_Weather& record);
/// A pressure at sea level: hPa, or the figures PPPP. The value is as the field is to show it; the
/// answer may be a question.
[[nodiscard]] CheckedEntry check_pressure(std::string_view typed);

/// True when the field's own test would take what is accepted in it; also for what no entry can be
/// tested on: nothing, solidi, the year, whose bounds are those of new observations, and a code that
/// only the element's dialog offers.
[[nodiscard]] bool is_acceptable(const Entries& entries, const Surroundings& around, Field field);

/// What a change of the month or year, or of the degrees, has made impossible: the day that the
/// month does not have, and minutes beyond the pole and the date line. The entry that was changed
/// is right; it is this one that is to be corrected.
[[nodiscard]] bool is_impossible(Field field, const Struct_Weather& record);

}  // namespace elements
