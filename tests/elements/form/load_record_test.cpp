// A record that was sent, taken into the form to be corrected: it is the same record, whatever the
// ship is like by now, and stays so until something is entered.

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "codetables/code_pickers.h"
#include "codetables/tables/code_tables.h"
#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/quadrant.h"
#include "codetables/tables/temperature_figures.h"
#include "elements/form/field_codes.h"
#include "elements/form/field_editors.h"
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
TEST(LoadedRecord, HasVosclimDataThatDoNotOutliveTheirHour) {
  Struct_Weather record({}, {});
  record.Month = "11";
  record.YY = "15";
  record.GG = "12";
  record.VosClim1 = "030";
  record.VosClim2 = "12";
  record.VosClim3 = "175";
  record.VosClim4 = "14";
  record.VosClim5 = "178";
  struct Row {
    Field field;
    const char* entered;
  };
  for (const Row& row : {Row{Field::kGG, "09"}, Row{Field::kYY, "14"}, Row{Field::kMonth, "10"},
                         Row{Field::kYear, "2014"}}) {
    Form form;
    record.Year = row.field == Field::kYear ? "2013" : "2014";
    form.form->load_record(record);
    ASSERT_TRUE(form.enter(Field::kVV, "96"));
    EXPECT_EQ(form.record().VosClim1 + form.record().VosClim5, "030178");
    ASSERT_TRUE(form.enter(row.field, row.entered)) << row.entered;
    const Struct_Weather& r = form.record();
    EXPECT_EQ(r.VosClim1 + r.VosClim2 + r.VosClim3 + r.VosClim4 + r.VosClim5, "") << row.entered;
  }
}

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

// ---- What was computed before it was sent stays until one of its inputs is entered

Struct_Weather sent() {
  const auto read = observation::read_report(
      "BBXX JXKV 15123 99357 11653 41497 62718 10152 20114 40132 52014 72582 84531 22213 00178 "
      "20604 30000 80130 .....",
      Struct_Weather(fakes::psychrometer_ship(), {}));
  Struct_Weather record = read->record;
  record.Year = "2014";
  record.Month = "11";
  record.LogExtra = "0780";
  return record;
}

TEST(LoadedRecord, KeepsItsDewPointWhateverBecomesOfShipAndCard) {
  Form form;
  form.form->load_record(sent());
  form.ship.card = fakes::height_card();
  form.form->card_changed();
  form.form->ship_changed();
  form.ship.card.loading_state = LoadingState::kInBallast;
  form.form->card_changed();
  form.ship.card = {};
  form.form->ship_changed();
  EXPECT_TRUE(form.record() == sent());
  EXPECT_TRUE(form.remarks().empty()) << form.remarks().front();
  EXPECT_FALSE(form.form->take_doubts().doubled_pressure);
}

TEST(LoadedRecord, ComputesItsDewPointOnceABulbOrAReadingIsEntered) {
  for (const auto& [field, text] : {std::pair{Field::kDryBulb, "18.0"},
                                    {Field::kWetBulb, "12.0"},
                                    {Field::kReading, "900.0"}}) {
    Form form;
    form.suppressed = true;
    form.form->load_record(sent());
    ASSERT_TRUE(form.enter(field, text));
    // As a form computes it in which the same was entered.
    Form entered;
    entered.suppressed = true;
    ASSERT_TRUE(entered.enter(Field::kDryBulb, "15.2"));
    ASSERT_TRUE(entered.enter(Field::kWetBulb, "13.0"));
    ASSERT_TRUE(entered.enter(field, text));
    EXPECT_EQ(form.record().TdTdTd, entered.record().TdTdTd);
    EXPECT_EQ(form.record().LogExtra, entered.record().LogExtra);
    EXPECT_NE(form.record().TdTdTd, "114");
    // And from then on it follows the card.
    const std::string before = form.record().TdTdTd;
    form.ship.card = fakes::total_card("+70.0");
    form.form->card_changed();
    EXPECT_NE(form.record().TdTdTd, before);
  }
}

TEST(LoadedRecord, ReadWithoutBulbsKeepsItsDewPointOnAShipThatHasThem) {
  Struct_Weather record = sent();
  record.Sw.clear();
  record.TbTbTb.clear();
  Form form;
  form.form->load_record(record);
  ASSERT_TRUE(form.enter(Field::kDryBulb, "15.3"));
  EXPECT_EQ(form.record().TdTdTd, "114");
  EXPECT_EQ(form.form->report().text.find(" 8////"), std::string::npos);
}

TEST(LoadedRecord, KeepsItsPressureWithoutAReading) {
  Form form;
  form.form->load_record(sent());
  ASSERT_TRUE(form.enter(Field::kDryBulb, "25.0"));
  form.ship.card = fakes::height_card();
  form.form->card_changed();
  ASSERT_TRUE(form.enter(Field::kReading, ""));
  EXPECT_EQ(form.record().PPPP + form.record().a + form.record().ppp, "01322014");
  ASSERT_TRUE(form.enter(Field::kReading, "1000.0"));
  EXPECT_NE(form.record().PPPP, "0132");
}

TEST(LoadedRecord, KeepsItsTrueWindUntilAWholeApparentOneIsEntered) {
  Form form;
  form.ship.wind_input_method = WindInputMethod::kApparentWind;
  form.form->load_record(sent());
  const std::pair<Field, const char*> apparent[] = {{Field::kApparentDirection, "45"},
                                                    {Field::kApparentSpeed, "20.0"},
                                                    {Field::kHeading, "90"},
                                                    {Field::kCourse, "90"}};
  for (const auto& [field, text] : apparent) {
    ASSERT_TRUE(form.enter(field, text));
    EXPECT_EQ(form.record().dd + form.record().ff, "2718");
  }
  // Begun and taken back.
  for (const auto& [field, text] : apparent) {
    ASSERT_TRUE(form.enter(field, ""));
    EXPECT_EQ(form.record().dd + form.record().ff, "2718");
  }
  for (const auto& [field, text] : apparent) ASSERT_TRUE(form.enter(field, text));
  ASSERT_TRUE(form.enter(Field::kShipSpeed, "10.0"));
  const std::string computed = form.record().dd + form.record().ff;
  EXPECT_NE(computed, "2718");
  EXPECT_EQ(computed.size(), 4U);
  ASSERT_TRUE(form.enter(Field::kShipSpeed, ""));
  EXPECT_EQ(form.record().dd + form.record().ff, "") << "the wind of an input that has gone";
}

TEST(LoadedRecord, KeepsItsWeatherIndicatorUntilWeatherIsEnteredOrSwitched) {
  for (const char* const iX : {"1", "3", "6"}) {
    Struct_Weather record = sent();
    record.iX = iX;
    Form form;
    form.form->load_record(record);
    form.form->items_changed();
    form.form->ship_changed();
    ASSERT_TRUE(form.enter(Field::kVV, "96"));
    EXPECT_EQ(form.record().iX, iX);
    ASSERT_TRUE(form.enter(Field::kww, "61"));
    EXPECT_EQ(form.record().iX, "1");
    form.form->load_record(record);
    for (const ObservationItem item : {ObservationItem::ww, ObservationItem::W1W2})
      form.items.set_observed(item, false);
    form.form->items_changed();
    EXPECT_EQ(form.record().iX, "3");
  }
}

TEST(LoadedRecord, KeepsMetresPerSecondUntilASpeedIsEntered) {
  for (const auto& [sent_as, entered_as] :
       {std::pair{"0", "3"}, {"1", "3"}, {"3", "3"}, {"4", "4"}}) {
    Struct_Weather record = sent();
    record.iw = sent_as;
    Form form;
    form.form->load_record(record);
    ASSERT_TRUE(form.enter(Field::kdd, "28"));
    EXPECT_EQ(form.record().iw, sent_as);
    ASSERT_TRUE(form.enter(Field::kff, "20"));
    EXPECT_EQ(form.record().iw, entered_as);
  }
  Struct_Weather record = sent();
  record.iw = "1";
  Form form;
  form.form->load_record(record);
  form.ship.wind_speed_method = WindSpeedMethod::kAnemometer;
  form.form->ship_changed();
  EXPECT_EQ(form.record().iw, "1") << "its speed is still in metres a second";
}

// Each figure of a report by one that is another may give a value that its field refuses; then the
// list of a save names it, and nothing that the field takes.
TEST(LoadedRecord, NamesEveryValueThatItsFieldWouldRefuse) {
  const std::string text =
      "BBXX JXKV 15123 99357 11653 41497 62718 10152 20114 40132 52014 72582 84531 11150 22213 "
      "00178 10604 20604 32531 40905 51103 61023 80130 ICE 12345 .....";
  Form whole;
  whole.ship.wave_recorder = true;
  whole.form->load_record(
      observation::read_report(text, Struct_Weather(whole.ship, whole.items))->record);
  EXPECT_TRUE(whole.form->unacceptable().empty());
  int named = 0;
  for (std::size_t at = text.find("99357"); at < text.size(); ++at) {
    if (text[at] < '0' || text[at] > '9') continue;
    for (const char figure : {'0', '9'}) {
      std::string other = text;
      other[at] = figure;
      const auto read =
          observation::read_report(other, Struct_Weather(fakes::psychrometer_ship(), {}));
      ASSERT_TRUE(read);
      Form form;
      form.ship.wave_recorder = true;
      form.suppressed = true;
      form.form->load_record(read->record);
      const bool unacceptable = !form.form->unacceptable().empty();
      named += unacceptable ? 1 : 0;
      // Typing every value anew: a field refuses one if and only if it was named (a dew point
      // beside bulbs stands in no field; rules between fields have lines of their own).
      bool refused = false;
      for (const FieldRow& row : elements::field_rows()) {
        const std::string shown = form.form->text(row.field);
        if (shown.empty() || row.field == Field::kYear) continue;
        const elements::Checked checked = elements::check_field(row.editor, shown);
        if (row.codec == Codec::kPressure || row.codec == Codec::kHumidity) continue;
        // A dialog offers each line of a code table, also those that its field does not take.
        if (row.editor.width == 1 && codetables::table_of(row.name) != nullptr &&
            codetables::holds(*codetables::table_of(row.name), shown))
          continue;
        refused = refused || (checked.verdict == elements::Verdict::kRefused &&
                              shown.find_first_not_of('/') != std::string::npos);
      }
      const bool pressure_is_right =
          codetables::pppp_range(std::stoi("1" + read->record.PPPP) % 10000) !=
          codetables::PressureRange::kRefused;
      EXPECT_EQ(unacceptable, refused || !pressure_is_right) << other;
    }
  }
  EXPECT_GT(named, 5);
}

// What a dialog of codes has put in and a save has taken is no error when the report comes back.
TEST(LoadedRecord, NamesNoCodeThatADialogOffers) {
  int codes = 0;
  for (const codetables::CodePicker* const picker : codetables::code_pickers()) {
    for (const codetables::PickedCode& picked : picker->codes) {
      for (const codetables::CodeRow& line : codetables::lines_of(picked)) {
        Form form;
        Struct_Weather record = sent();
        std::string Struct_Weather::*const member =
            elements::row_of(*elements::field_named(picked.symbol)).member;
        record.*member = line.figures;
        form.form->load_record(record);
        EXPECT_TRUE(form.form->unacceptable().empty()) << picked.symbol << " " << line.figures;
        ++codes;
      }
    }
  }
  EXPECT_GT(codes, 100);
}

}  // namespace
