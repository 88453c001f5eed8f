#include "map/tiles/tile_grid.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

std::string tile_at(double latitude, double longitude) {
  return map::file_name(map::tile_of({latitude, longitude}));
}

TEST(TileGrid, HasTheThirtyThreeTilesByTheirNames) {
  std::vector<std::string> names;
  for (const map::Tile& tile : map::all_tiles()) names.push_back(map::file_name(tile));
  const std::vector<std::string> expected = {
      "W180N90.src", "W140N90.src", "W100N90.src", "W060N90.src", "W020N90.src", "E020N90.src",
      "E060N90.src", "E100N90.src", "E140N90.src", "W180N40.src", "W140N40.src", "W100N40.src",
      "W060N40.src", "W020N40.src", "E020N40.src", "E060N40.src", "E100N40.src", "E140N40.src",
      "W180S10.src", "W140S10.src", "W100S10.src", "W060S10.src", "W020S10.src", "E020S10.src",
      "E060S10.src", "E100S10.src", "E140S10.src", "W180S60.src", "W120S60.src", "W060S60.src",
      "W000S60.src", "E060S60.src", "E120S60.src"};
  EXPECT_EQ(names, expected);
}

TEST(TileGrid, GivesAPlaceOnALimitToTheTileWhoseWestOrNorthEdgeItIs) {
  const struct {
    double latitude;
    double longitude;
    const char* tile;
  } rows[] = {
      {0, 0, "W020N40.src"},     {40.001, -20.001, "W060N90.src"}, {40, -20, "W020N40.src"},
      {40, 20, "E020N40.src"},   {-10, 60, "E060S10.src"},         {-9.99, 59.99, "E020N40.src"},
      {-60, 0, "W000S60.src"},   {-59.99, 0, "W020S10.src"},       {-60, -0.01, "W060S60.src"},
      {-75, 60, "E060S60.src"},  {-75, 119.99, "E060S60.src"},     {-75, 120, "E120S60.src"},
      {10, 180, "W180N40.src"},  {10, -180, "W180N40.src"},        {10, 179.99, "E140N40.src"},
      {-90, 180, "W180S60.src"}, {-90, 179.99, "E120S60.src"},     {90, 0, "W020N90.src"},
      {90, 180, "W180N90.src"},  {35, 140, "E140N40.src"},         {35, 139.99, "E100N40.src"},
      {10, 190, "W180N40.src"},  {10, -190, "E140N40.src"},        {10, 540, "W180N40.src"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(tile_at(row.latitude, row.longitude), row.tile)
        << row.latitude << " " << row.longitude;
}

TEST(TileGrid, FindsTheTilesOfARangeAlsoOverTheDateLine) {
  const auto names = [](double west, double south, double east, double north) {
    std::vector<std::string> found;
    for (const map::Tile& tile : map::tiles_within(west, south, east, north))
      found.push_back(map::file_name(tile));
    std::sort(found.begin(), found.end());
    return found;
  };
  using Names = std::vector<std::string>;
  EXPECT_EQ(names(21, 20, 22, 21), Names{"E020N40.src"});
  EXPECT_EQ(names(19.9, 39.9, 20.1, 40.1),
            (Names{"E020N40.src", "E020N90.src", "W020N40.src", "W020N90.src"}));
  EXPECT_EQ(names(179.9, 0, 180.1, 1), (Names{"E140N40.src", "W180N40.src"}));
  EXPECT_EQ(names(-180.1, 0, -179.9, 1), (Names{"E140N40.src", "W180N40.src"}));
  EXPECT_EQ(names(-180, -61, 180, -60.5).size(), 6U);
  EXPECT_EQ(names(-180, 85, 180, 90).size(), 9U);
}

}  // namespace
