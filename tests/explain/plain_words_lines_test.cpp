// Which lines there are beside those of the groups: what is missing, the sections behind, and what
// stands around a report.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "explain/plain/plain_words.h"

namespace {

using explain::plain_words;
using explain::PlainLine;
using explain::Told;
using text::Language;

struct Line {
  const char* group;
  const char* sentence;
  Told told;
};

void expect_lines(const char* report, explain::YearMonth when, Language language,
                  const std::vector<Line>& wanted) {
  const auto lines = plain_words(report, when, language);
  EXPECT_EQ(lines.size(), wanted.size()) << report;
  for (std::size_t i = 0; i < lines.size() && i < wanted.size(); ++i) {
    EXPECT_EQ(lines[i].group, wanted[i].group) << report;
    EXPECT_EQ(lines[i].sentence, wanted[i].sentence) << report;
    EXPECT_EQ(lines[i].told, wanted[i].told) << report << ": " << wanted[i].sentence;
  }
}

TEST(PlainLines, SayWhatAShipUsuallySendsAndThisReportLacks) {
  expect_lines(
      "BBXX JXKV 15124 99357 11653 43/// ///// 40132 22200 .....", {2014, 11}, Language::kEnglish,
      {{"BBXX", "Report from a ship.", Told::kSaid},
       {"JXKV", "Call sign JXKV.", Told::kSaid},
       {"15124", "15 November 2014, 12 UTC. Wind speed obtained from anemometer, in knots.",
        Told::kSaid},
       {"99357", "Latitude 35.7° N.", Told::kSaid},
       {"11653", "Longitude 165.3° E.", Told::kSaid},
       {"43///",
        "Amount of precipitation omitted (not available). Manned station, present and past "
        "weather omitted (no observation, data not available). Not reported: height of the "
        "cloud base, visibility.",
        Told::kSaid},
       {"/////", "Not reported: total cloud amount, wind direction, wind speed.",
        Told::kNotReported},
       {"", "Not reported: air temperature, dew point.", Told::kNotReported},
       {"40132", "Pressure 1013.2 hPa.", Told::kSaid},
       {"", "Not reported: pressure tendency.", Told::kNotReported},
       {"22200",
        "Ship's course over the past three hours: position unchanged (stationary). Ship's "
        "speed over the past three hours: under 1 knot.",
        Told::kSaid},
       {"", "Not reported: sea surface temperature, wind waves, swell.", Told::kNotReported}});
}

// A direction without a period and a height is half a swell; no second direction is none.
TEST(PlainLines, SayThatASecondSwellLacksItsGroup) {
  const auto last = [](const char* waves) {
    const std::string report =
        std::string("BBXX JXKV 15124 99357 11653 41497 62718 22200 02183 20604 ") + waves;
    return plain_words(report, {}, Language::kEnglish).back().sentence;
  };
  EXPECT_EQ(last("32531 40905"), "Not reported: period and height of the second swell.");
  EXPECT_EQ(last("325//"), "Not reported: period and height of the first swell.");
  for (const char* const whole : {"325// 40905", "32500 40905", "32531 40905 51103", "30000"})
    EXPECT_FALSE(last(whole).starts_with("Not reported")) << whole;
}

TEST(PlainLines, SayTheDateWholeWhereYearAndMonthAreKnown) {
  struct Row {
    const char* group;
    explain::YearMonth when;
    const char* english;
    const char* japanese;
  };
  for (const Row& row :
       {Row{"1512/",
            {},
            "Day 15, 12 UTC. Not reported: wind indicator (iw).",
            "15日12時（UTC）。通報なし：風の資料（iw）。"},
        Row{"0100/",
            {2024, 3},
            "1 March 2024, 00 UTC. Not reported: wind indicator (iw).",
            "2024年3月1日00時（UTC）。通報なし：風の資料（iw）。"},
        Row{"2900/",
            {2023, 2},
            "Day: 29 does not exist. Hour: 00. Not reported: wind indicator (iw).",
            "日：29 はありえない。時：00。通報なし：風の資料（iw）。"},
        Row{"1524/",
            {},
            "Hour: 24 does not exist. Day: 15. Not reported: wind indicator (iw).",
            "時：24 はありえない。日：15。通報なし：風の資料（iw）。"},
        Row{"//12/",
            {},
            "Hour: 12. Not reported: day, wind indicator (iw).",
            "時：12。通報なし：日、風の資料（iw）。"},
        Row{"1/124",
            {},
            "Day: 1/ cannot be read. Hour: 12. Wind speed obtained from anemometer, in knots.",
            "日：1/ は解読できない。時：12。風速は風速計による、単位ノット。"}}) {
    const std::string report = std::string("BBXX JXKV ") + row.group + " 99357 11653";
    EXPECT_EQ(plain_words(report, row.when, Language::kEnglish)[2].sentence, row.english);
    EXPECT_EQ(plain_words(report, row.when, Language::kJapanese)[2].sentence, row.japanese);
  }
}

TEST(PlainLines, ABareReportNamesAllThatItLacks) {
  expect_lines(
      "BBXX", {}, Language::kEnglish,
      {{"BBXX", "Report from a ship.", Told::kSaid},
       {"", "Not reported: call sign.", Told::kNotReported},
       {"",
        "Not reported: day and hour, latitude, longitude, cloud base and visibility, total "
        "cloud amount and wind, air temperature, dew point, pressure, pressure tendency, "
        "present and past weather, ship's course and speed, sea surface temperature, wind "
        "waves, swell.",
        Told::kNotReported}});
}

TEST(PlainLines, WhatStandsAroundAReportIsNamedInItsPlace) {
  const auto lines =
      plain_words("ZCZC 1\r\nBBXX JXKV 15124 99357 11653= 40132\r\nABC", {}, Language::kEnglish);
  ASSERT_GE(lines.size(), 3U);
  EXPECT_EQ(lines.front().group, "ZCZC 1");
  EXPECT_EQ(lines.front().sentence, "Outside the report.");
  EXPECT_EQ(lines[1].group, "BBXX");
  EXPECT_EQ(lines.back().group, "40132  ABC");
  EXPECT_EQ(lines.back().sentence, "Outside the report.");
  EXPECT_EQ(lines.back().told, Told::kNoPlace);
  const auto bare = plain_words("BBXX = 40132", {}, Language::kEnglish);
  EXPECT_EQ(bare.front().group, "BBXX");
  EXPECT_EQ(bare.back().group, "40132");
}

TEST(PlainLines, OfADamagedGroupNobodySaysThatItIsNotReported) {
  for (const char* const report :
       {"BBXX JXKV 15124 99357 11653 41497 62718 1o152 20108 40132 52014 70566 84531 22200 00178 "
        "20604 30000",
        "BBXX JXKV 15124 99357 11653 41497 62718 10152 20108 40132 52014 70566 872xx 22200 00178 "
        "20604 30000",
        "BBXX JXKV 15124 98357 11653 41497 62718 10152 20108 40132 52014 70566 84531 22200 00178 "
        "20604 30000",
        "BBXX JXKV 15124 99357 11653 41497 62718 10152 29085 40132 52014 70566 84531 22200 00178 "
        "20604 30000"})
    for (const PlainLine& line : plain_words(report, {}, Language::kEnglish))
      EXPECT_FALSE(line.group.empty()) << report << ": " << line.sentence;
}

// ---- Section 3 and behind

struct Later {
  const char* groups;
  const char* english;  ///< of the last group
  const char* japanese;
  Told told = Told::kNoPlace;
};

TEST(PlainLines, TheWellKnownGroupsOfSection3AreExplained) {
  const Later kRows[] = {
      {"333", "Section 3, for climate and region.", "第3節（気候・地域の資料）。"},
      {"444", "Section 4, clouds with their base below the station.",
       "第4節（観測点より低い雲）。"},
      {"555", "Section 5, by national agreement.", "第5節（各国の取り決め）。"},
      {"555 12345", "Section 5, by national agreement.", "第5節（各国の取り決め）。"},
      {"333 10253", "Highest temperature 25.3 °C.", "最高気温 25.3°C。"},
      {"333 21017", "Lowest temperature -1.7 °C.", "最低気温 -1.7°C。"},
      {"333 2////", "Not reported: lowest temperature.", "通報なし：最低気温。",
       Told::kNotReported},
      {"333 23017", "Lowest temperature: 3017 cannot be read.", "最低気温：3017 は解読できない。",
       Told::kNotUnderstood},
      {"333 42012", "Snow depth 12 cm.", "積雪の深さ 12cm。"},
      {"333 42998", "State of the ground.", "地面の状態。"},
      {"333 4////", "Not reported: state of the ground.", "通報なし：地面の状態。",
       Told::kNotReported},
      {"333 55074", "Sunshine, radiation, evaporation or movement of clouds.",
       "日照、日射、蒸発または雲の移動。"},
      {"333 58012", "Pressure change in 24 hours +1.2 hPa.", "前24時間の気圧変化量 +1.2hPa。"},
      {"333 59112", "Pressure change in 24 hours -11.2 hPa.", "前24時間の気圧変化量 -11.2hPa。"},
      {"333 60002", "No precipitation, in the past 12 hours.", "降水量なし（前12時間）。"},
      {"333 69902", "Precipitation too little to measure, in the past 12 hours.",
       "降水量 微量（観測できないほど少ない）（前12時間）。"},
      {"333 6012/", "Precipitation 12 mm. Not reported: time of the precipitation.",
       "降水量 12mm。通報なし：降水量の対象時間。"},
      {"333 70123", "Precipitation of the past 24 hours 12.3 mm.", "前24時間の降水量 12.3mm。"},
      {"333 79999", "Precipitation of the past 24 hours too little to measure.",
       "前24時間の降水量 微量（観測できないほど少ない）。"},
      {"333 83820", "Cloud layer: 4/10, Cu, base 600 m.", "雲層：雲量 4/10、Cu、雲底 600m。"},
      {"333 86360", "Cloud layer: 7/10-8/10, Ac, base 3000 m.",
       "雲層：雲量 7/10～8/10、Ac、雲底 3000m。"},
      {"333 88/00", "Cloud layer: 10/10, type not seen, base under 30 m.",
       "雲層：雲量 10/10、雲形不明、雲底 30m未満。"},
      {"333 81082", "Cloud layer: 1/10 or less (but not 0), Ci, base 12000 m.",
       "雲層：雲量 1/10以下（ただし0ではない）、Ci、雲底 12000m。"},
      {"333 81055", "Cloud layer: 1055 cannot be read.", "雲層：1055 は解読できない。",
       Told::kNotUnderstood},
      {"333 90710", "Period up to the observation: 60 minutes.", "観測時までの対象時間：60分。"},
      {"333 91025", "Highest gust in the ten minutes before the observation: 25 knots (force 6).",
       "観測前10分間の最大瞬間風速：25ノット（風力6）。"},
      {"333 91131", "Highest gust: 31 knots (force 7).", "最大瞬間風速：31ノット（風力7）。"},
      {"333 91199", "Highest gust: speed in the next group.", "最大瞬間風速：風速は次の群。"},
      {"333 91199 00110", "Wind speed 110 knots (force 12).", "風速110ノット（風力12）。"},
      {"333 00110", "By regional agreement.", "地区の取り決めによる群。"},
      {"333 91225", "Highest mean wind speed: 25 knots (force 6).",
       "平均風速の最大：25ノット（風力6）。"},
      {"333 91527", "Direction of that wind: west (270°).", "その風向：西（270°）。"},
      {"333 93005", "Precipitation: 5 mm.", "降水量：5mm。"},
      {"333 93055", "Precipitation: 55 mm.", "降水量：55mm。"},
      {"333 93056", "Precipitation: 60 mm.", "降水量：60mm。"},
      {"333 93090", "Precipitation: 400 mm.", "降水量：400mm。"},
      {"333 93096", "Precipitation: 0.6 mm.", "降水量：0.6mm。"},
      {"333 93097", "Precipitation: under 0.1 mm.", "降水量：0.1mm未満。"},
      {"333 93098", "Precipitation: over 400 mm.", "降水量：400mm超。"},
      {"333 93099", "Precipitation: could not be measured.", "降水量：測定できず。"},
      {"333 93100", "Depth of newly fallen snow: 0 cm.", "新たに積もった雪の深さ：0cm。"},
      {"333 93112", "Depth of newly fallen snow: 12 cm.", "新たに積もった雪の深さ：12cm。"},
      {"333 93157", "Depth of newly fallen snow: 70 cm.", "新たに積もった雪の深さ：70cm。"},
      {"333 93190", "Depth of newly fallen snow: 400 cm.", "新たに積もった雪の深さ：400cm。"},
      {"333 93191", "Depth of newly fallen snow: 1 mm.", "新たに積もった雪の深さ：1mm。"},
      {"333 93197", "Depth of newly fallen snow: under 1 mm.", "新たに積もった雪の深さ：1mm未満。"},
      {"333 93198", "Depth of newly fallen snow: over 400 cm.",
       "新たに積もった雪の深さ：400cm超。"},
      {"333 93199", "Depth of newly fallen snow: could not be measured.",
       "新たに積もった雪の深さ：測定できず。"},
      {"333 931//", "Not reported: depth of newly fallen snow.",
       "通報なし：新たに積もった雪の深さ。", Told::kNotReported},
      {"333 9311/", "Depth of newly fallen snow: 1/ cannot be read.",
       "新たに積もった雪の深さ：1/ は解読できない。", Told::kNotUnderstood},
      {"333 93203", "Greatest diameter of hailstones: 3 mm.", "ひょうの最大直径：3mm。"},
      {"333 93312", "Water equivalent of solid precipitation on the ground: 12 mm.",
       "地上の固形降水の水換算量：12mm。"},
      {"333 93402", "Diameter of the glaze deposit: 2 mm.", "雨氷の直径：2mm。"},
      {"333 93502", "Diameter of the rime deposit: 2 mm.", "霧氷の直径：2mm。"},
      {"333 93602", "Diameter of the compound deposit: 2 mm.", "複合した付着物の直径：2mm。"},
      {"333 93702", "Diameter of the wet snow deposit: 2 mm.", "着雪の直径：2mm。"},
      {"333 93802", "Amount of precipitation or deposit.", "降水または付着物の量。"},
      {"333 92403", "State of the sea, icing or snow cover.", "海面の状態、着氷または積雪。"},
      {"333 9////", "Special phenomena.", "特殊現象。"},
      {"333 123", "Not a group of five figures.", "5桁の群ではない。", Told::kNotUnderstood},
  };
  for (const Later& row : kRows) {
    const std::string report =
        std::string("BBXX JXKV 15124 99357 11653 41497 62718 22200 ") + row.groups;
    const PlainLine english = plain_words(report, {}, Language::kEnglish).back();
    EXPECT_EQ(english.sentence, row.english) << row.groups;
    EXPECT_EQ(english.told, row.told) << row.groups;
    EXPECT_TRUE(report.ends_with(english.group)) << row.groups;
    EXPECT_EQ(plain_words(report, {}, Language::kJapanese).back().sentence, row.japanese)
        << row.groups;
  }
}

TEST(PlainLines, AFileNameTellsYearAndMonth) {
  const auto told = [](const char* name) {
    const explain::YearMonth when = explain::year_month_of(name);
    return when.year * 100 + when.month;
  };
  EXPECT_EQ(told("14111512.tlx"), 201411);
  EXPECT_EQ(told("C:\\kavrel\\data\\tlx\\26020103.tlx"), 202602);
  for (const char* const name : {"", "report.txt", "14131512.tlx", "1411151.tlx", "14111512.txt"})
    EXPECT_EQ(told(name), 0) << name;
}

TEST(PlainLines, StandInColumns) {
  const auto lines = plain_words("BBXX JXKV 15124 99357 11653 41497 62718 22200 ICE FAST ICE AHEAD",
                                 {}, Language::kEnglish);
  const std::string text = explain::aligned(lines);
  EXPECT_NE(text.find("BBXX   Report from a ship.\n"), std::string::npos) << text;
  EXPECT_NE(text.find("62718  Total"), std::string::npos) << text;
  EXPECT_NE(text.find("\n       Not reported: "), std::string::npos) << text;
  EXPECT_NE(text.find("\nICE FAST ICE AHEAD\n       Ice in plain language.\n"), std::string::npos)
      << text;
  EXPECT_EQ(text.back(), '\n');
}

}  // namespace
