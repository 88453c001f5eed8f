#include "elements/form/cross_rules.h"

#include <gtest/gtest.h>

#include <set>

#include "elements/form/field_codes.h"
#include "elements/form/form_under_test.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using elements::Field;
using form_test::Form;
using W = Struct_Weather;

struct Entry {
  std::string W::*member;
  const char* figures;
};

struct Row {
  std::vector<Entry> record;
  text::Id broken;  // 0 for none
};

const Row kRecords[] = {
    {{{&W::a, "4"}, {&W::ppp, "000"}}, 0},
    {{{&W::a, "4"}, {&W::ppp, "001"}}, id::kSteadyWithAmount},
    {{{&W::a, "4"}}, 0},
    {{{&W::a, "4"}, {&W::ppp, "///"}}, 0},
    {{{&W::a, "3"}, {&W::ppp, "001"}}, 0},
    {{{&W::a, "5"}, {&W::ppp, "001"}}, 0},
    {{{&W::N, "5"}, {&W::Nh, "6"}}, id::kLowestAboveTotal},
    {{{&W::N, "5"}, {&W::Nh, "5"}}, 0},
    {{{&W::N, "/"}, {&W::Nh, "6"}}, 0},
    {{{&W::N, "5"}, {&W::Nh, "/"}}, 0},
    {{{&W::N, "0"}, {&W::Nh, "1"}}, id::kLowestAboveTotal},
    {{{&W::N, "1"}, {&W::CL, "0"}, {&W::CM, "0"}, {&W::CH, "0"}}, id::kCloudTypesAllZero},
    {{{&W::N, "9"}, {&W::CL, "0"}, {&W::CM, "0"}, {&W::CH, "0"}}, id::kCloudTypesAllZero},
    {{{&W::N, "0"}, {&W::CL, "0"}, {&W::CM, "0"}, {&W::CH, "0"}}, 0},
    {{{&W::N, "/"}, {&W::CL, "0"}, {&W::CM, "0"}, {&W::CH, "0"}}, 0},
    {{{&W::N, "1"}, {&W::CL, "0"}, {&W::CM, "0"}, {&W::CH, "1"}}, 0},
    {{{&W::N, "1"}, {&W::CL, "0"}, {&W::CM, "0"}, {&W::CH, "/"}}, 0},
    {{{&W::N, "1"}, {&W::CL, "0"}, {&W::CM, "0"}}, 0},
    {{{&W::Nh, "0"}, {&W::CL, "1"}}, id::kNoLowestCloudWithTypes},
    {{{&W::Nh, "0"}, {&W::CM, "9"}}, id::kNoLowestCloudWithTypes},
    {{{&W::Nh, "0"}, {&W::CL, "/"}, {&W::CM, "/"}}, 0},
    {{{&W::Nh, "0"}, {&W::CH, "5"}}, 0},
    {{{&W::Nh, "0"}, {&W::CL, "0"}, {&W::CM, "0"}}, 0},
    {{{&W::Nh, "1"}, {&W::CL, "0"}, {&W::CM, "0"}}, id::kLowestCloudWithoutTypes},
    {{{&W::Nh, "/"}, {&W::CL, "0"}, {&W::CM, "0"}}, 0},
    {{{&W::Nh, "1"}, {&W::CL, "0"}, {&W::CM, "1"}}, 0},
    {{{&W::Nh, "1"}, {&W::CL, "1"}, {&W::CM, "0"}}, 0},
    {{{&W::dd, "00"}, {&W::ff, "00"}}, 0},
    {{{&W::dd, "00"}, {&W::ff, "01"}}, id::kCalmDirectionWithSpeed},
    {{{&W::dd, "00"}, {&W::ff, "99"}, {&W::fff, "105"}}, id::kCalmDirectionWithSpeed},
    {{{&W::dd, "18"}, {&W::ff, "00"}}, id::kDirectionWithoutSpeed},
    {{{&W::dd, "99"}, {&W::ff, "00"}}, id::kDirectionWithoutSpeed},
    {{{&W::dd, "18"}, {&W::ff, "01"}}, 0},
    {{{&W::dd, "//"}, {&W::ff, "00"}}, 0},
    {{{&W::dd, "18"}, {&W::ff, "//"}}, 0},
    {{{&W::dd, "18"}}, 0},
    {{{&W::ff, "00"}}, 0},
    {{{&W::SnT, "0"}, {&W::TTT, "100"}, {&W::SnTd, "0"}, {&W::TdTdTd, "101"}},
     id::kDewPointAboveAir},
    {{{&W::SnT, "0"}, {&W::TTT, "100"}, {&W::SnTd, "0"}, {&W::TdTdTd, "100"}}, 0},
    {{{&W::SnT, "1"}, {&W::TTT, "018"}, {&W::SnTd, "1"}, {&W::TdTdTd, "017"}},
     id::kDewPointAboveAir},
    {{{&W::SnT, "1"}, {&W::TTT, "018"}, {&W::SnTd, "1"}, {&W::TdTdTd, "019"}}, 0},
    {{{&W::SnTd, "0"}, {&W::TdTdTd, "101"}}, 0},
    {{{&W::SnT, "0"}, {&W::TTT, "100"}, {&W::Sw, "0"}, {&W::TbTbTb, "101"}}, id::kWetBulbAboveAir},
    {{{&W::SnT, "0"}, {&W::TTT, "100"}, {&W::Sw, "0"}, {&W::TbTbTb, "100"}}, 0},
    {{{&W::SnT, "1"}, {&W::TTT, "018"}, {&W::Sw, "2"}, {&W::TbTbTb, "017"}}, id::kWetBulbAboveAir},
    {{{&W::SnT, "1"}, {&W::TTT, "018"}, {&W::Sw, "2"}, {&W::TbTbTb, "018"}}, 0},
    {{{&W::SnT, "1"}, {&W::TTT, "001"}, {&W::Sw, "2"}, {&W::TbTbTb, "000"}}, id::kWetBulbAboveAir},
    {{{&W::PwPw, "00"}, {&W::HwHw, "01"}}, id::kPeriodNeedsHeight},
    {{{&W::PwPw, "00"}, {&W::HwHw, "00"}}, 0},
    {{{&W::PwPw, "00"}, {&W::HwHw, "//"}}, 0},
    {{{&W::PwPw, "01"}, {&W::HwHw, "01"}}, 0},
    {{{&W::PwPw, "//"}, {&W::HwHw, "01"}}, 0},
    {{{&W::Pw1Pw1, "00"}, {&W::Hw1Hw1, "01"}}, id::kPeriodNeedsHeight},
    {{{&W::Pw1Pw1, "00"}, {&W::Hw1Hw1, "00"}}, 0},
    {{{&W::Pw1Pw1, "00"}, {&W::Hw1Hw1, "//"}}, 0},
    {{{&W::Pw2Pw2, "00"}, {&W::Hw2Hw2, "01"}}, id::kPeriodNeedsHeight},
    {{{&W::Pw2Pw2, "00"}, {&W::Hw2Hw2, "00"}}, 0},
    {{{&W::PwaPwa, "00"}, {&W::HwaHwa, "01"}}, id::kPeriodNeedsHeight},
    {{{&W::PwaPwa, "00"}, {&W::HwaHwa, "00"}}, 0},
    {{{&W::Pw1Pw1, "00"}, {&W::Hw2Hw2, "01"}}, 0},
    {{{&W::GGExact, "11"}}, id::kHalfAnExactTime},
    {{{&W::gg, "50"}}, id::kHalfAnExactTime},
    {{{&W::GGExact, "11"}, {&W::gg, "50"}}, 0},
};

TEST(CrossRules, EachRuleIsBrokenByItsRecordsAndByNoOthers) {
  std::set<const elements::CrossRule*> seen;
  for (const Row& row : kRecords) {
    Form f;
    Struct_Weather record = f.record();
    std::string figures;
    for (const Entry& entry : row.record) {
      record.*entry.member = entry.figures;
      figures += std::string(entry.figures) + " ";
    }
    const auto broken = elements::broken_rules(record);
    if (row.broken == 0) {
      EXPECT_TRUE(broken.empty()) << figures;
      continue;
    }
    ASSERT_EQ(broken.size(), 1U) << figures;
    EXPECT_EQ(broken.front()->message, row.broken) << figures;
    seen.insert(broken.front());
  }
  EXPECT_EQ(seen.size(), elements::cross_rules().size()) << "a rule has no record that breaks it";
}

// Both orders of typing: the first entry is right alone, the second one is refused with the rule's
// message, in the language of the moment, and the form stays as it was.
struct Typed {
  std::vector<std::pair<Field, const char*>> first;
  Field field;
  const char* text;
  text::Id message;
};

const Typed kTyped[] = {
    {{{Field::ka, "4"}}, Field::kppp, "0.1", id::kSteadyWithAmount},
    {{{Field::kppp, "0.1"}}, Field::ka, "4", id::kSteadyWithAmount},
    {{{Field::kN, "5"}}, Field::kNh, "6", id::kLowestAboveTotal},
    {{{Field::kNh, "6"}}, Field::kN, "5", id::kLowestAboveTotal},
    {{{Field::kN, "1"}, {Field::kCH, "0"}, {Field::kCM, "0"}},
     Field::kCL,
     "0",
     id::kCloudTypesAllZero},
    {{{Field::kN, "1"}, {Field::kCL, "0"}, {Field::kCM, "0"}},
     Field::kCH,
     "0",
     id::kCloudTypesAllZero},
    {{{Field::kCH, "0"}, {Field::kCM, "0"}, {Field::kCL, "0"}},
     Field::kN,
     "1",
     id::kCloudTypesAllZero},
    {{{Field::kN, "1"}, {Field::kCH, "0"}, {Field::kCL, "0"}},
     Field::kCM,
     "0",
     id::kCloudTypesAllZero},
    {{{Field::kCL, "5"}}, Field::kNh, "0", id::kNoLowestCloudWithTypes},
    {{{Field::kNh, "0"}}, Field::kCL, "5", id::kNoLowestCloudWithTypes},
    {{{Field::kNh, "0"}}, Field::kCM, "5", id::kNoLowestCloudWithTypes},
    {{{Field::kNh, "3"}, {Field::kCL, "0"}}, Field::kCM, "0", id::kLowestCloudWithoutTypes},
    {{{Field::kNh, "3"}, {Field::kCM, "0"}}, Field::kCL, "0", id::kLowestCloudWithoutTypes},
    {{{Field::kCL, "0"}, {Field::kCM, "0"}}, Field::kNh, "3", id::kLowestCloudWithoutTypes},
    {{{Field::kdd, "00"}}, Field::kff, "0.5", id::kCalmDirectionWithSpeed},
    {{{Field::kdd, "18"}}, Field::kff, "0", id::kDirectionWithoutSpeed},
    {{{Field::kdd, "18"}}, Field::kff, "0.4", id::kDirectionBelowOneKnot},
    {{{Field::kDryBulb, "10"}}, Field::kWetBulb, "10.1", id::kWetBulbAboveAir},
    {{{Field::kWetBulb, "10"}}, Field::kDryBulb, "9.9", id::kWetBulbAboveAir},
    {{{Field::kPwPw, "00"}}, Field::kHwHw, "0.5", id::kPeriodNeedsHeight},
    {{{Field::kHwHw, "0.5"}}, Field::kPwPw, "00", id::kPeriodNeedsHeight},
};

TEST(CrossRules, AreRefusedByTheEditorsInBothLanguagesAndChangeNothing) {
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    for (const Typed& row : kTyped) {
      SCOPED_TRACE(std::string(elements::name_of(row.field)) + " " + row.text);
      Form f;
      f.world.texts.language = language;
      for (const auto& [field, text] : row.first) ASSERT_TRUE(f.enter(field, text));
      const std::string before = f.state(row.field);
      f.world.windows.expect(row.message);
      EXPECT_FALSE(f.enter(row.field, row.text));
      EXPECT_EQ(f.state(row.field), before);
      EXPECT_EQ(f.world.windows.boxes.back().text, text::bilingual(row.message, language));
      // Emptied, the field lets go.
      EXPECT_TRUE(f.enter(row.field, ""));
    }
  }
}

TEST(CrossRules, DewPointAboveAirIsRefusedFromEitherField) {
  for (const auto& [first, value, second, refused] :
       {std::tuple{Field::kAirTemperature, "10", Field::kDewPoint, "10.1"},
        {Field::kDewPoint, "10", Field::kAirTemperature, "9.9"}}) {
    Form f;
    f.ship.dew_point_method = DewPointMethod::kDirect;
    f.rebuild();
    ASSERT_TRUE(f.enter(first, value));
    const std::string before = f.state(second);
    f.world.windows.expect(id::kDewPointAboveAir);
    EXPECT_FALSE(f.enter(second, refused));
    EXPECT_EQ(f.state(second), before);
    EXPECT_TRUE(f.enter(second, "10.0"));
  }
}

TEST(CrossRules, GivenTextsAreToTheLetter) {
  const std::pair<text::Id, const char*> rows[] = {
      {id::kSteadyWithAmount,
       "Error: If Element(Type of tendency) equal 4\nElement(Amount of change) equal 000 "},
      {id::kLowestAboveTotal,
       "Error: Element(Lowest cloud) must be smaller than or equal to the Element(Total cloud)"},
      {id::kCalmDirectionWithSpeed,
       "Error: If Element(True dir) equal 00\nElement(True wind) equal 00."},
      {id::kDirectionWithoutSpeed,
       "Error: If Element(True wind) equal 00\nElement(True dir) equal 00."},
      {id::kDirectionBelowOneKnot,
       "Error: If true wind speed is less than 1knot, true wind direction must be 00."},
      {id::kDewPointAboveAir,
       "Error: Element(Dew point temp) must be smaller or equal than Element(Air temp)"},
      {id::kDateInvalid, "Date is invalid"},
      {id::kInputError, "Input error "},
      {id::kCheckHour, "GG IN [00,03,06,09,12,15,18,21]"},
      {id::kCheckDirection, "0<= DD <=36 OR // OR 99"},
      {id::kCheckNotNumber, "Not Number"},
      {id::kCheckApparentDirection, "360 >= dd >= 0"},
      {id::kCheckOneDecimal, "3.1 Format"},
      {id::kCheckPressure, "870 >= PPPP >= 1050"},
      {id::kCheckTendency, "ppp Fomat 2.1"},
      {id::kCheckPresentWeather, "99>=ww>=00 Or //"},
      {id::kCheckWavePeriod, "99 >= Pw >=00 OR //"},
      {id::kCheckSwell, "36>=PW>=00 OR //"},
      {id::kCheckWaveHeight, "14.5 >= HW >=0.0 Or //"},
      {id::kCheckLowestCloud, "Err Nh > N"},
      {id::kCheckDateTime, "NoValue Date&Time"},
  };
  for (const auto& [message, text] : rows)
    EXPECT_EQ(text::bilingual(message, text::Language::kEnglish), text);
}

}  // namespace
