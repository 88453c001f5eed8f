#include "codetables/tables/quadrant.h"

#include "text/numbers.h"

namespace codetables {
namespace {

struct Row {
  char figure;
  int north_south;
  int east_west;
};
constexpr Row kTable3333[] = {{'1', 0, 0}, {'3', 1, 0}, {'5', 1, 1}, {'7', 0, 1}};

const Row* row_of(std::string_view quadrant) {
  for (const Row& row : kTable3333) {
    if (quadrant == std::string_view(&row.figure, 1)) return &row;
  }
  return nullptr;
}

}  // namespace

std::string quadrant_of(int north_south, int east_west) {
  for (const Row& row : kTable3333) {
    if (row.north_south == north_south && row.east_west == east_west)
      return std::string(1, row.figure);
  }
  return {};
}

int north_south_of(std::string_view quadrant) {
  const Row* const row = row_of(quadrant);
  return row == nullptr ? -1 : row->north_south;
}

int east_west_of(std::string_view quadrant) {
  const Row* const row = row_of(quadrant);
  return row == nullptr ? -1 : row->east_west;
}

int signed_latitude(const TenthsPosition& at) {
  return north_south_of(text::format_int(at.quadrant)) == 1 ? -at.latitude : at.latitude;
}

int signed_longitude(const TenthsPosition& at) {
  return east_west_of(text::format_int(at.quadrant)) == 1 ? -at.longitude : at.longitude;
}

}  // namespace codetables
