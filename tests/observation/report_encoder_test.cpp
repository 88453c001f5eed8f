#include "observation/report_encoder.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "records.h"
#include "text/ids.h"

namespace {

using observation::Group;
using records::fresh;
using records::full;
using records::with;
using text::Language;

struct Encoded {
  std::string message, missing;
};

Encoded encode(const Struct_Weather& record, bool wet_bulb = false,
               Language language = Language::kEnglish) {
  Encoded result;
  result.missing = "left over";
  EXPECT_EQ(observation::encode_report(record, result.message, result.missing, wet_bulb, language),
            0);
  return result;
}

std::string message(const Struct_Weather& record, bool wet_bulb = false) {
  return encode(record, wet_bulb).message;
}

bool has_group(const std::string& message, const std::string& group) {
  return message.find(" " + group + " ") != std::string::npos;
}

TEST(ShipReport, FullRecordGivesEveryGroupInOrder) {
  const Encoded encoded = encode(full(), true);
  EXPECT_EQ(encoded.message,
            "BBXX JXKV 15124 99357 11653 41497 62799 00105 10152 20108 40132 52014 71582 84531 "
            "91150 22223 00178 10706 20604 32531 40905 51103 61023 80130 ICE 12345 .....");
  EXPECT_EQ(encoded.missing, "");
}

TEST(ShipReport, FreshRecordHoldsTheAlwaysGroupsWithSolidi) {
  EXPECT_EQ(message(fresh()), "BBXX JXKV ////4 99/// ///// 41/// ///// 8//// 222// .....");
  Struct_Weather record = fresh();
  record.iX = "3";
  EXPECT_TRUE(has_group(message(record), "43///"));
}

TEST(ShipReport, PositionAndTimeAloneNameEveryOtherGroup) {
  const Encoded encoded = encode(with({{"YY", "15"},
                                       {"GG", "12"},
                                       {"Qc", "1"},
                                       {"LaDeg", "35"},
                                       {"LaMin", "42"},
                                       {"LoDeg", "165"},
                                       {"LoMin", "18"}}));
  EXPECT_EQ(encoded.message, "BBXX JXKV 15124 99357 11653 41/// ///// 8//// 222// .....");
  EXPECT_EQ(encoded.missing,
            "GroupIrIxvv   No value input\r\n"
            "GroupNddff   No value input\r\n"
            "Group1SnTTT   No value input\r\n"
            "Group2SnTdTdTd   No value input\r\n"
            "Group4PPPP   No value input\r\n"
            "Group5appp   No value input\r\n"
            "GroupNhChCmCl   No value input\r\n"
            "Group222DsDv   No value input\r\n"
            "Group0SnTwTwTw   No value input\r\n");
}

TEST(ShipReport, MissingListIsInTheLanguageOfTheMoment) {
  Struct_Weather record = full();
  record.YY.clear();
  EXPECT_EQ(encode(record).missing, "GroupYYGGIW No value input\r\n");
  EXPECT_EQ(encode(record, false, Language::kJapanese).missing, "GroupYYGGIW 未入力です\r\n");
}

TEST(ShipReport, EachEmptyFieldOfALabelledGroupNotesItsGroupOnce) {
  struct Row {
    std::initializer_list<std::string_view> fields;
    const char* label;
  };
  const Row rows[] = {
      {{"YY", "GG", "iw"}, "GroupYYGGIW "},
      {{"LaDeg", "LaMin"}, "Group99LaLaLa "},
      {{"Qc", "LoDeg", "LoMin"}, "GroupQcLoLoLoLo   "},
      {{"iR", "iX", "h", "VV"}, "GroupIrIxvv   "},
      {{"N", "dd", "ff"}, "GroupNddff   "},
      {{"SnT", "TTT"}, "Group1SnTTT   "},
      {{"SnTd", "TdTdTd"}, "Group2SnTdTdTd   "},
      {{"PPPP"}, "Group4PPPP   "},
      {{"a", "ppp"}, "Group5appp   "},
      {{"Nh", "CL", "CM", "CH"}, "GroupNhChCmCl   "},
      {{"Ds", "Vs"}, "Group222DsDv   "},
      {{"Ss", "TwTwTw"}, "Group0SnTwTwTw   "},
      {{"dw1dw1", "dw2dw2"}, "Group3dw1dw1dw2dw2   "},
      {{"Pw1Pw1", "Hw1Hw1"}, "Group4Pw1Hw1Hw2   "},
      {{"Sw", "TbTbTb"}, "Group8SnTbTbTb   "},
  };
  for (const Row& row : rows) {
    const std::string line = std::string(row.label) + "No value input\r\n";
    Struct_Weather all_empty = full();
    for (const auto name : row.fields) {
      Struct_Weather record = full();
      records::set(record, {{name, ""}});
      records::set(all_empty, {{name, ""}});
      EXPECT_EQ(encode(record, true).missing, line) << name;
    }
    EXPECT_EQ(encode(all_empty, true).missing, line);
  }
}

TEST(ShipReport, FieldsWithoutLabelAreNeverNoted) {
  for (const auto name :
       {"ww",     "W1",  "W2",      "PwaPwa", "HwaHwa", "PwPw",    "HwHw", "Pw2Pw2",
        "Hw2Hw2", "Is",  "EsEs",    "Rs",     "ci",     "Si",      "bi",   "Di",
        "zi",     "fff", "GGExact", "gg",     "Year",   "LogExtra"}) {
    Struct_Weather record = full();
    records::set(record, {{name, ""}});
    EXPECT_EQ(encode(record, true).missing, "") << name;
  }
}

TEST(ShipReport, CheckedGroupsAreLeftOutWhenAllFiguresAreMissing) {
  struct Row {
    std::initializer_list<std::string_view> fields;
    const char* group;
  };
  const Row rows[] = {
      {{"SnT", "TTT"}, "10152"},
      {{"SnTd", "TdTdTd"}, "20108"},
      {{"PPPP"}, "40132"},
      {{"a", "ppp"}, "52014"},
      {{"ww", "W1", "W2"}, "71582"},
      {{"Ss", "TwTwTw"}, "00178"},
      {{"PwaPwa", "HwaHwa"}, "10706"},
      {{"PwPw", "HwHw"}, "20604"},
      {{"Is", "EsEs", "Rs"}, "61023"},
      {{"Sw", "TbTbTb"}, "80130"},
      {{"ci", "Si", "bi", "Di", "zi"}, "ICE 12345"},
  };
  const std::string whole = message(full(), true);
  for (const Row& row : rows) {
    Struct_Weather empty = full();
    Struct_Weather solidi = full();
    for (const auto name : row.fields) {
      const std::size_t width = (empty.*find_weather_field(name)->member).size();
      records::set(empty, {{name, ""}});
      records::set(solidi, {{name, std::string(width, '/')}});
    }
    std::string expected = whole;
    expected.erase(expected.find(row.group), std::string(row.group).size() + 1);
    EXPECT_EQ(message(empty, true), expected) << row.group;
    EXPECT_EQ(message(solidi, true), expected) << row.group;
    Struct_Weather half = full();
    records::set(half, {{*row.fields.begin(), ""}});
    if (row.fields.size() > 1) {
      EXPECT_EQ(message(half, true).size(), whole.size()) << row.group;
    }
  }
}

TEST(ShipReport, GroupLeftOutAsAllMissingIsStillNoted) {
  Struct_Weather record = full();
  record.PPPP.clear();
  const Encoded encoded = encode(record);
  EXPECT_EQ(encoded.message.find(" 40132"), std::string::npos);
  EXPECT_EQ(encoded.missing, "Group4PPPP   No value input\r\n");
  record.PPPP = "////";
  EXPECT_EQ(encode(record).missing, "") << "a solidus is an entry";
}

TEST(ShipReport, WetBulbGroupIsWrittenAndNotedOnlyWhenAskedFor) {
  EXPECT_FALSE(has_group(message(full(), false), "80130"));
  EXPECT_TRUE(has_group(message(full(), true), "80130"));
  Struct_Weather record = full();
  record.Sw.clear();
  EXPECT_EQ(encode(record, false).missing, "");
  EXPECT_EQ(encode(record, true).missing, "Group8SnTbTbTb   No value input\r\n");
  EXPECT_TRUE(has_group(message(record, true), "8/130"));
  ShipFixedData ship;
  ship.dew_point_method = DewPointMethod::kDirect;
  EXPECT_FALSE(observation::wants_wet_bulb(ship));
  ship.dew_point_method = DewPointMethod::kComputed;
  EXPECT_TRUE(observation::wants_wet_bulb(ship));
}

TEST(ShipReport, WindOf99UnitsOrMoreFollowsInItsOwnGroup) {
  const std::string text = message(with({{"N", "6"}, {"dd", "27"}, {"ff", "99"}, {"fff", "105"}}));
  EXPECT_NE(text.find(" 62799 00105 "), std::string::npos) << text;
  EXPECT_EQ(message(with({{"N", "6"}, {"dd", "27"}, {"ff", "18"}})).find(" 00"), std::string::npos);
}

TEST(ShipReport, ExactTimeIsWrittenOnlyWithItsMinutes) {
  EXPECT_TRUE(has_group(message(with({{"gg", "50"}, {"GGExact", "11"}})), "91150"));
  EXPECT_EQ(message(with({{"GGExact", "11"}})), message(fresh()));
}

TEST(ShipReport, CallSignIsCutToSevenAndItsPlaceholderIsMasked) {
  EXPECT_TRUE(message(with({{"CallSign", "ABCDEFGHI"}})).starts_with("BBXX ABCDEFG ////4 "));
  EXPECT_TRUE(message(with({{"CallSign", "*******"}})).starts_with("BBXX /////// ////4 "));
}

TEST(ShipReport, EndsInASpaceAndFiveFullStopsWithoutLineBreak) {
  for (const auto& record : {fresh(), full()}) {
    const std::string text = message(record, true);
    EXPECT_TRUE(text.ends_with(" ....."));
    EXPECT_FALSE(text.ends_with("  ....."));
    EXPECT_EQ(text.find_first_of("\r\n*"), std::string::npos);
  }
}

TEST(ShipReport, ExtendsTheMessageAndReplacesTheList) {
  std::string text = "TO * ";
  std::string missing = "left over";
  observation::encode_report(full(), text, missing, false, Language::kEnglish);
  EXPECT_TRUE(text.starts_with("TO / BBXX JXKV ")) << text;
  EXPECT_EQ(missing, "");
}

struct SwellRow {
  const char *dw1, *dw2, *pw1, *hw1, *pw2, *hw2;
  const char* groups;   ///< between 222DsVs and the end
  const char* missing;  ///< labels noted
};

class Swell : public testing::TestWithParam<SwellRow> {};

TEST_P(Swell, GroupsDecideTogether) {
  const SwellRow& row = GetParam();
  Struct_Weather record = full();
  records::set(record, {{"PwaPwa", ""},
                        {"HwaHwa", ""},
                        {"PwPw", ""},
                        {"HwHw", ""},
                        {"Is", ""},
                        {"EsEs", ""},
                        {"Rs", ""},
                        {"ci", ""},
                        {"Si", ""},
                        {"bi", ""},
                        {"Di", ""},
                        {"zi", ""},
                        {"dw1dw1", row.dw1},
                        {"dw2dw2", row.dw2},
                        {"Pw1Pw1", row.pw1},
                        {"Hw1Hw1", row.hw1},
                        {"Pw2Pw2", row.pw2},
                        {"Hw2Hw2", row.hw2}});
  const Encoded encoded = encode(record);
  const std::string behind = " 22223 00178 ";
  const auto at = encoded.message.find(behind);
  ASSERT_NE(at, std::string::npos);
  EXPECT_EQ(encoded.message.substr(at + behind.size()), std::string(row.groups) + ".....");
  std::string expected;
  for (const char c : std::string_view(row.missing))
    expected += std::string(c == '3' ? "Group3dw1dw1dw2dw2   " : "Group4Pw1Hw1Hw2   ") +
                "No value input\r\n";
  EXPECT_EQ(encoded.missing, expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, Swell,
                         testing::Values(
                             // Nothing at all, entered or not.
                             SwellRow{"", "", "", "", "", "", "", ""},
                             SwellRow{"//", "//", "//", "//", "//", "//", "", ""},
                             SwellRow{"", "00", "", "", "", "", "", ""},
                             // No swell: the direction group alone, nothing noted.
                             SwellRow{"00", "00", "", "", "", "", "30000 ", ""},
                             SwellRow{"00", "00", "09", "05", "11", "03", "30000 ", ""},
                             // One swell.
                             SwellRow{"27", "00", "09", "05", "", "", "327// 40905 ", ""},
                             SwellRow{"27", "//", "09", "05", "", "", "327// 40905 ", ""},
                             SwellRow{"27", "", "09", "05", "", "", "327// 40905 ", "3"},
                             SwellRow{"27", "", "", "", "", "", "327// 4//// ", "34"},
                             SwellRow{"27", "00", "09", "", "", "", "327// 409// ", "4"},
                             // Two swells.
                             SwellRow{"27", "31", "09", "05", "11", "03", "32731 40905 51103 ", ""},
                             SwellRow{"27", "31", "09", "05", "", "", "32731 40905 5//// ", ""},
                             SwellRow{"27", "//", "09", "05", "11", "03", "327// 40905 51103 ", ""},
                             SwellRow{"27", "00", "09", "05", "11", "//", "327// 40905 511// ", ""},
                             // The first direction is lacking.
                             SwellRow{"", "31", "", "", "", "", "3//31 4//// 5//// ", "34"},
                             SwellRow{"", "", "", "05", "", "", "3//// 4//05 ", "34"},
                             SwellRow{"//", "//", "", "", "11", "03", "3//// 4//// 51103 ", "4"}));

TEST(ShipReport, ListOfGroupsIsThatOfTheMessage) {
  const auto written = [](const Struct_Weather& record, bool wet_bulb) {
    return observation::make_report(record, wet_bulb).written.in_order();
  };
  EXPECT_EQ(
      written(fresh(), true),
      (std::vector<Group>{Group::kYYGGiw, Group::k99LaLaLa, Group::kQcLoLoLoLo, Group::kiRiXhVV,
                          Group::kNddff, Group::k8NhCLCMCH, Group::k222DsVs}));
  EXPECT_EQ(written(full(), true).size(), observation::kGroups);
  EXPECT_EQ(written(full(), false).size(), observation::kGroups - 1);
}

// What is missing is a value; the list only words it.
TEST(ShipReport, NamesTheMissingGroupsAsValuesAndTheListWordsThem) {
  for (const bool wet_bulb : {false, true}) {
    const observation::Report report = observation::make_report(fresh(), wet_bulb);
    std::vector<Group> expected = {Group::kYYGGiw,    Group::k99LaLaLa, Group::kQcLoLoLoLo,
                                   Group::kiRiXhVV,   Group::kNddff,    Group::k1SnTTT,
                                   Group::k2SnTdTdTd, Group::k4PPPP,    Group::k5appp,
                                   Group::k8NhCLCMCH, Group::k222DsVs,  Group::k0SsTwTwTw};
    if (wet_bulb) expected.push_back(Group::k8SwTbTbTb);
    EXPECT_EQ(report.missing.in_order(), expected);
    for (const Language language : {Language::kEnglish, Language::kJapanese}) {
      std::string lines;
      for (const Group group : expected)
        lines += std::string(text::entry(observation::row_of(group).missing_label)) +
                 std::string(text::bilingual(text::id::kNoValueInput, language)) + "\r\n";
      EXPECT_EQ(observation::missing_list(report.missing, language), lines);
    }
  }
  EXPECT_TRUE(observation::make_report(full(), true).missing.empty());
  EXPECT_EQ(observation::missing_list({}, Language::kJapanese), "");
}

}  // namespace
