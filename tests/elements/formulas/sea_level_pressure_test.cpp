#include "elements/formulas/sea_level_pressure.h"

#include <gtest/gtest.h>

#include "elements/form/field_codes.h"
#include "fakes/sample_ship.h"

namespace {

using codetables::PressureRange;
using elements::ReadingParts;
using elements::reduce_reading;

TEST(BarometerReading, SplitsIntoWholeAndTenths) {
  struct Row {
    const char* text;
    ReadingParts parts;
  };
  const Row rows[] = {
      {"", {"", ""}},           {"1013.2", {"1013", "2"}},
      {"0998.7", {"998", "7"}}, {" 5.2", {"5", "2"}},
      {"1013", {"1013", "0"}},  {"1013.29", {"1013", "2"}},
      {"99999.9", {"0", "9"}},  {"/", {"0", "0"}},
      {"-0.5", {"0", "-5"}},    {"9999.9", {"9999", "9"}},
  };
  for (const Row& row : rows) EXPECT_EQ(elements::split_reading(row.text), row.parts) << row.text;
}

TEST(BarometerReading, SplittingGivesEveryReadingOfTheListsBack) {
  for (int tenths = 8700; tenths < 10700; ++tenths) {
    const std::string whole = std::to_string(tenths / 10);
    const std::string decimal = std::to_string(tenths % 10);
    EXPECT_EQ(elements::split_reading(whole + "." + decimal), (ReadingParts{whole, decimal}));
  }
}

TEST(BarometerReading, IsCutOneFigureBehindItsFirstPoint) {
  struct Row {
    const char* text;
    const char* cut;
  };
  for (const Row& row :
       {Row{"1013.25", "1013.2"}, Row{" 1013.29 ", "1013.2"}, Row{"1.2.3", "1.2"},
        Row{"1013.", "1013."}, Row{"1013", "1013"}, Row{".55", ".5"}, Row{"", ""}}) {
    EXPECT_EQ(elements::cut_to_one_decimal(row.text), row.cut) << row.text;
  }
}

TEST(BarometerReading, AcceptsDigitsWithOnePointBetween) {
  for (const char* good : {"1013.2", "998.7", "0998.7", "1013", "1", "101325.0", "10132"})
    EXPECT_TRUE(elements::is_reading(good)) << good;
  for (const char* bad : {"", ".5", "1013.", "1013.25", "1..2", "1.2.", "101325", "+1013", "-1",
                          "1 013", "１０１３", "1013.x", "1e3", "/"})
    EXPECT_FALSE(elements::is_reading(bad)) << bad;
}

TEST(SeaLevelPressure, GivesDisplayReadingAndFigures) {
  struct Row {
    const char* reading;
    const char* correction;
    const char* rewritten;
    const char* display;
    const char* pppp;
  };
  const Row rows[] = {
      {"998.7", "+1.0", "0998.7", "0999.7", "9997"},
      {"999.0", "+1.0", "0999.0", "1000.0", "0000"},
      {"1013.25", "+0.0", "1013.2", "1013.2", "0132"},
      {"1013", "+2.4", "1013.0", "1015.4", "0154"},
  };
  for (const Row& row : rows) {
    const auto result =
        reduce_reading(row.reading, fakes::total_card(row.correction), std::nullopt);
    ASSERT_TRUE(result) << row.reading;
    EXPECT_EQ(result->reading, row.rewritten);
    EXPECT_EQ(result->display, row.display);
    EXPECT_EQ(result->pppp, row.pppp);
    EXPECT_EQ(result->range, PressureRange::kAccepted);
  }
}

TEST(SeaLevelPressure, ReducesTheWorkedExample) {
  BarometerCard card;
  card.type = CardType::kHeightAndTemperature;
  card.instrumental_correction = "+0.0";
  card.loading_state = LoadingState::kFullLoad;
  card.height_full_load = "20";
  const auto result = reduce_reading("1013.2", card, elements::Celsius{15.0});
  ASSERT_TRUE(result);
  EXPECT_EQ(result->display, "1015.6");
  EXPECT_EQ(result->pppp, "0156");
}

TEST(SeaLevelPressure, NoReadingNoPressure) {
  for (const char* bad : {"", "  ", "101325", "abc", ".5", "9 9", "1013.", "\xFF"})
    EXPECT_FALSE(reduce_reading(bad, fakes::total_card("+0.0"), std::nullopt)) << bad;
}

TEST(SeaLevelPressure, WithoutACardIsDoubledAndRefused) {
  const auto result = reduce_reading("1013.2", BarometerCard{}, std::nullopt);
  ASSERT_TRUE(result);
  EXPECT_EQ(result->display, "2026.4");
  EXPECT_EQ(result->range, PressureRange::kRefused);
}

TEST(SeaLevelPressure, RangeHasTwoRefusedTwoAskingAndOneAcceptedBand) {
  struct Row {
    double value;
    PressureRange range;
  };
  const Row rows[] = {
      {869.9, PressureRange::kRefused},  {869.96, PressureRange::kRefused},
      {870.0, PressureRange::kAsks},     {929.9, PressureRange::kAsks},
      {930.0, PressureRange::kAccepted}, {1050.0, PressureRange::kAccepted},
      {1050.04, PressureRange::kAsks},   {1050.1, PressureRange::kAsks},
      {1069.96, PressureRange::kAsks},   {1070.0, PressureRange::kRefused},
      {-1.0, PressureRange::kRefused},   {0.0, PressureRange::kRefused},
      {1e308, PressureRange::kRefused},
  };
  for (const Row& row : rows)
    EXPECT_EQ(codetables::pressure_range({row.value}), row.range) << row.value;
}

TEST(SeaLevelPressure, RangeWorksOnTheUnroundedSum) {
  // Shown as 1070.0, yet below it: the question, not the refusal.
  const auto result = reduce_reading("1069.9", fakes::total_card("+0.06"), std::nullopt);
  ASSERT_TRUE(result);
  EXPECT_EQ(result->display, "1070.0");
  EXPECT_EQ(result->range, PressureRange::kAsks);
}

TEST(SeaLevelPressure, TypedFiguresHaveTheirOwnBands) {
  struct Row {
    int pppp;
    PressureRange range;
  };
  const Row rows[] = {
      {-1, PressureRange::kRefused},    {0, PressureRange::kAccepted},
      {500, PressureRange::kAccepted},  {501, PressureRange::kAsks},
      {700, PressureRange::kAsks},      {701, PressureRange::kRefused},
      {8699, PressureRange::kRefused},  {8700, PressureRange::kAsks},
      {9299, PressureRange::kAsks},     {9300, PressureRange::kAccepted},
      {9999, PressureRange::kAccepted}, {10000, PressureRange::kRefused},
  };
  for (const Row& row : rows) EXPECT_EQ(codetables::pppp_range(row.pppp), row.range) << row.pppp;
}

TEST(SeaLevelPressure, FiguresAreTheLastFour) {
  struct Row {
    const char* text;
    const char* pppp;
  };
  for (const Row& row : {Row{"1013.2", "0132"}, Row{"0998.7", "9987"}, Row{"1000.0", "0000"},
                         Row{"9.9", "0099"}, Row{"", "0000"}, Row{"99.99", "9999"}}) {
    EXPECT_EQ(codetables::pppp_of(row.text), row.pppp) << row.text;
  }
}

TEST(SeaLevelPressure, OnlyAChangedNewValueClearsTheCharacteristic) {
  Struct_Weather record{ShipFixedData{}, KeyObservationItems{}};
  record.a = "2";
  record.ppp = "012";
  record.PPPP = "0132";
  elements::store_pppp(record, "0132");
  EXPECT_EQ(record.a, "2");
  elements::store_pppp(record, "");
  EXPECT_EQ(record.PPPP, "");
  EXPECT_EQ(record.a, "2");
  record.PPPP = "0132";
  elements::store_pppp(record, "0133");
  EXPECT_EQ(record.PPPP, "0133");
  EXPECT_EQ(record.a, "");
  EXPECT_EQ(record.ppp, "012");
}

}  // namespace
