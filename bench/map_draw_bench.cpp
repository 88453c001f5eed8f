// Drawing the position map, its tiles read: the small one of the main window and each step of the
// larger one, on an open ocean and on the coast with the most points, beside the floor of looking
// at every point of the ship's tile once.

#include <benchmark/benchmark.h>

#include "map/map_drawing.h"
#include "platform/posix/posix_files.h"

namespace {

constexpr map::Place kOcean{35, -160};
constexpr map::Place kCoast{62, -7};
constexpr map::Place kAnyTile{84, 20};  // all around the globe
constexpr int kSmall = 400;
constexpr int kLarge = 1000;

struct Sea {
  platform::posix::PosixDriveMap drives{"/"};
  platform::posix::SystemCalls calls;
  platform::posix::PosixFiles files{drives, calls};
  map::SeaMap sea_map{files, "Z:" KAVREL_SEA_MAP};
  text::Texts texts;
};

void BM_EveryPoint_Floor(benchmark::State& state, map::Place place) {
  Sea sea;
  const auto coast = sea.sea_map.coast(map::tile_of(place));
  if (coast == nullptr) return state.SkipWithError("no tile");
  for (auto _ : state) {
    std::int64_t sum = 0;
    for (const map::Ring& ring : coast->rings())
      for (const map::CoastPoint point : ring.points) sum += point.longitude ^ point.latitude;
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK_CAPTURE(BM_EveryPoint_Floor, coast, kCoast);

void BM_DrawMap(benchmark::State& state, map::Place place, map::Step step, int pixels) {
  Sea sea;
  const map::ShipOnMap ship{place, 90, 15, {}};
  const auto draw = [&] {
    return map::map_drawing(ship, map::view_around(place, step), pixels, sea.sea_map, sea.texts);
  };
  if (draw().ground.empty()) return state.SkipWithError("nothing is drawn");
  for (auto _ : state) benchmark::DoNotOptimize(draw());
}
BENCHMARK_CAPTURE(BM_DrawMap, small_ocean, kOcean, map::Step::kTile, kSmall);
BENCHMARK_CAPTURE(BM_DrawMap, small_coast, kCoast, map::Step::kTile, kSmall);
BENCHMARK_CAPTURE(BM_DrawMap, small_around, kAnyTile, map::Step::kTile, kSmall);
BENCHMARK_CAPTURE(BM_DrawMap, large_coast, kCoast, map::Step::kTile, kLarge);
BENCHMARK_CAPTURE(BM_DrawMap, ten_degrees_coast, kCoast, map::Step::kTenDegrees, kLarge);
BENCHMARK_CAPTURE(BM_DrawMap, five_degrees_coast, kCoast, map::Step::kFiveDegrees, kLarge);
BENCHMARK_CAPTURE(BM_DrawMap, one_degree_coast, kCoast, map::Step::kOneDegree, kLarge);

// The first one of a voyage: the tiles are read as well.
void BM_FirstMap(benchmark::State& state, map::Place place) {
  const map::ShipOnMap ship{place, 90, 15, {}};
  for (auto _ : state) {
    Sea sea;
    benchmark::DoNotOptimize(map::map_drawing(ship, map::view_around(place, map::Step::kTile),
                                              kSmall, sea.sea_map, sea.texts));
  }
}
BENCHMARK_CAPTURE(BM_FirstMap, ocean, kOcean);
BENCHMARK_CAPTURE(BM_FirstMap, coast, kCoast);
BENCHMARK_CAPTURE(BM_FirstMap, around, kAnyTile);

}  // namespace
