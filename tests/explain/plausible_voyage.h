#pragma once
// Voyages as good observers report them: what the sea and the air do, and how people and
// instruments tell it. Not the weather of any day, but wide: storms and calms, fronts, currents with
// sharp edges, sea smoke and ice, thermometers read to whole degrees, courses that alter, groups left
// out. It knows nothing of what is doubted, and its figures are ours: they are taken from what is
// common at sea, not from measurements.

#include <cstdint>
#include <vector>

#include "observation/past_observation.h"

namespace plausible {

inline constexpr int kObservationsOfAVoyage = 40;

/// The same voyage for the same number, the oldest observation first, every three hours or every six.
[[nodiscard]] std::vector<observation::PastObservation> voyage(std::uint64_t number);

}  // namespace plausible
