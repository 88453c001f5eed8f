// Which fields an observation wants something of. Tab passes by the others.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "elements/form/observation_form.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_ship.h"

namespace {

using elements::Field;

struct Typed {
  Field field;
  const char* text;
};

class AsksFor : public testing::Test {
 protected:
  AsksFor() {
    ship = fakes::psychrometer_ship();
    ship.card.total_correction = "+2.4";
  }
  /// The names of the fields that nothing is asked of, behind what was typed in this order.
  std::string passed_after(const std::vector<Typed>& entries) {
    elements::ObservationForm form(ship, items, world.clock);
    for (const Typed& entry : entries) {
      form.type(entry.field, entry.text);
      (void)form.leave(entry.field);
    }
    freeze = form.asks_for_freeze();
    std::string names;
    for (const elements::FieldRow& row : elements::field_rows()) {
      if (!form.asks_for(row.field)) names.append(row.name).append(" ");
    }
    return names;
  }
  fakes::World world;
  ShipFixedData ship;
  KeyObservationItems items;
  bool freeze = false;
};

TEST_F(AsksFor, AllButTheExactTimeAndASecondSwellInTheBeginning) {
  EXPECT_EQ(passed_after({}), "GGExact gg dw2dw2 Pw2Pw2 Hw2Hw2 ");
}

TEST_F(AsksFor, TheWholeExactTimeOnceHalfOfItIsThere) {
  EXPECT_EQ(passed_after({{Field::kgg, "45"}}), "dw2dw2 Pw2Pw2 Hw2Hw2 ");
  EXPECT_EQ(passed_after({{Field::kGGExact, "17"}}), "dw2dw2 Pw2Pw2 Hw2Hw2 ");
  EXPECT_EQ(passed_after({{Field::kgg, "45"}, {Field::kgg, ""}}),
            "GGExact gg dw2dw2 Pw2Pw2 Hw2Hw2 ");
  EXPECT_EQ(passed_after({{Field::kgg, "77"}}), "dw2dw2 Pw2Pw2 Hw2Hw2 ") << "refused";
}

TEST_F(AsksFor, ThePressureUnlessItsReadingGaveIt) {
  const std::string others = "GGExact gg dw2dw2 Pw2Pw2 Hw2Hw2 ";
  const std::string with_pressure = "GGExact gg PPPP dw2dw2 Pw2Pw2 Hw2Hw2 ";
  EXPECT_EQ(passed_after({{Field::kReading, "1010.8"}}), with_pressure);
  EXPECT_EQ(passed_after({{Field::kReading, "1010.8"}, {Field::kPPPP, "1000.0"}}), others)
      << "typed over it";
  EXPECT_EQ(passed_after({{Field::kReading, "300"}}), others) << "an impossible reading";
  EXPECT_EQ(passed_after({{Field::kPPPP, "1000.0"}}), others) << "typed without a reading";
  EXPECT_EQ(passed_after({{Field::kReading, "1010.8"}, {Field::kReading, ""}}), others);
}

TEST_F(AsksFor, ASecondSwellOnlyWhereThereIsOne) {
  using F = Field;
  EXPECT_EQ(passed_after({{F::kdw1dw1, "25"}}), "GGExact gg Pw2Pw2 Hw2Hw2 ");
  EXPECT_EQ(passed_after({{F::kHw1Hw1, "2"}}), "GGExact gg Pw2Pw2 Hw2Hw2 ");
  EXPECT_EQ(passed_after({{F::kdw1dw1, "25"}, {F::kdw2dw2, "00"}}), "GGExact gg Pw2Pw2 Hw2Hw2 ");
  EXPECT_EQ(passed_after({{F::kdw1dw1, "25"}, {F::kdw2dw2, "31"}}), "GGExact gg ");
  EXPECT_EQ(passed_after({{F::kdw1dw1, "25"}, {F::kdw2dw2, "//"}}), "GGExact gg ");
  EXPECT_EQ(passed_after({{F::kdw1dw1, "25"}, {F::kPw2Pw2, "07"}}), "GGExact gg ")
      << "half a second swell";
}

// "30000" says that there is no swell; until the second direction is "00" the group is not whole.
TEST_F(AsksFor, NothingOfPeriodsAndHeightsWithoutSwell) {
  using F = Field;
  EXPECT_EQ(passed_after({{F::kdw1dw1, "00"}}), "GGExact gg Pw1Pw1 Hw1Hw1 Pw2Pw2 Hw2Hw2 ");
  EXPECT_EQ(passed_after({{F::kdw1dw1, "00"}, {F::kdw2dw2, "00"}}),
            "GGExact gg Pw1Pw1 Hw1Hw1 Pw2Pw2 Hw2Hw2 ");
  EXPECT_EQ(passed_after({{F::kPw1Pw1, "07"}, {F::kdw1dw1, "00"}}), "GGExact gg Pw2Pw2 Hw2Hw2 ")
      << "what was entered is there to be looked at";
}

TEST_F(AsksFor, WhetherTheWetBulbIsIcedWhereItCanBe) {
  struct Row {
    const char* wet;
    bool asks;
  };
  for (const Row& row : {Row{"", false}, Row{"0.1", false}, Row{"0.0", true}, Row{"-0.1", true},
                         Row{"-8.2", true}, Row{"13.0", false}}) {
    (void)passed_after({{Field::kDryBulb, "15.0"}, {Field::kWetBulb, row.wet}});
    EXPECT_EQ(freeze, row.asks) << row.wet;
  }
}

// One and two figure codes; of a number, a speed or a height nobody knows how many come.
TEST_F(AsksFor, FixedWidthIsThatOfCodesAlone) {
  std::string waiting;
  for (const elements::FieldRow& row : elements::field_rows()) {
    if (!elements::is_of_fixed_width(row)) waiting.append(row.name).append(" ");
  }
  EXPECT_EQ(waiting,
            "Year LoDeg reading PPPP ppp dry_bulb wet_bulb air_temperature dew_point "
            "relative_humidity ff apparent_direction apparent_speed heading course ship_speed "
            "TwTwTw HwHw Hw1Hw1 Hw2Hw2 HwaHwa h ");
}

}  // namespace
