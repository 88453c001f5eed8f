// A report in plain words. The floor copies the bytes that come out.

#include <benchmark/benchmark.h>

#include <string>

#include "explain/plain/plain_words.h"
#include "observation/records.h"
#include "observation/report_encoder.h"

namespace {

void plain_words(benchmark::State& state, text::Language language) {
  const std::string report = observation::make_report(records::full(), true).text;
  for (auto _ : state) {
    auto lines = explain::plain_words(report, {2014, 11}, language);
    benchmark::DoNotOptimize(lines);
  }
}
void plain_words_english(benchmark::State& state) {
  plain_words(state, text::Language::kEnglish);
}
void plain_words_japanese(benchmark::State& state) {
  plain_words(state, text::Language::kJapanese);
}
BENCHMARK(plain_words_english);
BENCHMARK(plain_words_japanese);

void plain_words_floor(benchmark::State& state) {
  const std::string report = observation::make_report(records::full(), true).text;
  const auto lines = explain::plain_words(report, {2014, 11}, text::Language::kEnglish);
  for (auto _ : state) {
    auto copy = lines;
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(plain_words_floor);

}  // namespace
