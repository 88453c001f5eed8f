#pragma once
// Five days of a ship, every three hours: a low passes on the fourth of them. One report is missing,
// one has no sea temperature, and there is a gap of a night. Then the one that is being entered, at
// 12 UTC of 15 November 2014.

#include "explain/curves.h"

namespace fakes {

/// Hours since 2000 of 15 November 2014, 12 UTC.
inline constexpr int kSampleHour = 130380;

[[nodiscard]] explain::Days sample_days();

}  // namespace fakes
