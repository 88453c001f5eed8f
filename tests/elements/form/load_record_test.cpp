// A record that was sent, taken into the form to be corrected: it is the same record, whatever the
// ship is like by now, and stays so until something is entered.

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/quadrant.h"
#include "codetables/tables/temperature_figures.h"
#include "elements/form/field_codes.h"
#include "elements/form/random_entries.h"
#include "observation/logbook_encoder.h"
#include "observation/report_encoder.h"
#include "observation/report_reader.h"
#include "text/strings.h"

namespace {

using elements::Codec;
using elements::Field;
using elements::FieldRow;
using elements::WetBulbState;
using form_test::Form;
using form_test::RandomEntries;
using observation::Group;

std::vector<Struct_Weather> records_of_real_reports() {
  std::ifstream in(KAVREL_TEST_DATA "/ship_reports.txt");
  std::vector<Struct_Weather> records;
  for (std::string line; std::getline(in, line);) {
    if (!line.starts_with("BBXX")) continue;
    const auto read = observation::read_report(line, Struct_Weather({}, {}));
    EXPECT_TRUE(read) << line;
    if (read) records.push_back(read->record);
  }
  return records;
}

// What random entries leave in a form, on a ship of other methods than the one that loads it.
std::vector<Struct_Weather> records_of_random_entries() {
  std::vector<Struct_Weather> records;
  for (unsigned seed = 1; seed <= 60; ++seed) {
    Form form;
    RandomEntries entries(seed);
    entries.set_up(form);
    for (int i = entries.pick(200); i > 0; --i) entries.step(form);
    records.push_back(form.record());
  }
  return records;
}

std::vector<Struct_Weather> all_records() {
  std::vector<Struct_Weather> records = records_of_real_reports();
  EXPECT_EQ(records.size(), 29U);
  for (Struct_Weather& record : records_of_random_entries()) records.push_back(std::move(record));
  return records;
}

// A ship of each method, with everything observed and with nothing.
template <class Check>
void on_ships(Check&& check) {
  for (const DewPointMethod method : {DewPointMethod::kDirect, DewPointMethod::kComputed}) {
    for (const bool observed : {true, false}) {
      SCOPED_TRACE(testing::Message() << static_cast<int>(method) << observed);
      Form form;
      form.ship.dew_point_method = method;
      form.ship.wind_input_method = WindInputMethod::kApparentWind;
      form.items.not_observed.fill(!observed);
      form.rebuild();
      // What was entered before goes.
      form.suppressed = true;
      EXPECT_TRUE(form.enter(Field::kReading, "1010.8"));
      EXPECT_FALSE(form.enter(Field::kDs, "x"));
      form.form->choose_hemispheres(1, 1);
      check(form);
    }
  }
}

void expect_sent_as(const Form& form, const Struct_Weather& record) {
  EXPECT_TRUE(form.record() == record);
  const bool wet_bulb = observation::wants_wet_bulb(form.ship);
  const observation::Report report = observation::make_report(record, wet_bulb);
  EXPECT_EQ(form.form->report().text, report.text);
  EXPECT_EQ(form.form->report().missing, report.missing);
  EXPECT_EQ(observation::encode_logbook(form.record(), form.ship, form.items),
            observation::encode_logbook(record, form.ship, form.items));
}

TEST(LoadedRecord, IsSentAndWrittenToTheLogbookAsItWas) {
  for (const Struct_Weather& record : all_records()) {
    on_ships([&](Form& form) {
      form.form->load_record(record);
      expect_sent_as(form, record);
      EXPECT_FALSE(form.form->modified());
      const elements::Doubts doubts = form.form->take_doubts();
      EXPECT_FALSE(doubts.review || doubts.doubled_pressure);
      // The focus goes through the whole form, and through every group.
      for (const FieldRow& row : elements::field_rows())
        EXPECT_EQ(form.leave(row.field), !form.form->in_error(row.field)) << row.name;
      for (const observation::GroupRow& row : observation::group_rows()) {
        const std::string text = observation::group_text(record, row.group);
        // One that is not written has no text that could be typed.
        if (text.size() == row.width()) {
          EXPECT_TRUE(form.enter(row.group, text)) << text;
        }
      }
      form.form->items_changed();
      Struct_Weather now = record;
      now.iX = form.record().iX;  // follows the items
      expect_sent_as(form, now);
    });
  }
}

TEST(LoadedRecord, StandsInEveryField) {
  for (const Struct_Weather& record : all_records()) {
    on_ships([&](Form& form) {
      form.form->load_record(record);
      const bool computed = form.ship.dew_point_method == DewPointMethod::kComputed;
      for (const FieldRow& row : elements::field_rows()) {
        const std::string& text = form.form->text(row.field);
        if (row.codec == Codec::kFigures) {
          EXPECT_EQ(text, record.*row.member) << row.name;
        }
        if (row.codec == Codec::kNone) {
          EXPECT_EQ(text, "") << row.name;
        }
      }
      EXPECT_EQ(form.form->text(Field::kPPPP), codetables::pressure_shown(record.PPPP));
      const std::string air = codetables::temperature_shown(record.SnT, record.TTT);
      EXPECT_EQ(form.form->text(Field::kDryBulb), computed ? air : "");
      EXPECT_EQ(form.form->text(Field::kAirTemperature), computed ? "" : air);
      const elements::Entries& entries = form.form->entries();
      if (record.Qc.size() == 1 && record.Qc != "/") {
        EXPECT_EQ(codetables::quadrant_of(entries.north_south, entries.east_west), record.Qc);
      }
      EXPECT_EQ(entries.wet_bulb == WetBulbState::kIced,
                record.Sw == "2" && text::is_all_digits(record.TbTbTb));
    });
  }
}

TEST(LoadedRecord, WithoutASecondSwellHasNone) {
  for (const char* const swell : {"327// 40905", "30000"}) {
    const std::string text =
        std::string("BBXX JXKV 15124 99357 71653 41697 52712 81541 22232 ") + swell + " .....";
    const auto read = observation::read_report(text, Struct_Weather({}, {}));
    ASSERT_TRUE(read) << swell;
    Form form;
    form.form->load_record(read->record);
    EXPECT_NE(form.form->report().text.find(std::string(" ") + swell + " "), std::string::npos)
        << form.form->report().text;
    // Another element is corrected.
    ASSERT_TRUE(form.enter(Field::kVV, "96"));
    EXPECT_NE(form.form->report().text.find(std::string(" ") + swell + " "), std::string::npos);
    EXPECT_TRUE(form.form->modified());
  }
}

// The dew point of the bulbs goes with a bulb that turns out wrong; it is not sent without it.
TEST(LoadedRecord, HasADewPointThatDoesNotOutliveItsBulbs) {
  Form observed;
  ASSERT_TRUE(observed.enter(Field::kDryBulb, "20.0"));
  ASSERT_TRUE(observed.enter(Field::kWetBulb, "15.0"));
  Form form;
  form.form->load_record(observed.record());
  ASSERT_TRUE(form.enter(Field::kWetBulb, ""));
  EXPECT_EQ(form.record().TdTdTd + form.record().LogExtra, "");
  // One that stands without bulbs was read, and stays.
  Struct_Weather direct = observed.record();
  direct.Sw.clear();
  direct.TbTbTb.clear();
  form.form->load_record(direct);
  ASSERT_TRUE(form.enter(Field::kDryBulb, ""));
  EXPECT_EQ(form.record().TdTdTd, observed.record().TdTdTd);
}

// What is not observed any more was observed then, and stays in the corrected report.
TEST(LoadedRecord, KeepsElementsThatAreSwitchedOffByNow) {
  Form form;
  Struct_Weather record = form.record();
  record.VV = "97";
  record.ww = "61";
  form.items.set_observed(ObservationItem::VV, false);
  form.items.set_observed(ObservationItem::ww, false);
  form.form->load_record(record);
  form.form->items_changed();
  form.form->ship_changed();
  EXPECT_EQ(form.record().VV + form.record().ww, "9761");
  form.items.not_observed.fill(false);
  form.form->items_changed();
  EXPECT_EQ(form.record().VV + form.record().ww, "9761");
  EXPECT_EQ(form.form->text(Field::kVV), "97");
}

}  // namespace
