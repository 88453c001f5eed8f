// What the main form derives from instruments: the figures behind dialogs, cards and signs.

#include <gtest/gtest.h>

#include "elements/form/form_under_test.h"
#include "elements/form/observation_form.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using elements::Field;
using elements::WetBulbState;
using observation::Group;

// A ship with a psychrometer and a card of type "1", on which only the height in ballast counts.
struct Form : form_test::Form {
  Form() {
    ship.card.type = CardType::kHeightAndTemperature;
    ship.card.loading_state = LoadingState::kFullLoad;
    ship.card.height_ballast = "200";
    rebuild();
  }
  std::string dew_point() const { return record().SnTd + record().TdTdTd; }
};

// 200 m of height are 23 hPa; in dry air the dew point tells.
TEST(CardChange, ReducesThePressureAndTheDewPointFollows) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kReading, "1013.2"));
  f.form->put_bulbs("30.0", "15.0", WetBulbState::kNotSet);
  EXPECT_EQ(f.record().PPPP, "0132");
  const std::string at_full_load = f.dew_point();
  f.ship.card.loading_state = LoadingState::kInBallast;
  f.form->card_changed();
  EXPECT_EQ(f.record().PPPP, "0363");
  EXPECT_NE(f.dew_point(), at_full_load);
  f.ship.card.loading_state = LoadingState::kFullLoad;
  f.form->card_changed();
  EXPECT_EQ(f.dew_point(), at_full_load);
}

TEST(CardChange, KeepsTheTendencyThatWasReadFromTheSameBarometer) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kReading, "1013.2"));
  ASSERT_TRUE(f.enter(Field::ka, "2"));
  f.ship.card.total_correction_ballast = "+3.6";
  f.ship.card.loading_state = LoadingState::kInBallast;
  f.form->card_changed();
  EXPECT_EQ(f.record().PPPP, "0168");
  EXPECT_EQ(f.record().a, "2");
}

TEST(CardChange, MarksAReadingThatGivesAnImpossiblePressure) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kReading, "1049.9"));
  f.ship.card.total_correction_ballast = "+20.1";
  f.ship.card.loading_state = LoadingState::kInBallast;
  f.form->card_changed();
  EXPECT_TRUE(f.form->in_error(Field::kReading));
  EXPECT_EQ(f.record().PPPP, "0499");
  EXPECT_EQ(f.form->remarks().size(), 1U);
  f.ship.card.loading_state = LoadingState::kFullLoad;
  f.form->card_changed();
  EXPECT_FALSE(f.form->in_error(Field::kReading));
}

// Between the old dry bulb and the new wet bulb lies an air that nobody observed.
TEST(Bulbs, OfADialogAreTakenTogether) {
  Form f;
  f.form->put_bulbs("26.0", "25.0", WetBulbState::kNotSet);
  const std::string observed = f.dew_point();
  EXPECT_EQ(observed, "0246");
  f.form->put_bulbs("30.0", "10.0", WetBulbState::kNotSet);
  EXPECT_EQ(f.record().TTT + f.record().TbTbTb, "300100");
  EXPECT_EQ(f.dew_point(), observed);
  f.form->put_bulbs("", "10.0", WetBulbState::kNotSet);
  EXPECT_EQ(f.dew_point(), "");
}

TEST(Bulbs, KeepWhatTheOfficerSaidAboutIce) {
  struct Row {
    const char* wet;
    WetBulbState said;
    WetBulbState kept;
    const char* Sw;
  };
  for (const Row& row : {Row{"5.0", WetBulbState::kNotIced, WetBulbState::kNotIced, "0"},
                         Row{"-1.0", WetBulbState::kNotIced, WetBulbState::kNotIced, "1"},
                         Row{"-1.0", WetBulbState::kIced, WetBulbState::kIced, "2"},
                         Row{"0.0", WetBulbState::kIced, WetBulbState::kIced, "2"},
                         Row{"0.1", WetBulbState::kIced, WetBulbState::kNotSet, "0"},
                         Row{"-1.0", WetBulbState::kNotSet, WetBulbState::kNotSet, "1"}}) {
    Form f;
    f.form->put_bulbs("10.0", row.wet, row.said);
    EXPECT_EQ(f.form->wet_bulb_state(), row.kept) << row.wet;
    EXPECT_EQ(f.record().Sw, row.Sw) << row.wet;
  }
}

TEST(Bulbs, TypedAsAGroupTellTheirIceAndTheDewPointFollows) {
  Form f;
  f.form->put_bulbs("0.0", "-2.0", WetBulbState::kNotSet);
  const std::string over_water = f.dew_point();
  ASSERT_TRUE(f.form->leave_group(Group::k8SwTbTbTb, "82020"));
  EXPECT_EQ(f.form->wet_bulb_state(), WetBulbState::kIced);
  EXPECT_NE(f.dew_point(), over_water);
  ASSERT_TRUE(f.form->leave_group(Group::k8SwTbTbTb, "81020"));
  EXPECT_EQ(f.form->wet_bulb_state(), WetBulbState::kNotSet);
  EXPECT_EQ(f.dew_point(), over_water);
}

TEST(Bulbs, ASignTypedAloneChangesTheDewPoint) {
  Form f;
  f.form->put_bulbs("2.0", "-2.0", WetBulbState::kNotSet);
  const std::string before = f.dew_point();
  ASSERT_TRUE(f.form->leave_group(Group::k8SwTbTbTb, "80020"));
  EXPECT_NE(f.dew_point(), before);
}

TEST(TrueWindOfADialog, IsWholeUnitsInTheRecordAndOnTheForm) {
  struct Row {
    const char* speed;
    const char* ff;
    const char* fff;
    const char* shown;
  };
  for (const Row& row :
       {Row{"12.5", "13", "", "13"}, Row{"12.4", "12", "", "12"}, Row{"0.3", "00", "", "00"},
        Row{"5", "05", "", "05"}, Row{"98.5", "99", "099", "099"}, Row{"120", "99", "120", "120"},
        Row{"999", "99", "999", "999"}, Row{"//", "//", "", "//"}, Row{"", "", "", ""}}) {
    Form f;
    f.form->put(Field::kff, row.speed);
    EXPECT_EQ(f.record().ff, row.ff) << row.speed;
    EXPECT_EQ(f.record().fff, row.fff) << row.speed;
    EXPECT_EQ(f.form->text(Field::kff), row.shown) << row.speed;
  }
}

TEST(ApparentWindOfADialog, IsAnEntryEvenWhileTheTrueWindIsNotKnown) {
  Form f;
  f.ship.wind_input_method = WindInputMethod::kApparentWind;
  EXPECT_FALSE(f.form->modified());
  f.form->put(Field::kApparentSpeed, "12.0");
  EXPECT_TRUE(f.form->modified());
}

TEST(TendencyAmount, OfMinusZeroIsZero) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kppp, "-0"));
  EXPECT_EQ(f.record().ppp, "000");
  EXPECT_EQ(f.form->text(Field::kppp), "00.0");
}

// 870 to 1070 hPa bound what is possible, 930 to 1050 what is usual.
TEST(Reading, RefusesAsksAndTakesByThePressureAtSeaLevel) {
  struct Row {
    const char* reading;
    text::Id message;  // 0: taken silently
    const char* pppp;
  };
  for (const Row& row :
       {Row{"869.9", id::kSeaLevelPressureRange, ""}, Row{"870", id::kPressureQuestion, "8700"},
        Row{"929.9", id::kPressureQuestion, "9299"}, Row{"930.0", 0, "9300"},
        Row{"1050.0", 0, "0500"}, Row{"1050.1", id::kPressureQuestion, "0501"},
        Row{"1069.9", id::kPressureQuestion, "0699"}, Row{"1070.0", id::kSeaLevelPressureRange, ""},
        Row{"101325", id::kBarometerReadingRange, ""}, Row{"10x3", id::kBarometerReadingRange, ""},
        Row{"1013.25", 0, "0132"}}) {
    SCOPED_TRACE(row.reading);
    const bool asks = row.message == id::kPressureQuestion;
    if (asks) {
      Form no;
      no.world.windows.expect(row.message, "no");
      EXPECT_FALSE(no.enter(Field::kReading, row.reading));
      EXPECT_EQ(no.record().PPPP, "");
    }
    Form f;
    if (row.message) f.world.windows.expect(row.message, asks ? "yes" : "ok");
    EXPECT_EQ(f.enter(Field::kReading, row.reading), *row.pppp != '\0');
    EXPECT_EQ(f.record().PPPP, row.pppp);
    Form quiet;
    quiet.form->messages_suppressed = true;
    EXPECT_EQ(quiet.enter(Field::kReading, row.reading), *row.pppp != '\0');
    EXPECT_EQ(quiet.record().PPPP, row.pppp);
    EXPECT_EQ(quiet.form->in_error(Field::kReading), *row.pppp == '\0');
  }
}

}  // namespace
