#include "map/tiles/SeaMap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "fakes/fake_files.h"
#include "fakes/tile_text.h"

namespace {

using fakes::FakeFiles;
using map::Land;

constexpr double kMile = 1 / 60.0;
const std::string kFolder = "C:\\kavrel\\SeaMap";

std::string path(const map::Tile& tile) {
  return kFolder + "\\" + map::file_name(tile);
}

// All tiles of open sea, but those that a test puts there.
class SeaMap : public testing::Test {
 protected:
  SeaMap() {
    for (const map::Tile& tile : map::all_tiles())
      files_.add_file(path(tile), tile_text::open_sea(tile));
  }

  void put(map::Place place, const std::string& points) {
    const map::Tile tile = map::tile_of(place);
    files_.add_file(path(tile), tile_text::land(tile, points));
    ASSERT_TRUE(map::parse_coast(*files_.content(path(tile)), tile)) << points;
  }
  void lose(map::Place place) {
    files_.fail_path(path(map::tile_of(place)), platform::FileError::kNotFound);
  }
  void damage(map::Place place) {
    files_.add_file(path(map::tile_of(place)), "kavrel sea map 1\n");
  }
  Land at(double latitude, double longitude) { return sea_.at({latitude, longitude}); }
  // Since the last time.
  std::size_t reads() {
    const std::size_t count = files_.log().size();
    files_.clear_log();
    return count;
  }

  FakeFiles files_;
  map::SeaMap sea_{files_, kFolder};
};

TEST_F(SeaMap, AnswersByTheTileOfThePlace) {
  put({10, 30}, "30 10 30 20 40 20 40 10");
  EXPECT_EQ(at(15, 35), Land::kYes);
  EXPECT_EQ(at(20 + 1.9 * kMile, 35), Land::kYes);
  EXPECT_EQ(at(20 + 2.1 * kMile, 35), Land::kNo);
  EXPECT_EQ(at(0, 50), Land::kNo);
  EXPECT_TRUE(sea_.take_troubles().empty());
}

TEST_F(SeaMap, ReadsATileOnceAndOnlyThoseInReach) {
  EXPECT_EQ(reads(), 0U);
  EXPECT_EQ(at(0, 0), Land::kNo);
  EXPECT_EQ(reads(), 1U);
  EXPECT_EQ(at(1, 1), Land::kNo);
  EXPECT_EQ(reads(), 0U);
  EXPECT_EQ(at(1, 20 - 1.9 * kMile), Land::kNo);
  EXPECT_EQ(reads(), 1U);
  EXPECT_EQ(at(40 - kMile, 20 + kMile), Land::kNo);
  EXPECT_EQ(reads(), 2U);
  EXPECT_EQ(at(-10 - 2.1 * kMile, 0), Land::kNo);
  EXPECT_EQ(reads(), 1U);
}

TEST_F(SeaMap, CountsACoastOfEachNeighbour) {
  // Squares of a mile around the corner 20 E 40 N, each in another tile, and a place in the opposite one.
  const struct {
    map::Place tile;
    const char* points;
    map::Place asked;
  } rows[] = {
      {{41, 21}, "20.01 40.01 20.02 40.01 20.02 40.02", {40 - 0.3 * kMile, 20 - 0.3 * kMile}},
      {{41, 19}, "19.98 40.01 19.99 40.01 19.99 40.02", {40 - 0.3 * kMile, 20 + 0.3 * kMile}},
      {{39, 21}, "20.01 39.98 20.02 39.98 20.02 39.99", {40 + 0.3 * kMile, 20 - 0.3 * kMile}},
      {{39, 19}, "19.98 39.98 19.99 39.98 19.99 39.99", {40 + 0.3 * kMile, 20 + 0.3 * kMile}},
  };
  for (const auto& row : rows) {
    FakeFiles files;
    for (const map::Tile& tile : map::all_tiles())
      files.add_file(path(tile), tile_text::open_sea(tile));
    const map::Tile tile = map::tile_of(row.tile);
    map::SeaMap empty(files, kFolder);
    EXPECT_EQ(empty.at(row.asked), Land::kNo) << row.points;
    files.add_file(path(tile), tile_text::land(tile, row.points));
    map::SeaMap sea(files, kFolder);
    EXPECT_EQ(sea.at(row.asked), Land::kYes) << row.points;
    EXPECT_NE(map::tile_of(row.asked), tile);
  }
}

TEST_F(SeaMap, CountsACoastBeyondTheDateLineFromBothSides) {
  put({-17, 179}, "179.98 -17 179.99 -17 179.99 -16.99");
  put({60, -179}, "-179.98 60 -179.99 60 -179.99 60.01");
  EXPECT_EQ(at(-17, -179.99), Land::kYes);
  EXPECT_EQ(at(-17, 180), Land::kYes);
  EXPECT_EQ(at(-17, -180), Land::kYes);
  EXPECT_EQ(at(-17, -179.97), Land::kNo);
  EXPECT_EQ(at(60, 179.99), Land::kYes);
  EXPECT_EQ(at(60, 179.9), Land::kNo);
}

// There two miles are 19 minutes of longitude.
TEST_F(SeaMap, CountsACoastThatIsFarInLongitudeWhereMeridiansAreClose) {
  put({83.9, -100}, "-99.99 83.9 -99.98 83.9 -99.98 83.95");
  EXPECT_EQ(at(83.92, -99.99 - 18 * kMile), Land::kYes);
  EXPECT_EQ(at(83.92, -99.99 - 20 * kMile), Land::kNo);
}

TEST_F(SeaMap, AnswersForThePoles) {
  EXPECT_EQ(at(90, 0), Land::kNo);
  EXPECT_EQ(at(90, 180), Land::kNo);
  EXPECT_EQ(at(-90, 0), Land::kNo);
  put({-80, 30}, "0 -80 60 -80 60 -90 0 -90");
  map::SeaMap anew(files_, kFolder);
  EXPECT_EQ(anew.at({-90, 30}), Land::kYes);
  EXPECT_EQ(anew.at({-89.99, 59.99}), Land::kYes);
}

TEST_F(SeaMap, DoesNotKnowWhereItsTileIsMissingOrDamaged) {
  lose({0, 0});
  damage({0, 50});
  EXPECT_EQ(at(0, 0), Land::kNotKnown);
  EXPECT_EQ(at(0, 50), Land::kNotKnown);
  EXPECT_EQ(at(50, 0), Land::kNo);
  EXPECT_EQ(sea_.coast(map::tile_of({0, 0})), nullptr);
}

TEST_F(SeaMap, TellsATroubleOnceAndDoesNotTryAgain) {
  lose({0, 0});
  damage({0, 50});
  EXPECT_EQ(at(0, 0), Land::kNotKnown);
  EXPECT_EQ(at(0, 50), Land::kNotKnown);
  const auto troubles = sea_.take_troubles();
  ASSERT_EQ(troubles.size(), 2U);
  EXPECT_EQ(troubles[0].path, kFolder + "\\W020N40.src");
  EXPECT_EQ(troubles[0].error, platform::FileError::kNotFound);
  EXPECT_EQ(troubles[1].path, kFolder + "\\E020N40.src");
  EXPECT_EQ(troubles[1].error, platform::FileError::kNone);
  EXPECT_EQ(reads(), 2U);
  EXPECT_EQ(at(1, 1), Land::kNotKnown);
  EXPECT_EQ(at(1, 51), Land::kNotKnown);
  EXPECT_EQ(reads(), 0U);
  EXPECT_TRUE(sea_.take_troubles().empty());
}

TEST_F(SeaMap, KnowsWithoutANeighbourThatCannotDecide) {
  for (const map::Place lost : {map::Place{41, 21}, {41, 19}, {39, 21}}) lose(lost);
  EXPECT_EQ(at(35, 15), Land::kNo);
  EXPECT_EQ(at(40 - 2.1 * kMile, 15), Land::kNo);
  EXPECT_EQ(at(40 - 1.9 * kMile, 15), Land::kNotKnown);
  const double east_mile = kMile / std::cos(40 * std::acos(-1.0) / 180);
  EXPECT_EQ(at(35, 20 - 2.1 * kMile / std::cos(35 * std::acos(-1.0) / 180)), Land::kNo);
  EXPECT_EQ(at(35, 20 - 1.9 * kMile / std::cos(35 * std::acos(-1.0) / 180)), Land::kNotKnown);
  // Only the corner of the opposite tile is near, or not near enough.
  files_.heal();
  lose({41, 21});
  map::SeaMap anew(files_, kFolder);
  EXPECT_EQ(anew.at({40 - 1.5 * kMile, 20 - 1.5 * east_mile}), Land::kNo);
  EXPECT_EQ(anew.at({40 - 1.3 * kMile, 20 - 1.3 * east_mile}), Land::kNotKnown);
}

TEST_F(SeaMap, KnowsLandWhateverElseIsMissing) {
  put({39, 19}, "19 39 19 40 20 40 20 39");
  put({41, 19}, "19 40 19 40.01 19.01 40.01 19.01 40");
  for (const map::Place lost : {map::Place{41, 21}, {39, 21}}) lose(lost);
  EXPECT_EQ(at(39.999, 19.999), Land::kYes);
  // Its own tile is missing, but a neighbour has a coast in reach.
  lose({39, 19});
  map::SeaMap anew(files_, kFolder);
  EXPECT_EQ(anew.at({39.99, 19.005}), Land::kYes);
  EXPECT_EQ(anew.at({39, 19.5}), Land::kNotKnown);
}

TEST_F(SeaMap, KeepsTheTilesAskedForLast) {
  const auto tiles = map::all_tiles();
  constexpr std::size_t kKept = 18;
  for (std::size_t at = 0; at < kKept; ++at) EXPECT_NE(sea_.coast(tiles[at]), nullptr);
  EXPECT_EQ(reads(), kKept);
  // The first one is asked for again, so the second one goes when one more comes.
  EXPECT_NE(sea_.coast(tiles[0]), nullptr);
  EXPECT_NE(sea_.coast(tiles[kKept]), nullptr);
  EXPECT_EQ(reads(), 1U);
  EXPECT_NE(sea_.coast(tiles[0]), nullptr);
  EXPECT_EQ(reads(), 0U);
  EXPECT_NE(sea_.coast(tiles[1]), nullptr);
  EXPECT_EQ(reads(), 1U);
}

TEST_F(SeaMap, LetsGoOfATileOnlyWhenNobodyHoldsIt) {
  const auto tiles = map::all_tiles();
  const auto held = sea_.coast(tiles[0]);
  for (const map::Tile& tile : tiles) EXPECT_NE(sea_.coast(tile), nullptr);
  EXPECT_EQ(held->tile(), tiles[0]);
  EXPECT_EQ(held.use_count(), 1);
}

TEST_F(SeaMap, RefusesAFileThatIsFarTooLarge) {
  const map::Tile tile = map::tile_of({0, 0});
  std::string text;
  for (int line = 0; line < 20'000; ++line) text.append("#").append(500, '.').append("\n");
  files_.add_file(path(tile), tile_text::ended(text + tile_text::head(tile), 0, 0));
  EXPECT_EQ(at(0, 0), Land::kNotKnown);
  ASSERT_EQ(sea_.take_troubles().size(), 1U);
}

TEST_F(SeaMap, ToldTroublesAreThoseOfTheDriveToo) {
  files_.set_medium_missing('C');
  EXPECT_EQ(at(0, 0), Land::kNotKnown);
  const auto troubles = sea_.take_troubles();
  ASSERT_EQ(troubles.size(), 1U);
  EXPECT_EQ(troubles[0].error, platform::FileError::kMediumMissing);
}

}  // namespace
