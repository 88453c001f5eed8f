// What a change of the ship's fixed data or of the observation items does to an observation that
// has begun, and what makes an observation unsaved.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "elements/form/form_under_test.h"
#include "text/ids.h"

namespace {

using elements::Field;
using form_test::Form;
using observation::Group;

TEST(ChangedShip, TheSeaTemperatureMethodReachesTheObservationThatHasBegun) {
  constexpr SeaTemperatureMethod kMethods[] = {
      SeaTemperatureMethod::kIntake, SeaTemperatureMethod::kBucket,
      SeaTemperatureMethod::kHullContactSensor, SeaTemperatureMethod::kOther};
  // Code table 3850: two figures a method, the even one for zero and above.
  const char* const warm[] = {"0", "2", "4", "6"};
  const char* const cold[] = {"1", "3", "5", "7"};
  for (int from = 0; from < 4; ++from) {
    for (int to = 0; to < 4; ++to) {
      for (const auto& [typed, figures, signs] :
           {std::tuple{"21.5", "215", warm}, {"-1.8", "018", cold}, {"0.0", "000", warm}}) {
        Form f;
        f.ship.sea_temperature_method = kMethods[from];
        f.rebuild();
        ASSERT_TRUE(f.enter(Field::kTwTwTw, typed));
        ASSERT_EQ(f.record().Ss, signs[from]);
        f.ship.sea_temperature_method = kMethods[to];
        f.form->ship_changed();
        EXPECT_EQ(f.record().Ss, signs[to]);
        EXPECT_EQ(f.record().TwTwTw, figures);
        EXPECT_EQ(f.form->text(Field::kTwTwTw), typed);
      }
    }
  }
}

TEST(ChangedShip, AMethodChosenForThisObservationAloneStays) {
  Form f;
  f.form->change([](Struct_Weather& r) {
    r.Ss = "2";
    r.TwTwTw = "215";
  });
  f.ship.sea_temperature_method = SeaTemperatureMethod::kHullContactSensor;
  f.form->ship_changed();
  EXPECT_EQ(f.record().Ss, "2");
  Form empty;
  empty.ship.sea_temperature_method = SeaTemperatureMethod::kOther;
  empty.form->ship_changed();
  EXPECT_EQ(empty.record().Ss, "");
  ASSERT_TRUE(empty.enter(Group::k0SsTwTwTw, "0////"));
  empty.ship.sea_temperature_method = SeaTemperatureMethod::kBucket;
  empty.form->ship_changed();
  EXPECT_EQ(empty.record().Ss, "/");
}

// What a recorder measured is not sent by a ship that has none, and comes back with it.
TEST(ChangedShip, WavesOfARecorderThatIsNotThereAreNotSent) {
  Form f;
  f.ship.wave_recorder = true;
  f.rebuild();
  ASSERT_TRUE(f.enter(Field::kPwaPwa, "06"));
  ASSERT_TRUE(f.enter(Field::kHwaHwa, "2.5"));
  f.ship.wave_recorder = false;
  f.form->ship_changed();
  EXPECT_EQ(observation::group_text(f.record(), Group::k1PwaPwaHwaHwa), "1****");
  f.ship.wave_recorder = true;
  f.form->ship_changed();
  EXPECT_EQ(observation::group_text(f.record(), Group::k1PwaPwaHwaHwa), "10605");
  EXPECT_EQ(f.form->text(Field::kHwaHwa), "2.5");
}

// A refused direction would stay marked in a field that is locked once the wind is computed.
TEST(ChangedShip, ARefusedTrueWindGivesWayToTheApparentOne) {
  Form f;
  f.world.windows.expect(text::id::kTrueDirectionRange);
  EXPECT_FALSE(f.enter(Field::kdd, "x"));
  f.ship.wind_input_method = WindInputMethod::kApparentWind;
  f.form->ship_changed();
  ASSERT_TRUE(f.enter(Field::kApparentDirection, "45"));
  EXPECT_EQ(f.form->text(Field::kdd), "");
  EXPECT_FALSE(f.form->in_error(Field::kdd));
}

struct Change {
  const char* name;
  std::function<void(Form&)> change;
};

const Change kChanges[] = {
    {"call sign",
     [](Form& f) {
       f.ship.call_sign = "OTHER";
       f.form->ship_changed();
     }},
    {"IMO number",
     [](Form& f) {
       f.ship.imo_number = "7654321";
       f.form->ship_changed();
     }},
    {"wind speed method",
     [](Form& f) {
       f.ship.wind_speed_method = WindSpeedMethod::kAnemometer;
       f.form->ship_changed();
     }},
    {"dew-point method",
     [](Form& f) {
       f.ship.dew_point_method = DewPointMethod::kDirect;
       f.form->ship_changed();
     }},
    {"sea temperature method",
     [](Form& f) {
       f.ship.sea_temperature_method = SeaTemperatureMethod::kBucket;
       f.form->ship_changed();
     }},
    {"wave recorder",
     [](Form& f) {
       f.ship.wave_recorder = !f.ship.wave_recorder;
       f.form->ship_changed();
     }},
    {"items off",
     [](Form& f) {
       f.items.not_observed.fill(true);
       f.form->items_changed();
     }},
    {"items off and on",
     [](Form& f) {
       f.items.not_observed.fill(true);
       f.form->items_changed();
       f.items.not_observed.fill(false);
       f.form->items_changed();
     }},
    {"nothing", [](Form& f) { f.form->ship_changed(); }},
};

void enter_some(Form& f) {
  ASSERT_TRUE(f.enter(Field::kYY, "15"));
  ASSERT_TRUE(f.enter(Field::kDryBulb, "20.0"));
  ASSERT_TRUE(f.enter(Field::kTwTwTw, "21.5"));
  ASSERT_TRUE(f.enter(Field::kVV, "97"));
  ASSERT_TRUE(f.enter(Field::kww, "61"));
}

TEST(Unsaved, ShipDataAndItemsMakeNothingUnsaved) {
  for (const Change& row : kChanges) {
    Form untouched;
    row.change(untouched);
    EXPECT_FALSE(untouched.form->modified()) << row.name;
    Form saved;
    enter_some(saved);
    saved.form->saved();
    row.change(saved);
    EXPECT_FALSE(saved.form->modified()) << row.name;
    Form entered;
    enter_some(entered);
    row.change(entered);
    EXPECT_TRUE(entered.form->modified()) << row.name << ": what was entered stays unsaved";
  }
}

TEST(Unsaved, APressureThatTheCardReducesAnewIsAnotherObservation) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kReading, "1013.2"));
  f.form->saved();
  f.form->ship_changed();
  EXPECT_FALSE(f.form->modified());
  f.ship.card.total_correction = "+1.0";
  f.form->ship_changed();
  EXPECT_EQ(f.record().PPPP, "0142");
  EXPECT_TRUE(f.form->modified());
}

TEST(Unsaved, AFieldThatWasOnlyVisitedOrEmptiedAgainIsNoEntry) {
  Form f;
  for (std::size_t i = 0; i < elements::kFields; ++i) {
    const auto field = static_cast<Field>(i);
    EXPECT_TRUE(f.leave(field));
    EXPECT_TRUE(f.enter(field, ""));
    EXPECT_FALSE(f.form->modified()) << elements::name_of(field);
  }
}

// A field refused first and corrected by its dialog: what the record held already is shown again.
TEST(OfADialog, FieldsShowTheRecordAlsoWhereItHeldTheValue) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kGG, "12"));
  f.world.windows.expect(text::id::kHourRange);
  EXPECT_FALSE(f.enter(Field::kGG, "13"));
  f.world.windows.expect(text::id::kDayRange);
  EXPECT_FALSE(f.enter(Field::kYY, "99"));
  f.form->change([](Struct_Weather& r) { r.GG = "12"; }, {Field::kGG});
  EXPECT_EQ(f.form->text(Field::kGG), "12");
  EXPECT_FALSE(f.form->in_error(Field::kGG));
  EXPECT_TRUE(f.form->in_error(Field::kYY)) << "no field of that dialog";
  f.form->change([](Struct_Weather&) {}, {Field::kYY});
  EXPECT_EQ(f.form->text(Field::kYY), "");
  EXPECT_FALSE(f.any_error());
}

}  // namespace
