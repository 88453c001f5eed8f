#pragma once
// An example for each doubt: an observation that raises it, and the nearest one that does not.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "observation/Struct_Weather.h"
#include "observation/past_observation.h"

namespace doubt_examples {

/// Observations are fields NAME=VALUE between blanks, made on 15 November 2014 at 12 UTC.
struct Example {
  std::string_view doubt;
  std::string_view raises;
  std::string_view does_not;     ///< the same but for what makes the difference
  std::string_view before = {};  ///< the observation before, empty when none is needed
  int hours = 3;                 ///< so long before
};

[[nodiscard]] std::span<const Example> examples();

/// The fields in a new record; a name that there is not fails the test.
[[nodiscard]] Struct_Weather record_of(std::string_view fields);
/// The example's observation before, as the ship's reports would give it.
[[nodiscard]] std::vector<observation::PastObservation> past_of(const Example& example);

}  // namespace doubt_examples
