#include "map/tiles/coast.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fakes/tile_text.h"
#include "map/tiles/kept_tiles.h"

namespace {

using tile_text::ended;
using tile_text::head;
using tile_text::land;

constexpr map::Tile kTile{20, 40, 60, -10};
constexpr map::Tile kPolar{-180, -60, -120, -90};

// Land with a lake, an island in the lake, and a rock.
std::string island_in_lake() {
  return ended(
      "# made up\n" + head(kTile) +
          "land 4\n30 10 30 20 40 20 40 10\nwater 4\n32 12 38 12 38 18\n# a comment\n32 18\n"
          "land 4\n34 14 34 16 36 16 36 14\nland 2\n50 0 50.1 0.1\n",
      4, 14);
}

map::Coast read(const std::string& text, const map::Tile& tile = kTile) {
  auto coast = map::parse_coast(text, tile);
  EXPECT_TRUE(coast) << text;
  return coast ? *std::move(coast) : map::Coast(tile, {});
}

std::string kept(const map::Tile& tile) {
  std::ifstream file(kept_tiles::folder() + map::file_name(tile), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Coast, IsReadAsItIsWritten) {
  const map::Coast coast = read(island_in_lake());
  EXPECT_EQ(coast.tile(), kTile);
  ASSERT_EQ(coast.rings().size(), 4U);
  EXPECT_FALSE(coast.rings()[0].water);
  EXPECT_TRUE(coast.rings()[1].water);
  EXPECT_FALSE(coast.rings()[2].water);
  EXPECT_EQ(coast.rings()[1].points,
            (std::vector<map::CoastPoint>{
                {32000, 12000}, {38000, 12000}, {38000, 18000}, {32000, 18000}}));
  EXPECT_EQ(coast.rings()[3].south_west, (map::CoastPoint{50000, 0}));
  EXPECT_EQ(coast.rings()[3].north_east, (map::CoastPoint{50100, 100}));
}

TEST(Coast, ReadsEverySpellingOfANumberThatItMayHave) {
  const struct {
    const char* word;
    int units;
  } rows[] = {{"0", 0},         {"-0", 0},       {"-0.001", -1},  {"1.2", 1200},
              {"-1.23", -1230}, {"9.999", 9999}, {"-10", -10000}, {"007", 7000}};
  for (const auto& row : rows) {
    const auto coast = read(land(kTile, std::string("20 ").append(row.word).append(" 60 40")));
    ASSERT_EQ(coast.rings().size(), 1U);
    EXPECT_EQ(coast.rings()[0].points[0].latitude, row.units) << row.word;
  }
}

TEST(Coast, RefusesWhateverIsNotAsItShouldBeAlsoWithTheRightChecksum) {
  const auto numbers = [](const std::string& word) {
    return land(kTile, std::string("20 ").append(word).append(" 60 40"));
  };
  std::vector<std::string> wrong;
  for (const char* const word :
       {"1e1",     "+1",   ".5",   "1.",     "1.2345",  "1.2.3", "--1",        "-",
        "x",       "1,5",  "nan",  "inf",    "0x1",     ".",     "-.",         "1-",
        "9999999", "1234", "0001", "40.001", "-10.001", "100",   "4294967297", "\xEF\xBC\x91"})
    wrong.push_back(numbers(word));
  const std::string start = head(kTile);
  const std::string ring = "land 2\n30 10 31 11\n";
  wrong.insert(
      wrong.end(),
      {
          "",
          "end 0 0 cbf29ce484222325\n",
          ended("", 0, 0),
          ended("kavrel sea map 1\n", 0, 0),
          ended(start.substr(start.find("tile")), 0, 0),
          ended(start + start, 0, 0),
          ended("kavrel sea map 2" + start.substr(start.find('\n')), 0, 0),
          ended("kavrel sea map 1\ntile E020N40.src 20 40 60\n", 0, 0),
          ended("kavrel sea map 1\ntile E020N40.src 20 40 60 -10 5\n", 0, 0),
          ended("kavrel sea map 1\ntile E020N40.src 20 40 60 -11\n", 0, 0),
          ended("kavrel sea map 1\ntile E060N40.src 20 40 60 -10\n", 0, 0),
          ended("\n" + start, 0, 0),
          ended(start + "\n", 0, 0),
          ended(start + "land\n", 1, 0),
          ended(start + "land 0\n", 1, 0),
          ended(start + "land 0\n30 10\n", 1, 1),
          ended(start + "land -1\n30 10\n", 1, 1),
          ended(start + "land 1 1\n30 10\n", 1, 1),
          ended(start + "land 2\n30 10\n", 1, 1),
          ended(start + "land 2\n30 10\n", 1, 2),
          ended(start + "land 1\n30 10 31 11\n", 1, 2),
          ended(start + "land 1\n30 10 31\n", 1, 1),
          ended(start + "land 2\n30 10 31\n11\n", 1, 2),
          ended(start + "land 2\n30 10\n\n31 11\n", 1, 2),
          ended(start + "land 2\n30 10\nland 1\n31 11\n", 2, 2),
          ended(start + "land 4294967295\n30 10\n", 1, 1),
          ended(start + "land 4294967296\n30 10\n", 1, 1),
          ended(start + "land 18446744073709551616\n30 10\n", 1, 1),
          ended(start + "sand 2\n30 10 31 11\n", 1, 2),
          ended(start + "LAND 2\n30 10 31 11\n", 1, 2),
          ended(start + "land 2\n30\t10 31 11\n", 1, 2),
          ended(start + "land 2\r\n30 10 31 11\r\n", 1, 2),
          ended(start + "30 10 31 11\n", 0, 2),
          ended(start + "land 2\n19.999 10 31 11\n", 1, 2),
          ended(start + "land 2\n60.001 10 31 11\n", 1, 2),
          ended(start + ring, 2, 2),
          ended(start + ring, 1, 3),
          ended(start + ring, 1, 2) + "\n",
          ended(start + ring, 1, 2) + "# more\n",
          ended(start + ring, 1, 2) + ended(start + ring, 1, 2),
          ended(start + "land 2\n30 10" + std::string(map::kLongestLine, ' ') + "31 11\n", 1, 2),
          ended(start + "#" + std::string(map::kLongestLine, ' ') + "\n", 0, 0),
      });
  for (const auto& text : wrong) EXPECT_FALSE(map::parse_coast(text, kTile)) << text;
}

TEST(Coast, ReadsALineOfTheGreatestLength) {
  const std::string comment = "#" + std::string(map::kLongestLine - 1, '.') + "\n";
  EXPECT_TRUE(map::parse_coast(ended(comment + head(kTile) + comment, 0, 0), kTile));
  // The longest line of points that fits.
  const std::string points =
      "30.123 10.123" + std::string(map::kLongestLine - 26, ' ') + "31.123 11.123";
  ASSERT_EQ(points.size(), map::kLongestLine);
  EXPECT_TRUE(map::parse_coast(ended(head(kTile) + "land 2\n" + points + "\n", 1, 2), kTile));
}

TEST(Coast, RefusesAnotherTilesFile) {
  for (const map::Tile& tile : map::all_tiles()) {
    const std::string text = tile_text::open_sea(tile);
    for (const map::Tile& wanted : map::all_tiles())
      EXPECT_EQ(map::parse_coast(text, wanted).has_value(), wanted == tile)
          << map::file_name(tile) << " as " << map::file_name(wanted);
  }
}

TEST(Coast, RefusesEveryStrictPrefix) {
  const std::string text = island_in_lake();
  ASSERT_TRUE(map::parse_coast(text, kTile));
  for (std::size_t size = 0; size < text.size(); ++size)
    EXPECT_FALSE(map::parse_coast(text.substr(0, size), kTile)) << size;
}

TEST(Coast, RefusesEveryChangedByte) {
  const std::string text = island_in_lake();
  for (std::size_t at = 0; at < text.size(); ++at) {
    for (int byte = 0; byte < 256; ++byte) {
      std::string changed = text;
      changed[at] = static_cast<char>(byte);
      ASSERT_EQ(map::parse_coast(changed, kTile).has_value(), changed == text) << at << " " << byte;
    }
  }
}

TEST(Coast, RefusesALostADoubledAndAnExchangedLine) {
  std::vector<std::string> lines;
  const std::string text = island_in_lake();
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find('\n', at) + 1;
    lines.push_back(text.substr(at, end - at));
    at = end;
  }
  const auto is_read = [](const std::vector<std::string>& parts) {
    std::string whole;
    for (const auto& line : parts) whole.append(line);
    return map::parse_coast(whole, kTile).has_value();
  };
  ASSERT_TRUE(is_read(lines));
  for (std::size_t at = 0; at < lines.size(); ++at) {
    auto lost = lines;
    lost.erase(lost.begin() + static_cast<std::ptrdiff_t>(at));
    EXPECT_FALSE(is_read(lost)) << lines[at];
    auto doubled = lines;
    doubled.insert(doubled.begin() + static_cast<std::ptrdiff_t>(at), lines[at]);
    EXPECT_FALSE(is_read(doubled)) << lines[at];
    auto exchanged = lines;
    std::swap(exchanged[at], exchanged[(at + 1) % exchanged.size()]);
    EXPECT_FALSE(is_read(exchanged)) << lines[at];
  }
}

// What a disk does to a real one: cut short at any place, blocks of zeros, single bits.
TEST(Coast, RefusesDamagedTilesOfTheDelivery) {
  for (const map::Tile& tile : {map::Tile{-140, -10, -100, -60}, map::Tile{60, -10, 100, -60}}) {
    const std::string text = kept(tile);
    ASSERT_TRUE(map::parse_coast(text, tile));
    for (std::size_t size = 0; size < text.size(); size += 61)
      EXPECT_FALSE(map::parse_coast(text.substr(0, size), tile)) << size;
    for (std::size_t at = 0; at < text.size(); at += 37) {
      std::string changed = text;
      changed[at] = static_cast<char>(static_cast<unsigned char>(changed[at]) ^ (1U << (at % 8)));
      EXPECT_FALSE(map::parse_coast(changed, tile)) << at;
      changed = text;
      for (std::size_t zero = at; zero < std::min(at + 512, text.size()); ++zero) changed[zero] = 0;
      EXPECT_FALSE(map::parse_coast(changed, tile)) << at;
    }
  }
}

// ---- On land

TEST(Coast, TellsLandFromWaterWithinItAndIslandsInThat) {
  const map::Coast coast = read(island_in_lake());
  const struct {
    map::Place place;
    bool land;
  } rows[] = {{{15, 31}, true},    {{15, 33}, false},  {{15, 35}, true},      {{15, 37}, false},
              {{15, 39}, true},    {{15, 29}, false},  {{15, 41}, false},     {{9.9, 35}, false},
              {{20.1, 35}, false}, {{11, 35}, true},   {{19, 35}, true},      {{13, 35}, false},
              {{15, 391}, true},   {{15, -325}, true}, {{0.05, 50.05}, false}};
  for (const auto& [place, expected] : rows)
    EXPECT_EQ(coast.is_land(place), expected) << place.latitude << " " << place.longitude;
}

TEST(Coast, TellsLandUpToTheLimitsThatAreItsOwn) {
  // All of the tile.
  const map::Coast full = read(land(kTile, "20 40 60 40 60 -10 20 -10"));
  for (const map::Place place :
       {map::Place{40, 20}, {40, 40}, {40, 59.999}, {10, 20}, {-9.999, 20}})
    EXPECT_TRUE(full.is_land(place)) << place.latitude << " " << place.longitude;
  // A square that lies in none of its limits, and one that lies in its north-west corner.
  const map::Coast corner = read(land(kTile, "20 40 30 40 30 30 20 30"));
  EXPECT_TRUE(corner.is_land({40, 20}));
  EXPECT_TRUE(corner.is_land({40, 29.99}));
  EXPECT_TRUE(corner.is_land({30.01, 20}));
  EXPECT_FALSE(corner.is_land({40, 30.01}));
  EXPECT_FALSE(corner.is_land({29.99, 20}));
}

TEST(Coast, TellsThePoleFromTheLandAroundIt) {
  const map::Coast coast = read(land(kPolar, "-180 -80 -120 -80 -120 -90 -180 -90"), kPolar);
  EXPECT_TRUE(coast.is_land({-90, -180}));
  EXPECT_TRUE(coast.is_land({-90, -150}));
  EXPECT_TRUE(coast.is_land({-89.9999, -150}));
  EXPECT_TRUE(coast.is_land({-90, 180}));
  EXPECT_FALSE(coast.is_land({-79.9, 180}));
}

// ---- Near a coast

TEST(Coast, IsNearUpToTheMileAskedForAndFromBothSides) {
  const map::Coast coast = read(island_in_lake());
  constexpr double kMile = 1 / 60.0;
  const auto is_near = [&](double latitude, double longitude, double miles) {
    return coast.is_near({latitude, longitude}, miles);
  };
  EXPECT_TRUE(is_near(20 + 1.99 * kMile, 35, 2));
  EXPECT_FALSE(is_near(20 + 2.01 * kMile, 35, 2));
  EXPECT_TRUE(is_near(20 - 1.99 * kMile, 33, 2));
  EXPECT_FALSE(is_near(20 - 2.01 * kMile, 33, 2));
  EXPECT_TRUE(is_near(20 + 2.01 * kMile, 35, 2.1));
  // A degree of longitude is shorter: at 15 degrees by 3.4 %.
  EXPECT_TRUE(is_near(15, 40 + 2.05 * kMile, 2));
  EXPECT_FALSE(is_near(15, 40 + 2.1 * kMile, 2));
  // Round a corner, not in a square.
  EXPECT_TRUE(is_near(10 - 1.4 * kMile, 30 - 1.4 * kMile, 2));
  EXPECT_FALSE(is_near(10 - 1.5 * kMile, 30 - 1.5 * kMile, 2));
  // The lake's shore is a coast, and so is a rock of two points.
  EXPECT_TRUE(is_near(15, 38 - 1.9 * kMile, 2));
  EXPECT_TRUE(is_near(0.05 + 1.3 * kMile, 50.05 - 1.3 * kMile, 2));
  EXPECT_FALSE(is_near(0.05 + 1.5 * kMile, 50.05 - 1.5 * kMile, 2));
  EXPECT_TRUE(is_near(15, 40 + kMile - 360, 2));
}

TEST(Coast, TakesNoCutForACoast) {
  const map::Coast coast = read(land(kTile, "20 20 30 20 30 10 20 10"));
  EXPECT_FALSE(coast.is_near({15, 20}, 2));
  EXPECT_FALSE(coast.is_near({15, 19.99}, 2));
  EXPECT_TRUE(coast.is_near({19.98, 20}, 2));
  EXPECT_TRUE(coast.is_near({20.02, 19.99}, 2));
  for (const auto& [from, to, cut] :
       {std::tuple{map::CoastPoint{20000, 1}, map::CoastPoint{20000, 2}, true},
        {{60000, 1}, {60000, 2}, true},
        {{30000, 40000}, {31000, 40000}, true},
        {{30000, -10000}, {31000, -10000}, true},
        {{20000, 1}, {20001, 2}, false},
        {{20000, 1}, {60000, 1}, false},
        {{30000, 40000}, {31000, 39999}, false},
        {{40000, 1}, {40000, 2}, false}})
    EXPECT_EQ(coast.is_cut(from, to), cut) << from.longitude << " " << from.latitude;
}

TEST(Coast, IsSeenFromANeighbouringTileAlsoOverTheDateLine) {
  constexpr map::Tile kEastmost{140, 90, 180, 40};
  const map::Coast coast = read(land(kEastmost, "179 84 179.9 84 179.9 83 179 83"), kEastmost);
  // 0.1 degrees of longitude are 0.7 miles there; 19 minutes are 2.
  EXPECT_TRUE(coast.is_near({83.5, -179.9}, 2));
  EXPECT_TRUE(coast.is_near({83.5, 180.1}, 2));
  EXPECT_TRUE(coast.is_near({84, 179.9 + 19 / 60.0 - 360}, 2));
  EXPECT_FALSE(coast.is_near({84, 179.9 + 19.3 / 60.0 - 360}, 2));
  EXPECT_FALSE(coast.is_near({83.5, -179.5}, 2));
}

}  // namespace
