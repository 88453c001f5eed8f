// One observation as a BUFR message: what of it is ours, and the whole with ecCodes' encoding.

#include <benchmark/benchmark.h>

#include <optional>
#include <string>

#include "bufr/elements.h"
#include "bufr/message.h"
#include "observation/records.h"

namespace {

void contents_of_an_observation(benchmark::State& state) {
  const Struct_Weather record = records::full();
  const ShipFixedData ship = records::ship();
  for (auto round : state) benchmark::DoNotOptimize(bufr::contents_of(record, ship));
}
BENCHMARK(contents_of_an_observation);

void message_of_an_observation(benchmark::State& state) {
  const Struct_Weather record = records::full();
  const ShipFixedData ship = records::ship();
  const std::optional<bufr::WigosIdentifier> wigos{{0, 22000, 0, "ABC1234"}};
  for (auto round : state)
    benchmark::DoNotOptimize(bufr::encode(bufr::contents_of(record, ship), wigos));
}
BENCHMARK(message_of_an_observation)->Unit(benchmark::kMicrosecond);

/// The floor: the bytes of a message, ready, copied.
void copy_of_a_message(benchmark::State& state) {
  const std::string message =
      bufr::encode(bufr::contents_of(records::full(), records::ship()), std::nullopt);
  for (auto round : state) {
    std::string copy = message;
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(copy_of_a_message);

}  // namespace
