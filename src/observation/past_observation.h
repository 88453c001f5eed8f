#pragma once
// An observation that the ship has made before, from its report or its line of the logbook.

#include <cstdint>

#include "observation/values.h"

namespace observation {

struct PastObservation {
  enum class From : std::uint8_t { kReport, kLogbook };
  int hour = 0;  ///< since the beginning of 2000, UTC
  Values values;
  From from = From::kReport;
};

}  // namespace observation
