#pragma once
// True wind from the wind observed on board and the ship's movement.

#include <optional>
#include <string>
#include <string_view>

#include "elements/formulas/units.h"

namespace elements {

struct ApparentWind {
  Degree course;     ///< made good
  Degree heading;    ///< of the bow
  Knot ship_speed;   ///< brought to whole knots first
  Degree direction;  ///< clockwise from the bow
  Knot speed;        ///< brought to whole knots first
};

struct TrueWind {
  Degree direction;  ///< 0-360, cut to whole degrees
  int code = 0;      ///< tens of degrees 1-36, 0 when calm
  int speed = 0;     ///< whole units, at most 999
};

/// Vector sum of the apparent wind and the ship's movement. Angles are converted with a factor that
/// is slightly larger than pi/180, in both directions; the results of opposing vectors depend on
/// it.
[[nodiscard]] TrueWind true_wind(const ApparentWind& apparent);

/// Direction code ("%d") and speed ("%d") as the form holds them.
struct TrueWindTexts {
  std::string direction;
  std::string speed;
  bool operator==(const TrueWindTexts&) const = default;
};

/// The form's five texts, blanks removed. One of heading and course may be empty and is then taken
/// equal to the other. Nothing when an input is no number: the form's true wind is then
/// emptied.
struct ApparentWindTexts {
  std::string direction, speed, heading, course, ship_speed;
  bool operator==(const ApparentWindTexts&) const = default;
};
[[nodiscard]] std::optional<TrueWindTexts> true_wind_of_texts(const ApparentWindTexts& texts);

}  // namespace elements
