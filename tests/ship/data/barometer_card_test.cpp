// What a barometer correction card may hold, without any screen.

#include "ship/data/barometer_card.h"

#include <gtest/gtest.h>

#include <string>

#include "fakes/fake_code_page.h"
#include "ship/data/barometer_date.h"
#include "ship/ship_data.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
const fakes::FakeCodePage kCodePage;
constexpr platform::DateTime kToday{2014, 11, 15, 20, 50, 0};

using ship_test::card_one;

text::Id message_of(const std::optional<CardFault>& fault) {
  return fault ? fault->message : 0;
}

TEST(BarometerDate, LosesSpacesAndFillsUpMonthAndDay) {
  struct {
    const char* typed;
    const char* normalised;
  } const rows[] = {
      {"2014/8/9", "2014/08/09"},   {" 2014 / 8 / 09 ", "2014/08/09"},
      {"2014/12/1", "2014/12/01"},  {"2014/11/15", "2014/11/15"},
      {"14/1/1", "14/01/01"},       {"2014/8", "2014/8"},
      {"2014/8/9/1", "2014/8/9/1"}, {"2014//", "2014//"},
      {"2014/x/y", "2014/x/y"},     {"", ""},
      {"yyyy/mm/dd", "yyyy/mm/dd"}, {"///", "///"},
  };
  for (const auto& row : rows) EXPECT_EQ(normalised_check_date(row.typed), row.normalised);
}

TEST(BarometerDate, LiesBetweenTheYear2000AndToday) {
  struct {
    const char* text;
    bool accepted;
  } const rows[] = {
      {"2000/01/01", true},
      {"1999/12/31", false},
      {"2014/11/15", true},
      {"2014/11/16", false},
      {"2014/12/01", false},
      {"2015/01/01", false},
      {"9999/01/01", false},
      {" 2014/ 11/15", true},
      // not of the shape
      {"2014/8/9", false},
      {"2014-11-15", false},
      {"20141115", false},
      {"2014/111/5", false},
      {"201/411/15", false},
      {"2014/11/15/", false},
      {"2014/1a/15", false},
      {"yyyy/mm/dd", false},
      {"", false},
      {"2014/11//5", false},
  };
  for (const auto& row : rows) EXPECT_EQ(is_check_date(row.text, kToday), row.accepted) << row.text;
}

TEST(BarometerDate, IsADayThatExists) {
  struct {
    const char* text;
    bool accepted;
  } const rows[] = {
      {"2014/02/28", true},  {"2014/02/29", false}, {"2012/02/29", true},  {"2000/02/29", true},
      {"2014/04/31", false}, {"2014/03/31", true},  {"2014/00/10", false}, {"2013/13/10", false},
      {"2014/05/00", false}, {"2014/05/32", false},
  };
  for (const auto& row : rows) EXPECT_EQ(is_check_date(row.text, kToday), row.accepted) << row.text;
}

TEST(BarometerDate, IsMissingWhenBlankOrStillThePlaceholder) {
  const struct {
    const char* text;
    bool missing;
  } rows[] = {
      {"", true},           {"  ", true},          {"yyyy/mm/dd", true}, {" yyyy/mm/dd ", true},
      {"yyyy/mm/d", false}, {"2014/mm/dd", false}, {"//", false},        {"2014/10/01", false},
  };
  for (const auto& row : rows) EXPECT_EQ(is_check_date_missing(row.text), row.missing) << row.text;
}

struct ValueRow {
  CardField field;
  const char* value;
  text::Id message;  // 0 when accepted
};

// Card type "1" with 10 m and +1.0 at full load, 20 m and +2.0 in ballast.
TEST(BarometerCard, OfType1AcceptsAndRefuses) {
  using F = CardField;
  const ValueRow rows[] = {
      {F::kInstrumentalCorrection, "", id::kInstrumentalMissing},
      {F::kInstrumentalCorrection, "abc", id::kInstrumentalNotNumeric},
      {F::kInstrumentalCorrection, "+", id::kInstrumentalNotNumeric},
      {F::kInstrumentalCorrection, "1.2.3", id::kInstrumentalNotNumeric},
      {F::kInstrumentalCorrection, "+-1", id::kInstrumentalNotNumeric},
      {F::kInstrumentalCorrection, "1e1", id::kInstrumentalNotNumeric},
      {F::kInstrumentalCorrection, ".5", id::kInstrumentalNotNumeric},
      {F::kInstrumentalCorrection, "0.x", id::kInstrumentalNotNumeric},
      {F::kInstrumentalCorrection, "50", 0},
      {F::kInstrumentalCorrection, "-50.0", 0},
      {F::kInstrumentalCorrection, "50.1", id::kInstrumentalRange},
      {F::kInstrumentalCorrection, "-50.1", id::kInstrumentalRange},
      {F::kInstrumentalCorrection, "+0.25", id::kOneDecimalOnly},
      {F::kInstrumentalCorrection, "60.25", id::kInstrumentalRange},
      {F::kHeightFullLoad, "", id::kHeightFullLoadMissing},
      {F::kHeightFullLoad, "1.5", id::kHeightNotInteger},
      {F::kHeightFullLoad, "-1", id::kHeightNotInteger},
      {F::kHeightFullLoad, "+1", id::kHeightNotInteger},
      {F::kHeightFullLoad, "0", 0},
      {F::kHeightFullLoad, "20", 0},
      {F::kHeightFullLoad, "21", id::kHeightRange},
      {F::kHeightFullLoad, "201", id::kHeightRange},
      {F::kTotalCorrectionFullLoad, "", id::kTotalFullLoadMissing},
      {F::kTotalCorrectionFullLoad, "x", id::kTotalCorrectionNotNumeric},
      {F::kTotalCorrectionFullLoad, "-50", 0},
      {F::kTotalCorrectionFullLoad, "-50.1", id::kTotalFullLoadRange},
      {F::kTotalCorrectionFullLoad, "+2.0", 0},
      {F::kTotalCorrectionFullLoad, "+2.1", id::kTotalFullLoadRange},
      {F::kTotalCorrectionFullLoad, "+1.25", id::kOneDecimalOnly},
      {F::kHeightBallast, "", id::kHeightBallastMissing},
      {F::kHeightBallast, "x", id::kHeightNotInteger},
      {F::kHeightBallast, "10", 0},
      {F::kHeightBallast, "9", id::kHeightRange},
      {F::kHeightBallast, "200", 0},
      {F::kHeightBallast, "201", id::kHeightRange},
      {F::kTotalCorrectionBallast, "", id::kTotalBallastMissing},
      {F::kTotalCorrectionBallast, "two", id::kTotalCorrectionNotNumeric},
      {F::kTotalCorrectionBallast, "80", 0},
      {F::kTotalCorrectionBallast, "80.0", 0},
      {F::kTotalCorrectionBallast, "80.1", id::kTotalBallastRange},
      {F::kTotalCorrectionBallast, "+0.9", id::kTotalBallastRange},
      {F::kTotalCorrectionBallast, "+1.0", 0},
      {F::kTotalCorrectionBallast, "+1.25", id::kOneDecimalOnly},
      {F::kTotalCorrection, "not of this card", 0},
  };
  for (const ValueRow& row : rows) {
    BarometerCard card = card_one();
    card.*card_text(row.field) = row.value;
    EXPECT_EQ(message_of(card_field_fault(card, row.field, kToday, kCodePage)), row.message)
        << static_cast<int>(row.field) << " " << row.value;
  }
}

TEST(BarometerCard, OfType2AcceptsAndRefuses) {
  const ValueRow rows[] = {
      {CardField::kTotalCorrection, "", id::kTotalCorrectionMissing},
      {CardField::kTotalCorrection, "1,5", id::kTotalCorrectionNotNumeric},
      {CardField::kTotalCorrection, "80", 0},
      {CardField::kTotalCorrection, "+80.0", 0},
      {CardField::kTotalCorrection, "80.1", id::kTotalCorrectionRange},
      {CardField::kTotalCorrection, "-50.0", 0},
      {CardField::kTotalCorrection, "-50.1", id::kTotalCorrectionRange},
      {CardField::kTotalCorrection, "+1.25", id::kOneDecimalOnly},
      {CardField::kInstrumentalCorrection, "not of this card", 0},
      {CardField::kHeightFullLoad, "not of this card", 0},
  };
  for (const ValueRow& row : rows) {
    BarometerCard card = fakes::total_card();
    card.*card_text(row.field) = row.value;
    EXPECT_EQ(message_of(card_field_fault(card, row.field, kToday, kCodePage)), row.message)
        << row.value;
  }
}

TEST(BarometerCard, ComparesTheStatesOnlyWhenAsked) {
  BarometerCard card = card_one();
  card.height_full_load = "30";
  EXPECT_EQ(message_of(card_field_fault(card, CardField::kHeightFullLoad, kToday, kCodePage)),
            id::kHeightRange);
  EXPECT_FALSE(card_field_fault(card, CardField::kHeightFullLoad, kToday, kCodePage, false));
  card.height_full_load = "201";
  EXPECT_TRUE(card_field_fault(card, CardField::kHeightFullLoad, kToday, kCodePage, false));
}

TEST(BarometerCard, AsksForAMissingPartnerInsteadOfComparingWithIt) {
  BarometerCard card = card_one();
  card.height_ballast.clear();
  EXPECT_FALSE(card_field_fault(card, CardField::kHeightFullLoad, kToday, kCodePage));
  EXPECT_EQ(message_of(card_field_fault(card, CardField::kHeightBallast, kToday, kCodePage)),
            id::kHeightBallastMissing);
}

TEST(BarometerCard, NamesTodayInTheRangeOfTheDate) {
  BarometerCard card = card_one();
  card.check_date = "2014/11/16";
  const auto fault = card_field_fault(card, CardField::kCheckDate, kToday, kCodePage);
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->message, id::kCheckDateRange);
  EXPECT_EQ(fault->argument, "2014/11/15");
  card.check_date = " ";
  EXPECT_EQ(message_of(card_field_fault(card, CardField::kCheckDate, kToday, kCodePage)),
            id::kCheckDateMissing);
}

TEST(BarometerCard, ChangedToType2LosesWhatOnlyType1Has) {
  BarometerCard card = card_one();
  card.total_correction = "+0.7";
  change_card_type(card, CardType::kTotalCorrection);
  BarometerCard wanted = fakes::total_card("+0.7");
  wanted.check_date = "2014/08/09";
  EXPECT_EQ(card, wanted);
}

TEST(BarometerCard, ChangedToType1LosesTheSingleTotalCorrection) {
  BarometerCard card = fakes::total_card("+0.7");
  card.height_ballast = "15";
  card.loading_state = LoadingState::kInBallast;
  BarometerCard wanted = card;
  wanted.type = CardType::kHeightAndTemperature;
  wanted.total_correction = "+0.0";
  change_card_type(card, CardType::kHeightAndTemperature);
  EXPECT_EQ(card, wanted);
}

TEST(BarometerCard, ChangedToItsOwnTypeStaysAsItIs) {
  BarometerCard card = card_one();
  card.total_correction = "+0.7";
  const BarometerCard before = card;
  change_card_type(card, CardType::kHeightAndTemperature);
  EXPECT_EQ(card, before);
}

TEST(BarometerCard, IsCheckedInTheOrderGiven) {
  const CardField order[] = {CardField::kType, CardField::kCheckDate, CardField::kCheckPort};
  BarometerCard card;
  EXPECT_EQ(message_of(first_card_fault(card, kToday, kCodePage, order)), id::kCardTypeMissing);
  card.type = CardType::kTotalCorrection;
  EXPECT_EQ(message_of(first_card_fault(card, kToday, kCodePage, order)), id::kCheckDateMissing);
  card.check_date = "1999/12/31";
  EXPECT_EQ(message_of(first_card_fault(card, kToday, kCodePage, order)), id::kCheckDateRange);
  card.check_date = "2014/01/01";
  EXPECT_EQ(message_of(first_card_fault(card, kToday, kCodePage, order)), id::kCheckPortMissing);
  card.check_port = "KOBE";
  EXPECT_FALSE(first_card_fault(card, kToday, kCodePage, order));
}

}  // namespace
