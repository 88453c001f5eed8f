#pragma once
// What the map shows of the observation.

#include <vector>

#include "codetables/tables/quadrant.h"
#include "elements/form/observation_form.h"
#include "map/CPictureStatic.h"

namespace mainwindow {

/// Nothing of the ship while its position is not complete. Course and speed are those of the
/// apparent wind where both were entered, else the middle of what Ds and Vs stand for. `earlier`:
/// positions of the last reports, the newest first.
[[nodiscard]] map::ShipOnMap ship_on_map(const elements::ObservationForm& form,
                                         const std::vector<codetables::TenthsPosition>& earlier);

}  // namespace mainwindow
