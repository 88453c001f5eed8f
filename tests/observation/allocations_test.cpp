// An encoder asks for memory once for each text that it gives back, and for nothing else.
#ifndef __SANITIZE_ADDRESS__

#include <gtest/gtest.h>

#include "counted_allocations.h"
#include "observation/logbook_encoder.h"
#include "observation/report_encoder.h"
#include "records.h"

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
