#include "elements/form/observation_form.h"

#include <gtest/gtest.h>

#include "elements/form/form_under_test.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using elements::Field;
using observation::Group;

using form_test::Form;

TEST(ObservationForm, StoresAnAcceptedFieldZeroFilledAndRebuildsItsGroup) {
  Form f;
  EXPECT_TRUE(f.enter(Field::kww, " 5 "));
  EXPECT_EQ(f.record().ww, "05");
  EXPECT_EQ(f.form->text(Field::kww), "05");
  EXPECT_EQ(observation::group_text(f.record(), Group::k7wwW1W2), "705**");
  EXPECT_TRUE(f.form->modified());
}

TEST(ObservationForm, EmptyTextClearsTheFieldAndItsError) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kww, "05"));
  f.world.windows.expect(id::kPresentWeatherRange);
  EXPECT_FALSE(f.enter(Field::kww, "5x"));
  EXPECT_TRUE(f.form->in_error(Field::kww));
  EXPECT_EQ(f.record().ww, "05");
  EXPECT_TRUE(f.enter(Field::kww, "  "));
  EXPECT_EQ(f.record().ww, "");
  EXPECT_FALSE(f.any_error());
}

TEST(ObservationForm, ABlankInsideRefuses) {
  Form f;
  f.world.windows.expect(id::kPresentWeatherRange);
  EXPECT_FALSE(f.enter(Field::kww, "0 5"));
  EXPECT_EQ(f.form->text(Field::kww), "0 5");
}

TEST(ObservationForm, SuppressedMessagesStillRefuseAndCountQuestionsAsYes) {
  Form f;
  f.suppressed = true;
  EXPECT_FALSE(f.enter(Field::kww, "xx"));
  EXPECT_TRUE(f.form->in_error(Field::kww));
  EXPECT_TRUE(f.enter(Field::kff, "85"));
  EXPECT_EQ(f.record().ff, "85");
}

TEST(ObservationForm, AFigureOfADialogIsNotRefusedWhenTheFocusPassesThrough) {
  Form f;
  f.form->change([](Struct_Weather& r) { r.zi = "0"; });
  EXPECT_EQ(f.form->text(Field::kzi), "0");
  EXPECT_TRUE(f.leave(Field::kzi));
  f.world.windows.expect(id::kIceTrendRange);
  EXPECT_FALSE(f.enter(Field::kzi, "0"));
  EXPECT_EQ(f.record().zi, "0");
}

TEST(ObservationForm, TheDaysBoundsAreThoseOfItsMonth) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kYear, "2015"));
  ASSERT_TRUE(f.enter(Field::kMonth, "2"));
  f.world.windows.expect_text("Error: Input data is out of range.\nIt must be \"01<=DAY<=28\"");
  EXPECT_FALSE(f.enter(Field::kYY, "29"));
  EXPECT_TRUE(f.enter(Field::kYY, "28"));
  ASSERT_TRUE(f.enter(Field::kMonth, "3"));
  ASSERT_TRUE(f.enter(Field::kYY, "31"));
  EXPECT_FALSE(f.any_error());
}

TEST(ObservationForm, TheYearsBoundsAreNamed) {
  Form f;  // the clock says 2014
  f.world.windows.expect_text("Error: Input data is out of range.\nIt must be \"1999<YEAR<=2015\"");
  EXPECT_FALSE(f.enter(Field::kYear, "1999"));
  EXPECT_TRUE(f.enter(Field::kYear, "2000"));
  EXPECT_TRUE(f.enter(Field::kYear, "2015"));
  f.world.windows.expect(id::kYearRange);
  EXPECT_FALSE(f.enter(Field::kYear, "2016"));
}

TEST(ObservationForm, WaveHeightsAreMetresInTheFieldAndHalfMetresInTheRecord) {
  Form f;
  for (const auto& [metres, figures] :
       {std::pair{"0.2", "00"}, {"1.5", "03"}, {"14.5", "29"}, {"//", "//"}}) {
    ASSERT_TRUE(f.enter(Field::kHw1Hw1, metres)) << metres;
    EXPECT_EQ(f.record().Hw1Hw1, figures) << metres;
  }
  f.form->change([](Struct_Weather& r) { r.HwHw = "03"; });
  EXPECT_EQ(f.form->text(Field::kHwHw), "1.5");
}

TEST(ObservationForm, ReadingBecomesPressureAndAChangedOneClearsTheCharacteristic) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kReading, "1013.25"));
  EXPECT_EQ(f.record().PPPP, "0132");
  EXPECT_EQ(f.form->text(Field::kReading), "1013.2");
  EXPECT_EQ(f.form->text(Field::kPPPP), "1013.2");
  ASSERT_TRUE(f.enter(Field::ka, "2"));
  ASSERT_TRUE(f.enter(Field::kReading, "1013.2"));
  EXPECT_EQ(f.record().a, "2");
  ASSERT_TRUE(f.enter(Field::kReading, "1014.0"));
  EXPECT_EQ(f.record().a, "");
  EXPECT_EQ(f.form->text(Field::ka), "");
  ASSERT_TRUE(f.enter(Field::ka, "2"));
  ASSERT_TRUE(f.enter(Field::kReading, ""));
  EXPECT_EQ(f.record().PPPP, "");
  EXPECT_EQ(f.record().a, "2");
}

TEST(ObservationForm, APressureMayBeTypedAsCodeOrInHectopascals) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kPPPP, "9987"));
  EXPECT_EQ(f.record().PPPP, "9987");
  EXPECT_EQ(f.form->text(Field::kPPPP), "0998.7");
  ASSERT_TRUE(f.enter(Field::kPPPP, "1015.6"));
  EXPECT_EQ(f.record().PPPP, "0156");
  for (const char* refused : {"0701", "8699", "869.9", "1070.0", "abc"}) {
    f.world.windows.expect(id::kSeaLevelPressureRange);
    EXPECT_FALSE(f.enter(Field::kPPPP, refused)) << refused;
  }
  f.world.windows.expect(id::kPressureQuestion, "no");
  EXPECT_FALSE(f.enter(Field::kPPPP, "0501"));
  EXPECT_EQ(f.record().PPPP, "0156");
  f.world.windows.expect(id::kPressureQuestion, "yes");
  EXPECT_TRUE(f.enter(Field::kPPPP, "0501"));
  EXPECT_EQ(f.record().PPPP, "0501");
}

TEST(ObservationForm, DryAndWetBulbGiveDewPointAndHumidity) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kReading, "1013.2"));
  ASSERT_TRUE(f.enter(Field::kDryBulb, "10"));
  ASSERT_TRUE(f.enter(Field::kWetBulb, "5.0"));
  EXPECT_EQ(f.record().SnT + f.record().TTT, "0100");
  EXPECT_EQ(f.record().Sw + f.record().TbTbTb, "0050");
  EXPECT_EQ(f.record().SnTd + f.record().TdTdTd, "1018");
  EXPECT_FALSE(f.record().LogExtra.empty());
}

TEST(ObservationForm, WetBulbAboveDryBulbIsRefusedFromEitherField) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kDryBulb, "10.0"));
  f.world.windows.expect(id::kWetBulbAboveAir);
  EXPECT_FALSE(f.enter(Field::kWetBulb, "10.1"));
  ASSERT_TRUE(f.enter(Field::kWetBulb, "9.0"));
  f.world.windows.expect(id::kWetBulbAboveAir);
  EXPECT_FALSE(f.enter(Field::kDryBulb, "8.9"));
  EXPECT_EQ(f.record().TTT, "100");
}

TEST(ObservationForm, SpeedOf99AndMoreGoesToItsOwnGroup) {
  Form f;
  f.world.windows.expect(id::kWindSpeedQuestion, "yes");
  ASSERT_TRUE(f.enter(Field::kff, "105"));
  EXPECT_EQ(f.record().ff, "99");
  EXPECT_EQ(f.record().fff, "105");
  ASSERT_TRUE(f.enter(Field::kff, "12"));
  EXPECT_EQ(f.record().ff, "12");
  EXPECT_EQ(f.record().fff, "");
}

TEST(ObservationForm, WindRulesAreRaisedByTheSpeed) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kdd, "18"));
  f.world.windows.expect(id::kDirectionWithoutSpeed);
  EXPECT_FALSE(f.enter(Field::kff, "0"));
  f.world.windows.expect(id::kDirectionBelowOneKnot);
  EXPECT_FALSE(f.enter(Field::kff, "0.3"));
  ASSERT_TRUE(f.enter(Field::kdd, "0"));
  EXPECT_EQ(f.record().dd, "00");
  f.world.windows.expect(id::kCalmDirectionWithSpeed);
  EXPECT_FALSE(f.enter(Field::kff, "0.5"));
  EXPECT_TRUE(f.enter(Field::kff, "0.3"));
  EXPECT_EQ(f.record().ff, "00");
}

TEST(ObservationForm, ApparentWindGivesTrueWindAndMissingInputEmptiesIt) {
  Form f;
  f.ship.wind_input_method = WindInputMethod::kApparentWind;
  f.rebuild();
  ASSERT_TRUE(f.enter(Field::kHeading, "360"));
  ASSERT_TRUE(f.enter(Field::kShipSpeed, "10"));
  ASSERT_TRUE(f.enter(Field::kApparentDirection, "90"));
  ASSERT_TRUE(f.enter(Field::kApparentSpeed, "10"));
  EXPECT_EQ(f.record().dd + f.record().ff, "1414");
  ASSERT_TRUE(f.enter(Field::kShipSpeed, ""));
  EXPECT_EQ(f.record().dd + f.record().ff, "");
}

TEST(ObservationForm, CloudRulesAreRefusedFromEitherField) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kN, "5"));
  f.world.windows.expect(id::kLowestAboveTotal);
  EXPECT_FALSE(f.enter(Field::kNh, "6"));
  ASSERT_TRUE(f.enter(Field::kNh, "5"));
  f.world.windows.expect(id::kLowestAboveTotal);
  EXPECT_FALSE(f.enter(Field::kN, "4"));
  EXPECT_TRUE(f.enter(Field::kN, "/"));
}

TEST(ObservationForm, SwitchedOffWeatherIsFilledAndLockedAndComesBack) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kww, "61"));
  f.items.set_observed(ObservationItem::ww, false);
  f.form->items_changed();
  EXPECT_EQ(f.record().ww, "//");
  EXPECT_EQ(f.record().iX, "1");
  EXPECT_TRUE(f.enter(Field::kww, "02"));
  EXPECT_EQ(f.record().ww, "//");
  f.items.set_observed(ObservationItem::W1W2, false);
  f.form->items_changed();
  EXPECT_EQ(f.record().iX, "3");
  EXPECT_EQ(observation::group_text(f.record(), Group::k7wwW1W2), "7////");
  f.items = {};
  f.form->items_changed();
  EXPECT_EQ(f.record().ww, "61");
  EXPECT_EQ(f.record().W1, "");
  EXPECT_EQ(f.record().iX, "1");
}

TEST(ObservationForm, HemispheresGiveTheQuadrantAndNoneIsAssumed) {
  Form f;
  f.form->choose_hemispheres(0, -1);
  EXPECT_EQ(f.record().Qc, "");
  const char* const quadrants[2][2] = {{"1", "7"}, {"3", "5"}};
  for (int ns = 0; ns < 2; ++ns) {
    for (int ew = 0; ew < 2; ++ew) {
      f.form->choose_hemispheres(ns, ew);
      EXPECT_EQ(f.record().Qc, quadrants[ns][ew]);
    }
  }
}

TEST(ObservationForm, SeaTemperatureTakesSignAndMethod) {
  Form f;
  f.ship.sea_temperature_method = SeaTemperatureMethod::kBucket;
  ASSERT_TRUE(f.enter(Field::kTwTwTw, "12.3"));
  EXPECT_EQ(f.record().Ss + f.record().TwTwTw, "2123");
  ASSERT_TRUE(f.enter(Field::kTwTwTw, "-1.5"));
  EXPECT_EQ(f.record().Ss + f.record().TwTwTw, "3015");
}

struct GroupRow {
  Group group;
  const char* typed;
  const char* shown;
};

TEST(ObservationForm, AGroupTypedWholeFillsItsFields) {
  const GroupRow rows[] = {
      {Group::kYYGGiw, "15123", "15123"},        {Group::k99LaLaLa, "99359", "99359"},
      {Group::kQcLoLoLoLo, "71405", "71405"},    {Group::kiRiXhVV, "41497", "41497"},
      {Group::kNddff, "81617", "81617"},         {Group::k1SnTTT, "11018", "11018"},
      {Group::k2SnTdTdTd, "21020", "21020"},     {Group::k4PPPP, "40132", "40132"},
      {Group::k5appp, "52011", "52011"},         {Group::k7wwW1W2, "76162", "76162"},
      {Group::k8NhCLCMCH, "8352/", "8352/"},     {Group::k222DsVs, "22234", "22234"},
      {Group::k0SsTwTwTw, "01015", "01015"},     {Group::k2PwPwHwHw, "20703", "20703"},
      {Group::k3dw1dw1dw2dw2, "327//", "327//"}, {Group::k4Pw1Pw1Hw1Hw1, "40804", "40804"},
      {Group::k6IsEsEsRs, "61052", "61052"},     {Group::k8SwTbTbTb, "81015", "81015"},
      {Group::kICE, "ICE 12345", "ICE 12345"},   {Group::kICE, "54321", "ICE 54321"},
      {Group::k1PwaPwaHwaHwa, "10705", "10705"}, {Group::k4PPPP, "4////", "4////"},
  };
  for (const GroupRow& row : rows) {
    Form f;
    EXPECT_TRUE(f.enter(row.group, row.typed)) << row.typed;
    EXPECT_EQ(observation::group_text(f.record(), row.group), row.shown);
    EXPECT_TRUE(f.enter(row.group, "")) << row.typed;
    EXPECT_EQ(observation::group_text(f.record(), row.group)
                  .find_first_of("56789", row.group == Group::kICE ? 4 : 3),
              std::string::npos)
        << observation::group_text(f.record(), row.group);
  }
}

TEST(ObservationForm, AGroupOfTheWrongShapeIsRefusedWhole) {
  for (const char* typed :
       {"4015", "401561", "50156", "4O156", "4 0156x", "４０１５６", "\xff\xfe"}) {
    Form f;
    ASSERT_TRUE(f.enter(Field::kPPPP, "9987"));
    const Struct_Weather before = f.record();
    f.world.windows.expect(id::kInputError);
    EXPECT_FALSE(f.enter(Group::k4PPPP, typed)) << typed;
    EXPECT_TRUE(f.record() == before);
  }
}

TEST(ObservationForm, AGroupWithOneWrongSymbolStoresNone) {
  Form f;
  const Struct_Weather before = f.record();
  f.world.windows.expect(id::kVisibilityRange);
  EXPECT_FALSE(f.enter(Group::kiRiXhVV, "41489"));
  EXPECT_TRUE(f.record() == before);
  EXPECT_EQ(f.form->text(Field::kh), "");
  f.world.windows.expect(id::kSignRange);
  EXPECT_FALSE(f.enter(Group::k1SnTTT, "12015"));
  EXPECT_TRUE(f.record() == before);
}

TEST(ObservationForm, ADayThatTheNewMonthDoesNotHaveIsTheOneToBeCorrected) {
  Form f;
  for (const auto& [field, text] : {std::pair{Field::kYear, "2014"},
                                    {Field::kMonth, "10"},
                                    {Field::kYY, "31"},
                                    {Field::kMonth, "11"}})
    ASSERT_TRUE(f.enter(field, text));
  EXPECT_EQ(f.record().Month, "11");
  EXPECT_TRUE(f.form->in_error(Field::kYY));
  f.world.windows.expect(id::kDateInvalid);
  EXPECT_FALSE(f.leave(Field::kYY));
  EXPECT_EQ(f.record().YY, "31");
  f.world.windows.expect(id::kDayRange);
  EXPECT_FALSE(f.enter(Field::kYY, "31"));
  EXPECT_TRUE(f.enter(Field::kYY, "01"));
  EXPECT_FALSE(f.any_error());
}

TEST(ObservationForm, AYearMayMakeThe29thOfFebruaryImpossible) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kMonth, "02"));
  ASSERT_TRUE(f.enter(Field::kYY, "29"));  // of a year not yet known
  ASSERT_TRUE(f.enter(Field::kYear, "2012"));
  EXPECT_FALSE(f.form->in_error(Field::kYY));
  ASSERT_TRUE(f.enter(Field::kYear, "2014"));
  EXPECT_TRUE(f.form->in_error(Field::kYY));
  ASSERT_TRUE(f.enter(Field::kMonth, "03"));
  EXPECT_FALSE(f.form->in_error(Field::kYY));
}

TEST(ObservationForm, NothingLiesBeyondThePoleAndTheDateLine) {
  struct Row {
    Field degrees, minutes;
    const char* limit;
    text::Id message;
  };
  for (const Row& row : {Row{Field::kLaDeg, Field::kLaMin, "90", id::kLatitudeMinutesRange},
                         Row{Field::kLoDeg, Field::kLoMin, "180", id::kLongitudeMinutesRange}}) {
    Form f;
    ASSERT_TRUE(f.enter(row.degrees, row.limit));
    f.world.windows.expect(row.message);
    EXPECT_FALSE(f.enter(row.minutes, "01"));
    ASSERT_TRUE(f.enter(row.minutes, "00"));
    ASSERT_TRUE(f.enter(row.degrees, "89"));
    ASSERT_TRUE(f.enter(row.minutes, "30"));
    // The degrees are right; the minutes wait to be corrected.
    ASSERT_TRUE(f.enter(row.degrees, row.limit));
    f.world.windows.expect(row.message);
    EXPECT_FALSE(f.leave(row.minutes));
    EXPECT_EQ(f.remarks().size(), 1U);
    EXPECT_TRUE(f.enter(row.minutes, "00"));
    EXPECT_TRUE(f.remarks().empty());
  }
}

TEST(ObservationForm, ATimeFarFromTheNominalHourAsks) {
  struct Row {
    const char *nominal, *hour, *minute;
    bool asks;
  };
  for (const Row& row : {Row{"12", "11", "50", false},
                         {"12", "11", "30", false},
                         {"12", "11", "29", true},
                         {"12", "12", "30", false},
                         {"12", "12", "31", true},
                         {"00", "23", "30", false},
                         {"00", "23", "29", true},
                         {"00", "00", "31", true}}) {
    for (const char* answer : {"yes", "no"}) {
      SCOPED_TRACE(std::string(row.hour) + row.minute);
      Form f;
      ASSERT_TRUE(f.enter(Field::kGG, row.nominal));
      ASSERT_TRUE(f.enter(Field::kGGExact, row.hour));
      if (row.asks) f.world.windows.expect(id::kExactTimeQuestion, answer);
      const bool kept = !row.asks || answer == std::string("yes");
      EXPECT_EQ(f.enter(Field::kgg, row.minute), kept);
      EXPECT_EQ(f.record().gg, kept ? row.minute : "");
    }
  }
}

TEST(ObservationForm, TheErrorFlagOutlastsSuppressedEntries) {
  Form f;
  f.suppressed = true;
  EXPECT_FALSE(f.enter(Field::kww, "xx"));
  EXPECT_TRUE(f.enter(Field::kVV, "97"));
  EXPECT_TRUE(f.enter(Field::kww, ""));
  EXPECT_FALSE(f.any_error());
  EXPECT_TRUE(f.form->entries().error_flag);
  f.suppressed = false;
  EXPECT_TRUE(f.enter(Field::kVV, "96"));
  EXPECT_FALSE(f.form->entries().error_flag);
}

TEST(ObservationForm, EveryRefusedEntryIsNamedForTheSave) {
  Form f;
  f.suppressed = true;
  EXPECT_FALSE(f.enter(Field::kYear, "1999"));
  EXPECT_FALSE(f.enter(Field::kHwHw, "15"));
  const std::vector<std::string> expected = {
      "Error: Input data is out of range.\nIt must be \"1999<YEAR<=2015\"",
      "14.5 >= HW >=0.0 Or //"};
  EXPECT_EQ(f.remarks(), expected);
}

TEST(ObservationForm, APressureTypedOverClearsTheCharacteristicOnTheFormToo) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kPPPP, "1013.2"));
  ASSERT_TRUE(f.enter(Field::ka, "2"));
  ASSERT_TRUE(f.enter(Field::kPPPP, "0133"));
  EXPECT_EQ(f.record().a, "");
  EXPECT_EQ(f.form->text(Field::ka), "");
}

TEST(ObservationForm, APressureTypedOverTheReducedOneStaysWhenTheAirTemperatureComes) {
  Form f;
  f.ship.card.type = CardType::kHeightAndTemperature;
  f.ship.card.loading_state = LoadingState::kFullLoad;
  f.ship.card.height_full_load = "20";
  f.ship.card.total_correction_full_load = "+2.0";
  ASSERT_TRUE(f.enter(Field::kReading, "1013.2"));
  EXPECT_EQ(f.record().PPPP, "0152");  // the card's correction, for want of a temperature
  ASSERT_TRUE(f.enter(Field::ka, "2"));
  ASSERT_TRUE(f.enter(Field::kDryBulb, "15.0"));
  EXPECT_EQ(f.record().PPPP, "0156");
  EXPECT_EQ(f.form->text(Field::kPPPP), "1015.6");
  EXPECT_EQ(f.record().a, "2");
  ASSERT_TRUE(f.enter(Field::kPPPP, "1014.0"));
  ASSERT_TRUE(f.enter(Field::kDryBulb, "25.0"));
  EXPECT_EQ(f.record().PPPP, "0140");
}

TEST(ObservationForm, TheLoadingStateChangesThePressure) {
  Form f;
  f.ship.card.type = CardType::kHeightAndTemperature;
  f.ship.card.loading_state = LoadingState::kFullLoad;
  f.ship.card.total_correction_full_load = "+2.0";
  f.ship.card.total_correction_ballast = "+3.0";
  ASSERT_TRUE(f.enter(Field::kReading, "1013.2"));
  f.ship.card.loading_state = LoadingState::kInBallast;
  f.form->card_changed();
  EXPECT_EQ(f.form->text(Field::kPPPP), "1016.2");
  EXPECT_EQ(observation::group_text(f.record(), Group::k4PPPP), "40162");
}

TEST(ObservationForm, ARefusedWetBulbLeavesItsStateAlone) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kDryBulb, "0.0"));
  ASSERT_TRUE(f.enter(Field::kWetBulb, "-1.0"));
  f.form->toggle_freeze();
  ASSERT_EQ(f.form->entries().wet_bulb, elements::WetBulbState::kIced);
  EXPECT_EQ(f.record().Sw, "2");
  f.world.windows.expect(id::kWetBulbAboveAir);
  EXPECT_FALSE(f.enter(Field::kWetBulb, "0.5"));
  EXPECT_EQ(f.form->entries().wet_bulb, elements::WetBulbState::kIced);
  EXPECT_EQ(f.form->text(Field::kWetBulb), "0.5");
  // What is refused counts for nothing that is derived.
  const std::string dew_point = f.record().TdTdTd;
  ASSERT_TRUE(f.enter(Field::kReading, "1013.2"));
  EXPECT_EQ(f.record().TdTdTd, dew_point);
}

TEST(ObservationForm, AnIcedBulbAtZeroHasNoMinus) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kDryBulb, "1.0"));
  ASSERT_TRUE(f.enter(Field::kWetBulb, "0.0"));
  f.form->toggle_freeze();
  EXPECT_EQ(observation::group_text(f.record(), Group::k8SwTbTbTb), "82000");
  f.form->change([](Struct_Weather& r) { r.TbTbTb = "001"; });
  EXPECT_EQ(f.form->text(Field::kWetBulb), "-0.1");
  f.form->change([](Struct_Weather& r) { r.TbTbTb = "000"; });
  EXPECT_EQ(f.form->text(Field::kWetBulb), "0.0");
}

TEST(ObservationForm, WithoutABulbThereIsNoDewPointAndNoHumidity) {
  for (const Field emptied : {Field::kDryBulb, Field::kWetBulb}) {
    Form f;
    ASSERT_TRUE(f.enter(Field::kDryBulb, "10.0"));
    ASSERT_TRUE(f.enter(Field::kWetBulb, "8.0"));
    ASSERT_FALSE(f.record().TdTdTd.empty());
    ASSERT_TRUE(f.enter(emptied, ""));
    EXPECT_EQ(observation::group_text(f.record(), Group::k2SnTdTdTd), "2****");
    EXPECT_EQ(f.form->text(Field::kHumidity), "");
    EXPECT_EQ(f.record().LogExtra, "");
  }
}

TEST(ObservationForm, AHumidityReadDirectlyIsNotComputedOver) {
  Form f;
  f.ship.humidity_method = HumidityMethod::kDirect;
  ASSERT_TRUE(f.enter(Field::kHumidity, "61"));
  ASSERT_TRUE(f.enter(Field::kDryBulb, "10.0"));
  ASSERT_TRUE(f.enter(Field::kWetBulb, "8.0"));
  EXPECT_EQ(f.record().LogExtra, "0610");
  EXPECT_EQ(f.form->text(Field::kHumidity), "61");
}

TEST(ObservationForm, TheOtherDewPointMethodShowsTheSameAirTemperature) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kDryBulb, "10.0"));
  ASSERT_TRUE(f.enter(Field::kWetBulb, "8.0"));
  const Struct_Weather before = f.record();
  f.ship.dew_point_method = DewPointMethod::kDirect;
  f.form->ship_changed();
  EXPECT_EQ(f.form->text(Field::kAirTemperature), "10.0");
  EXPECT_FALSE(f.form->text(Field::kDewPoint).empty());
  EXPECT_EQ(f.form->text(Field::kDryBulb), "");
  EXPECT_TRUE(f.record() == before);
}

TEST(ObservationForm, AnEntryThatIsNotInTheRecordIsUnsavedToo) {
  Form f;
  f.ship.wind_input_method = WindInputMethod::kApparentWind;
  f.rebuild();
  ASSERT_TRUE(f.enter(Field::kHeading, "90"));
  EXPECT_TRUE(f.form->modified());
  f.form->saved();
  ASSERT_TRUE(f.enter(Field::kHeading, "90"));
  EXPECT_FALSE(f.form->modified());
  ASSERT_TRUE(f.enter(Field::kVV, ""));
  EXPECT_FALSE(f.form->modified());
}

TEST(ObservationForm, NobodyConfirmsAValueThatIsThenRefused) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kdd, "00"));
  f.world.windows.expect(id::kCalmDirectionWithSpeed);
  EXPECT_FALSE(f.enter(Field::kff, "85"));
}

TEST(ObservationForm, ATypedGroupKeepsTheRulesOfItsFields) {
  struct Refused {
    Group group;
    const char* typed;
    text::Id message;
  };
  for (const Refused& row : {Refused{Group::k4PPPP, "41013", id::kSeaLevelPressureRange},
                             {Group::k1SnTTT, "10401", id::kAirTemperatureRange},
                             {Group::k1SnTTT, "11251", id::kAirTemperatureRange},
                             {Group::k1SnTTT, "12100", id::kSignRange},
                             {Group::k2SnTdTdTd, "22100", id::kSignRange},
                             {Group::k2SnTdTdTd, "20401", id::kDewPointRange},
                             {Group::k8SwTbTbTb, "83010", id::kSignRange},
                             {Group::k8SwTbTbTb, "80401", id::kWetBulbRange},
                             {Group::k0SsTwTwTw, "00371", id::kSeaTemperatureRange},
                             {Group::k0SsTwTwTw, "08100", id::kInputError},
                             {Group::k1SnTTT, "101/0", id::kInputError},
                             {Group::k5appp, "54001", id::kSteadyWithAmount},
                             {Group::k5appp, "59000", id::kTendencyTypeRange},
                             {Group::k8NhCLCMCH, "80500", id::kNoLowestCloudWithTypes},
                             {Group::kYYGGiw, "15133", id::kHourRange},
                             {Group::kYYGGiw, "32123", id::kDayRange},
                             {Group::kYYGGiw, "15124", id::kInputError},
                             {Group::kiRiXhVV, "43497", id::kInputError},
                             {Group::kQcLoLoLoLo, "21405", id::kInputError},
                             {Group::kNddff, "80012", id::kCalmDirectionWithSpeed},
                             {Group::kNddff, "83712", id::kTrueDirectionRange},
                             {Group::k00fff, "00098", id::kLargeSpeedRange},
                             {Group::k3dw1dw1dw2dw2, "32799", id::kSwell2DirectionRange},
                             {Group::k2PwPwHwHw, "20005", id::kPeriodNeedsHeight},
                             {Group::k2PwPwHwHw, "20530", id::kCheckWaveHeight},
                             {Group::kICE, "ICE 01234", id::kIceConcentrationRange}}) {
    SCOPED_TRACE(row.typed);
    Form f;
    ASSERT_TRUE(f.enter(Field::kww, "61"));
    const std::string before = f.state(Field::kww);
    f.world.windows.expect(row.message);
    EXPECT_FALSE(f.enter(row.group, row.typed));
    EXPECT_EQ(f.state(Field::kww), before);
  }
}

TEST(ObservationForm, ASignAloneIsTestedWithItsFigures) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kDryBulb, "30.0"));
  f.world.windows.expect(id::kAirTemperatureRange);
  EXPECT_FALSE(f.enter(Group::k1SnTTT, "11300"));
  EXPECT_EQ(f.form->text(Field::kDryBulb), "30.0");
  EXPECT_TRUE(f.enter(Group::k1SnTTT, "11200"));
  EXPECT_EQ(f.form->text(Field::kDryBulb), "-20.0");
}

TEST(ObservationForm, ASignAloneMustKeepTheRulesOfItsValue) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kDryBulb, "-1.2"));
  ASSERT_TRUE(f.enter(Field::kWetBulb, "-5.0"));
  const std::string before = f.state(Field::kWetBulb);
  f.world.windows.expect(id::kWetBulbAboveAir);
  EXPECT_FALSE(f.enter(Group::k8SwTbTbTb, "80050"));
  EXPECT_EQ(f.state(Field::kWetBulb), before);
  ASSERT_TRUE(f.enter(Field::kWetBulb, ""));
  ASSERT_TRUE(f.enter(Field::kDryBulb, "1.2"));
  ASSERT_TRUE(f.enter(Field::kWetBulb, "0.5"));
  f.world.windows.expect(id::kWetBulbAboveAir);
  EXPECT_FALSE(f.enter(Group::k1SnTTT, "11012"));
  EXPECT_EQ(f.form->text(Field::kDryBulb), "1.2");
}

TEST(ObservationForm, ASignAloneBringsWhatFollowsFromItsValue) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kDryBulb, "10.0"));
  ASSERT_TRUE(f.enter(Field::kWetBulb, "-1.0"));
  ASSERT_TRUE(f.enter(Group::k8SwTbTbTb, "80010"));
  Form typed;
  ASSERT_TRUE(typed.enter(Field::kDryBulb, "10.0"));
  ASSERT_TRUE(typed.enter(Field::kWetBulb, "1.0"));
  ASSERT_NE(typed.record().TdTdTd, "");
  EXPECT_EQ(f.record().SnTd + f.record().TdTdTd, typed.record().SnTd + typed.record().TdTdTd);
}

TEST(ObservationForm, SolidiInAGroupThatIsWrittenOnlyWhenSetEmptyIt) {
  Form f;
  ASSERT_TRUE(f.enter(Group::k9GGgg, "91150"));
  EXPECT_EQ(f.record().GGExact + f.record().gg, "1150");
  ASSERT_TRUE(f.enter(Group::k9GGgg, "9////"));
  EXPECT_EQ(f.record().GGExact + f.record().gg, "");
  f.world.windows.expect(id::kWindSpeedQuestion, "yes");
  ASSERT_TRUE(f.enter(Group::k00fff, "00105"));
  EXPECT_EQ(f.record().ff + f.record().fff, "99105");
  ASSERT_TRUE(f.enter(Group::k00fff, "00///"));
  EXPECT_EQ(f.record().fff, "");
}

TEST(ObservationForm, ATimeOrPositionThatWasTakenIsToBeReviewed) {
  const std::pair<Field, const char*> rows[] = {
      {Field::kYear, "2014"}, {Field::kMonth, "11"}, {Field::kYY, "15"},     {Field::kGG, "12"},
      {Field::kLaDeg, "35"},  {Field::kLaMin, "30"}, {Field::kLoDeg, "140"}, {Field::kLoMin, "30"}};
  Form f;
  EXPECT_FALSE(f.form->take_doubts().review);
  for (const auto& [field, text] : rows) {
    ASSERT_TRUE(f.enter(field, text));
    EXPECT_TRUE(f.form->take_doubts().review) << text;
    EXPECT_FALSE(f.form->take_doubts().review);
  }
  f.form->choose_hemispheres(0, 0);
  EXPECT_TRUE(f.form->take_doubts().review);
  f.form->change([](Struct_Weather& r) { r.LaDeg = "36"; });
  EXPECT_TRUE(f.form->take_doubts().review);
  f.world.windows.expect(id::kLatitudeDegreesRange);
  EXPECT_FALSE(f.enter(Field::kLaDeg, "91"));
  EXPECT_FALSE(f.form->take_doubts().review);
  ASSERT_TRUE(f.enter(Field::kww, "61"));
  EXPECT_FALSE(f.form->take_doubts().review);
}

// To one decimal 0.49 is 0.5 and 12.46 is 12.5: a speed is brought to whole knots once.
TEST(ObservationForm, ASpeedIsRoundedOnce) {
  for (const auto& [typed, ff] : {std::pair{"0.49", "00"},
                                  {"0.5", "01"},
                                  {"12.46", "12"},
                                  {"12.5", "13"},
                                  {"98.46", "98"},
                                  {"98.5", "99"}}) {
    Form f;
    f.world.windows.answer_all("yes");
    ASSERT_TRUE(f.enter(Field::kff, typed)) << typed;
    EXPECT_EQ(f.record().ff, ff) << typed;
  }
  Form calm;
  ASSERT_TRUE(calm.enter(Field::kdd, "00"));
  EXPECT_TRUE(calm.enter(Field::kff, "0.49"));
  EXPECT_EQ(observation::group_text(calm.record(), Group::kNddff), "*0000");
}

// Code table 3855 says how a temperature was measured that is reported.
TEST(ObservationForm, ABulbWithoutATemperatureHasNoIce) {
  Form f;
  ASSERT_TRUE(f.enter(Group::k8SwTbTbTb, "82///"));
  EXPECT_EQ(observation::group_text(f.record(), Group::k8SwTbTbTb), "82///")
      << "what was typed stands";
  EXPECT_EQ(f.form->entries().wet_bulb, elements::WetBulbState::kNotSet);
  ASSERT_TRUE(f.enter(Field::kWetBulb, "-1.0"));
  EXPECT_EQ(f.record().Sw + f.record().TbTbTb, "1010");
  ASSERT_TRUE(f.enter(Group::k8SwTbTbTb, "82010"));
  EXPECT_EQ(f.form->entries().wet_bulb, elements::WetBulbState::kIced);
  ASSERT_TRUE(f.enter(Group::k8SwTbTbTb, "82///"));
  EXPECT_EQ(f.form->entries().wet_bulb, elements::WetBulbState::kNotSet);
  ASSERT_TRUE(f.enter(Group::k8SwTbTbTb, "82005"));
  EXPECT_EQ(f.form->entries().wet_bulb, elements::WetBulbState::kIced);
  EXPECT_EQ(f.form->text(Field::kWetBulb), "-0.5");
}

}  // namespace
