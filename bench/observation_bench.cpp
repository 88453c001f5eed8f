// One observation to its products and back. Each measurement has its floor beside it, which copies
// the same output bytes from ready pieces; the counter "allocations" is heap allocations per round.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "observation/control_characters.h"
#include "observation/counted_allocations.h"
#include "observation/logbook_encoder.h"
#include "observation/records.h"
#include "observation/report_encoder.h"
#include "observation/report_reader.h"
#include "text/strings.h"

namespace {

/// The ship of the records, computing its dew point, so that every group is written.
ShipFixedData ship() {
  ShipFixedData ship = records::ship();
  ship.dew_point_method = DewPointMethod::kComputed;
  return ship;
}

/// Date, hour and position alone.
Struct_Weather sparse() {
  return records::with({{"Year", "2014"},
                        {"Month", "11"},
                        {"YY", "15"},
                        {"GG", "12"},
                        {"Qc", "1"},
                        {"LaDeg", "35"},
                        {"LaMin", "42"},
                        {"LoDeg", "165"},
                        {"LoMin", "18"}});
}

struct Products {
  std::string message, missing, line;
};

void encode(const Struct_Weather& record, Products& products) {
  observation::encode_report(record, products.message, products.missing, true,
                             text::Language::kEnglish);
  products.line = observation::encode_logbook(record, ship(), {});
}

class Allocations {
 public:
  explicit Allocations(benchmark::State& state) : state_(state), before_(allocations) {}
  ~Allocations() {
    state_.counters["allocations"] = benchmark::Counter(static_cast<double>(allocations - before_),
                                                        benchmark::Counter::kAvgIterations);
  }
  Allocations(const Allocations&) = delete;
  Allocations& operator=(const Allocations&) = delete;

 private:
  benchmark::State& state_;
  std::size_t before_;
};

void products_of(benchmark::State& state, const Struct_Weather& record) {
  const ShipFixedData fixed = ship();
  const KeyObservationItems items;
  const Allocations count(state);
  for (auto _ : state) {
    std::string message;
    std::string missing;
    observation::encode_report(record, message, missing, true, text::Language::kEnglish);
    std::string line = observation::encode_logbook(record, fixed, items);
    benchmark::DoNotOptimize(message);
    benchmark::DoNotOptimize(missing);
    benchmark::DoNotOptimize(line);
  }
}

/// The pieces that the encoders put together: one for each symbol, indicator and separator, one for
/// each column of the logbook, one for each part of the missing list.
std::vector<std::string> pieces_of_report(const Struct_Weather& record) {
  std::vector<std::string> pieces{"BBXX ", record.call_sign_for_report(), " "};
  for (const auto group : observation::make_report(record, true).written.in_order()) {
    const auto& row = observation::row_of(group);
    std::string_view rest;
    std::string text = observation::group_text(record, group);
    rest = text;
    if (!row.indicator.empty()) pieces.emplace_back(row.indicator);
    rest.remove_prefix(row.indicator.size());
    for (const auto& symbol : row.used()) {
      pieces.emplace_back(rest.substr(0, symbol.width));
      rest.remove_prefix(symbol.width);
    }
    pieces.emplace_back(" ");
  }
  pieces.emplace_back(".....");
  return pieces;
}

std::vector<std::string> cut(const std::string& text, std::size_t width) {
  std::vector<std::string> pieces;
  for (std::size_t at = 0; at < text.size(); at += width) pieces.push_back(text.substr(at, width));
  return pieces;
}

std::string joined(const std::vector<std::string>& pieces, std::size_t size) {
  std::string text;
  text.reserve(size);
  for (const std::string& piece : pieces) text.append(piece);
  return text;
}

void floor_of(benchmark::State& state, const Struct_Weather& record) {
  Products products;
  encode(record, products);
  const auto report = pieces_of_report(record);
  // 70 rows make the 172 columns of a line.
  const auto line = cut(products.line, 172 / 70 + 1);
  const auto missing = cut(products.missing, 14);
  const Allocations count(state);
  for (auto _ : state) {
    std::string a = joined(report, products.message.size());
    std::string b = joined(missing, products.missing.size());
    std::string c = joined(line, products.line.size());
    benchmark::DoNotOptimize(a);
    benchmark::DoNotOptimize(b);
    benchmark::DoNotOptimize(c);
  }
}

void FullProductsFloor(benchmark::State& state) {
  floor_of(state, records::full());
}
void FullProducts(benchmark::State& state) {
  products_of(state, records::full());
}
void SparseProductsFloor(benchmark::State& state) {
  floor_of(state, sparse());
}
void SparseProducts(benchmark::State& state) {
  products_of(state, sparse());
}

/// A new record and its fields copied from one that holds them.
void ReadingFloor(benchmark::State& state) {
  const Struct_Weather fresh({}, {});
  const Struct_Weather ready = records::full();
  const Allocations count(state);
  for (auto _ : state) {
    Struct_Weather record = fresh;
    for (const auto& row : observation::group_rows())
      for (const auto& symbol : row.used()) record.*symbol.field = ready.*symbol.field;
    benchmark::DoNotOptimize(record);
  }
}

void Reading(benchmark::State& state) {
  Products products;
  encode(records::full(), products);
  const Struct_Weather fresh({}, {});
  const Allocations count(state);
  for (auto _ : state) {
    auto report = observation::read_report(products.message, fresh);
    benchmark::DoNotOptimize(report);
  }
}

/// What is asked before every encoding, beside a look at as many bytes in one piece.
void SoundnessFloor(benchmark::State& state) {
  const Struct_Weather record = records::full();
  std::string all;
  for (const WeatherField& field : weather_fields()) all += record.*field.member;
  const Allocations count(state);
  for (auto _ : state) {
    benchmark::DoNotOptimize(all);
    benchmark::DoNotOptimize(text::has_control(all));
  }
}

void Soundness(benchmark::State& state) {
  const ShipFixedData fixed = ship();
  Struct_Weather record = records::full();
  const Allocations count(state);
  for (auto _ : state) {
    benchmark::DoNotOptimize(record);
    benchmark::DoNotOptimize(observation::control_character_field(record, fixed));
  }
}

BENCHMARK(FullProductsFloor);
BENCHMARK(FullProducts);
BENCHMARK(SparseProductsFloor);
BENCHMARK(SparseProducts);
BENCHMARK(SoundnessFloor);
BENCHMARK(Soundness);
BENCHMARK(ReadingFloor);
BENCHMARK(Reading);

}  // namespace
