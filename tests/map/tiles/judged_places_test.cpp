// The answers for a million places of the globe and many more at the limits of tiles are those of
// another program that saw the data before it was cut: tests/data/sea_map/README.md.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "map/tiles/kept_tiles.h"

namespace {

constexpr std::size_t kSide = 1000;
constexpr std::size_t kLimits = 18;
constexpr std::size_t kAlong = 10'000;

struct Judged {
  map::Place place;
  char answer = 0;
};

// The n-th number that looks like chance, from 0 up to 1.
double chance(std::uint64_t n) {
  std::uint64_t z = (n + 1) * 0x9E3779B97F4A7C15U;
  z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
  z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
  return static_cast<double>(z ^ (z >> 31U)) / 18446744073709551616.0;
}

double radians(double degrees) {
  return degrees * std::acos(-1.0) / 180;
}

map::Place place_of_globe(std::size_t row, std::size_t column) {
  const std::uint64_t n = 2 * (kSide * row + column);
  const double down = (static_cast<double>(row) + chance(n)) / kSide;
  const double along = (static_cast<double>(column) + chance(n + 1)) / kSide;
  return {std::asin(1 - 2 * down) * 180 / std::acos(-1.0), -180 + 360 * along};
}

map::Place place_at_limit(std::size_t limit, std::size_t at) {
  const std::uint64_t n = 2 * (kSide * kSide + kAlong * limit + at);
  const double along = (static_cast<double>(at) + chance(n)) / kAlong;
  const double beside = 0.05 * (2 * chance(n + 1) - 1);
  constexpr double kParallels[] = {40, -10, -60};
  if (limit < std::size(kParallels)) return {kParallels[limit] + beside, -180 + 360 * along};
  constexpr std::size_t kNine = 9;
  const std::size_t meridian = limit - std::size(kParallels);
  const bool polar = meridian >= kNine;
  const double longitude = polar ? -180 + 60 * static_cast<double>(meridian - kNine)
                                 : -180 + 40 * static_cast<double>(meridian);
  const double latitude = polar ? -60 - 29 * along : 84 - 144 * along;
  return {latitude, map::wrapped(longitude + beside / std::cos(radians(latitude)))};
}

// "3L c" as "LLLc".
std::string written_out(const std::string& line) {
  std::istringstream words(line);
  std::string letters;
  for (std::string word; words >> word;)
    letters.append(word.size() > 1 ? std::stoul(word) : 1, word.back());
  return letters;
}

// By the name of the tile, so that each is read once.
std::map<std::string, std::vector<Judged>> judged(const std::string& name, std::size_t rows,
                                                  std::size_t columns,
                                                  map::Place (*place)(std::size_t, std::size_t)) {
  std::map<std::string, std::vector<Judged>> places;
  std::ifstream file(std::string(KAVREL_TEST_DATA "/sea_map/").append(name));
  std::size_t row = 0;
  for (std::string line; std::getline(file, line); ++row) {
    const std::string answers = written_out(line);
    EXPECT_EQ(answers.size(), columns) << name << " " << row;
    for (std::size_t column = 0; column < answers.size(); ++column) {
      const map::Place where = place(row, column);
      places[map::file_name(map::tile_of(where))].push_back({where, answers[column]});
    }
  }
  EXPECT_EQ(row, rows);
  return places;
}

struct Seen {
  std::map<char, int> answers;
  int on_land_or_coastal = 0;
};

Seen compare(const std::map<std::string, std::vector<Judged>>& all) {
  kept_tiles::Map sea;
  Seen seen;
  int wrong = 0;
  for (const auto& [name, places] : all) {
    for (const auto& [where, answer] : places) {
      ++seen.answers[answer];
      const auto tile = sea->coast(map::tile_of(where));
      if (tile == nullptr) {
        ADD_FAILURE() << name;
        return seen;
      }
      const bool land = tile->is_land(where);
      const map::Land at = sea->at(where);
      if (at == map::Land::kYes) ++seen.on_land_or_coastal;
      const bool right_land = answer == 'x' || land == (answer == 'L');
      const bool right_at =
          answer == '?' || at == (answer == '.' ? map::Land::kNo : map::Land::kYes);
      constexpr int kTold = 20;
      if ((!right_land || !right_at) && ++wrong <= kTold)
        ADD_FAILURE() << where.latitude << " " << where.longitude << " in " << name << ": "
                      << answer << ", but " << (land ? "land, " : "sea, ") << static_cast<int>(at);
    }
  }
  EXPECT_EQ(wrong, 0);
  EXPECT_TRUE(sea->take_troubles().empty());
  return seen;
}

TEST(JudgedPlaces, AMillionOfTheGlobeAreAnsweredAsTheUncutDataAnswers) {
  auto seen = compare(judged("globe.txt", kSide, kSide, place_of_globe));
  // The sample is what it claims to be: some of everything, and the share that the globe has.
  EXPECT_GT(seen.answers['L'], 280'000);
  EXPECT_GT(seen.answers['.'], 700'000);
  EXPECT_GT(seen.answers['c'], 4'000);
  EXPECT_GT(seen.answers['x'], 1'500);
  EXPECT_LT(seen.answers['?'], 1'000);
  EXPECT_NEAR(seen.on_land_or_coastal / 10'000.0, 29.3, 0.1);
}

TEST(JudgedPlaces, ThoseBesideTheLimitsOfTilesAreAnsweredAsTheUncutDataAnswers) {
  auto seen = compare(judged("limits.txt", kLimits, kAlong, place_at_limit));
  EXPECT_GT(seen.answers['L'], 40'000);
  EXPECT_GT(seen.answers['.'], 100'000);
  EXPECT_GT(seen.answers['c'], 1'000);
  EXPECT_GT(seen.answers['x'], 300);
  EXPECT_LT(seen.answers['?'], 500);
}

}  // namespace
