#include "observation/report_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>

#include "observation/report_encoder.h"
#include "observation/report_groups.h"
#include "observation/report_text.h"
#include "records.h"

namespace observation {

void PrintTo(const UnplacedText& unplaced, std::ostream* out) {
  *out << '"' << unplaced.text << "\" reason " << static_cast<int>(unplaced.why);
}

}  // namespace observation

namespace {

using observation::read_report;
using observation::Unplaced;
using observation::UnplacedText;
using records::fresh;
using records::full;
using UnplacedList = std::vector<UnplacedText>;

constexpr auto kLater = Unplaced::kOtherSection;

Struct_Weather blank() {
  Struct_Weather record = fresh();
  for (const WeatherField& field : weather_fields()) (record.*field.member).clear();
  return record;
}

observation::ReadReport read(std::string_view text) {
  const auto report = read_report(text, blank());
  EXPECT_TRUE(report) << text;
  return report ? *report : observation::ReadReport(blank());
}

std::string encode(const Struct_Weather& record, bool wet_bulb = true) {
  std::string message;
  std::string missing;
  observation::encode_report(record, message, missing, wet_bulb, text::Language::kEnglish);
  return message;
}

void expect_fields(const Struct_Weather& record, std::initializer_list<records::Setting> expected,
                   std::string_view what) {
  Struct_Weather wanted = blank();
  records::set(wanted, expected);
  for (const WeatherField& field : weather_fields())
    EXPECT_EQ(record.*field.member, wanted.*field.member) << what << ": " << field.name;
}

std::vector<std::string> words_of(std::string_view text) {
  std::istringstream in{std::string(text)};
  std::vector<std::string> words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

TEST(ReportReader, FullReportComesBackFieldByField) {
  const auto report = read(encode(full()));
  EXPECT_TRUE(report.unplaced.empty());
  EXPECT_TRUE(report.has_wet_bulb);
  Struct_Weather expected = full();
  records::set(expected, {{"Year", ""},
                          {"Month", ""},
                          {"VosClim1", ""},
                          {"VosClim2", ""},
                          {"VosClim3", ""},
                          {"VosClim4", ""},
                          {"VosClim5", ""},
                          {"LogExtra", ""},
                          {"ShipFixed", ""}});
  for (const WeatherField& field : weather_fields())
    EXPECT_EQ(report.record.*field.member, expected.*field.member) << field.name;
}

TEST(ReportReader, FieldsThatTheReportDoesNotCarryStay) {
  Struct_Weather start = fresh();
  start.Year = "2014";
  start.PPPP = "0100";
  const auto report =
      read_report("BBXX ABC 15124 99357 11653 41/// ///// 8//// 222// .....", start);
  ASSERT_TRUE(report);
  EXPECT_EQ(report->record.Year, "2014");
  EXPECT_EQ(report->record.PPPP, "0100");
  EXPECT_EQ(report->record.ShipFixed, "9074729");
  EXPECT_EQ(report->record.CallSign, "ABC");
  EXPECT_EQ(report->record.Nh, "/");
}

TEST(ReportReader, SolidiAreTakenAsTheyStandAndTenthsAsTheirFirstMinute) {
  const auto report = read("BBXX ABC 15124 9935/ 1165/ 41/9/ /27// 7//22 .....");
  expect_fields(report.record,
                {{"CallSign", "ABC"},
                 {"YY", "15"},
                 {"GG", "12"},
                 {"iw", "4"},
                 {"LaDeg", "35"},
                 {"Qc", "1"},
                 {"LoDeg", "165"},
                 {"iR", "4"},
                 {"iX", "1"},
                 {"h", "/"},
                 {"VV", "9/"},
                 {"N", "/"},
                 {"dd", "27"},
                 {"ff", "//"},
                 {"ww", "//"},
                 {"W1", "2"},
                 {"W2", "2"}},
                "solidi");
  for (int tenth = 0; tenth < 10; ++tenth) {
    const std::string figure = std::to_string(tenth);
    const auto one = read("BBXX ABC 15124 9935" + figure + " 1165" + figure);
    const std::string minutes = (tenth < 2 ? "0" : "") + std::to_string(tenth * 6);
    EXPECT_EQ(one.record.LaMin, minutes);
    EXPECT_EQ(one.record.LoMin, minutes);
  }
}

TEST(ReportReader, NoReportIsSaid) {
  for (const char* text : {"", "   ", "JXKV 15124 99357", "BBX X", "XBBXX ABC"})
    EXPECT_FALSE(read_report(text, fresh())) << text;
}

TEST(ReportReader, IsFoundInTelexLines) {
  const char* wrapped =
      "FROM JXKV/MV KITA MARU\r\nTO WEATHER OFFICE\r\n\r\nBBXX JXKV 15124 99357 11653 41497 "
      "62718\r\n"
      "10152 20108 40132 520\r\n14 71582 84531\r\n22223 00178 20604 32531 40905\r\n "
      "51103=\r\nNNNN\r\n";
  const auto report = read(wrapped);
  EXPECT_EQ(
      report.unplaced,
      (UnplacedList{{"FROM JXKV/MV KITA MARU\r\nTO WEATHER OFFICE", Unplaced::kOutsideReport}}));
  EXPECT_EQ(encode(report.record),
            "BBXX JXKV 15124 99357 11653 41497 62718 10152 20108 40132 52014 71582 84531 "
            "22223 00178 20604 32531 40905 51103 .....");
}

TEST(ReportReader, EndMarksAreSeenAndWhatFollowsIsNamed) {
  struct Row {
    const char* text;
    UnplacedList unplaced;
  };
  const Row rows[] = {
      {"BBXX ABC 15124 99357 11653 41/// ///// 222//=", {}},
      {"BBXX ABC 15124 99357 11653 41/// ///// 222// =", {}},
      {"BBXX ABC 15124 99357 11653 41/// ///// 222//.....", {}},
      {"BBXX ABC 15124 99357 11653 41/// ///// 222// ...... ", {}},
      {"BBXX ABC 15124 99357 11653 41/// ///// 222// NNNN", {}},
      {"BBXX ABC 15124 99357 11653 41/// ///// 222//= NNNN", {}},
      {"BBXX ABC 15124 99357 11653 41/// ///// 222//= 40132",
       {{"40132", Unplaced::kOutsideReport}}},
      {"BBXX ABC 15124 99357 11653 41/// ///// 222// BBXX DEF 15124",
       {{"BBXX DEF 15124", Unplaced::kOutsideReport}}},
      {"BBXX ABC 15124 99357 11653 41/// ///// 222// ...", {{"...", Unplaced::kNotAGroup}}},
  };
  for (const Row& row : rows) {
    const auto report = read(row.text);
    EXPECT_EQ(report.unplaced, row.unplaced) << row.text;
    EXPECT_EQ(report.record.Ds, "/") << row.text;
  }
}

// A ship may be called what ends a report elsewhere: the groups behind tell that it goes on.
TEST(ReportReader, ACallSignMayLookLikeAnythingThatStandsElsewhere) {
  for (const char* const name :
       {"NNNN", "BBXX", "222", "22223", "222//", "333", "444", "555", "ICE", "ICEBERG", "NIL", "A",
        "12345", "99357", "15124", "/////", "8"}) {
    Struct_Weather record = full();
    record.CallSign = name;
    const std::string message = encode(record);
    for (const std::string& text :
         {message, "\xEF\xBB\xBF" + message, "FROM SHIP\r\n" + message + "\r\nNNNN\r\n",
          message.substr(0, message.size() - 6) + "="}) {
      const auto report = read(text);
      EXPECT_EQ(report.record.CallSign, name) << text;
      EXPECT_EQ(encode(report.record), message) << text;
      EXPECT_EQ(report.unplaced.size(), text.find("FROM") == std::string::npos ? 0U : 1U) << text;
    }
  }
}

// No report can hold such a call sign, so none is taken from it; but the groups are read.
TEST(ReportReader, ACallSignThatNoReportCanHoldIsNamedAndTheGroupsAreRead) {
  for (const char* const name : {"=", "==", ".....", "......", "JXKV=", "J....."}) {
    Struct_Weather record = full();
    record.CallSign = name;
    const auto report = read(encode(record));
    EXPECT_EQ(report.unplaced, (UnplacedList{{name, Unplaced::kCallSign}})) << name;
    record.CallSign.clear();
    EXPECT_EQ(encode(report.record), encode(record)) << name;
  }
}

TEST(ReportReader, AnEndMarkBehindBbxxEndsTheReportUnlessGroupsFollow) {
  struct Row {
    const char* text;
    const char* after;
    bool ended, open;
  };
  for (const Row& row :
       {Row{"BBXX NNNN", "", true, true}, Row{"BBXX NNNN 15124", "15124", true, true},
        Row{"BBXX NNNN JXKV 15124", "JXKV 15124", true, false},
        Row{"BBXX NNNN 15124 98357", "15124 98357", true, false},
        Row{"BBXX NNNN 15124 99357=", "", true, false},
        Row{"BBXX NNNN 15124 99357", "", false, false},
        Row{"BBXX NNNN\r\n151\r\n24 99357", "", false, false},
        Row{"BBXX BBXX JXKV 15124 99357", "BBXX JXKV 15124 99357", true, false},
        Row{"BBXX BBXX 12345 15124 99357", "BBXX 12345 15124 99357", true, false},
        Row{"BBXX = 40132", "40132", true, true},
        Row{"BBXX JXKV NNNN 15124 99357", "15124 99357", true, false}}) {
    const auto found = observation::find_report(row.text);
    ASSERT_TRUE(found) << row.text;
    EXPECT_EQ(found->after, row.after) << row.text;
    EXPECT_EQ(found->ended, row.ended) << row.text;
    EXPECT_EQ(found->open, row.open) << row.text;
  }
}

TEST(ReportReader, AByteOrderMarkInFrontIsPassedOver) {
  const auto report = read(
      "\xEF\xBB\xBF"
      "BBXX JXKV 15124 99357 11653 41/// /////");
  EXPECT_EQ(report.record.CallSign, "JXKV");
  EXPECT_TRUE(report.unplaced.empty());
}

TEST(ReportReader, EveryReasonNamesItsWord) {
  struct Row {
    const char* groups;  ///< behind Nddff
    UnplacedList unplaced;
  };
  const Row rows[] = {
      {"30100 40132", {{"30100", Unplaced::kNoField}}},
      {"60012", {{"60012", Unplaced::kNoField}}},
      {"29085", {{"29085", Unplaced::kNoField}}},
      {"222// 70033", {{"70033", Unplaced::kNoField}}},
      {"222// 90033", {{"90033", Unplaced::kNoField}}},
      {"40132 40133", {{"40133", Unplaced::kRepeated}}},
      {"222// 20604 20605", {{"20605", Unplaced::kRepeated}}},
      {"872xx", {{"872xx", Unplaced::kNotAGroup}}},
      {"4013", {{"4013", Unplaced::kNotAGroup}}},
      {"40 132", {{"40", Unplaced::kNotAGroup}, {"132", Unplaced::kNotAGroup}}},
      {"401325", {{"401325", Unplaced::kNotAGroup}}},
      {"222 00178", {{"222", Unplaced::kNotAGroup}}},
      {"222// 333 91131 444 12345",
       {{"333", kLater}, {"91131", kLater}, {"444", kLater}, {"12345", kLater}}},
      {"555 1", {{"555", kLater}, {"1", kLater}}},
      {"222// ICE ////", {{"ICE ////", Unplaced::kIcePlainText}}},
      {"222// ICE BERGS SEEN  TO NORTH 333 9",
       {{"ICE BERGS SEEN TO NORTH", Unplaced::kIcePlainText}, {"333", kLater}, {"9", kLater}}},
      {"222// ICE", {{"ICE", Unplaced::kIcePlainText}}},
      {"222// ICING MODERATE",
       {{"ICING", Unplaced::kNotAGroup}, {"MODERATE", Unplaced::kNotAGroup}}},
      {"222// ICE 12345 54321", {}},  // 5Pw2Pw2Hw2Hw2, merely late
      {"222// ICE 12345 ICE 54321", {{"ICE 54321", Unplaced::kRepeated}}},
  };
  for (const Row& row : rows) {
    const auto report =
        read("BBXX ABC 15124 99357 11653 41/// ///// " + std::string(row.groups) + " .....");
    EXPECT_EQ(report.unplaced, row.unplaced) << row.groups;
  }
}

TEST(ReportReader, HeaderSurvivesMissingAndExtraWords) {
  struct Row {
    const char *text, *call_sign, *day, *latitude;
    UnplacedList unplaced;
  };
  const Row rows[] = {
      {"BBXX JXKV 15124 99357 11653", "JXKV", "15", "35", {}},
      {"BBXX 15124 99357 11653", "", "15", "35", {}},
      {"BBXX 12345 15124 99357 11653", "12345", "15", "35", {}},
      {"BBXX 99123 15124 99357 11653", "99123", "15", "35", {}},
      {"BBXX JXKV MARU 15124 99357 11653", "JXKV", "15", "35", {{"MARU", Unplaced::kCallSign}}},
      {"BBXX JXKV 99357 11653", "JXKV", "", "35", {}},
      {"BBXX JXKV 1512 99357 11653", "JXKV", "", "35", {{"1512", Unplaced::kNotAGroup}}},
      {"BBXX JXKV 15124 98357 11653", "JXKV", "15", "", {{"98357", Unplaced::kOutOfRange}}},
      {"BBXX JXKV 15124 99357 21653", "JXKV", "15", "35", {{"21653", Unplaced::kOutOfRange}}},
      {"BBXX J=KV 15124 99357 11653", "", "15", "35", {{"J=KV", Unplaced::kCallSign}}},
      {"BBXX J.KV 15124 99357 11653", "", "15", "35", {{"J.KV", Unplaced::kCallSign}}},
      {"BBXX", "", "", "", {}},
      {"BBXX JXKV", "JXKV", "", "", {}},
      {"BBXX JXKV 333 1", "JXKV", "", "", {{"333", kLater}, {"1", kLater}}},
      {"BBXX ABCDEFGHI 22213 99357 11653", "ABCDEFGHI", "22", "35", {}},
  };
  for (const Row& row : rows) {
    const auto report = read(row.text);
    EXPECT_EQ(report.record.CallSign, row.call_sign) << row.text;
    EXPECT_EQ(report.record.YY, row.day) << row.text;
    EXPECT_EQ(report.record.LaDeg, row.latitude) << row.text;
    EXPECT_EQ(report.unplaced, row.unplaced) << row.text;
  }
}

TEST(ReportReader, SameFiguresMeanAnotherGroupBehind222) {
  const auto report = read(
      "BBXX ABC 15124 99357 11653 41/// 22215 10152 20108 40132 52014 81234 "
      "22223 10706 22204 32531 40905 51103 80130 .....");
  expect_fields(
      report.record,
      {{"CallSign", "ABC"}, {"YY", "15"},     {"GG", "12"},     {"iw", "4"},      {"LaDeg", "35"},
       {"LaMin", "42"},     {"Qc", "1"},      {"LoDeg", "165"}, {"LoMin", "18"},  {"iR", "4"},
       {"iX", "1"},         {"h", "/"},       {"VV", "//"},     {"N", "2"},       {"dd", "22"},
       {"ff", "15"},        {"SnT", "0"},     {"TTT", "152"},   {"SnTd", "0"},    {"TdTdTd", "108"},
       {"PPPP", "0132"},    {"a", "2"},       {"ppp", "014"},   {"Nh", "1"},      {"CL", "2"},
       {"CM", "3"},         {"CH", "4"},      {"Ds", "2"},      {"Vs", "3"},      {"PwaPwa", "07"},
       {"HwaHwa", "06"},    {"PwPw", "22"},   {"HwHw", "04"},   {"dw1dw1", "25"}, {"dw2dw2", "31"},
       {"Pw1Pw1", "09"},    {"Hw1Hw1", "05"}, {"Pw2Pw2", "11"}, {"Hw2Hw2", "03"}, {"Sw", "0"},
       {"TbTbTb", "130"}},
      "behind 222");
  EXPECT_TRUE(report.unplaced.empty());
  EXPECT_TRUE(report.has_wet_bulb);
}

// Waves must never become a dew point, and swell no pressure.
TEST(ReportReader, WithoutIts222Section2IsKnownByTheSeaTemperature) {
  const std::string section_1 = "BBXX ABC 15124 99357 11653 41/// 22215 10152 81234 ";
  for (const char* const exact : {"", "91230 "}) {
    const auto report = read(section_1 + exact + "00178 10706 20204 32531 40905 51103 80130");
    expect_fields(report.record,
                  {{"CallSign", "ABC"},
                   {"YY", "15"},
                   {"GG", "12"},
                   {"iw", "4"},
                   {"LaDeg", "35"},
                   {"LaMin", "42"},
                   {"Qc", "1"},
                   {"LoDeg", "165"},
                   {"LoMin", "18"},
                   {"iR", "4"},
                   {"iX", "1"},
                   {"h", "/"},
                   {"VV", "//"},
                   {"N", "2"},
                   {"dd", "22"},
                   {"ff", "15"},
                   {"SnT", "0"},
                   {"TTT", "152"},
                   {"Nh", "1"},
                   {"CL", "2"},
                   {"CM", "3"},
                   {"CH", "4"},
                   {"Ss", "0"},
                   {"TwTwTw", "178"},
                   {"PwaPwa", "07"},
                   {"HwaHwa", "06"},
                   {"PwPw", "02"},
                   {"HwHw", "04"},
                   {"dw1dw1", "25"},
                   {"dw2dw2", "31"},
                   {"Pw1Pw1", "09"},
                   {"Hw1Hw1", "05"},
                   {"Pw2Pw2", "11"},
                   {"Hw2Hw2", "03"},
                   {"Sw", "0"},
                   {"TbTbTb", "130"},
                   {"GGExact", *exact == '\0' ? "" : "12"},
                   {"gg", *exact == '\0' ? "" : "30"}},
                  exact);
    EXPECT_TRUE(report.unplaced.empty());
  }
  // Without one nobody can tell: no group of section 1 comes so late, but for 9GGgg.
  const auto report = read(section_1 + "10706 20204 32531 40905 51103 70211 91230");
  EXPECT_EQ(report.unplaced, (UnplacedList{{"10706", Unplaced::kOutOfRange},
                                           {"20204", Unplaced::kOutOfRange},
                                           {"32531", Unplaced::kNoField},
                                           {"40905", Unplaced::kOutOfRange},
                                           {"51103", Unplaced::kOutOfRange},
                                           {"70211", Unplaced::kOutOfRange}}));
  EXPECT_EQ(report.record.TTT + report.record.TdTdTd + report.record.PPPP + report.record.a, "152");
  EXPECT_EQ(report.record.gg, "30");
}

TEST(ReportReader, HighWindFollowsNddff) {
  const auto report = read("BBXX ABC 15124 99357 11653 41/// 62799 00105 10152 22223 00178 .....");
  EXPECT_EQ(report.record.fff, "105");
  EXPECT_EQ(report.record.TwTwTw, "178");
  EXPECT_TRUE(report.unplaced.empty());
}

TEST(ReportPosition, IsReadInTenthsWithItsQuadrant) {
  const auto position = observation::read_report_position("BBXX JXKV 15124 99357 71653 41///");
  ASSERT_TRUE(position);
  EXPECT_EQ(position->quadrant, 7);
  EXPECT_EQ(position->latitude, 357);
  EXPECT_EQ(position->longitude, 1653);
}

TEST(ReportPosition, NeedsEveryFigure) {
  for (const char* text :
       {"", "BBXX JXKV 15124 9935/ 71653", "BBXX JXKV 15124 99/// 71653",
        "BBXX JXKV 15124 99357 /1653", "BBXX JXKV 15124 99357 7165/", "BBXX JXKV 15124 99357",
        "BBXX JXKV 15124 71653", "BBXX JXKV 15124 99357 71x53"})
    EXPECT_FALSE(observation::read_report_position(text)) << text;
}

// ---- Reports as they were really sent

std::vector<std::string> real_reports() {
  std::ifstream in(KAVREL_TEST_DATA "/ship_reports.txt");
  std::vector<std::string> reports;
  for (std::string line; std::getline(in, line);)
    if (line.starts_with("BBXX")) reports.push_back(line);
  return reports;
}

TEST(RealReports, WhatCannotBePlacedIsNamedAndNothingElse) {
  // By number of the report in the file, from 1; all others are placed whole.
  const std::map<std::size_t, UnplacedList> expected = {
      {12, {{"ICE ////", Unplaced::kIcePlainText}}},
      {14,
       {{"872xx", Unplaced::kNotAGroup},
        {"70033", Unplaced::kNoField},
        {"333", kLater},
        {"91131", kLater}}},
      {17, {{"70036", Unplaced::kNoField}, {"333", kLater}, {"91119", kLater}}},
      {18, {{"70047", Unplaced::kNoField}}},
      {19, {{"70022", Unplaced::kNoField}}},
      {20, {{"70055", Unplaced::kNoField}, {"333", kLater}, {"91131", kLater}}},
      {21, {{"70007", Unplaced::kNoField}}},
      {22, {{"8xx//", Unplaced::kNotAGroup}, {"70082", Unplaced::kNoField}}},
      {2, {{"70003", Unplaced::kNoField}}},
      {3, {{"70003", Unplaced::kNoField}}},
  };
  const auto reports = real_reports();
  ASSERT_EQ(reports.size(), 29U);
  for (std::size_t i = 0; i < reports.size(); ++i) {
    const auto at = expected.find(i + 1);
    EXPECT_EQ(read(reports[i]).unplaced, at == expected.end() ? UnplacedList() : at->second)
        << i + 1 << " " << reports[i];
  }
}

bool may_be_left_out(const std::string& word) {
  return std::any_of(observation::group_rows().begin(), observation::group_rows().end(),
                     [&](const observation::GroupRow& row) {
                       return row.written != observation::Written::kAlways &&
                              observation::is_all_missing(word, row);
                     }) ||
         word == "/////" || word == "ICE";
}

TEST(RealReports, EveryWordIsPlacedOrNamed) {
  for (const std::string& text : real_reports()) {
    const auto report = read(text);
    std::string named;
    for (const UnplacedText& each : report.unplaced) named += each.text + " ";
    std::vector<std::string> kept = words_of(encode(report.record) + " " + named);
    for (const std::string& word : words_of(text)) {
      const auto at = std::find(kept.begin(), kept.end(), word.substr(0, 7));
      if (at != kept.end())
        kept.erase(at);
      else
        EXPECT_TRUE(may_be_left_out(word)) << word << " of " << text;
    }
  }
}

TEST(RealReports, EncodingWhatWasReadIsStable) {
  for (const std::string& text : real_reports()) {
    const std::string once = encode(read(text).record);
    const auto again = read(once);
    EXPECT_TRUE(again.unplaced.empty()) << once;
    EXPECT_EQ(encode(again.record), once);
  }
}

TEST(RealReports, SeveralAreReadFieldByField) {
  const auto reports = real_reports();
  ASSERT_EQ(reports.size(), 29U);
  expect_fields(
      read(reports[4]).record,  // PCHM
      {{"CallSign", "PCHM"}, {"YY", "26"}, {"GG", "13"},     {"iw", "4"},       {"LaDeg", "52"},
       {"LaMin", "30"},      {"Qc", "7"},  {"LoDeg", "129"}, {"LoMin", "48"},   {"iR", "4"},
       {"iX", "1"},          {"h", "2"},   {"VV", "98"},     {"N", "8"},        {"dd", "16"},
       {"ff", "17"},         {"SnT", "0"}, {"TTT", "110"},   {"SnTd", "0"},     {"TdTdTd", "100"},
       {"PPPP", "0132"},     {"a", "3"},   {"ppp", "001"},   {"ww", "//"},      {"W1", "2"},
       {"W2", "2"},          {"Nh", "/"},  {"CL", "7"},      {"CM", "/"},       {"CH", "/"},
       {"Ds", "3"},          {"Vs", "4"},  {"Ss", "0"},      {"TwTwTw", "120"}, {"PwPw", "04"},
       {"HwHw", "02"},       {"Sw", "0"},  {"TbTbTb", "105"}},
      "PCHM");
  expect_fields(read(reports[24]).record,  // LAOO5
                {{"CallSign", "LAOO5"}, {"YY", "28"},      {"GG", "18"},     {"iw", "3"},
                 {"LaDeg", "41"},       {"LaMin", "36"},   {"Qc", "7"},      {"LoDeg", "041"},
                 {"LoMin", "18"},       {"iR", "4"},       {"iX", "1"},      {"h", "/"},
                 {"VV", "//"},          {"N", "9"},        {"dd", "20"},     {"ff", "17"},
                 {"SnT", "0"},          {"TTT", "214"},    {"SnTd", "0"},    {"TdTdTd", "207"},
                 {"PPPP", "0160"},      {"a", "6"},        {"ppp", "///"},   {"ww", "11"},
                 {"W1", "2"},           {"W2", "2"},       {"Nh", "/"},      {"CL", "6"},
                 {"CM", "0"},           {"CH", "0"},       {"Ds", "1"},      {"Vs", "4"},
                 {"Ss", "2"},           {"TwTwTw", "108"}, {"PwPw", "03"},   {"HwHw", "02"},
                 {"dw1dw1", "09"},      {"dw2dw2", "//"},  {"Pw1Pw1", "08"}, {"Hw1Hw1", "04"},
                 {"Pw2Pw2", "//"},      {"Hw2Hw2", "//"},  {"Sw", "0"},      {"TbTbTb", "209"}},
                "LAOO5");
}

// Minutes whose hour was not entered go out as three figures, and come back.
TEST(ReportReader, ReadsMinutesWithoutTheirHour) {
  const auto read = read_report("BBXX JXKV 15124 99357 71653 41697 52712 930 22232 930 .....",
                                Struct_Weather({}, {}));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->record.gg + "|" + read->record.GGExact, "30|");
  ASSERT_EQ(read->unplaced.size(), 1U) << "section 2 has no exact time";
  EXPECT_EQ(read->unplaced[0].text, "930");
}

}  // namespace
