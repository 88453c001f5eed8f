#include "explain/plain/plain_words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "observation/records.h"

namespace explain {

void PrintTo(const PlainLine& line, std::ostream* out) {
  *out << '"' << line.group << "\" \"" << line.sentence << "\" " << static_cast<int>(line.told);
}

}  // namespace explain

namespace {

using explain::plain_words;
using explain::PlainLine;
using explain::Told;
using text::Language;

std::vector<PlainLine> told(std::string_view report, Language language = Language::kEnglish) {
  return plain_words(report, {}, language);
}

/// The line of a group, the last one of that text; an empty one where there is none.
PlainLine line_of(const std::vector<PlainLine>& lines, std::string_view group) {
  const auto at = std::find_if(lines.rbegin(), lines.rend(),
                               [&](const PlainLine& line) { return line.group == group; });
  return at == lines.rend() ? PlainLine{} : *at;
}

/// What one group says behind groups that are as they should be.
struct Said {
  const char* report;  ///< from the group YYGGiw on
  const char* group;
  const char* english;
  const char* japanese;
  Told told = Told::kSaid;
};

constexpr const char* kHead = "15124 99357 11653 41497 62718 ";

void expect_said(const Said& row, const std::string& report) {
  const PlainLine english = line_of(told(report), row.group);
  EXPECT_EQ(english.sentence, row.english) << report;
  EXPECT_EQ(english.told, row.told) << report;
  const PlainLine japanese = line_of(told(report, Language::kJapanese), row.group);
  EXPECT_EQ(japanese.sentence, row.japanese) << report;
  EXPECT_EQ(japanese.told, row.told) << report;
}

TEST(PlainWords, EachGroupIsReadAsAColleagueWouldReadIt) {
  const Said kRows[] = {
      {"15124", "15124", "Day 15, 12 UTC. Wind speed obtained from anemometer, in knots.",
       "15日12時（UTC）。風速は風速計による、単位ノット。"},
      {"15124 99357 11653", "99357", "Latitude 35.7° N.", "北緯35.7°。"},
      {"15124 99357 11653", "11653", "Longitude 165.3° E.", "東経165.3°。"},
      {"15124 99078 51653", "99078", "Latitude 7.8° S.", "南緯7.8°。"},
      {"15124 99078 50003", "50003", "Longitude 0.3° W.", "西経0.3°。"},
      {"15124 99357 11653 41497", "41497",
       "Height of the cloud base: 300 m to under 600 m. Visibility: 10 km to under 20 km. Amount "
       "of precipitation omitted (not available). Manned station, present and past weather "
       "included.",
       "雲底の高さ：300m以上600m未満。視程：10km以上20km未満。降水量を省略（資料なし）。有人観測、"
       "現"
       "在天気・過去天気を通報。"},
      {"15124 99357 11653 42/90", "42/90",
       "Visibility: under 50 m. Amount of precipitation omitted (not available). Manned station, "
       "present and past weather omitted (no significant phenomenon to report). Not reported: "
       "height of the cloud base.",
       "視程：50m未満。降水量を省略（資料なし）。有人観測、現在天気・過去天気を省略（通報すべき現象"
       "なし"
       "）。通報なし：雲底の高さ。"},
      {"15124 99357 11653 41997 82718", "41997",
       "Height of the cloud base: 2500 m or more, or no clouds. Visibility: 10 km to under 20 km. "
       "Amount of precipitation omitted (not available). Manned station, present and past weather "
       "included.",
       "雲底の高さ：2500m以上、または雲なし。視程：10km以上20km未満。降水量を省略（資料なし）。有人"
       "観"
       "測、現在天気・過去天気を通報。"},
      {"15124 99357 11653 41497 82718", "82718",
       "Total cloud amount: 10/10. Wind from west (270°), 18 knots (force 5).",
       "全雲量：10/10。西（270°）の風、18ノット（風力5）。"},
      {"15121 99357 11653 41497 82718", "82718",
       "Total cloud amount: 10/10. Wind from west (270°), 18 m/s (force 8).",
       "全雲量：10/10。西（270°）の風、18m/s（風力8）。"},
      {"1512/ 99357 11653 41497 82718", "82718",
       "Total cloud amount: 10/10. Wind from west (270°), 18, in a unit that is not reported.",
       "全雲量：10/10。西（270°）の風、18（単位の通報なし）。"},
      {"15124 99357 11653 41497 /0000", "/0000", "Calm. Not reported: total cloud amount.",
       "静穏。通報なし：全雲量。"},
      {"15124 99357 11653 41497 /9903", "/9903",
       "Wind of variable direction, 3 knots (force 1). Not reported: total cloud amount.",
       "風向不定、3ノット（風力1）。通報なし：全雲量。"},
      {"15124 99357 11653 41497 /3651", "/3651",
       "Wind from north (360°), 51 knots (force 10). Unusual: over 50 knots. Not reported: total "
       "cloud amount.",
       "北（360°）の風、51ノット（風力10）。要確認：50ノットを超えている。通報なし：全雲量。",
       Told::kUnusual},
      {"15124 99357 11653 41497 62099 00105", "62099",
       "Total cloud amount: 7/10-8/10. Wind from south-southwest (200°), speed in the next group.",
       "全雲量：7/10～8/10。南南西（200°）の風、風速は次の群。"},
      {"15124 99357 11653 41497 62099 00105", "00105",
       "Wind speed 105 knots (force 12). Unusual: over 50 knots.",
       "風速105ノット（風力12）。要確認：50ノットを超えている。", Told::kUnusual},
  };
  for (const Said& row : kRows) expect_said(row, std::string("BBXX JXKV ") + row.report);
}

TEST(PlainWords, GroupsBehindTheWindToo) {
  const Said kRows[] = {
      {"10152", "10152", "Air temperature 15.2 °C.", "気温 15.2°C。"},
      {"11018", "11018", "Air temperature -1.8 °C.", "気温 -1.8°C。"},
      {"10152 20108", "20108", "Dew point 10.8 °C.", "露点温度 10.8°C。"},
      {"10100 20108", "20108", "Dew point 10.8 °C. Unusual: above the air temperature.",
       "露点温度 10.8°C。要確認：気温より高い。", Told::kUnusual},
      {"2020/", "2020/", "Dew point: 020/ cannot be read.", "露点温度：020/ は解読できない。",
       Told::kNotUnderstood},
      {"29085", "29085", "Relative humidity 85 %. A group without a field.",
       "相対湿度85%。入力欄のない群。", Told::kNoPlace},
      {"30132", "30132",
       "Pressure at the height of the station 1013.2 hPa. A group without a field.",
       "観測点の気圧 1013.2hPa。入力欄のない群。", Told::kNoPlace},
      {"40132", "40132", "Pressure 1013.2 hPa.", "海面気圧 1013.2hPa。"},
      {"49987", "49987", "Pressure 998.7 hPa.", "海面気圧 998.7hPa。"},
      {"49201", "49201", "Pressure 920.1 hPa. Unusual: outside the usual range.",
       "海面気圧 920.1hPa。要確認：通常の範囲外。", Told::kUnusual},
      {"51014", "51014",
       "Pressure 1.4 hPa higher than three hours ago: increasing, then steady; or increasing, "
       "then increasing more slowly.",
       "海面気圧は3時間前より1.4hPa高い：上昇後一定、または上昇後ゆるやかに上昇。"},
      {"57023", "57023",
       "Pressure 2.3 hPa lower than three hours ago: decreasing (steadily or unsteadily).",
       "海面気圧は3時間前より2.3hPa低い：一定の下降、または変動しながら下降。"},
      {"54000", "54000", "Pressure the same as three hours ago: steady.",
       "海面気圧は3時間前と同じ：一定。"},
      {"54001", "54001",
       "Pressure 0.1 hPa higher or lower than three hours ago: steady. Unusual: steady, but with a "
       "change.",
       "海面気圧は3時間前より0.1hPa高いか低い：一定。要確認：変化の型は「一定」だが変化量がある。",
       Told::kUnusual},
      {"5/014", "5/014",
       "Pressure 1.4 hPa higher or lower than three hours ago. Not reported: characteristic of "
       "pressure tendency.",
       "海面気圧は3時間前より1.4hPa高いか低い。通報なし：気圧変化の型。"},
      {"60051", "60051", "Precipitation 5 mm, in the past 6 hours. A group without a field.",
       "降水量 5mm（前6時間）。入力欄のない群。", Told::kNoPlace},
      {"69935", "69935", "Precipitation 0.3 mm, in the past hour. A group without a field.",
       "降水量 0.3mm（前1時間）。入力欄のない群。", Told::kNoPlace},
      {"72582", "72582",
       "Present weather: shower(s) of rain during the preceding hour but not at the time of "
       "observation. Past weather (W1): shower(s). Past weather (W2): cloud covering more than 1/2 "
       "of the sky throughout the appropriate period.",
       "現在天気：前1時間内にしゅう雨があったが、観測時にはない。過去天気（W1）：しゅう雨性降水。過"
       "去"
       "天気（W2）：対象期間を通じて雲量が全天の1/2超。"},
      {"70566", "70566", "Present weather: haze. Past weather (W1 and W2): rain.",
       "現在天気：煙霧。過去天気（W1・W2）：雨。"},
      {"84531", "84531",
       "Amount of the lowest cloud: 5/10. Low cloud: Sc not formed by spreading of Cu. Middle "
       "cloud: semi-transparent Ac predominant. High cloud: Ci in the form of filaments, not "
       "invading the sky.",
       "最下層の雲量：5/"
       "10。下層雲：Cuが広がってできたものではないSc。中層雲：半透明なAcが主体。上層"
       "雲：繊維状のCi、空に広がる傾向はない。"},
      {"91150", "91150", "Observed at 11:50 UTC.", "11時50分（UTC）に観測。"},
      {"92561", "92561", "Actual time of observation: 2561 does not exist.",
       "実際の観測時刻：2561 はありえない。", Told::kNotUnderstood},
      {"22223", "22223",
       "Ship's course over the past three hours: east (E). Ship's speed over the past three hours: "
       "11 to under 16 knots.",
       "船の針路（前3時間）：東（E）。船の速力（前3時間）：11ノット以上16ノット未満。"},
      {"22200 02183", "02183", "Sea surface temperature 18.3 °C (bucket).",
       "海面水温 18.3°C（採水バケツ）。"},
      {"22200 03012", "03012", "Sea surface temperature -1.2 °C (bucket).",
       "海面水温 -1.2°C（採水バケツ）。"},
      {"10001 22200 02183", "02183",
       "Sea surface temperature 18.3 °C (bucket). Unusual: 18.2 °C from the air temperature.",
       "海面水温 18.3°C（採水バケツ）。要確認：気温との差が18.2°C。", Told::kUnusual},
      {"22200 10706", "10706", "Waves by instrument: period 7 seconds, height 3.0 m.",
       "波浪計による波：周期7秒、波高3.0m。"},
      {"22200 20604", "20604", "Wind waves: period 6 seconds, height 2.0 m.",
       "風浪：周期6秒、波高2.0m。"},
      {"22200 20000", "20000", "Wind waves: no waves.", "風浪：波なし。"},
      {"22200 20300", "20300", "Wind waves: period 3 seconds, height under 0.25 m.",
       "風浪：周期3秒、波高0.25m未満。"},
      {"22200 29902", "29902", "Wind waves: confused sea, no single period, height 1.0 m.",
       "風浪：海面が乱れ、周期を決められない、波高1.0m。"},
      {"22200 21224", "21224", "Wind waves: period 12 seconds, height 12.0 m. Unusual: over 10 m.",
       "風浪：周期12秒、波高12.0m。要確認：10mを超えている。", Told::kUnusual},
      {"22200 30000", "30000", "No swell wave.", "うねりなし。"},
      {"22200 32531 40905 51103", "32531",
       "First swell from west-southwest (250°). Second swell from northwest (310°).",
       "うねり1：西南西（250°）から。うねり2：北西（310°）から。"},
      {"22200 325// 40905", "325//",
       "First swell from west-southwest (250°). Not reported: second swell.",
       "うねり1：西南西（250°）から。通報なし：うねり2。"},
      {"22200 32531 40905 51103", "40905", "First swell: period 9 seconds, height 2.5 m.",
       "うねり1：周期9秒、波高2.5m。"},
      {"22200 32531 40905 51103", "51103", "Second swell: period 11 seconds, height 1.5 m.",
       "うねり2：周期11秒、波高1.5m。"},
      {"22200 61023", "61023",
       "Cause of ice accretion: icing from ocean spray. Thickness of ice accretion 2 cm. Change of "
       "ice accretion: ice melting or breaking up slowly.",
       "着氷の原因：海水のしぶきによる着氷。着氷の厚さ "
       "2cm。着氷の変化：着氷がゆっくり融解または剥離し"
       "ている。"},
      {"22200 70003", "70003", "Waves by instrument 0.3 m. A group without a field.",
       "波浪計による波 0.3m。入力欄のない群。", Told::kNoPlace},
      {"22200 80130", "80130", "Wet-bulb temperature 13.0 °C (measured).",
       "湿球温度 13.0°C（実測）。"},
      {"22200 82012", "82012", "Wet-bulb temperature -1.2 °C (iced bulb, measured).",
       "湿球温度 -1.2°C（湿球が凍結、実測）。"},
      {"22200 86012", "86012", "Wet-bulb temperature -1.2 °C (computed).",
       "湿球温度 -1.2°C（計算）。"},
      {"22200 87012", "87012", "Wet-bulb temperature -1.2 °C (iced bulb, computed).",
       "湿球温度 -1.2°C（湿球が凍結、計算）。"},
      {"22200 ICE 20340", "ICE 20340",
       "Sea ice concentration: concentration less than 3/10 (3/8), open water or very open pack "
       "ice. Stage of development: new ice only (frazil ice, grease ice, slush, shuga). Ice of "
       "land origin: 11-20 icebergs, no growlers or bergy bits. Ice edge: principal ice edge "
       "towards south. Ice situation: ship in open water with floating ice in sight.",
       "海氷の密接度：密接度3/10（3/"
       "8）未満、開放水面または分離流氷。発達過程：新成氷のみ（晶氷、グリ"
       "ースアイス、雪泥、スポンジ氷）。陸氷：氷山11～20個、氷岩・氷山片なし。氷縁の方位：主要な氷"
       "縁は"
       "南方向。海氷の状況：船は開放水面にあり、視界内に浮氷あり。"},
      {"22200 ICE FAST ICE 3 MILES", "ICE FAST ICE 3 MILES", "Ice in plain language.",
       "平文の海氷報。", Told::kNoPlace},
      {"22200 ICE ////", "ICE ////", "Not reported: sea ice.", "通報なし：海氷。",
       Told::kNotReported},
      {"872xx", "872xx", "Not a group of five figures.", "5数字の群ではない。",
       Told::kNotUnderstood},
      {"40132 40133", "40133", "A group that is repeated.", "重複した群。", Told::kNotUnderstood},
  };
  for (const Said& row : kRows) expect_said(row, std::string("BBXX JXKV ") + kHead + row.report);
}

}  // namespace
