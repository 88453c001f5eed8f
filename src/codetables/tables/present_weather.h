#pragma once
// How present weather ww is chosen: one of three answers, a group of codes, a line of the group.

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "codetables/tables/code_tables.h"

namespace codetables {

/// The codes `first` to `last` of table 4677, as one line of the list of groups.
struct PresentWeatherGroup {
  int first = 0;
  int last = 0;
  text::Id text;
};

/// Where a code stands. Each is a line of its list; -1 is none.
struct PresentWeatherPlace {
  /// Precipitation at the time of observation (0), none (1), weather not observed (2).
  int choice = -1;
  int group = -1;
  int line = -1;
  bool operator==(const PresentWeatherPlace&) const = default;
};
inline constexpr int kWeatherNotObserved = 2;  ///< the choice that needs no group

/// The groups that a choice offers, in the order of the list; none without one and for the last.
[[nodiscard]] std::span<const PresentWeatherGroup> present_weather_groups(int choice);

/// The lines of table 4677 that a group offers; none for a group that the choice does not have.
[[nodiscard]] std::span<const CodeRow> present_weather_lines(int choice, int group);

/// Where the record's code is shown. A text that is no code ("", "*", "7/") stands nowhere. The
/// codes 20-29 open on their group without a line: what was an hour ago is looked at anew.
[[nodiscard]] PresentWeatherPlace present_weather_place(std::string_view ww);

/// The code of a place, "00" to "99" or "//". A group of one code needs no line; nothing where a
/// group or a line is missing.
[[nodiscard]] std::optional<std::string> present_weather_code(const PresentWeatherPlace& place);

}  // namespace codetables
