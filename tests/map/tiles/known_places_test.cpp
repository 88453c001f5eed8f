// Places that everyone can look up: in degrees and minutes, as an officer enters them.

#include <gtest/gtest.h>

#include <cmath>

#include "map/tiles/kept_tiles.h"

namespace {

struct Known {
  const char* name;
  double latitude_degrees;
  int latitude_minutes;
  double longitude_degrees;
  int longitude_minutes;
};

// A sign at the degrees is that of the whole: -0.0 for less than one degree south or west.
double degrees(double whole, int minutes) {
  return whole + (std::signbit(whole) ? -minutes : minutes) / 60.0;
}

map::Place place(const Known& known) {
  return {degrees(known.latitude_degrees, known.latitude_minutes),
          degrees(known.longitude_degrees, known.longitude_minutes)};
}

constexpr Known kPorts[] = {
    {"Tokyo", 35, 39, 139, 46},
    {"Yokohama", 35, 27, 139, 39},
    {"Kobe", 34, 41, 135, 12},
    {"Naha", 26, 13, 127, 40},
    {"Otaru", 43, 12, 141, 1},
    {"Chichijima", 27, 5, 142, 11},
    {"Busan", 35, 6, 129, 2},
    {"Vladivostok", 43, 7, 131, 53},
    {"Shanghai", 31, 14, 121, 30},
    {"Hong Kong", 22, 17, 114, 10},
    {"Manila", 14, 35, 120, 58},
    {"Singapore", 1, 16, 103, 50},
    {"Jakarta", -6, 6, 106, 53},
    {"Colombo", 6, 57, 79, 51},
    {"Mumbai", 18, 57, 72, 50},
    {"Karachi", 24, 50, 66, 59},
    {"Jebel Ali", 25, 1, 55, 4},
    {"Suez", 29, 56, 32, 34},
    {"Suez Canal at Ismailia", 30, 35, 32, 19},
    {"Port Said", 31, 15, 32, 18},
    {"Odessa", 46, 30, 30, 45},
    {"Bosporus", 41, 7, 29, 4},
    {"Dardanelles at Canakkale", 40, 9, 26, 24},
    {"Piraeus", 37, 56, 23, 38},
    {"Genoa", 44, 24, 8, 55},
    {"Gibraltar", 36, 8, -5, 21},
    {"Lisbon", 38, 42, -9, 10},
    {"Rotterdam", 51, 54, 4, 29},
    {"Hamburg", 53, 32, 9, 59},
    {"Tilbury", 51, 27, 0, 21},
    {"Bergen", 60, 24, 5, 19},
    {"Murmansk", 68, 58, 33, 3},
    {"Longyearbyen", 78, 13, 15, 38},
    {"Reykjavik", 64, 9, -21, 56},
    {"Nuuk", 64, 10, -51, 44},
    {"Halifax", 44, 39, -63, 34},
    {"New York", 40, 42, -74, 1},
    {"New Orleans", 29, 57, -90, 3},
    {"Havana", 23, 8, -82, 21},
    {"Colon", 9, 21, -79, 54},
    {"Panama Canal at Gamboa", 9, 7, -79, 43},
    {"Balboa", 8, 57, -79, 34},
    {"San Francisco", 37, 48, -122, 25},
    {"Vancouver", 49, 17, -123, 7},
    {"Dutch Harbor", 53, 54, -166, 32},
    {"Honolulu", 21, 18, -157, 52},
    {"Papeete", -17, 32, -149, 34},
    {"Callao", -12, 3, -77, 9},
    {"Valparaiso", -33, 2, -71, 37},
    {"Punta Arenas", -53, 10, -70, 54},
    {"Ushuaia", -54, 49, -68, 18},
    {"Stanley", -51, 42, -57, 51},
    {"Buenos Aires", -34, 36, -58, 22},
    {"Santos", -23, 57, -46, 19},
    {"Dakar", 14, 41, -17, 25},
    {"Las Palmas", 28, 8, -15, 25},
    {"Jamestown on Saint Helena", -15, 55, -5, 43},
    {"Cape Town", -33, 54, 18, 26},
    {"Durban", -29, 52, 31, 2},
    {"Mombasa", -4, 4, 39, 40},
    {"Port Louis", -20, 9, 57, 30},
    {"Fremantle", -32, 3, 115, 44},
    {"Darwin", -12, 28, 130, 51},
    {"Sydney", -33, 51, 151, 12},
    {"Hobart", -42, 53, 147, 20},
    {"Auckland", -36, 50, 174, 46},
    {"Wellington", -41, 17, 174, 47},
    {"Suva", -18, 8, 178, 25},
    {"Majuro", 7, 6, 171, 22},
    {"Midway", 28, 13, -177, 22},
    {"Anadyr", 64, 44, 177, 31},
    {"Baku", 40, 22, 49, 52},
    {"Mawson station", -67, 36, 62, 52},
    {"McMurdo station", -77, 51, 166, 40},
    {"Rothera station", -67, 34, -68, 7},
};

constexpr Known kInland[] = {
    {"Moscow", 55, 45, 37, 37},
    {"Ulan Bator", 47, 55, 106, 55},
    {"Alice Springs", -23, 42, 133, 53},
    {"Kinshasa", -4, 20, 15, 19},
    {"La Paz", -16, 30, -68, 9},
    {"Denver", 39, 44, -104, 59},
    {"Chicago", 41, 53, -87, 37},
    {"the middle of Lake Superior", 47, 40, -87, 30},
    {"the middle of Lake Victoria", -1, 0, 33, 0},
    {"the ice of Greenland", 72, 34, -38, 27},
    {"Vostok station", -78, 28, 106, 50},
    {"the south pole", -90, 0, 0, 0},
    {"the south pole from the date line", -90, 0, 180, 0},
    // A limit of tiles goes through.
    {"Ankara's parallel", 40, 0, 32, 51},
    {"Congo at 20 E", -2, 0, 20, 0},
    {"Kazakhstan at 60 E", 48, 0, 60, 0},
    {"China at 100 E and 40 N", 40, 0, 100, 0},
    {"Queensland at 140 E", -22, 0, 140, 0},
    {"Brazil at 60 W and 10 S", -10, 0, -60, 0},
    // Both sides of the date line.
    {"Wrangel Island, west of it", 71, 14, 179, 50},
    {"Wrangel Island, on it", 71, 14, 180, 0},
    {"Wrangel Island, east of it", 71, 14, -179, 25},
    {"Chukotka, west of it", 67, 0, 179, 30},
    {"Chukotka, on it", 67, 0, -180, 0},
    {"Chukotka, east of it", 67, 0, -179, 30},
    {"Taveuni, on it", -16, 50, 180, 0},
    {"Taveuni, east of it", -16, 53, -179, 56},
    {"Vanua Levu", -16, 36, 179, 10},
    {"Antarctica, west of it", -85, 0, 179, 59},
    {"Antarctica, on it", -85, 0, 180, 0},
    {"Antarctica, east of it", -85, 0, -179, 59},
};

constexpr Known kSea[] = {
    {"North Pacific", 35, 0, 165, 0},
    {"North Pacific on the date line", 40, 0, 180, 0},
    {"the same from the west", 40, 0, -180, 0},
    {"at the equator on the date line", 0, 0, 180, 0},
    {"South Pacific", -45, 0, -130, 0},
    {"South Pacific on the date line", -30, 0, 180, 0},
    {"East Pacific", 5, 0, -110, 0},
    {"North Atlantic", 45, 0, -30, 0},
    {"at 40 N and 20 W", 40, 0, -20, 0},
    {"at 0 N and 0 E", 0, 0, 0, 0},
    {"South Atlantic", -30, 0, -15, 0},
    {"Sargasso Sea", 28, 0, -60, 0},
    {"Indian Ocean", -20, 0, 80, 0},
    {"at 10 S and 60 E", -10, 0, 60, 0},
    {"Roaring Forties", -47, 0, 100, 0},
    {"Southern Ocean at 60 S", -60, 0, 120, 0},
    {"Drake Passage", -58, 0, -65, 0},
    {"Weddell Sea", -70, 0, -40, 0},
    {"Ross Sea on the date line", -75, 0, 180, 0},
    {"Ross Ice Shelf", -80, 0, -175, 0},
    {"the north pole", 90, 0, 0, 0},
    {"Arctic Ocean", 85, 0, -150, 0},
    {"Chukchi Sea on the date line", 70, 0, 180, 0},
    {"Bering Sea", 58, 0, -178, 0},
    {"Bering Strait, west of the Diomedes", 65, 45, -169, 25},
    {"Sea of Okhotsk", 53, 0, 150, 0},
    {"Sea of Japan", 40, 0, 135, 0},
    {"Tsugaru Strait", 41, 20, 140, 16},
    {"Tsushima Strait", 34, 10, 129, 50},
    {"Tokyo Bay", 35, 22, 139, 44},
    {"Yellow Sea", 35, 0, 123, 0},
    {"Taiwan Strait", 24, 30, 119, 30},
    {"South China Sea", 14, 0, 115, 0},
    {"Malacca Strait", 4, 0, 99, 30},
    {"Sunda Strait", -6, 0, 105, 40},
    {"Java Sea", -5, 0, 110, 0},
    {"Arafura Sea at 140 E", -10, 0, 140, 0},
    {"Bass Strait", -39, 40, 145, 30},
    {"Tasman Sea", -38, 0, 160, 0},
    {"Cook Strait", -41, 11, 174, 30},
    {"Bay of Bengal", 15, 0, 90, 0},
    {"Arabian Sea at 60 E", 15, 0, 60, 0},
    {"Strait of Hormuz", 26, 38, 56, 25},
    {"Persian Gulf", 27, 0, 51, 30},
    {"Bab el Mandeb", 12, 35, 43, 20},
    {"Red Sea", 20, 0, 38, 30},
    {"Mozambique Channel", -18, 0, 41, 0},
    {"Off the Cape", -36, 0, 20, 0},
    {"Mediterranean", 34, 0, 19, 0},
    {"Adriatic Sea", 43, 0, 15, 10},
    {"Black Sea", 43, 0, 34, 0},
    {"Sea of Azov", 46, 0, 36, 30},
    {"Caspian Sea in the north", 42, 0, 50, 30},
    {"Caspian Sea at 40 N", 40, 0, 51, 20},
    {"Caspian Sea in the south", 38, 0, 51, 30},
    {"Strait of Gibraltar", 35, 57, -5, 33},
    {"Dover Strait", 51, 0, 1, 27},
    {"North Sea", 56, 0, 3, 0},
    {"Baltic Sea", 56, 0, 18, 40},
    {"Skagerrak", 58, 0, 9, 30},
    {"Norwegian Sea", 68, 0, 0, 0},
    {"Denmark Strait", 67, 0, -26, 0},
    {"Davis Strait", 66, 0, -57, 0},
    {"Hudson Bay", 60, 0, -86, 0},
    {"Gulf of Saint Lawrence", 48, 0, -61, 30},
    {"Gulf of Mexico", 25, 0, -90, 0},
    {"Yucatan Channel", 21, 45, -85, 45},
    {"Lake Maracaibo", 9, 50, -71, 30},
    {"Caribbean Sea", 15, 0, -75, 0},
    {"Gulf of California", 27, 0, -111, 30},
    {"Strait of Magellan", -53, 8, -70, 38},
    {"River Plate's mouth", -35, 40, -55, 30},
};

void expect_all(const auto& places, map::Land expected) {
  kept_tiles::Map sea;
  for (const Known& known : places) EXPECT_EQ(sea->at(place(known)), expected) << known.name;
  EXPECT_TRUE(sea->take_troubles().empty());
}

TEST(KnownPlaces, PortsCanalsAndStationsAreOnLandOrCoastal) {
  expect_all(kPorts, map::Land::kYes);
}

TEST(KnownPlaces, InlandIsLandOnBothSidesOfEveryLimit) {
  expect_all(kInland, map::Land::kYes);
  kept_tiles::Map sea;
  for (const Known& known : kInland)
    EXPECT_TRUE(sea->coast(map::tile_of(place(known)))->is_land(place(known))) << known.name;
}

TEST(KnownPlaces, OceansSeasAndStraitsAreNot) {
  expect_all(kSea, map::Land::kNo);
}

// The data's faults, told in resources/SeaMap/README.md. Whoever makes the tiles of better data sees
// here what has changed.
TEST(KnownPlaces, SomeSmallIslandsAreMissingOrStandElsewhere) {
  constexpr Known kMissed[] = {
      {"Okinotorishima", 20, 25, 136, 5},
      {"Trindade", -20, 31, -29, 19},
      {"Saint Peter and Saint Paul", 0, 55, -29, 21},
  };
  expect_all(kMissed, map::Land::kNo);
}

// Two miles are far less than a strait is wide, but more than a harbour.
TEST(KnownPlaces, TheCoastalRegionEndsTwoMilesOff) {
  kept_tiles::Map sea;
  // Straight off the south coast of Java, of Long Island and of the Great Australian Bight the answer
  // changes once, from land to sea.
  for (const map::Place start : {map::Place{-7.5, 110}, {40.9, -73}, {-31, 131}}) {
    int changes = 0;
    bool before = true;
    double left = 0;   // the last land
    double ended = 0;  // the last coastal place
    for (int step = 0; step < 2000; ++step) {
      const map::Place at{start.latitude - step / 2000.0, start.longitude};
      const bool now = sea->at(at) == map::Land::kYes;
      if (sea->coast(map::tile_of(at))->is_land(at)) left = at.latitude;
      if (now) ended = at.latitude;
      changes += now != before ? 1 : 0;
      before = now;
    }
    EXPECT_EQ(changes, 1) << start.latitude;
    EXPECT_FALSE(before) << start.latitude;
    // More than two where the coast does not run from west to east.
    EXPECT_GT((left - ended) * 60, 1.95) << start.latitude;
    EXPECT_LT((left - ended) * 60, 2.5) << start.latitude;
  }
}

}  // namespace
