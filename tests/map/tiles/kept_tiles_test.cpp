// The tiles that are delivered, all of them.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "map/tiles/kept_tiles.h"

namespace {

std::string content(const map::Tile& tile) {
  std::ifstream file(kept_tiles::folder() + map::file_name(tile), std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return std::move(text).str();
}

TEST(KeptTiles, AreAllThereAndCanBeRead) {
  for (const map::Tile& tile : map::all_tiles())
    EXPECT_TRUE(map::parse_coast(content(tile), tile)) << map::file_name(tile);
}

TEST(KeptTiles, HaveShortLinesAndAreSmallTogether) {
  constexpr std::size_t kMostBytes = 8'000'000;
  std::size_t bytes = 0;
  for (const map::Tile& tile : map::all_tiles()) {
    const std::string text = content(tile);
    bytes += text.size();
    std::istringstream lines(text);
    std::size_t longest = 0;
    for (std::string line; std::getline(lines, line);) longest = std::max(longest, line.size());
    EXPECT_LE(longest, map::kLongestLine) << map::file_name(tile);
  }
  EXPECT_LT(bytes, kMostBytes);
}

TEST(KeptTiles, AreNoOthers) {
  std::size_t files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(kept_tiles::folder()))
    files += entry.path().extension() == ".src" ? 1 : 0;
  EXPECT_EQ(files, map::all_tiles().size());
}

}  // namespace
