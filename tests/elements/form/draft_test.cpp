// An observation that was not saved, to a text and back: the form that takes it over is the form
// that was written, and goes on as that one would have gone on.

#include "elements/form/draft.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <string>

#include "elements/form/random_entries.h"
#include "fakes/rounds.h"
#include "text/strings.h"

namespace {

using elements::Draft;
using elements::DraftFault;
using elements::Field;
using form_test::Form;
using form_test::RandomEntries;

std::string encoded(const Form& form) {
  return elements::encode_draft(
      {form.ship.call_sign, elements::ship_mark(form.ship), form.form->entries(), {}, {}});
}

/// All that can be seen of a form, and all that it holds.
std::string everything(const Form& form) {
  std::string result = encoded(form) + form.state(Field::kYear) + form.form->text(Field::kYear);
  for (std::size_t i = 0; i < elements::kFields; ++i) {
    const auto field = static_cast<Field>(i);
    result += form.form->entered(field) + (form.form->in_error(field) ? "!" : ";");
  }
  for (const std::string& remark : form.remarks()) result += remark;
  return result + form.form->report().text +
         observation::missing_list(form.form->report().missing, text::Language::kEnglish);
}

/// Another start of the program on the same ship takes the text over.
std::unique_ptr<Form> taken_over(const Form& from, const std::string& text) {
  auto form = std::make_unique<Form>();
  form->ship = from.ship;
  form->items = from.items;
  form->rebuild();
  form->suppressed = from.suppressed;
  const elements::DraftRead read = elements::decode_draft(text);
  EXPECT_EQ(read.fault, DraftFault::kNone) << text;
  form->form->load(read.draft.form);
  form->form->items_changed();
  return form;
}

TEST(Draft, OfAnyFormIsThatFormAndGoesOnLikeIt) {
  const auto forms = static_cast<unsigned>(fakes::rounds(60));
  for (unsigned seed = 1; seed <= forms; ++seed) {
    SCOPED_TRACE(seed);
    Form written;
    RandomEntries entries(seed);
    entries.set_up(written);
    for (int i = entries.pick(200); i > 0; --i) entries.step(written);
    // The last text may not have been left yet.
    if (entries.pick(2) == 0) written.form->type(Field::kVV, " 9%\n");
    const std::string text = encoded(written);
    const std::unique_ptr<Form> read = taken_over(written, text);
    ASSERT_EQ(everything(*read), everything(written));
    RandomEntries on(seed + 1000);
    RandomEntries same_on(seed + 1000);
    for (int i = 0; i < 60; ++i) {
      on.step(written);
      same_on.step(*read);
      ASSERT_EQ(everything(*read), everything(written)) << "step " << i << "\n" << text;
    }
  }
}

TEST(Draft, HoldsWhatTheRecordDoesNot) {
  Form form;
  form.suppressed = true;
  form.ship.wind_input_method = WindInputMethod::kApparentWind;
  EXPECT_TRUE(form.enter(Field::kReading, "1010.8"));
  EXPECT_TRUE(form.enter(Field::kDryBulb, "-1.0"));
  EXPECT_TRUE(form.enter(Field::kWetBulb, "-2.0"));
  form.form->toggle_freeze();
  EXPECT_TRUE(form.enter(Field::kApparentSpeed, "12.5"));
  EXPECT_TRUE(form.enter(Field::kVV, "97"));
  form.form->choose_hemispheres(0, -1);
  EXPECT_FALSE(form.enter(Field::kN, "x"));
  form.items.set_observed(ObservationItem::VV, false);
  form.form->items_changed();
  const std::string text = encoded(form);
  for (const char* const line :
       {"draft=1\n", "\ncall_sign=JXKV\n", "\ntext.reading=1010.8\n", "\ntext.dry_bulb=-1.0\n",
        "\ntext.wet_bulb=-2.0\n", "\ntext.apparent_speed=12.5\n", "\naside.VV=97\n", "\ntext.N=x\n",
        "\ntyped.N=\n", "\nwrong.N=1\n", "\nnorth_south=0\n", "\nmodified=1\n"})
    EXPECT_NE(text.find(line), std::string::npos) << line << "is not in\n" << text;
  EXPECT_EQ(text.find("\neast_west="), std::string::npos);
  const auto read = taken_over(form, text);
  EXPECT_EQ(read->form->text(Field::kReading), "1010.8");
  EXPECT_EQ(read->form->entries().wet_bulb, elements::WetBulbState::kIced);
  EXPECT_EQ(read->form->entries().north_south, 0);
  EXPECT_EQ(read->form->text(Field::kN), "x");
  EXPECT_TRUE(read->form->in_error(Field::kN));
  EXPECT_TRUE(read->form->modified());
  read->items.set_observed(ObservationItem::VV, true);
  read->form->items_changed();
  EXPECT_EQ(read->form->text(Field::kVV), "97") << "an entry put aside comes back";
}

TEST(Draft, KeepsAnyBytesOfATextInReadableLines) {
  const std::string texts[] = {" ",
                               " a b ",
                               "100%",
                               "%41",
                               "a\nb=c\r",
                               "\t",
                               "\xff\xfe",
                               "ＡＢ，観測",
                               "\xe3\x81",
                               "=",
                               std::string("a\0b", 3),
                               "\xed\xa0\x80",
                               "\xf4\x90\x80\x80",
                               "😀",
                               "\x7f",
                               "\xc0\xaf"};
  for (const std::string& typed : texts) {
    Draft draft;
    draft.form.fields[0].text = typed;
    draft.form.fields[1].before_typing = typed;
    draft.typing_in = draft.group_text = typed;
    const std::string text = elements::encode_draft(draft);
    for (const char c : text)
      EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= ' ') << text;
    const elements::DraftRead read = elements::decode_draft(text);
    ASSERT_EQ(read.fault, DraftFault::kNone) << text;
    EXPECT_EQ(read.draft.form.fields[0].text, typed);
    EXPECT_EQ(read.draft.form.fields[1].before_typing, typed);
    EXPECT_EQ(read.draft.typing_in, typed);
    EXPECT_EQ(read.draft.group_text, typed);
  }
}

std::string sample() {
  Form form;
  EXPECT_TRUE(form.enter(Field::kYear, "2014"));
  EXPECT_TRUE(form.enter(Field::kReading, "1010.8"));
  return encoded(form);
}

TEST(Draft, WithAnyByteChangedTakenOutOrPutInIsDamaged) {
  const std::string whole = sample();
  for (std::size_t i = 0; i < whole.size(); ++i) {
    for (const char other : {'0', '1', '\n', '\0', '=', '\xff'}) {
      std::string text = whole;
      if (text[i] != other) {
        text[i] = other;
        EXPECT_EQ(elements::decode_draft(text).fault, DraftFault::kDamaged) << i;
      }
      text = whole;
      text.insert(i, 1, other);
      EXPECT_EQ(elements::decode_draft(text).fault, DraftFault::kDamaged) << i;
    }
    EXPECT_EQ(elements::decode_draft(whole.substr(0, i)).fault, DraftFault::kDamaged) << i;
    EXPECT_EQ(elements::decode_draft(whole.substr(i + 1)).fault, DraftFault::kDamaged) << i;
  }
  EXPECT_EQ(elements::decode_draft(whole + "\n").fault, DraftFault::kDamaged);
  EXPECT_EQ(elements::decode_draft(text::replace_all(whole, "\n", "\r\n")).fault,
            DraftFault::kDamaged);
  EXPECT_EQ(elements::decode_draft(whole).fault, DraftFault::kNone);
}

// A checksum of its own makes a text of the right form, but not a draft.
std::string with_checksum(const std::string& body) {
  std::uint32_t rest = 0xFFFFFFFFU;
  for (const char c : body) {
    rest ^= static_cast<unsigned char>(c);
    for (int i = 0; i < 8; ++i) rest = (rest >> 1U) ^ (0xEDB88320U & (0U - (rest & 1U)));
  }
  char figures[9];
  std::snprintf(figures, sizeof figures, "%08X", ~rest);
  return body + "check=" + figures + "\n";
}

TEST(Draft, WithTheRightChecksumIsStillTestedLineByLine) {
  EXPECT_EQ(with_checksum("123456789"), "123456789check=CBF43926\n") << "the sum that all agree on";
  const std::string start = "draft=1\ncall_sign=JXKV\n";
  EXPECT_EQ(elements::decode_draft(with_checksum(start)).fault, DraftFault::kNone);
  for (const char* const line : {"x\n",
                                 "\n",
                                 "unknown=1\n",
                                 "record.YY=1*\n",
                                 "record.YY=%FF\n",
                                 "record.YY=%4\n",
                                 "record.YY=%31\n",
                                 "record.YY=\n",
                                 "north_south=2\n",
                                 "north_south=-1\n",
                                 "wet_bulb=7\n",
                                 "modified=0\n",
                                 "modified=1\nmodified=1\n",
                                 "modified=1\nrecord.YY=15\n",
                                 "modified=1",
                                 "dew_point_method=01\n",
                                 "sea_temperature_method=9\n",
                                 "call_sign=JXKV\n",
                                 "text.YY= 1\n",
                                 "aside.VV=9*\n",
                                 "aside.ppp=1.4\n",
                                 "aside.PwaPwa=%FF\n",
                                 "text.VV=9*\n"})
    EXPECT_EQ(elements::decode_draft(with_checksum(start + line)).fault, DraftFault::kDamaged)
        << line;
}

TEST(Draft, OfACorrectionNamesItsFileAndWhatFoundNoPlace) {
  using observation::Unplaced;
  Form form;
  form.form->load_record(form.record());
  ASSERT_TRUE(form.enter(Field::kVV, "97"));
  elements::Correction correction{"クラ 1.tlx", "14111512.tlx", {}};
  for (int why = 0; why < observation::kUnplacedReasons; ++why)
    correction.unplaced.push_back({"word\xff\r\n%" + std::to_string(why), Unplaced(why)});
  const std::string text = elements::encode_draft({form.ship.call_sign,
                                                   elements::ship_mark(form.ship),
                                                   form.form->entries(),
                                                   {},
                                                   {},
                                                   correction});
  EXPECT_TRUE(text.starts_with("draft=2\n")) << text;
  const elements::DraftRead read = elements::decode_draft(text);
  ASSERT_EQ(read.fault, DraftFault::kNone) << text;
  EXPECT_EQ(read.draft.correction, correction);
  EXPECT_TRUE(read.draft.form.dew_point_as_sent);
  // Another reason than there are, and a list with a gap.
  for (const auto& [line, other] :
       {std::pair{"why.9=9\n", "why.9=10\n"}, {"unplaced.3=", "unplaced.30="}}) {
    std::string damaged = text.substr(0, text.rfind("check="));
    damaged.replace(damaged.find(line), std::string_view(line).size(), other);
    EXPECT_EQ(elements::decode_draft(with_checksum(damaged)).fault, DraftFault::kDamaged) << other;
  }
}

// A program that knows of corrections, and of none with VOSClim values, reads every other one.
TEST(Draft, OfACorrectionWithVosclimValuesKeepsThemAsTheyWereSent) {
  for (const bool registered : {false, true}) {
    Form form;
    form.ship.vosclim = registered;
    form.ship.wind_input_method = WindInputMethod::kApparentWind;
    Struct_Weather record = form.record();
    record.VosClim3 = "000";  // by a program that says so of a ship that lies
    record.VosClim4 = "12";
    form.form->load_record(record);
    const std::string text = encoded(form);
    EXPECT_TRUE(text.starts_with("draft=3\n")) << text;
    const elements::DraftRead read = elements::decode_draft(text);
    ASSERT_EQ(read.fault, DraftFault::kNone) << text;
    elements::ObservationForm loaded(form.ship, form.items, form.world.clock);
    loaded.load(read.draft.form);
    EXPECT_EQ(loaded.text(Field::kShipSpeed), registered ? "12.0" : "");
    loaded.ship_changed();
    loaded.put(Field::kVV, "97");
    EXPECT_EQ(loaded.record().VosClim3 + loaded.record().VosClim4, "00012");
    loaded.put(Field::kHeading, "90");
    EXPECT_EQ(loaded.record().VosClim3 + loaded.record().VosClim4, registered ? "09012" : "");
  }
}

// A program that knows of no corrections reads every other draft.
TEST(Draft, WithoutACorrectionIsOfTheFirstVersion) {
  Form form;
  EXPECT_TRUE(encoded(form).starts_with("draft=1\n"));
  EXPECT_EQ(encoded(form).find("correct"), std::string::npos);
}

TEST(Draft, OfALaterVersionIsNamedSo) {
  EXPECT_EQ(elements::decode_draft(with_checksum("draft=4\nanything at all\n")).fault,
            DraftFault::kLaterVersion);
  for (const char* const version : {"0", "-1", "", "x", "01", "1.0"})
    EXPECT_EQ(elements::decode_draft(with_checksum(std::string("draft=") + version + "\n")).fault,
              DraftFault::kDamaged)
        << version;
}

TEST(Draft, MarkOfTheShipChangesWithWhatTheFormComputesWith) {
  const ShipFixedData ship;
  const std::string mark = elements::ship_mark(ship);
  const std::function<void(ShipFixedData&)> changes[] = {
      [](ShipFixedData& s) { s.card.type = CardType::kTotalCorrection; },
      [](ShipFixedData& s) { s.card.loading_state = LoadingState::kInBallast; },
      [](ShipFixedData& s) { s.card.total_correction = "+0.1"; },
      [](ShipFixedData& s) { s.card.instrumental_correction = "-0.3"; },
      [](ShipFixedData& s) { s.card.height_full_load = "18"; },
      [](ShipFixedData& s) { s.card.total_correction_full_load = "+2.1"; },
      [](ShipFixedData& s) { s.card.height_ballast = "24"; },
      [](ShipFixedData& s) { s.card.total_correction_ballast = "+2.8"; },
      [](ShipFixedData& s) { s.wind_input_method = WindInputMethod::kApparentWind; },
      [](ShipFixedData& s) { s.wind_speed_method = WindSpeedMethod::kAnemometer; },
      [](ShipFixedData& s) { s.sea_temperature_method = SeaTemperatureMethod::kBucket; },
      [](ShipFixedData& s) { s.dew_point_method = DewPointMethod::kComputed; },
      [](ShipFixedData& s) { s.wave_recorder = true; },
      [](ShipFixedData& s) { s.vosclim = true; },
      [](ShipFixedData& s) { s.humidity_method = HumidityMethod::kComputed; },
      [](ShipFixedData& s) { s.humidity_unit = 1.0; },
      [](ShipFixedData& s) { s.imo_number = "9074729"; },
      [](ShipFixedData& s) { s.call_sign = "JXKV"; },
  };
  for (const auto& change : changes) {
    ShipFixedData other = ship;
    change(other);
    EXPECT_NE(elements::ship_mark(other), mark) << &change - changes;
  }
  ShipFixedData same = ship;
  same.card.height_full_load = "000";
  same.card.check_port = "YOKOHAMA";
  EXPECT_EQ(elements::ship_mark(same), mark) << "as the file may write it";
}

// The officer reads why a group is refused, or thinks about a question, when the program is killed:
// it must not have kept what nobody accepted.
TEST(Draft, KeepsNothingOfAGroupThatIsNotAccepted) {
  using Kind = elements::Answer::Kind;
  Form form;
  EXPECT_TRUE(form.enter(Field::kN, "5"));
  EXPECT_TRUE(form.enter(Field::kVV, "97"));
  const std::string before = encoded(form);
  for (const auto& [typed, answered] :
       {std::pair{"74099", Kind::kRefused}, {"72799", Kind::kAsks}}) {
    EXPECT_EQ(form.form->leave(observation::Group::kNddff, typed).kind, answered) << typed;
    EXPECT_EQ(encoded(form), before) << typed;
  }
  EXPECT_TRUE(form.form->leave(observation::Group::kNddff, "72799", 1).accepted());
  EXPECT_NE(encoded(form).find("record.N=7"), std::string::npos);
}

}  // namespace
