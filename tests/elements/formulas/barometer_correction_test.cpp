#include "elements/formulas/barometer_correction.h"

#include <gtest/gtest.h>

#include <cmath>

#include "elements/formulas/sea_level_pressure.h"
#include "text/numbers.h"

namespace {

using elements::Celsius;
using elements::Hectopascal;
using elements::total_correction;

BarometerCard first_card(const char* instrumental, const char* height_full, const char* full,
                         LoadingState state = LoadingState::kFullLoad) {
  BarometerCard card;
  card.type = CardType::kHeightAndTemperature;
  card.instrumental_correction = instrumental;
  card.height_full_load = height_full;
  card.total_correction_full_load = full;
  card.height_ballast = "30";
  card.total_correction_ballast = "+3.9";
  card.loading_state = state;
  return card;
}

TEST(TotalCorrection, ReducesOverHeightAndTemperature) {
  struct Row {
    double reading;
    const char* height;
    double air;
    double sea_level;
  };
  for (const Row& row : {Row{1015.4, "5", 20.0, 1016.0}, Row{1013.2, "20", 15.0, 1015.6},
                         Row{1020.0, "50", 0.0, 1026.4}}) {
    const double total =
        total_correction({row.reading}, first_card("+0.0", row.height, "+9.9"), Celsius{row.air})
            .value;
    EXPECT_NEAR(row.reading + total, row.sea_level, 0.05) << row.reading;
  }
  EXPECT_NEAR(total_correction({1013.2}, first_card("+0.0", "20", "+9.9"), Celsius{15.0}).value,
              2.40, 0.01);
}

TEST(TotalCorrection, ReducesTheInstrumentCorrectedReading) {
  // 40 decimal digits, a program of its own.
  EXPECT_NEAR(total_correction({1000.0}, first_card("-1.5", "20", "0"), Celsius{10.0}).value,
              0.912396713539769845, 1e-12);
}

TEST(TotalCorrection, TakesTheValuesOfTheLoadingState) {
  const auto at = [](LoadingState state, std::optional<Celsius> air) {
    return total_correction({1000.0}, first_card("+0.5", "10", "+1.7", state), air).value;
  };
  EXPECT_EQ(at(LoadingState::kFullLoad, std::nullopt), 1.7);
  EXPECT_EQ(at(LoadingState::kInBallast, std::nullopt), 3.9);
  EXPECT_EQ(at(LoadingState::kNotChosen, std::nullopt), 0.0);
  EXPECT_LT(at(LoadingState::kFullLoad, Celsius{10}), at(LoadingState::kInBallast, Celsius{10}));
  // No height: nothing but the instrument's error is left.
  EXPECT_EQ(at(LoadingState::kNotChosen, Celsius{10}), 0.5);
}

TEST(TotalCorrection, KeepsCardCorrectionWhenComputedOneIsOutOfBounds) {
  // The height is the lever: with no height the total is the instrumental correction itself.
  struct Row {
    const char* instrumental;
    double expected;
  };
  for (const Row& row :
       {Row{"80.0", 80.0}, Row{"80.1", 1.1}, Row{"-50.0", -50.0}, Row{"-50.1", 1.1}}) {
    EXPECT_EQ(
        total_correction({1000.0}, first_card(row.instrumental, "0", "+1.1"), Celsius{15}).value,
        row.expected)
        << row.instrumental;
  }
  EXPECT_EQ(total_correction({1000.0}, first_card("+0.0", "900", "+1.1"), Celsius{15}).value, 1.1);
  // A card correction out of bounds is used as it stands.
  EXPECT_EQ(total_correction({1000.0}, first_card("+0.0", "900", "99"), Celsius{15}).value, 99.0);
}

TEST(TotalCorrection, SecondCardIsItsFixedCorrectionWithoutBounds) {
  BarometerCard card = first_card("+5.0", "50", "+9.0");
  card.type = CardType::kTotalCorrection;
  card.total_correction = "-1.3";
  EXPECT_EQ(total_correction({1000.0}, card, Celsius{15}).value, -1.3);
  card.total_correction = "+81.0";
  EXPECT_EQ(total_correction({1000.0}, card, std::nullopt).value, 81.0);
  card.total_correction = "";
  EXPECT_EQ(total_correction({1000.0}, card, std::nullopt).value, 0.0);
}

TEST(TotalCorrection, WithoutACardIsTheReadingItself) {
  EXPECT_EQ(total_correction({1013.2}, BarometerCard{}, Celsius{15}).value, 1013.2);
  BarometerCard strange = first_card("+0.0", "20", "+1.0");
  strange.type = static_cast<CardType>(7);
  EXPECT_EQ(total_correction({1013.2}, strange, std::nullopt).value, 1013.2);
}

TEST(TotalCorrection, AirTemperatureTextLosesEverySpace) {
  EXPECT_FALSE(elements::air_temperature_of(""));
  EXPECT_FALSE(elements::air_temperature_of("   "));
  EXPECT_EQ(elements::air_temperature_of(" - 1 2.5 ")->value, -12.5);
}

TEST(TotalCorrection, IsContinuousInTemperatureAndHeight) {
  for (double reading = 870.0; reading <= 1070.0; reading += 20.0) {
    for (int height = 0; height < 200; ++height) {
      const BarometerCard card = first_card("+0.3", std::to_string(height).c_str(), "+44.0");
      const BarometerCard next = first_card("+0.3", std::to_string(height + 1).c_str(), "+44.0");
      for (double air = -25.0; air <= 40.0; air += 5.0) {
        const double here = total_correction({reading}, card, Celsius{air}).value;
        EXPECT_NEAR(total_correction({reading}, card, Celsius{air + 0.1}).value, here, 0.02);
        EXPECT_NEAR(total_correction({reading}, next, Celsius{air}).value, here, 0.2);
      }
    }
  }
}

TEST(TotalCorrection, IsNeverNaNHoweverWildTheTexts) {
  const char* const wild[] = {"", "-", "1e308", "-1e308", "nan", "1e-308", "０", "\xFF", "///"};
  for (const char* instrumental : wild) {
    for (const char* height : wild) {
      for (const char* fixed : wild) {
        const BarometerCard card = first_card(instrumental, height, fixed);
        for (const double air : {-273.15, -300.0, -1e308, 1e308, 0.0, 15.0}) {
          for (const double reading : {0.0, 1e308, -1e308, 1013.2}) {
            EXPECT_FALSE(std::isnan(total_correction({reading}, card, Celsius{air}).value));
            EXPECT_FALSE(
                std::isnan(elements::sea_level_pressure({reading}, card, Celsius{air}).value));
          }
        }
      }
    }
  }
}

TEST(TotalCorrectionText, FillsNegativeValuesWithZeroAndPositiveOnesWithABlank) {
  struct Row {
    double value;
    const char* shown;
  };
  for (const Row& row :
       {Row{1.2, "+ 1.2"}, Row{-1.2, "-01.2"}, Row{12.3, "+12.3"}, Row{-12.3, "-12.3"},
        Row{0.0, "+ 0.0"}, Row{-0.04, "-00.0"}, Row{80.0, "+80.0"}, Row{1013.2, "+1013.2"}}) {
    EXPECT_EQ(elements::total_correction_text({row.value}), row.shown);
  }
}

TEST(TotalCorrectionText, AddsTheMissingDecimal) {
  struct Row {
    const char* number;
    const char* shown;
  };
  for (const Row& row :
       {Row{"1", "+01.0"}, Row{"-1", "-01.0"}, Row{"1.", "+01.0"}, Row{"12.", "+12.0"},
        Row{"+1.2", "+01.2"}, Row{"123", "+123.0"}, Row{"", "+0.0"}, Row{"-", "-0.0"}}) {
    // At most one zero is inserted, so a sign alone stays short of five characters.
    EXPECT_EQ(elements::with_sign_and_decimal(row.number), row.shown) << row.number;
  }
}

}  // namespace
