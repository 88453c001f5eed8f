// The logbook as a port officer checks it.

#include "explain/log/logbook_check.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "elements/form/cross_rules.h"
#include "explain/log/element_words.h"
#include "explain/log/identity_check.h"
#include "observation/logbook_encoder.h"
#include "observation/records.h"
#include "text/strings.h"

namespace {

using explain::Finding;
using explain::LogbookCheck;
using explain::Severity;

/// One that no rule and no doubt speaks against.
Struct_Weather sound_record() {
  Struct_Weather record = records::full();
  records::set(record, {{"ff", "18"},
                        {"fff", ""},
                        {"Is", ""},
                        {"EsEs", ""},
                        {"Rs", ""},
                        {"ci", ""},
                        {"Si", ""},
                        {"bi", ""},
                        {"Di", ""},
                        {"zi", ""},
                        {"GGExact", "12"},
                        {"gg", "00"},
                        {"W1", "2"},
                        {"W2", "2"},
                        {"ww", "03"},
                        {"LogExtra", "0750"},
                        {"VosClim4", "07"}});
  return record;
}

std::string line_of(const Struct_Weather& record) {
  return observation::encode_logbook(record, records::ship(), {});
}

struct Checked {
  std::vector<Finding> findings;
  explain::Summary summary{text::Language::kEnglish};
};

Checked check(const std::vector<std::string>& lines) {
  Checked checked;
  LogbookCheck check(text::Language::kEnglish,
                     [&](const Finding& finding) { checked.findings.push_back(finding); });
  for (const std::string& line : lines) check.take(line);
  checked.summary = check.finish();
  return checked;
}

/// "code ww 42-43" and so on, one for each finding.
std::vector<std::string> names(const Checked& checked) {
  std::vector<std::string> names;
  for (const Finding& finding : checked.findings) {
    std::string name(finding.kind->name);
    if (!finding.place.symbols.empty()) name += " " + finding.place.symbols;
    for (const auto& [first, last] : finding.place.columns)
      name += " " + std::to_string(first) + "-" + std::to_string(last);
    names.push_back(name);
  }
  return names;
}

using Names = std::vector<std::string>;

TEST(LogbookCheck, FindsNothingInASoundLine) {
  const Checked checked = check({line_of(sound_record())});
  EXPECT_EQ(names(checked), Names{});
  EXPECT_TRUE(checked.summary.is_sound());
  EXPECT_TRUE(checked.summary.is_empty());
  EXPECT_EQ(checked.summary.lines(), 1U);
}

// What is not entered is no fault of a line.
TEST(LogbookCheck, FindsNothingWhereNothingButDateAndPositionIsEntered) {
  Struct_Weather record = records::fresh();
  records::set(record, {{"Year", "2014"},
                        {"Month", "11"},
                        {"YY", "15"},
                        {"GG", "12"},
                        {"Qc", "1"},
                        {"LaDeg", "35"},
                        {"LaMin", "42"},
                        {"LoDeg", "165"},
                        {"LoMin", "18"}});
  EXPECT_EQ(names(check({line_of(record)})), Names{});
}

struct Row {
  std::vector<records::Setting> set;
  const char* found;
};

TEST(LogbookCheck, HoldsEachElementAgainstItsTableAndItsLimits) {
  const Row rows[] = {
      {{{"TTT", "411"}}, "limit TTT 31-33"},
      {{{"TTT", "1/2"}}, "incomplete TTT 31-33"},
      {{{"SnT", ""}}, "no_sign TTT 31-33"},
      {{{"SnT", "9"}}, "code SnT 30-30"},
      {{{"VV", "50"}}, "code VV 22-23"},
      {{{"dd", "37"}}, "code dd 25-26"},
      {{{"iw", "2"}}, "code iw 27-27"},
      {{{"a", "9"}}, "code a 93-93"},
      {{{"PPPP", "8699"}}, "limit PPPP 38-41"},
      {{{"ppp", "251"}}, "limit ppp 94-96"},
      {{{"TwTwTw", "371"}}, "limit TwTwTw 51-53"},
      {{{"PwPw", "31"}}, "limit PwPw 56-57"},
      {{{"HwHw", "30"}}, "limit HwHw 58-59"},
      {{{"dw1dw1", "40"}}, "code dw1dw1 60-61"},
      {{{"Pw1Pw1", "30"}}, "limit Pw1Pw1 62-63"},
      {{{"dw2dw2", "99"}}, "code dw2dw2 99-100"},
      {{{"Is", "6"}, {"EsEs", "02"}, {"Rs", "1"}, {"TTT", "0/0"}}, "code Is 66-66"},
      {{{"Sw", "5"}}, "code Sw 89-89"},
      {{{"iX", "8"}}, "code iX 83-83"},
      {{{"VosClim1", "361"}}, "limit VosClim1 146-148"},
      {{{"VosClim3", "361"}}, "limit VosClim3 133-135"},
      {{{"VosClim5", "400"}}, "limit VosClim5 136-138"},
      {{{"LogExtra", "1001"}}, "limit LogExtra 160-163"},
      {{{"LaDeg", "91"}}, "limit LaDeg 13-15"},
      {{{"LoDeg", "181"}}, "limit LoDeg 16-19"},
      {{{"LaDeg", "90"}}, "beyond LaDeg LaMin 13-15"},
      {{{"LoDeg", "180"}}, "beyond LoDeg LoMin 16-19"},
      {{{"Qc", "2"}}, "code Qc 12-12"},
      {{{"Qc", ""}}, "position 12-19"},
      {{{"LaMin", ""}}, "position 12-19"},
      {{{"Month", "13"}}, "date 2-11"},
      {{{"YY", "31"}}, "date 2-11"},
      {{{"GG", "24"}}, "date 2-11"},
      {{{"Year", "1999"}}, "date 2-11"},
      {{{"Year", ""}}, "date 2-11"},
      {{{"CallSign", ""}}, "call_sign CallSign 72-78"},
      {{{"CallSign", "*******"}}, "call_sign CallSign 72-78"},
      {{{"CallSign", "ABCDEFGH"}}, "call_sign CallSign 72-78"},
      {{{"Nh", "7"}}, "contradiction N Nh 24-24 46-46"},
      {{{"TdTdTd", "160"}}, "contradiction TTT TdTdTd 31-33 35-37"},
      {{{"dd", "00"}}, "contradiction dd ff 25-26 28-29"},
      {{{"Pw1Pw1", "00"}}, "contradiction Pw1Pw1 Hw1Hw1 62-63 64-65"},
      {{{"TTT", "1525"}}, "blank TTT 31-33"},
      {{{"Hw2Hw2", "123"}}, "unreadable 99-104"},
  };
  for (const Row& row : rows) {
    Struct_Weather record = sound_record();
    for (const auto& [name, value] : row.set) records::set(record, {{name, value}});
    const Names found = names(check({line_of(record)}));
    EXPECT_NE(std::ranges::find(found, row.found), found.end())
        << row.found << " is not in " << testing::PrintToString(found);
  }
}

TEST(LogbookCheck, HoldsTheLayoutColumnByColumn) {
  const std::string line = line_of(sound_record());
  for (const observation::LogbookColumn& column : observation::logbook_columns()) {
    std::string damaged = line;
    damaged.replace(column.first - 1U, column.width(), std::string(column.width(), 'x'));
    const Names found = names(check({damaged}));
    const std::string where = std::to_string(column.first) + "-" + std::to_string(column.last);
    const bool told = std::ranges::any_of(found, [&](const std::string& name) {
      // The parts of the date are told as a date; "xxxxxxx" is a call sign.
      return name.ends_with(" " + where) || (column.last <= 11 && name == "date 2-11");
    });
    EXPECT_TRUE(told || column.field == &Struct_Weather::CallSign) << where;
  }
  EXPECT_EQ(names(check({line + " "})), Names{"length"});
  EXPECT_EQ(names(check({""})), Names{"length"});
  EXPECT_EQ(names(check({std::string(5000, '\0')})), Names{"length"});
}

// One letter too few and one too many: every column between would be wrong, and none of it says
// anything to the officer.
TEST(LogbookCheck, TellsOfAShiftedLineThatItIsShiftedAndNothingElse) {
  std::string shifted = line_of(sound_record());
  shifted.erase(12, 1).append("0");
  EXPECT_EQ(names(check({shifted})), Names{"shifted"});
  // A file system that lost power fills what it had no time to write.
  EXPECT_EQ(names(check({std::string(172, '\0')})), Names{"shifted"});
}

// Nobody knows where it stood: only where all else is sound it was a column that is left out.
TEST(LogbookCheck, TellsALostCharacterAsTheLineItMakes) {
  std::string line = line_of(sound_record());
  line.erase(40, 1);
  const Checked checked = check({line});
  EXPECT_EQ(names(checked), Names{"length"});
  EXPECT_EQ(checked.findings[0].text,
            "The line has 171 characters; a line of this layout has 172.");
  EXPECT_EQ(check({std::string(5000, 'x')}).findings[0].text,
            "The line has 1000+ characters; a line of this layout has 172.");
}

TEST(LogbookCheck, TakesADamagedCallSignForDamaged) {
  std::string line = line_of(sound_record());
  line.replace(71, 2, "\x8f\xe3");
  EXPECT_EQ(names(check({line})), Names{"unreadable CallSign 72-78"});
  line.replace(71, 7, "       ");
  EXPECT_EQ(names(check({line})), Names{"call_sign CallSign 72-78"});
}

TEST(LogbookCheck, TellsWhichColumnWasNotWritten) {
  ShipFixedData ship = records::ship();
  ship.temperature_unit = 0.25;
  EXPECT_EQ(names(check({observation::encode_logbook(sound_record(), ship, {})})),
            Names{"gap 1-1"});
  ship = records::ship();
  ship.sea_temperature_method = SeaTemperatureMethod{-1};
  EXPECT_EQ(names(check({observation::encode_logbook(sound_record(), ship, {})})),
            Names{"gap 54-54"});
}

struct Words {
  std::vector<records::Setting> set;
  const char* text;
  const char* japanese;
};

// A value is told as it was entered, and not by the figures of the code.
TEST(LogbookCheck, TellsValuesInThePersonsWords) {
  const Words rows[] = {
      {{{"TTT", "411"}},
       "41.1 °C is outside what is accepted (-25.0 to 40.0 °C).",
       "41.1 °Cは入力できる範囲（-25.0～40.0 °C）の外です。"},
      {{{"SnT", "1"}, {"TTT", "253"}, {"TdTdTd", ""}},
       "-25.3 °C is outside what is accepted (-25.0 to 40.0 °C).",
       "-25.3 °Cは入力できる範囲（-25.0～40.0 °C）の外です。"},
      {{{"TwTwTw", "781"}},
       "78.1 °C is outside what is accepted (-2.0 to 37.0 °C).",
       "78.1 °Cは入力できる範囲（-2.0～37.0 °C）の外です。"},
      {{{"HwHw", "30"}},
       "15.0 m is outside what is accepted (0.0 to 14.5 m, //).",
       "15.0 mは入力できる範囲（0.0～14.5 m, //）の外です。"},
      {{{"VosClim1", "361"}},
       "361 ° is outside what is accepted (0 to 360 °).",
       "361 °は入力できる範囲（0～360 °）の外です。"},
      {{{"Nh", "7"}},
       "Element(Lowest cloud) must be smaller than or equal to the Element(Total cloud) (N 6, Nh "
       "7)",
       "最下層の雲量は全雲量以下でなければなりません。（N 6, Nh 7）"},
      {{{"TdTdTd", "160"}},
       "Element(Dew point temp) must be smaller or equal than Element(Air temp) (TTT 15.2 °C, "
       "TdTdTd 16.0 °C)",
       "露点温度は気温以下でなければなりません。（TTT 15.2 °C, TdTdTd 16.0 °C）"},
  };
  for (const Words& row : rows) {
    Struct_Weather record = sound_record();
    for (const auto& [name, value] : row.set) records::set(record, {{name, value}});
    for (const auto language : {text::Language::kEnglish, text::Language::kJapanese}) {
      std::vector<std::string> texts;
      LogbookCheck check(language, [&](const Finding& found) { texts.push_back(found.text); });
      check.take(line_of(record));
      const std::string wanted = language == text::Language::kEnglish ? row.text : row.japanese;
      EXPECT_NE(std::ranges::find(texts, wanted), texts.end())
          << wanted << " is not in " << testing::PrintToString(texts);
    }
  }
}

// What stands in front of the first colon is cut off, so it must be that word in every message.
TEST(LogbookCheck, CutsNothingButTheWordErrorOffAMessage) {
  for (const elements::CrossRule& rule : elements::cross_rules()) {
    EXPECT_TRUE(text::bilingual(rule.message, text::Language::kEnglish).starts_with("Error: "))
        << rule.message.number;
    EXPECT_TRUE(text::bilingual(rule.message, text::Language::kJapanese).starts_with("エラー："))
        << rule.message.number;
  }
}

TEST(LogbookCheck, NamesTheElementsInThePersonsWords) {
  const auto named = [](std::initializer_list<records::Setting> set, text::Language language) {
    Struct_Weather record = sound_record();
    records::set(record, set);
    std::string name;
    LogbookCheck check(language, [&](const Finding& found) { name = found.place.named; });
    check.take(line_of(record));
    return name;
  };
  using enum text::Language;
  EXPECT_EQ(named({{"VV", "50"}}, kEnglish), "visibility (VV)");
  EXPECT_EQ(named({{"VV", "50"}}, kJapanese), "視程（VV）");
  EXPECT_EQ(named({{"Pw1Pw1", "30"}}, kEnglish), "first swell, wave period (Pw1Pw1)");
  EXPECT_EQ(named({{"Pw1Pw1", "30"}}, kJapanese), "うねり1の周期（Pw1Pw1）");
  EXPECT_EQ(named({{"Nh", "7"}}, kEnglish),
            "total cloud amount (N), amount of the lowest cloud (Nh)");
  EXPECT_EQ(named({{"W2", "x"}}, kEnglish), "past weather (W2)") << "the name bears the symbol";
  EXPECT_EQ(named({{"VosClim3", "361"}}, kEnglish), "ship's heading");
}

// Every element has a name in both languages: a symbol alone says nothing to a port officer.
TEST(LogbookCheck, HasANameForEveryElementOfALine) {
  for (const observation::LogbookColumn& column : observation::logbook_columns()) {
    if (column.field == nullptr) continue;
    using W = Struct_Weather;
    if (column.field == &W::Year || column.field == &W::Month || column.field == &W::YY ||
        column.field == &W::GG)
      continue;
    for (const auto language : {text::Language::kEnglish, text::Language::kJapanese})
      EXPECT_NE(explain::named(column.field, language), explain::symbol_of(column.field))
          << int{column.first};
  }
}

// ---- Between lines

std::string at(const char* day, const char* hour,
               std::initializer_list<records::Setting> settings = {}) {
  Struct_Weather record = sound_record();
  records::set(record, {{"YY", day}, {"GG", hour}});
  records::set(record, settings);
  return line_of(record);
}

TEST(LogbookCheck, NamesTheLineThatWasSavedBefore) {
  const Checked checked = check({at("15", "12"), at("18", "15", {{"TTT", "150"}}), at("15", "12"),
                                 at("15", "12", {{"TTT", "149"}})});
  ASSERT_EQ(names(checked),
            (Names{"saved_twice 2-11", "order 2-11", "same_hour 2-11", "order 2-11"}));
  EXPECT_EQ(checked.findings[0].line, 3U);
  EXPECT_EQ(checked.findings[0].text, "The same line stands in line 1 already.");
  EXPECT_EQ(checked.findings[2].text, "Line 3 tells the same hour with other values.");
}

// One date that is wrong by years, and one line that was put elsewhere: the lines behind are sound.
TEST(LogbookCheck, BlamesTheLineThatIsOutOfOrderAndNotTheOnesBehindIt) {
  const Checked future = check({at("14", "00"), at("14", "06"), at("14", "12", {{"Year", "2041"}}),
                                at("14", "18"), at("15", "00")});
  const auto is_of_order = [](const Finding& each) {
    return each.kind->name == "later" || each.kind->name == "order";
  };
  ASSERT_EQ(std::ranges::count_if(future.findings, is_of_order), 1);
  const auto found = std::ranges::find_if(future.findings, is_of_order);
  EXPECT_EQ(found->line, 3U);
  EXPECT_EQ(found->text, "The hour is later than that of line 4 behind it, of the same ship.");

  const Checked swapped = check({at("14", "00"), at("14", "06"), at("15", "06"), at("14", "18"),
                                 at("15", "00"), at("14", "12"), at("15", "12")});
  std::vector<std::uint64_t> lines;
  for (const Finding& each : swapped.findings)
    if (is_of_order(each)) lines.push_back(each.line);
  EXPECT_EQ(lines, (std::vector<std::uint64_t>{3, 6}));
}

TEST(LogbookCheck, HoldsNoLineAgainstAValueThatWasRefused) {
  // She lies still, and something else has changed.
  const auto still = [](const char* hour, const char* air, const char* sea) {
    return at("14", hour, {{"TwTwTw", sea}, {"TTT", air}, {"Vs", "0"}, {"Ds", "0"}});
  };
  const Checked checked =
      check({still("00", "150", "178"), still("03", "151", "781"), still("06", "149", "178")});
  for (const Finding& each : checked.findings) EXPECT_EQ(each.line, 2U) << each.text;
  EXPECT_EQ(checked.summary.with_errors(), 1U);
  EXPECT_EQ(checked.summary.with_doubts(), 0U);
}

// 35 N but for one line: the line behind it is back where the ship was.
TEST(LogbookCheck, BlamesTheLineThatIsElsewhereAndNotTheOneBehindIt) {
  const auto still = [](const char* hour, const char* quadrant, const char* air) {
    return at("14", hour,
              {{"Qc", quadrant}, {"TTT", air}, {"Vs", "0"}, {"Ds", "0"}, {"a", ""}, {"ppp", ""}});
  };
  const Checked once = check({still("00", "1", "150"), still("03", "1", "151"),
                              still("06", "3", "150"), still("09", "1", "152")});
  ASSERT_EQ(names(once), Names{"doubt Qc LaDeg LaMin 12-12 13-15"});
  EXPECT_EQ(once.findings[0].line, 3U);
  EXPECT_EQ(once.findings[0].rule, "north_for_south");
  EXPECT_NE(once.summary.words().find("1 x hemisphere (Qc), latitude (LaDeg), col. 12-15: "),
            std::string::npos)
      << once.summary.words();
  // From there on every line: it is told of the first, and she is there.
  const Checked stays = check({still("00", "1", "150"), still("03", "3", "151"),
                               still("06", "3", "150"), still("09", "3", "151")});
  ASSERT_EQ(names(stays), Names{"doubt Qc LaDeg LaMin 12-12 13-15"});
  EXPECT_EQ(stays.findings[0].line, 2U);
}

TEST(LogbookCheck, DoubtsNoValueThatItRefuses) {
  const Checked checked = check({at("14", "00", {{"TTT", "781"}})});
  EXPECT_EQ(names(checked), Names{"limit TTT 31-33"});
}

TEST(LogbookCheck, TakesACorrectionForNothingToAnswer) {
  const Checked checked = check({at("15", "12"), at("15", "12", {{"TTT", "149"}})});
  EXPECT_EQ(names(checked), Names{"same_hour 2-11"});
  EXPECT_EQ(checked.findings[0].kind->severity, Severity::kNote);
  EXPECT_TRUE(checked.summary.is_sound());
  EXPECT_FALSE(checked.summary.is_empty());
}

TEST(LogbookCheck, KeepsTheShipsOfAFleetApart) {
  const std::string one = at("15", "12");
  const std::string other =
      at("15", "12", {{"CallSign", "7ABC"}, {"LaDeg", "05"}}).replace(165, 7, "9300001");
  EXPECT_EQ(names(check({one, other})), Names{});
  EXPECT_EQ(names(check({one, other, at("15", "09"), other})),
            (Names{"order 2-11", "saved_twice 2-11"}));
}

TEST(LogbookCheck, DoubtsASpeedBetweenTwoPositions) {
  const Checked checked =
      check({at("15", "12"), at("15", "15", {{"LaDeg", "45"}, {"TTT", "150"}})});
  ASSERT_FALSE(checked.findings.empty());
  EXPECT_EQ(checked.findings[0].rule, "ship_too_fast");
  EXPECT_EQ(checked.findings[0].line, 2U);
  EXPECT_EQ(checked.findings[0].kind->severity, Severity::kDoubt);
}

// Nothing of it grows with the lines: what was forgotten is missed and never told wrongly.
TEST(LogbookCheck, ForgetsTheShipsAndHoursOfLongAgo) {
  std::vector<std::string> lines{at("15", "12")};
  for (std::size_t i = 0; i < explain::kMostShips; ++i)
    lines.push_back(at("15", "12", {{"CallSign", ""}})
                        .replace(71, 6, std::to_string(100000 + i))
                        .replace(165, 7, "       "));
  lines.push_back(at("15", "09"));
  EXPECT_EQ(names(check(lines)), Names{});
}

// ---- Whose line it is

// 9074729: 63 and 0 and 35 and 16 and 21 and 4 are 139. 9300001: 63 and 18 are 81.
TEST(LogbookCheck, KnowsASoundImoNumberByItsLastFigure) {
  for (const char* const sound : {"9074729", "9300001", "0000000"})
    EXPECT_TRUE(explain::is_sound_imo_number(sound)) << sound;
  for (const char* const wrong :
       {"9074728", "9074279", "9300000", "", "907472", "90747290", "907472x", "IMO9074"})
    EXPECT_FALSE(explain::is_sound_imo_number(wrong)) << wrong;
}

/// Observations of one ship, of which line i has that call sign and IMO number.
Checked check_ships(const std::vector<std::pair<const char*, const char*>>& ships) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < ships.size(); ++i) {
    // She lies still, and nothing is to be doubted of it.
    std::string line = at("01", "00", {{"Vs", "0"}, {"Ds", "0"}, {"a", "4"}, {"ppp", "000"}});
    std::string hour =
        std::to_string(100 + 1 + i / 24).substr(1) + std::to_string(100 + i % 24).substr(1);
    line.replace(7, 4, hour).replace(31, 2, std::to_string(50 + i % 7));
    line.replace(71, 7, std::string(ships[i].first).append(7, ' ').substr(0, 7));
    line.replace(165, 7, std::string(ships[i].second).append(7, ' ').substr(0, 7));
    lines.push_back(line);
  }
  return check(lines);
}

using Ships = std::vector<std::pair<const char*, const char*>>;
Ships many(const char* call_sign, const char* imo_number, std::size_t count = 60) {
  return Ships(count, {call_sign, imo_number});
}
Ships operator+(Ships ships, const Ships& more) {
  ships.insert(ships.end(), more.begin(), more.end());
  return ships;
}

/// "other_call_sign 61" and so on: kind and line.
Names kinds_and_lines(const Checked& checked) {
  Names names;
  for (const Finding& finding : checked.findings)
    names.push_back(std::string(finding.kind->name) + " " + std::to_string(finding.line));
  return names;
}

constexpr const char* kOwn = "9074729";
constexpr const char* kOther = "9300001";

TEST(LogbookCheck, TellsALoneLineOfAnotherIdentityFromAChange) {
  struct Log {
    Ships ships;
    Names found;
  };
  const Log logs[] = {
      {many("JXKV", kOwn), {}},
      // The IMO number under a call sign.
      {many("JXKV", kOwn) + many("JXKV", kOther, 1) + many("JXKV", kOwn, 5),
       {"other_imo_number 61"}},
      {many("JXKV", kOwn, 5) + many("JXKV", kOther, 3) + many("JXKV", kOwn, 1),
       {"other_imo_number 6", "other_imo_number 7", "other_imo_number 8"}},
      {many("JXKV", kOwn, 5) + many("JXKV", kOther, 4) + many("JXKV", kOther, 5),
       {"imo_number_changed 6"}},
      {many("JXKV", kOwn, 5) + many("JXKV", kOther, 2), {"imo_number_changed 6"}},
      {many("JXKV", "9074728", 1) + many("JXKV", kOwn, 1),
       {"imo_number 1", "imo_number_changed 2"}},
      // Where it is left empty nobody says another one.
      {many("JXKV", "", 5) + many("JXKV", kOwn, 5) + many("JXKV", "", 5), {}},
      // The call sign of an IMO number.
      {many("JXKV", kOwn) + many("JXXV", kOwn, 1) + many("JXKV", kOwn, 5), {"other_call_sign 61"}},
      {many("JXKV", kOwn) + many("7ABC", kOwn), {"call_sign_changed 61"}},
      {many("JXKV", kOwn, 9) + many("7ABC", kOwn, 1), {"call_sign_changed 10"}},
      {many("JXKV", kOwn, 9) + many("7ABC", kOwn, 9) + many("JXKV", kOwn, 9),
       {"call_sign_changed 10", "call_sign_changed_again 19"}},
      // Both are others.
      {many("JXKV", kOwn) + many("7ABC", kOther, 1) + many("JXKV", kOwn, 5), {"other_ship 61"}},
      {many("JXKV", "") + many("JXXV", "", 3) + many("JXKV", "", 5),
       {"other_ship 61", "other_ship 62", "other_ship 63"}},
      {many("7ABC", kOther, 2) + many("JXKV", kOwn), {"other_ship 1", "other_ship 2"}},
      {many("JXKV", kOwn) + many("7ABC", kOther, 1), {"other_ship 61"}},
      {many("JXKV", kOwn, 40) + many("7ABC", kOther, 1) + many("JXKV", kOwn, 5), {}},
      // A fleet: more than a few lines of each, or not behind each other.
      {many("JXKV", kOwn) + many("7ABC", kOther, 4) + many("JXKV", kOwn, 5), {}},
      {many("JXKV", kOwn) + many("7ABC", kOther, 2) + many("WXYZ", "9224726"), {}},
      {many("JXKV", kOwn, 1) + many("7ABC", kOther, 1) + many("JXKV", kOwn, 1) +
           many("7ABC", kOther, 1),
       {}},
      {many("*******", kOwn, 5) + many("*******", kOther, 1) + many("*******", kOwn, 5), {}},
  };
  for (const Log& log : logs) {
    Names found;
    for (const std::string& name : kinds_and_lines(check_ships(log.ships)))
      if (!name.starts_with("call_sign ")) found.push_back(name);
    EXPECT_EQ(found, log.found);
  }
}

TEST(LogbookCheck, CountsALineOnceWhateverIsFoundOfItLater) {
  const Checked error =
      check_ships(many("JXKV", kOwn) + many("JXKV", "9074728", 1) + many("JXKV", kOwn, 5));
  EXPECT_EQ(kinds_and_lines(error), (Names{"imo_number 61", "other_imo_number 61"}));
  EXPECT_EQ(error.summary.with_errors(), 1U);
  EXPECT_EQ(error.summary.with_doubts(), 0U);
  const Checked doubt =
      check_ships(many("JXKV", kOwn) + many("7ABC", kOther, 1) + many("JXKV", kOwn, 5));
  EXPECT_EQ(doubt.summary.with_errors(), 0U);
  EXPECT_EQ(doubt.summary.with_doubts(), 1U);
  EXPECT_EQ(doubt.findings[0].text, "The line is of 7ABC; the lines around it are of JXKV.");
  EXPECT_EQ(doubt.findings[0].when, "2014-11-03 12 UTC");
  const Checked note = check_ships(many("JXKV", kOwn, 9) + many("7ABC", kOwn, 9));
  EXPECT_TRUE(note.summary.is_sound());
  EXPECT_EQ(note.findings[0].text,
            "From this line on the call sign is 7ABC; before it was JXKV (the IMO number is the "
            "same, 9074729).");
}

// ---- The summary

// The figures of the first line are not those of the others.
TEST(LogbookCheck, NamesTheLineWhoseFiguresStandForAGroup) {
  const auto words = [](const char* other) {
    return check({at("15", "12", {{"VV", "50"}}), at("16", "12", {{"VV", other}})}).summary.words();
  };
  EXPECT_NE(words("51").find("2 x visibility (VV), col. 22-23: for example line 1: 50 is not in "
                             "code table 4377.\n"),
            std::string::npos)
      << words("51");
  EXPECT_NE(words("50").find("2 x visibility (VV), col. 22-23: 50 is not in code table 4377.\n"),
            std::string::npos)
      << words("50");
}

TEST(LogbookCheck, SumsUpForAPerson) {
  const Checked checked =
      check({at("15", "12"), at("15", "12"), "", at("16", "00", {{"VV", "50"}}),
             at("16", "06", {{"VV", "51"}, {"TTT", "150"}, {"Ds", "0"}, {"Vs", "0"}})});
  EXPECT_EQ(
      checked.summary.words(),
      "Lines: 5 (sound: 2, with errors: 3, with doubts: 0)\n"
      "JXKV: 4, from 2014-11-15 12 UTC to 2014-11-16 06 UTC\n"
      "\n"
      "Errors\n"
      "1 x The line has 0 characters; a line of this layout has 172.\n"
      "    Line 3\n"
      "    To mend: The line was cut off or changed outside the program. Aboard, save the "
      "weather report of that hour again; ashore, copy the logbook from the ship again and do "
      "not edit it.\n"
      "2 x visibility (VV), col. 22-23: for example line 4: 50 is not in code table 4377.\n"
      "    Line 4 (2014-11-16 00 UTC), 5 (2014-11-16 06 UTC)\n"
      "    To mend: Correct the weather report of that hour and save it; the new line "
      "counts.\n"
      "\n"
      "Notes\n"
      "1 x col. 2-11: The same line stands in line 1 already.\n"
      "    Line 2 (2014-11-15 12 UTC)\n"
      "    To mend: Nothing is to be done: the line counts once.\n");
  EXPECT_EQ(checked.summary.with_errors(), 3U);
}

TEST(LogbookCheck, NamesTheFirstLinesOnlyAndCountsAll) {
  const std::vector<std::string> lines(1000, "x");
  const std::string words = check(lines).summary.words();
  EXPECT_NE(words.find("1000 x The line has 1 character; "), std::string::npos) << words;
  EXPECT_NE(words.find("    Line 1, 2, 3, 4, 5, ...\n"), std::string::npos) << words;
}

TEST(LogbookCheck, SaysSoOfALogbookWithoutLines) {
  EXPECT_EQ(check({}).summary.words(), "The logbook holds no line.\n");
  EXPECT_TRUE(check({}).summary.is_sound());
}

TEST(LogbookCheck, HasItsTextsInBothLanguages) {
  for (const explain::FindingKind& kind : explain::finding_kinds()) {
    for (const text::Id id : {kind.text, kind.mend}) {
      EXPECT_NE(text::bilingual(id, text::Language::kEnglish), "") << kind.name;
      EXPECT_NE(text::bilingual(id, text::Language::kJapanese), "") << kind.name;
    }
  }
  std::set<std::string_view> kinds;
  for (const explain::FindingKind& kind : explain::finding_kinds()) kinds.insert(kind.name);
  EXPECT_EQ(kinds.size(), explain::finding_kinds().size());
}

// ---- Any bytes

TEST(LogbookCheck, SurvivesAnyBytesAndPrintsNoneOfThem) {
  std::mt19937 engine(3);
  const std::string sound = line_of(sound_record());
  std::vector<std::string> lines;
  for (int i = 0; i < 3000; ++i) {
    std::string line = sound;
    for (auto n = engine() % 20; n > 0; --n)
      line[engine() % line.size()] = static_cast<char>(engine());
    if (i % 7 == 0) line.resize(engine() % 180);
    lines.push_back(line);
  }
  const Checked checked = check(lines);
  for (const Finding& finding : checked.findings)
    ASSERT_FALSE(text::has_control(finding.text)) << finding.text;
  const std::string words = checked.summary.words();
  for (const char c : text::replace_all(words, "\u00B0", ""))
    ASSERT_TRUE(c == '\n' || (c >= ' ' && c < '\x7f')) << int{c};
  EXPECT_EQ(check(lines).summary.words(), words) << "twice the same";
}

}  // namespace
