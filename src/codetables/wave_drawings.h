#pragma once
// What an observer compares waves with, as drawings: the ship's own side for their height, the
// compass card for the direction from which a swell comes.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ui/drawing.h"

namespace codetables {

/// Waves beside the ship.
struct DrawnWaves {
  std::optional<double> metres;  ///< from trough to crest; nothing: not known, and not drawn
  std::string name = {};         ///< stands at a crest: "1: 2.0 m"
};

/// The waves along the side of a ship of 8 metres freeboard, to scale in height: the first filled,
/// others as lines; and, dashed, a height to compare with.
[[nodiscard]] std::shared_ptr<const ui::Drawing> drawn_heights(
    const std::vector<DrawnWaves>& waves, std::optional<double> reference = {});

/// Arrows on a compass card, from where each swell comes towards the ship in the middle. Tens of
/// degrees from 1 to 36; anything else is not drawn.
[[nodiscard]] std::shared_ptr<const ui::Drawing> drawn_directions(
    const std::vector<std::optional<double>>& directions);

}  // namespace codetables
