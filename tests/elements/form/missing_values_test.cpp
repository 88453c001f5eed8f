// What is missing is never computed with as 0.0: each form of a missing value, in each input of
// each formula that takes texts, and in each group that feeds one.

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "codetables/tables/pressure_tendency.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "elements/form/form_under_test.h"
#include "elements/form/position_review.h"
#include "elements/formulas/barometer_correction.h"
#include "elements/formulas/psychrometer.h"
#include "elements/formulas/relative_humidity.h"
#include "elements/formulas/sea_level_pressure.h"
#include "elements/formulas/true_wind.h"
#include "elements/formulas/true_wind_rules.h"
#include "text/ids.h"
#include "text/numbers.h"

namespace {

namespace id = text::id;
using elements::Field;
using elements::WetBulbState;
using form_test::Form;
using observation::Group;
using W = Struct_Weather;

const char* const kMissing[] = {"", " ", "/", "//", "///", "////", "*", "**", "***", " / "};

TEST(MissingValues, AreNoNumbers) {
  for (const char* const text : kMissing) EXPECT_FALSE(text::number_at_start(text)) << text;
  for (const char* const text : {"0", "-0", "+0.0", "1013.2", ".5", " 7", "12/"})
    EXPECT_TRUE(text::number_at_start(text)) << text;
  EXPECT_DOUBLE_EQ(*text::number_at_start("-1.8x"), -1.8);
}

// A formula of texts: its inputs as they give a result, and whether there is one.
struct Formula {
  const char* name;
  std::vector<std::string> inputs;
  std::function<bool(const std::vector<std::string>&)> gives;
};

const BarometerCard& card() {
  static const BarometerCard kCard = [] {
    BarometerCard made;
    made.type = CardType::kTotalCorrection;
    made.total_correction = "+0.0";
    return made;
  }();
  return kCard;
}

const Formula kFormulas[] = {
    {"air temperature",
     {"15.0"},
     [](const auto& in) { return elements::air_temperature_of(in[0]).has_value(); }},
    {"dew point of bulbs",
     {"20.0", "15.0"},
     [](const auto& in) {
       return elements::dew_point_of_texts(in[0], in[1], "1013.2", card(), WetBulbState::kNotSet)
           .has_value();
     }},
    {"dew point of iced bulb",
     {"-2.0", "-3.0"},
     [](const auto& in) {
       return elements::dew_point_of_texts(in[0], in[1], "1013.2", card(), WetBulbState::kIced)
           .has_value();
     }},
    {"humidity",
     {"20.0", "10.0"},
     [](const auto& in) { return elements::humidity_of_texts(in[0], in[1]).has_value(); }},
    {"true wind",
     {"90", "10.0", "0", "10.0"},
     [](const auto& in) {
       return elements::true_wind_of_texts({in[0], in[1], in[2], "", in[3]}).has_value();
     }},
    {"true wind by course",
     {"90", "10.0", "0", "10.0"},
     [](const auto& in) {
       return elements::true_wind_of_texts({in[0], in[1], "///", in[2], in[3]}).has_value();
     }},
    {"sea level pressure",
     {"1013.2"},
     [](const auto& in) {
       return elements::reduce_reading(in[0], card(), elements::Celsius{15.0}).has_value();
     }},
    {"sea temperature",
     {"21.5"},
     [](const auto& in) { return codetables::sea_temperature(in[0]).has_value(); }},
    {"true wind speed",
     {"12"},
     [](const auto& in) { return elements::true_wind_speed(in[0]) != elements::kUnknownSpeed; }},
};

TEST(MissingValues, GiveNoResultInAnyInputOfAnyFormula) {
  for (const Formula& formula : kFormulas) {
    ASSERT_TRUE(formula.gives(formula.inputs)) << formula.name;
    for (std::size_t input = 0; input < formula.inputs.size(); ++input) {
      for (const char* const missing : kMissing) {
        std::vector<std::string> inputs = formula.inputs;
        inputs[input] = missing;
        EXPECT_FALSE(formula.gives(inputs)) << formula.name << " " << input << " " << missing;
      }
    }
  }
}

// Where a missing input has a value of its own, every form of it has the same one.
TEST(MissingValues, OfTheReadingCountAsTheStandardPressure) {
  const auto with = [](const char* reading) {
    return elements::dew_point_of_texts("20.0", "15.0", reading, card(), WetBulbState::kNotSet)
        ->value;
  };
  for (const char* const missing : kMissing) EXPECT_EQ(with(missing), with("1013.2")) << missing;
}

TEST(MissingValues, OfTheAirLeaveTheCardsCorrection) {
  BarometerCard loaded;
  loaded.type = CardType::kHeightAndTemperature;
  loaded.loading_state = LoadingState::kFullLoad;
  loaded.height_full_load = "20";
  loaded.total_correction_full_load = "+2.5";
  for (const char* const missing : kMissing) {
    const auto correction =
        elements::total_correction({1013.2}, loaded, elements::air_temperature_of(missing));
    EXPECT_DOUBLE_EQ(correction.value, 2.5) << missing;
  }
}

TEST(MissingValues, OfTheTendencyLeaveTheChoiceToTheCharacteristic) {
  for (const char* const missing : kMissing) {
    EXPECT_EQ(codetables::tendency_kind("2", missing), codetables::TendencyKind::kRisen) << missing;
    EXPECT_EQ(codetables::tendency_kind("7", missing), codetables::TendencyKind::kDescended);
    EXPECT_EQ(codetables::tendency_kind("4", missing), codetables::TendencyKind::kSame);
    EXPECT_EQ(codetables::check_tendency("4", missing), codetables::TendencyCheck::kAccepted);
  }
}

TEST(MissingValues, OfAPositionMakeItNoPosition) {
  const std::pair<std::string W::*, const char*> parts[] = {
      {&W::Qc, "1"}, {&W::LaDeg, "35"}, {&W::LaMin, "30"}, {&W::LoDeg, "140"}, {&W::LoMin, "12"}};
  W record{ShipFixedData{}, KeyObservationItems{}};
  for (const auto& [member, figures] : parts) record.*member = figures;
  ASSERT_TRUE(record.position());
  ASSERT_TRUE(elements::signed_position(record));
  for (const auto& [member, figures] : parts) {
    for (const char* const missing : kMissing) {
      record.*member = missing;
      EXPECT_FALSE(record.position()) << missing;
      EXPECT_FALSE(elements::signed_position(record)) << missing;
    }
    record.*member = figures;
  }
}

std::string dew_point(const Form& f) {
  return f.record().SnTd + f.record().TdTdTd;
}

// The road of the form: a group of solidi, or one that is emptied, takes what was computed from it
// along. Each case starts from a complete set.
struct Taken {
  Group group;
  const char* typed;
  std::vector<std::string W::*> gone;
};

TEST(MissingValues, TypedAsAGroupTakeWhatWasComputedFromThemAlong) {
  const std::vector<std::string W::*> dew = {&W::SnTd, &W::TdTdTd, &W::LogExtra};
  for (const Taken& row : {Taken{Group::k1SnTTT, "1////", dew},
                           {Group::k1SnTTT, "1****", dew},
                           {Group::k1SnTTT, "", dew},
                           {Group::k8SwTbTbTb, "8////", dew},
                           {Group::k8SwTbTbTb, "8****", dew},
                           {Group::k8SwTbTbTb, "", dew}}) {
    SCOPED_TRACE(row.typed);
    Form f;
    ASSERT_TRUE(f.enter(Field::kDryBulb, "20.0"));
    ASSERT_TRUE(f.enter(Field::kWetBulb, "15.0"));
    ASSERT_EQ(dew_point(f), "0116");
    ASSERT_EQ(f.record().LogExtra, "0580");
    ASSERT_TRUE(f.enter(row.group, row.typed));
    for (const auto member : row.gone) EXPECT_EQ(f.record().*member, "");
    EXPECT_EQ(f.form->text(Field::kHumidity), "");
    // Nothing of it is computed anew from the rest.
    ASSERT_TRUE(f.enter(Field::kReading, "1000.0"));
    EXPECT_EQ(dew_point(f), "");
    f.form->put({}, WetBulbState::kIced);
    EXPECT_EQ(dew_point(f), "");
    EXPECT_NE(f.record().TbTbTb, "000");
  }
}

TEST(MissingValues, OfTheAirTemperatureTakeTheHumidityAlong) {
  for (const char* const typed : {"1////", "1****", ""}) {
    Form f;
    f.ship.dew_point_method = DewPointMethod::kDirect;
    f.rebuild();
    ASSERT_TRUE(f.enter(Field::kAirTemperature, "20.0"));
    ASSERT_TRUE(f.enter(Field::kDewPoint, "10.0"));
    ASSERT_EQ(f.record().LogExtra, "0530");
    ASSERT_TRUE(f.enter(Group::k1SnTTT, typed));
    EXPECT_EQ(f.record().LogExtra, "") << typed;
    EXPECT_EQ(dew_point(f), "0100") << "it was read, not computed";
  }
}

TEST(DewPoint, ThatWasTypedAsAGroupStaysWithoutBulbs) {
  Form f;
  ASSERT_TRUE(f.enter(Group::k2SnTdTdTd, "20100"));
  ASSERT_TRUE(f.enter(Field::kDryBulb, "20.0"));
  EXPECT_EQ(dew_point(f), "0100");
  EXPECT_EQ(f.record().LogExtra, "0530");
  ASSERT_TRUE(f.enter(Field::kDryBulb, ""));
  EXPECT_EQ(dew_point(f), "0100");
  EXPECT_EQ(f.record().LogExtra, "");
}

TEST(DewPoint, DoesNotOutliveABulbThatIsEmptiedInItsField) {
  for (const Field bulb : {Field::kDryBulb, Field::kWetBulb}) {
    Form f;
    ASSERT_TRUE(f.enter(Field::kDryBulb, "20.0"));
    ASSERT_TRUE(f.enter(Field::kWetBulb, "15.0"));
    ASSERT_TRUE(f.enter(bulb, ""));
    EXPECT_EQ(dew_point(f) + f.record().LogExtra, "");
    EXPECT_TRUE(f.remarks().empty());
  }
}

// Air too dry for the formula leaves the record's dew point, and the list of a save says so; the
// humidity is that of no air and goes.
TEST(DewPoint, OfEarlierBulbsIsNamedInTheListOfASave) {
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    Form f;
    f.world.texts.language = language;
    ASSERT_TRUE(f.enter(Field::kDryBulb, "20.0"));
    ASSERT_TRUE(f.enter(Field::kWetBulb, "15.0"));
    ASSERT_TRUE(f.enter(Field::kWetBulb, "1.0"));
    EXPECT_EQ(dew_point(f), "0116");
    EXPECT_EQ(f.record().LogExtra, "");
    EXPECT_EQ(f.remarks(), std::vector<std::string>{std::string(
                               text::bilingual(id::kDewPointOfEarlierBulbs, language))});
    ASSERT_TRUE(f.enter(Field::kWetBulb, "15.0"));
    EXPECT_TRUE(f.remarks().empty());
    EXPECT_EQ(f.record().LogExtra, "0580");
  }
}

// 20.0 and 15.0 give 11.6; with the doubled pressure of a ship without a card it is 7.5.
TEST(DoubledPressure, IsComputedWithAndTold) {
  Form f;
  f.ship.card = {};
  f.rebuild();
  ASSERT_TRUE(f.enter(Field::kDryBulb, "20.0"));
  EXPECT_FALSE(f.form->take_doubts().doubled_pressure);
  ASSERT_TRUE(f.enter(Field::kWetBulb, "15.0"));
  EXPECT_EQ(dew_point(f), "0075");
  EXPECT_TRUE(f.form->take_doubts().doubled_pressure);
  EXPECT_FALSE(f.form->take_doubts().doubled_pressure) << "told once";
  const std::vector<std::string> told{std::string(f.world.texts.get(id::kDoubledPressure))};
  EXPECT_EQ(f.remarks(), told);
  f.form->put({{Field::kDryBulb, "20.0"}, {Field::kWetBulb, "15.0"}}, WetBulbState::kNotSet);
  EXPECT_FALSE(f.form->take_doubts().doubled_pressure) << "the same dew point";
  f.form->put({{Field::kDryBulb, "21.0"}, {Field::kWetBulb, "15.0"}}, WetBulbState::kNotSet);
  EXPECT_TRUE(f.form->take_doubts().doubled_pressure);
  f.ship.card = card();
  f.form->card_changed();
  EXPECT_FALSE(f.form->take_doubts().doubled_pressure);
  EXPECT_TRUE(f.remarks().empty());
}

TEST(DoubledPressure, IsNotToldOfADewPointThatWasReadDirectly) {
  Form f;
  f.ship.card = {};
  f.ship.dew_point_method = DewPointMethod::kDirect;
  f.rebuild();
  ASSERT_TRUE(f.enter(Field::kAirTemperature, "20.0"));
  ASSERT_TRUE(f.enter(Field::kDewPoint, "10.0"));
  EXPECT_FALSE(f.form->take_doubts().doubled_pressure);
  EXPECT_TRUE(f.remarks().empty());
}

// A group that is typed touches no value of another: the dew point stays that of its bulbs.
TEST(DewPoint, StaysOfItsBulbsWhenOtherGroupsAreTyped) {
  Form f;
  ASSERT_TRUE(f.enter(Field::kDryBulb, "0.0"));
  ASSERT_TRUE(f.enter(Field::kWetBulb, "0.0"));
  const std::string computed = dew_point(f);
  ASSERT_EQ(computed, "1000") << "printed -0.0";
  for (const auto& [group, typed] :
       {std::pair{Group::k222DsVs, "22223"}, {Group::k4PPPP, "40132"}, {Group::kNddff, "52712"}}) {
    ASSERT_TRUE(f.enter(group, typed));
    EXPECT_EQ(dew_point(f), computed) << typed;
  }
  ASSERT_TRUE(f.enter(Field::kWetBulb, ""));
  EXPECT_EQ(dew_point(f) + f.record().LogExtra, "");
}

}  // namespace
