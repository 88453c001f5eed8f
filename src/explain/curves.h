#pragma once
// The last days of a ship as curves: which values, on which scale, drawn and told point by point.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "explain/past_observations.h"
#include "observation/past_observation.h"
#include "text/texts.h"
#include "ui/drawing.h"

namespace explain {

inline constexpr int kHoursShown = 5 * 24;
/// What lies further apart is not joined by a line.
inline constexpr int kHoursJoined = 12;

/// In the order in which one goes through them.
enum class Curve : std::uint8_t {
  kPressure,
  kAir,
  kSea,
  kWind,
  kMeasuredWaves,
  kWindWaves,
  kSwell1,
  kSwell2
};
inline constexpr int kCurves = 8;

/// Drawings, one below the other.
enum class Chart : std::uint8_t { kPressure, kTemperature, kWind, kWaves };
inline constexpr int kCharts = 4;

[[nodiscard]] Chart chart_of(Curve curve);

/// The observations that are drawn.
struct Days {
  int last = 0;                                    ///< the hour at the right end, since 2000
  std::vector<observation::PastObservation> past;  /// the oldest first
  /// The one that is being entered, whose hour is `last`; nothing where it has no date and hour.
  std::optional<observation::Values> entered;
};

/// The five days before the observation that is being entered, or up to the newest one that the ship
/// has made where this has no date and hour yet.
[[nodiscard]] Days days_before(const observation::Values& entered, platform::Files& files,
                               const Archive& archive, const ShipFixedData& ship,
                               const KeyObservationItems& items);

/// The hours of all observations, the one being entered included, the oldest first.
[[nodiscard]] std::vector<int> hours_of(const Days& days);

/// One value of one observation.
struct CurvePoint {
  Curve curve = Curve::kPressure;
  int hour = 0;
  bool operator==(const CurvePoint&) const = default;
};

/// True when any observation has a value on this curve.
[[nodiscard]] bool has_values(const Days& days, Curve curve);

/// Wind speeds are shown in the unit of the latest one: knots, or metres a second.
[[nodiscard]] bool in_knots(const Days& days);

/// A value axis: lines from `low` to `high`, `step` apart.
struct Scale {
  double low = 0;
  double high = 1;
  double step = 1;
  bool operator==(const Scale&) const = default;
};
/// At most five lines apart by a round number (1, 2 or 5 times a power of ten) and multiples of it,
/// from at or below the lowest value to at or above the highest one; no shorter than `least`, which
/// is more than 0.
[[nodiscard]] Scale scale_of(double lowest, double highest, double least);

/// The scale of a chart: of what was reported before, and of what is being entered where this is not
/// far from that. What is far does not flatten the curves, but is pointed at from the scale's end.
[[nodiscard]] Scale scale_of(const Days& days, Chart chart);

/// Hours from the last one go to the right, values up. `chosen` is marked where it lies in time, and
/// on its curve where that is in this chart.
[[nodiscard]] ui::Drawing drawing_of(const Days& days, Chart chart, const text::Texts& texts,
                                     std::optional<CurvePoint> chosen);

/// The same chart in the room beside a form: without the names of the curves and the wind barbs, and
/// with its scale named at both ends and in the middle.
[[nodiscard]] ui::Drawing small_drawing_of(const Days& days, Chart chart, const text::Texts& texts);

/// "15 November 12 UTC: air pressure 1013.2 hPa, 1.4 more than 3 hours before"
[[nodiscard]] std::string words_of(const Days& days, CurvePoint point, const text::Texts& texts);

/// "15 November"
[[nodiscard]] std::string day_text(int hour, const text::Texts& texts);

/// "15 November 2014"
[[nodiscard]] std::string date_text(int hour, const text::Texts& texts);

/// The point that is nearest to a place of the chart's drawing: the observation nearest in time and
/// of its values in this chart the nearest one. Nothing where no observation is drawn.
[[nodiscard]] std::optional<CurvePoint> nearest(const Days& days, Chart chart, ui::Point place);

}  // namespace explain
