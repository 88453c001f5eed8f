// The VOSClim values of an observation: what the fields of the apparent wind say, on a ship that is
// registered; and the fields of a report that is corrected, which show them again.

#include "elements/form/vosclim_fields.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "codetables/tables/wind_figures.h"
#include "elements/form/random_entries.h"
#include "fakes/rounds.h"
#include "observation/logbook_encoder.h"
#include "text/strings.h"

namespace {

using elements::Field;
using form_test::Form;
using form_test::RandomEntries;

constexpr std::array kFields = {Field::kApparentDirection, Field::kApparentSpeed, Field::kHeading,
                                Field::kShipSpeed, Field::kCourse};

std::string values_of(const Struct_Weather& r) {
  return r.VosClim1 + "|" + r.VosClim2 + "|" + r.VosClim3 + "|" + r.VosClim4 + "|" + r.VosClim5;
}
constexpr const char* kNone = "||||";

struct Registered : Form {
  Registered() {
    ship.vosclim = true;
    ship.wind_input_method = WindInputMethod::kApparentWind;
    rebuild();
    suppressed = true;
  }
  /// In the order of the values: wind from the bow, its speed, heading, speed and course.
  void enter_all(const std::array<const char*, 5>& texts) {
    for (std::size_t i = 0; i < kFields.size(); ++i) EXPECT_TRUE(enter(kFields[i], texts[i]));
  }
};

// Columns 133-140 (heading, course, speed) and 146-151 (wind) of the logbook.
std::string columns_of(const Form& form) {
  const std::string line = observation::encode_logbook(form.record(), form.ship, form.items);
  return line.substr(132, 3) + "|" + line.substr(135, 3) + "|" + line.substr(138, 2) + "|" +
         line.substr(145, 3) + "|" + line.substr(148, 3);
}

TEST(VosclimValues, AreWhatTheFieldsOfTheApparentWindSay) {
  const struct {
    std::array<const char*, 5> entered;
    const char* values;
    const char* columns;
  } rows[] = {
      {{"45", "18.4", "90", "12.4", "92"}, "045|018|090|12|092", "090|092|12|045|018"},
      // Rounded, a half up.
      {{"330", "18.5", "360", "12.5", "360"}, "330|019|360|13|360", "360|360|13|330|019"},
      {{"5", "9.9", "1", "0.5", "1"}, "005|010|001|01|001", "001|001|01|005|010"},
      // Right ahead and north are 360.
      {{"0", "10", "360", "10", "0"}, "360|010|360|10|360", "360|360|10|360|010"},
      // A calm, and a ship that does not move, have no direction; the bow points somewhere.
      {{"45", "0", "90", "0", "92"}, "000|000|090|00|000", "090|000|00|000|000"},
      {{"0", "0.4", "90", "0.4", "0"}, "000|000|090|00|000", "090|000|00|000|000"},
      // An input that is missing: its value, and a 0 that its speed would tell the meaning of.
      {{"", "18", "90", "12", "92"}, "|018|090|12|092", "090|092|12|   |018"},
      {{"45", "", "90", "12", "92"}, "045||090|12|092", "090|092|12|045|   "},
      {{"0", "", "90", "", "0"}, "||090||", "090|   |  |   |   "},
      {{"45", "18", "", "12", "92"}, "045|018||12|092", "   |092|12|045|018"},
      {{"45", "18", "90", "", "92"}, "045|018|090||092", "090|092|  |045|018"},
      {{"45", "18", "90", "12", ""}, "045|018|090|12|", "090|   |12|045|018"},
      {{"", "", "", "", ""}, kNone, "   |   |  |   |   "},
      // What does not fit into the column is blank, never cut.
      {{"360", "999", "90", "99.4", "92"}, "360|999|090|99|092", "090|092|99|360|999"},
      {{"360", "999", "90", "99.9", "92"}, "360|999|090||092", "090|092|  |360|999"},
  };
  for (const auto& row : rows) {
    Registered form;
    form.enter_all(row.entered);
    EXPECT_EQ(values_of(form.record()), row.values);
    EXPECT_EQ(columns_of(form), row.columns);
    // Sent and corrected it is the same, and what the fields then show says so as well.
    Registered again;
    again.form->load_record(form.record());
    EXPECT_EQ(columns_of(again), row.columns);
    for (const Field field : kFields) {
      if (again.form->text(field).empty()) continue;
      ASSERT_TRUE(again.enter(field, std::string(again.form->text(field))));
      EXPECT_EQ(columns_of(again), row.columns) << elements::name_of(field);
    }
  }
}

// The screen takes tenths up to 999.9 where the field ends at 999.
TEST(VosclimValues, AreBlankForASpeedThatRoundsToFourFigures) {
  Registered form;
  form.form->put(Field::kApparentSpeed, "999.4");
  EXPECT_EQ(form.record().VosClim2, "999");
  form.form->put(Field::kApparentSpeed, "999.9");
  EXPECT_EQ(form.record().VosClim2, "");
}

// Whatever a draft may have kept.
TEST(VosclimValues, AreEmptyForTextsThatAreNone) {
  for (const char* const text : {"",
                                 " ",
                                 "*",
                                 "**",
                                 "***",
                                 "/",
                                 "//",
                                 "///",
                                 "x",
                                 "-1",
                                 "-0.6",
                                 "1000",
                                 "99999999999",
                                 "1e3",
                                 "45x",
                                 "４５",
                                 "\xff",
                                 "nan",
                                 "0x10",
                                 "1000000000000000000000000000000000000000000000000000"}) {
    Registered form;
    elements::Entries entries = form.form->entries();
    for (const Field field : kFields) entries[field].text = text;
    elements::set_vosclim(entries, form.ship);
    EXPECT_EQ(values_of(entries.record), kNone) << text;
  }
}

TEST(VosclimValues, CountOnlyWhatIsAccepted) {
  Registered form;
  form.enter_all({"45", "18", "90", "12", "92"});
  const std::string values = values_of(form.record());
  for (const Field field : kFields) {
    EXPECT_FALSE(form.enter(field, "x"));
    EXPECT_EQ(values_of(form.record()), values);
    ASSERT_TRUE(form.enter(Field::kVV, "96"));
    EXPECT_EQ(values_of(form.record()), values) << "the refused text still stands there";
  }
  ASSERT_TRUE(form.enter(Field::kHeading, "180"));
  EXPECT_EQ(form.record().VosClim3, "180");
  ASSERT_TRUE(form.enter(Field::kHeading, ""));
  EXPECT_EQ(form.record().VosClim3, "");
}

// From one method or registration to the other and back: at once, with the OK of the fixed data.
TEST(VosclimValues, FollowRegistrationAndMethod) {
  Registered form;
  form.enter_all({"45", "18", "90", "12", "92"});
  const std::string values = values_of(form.record());
  const std::string wind = form.record().dd + form.record().ff;
  form.form->saved();
  for (const bool registered : {true, false}) {
    for (const WindInputMethod method :
         {WindInputMethod::kApparentWind, WindInputMethod::kTrueWind}) {
      form.ship.vosclim = registered;
      form.ship.wind_input_method = method;
      form.form->ship_changed();
      const bool has = registered && method == WindInputMethod::kApparentWind;
      EXPECT_EQ(values_of(form.record()), has ? values : kNone);
      EXPECT_EQ(form.form->modified(), !(registered && has)) << "the line is another now";
      ASSERT_TRUE(form.enter(Field::kVV, "96"));
      EXPECT_EQ(values_of(form.record()), has ? values : kNone);
    }
  }
  form.ship.vosclim = true;
  form.ship.wind_input_method = WindInputMethod::kApparentWind;
  form.form->ship_changed();
  EXPECT_EQ(values_of(form.record()), values);
  EXPECT_EQ(form.record().dd + form.record().ff, wind);
}

// Over any entries: a registered ship's columns hold whole figures or nothing, any other's nothing,
// and a report that is corrected has them from its line again.
TEST(VosclimValues, AreWholeFiguresOrNothingWhateverIsEntered) {
  int filled = 0;
  const auto forms = static_cast<unsigned>(fakes::rounds(200));
  for (unsigned seed = 1; seed <= forms; ++seed) {
    Form form;
    RandomEntries entries(seed);
    entries.set_up(form);
    form.ship.vosclim = entries.pick(3) != 0;
    const bool tells =
        form.ship.vosclim && form.ship.wind_input_method == WindInputMethod::kApparentWind;
    for (int i = 0; i < 120; ++i) {
      entries.step(form);
      if (entries.pick(2) == 0) {
        const Field field = kFields[static_cast<std::size_t>(entries.pick(5))];
        (void)form.enter(field, form_test::kTexts[entries.pick(40)]);
      }
      const Struct_Weather& r = form.record();
      if (!tells) {
        ASSERT_EQ(values_of(r), kNone);
        continue;
      }
      const std::pair<const std::string&, std::size_t> values[] = {
          {r.VosClim1, 3}, {r.VosClim2, 3}, {r.VosClim3, 3}, {r.VosClim4, 2}, {r.VosClim5, 3}};
      for (const auto& [value, width] : values) {
        if (value.empty()) continue;
        ASSERT_TRUE(text::is_all_digits(value)) << value;
        ASSERT_EQ(value.size(), width);
        ++filled;
      }
      elements::ObservationForm corrected(form.ship, form.items, form.world.clock);
      corrected.load_record(r);
      ASSERT_EQ(values_of(corrected.record()), values_of(r));
      elements::Entries shown = corrected.entries();
      elements::set_vosclim(shown, form.ship);
      ASSERT_EQ(values_of(shown.record), values_of(r)) << "what the fields show says the same";
    }
  }
  EXPECT_GT(filled, fakes::rounds(10000));
}

// ---- A report that is corrected

Struct_Weather sent(const ShipFixedData& ship) {
  Struct_Weather record(ship, {});
  record.Year = "2014";
  record.Month = "11";
  record.YY = "15";
  record.GG = "12";
  record.dd = "27";  // not the wind of the values below
  record.ff = "18";
  record.VosClim1 = "045";
  record.VosClim2 = "020";
  record.VosClim3 = "090";
  record.VosClim4 = "10";
  record.VosClim5 = "360";
  return record;
}

TEST(CorrectedVosclim, StandsInTheFieldsAndComputesNothing) {
  Registered form;
  const Struct_Weather record = sent(form.ship);
  form.form->load_record(record);
  std::vector<std::string> shown;
  for (const Field field : kFields) shown.push_back(form.form->text(field));
  EXPECT_EQ(shown, (std::vector<std::string>{"45", "20.0", "90", "10.0", "360"}));
  EXPECT_TRUE(form.record() == record);
  EXPECT_FALSE(form.form->modified());
  // Neither by going through the form, nor by an OK in the dialogs of ship, card and items, nor by
  // another element.
  for (const Field field : kFields) EXPECT_TRUE(form.leave(field));
  form.form->ship_changed();
  form.form->card_changed();
  form.form->items_changed();
  EXPECT_TRUE(form.record() == record);
  EXPECT_FALSE(form.form->modified());
  ASSERT_TRUE(form.enter(Field::kVV, "96"));
  EXPECT_EQ(form.record().dd + form.record().ff, "2718");
  EXPECT_EQ(values_of(form.record()), "045|020|090|10|360");
}

TEST(CorrectedVosclim, FollowsItsFieldsAndSoDoesTheTrueWind) {
  Registered form;
  form.form->load_record(sent(form.ship));
  ASSERT_TRUE(form.enter(Field::kHeading, "100"));
  EXPECT_EQ(values_of(form.record()), "045|020|100|10|360");
  Registered entered;
  entered.enter_all({"45", "20.0", "100", "10.0", "360"});
  EXPECT_EQ(form.record().dd + form.record().ff, entered.record().dd + entered.record().ff);
  EXPECT_NE(form.record().dd + form.record().ff, "2718");
  ASSERT_TRUE(form.enter(Field::kShipSpeed, ""));
  EXPECT_EQ(values_of(form.record()), "045|020|100||360");
}

// Another program may have written it otherwise: it stays until something of it is entered.
TEST(CorrectedVosclim, StaysAsItWasWrittenAlsoWhereTheFieldsWouldSayItOtherwise) {
  for (const char* const value : {"000", "361", "999", "12", ""}) {
    Registered form;
    Struct_Weather record = sent(form.ship);
    record.VosClim1 = record.VosClim3 = record.VosClim5 = value;
    form.form->load_record(record);
    ASSERT_TRUE(form.enter(Field::kVV, "96"));
    form.form->ship_changed();
    EXPECT_EQ(values_of(form.record()), values_of(record));
    EXPECT_EQ(form.record().dd + form.record().ff, "2718");
  }
}

TEST(CorrectedVosclim, OfAnotherHourIsWhatTheFieldsShow) {
  for (const auto& [field, text] : {std::pair{Field::kGG, "18"}, std::pair{Field::kYY, "16"}}) {
    Registered form;
    Struct_Weather record = sent(form.ship);
    record.VosClim1 = "361";
    form.form->load_record(record);
    ASSERT_TRUE(form.enter(field, text));
    EXPECT_EQ(values_of(form.record()), "|020|090|10|360");
    EXPECT_EQ(form.record().dd + form.record().ff, "2718");
  }
}

// No field of such a ship shows them: they are the report's, and go with its hour.
TEST(CorrectedVosclim, OfAShipWithoutTheFieldsStaysAsLongAsItsHour) {
  for (const bool registered : {false, true}) {
    Form form;
    form.ship.vosclim = registered;
    form.ship.wind_input_method =
        registered ? WindInputMethod::kTrueWind : WindInputMethod::kApparentWind;
    form.form->load_record(sent(form.ship));
    for (const Field field : kFields) EXPECT_EQ(form.form->text(field), "");
    form.form->ship_changed();
    ASSERT_TRUE(form.enter(Field::kVV, "96"));
    EXPECT_EQ(values_of(form.record()), "045|020|090|10|360");
    // Registered meanwhile, the fields show them.
    Form later;
    later.ship = form.ship;
    later.form->load(form.form->entries());
    later.ship.vosclim = true;
    later.ship.wind_input_method = WindInputMethod::kApparentWind;
    later.form->ship_changed();
    EXPECT_EQ(later.form->text(Field::kHeading), "90");
    EXPECT_EQ(later.record().dd + later.record().ff, "2718");
    ASSERT_TRUE(later.enter(Field::kHeading, "100"));
    EXPECT_EQ(values_of(later.record()), "045|020|100|10|360");
    ASSERT_TRUE(form.enter(Field::kGG, "18"));
    EXPECT_EQ(values_of(form.record()), kNone);
  }
}

// Its wind on board would be in metres a second as well, and the fields are in knots.
TEST(CorrectedVosclim, OfAReportInMetresASecondIsNotShownInKnots) {
  Registered form;
  Struct_Weather record = sent(form.ship);
  record.iw = "1";
  form.form->load_record(record);
  for (const Field field : kFields) EXPECT_EQ(form.form->text(field), "");
  ASSERT_TRUE(form.enter(Field::kVV, "96"));
  EXPECT_EQ(values_of(form.record()), "045|020|090|10|360");
  form.enter_all({"45", "20.0", "100", "10.0", "360"});
  EXPECT_FALSE(codetables::is_metres_per_second(form.record().iw));
  EXPECT_EQ(values_of(form.record()), "045|020|100|10|360");
}

}  // namespace
