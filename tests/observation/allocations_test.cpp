// An encoder asks for memory once for each text that it gives back, and for nothing else. Not under
// the address sanitizer, which brings its own operator new.
#ifndef __SANITIZE_ADDRESS__

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "observation/logbook_encoder.h"
#include "observation/report_encoder.h"
#include "records.h"

namespace {

std::atomic<std::size_t> allocations{0};

}  // namespace

// Not inlined: the compiler would take the pair of them apart and warn of the halves.
#define KAVREL_OUT_OF_LINE __attribute__((noinline))
KAVREL_OUT_OF_LINE void* operator new(std::size_t size) {
  allocations.fetch_add(1, std::memory_order_relaxed);
  if (void* block = std::malloc(size)) return block;
  throw std::bad_alloc();
}
KAVREL_OUT_OF_LINE void operator delete(void* block) noexcept {
  std::free(block);
}
KAVREL_OUT_OF_LINE void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}

namespace {

TEST(Allocations, AreOneForEachTextGivenBack) {
  struct Row {
    const char* what;
    Struct_Weather record;
    text::Language language;
    std::size_t report_texts;  ///< the report, and the missing list when it is not empty
  };
  const Row rows[] = {
      {"full", records::full(), text::Language::kEnglish, 1},
      {"fresh", records::fresh(), text::Language::kEnglish, 2},
      {"fresh, Japanese", records::fresh(), text::Language::kJapanese, 2},
  };
  const ShipFixedData ship = records::ship();
  for (const Row& row : rows) {
    std::string message;
    std::string missing;
    std::size_t before = allocations;
    observation::encode_report(row.record, message, missing, true, row.language);
    EXPECT_EQ(allocations - before, row.report_texts) << row.what;
    before = allocations;
    const std::string line = observation::encode_logbook(row.record, ship, {});
    EXPECT_EQ(allocations - before, 1U) << row.what;
  }
}

}  // namespace

#endif
