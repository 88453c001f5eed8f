// The sea map: reading a tile beside the floor of only summing its bytes, and the answer whether a
// place is on land once its tiles are read, where that is easy and where it is hard.

#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>
#include <string>

#include "map/tiles/SeaMap.h"
#include "platform/posix/posix_files.h"
#include "text/checksum.h"

namespace {

// By their bytes the first and the middle one of 33.
constexpr map::Tile kLargest{100, 40, 140, -10};
constexpr map::Tile kTypical{140, 40, 180, -10};

std::string content(const map::Tile& tile) {
  std::ifstream file(std::string(KAVREL_SEA_MAP "/").append(map::file_name(tile)),
                     std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void BM_SumTile_Floor(benchmark::State& state, const map::Tile& tile) {
  const std::string text = content(tile);
  for (auto _ : state) {
    ::text::Checksum sum;
    sum.add(text);
    benchmark::DoNotOptimize(sum.value());
  }
}
BENCHMARK_CAPTURE(BM_SumTile_Floor, largest, kLargest);

void BM_LoadTile(benchmark::State& state, const map::Tile& tile) {
  const platform::posix::PosixDriveMap drives("/");
  platform::posix::SystemCalls calls;
  const platform::posix::PosixFiles files(drives, calls);
  for (auto _ : state) {
    map::SeaMap map(files, "Z:" KAVREL_SEA_MAP);
    if (map.coast(tile) == nullptr) return state.SkipWithError("no tile");
  }
}
BENCHMARK_CAPTURE(BM_LoadTile, largest, kLargest);
BENCHMARK_CAPTURE(BM_LoadTile, typical, kTypical);

void BM_IsLand(benchmark::State& state, map::Place place, map::Land expected) {
  const platform::posix::PosixDriveMap drives("/");
  platform::posix::SystemCalls calls;
  const platform::posix::PosixFiles files(drives, calls);
  map::SeaMap map(files, "Z:" KAVREL_SEA_MAP);
  if (map.at(place) != expected) return state.SkipWithError("another answer");
  for (auto _ : state) benchmark::DoNotOptimize(map.at(place));
}
BENCHMARK_CAPTURE(BM_IsLand, open_sea, map::Place{30, -40}, map::Land::kNo);
BENCHMARK_CAPTURE(BM_IsLand, deep_inland, map::Place{48, 90}, map::Land::kYes);
BENCHMARK_CAPTURE(BM_IsLand, among_islands, map::Place{76, -100}, map::Land::kYes);
BENCHMARK_CAPTURE(BM_IsLand, coast, map::Place{35.25, 139.72}, map::Land::kYes);
BENCHMARK_CAPTURE(BM_IsLand, corner_of_four_tiles, map::Place{39.99, 59.99}, map::Land::kYes);
BENCHMARK_CAPTURE(BM_IsLand, corner_at_sea, map::Place{-9.99, -140.02}, map::Land::kNo);

}  // namespace
