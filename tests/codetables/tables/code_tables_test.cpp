#include "codetables/tables/code_tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "elements/form/field_codes.h"
#include "elements/form/field_editors.h"
#include "observation/Struct_Weather.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/texts.h"

namespace {

using codetables::CodeTable;
using text::Language;

constexpr Language kLanguages[] = {Language::kEnglish, Language::kJapanese};

std::vector<std::string> words(std::string_view list) {
  std::vector<std::string> result;
  while (!list.empty()) {
    const auto end = std::min(list.find(' '), list.size());
    result.emplace_back(list.substr(0, end));
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return result;
}

/// The figures of a list such as "00 05-07 //": 00, 05, 06, 07, //.
std::set<std::string> figures_of_list(std::string_view list) {
  std::set<std::string> result;
  for (const std::string& word : words(list)) {
    const auto dash = word.find('-');
    if (dash == std::string::npos) {
      result.insert(word);
      continue;
    }
    const int last = text::leading_int(word.substr(dash + 1));
    for (int figure = text::leading_int(word); figure <= last; ++figure)
      result.insert(text::format_digits(figure, static_cast<int>(dash)));
  }
  return result;
}

/// What the tables have, written down a second time from the manual of codes.
struct Expected {
  const char* number;
  const char* symbols;
  const char* figures;
};

constexpr Expected kExpected[] = {
    {"0200", "a", "0-8 /"},        {"0439", "bi", "0-9 /"},
    {"0509", "CH", "0-9 /"},       {"0513", "CL", "0-9 /"},
    {"0515", "CM", "0-9 /"},       {"0639", "ci", "0-9 /"},
    {"0700", "Ds", "0-9 /"},       {"0739", "Di", "0-9 /"},
    {"0877", "dd", "00-36 99 //"}, {"0877", "dw1dw1 dw2dw2", "00-36 99 //"},
    {"1600", "h", "0-9 /"},        {"1751", "Is", "1-5"},
    {"1819", "iR", "0-4"},         {"1855", "iw", "0 1 3 4"},
    {"1860", "iX", "1-7"},         {"2700", "N", "0-9 /"},
    {"2700", "Nh", "0-9 /"},       {"3333", "Qc", "1 3 5 7"},
    {"3551", "Rs", "0-4"},         {"3739", "Si", "0-9 /"},
    {"3845", "SnT SnTd", "0 1 9"}, {"3850", "Ss", "0-7"},
    {"3855", "Sw", "0-2 5-7"},     {"4377", "VV", "00-50 56-99 //"},
    {"4451", "Vs", "0-9 /"},       {"4561", "W1 W2", "0-9 /"},
    {"4677", "ww", "00-99 //"},    {"5239", "zi", "0-9 /"},
};

/// Members of the record that hold a number or a text, not a figure of a table.
constexpr std::string_view kNoTable[] = {
    // Date, hour and position.
    "Year", "Month", "YY", "GG", "gg", "GGExact", "LoDeg", "LaDeg", "LaMin", "LoMin",
    // Quantities: knots, tenths of a degree and of a hectopascal, seconds, half metres,
    // centimetres.
    "ff", "fff", "TTT", "TdTdTd", "PPPP", "ppp", "TwTwTw", "TbTbTb", "PwaPwa", "HwaHwa", "PwPw",
    "HwHw", "Pw1Pw1", "Hw1Hw1", "Pw2Pw2", "Hw2Hw2", "EsEs",
    // The ship and the logbook.
    "VosClim1", "VosClim2", "VosClim3", "VosClim4", "VosClim5", "CallSign", "LogText1", "LogText2",
    "LogText3", "ShipFixed", "LogExtra"};

bool has_no_table(std::string_view symbol) {
  return std::find(std::begin(kNoTable), std::end(kNoTable), symbol) != std::end(kNoTable);
}

TEST(CodeTables, AreThoseOfTheRecordInTheOrderOfTheirNumbers) {
  const auto tables = codetables::code_tables();
  ASSERT_EQ(tables.size(), std::size(kExpected));
  for (std::size_t i = 0; i < tables.size(); ++i) {
    EXPECT_EQ(tables[i].number, kExpected[i].number);
    std::vector<std::string> symbols;
    for (const std::string_view symbol : tables[i].symbols)
      if (!symbol.empty()) symbols.emplace_back(symbol);
    EXPECT_EQ(symbols, words(kExpected[i].symbols)) << kExpected[i].number;
  }
}

TEST(CodeTables, EveryMemberOfTheRecordHasOneOrIsANumberOrAText) {
  for (const WeatherField& field : weather_fields()) {
    EXPECT_NE(codetables::table_of(field.name) != nullptr, has_no_table(field.name)) << field.name;
  }
}

TEST(CodeTables, AreFoundBySymbolAndByNumber) {
  for (const Expected& expected : kExpected) {
    for (const std::string& symbol : words(expected.symbols)) {
      const CodeTable* const table = codetables::table_of(symbol);
      ASSERT_NE(table, nullptr) << symbol;
      EXPECT_EQ(table->number, expected.number);
      EXPECT_TRUE(std::any_of(weather_fields().begin(), weather_fields().end(),
                              [&](const WeatherField& field) { return field.name == symbol; }))
          << symbol << " is a member of the record";
    }
    const CodeTable* const numbered = codetables::table_numbered(expected.number);
    ASSERT_NE(numbered, nullptr) << expected.number;
    EXPECT_EQ(numbered->number, expected.number);
  }
  // Where symbols read a table in words of their own, the number gives what the first of them
  // reads.
  EXPECT_EQ(codetables::table_numbered("0877"), codetables::table_of("dd"));
  EXPECT_EQ(codetables::table_numbered("2700"), codetables::table_of("N"));
  for (const std::string_view unknown : {"", "264", "0264", "4678", "ww", "04677"})
    EXPECT_EQ(codetables::table_numbered(unknown), nullptr) << unknown;
  for (const std::string_view unknown : {"", "WW", "w", "dw", "4677", "reading"})
    EXPECT_EQ(codetables::table_of(unknown), nullptr) << unknown;
}

// Any one or two bytes, and figures that are too long: just those of the list mean something.
TEST(CodeTables, EachHasItsFiguresAndNoOthers) {
  for (const Expected& expected : kExpected) {
    const std::set<std::string> figures = figures_of_list(expected.figures);
    for (const std::string& symbol : words(expected.symbols)) {
      const CodeTable* const table = codetables::table_of(symbol);
      ASSERT_NE(table, nullptr) << symbol;
      std::set<std::string> known;
      const auto ask = [&](const std::string& candidate) {
        if (codetables::meaning(*table, candidate, Language::kEnglish)) known.insert(candidate);
      };
      ask("");
      for (int first = 0; first < 256; ++first) {
        ask(std::string(1, static_cast<char>(first)));
        for (int second = 0; second < 256; ++second)
          ask({static_cast<char>(first), static_cast<char>(second)});
      }
      for (const std::string& figure : figures) {
        ask(figure + "0");
        ask("0" + figure + "0");
        ask(figure + " ");
        ask(" " + figure);
        ask(figure + '\0');
      }
      EXPECT_EQ(known, figures) << symbol;
    }
  }
}

TEST(CodeTables, TwoFiguresOfATableNeverReadTheSame) {
  for (const CodeTable& table : codetables::code_tables()) {
    for (const Language language : kLanguages) {
      std::map<std::string, std::string> seen;
      for (int figure = 0; figure < 112; ++figure) {
        const std::string figures = figure == 110   ? "/"
                                    : figure == 111 ? "//"
                                    : figure < 10   ? text::format_int(figure)
                                                    : text::format_digits(figure - 10, 2);
        const auto text = codetables::meaning(table, figures, language);
        EXPECT_EQ(codetables::holds(table, figures), text.has_value()) << figures;
        if (!text) continue;
        EXPECT_TRUE(seen.emplace(*text, figures).second)
            << table.number << ": " << figures << " and " << seen[*text] << " mean " << *text;
      }
      EXPECT_GE(seen.size(), 3U) << table.number;
    }
  }
}

bool is_english(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

TEST(CodeTables, EveryMeaningStandsInBothLanguagesAndAlone) {
  for (const Expected& expected : kExpected) {
    const CodeTable* const table = codetables::table_of(words(expected.symbols).front());
    ASSERT_NE(table, nullptr);
    for (const std::string& figures : figures_of_list(expected.figures)) {
      const std::string where = std::string(expected.number) + " " + figures;
      const std::string english = codetables::meaning(*table, figures, Language::kEnglish).value();
      const std::string japanese =
          codetables::meaning(*table, figures, Language::kJapanese).value();
      EXPECT_TRUE(is_english(english)) << where;
      // A range such as "2/10 - 3/10" or "100m<=h<200m" is a line of signs in both; none is empty.
      EXPECT_FALSE(english.empty()) << where;
      EXPECT_FALSE(japanese.empty()) << where;
      for (const std::string& text : {english, japanese}) {
        EXPECT_EQ(text.find("/*E*/"), std::string::npos) << where;
        EXPECT_EQ(text.find('%'), std::string::npos) << where << ": a place left open in " << text;
        EXPECT_NE(text.front(), ' ') << where;
      }
    }
  }
}

// Lines that are the same in both languages are those without a word in them.
TEST(CodeTables, OnlyLinesWithoutAWordAreTheSameInBothLanguages) {
  std::set<std::string> same;
  for (const Expected& expected : kExpected) {
    const CodeTable* const table = codetables::table_of(words(expected.symbols).front());
    ASSERT_NE(table, nullptr);
    for (const std::string& figures : figures_of_list(expected.figures)) {
      const auto english = codetables::meaning(*table, figures, Language::kEnglish);
      if (english == codetables::meaning(*table, figures, Language::kJapanese))
        same.insert(english.value());
    }
  }
  EXPECT_EQ(same, (std::set<std::string>{"4/10", "5/10", "6/10", "10/10"}));
}

// The two lists whose lines begin with the code: the line holds the figures of its row, and the
// meaning is what follows them.
TEST(CodeTables, LinesThatBeginWithTheirFiguresBeginWithTheRightOnes) {
  std::set<std::string_view> numbers;
  for (const CodeTable& table : codetables::code_tables()) {
    if (!table.lines_begin_with_figures) continue;
    numbers.insert(table.number);
    const std::string gap = table.number == "0200" ? "    " : "      ";
    for (const codetables::CodeRow& row : table.rows) {
      if (row.figures == "//") continue;
      for (const Language language : kLanguages) {
        EXPECT_EQ(std::string(text::bilingual(row.text, language)),
                  "    " + std::string(row.figures) + gap +
                      codetables::meaning(table, row.figures, language).value_or("-"))
            << table.number;
      }
    }
  }
  EXPECT_EQ(numbers, (std::set<std::string_view>{"0200", "4677"}));
}

std::string_view symbol_of(std::string Struct_Weather::*member) {
  for (const WeatherField& field : weather_fields())
    if (field.member == member) return field.name;
  return {};
}

// Whatever the form takes for a member that a table serves can be put into words.
TEST(CodeTables, WhatTheFormAcceptsHasAMeaning) {
  // The rate of ice accretion is accepted up to 5, and the table ends with 4.
  const std::set<std::string> without_meaning = {"Rs 5"};
  std::set<std::string> missing;
  std::set<std::string> asked;
  for (const elements::FieldRow& row : elements::field_rows()) {
    if (row.member == nullptr || row.beside != nullptr) continue;
    const std::string_view symbol = symbol_of(row.member);
    if (has_no_table(symbol)) continue;
    const CodeTable* const table = codetables::table_of(symbol);
    ASSERT_NE(table, nullptr) << symbol;
    std::vector<std::string> typed = {"/", "//"};
    for (int number = 0; number <= 9999; ++number) typed.push_back(text::format_int(number));
    for (int number = 0; number <= 9; ++number) typed.push_back("0" + text::format_int(number));
    for (const std::string& one : typed) {
      const elements::Checked checked = elements::check_field(row.editor, one);
      if (checked.verdict == elements::Verdict::kRefused) continue;
      const std::string figures = elements::figures_of(row.field, checked.text);
      asked.insert(std::string(symbol) + " " + figures);
      for (const Language language : kLanguages) {
        if (!codetables::meaning(*table, figures, language))
          missing.insert(std::string(symbol) + " " + figures);
      }
    }
  }
  EXPECT_EQ(missing, without_meaning);
  for (const char* one : {"dd 00", "dd 36", "dd 99", "dw1dw1 99", "dw2dw2 //", "VV 90", "VV //",
                          "ww 00", "ww //", "W2 /", "h 9", "h /", "CL 3", "Is 5", "zi 9", "a 8"})
    EXPECT_TRUE(asked.contains(one)) << one;
}

struct Line {
  const char* symbol;
  const char* figures;
  const char* english;
  const char* japanese;
};

constexpr Line kLines[] = {
    {"a", "0", "Increasing, then decreasing", "上昇後下降"},
    {"a", "4", "Steady", "一定"},
    {"a", "8", "Steady or increasing, then decreasing; or decreasing, then decreasing more rapidly",
     "一定後下降、上昇後下降、または下降後急下降"},
    {"a", "/", "Unknown", "不明"},
    {"bi", "0", "No ice of land origin", "陸氷なし"},
    {"bi", "4", "Up to and including 10 growlers and bergy bits, no icebergs",
     "氷岩・氷山片10個以下、氷山なし"},
    {"bi", "/",
     "Unable to report, because of darkness, lack of visibility, or because only sea ice is "
     "visible",
     "暗闇、視程不良、または海氷しか見えないため通報できない"},
    {"CH", "0", "No CH clouds", "上層雲（CH）なし"},
    {"CH", "6", "Cs veil more than 45 deg. above the horizon", "水平線上45度を超えるCsのベール"},
    {"CH", "/", "CH unknown", "上層雲（CH）不明"},
    {"CL", "1", "Cu with little vertical extent, or ragged Cu other than of bad weather",
     "鉛直方向の発達が小さい偏平なCu、または悪天時のものではない断片状のCu"},
    {"CL", "9", "Cb with clearly fibrous or striated top", "頂部が明瞭な繊維状・すじ状のCb"},
    {"CM", "2", "Opaque As, or Ns", "不透明なAs、またはNs"},
    {"CM", "9", "Ac of a chaotic sky", "混沌とした空のAc"},
    {"ci", "1",
     "Ship in open lead more than 1.0 nautical mile wide, or in fast ice with boundary beyond "
     "limit of visibility",
     "船は幅1.0海里を超える開けた水路の中、または境界が視程外にある定着氷の中"},
    {"ci", "6", "Strips and patches of pack ice with open water between",
     "帯状または斑状の流氷、その間は開放水面"},
    {"Ds", "0", "Position unchanged (stationary)", "位置に変化なし（停船）"},
    {"Ds", "8", "North (N)", "北（N）"},
    {"Ds", "/", "Not observed", "観測せず"},
    {"Di", "0", "Ship in shore or flaw lead", "船は沿岸水路またはフローリード内にある"},
    {"Di", "9", "Not determined (ship in ice)", "決定できない（船は氷の中にある）"},
    {"dd", "00", "Calm", "静穏"},
    {"dd", "01", "10 degrees", "10度"},
    {"dd", "18", "180 degrees", "180度"},
    {"dd", "36", "360 degrees", "360度"},
    {"dd", "99", "Variable, or all directions", "風向不定、または全方向"},
    {"dw1dw1", "00", "No swell wave", "うねりなし"},
    {"dw2dw2", "27", "270 degrees", "270度"},
    {"dw1dw1", "99", "Direction is unknown", "方向不明"},
    {"h", "0", "h<50m", "50m未満"},
    {"h", "5", "600m<=h<1000m", "600m≦h<1000m"},
    {"h", "9", "2500m<=h, or no clouds", "2500m以上、または雲なし"},
    {"Is", "1", "Icing from ocean spray", "海水のしぶきによる着氷"},
    {"Is", "5", "Icing from spray and rain", "しぶきと雨による着氷"},
    {"iw", "4", "Wind speed obtained from anemometer, in knots", "風速は風速計による、単位ノット"},
    {"N", "2", "2/10-3/10", "2/10～3/10"},
    {"N", "7", "9/10 or more (, but not 10/10)", "9/10以上（ただし10/10ではない）"},
    {"N", "9", "Unknown (sky obscured by meteorological phenomena)",
     "不明（大気現象により天空が見えない）"},
    {"Nh", "2", "2/10 - 3/10", "2/10～3/10"},
    {"Nh", "3", "4/10", "4/10"},
    {"Nh", "6", "7/10 - 8/10", "7/10～8/10"},
    {"Qc", "1", "North latitude, east longitude", "北緯・東経"},
    {"Qc", "5", "South latitude, west longitude", "南緯・西経"},
    {"Rs", "3", "Ice melting or breaking up slowly", "着氷がゆっくり融解または剥離している"},
    {"Si", "2", "Young ice (grey ice, grey-white ice), 10-30 cm thick",
     "板状軟氷（薄い板状軟氷、厚い板状軟氷）、厚さ10～30cm"},
    {"Si", "6",
     "Predominantly medium (70-120 cm thick) and thick (>120 cm thick) first-year ice with some "
     "thinner (younger) first-year ice",
     "主に並の一年氷（厚さ70～120cm）および厚い一年氷（厚さ120cm超）、一部により薄い（若い）一年"
     "氷"},
    {"SnT", "1", "Negative", "負"},
    {"SnTd", "9", "Relative humidity follows", "続く数字は相対湿度"},
    {"Ss", "3", "Negative, bucket", "負、採水バケツ"},
    {"Sw", "2", "Iced bulb, measured", "湿球が凍結、実測"},
    {"Sw", "6", "Negative, computed", "負、計算"},
    {"VV", "01", "0.1 km", "0.1km"},
    {"VV", "50", "5.0 km", "5.0km"},
    {"VV", "56", "6 km", "6km"},
    {"VV", "80", "30 km", "30km"},
    {"VV", "81", "35 km", "35km"},
    {"VV", "88", "70 km", "70km"},
    {"VV", "90", "VV<50m", "50m未満"},
    {"VV", "93", "500m<=VV<1000m", "500m≦VV<1km"},
    {"VV", "99", "50km<=VV", "50km以上"},
    {"VV", "//", "Unknown", "不明"},
    {"Vs", "8", "36 to under 40 knots", "36ノット以上40ノット未満"},
    {"Vs", "9", "40 knots or more", "40ノット以上"},
    {"W1", "0", "Cloud covering 1/2 or less of the sky throughout the appropriate period",
     "対象期間を通じて雲量が全天の1/2以下"},
    {"W2", "4", "Fog or ice fog, visibility less than 1 km; or thick haze visibility less than 2km",
     "霧または氷霧（視程1km未満）、または濃煙霧（視程2km未満）"},
    {"W1", "9", "Thunder(s)", "雷電"},
    {"W2", "/", "Not observed/Unclear", "観測せず／不明"},
    {"ww", "00",
     "Cloud development not observed or not observable (Characteristic change of the state of "
     "sky)",
     "雲の発達を観測しなかった、または観測できなかった（空模様の特徴的な変化）"},
    {"ww", "05", "Haze", "煙霧"},
    {"ww", "10", "Mist", "もや"},
    {"ww", "17", "Thunderstorm, but no precipitation at the time of observation",
     "雷電、ただし観測時に降水なし"},
    {"ww", "45", "Fog or ice fog, sky invisible, no appreciable change during the preceding hour",
     "霧または氷霧、空を透視できない、前1時間内に目立った変化なし"},
    {"ww", "50", "Drizzle, intermittent, slight at the time of observation",
     "観測時に弱い霧雨、断続性（止み間あり）"},
    {"ww", "61", "Rain, continuous, slight at the time of observation",
     "観測時に弱い雨、連続性（止み間なし）"},
    {"ww", "76", "Diamond dust (with or without fog)", "細氷（霧の有無を問わない）"},
    {"ww", "82", "Rain shower(s), violent", "激しいしゅう雨"},
    {"ww", "99", "Thunderstorm, heavy, with hail, small hail or snow pellets",
     "強い雷電、ひょう、氷あられまたは雪あられを伴う"},
    {"ww", "//", "Present weather can't be observed", "現在天気を観測できない"},
    {"zi", "0", "Ship in open water with floating ice in sight",
     "船は開放水面にあり、視界内に浮氷あり"},
    {"zi", "7", "Ice under slight pressure ", "氷に弱い圧力がかかっている"},
    {"zi", "9", "Ship beset", "船は氷に閉じ込められている（ビセット）"},
};

TEST(CodeTables, ReadAsTheManualOfCodesDoes) {
  for (const Line& line : kLines) {
    const CodeTable* const table = codetables::table_of(line.symbol);
    ASSERT_NE(table, nullptr) << line.symbol;
    EXPECT_EQ(codetables::meaning(*table, line.figures, Language::kEnglish), line.english)
        << line.symbol << " " << line.figures;
    EXPECT_EQ(codetables::meaning(*table, line.figures, Language::kJapanese), line.japanese)
        << line.symbol << " " << line.figures;
  }
}

}  // namespace
