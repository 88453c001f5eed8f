#include "elements/formulas/ship_movement.h"

#include <cstdlib>

namespace elements {
namespace {

// Limits in tenths of a degree over three hours: 0.7 degrees an hour is 21.
constexpr int kLimit = 21;

struct Band {
  int from;
  int to;
  int limit;
};
// 1.0, 1.4, 2.0 and 2.7 degrees an hour further on: the same miles are more longitude there.
constexpr Band kLongitudeBands[] = {
    {0, 398, kLimit}, {400, 498, 30}, {500, 598, 42}, {600, 698, 60}, {700, 798, 81}};

}  // namespace

MovementWarning check_movement(const codetables::TenthsPosition& current,
                               const codetables::TenthsPosition& three_hours_earlier) {
  const int north = std::abs(signed_latitude(current) - signed_latitude(three_hours_earlier));
  const int east = std::abs(signed_longitude(current) - signed_longitude(three_hours_earlier));
  for (const Band& band : kLongitudeBands) {
    if (current.latitude >= band.from && current.latitude <= band.to && east > band.limit)
      return MovementWarning::kLongitude;
  }
  return north > kLimit ? MovementWarning::kLatitude : MovementWarning::kNone;
}

}  // namespace elements
