// Every editor of the form, each value of its range and around it. The bounds stand here a second
// time, so that none can move unseen.

#include "elements/form/field_editors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

#include "elements/form/form_under_test.h"
#include "text/ids.h"
#include "text/numbers.h"

namespace {

using elements::Field;
using form_test::Form;

const std::string kOutside = "Error: Input data is out of range.\nIt must be ";
const std::string kUnusual =
    "Warning: Input data is out of standard range.\nIt takes normally the value of ";

std::string outside(const std::string& range) {
  return kOutside + "\"" + range + "\"";
}

struct FiguresRow {
  Field field;
  int low;
  int high;
  std::size_t width;  // figures the field is filled to; 0 = as typed, at most 4
  std::vector<std::string> also;
  std::string message;
  int asks_from = -1;
  std::string question = {};
};

const FiguresRow kFigures[] = {
    {Field::kYear, 2000, 2015, 4, {}, outside("1999<YEAR<=2015")},
    {Field::kMonth, 1, 12, 2, {}, outside("01<=MONTH<=12")},
    {Field::kYY, 1, 31, 2, {}, outside("01<=DAY<=31")},
    {Field::kGGExact, 0, 23, 2, {}, outside("00<=TIME<=23")},
    {Field::kgg, 0, 59, 2, {}, outside("00<=Minute<=59")},
    {Field::kLaDeg, 0, 90, 2, {}, outside("00<=Latitude(deg)<=90")},
    {Field::kLaMin, 0, 59, 2, {}, outside("00<=Latitude(min)<=59")},
    {Field::kLoDeg, 0, 180, 3, {}, outside("000<=Longitude(deg)<=180")},
    {Field::kLoMin, 0, 59, 2, {}, outside("00<=Latitude(min)<=59")},
    {Field::kDs, 0, 9, 1, {"/"}, outside("0<=Ship course/3hr<=8,9,/")},
    {Field::kVs, 0, 9, 1, {"/"}, outside("0<=Ship speed<=9,/")},
    {Field::ka, 0, 8, 1, {"/"}, outside("0<=Type of tendency<=8,/")},
    {Field::kdd, 0, 36, 2, {"99", "//"}, outside("0<=Wind dir<=36,99,//")},
    {Field::kApparentDirection, 0, 360, 0, {}, outside("0<=Apparent wind dir<=360")},
    {Field::kHeading, 1, 360, 0, {}, outside("0<Ship heading<=360")},
    {Field::kCourse, 0, 360, 0, {}, outside("0<=Ship course<=360")},
    {Field::kPwPw,
     0,
     29,
     2,
     {"99", "//"},
     outside("00<=Wind wave period<30,99,//"),
     20,
     "Wind wave period<20"},
    {Field::kPwaPwa,
     0,
     29,
     2,
     {"99", "//"},
     outside("00<=Wind wave period<30,99,//"),
     20,
     "Wind wave period<20"},
    {Field::kdw1dw1, 0, 36, 2, {"99", "//"}, outside("01<=Swell dir<=36,99,//,00")},
    {Field::kdw2dw2, 0, 36, 2, {"//"}, outside("01<=Swell dir<=36,//,00")},
    {Field::kPw1Pw1, 0, 29, 2, {"//"}, outside("00<=Swell period<30,//"), 25, "Swell period<25"},
    {Field::kPw2Pw2, 0, 29, 2, {"//"}, outside("00<=Swell period<30,//"), 25, "Swell period<25"},
    {Field::kVV, 90, 99, 2, {"//"}, outside("90<=Visibility<=99,//")},
    {Field::kww, 0, 99, 2, {"//"}, outside("00<=Present weather<=99,//")},
    {Field::kW1, 0, 9, 1, {"/"}, outside("0<=Past weather<=9,/")},
    {Field::kW2, 0, 9, 1, {"/"}, outside("0<=Past weather<=9,/")},
    {Field::kN, 0, 9, 1, {"/"}, outside("0<=Total cloud<=9,/")},
    {Field::kNh, 0, 9, 1, {"/"}, outside("0<=Lowest cloud<=9,/")},
    {Field::kCH, 0, 9, 1, {"/"}, outside("0<=Upper cloud<=9,/")},
    {Field::kCM, 0, 9, 1, {"/"}, outside("0<=Middle cloud<=9,/")},
    {Field::kCL, 0, 9, 1, {"/"}, outside("0<=Lower cloud<=9,/")},
    {Field::kh, 0, 9999, 0, {"/"}, outside("0<=Cloud height<=9999,/")},
    {Field::kIs, 1, 5, 1, {}, outside("1<=Causes<=5")},
    {Field::kEsEs, 0, 99, 2, {}, outside("0<=Thickness<=99")},
    {Field::kRs, 0, 5, 1, {}, outside("0<=Rate<=5")},
    {Field::kci, 1, 9, 1, {"/"}, outside("1<=Concentration<=9,/")},
    {Field::kSi, 1, 9, 1, {"/"}, outside("1<=Stage of development<=9,/")},
    {Field::kbi, 1, 9, 1, {"/"}, outside("1<=Land origin<=9,/")},
    {Field::kDi, 1, 9, 1, {"/"}, outside("1<=Bearing of ice edge<=9,/")},
    {Field::kzi, 1, 9, 1, {"/"}, outside("1<=Trend over 3 hours<=9,/")},
};

// Numbers are tested in every tenth from one below the lowest to one above the highest value.
struct NumberRow {
  Field field;
  int low;   // tenths
  int high;  // tenths
  std::vector<std::string> also;
  std::string message;
  int asks_above = -1;  // tenths
  std::string question = {};
};

const NumberRow kNumbers[] = {
    {Field::kDryBulb, -250, 400, {}, outside("-25<=Air temp<=40")},
    {Field::kAirTemperature, -250, 400, {}, outside("-25<=Air temp<=40")},
    {Field::kDewPoint, -250, 400, {}, outside("-25<=Dew point temp<=40")},
    {Field::kWetBulb, -250, 400, {}, outside("-25<=Wet bulb temp<=40")},
    {Field::kff, 0, 9990, {}, outside("0<=true wind speed<=999"), 800, "Wind speed<=80"},
    {Field::kApparentSpeed, 0, 9990, {}, outside("0<=Apparent wind speed<=999")},
    {Field::kShipSpeed, 0, 999, {}, outside("0<=Ship speed<=99.9")},
    {Field::kTwTwTw, -20, 370, {}, outside("-2<=Sea surface temp(degC)<=37.0")},
    {Field::kppp,
     0,
     250,
     {},
     outside("00.0<=Amount of tendency<=25.0"),
     150,
     "Amount of tendency<=15"},
    {Field::kHwHw, 0, 145, {"//"}, "14.5 >= HW >=0.0 Or //"},
    {Field::kHw1Hw1, 0, 145, {"//"}, "14.5 >= HW >=0.0 Or //"},
    {Field::kHw2Hw2, 0, 145, {"//"}, "14.5 >= HW >=0.0 Or //"},
    {Field::kHwaHwa, 0, 145, {"//"}, "14.5 >= HW >=0.0 Or //"},
};

const char* const kWild[] = {"x",         "1x",   "1 2",   "/ /",      "///",
                             "-",         "+",    ".",     "..",       "1.2.3",
                             "1e1",       "0x1",  "nan",   "inf",      "1,5",
                             "*",         "\xff", "９",    "\xe3\x81", "99999999999999999999",
                             "1\xc2\xa0", "--1",  "1-",    "1/",       "/1",
                             "//1",       "5\t5", "%d%s%n"};

void expect_refused(Form& f, Field field, const std::string& typed, const std::string& message) {
  SCOPED_TRACE(std::string(elements::name_of(field)) + " \"" + typed + "\"");
  const std::string before = f.state(field);
  const std::size_t boxes = f.world.windows.boxes.size();
  f.world.windows.expect_text(message);
  EXPECT_FALSE(f.enter(field, typed));
  EXPECT_EQ(f.state(field), before);
  EXPECT_EQ(f.form->text(field), typed);
  EXPECT_TRUE(f.form->in_error(field));
  ASSERT_EQ(f.world.windows.boxes.size(), boxes + 1);
  EXPECT_EQ(f.world.windows.boxes.back().title, "KAVREL for WIN");
}

void expect_accepted(Field field, const std::string& typed, const std::string& shown,
                     const std::string& question) {
  SCOPED_TRACE(std::string(elements::name_of(field)) + " \"" + typed + "\"");
  if (!question.empty()) {
    Form no;
    const std::string before = no.state(field);
    no.world.windows.expect_text(question, "no");
    EXPECT_FALSE(no.enter(field, typed));
    EXPECT_EQ(no.state(field), before);
  }
  Form f;
  if (!question.empty()) f.world.windows.expect_text(question, "yes");
  EXPECT_TRUE(f.enter(field, typed));
  EXPECT_EQ(f.form->text(field), shown);
  EXPECT_FALSE(f.form->in_error(field));
}

std::string question_text(const std::string& range) {
  return range.empty() ? std::string() : kUnusual + "\"" + range + "\".\nIs it correct ";
}

std::string padded(int value, std::size_t width) {
  return text::format_int(value, static_cast<int>(width), '0');
}

TEST(FieldEditors, EveryFieldHasOneRowHereAndThere) {
  std::set<Field> here = {Field::kGG, Field::kReading, Field::kPPPP, Field::kHumidity};
  for (const FiguresRow& row : kFigures) EXPECT_TRUE(here.insert(row.field).second);
  for (const NumberRow& row : kNumbers) EXPECT_TRUE(here.insert(row.field).second);
  EXPECT_EQ(here.size(), elements::kFields);
  EXPECT_EQ(elements::editor_rows().size(), elements::kFields);
}

TEST(FieldEditors, FiguresAreTakenInTheirRangeAndFilledWithZeros) {
  for (const FiguresRow& row : kFigures) {
    const std::size_t longest = row.width == 0 ? 4 : row.width;
    for (int value = 0; value <= 364; ++value) {
      for (const std::string& typed :
           {padded(value, 1), padded(value, row.width == 0 ? 3 : row.width)}) {
        // Long ranges are walked at their ends.
        const auto near = [&](int place) { return std::abs(value - place) <= 3; };
        const bool far = value > 38 && !near(row.low) && !near(row.high) && !near(90) && !near(100);
        if (far || typed.size() > longest + 1) continue;
        const bool listed = std::find(row.also.begin(), row.also.end(), typed) != row.also.end();
        const bool in_range = value >= row.low && value <= row.high && typed.size() <= longest;
        if (!listed && !in_range) {
          Form f;
          expect_refused(f, row.field, typed, row.message);
          continue;
        }
        const bool asks = !listed && row.asks_from >= 0 && value >= row.asks_from;
        expect_accepted(row.field, typed, row.width == 0 ? typed : padded(value, row.width),
                        asks ? question_text(row.question) : std::string());
      }
    }
  }
}

TEST(FieldEditors, LargeFiguresEndWhereTheirRangeEnds) {
  for (const auto& [field, largest] : {std::pair{Field::kYear, 2015}, {Field::kh, 9999}}) {
    for (const int value : {1998, 1999, 2000, 2001, 2014, 2015, 2016, 2017, 9998, 9999}) {
      const bool taken = field == Field::kh || (value > 1999 && value <= largest);
      if (taken) {
        expect_accepted(field, padded(value, 4), padded(value, 4), {});
      } else {
        Form f;
        expect_refused(f, field, padded(value, 4), outside("1999<YEAR<=2015"));
      }
    }
  }
  Form f;
  expect_refused(f, Field::kh, "10000", outside("0<=Cloud height<=9999,/"));
}

TEST(FieldEditors, SolidiAreTakenWhereTheListSaysSo) {
  const auto check = [](const auto& row) {
    for (const std::string typed : {"/", "//", "99"}) {
      const bool listed = std::find(row.also.begin(), row.also.end(), typed) != row.also.end();
      if (listed) expect_accepted(row.field, typed, typed, {});
      if (listed || typed == "99") continue;
      Form f;
      expect_refused(f, row.field, typed, row.message);
    }
  };
  for (const FiguresRow& row : kFigures) check(row);
  for (const NumberRow& row : kNumbers) check(row);
}

TEST(FieldEditors, NumbersAreTakenInEveryTenthOfTheirRange) {
  for (const NumberRow& row : kNumbers) {
    for (int tenths = row.low - 12; tenths <= row.high + 12; ++tenths) {
      // A long range is walked at its ends and where it asks.
      const auto near = [&](int place) { return std::abs(tenths - place) <= 15; };
      if (!near(row.low) && !near(row.high) && !near(0) && !near(row.asks_above)) continue;
      const std::string typed = text::format_fixed(tenths / 10.0, 1);
      if (tenths < row.low || tenths > row.high) {
        Form f;
        expect_refused(f, row.field, typed, row.message);
        continue;
      }
      std::string shown = typed;
      if (row.field == Field::kff)
        shown = padded(static_cast<int>(std::floor(tenths / 10.0 + 0.5)), 2);
      if (row.field == Field::kppp) shown = text::format_fixed(tenths / 10.0, 1, 4, '0');
      const bool asks = row.asks_above >= 0 && tenths > row.asks_above;
      expect_accepted(row.field, typed, shown, asks ? question_text(row.question) : std::string());
    }
  }
}

TEST(FieldEditors, HoursAreTheEightOfTheReports) {
  const std::set<std::string> taken = {"00", "03", "06", "09", "12", "15",
                                       "18", "21", "0",  "3",  "6",  "9"};
  for (int hour = 0; hour <= 30; ++hour) {
    for (const std::string& typed : {padded(hour, 1), padded(hour, 2), padded(hour, 3)}) {
      if (taken.contains(typed)) {
        expect_accepted(Field::kGG, typed, padded(hour, 2), {});
      } else {
        Form f;
        // The message's range is wider than what is taken, so the hours are named below it.
        expect_refused(f, Field::kGG, typed,
                       outside("00<=TIME<=23") + "\nGG IN [00,03,06,09,12,15,18,21]");
      }
    }
  }
}

// Minus zero is zero, also where it only comes of the rounding.
TEST(FieldEditors, EverySignedNumberTakesMinusZeroAsZero) {
  int seen = 0;
  for (const elements::EditorRow& row : elements::editor_rows()) {
    if (row.accepts != elements::Accepts::kNumber || row.low >= 0) continue;
    ++seen;
    for (const char* const typed : {"-0", "-0.0", "-.0", "-0.04", "+0", "0"}) {
      Form f;
      const bool psychrometer = row.field == Field::kDryBulb || row.field == Field::kWetBulb;
      f.ship.dew_point_method = psychrometer ? DewPointMethod::kComputed : DewPointMethod::kDirect;
      f.rebuild();
      Form zero;
      zero.ship = f.ship;
      zero.rebuild();
      ASSERT_TRUE(f.enter(row.field, typed));
      ASSERT_TRUE(zero.enter(row.field, "0.0"));
      EXPECT_EQ(f.form->text(row.field), "0.0") << typed;
      EXPECT_EQ(f.state(row.field), zero.state(row.field)) << typed;
    }
  }
  EXPECT_EQ(seen, 5);
}

TEST(FieldEditors, HumidityIsAPercentageInTheShipsUnit) {
  const std::string message = outside("0<=Relative Humidity(%)<=100");
  struct Row {
    double unit;
    const char* typed;
    const char* shown;  // nullptr: refused
    const char* logbook;
  };
  const Row rows[] = {
      {1.0, "0", "00", "0000"},        {1.0, "5", "05", "0050"},      {1.0, "100", "100", "1000"},
      {1.0, "101", nullptr, ""},       {1.0, "-1", nullptr, ""},      {1.0, "53.0", "53", "0530"},
      {1.0, "53.5", nullptr, ""},      {0.1, "53.4", "53.4", "0534"}, {0.1, "0", "00.0", "0000"},
      {0.1, "100.0", "100.0", "1000"}, {0.1, "100.1", nullptr, ""},   {0.1, "5", "05.0", "0050"},
      {0.1, "/", nullptr, ""},
  };
  for (const Row& row : rows) {
    Form f;
    f.ship.humidity_method = HumidityMethod::kDirect;
    f.ship.humidity_unit = row.unit;
    f.rebuild();
    SCOPED_TRACE(row.typed);
    if (row.shown == nullptr) {
      expect_refused(f, Field::kHumidity, row.typed, message);
      continue;
    }
    EXPECT_TRUE(f.enter(Field::kHumidity, row.typed));
    EXPECT_EQ(f.form->text(Field::kHumidity), row.shown);
    EXPECT_EQ(f.record().LogExtra, row.logbook);
  }
}

TEST(FieldEditors, AReadingIsRefusedByItsFormOrByThePressureItGives) {
  const std::string form_message = outside("870.0 <= Air pressure at sea level <= 1069.9");
  const std::string range_message = outside("870 <= Air pressure at sea level <= 1070");
  const std::string question = question_text("930 <= Air pressure at sea level <= 1050");
  for (const char* typed : {"101325", "1013.", ".5", "10x3", "-1013", "1 013", "/"}) {
    Form f;
    expect_refused(f, Field::kReading, typed, form_message);
  }
  for (const char* typed : {"869.9", "1070.0", "0", "9999.9"}) {
    Form f;
    expect_refused(f, Field::kReading, typed, range_message);
  }
  for (const auto& [typed, shown] : {std::pair{"870.0", "0870.0"},
                                     {"929.9", "0929.9"},
                                     {"1050.1", "1050.1"},
                                     {"1069.9", "1069.9"}})
    expect_accepted(Field::kReading, typed, shown, question);
  for (const auto& [typed, shown] :
       {std::pair{"930", "0930.0"}, {"1050", "1050.0"}, {"1013.29", "1013.2"}})
    expect_accepted(Field::kReading, typed, shown, {});
}

TEST(FieldEditors, FourFiguresInThePressureAtSeaLevelAreItsCode) {
  const std::string range_message = outside("870 <= Air pressure at sea level <= 1070");
  const std::string question = question_text("930 <= Air pressure at sea level <= 1050");
  for (int v = 0; v <= 9999; v += (v % 100 == 2 ? 97 : 1)) {
    const std::string typed = padded(v, 4);
    if (v >= 701 && v <= 8699) {
      Form f;
      expect_refused(f, Field::kPPPP, typed, range_message);
      continue;
    }
    const bool asks = (v >= 501 && v <= 700) || (v >= 8700 && v <= 9299);
    const int tenths = v < 5000 ? v + 10000 : v;
    expect_accepted(Field::kPPPP, typed, text::format_fixed(tenths / 10.0, 1, 6, '0'),
                    asks ? question : std::string());
  }
  for (const char* typed : {"869.9", "1070.0", "10132", "5"}) {
    Form f;
    expect_refused(f, Field::kPPPP, typed, range_message);
  }
  expect_accepted(Field::kPPPP, "998", "0998.0", {});
  expect_accepted(Field::kPPPP, "1013.0", "1013.0", {});
}

TEST(FieldEditors, WildTextsAreRefusedInBothLanguagesAndChangeNothing) {
  for (std::size_t i = 0; i < elements::kFields; ++i) {
    const auto field = static_cast<Field>(i);
    for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
      for (const std::string typed : kWild) {
        SCOPED_TRACE(std::string(elements::name_of(field)) + " \"" + typed + "\"");
        Form f;
        f.world.texts.language = language;
        ASSERT_TRUE(f.enter(Field::kww, "61"));
        if (field == Field::kww) continue;
        const std::string before = f.state(field);
        const elements::EditorRow& row = elements::editor_of(field);
        // Any number of figures, cut behind its first decimal, is a reading of no possible
        // pressure.
        const bool is_reading =
            field == Field::kReading && (typed.starts_with("9999") || typed == "1.2.3");
        f.world.windows.expect(is_reading    ? text::id::kSeaLevelPressureRange
                               : row.message ? row.message
                                             : row.check_text);
        EXPECT_FALSE(f.enter(field, typed));
        EXPECT_EQ(f.state(field), before);
        ASSERT_EQ(f.world.windows.boxes.size(), 1U);
        const std::string& shown = f.world.windows.boxes.back().text;
        EXPECT_FALSE(shown.empty());
        EXPECT_EQ(shown.find("/*E*/"), std::string::npos);
        EXPECT_EQ(shown.find("%d"), std::string::npos);
        if (row.message) {
          EXPECT_EQ(shown.starts_with("Error"), language == text::Language::kEnglish);
        }
      }
    }
  }
}

TEST(FieldEditors, BlanksAroundATextAreTakenOffAndABlankInsideRefuses) {
  for (const FiguresRow& row : kFigures) {
    const std::string value = padded(row.low, 1);
    expect_accepted(row.field, "  " + value + " ",
                    row.width == 0 ? value : padded(row.low, row.width), {});
    Form f;
    expect_refused(f, row.field, value + " " + value, row.message);
  }
}

}  // namespace
