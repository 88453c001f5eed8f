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
      {"15124 99357 11653 41400 82718", "41400",
       "Height of the cloud base: 300 m to under 600 m. Visibility: less than 0.1 km. Amount of "
       "precipitation omitted (not available). Manned station, present and past weather included.",
       "雲底の高さ：300m以上600m未満。視程：0.1km未満。降水量を省略（資料なし）。有人観測、現在天気"
       "・過"
       "去天気を通報。"},
      {"15124 99357 11653 41497 82718", "82718",
       "Total cloud amount: 10/10. Wind from west (270°), 18 knots (force 5).",
       "全雲量：10/10。西の風（270°）、18ノット（風力5）。"},
      {"15121 99357 11653 41497 82718", "82718",
       "Total cloud amount: 10/10. Wind from west (270°), 18 m/s (force 8).",
       "全雲量：10/10。西の風（270°）、18m/s（風力8）。"},
      {"1512/ 99357 11653 41497 82718", "82718",
       "Total cloud amount: 10/10. Wind from west (270°), 18, in a unit that is not reported.",
       "全雲量：10/10。西の風（270°）、18（単位の通報なし）。"},
      {"15124 99357 11653 41497 /0000", "/0000", "Calm. Not reported: total cloud amount.",
       "静穏。通報なし：全雲量。"},
      {"15124 99357 11653 41497 /2701", "/2701",
       "Wind from west (270°), 1 knot (force 1). Not reported: total cloud amount.",
       "西の風（270°）、1ノット（風力1）。通報なし：全雲量。"},
      {"15124 99357 11653 41497 /27//", "/27//",
       "Wind from west (270°). Not reported: total cloud amount, wind speed.",
       "西の風（270°）。通報なし：全雲量、風速。"},
      {"15124 99357 11653 41497 /2700", "/2700",
       "Wind from west (270°), 0 knots (force 0). Unusual: a direction, but the speed 00 (calm). "
       "Not reported: total cloud amount.",
       "西の風（270°）、0ノット（風力0）。要確認：風速が00（静穏）なのに風向がある。通報なし：全雲"
       "量。",
       Told::kUnusual},
      {"15124 99357 11653 41497 /0018", "/0018",
       "Wind speed 18 knots (force 5). Unusual: direction 00 (calm), but with a speed. Not "
       "reported: total cloud amount.",
       "風速18ノット（風力5）。要確認：風向が00（静穏）なのに風速がある。通報なし：全雲量。",
       Told::kUnusual},
      {"15124 99357 11653 41497 92718", "92718",
       "Total cloud amount: unknown (sky obscured by meteorological phenomena). Wind from west "
       "(270°), 18 knots (force 5).",
       "全雲量：不明（大気現象により天空が見えない）。西の風（270°）、18ノット（風力5）。"},
      {"15124 99357 11653 41497 72718", "72718",
       "Total cloud amount: 9/10 or more (but not 10/10). Wind from west (270°), 18 knots (force "
       "5).",
       "全雲量：9/10以上（ただし10/10ではない）。西の風（270°）、18ノット（風力5）。"},
      {"15124 99357 11653 41497 /9903", "/9903",
       "Wind of variable direction, 3 knots (force 1). Not reported: total cloud amount.",
       "風向不定、3ノット（風力1）。通報なし：全雲量。"},
      {"15124 99357 11653 41497 /3651", "/3651",
       "Wind from north (360°), 51 knots (force 10). Unusual: over 50 knots. Not reported: total "
       "cloud amount.",
       "北の風（360°）、51ノット（風力10）。要確認：50ノットを超えている。通報なし：全雲量。",
       Told::kUnusual},
      {"15124 99357 11653 41497 62099 00105", "62099",
       "Total cloud amount: 7/10-8/10. Wind from south-southwest (200°), speed in the next group.",
       "全雲量：7/10～8/10。南南西の風（200°）、風速は次の群。"},
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
       "海面気圧の3時間前との差は0.1hPa：一定。要確認：変化の型は「一定」だが変化量がある。",
       Told::kUnusual},
      {"50000", "50000", "Pressure the same as three hours ago: increasing, then decreasing.",
       "海面気圧は3時間前と同じ：上昇後下降。"},
      {"57000", "57000",
       "Pressure the same as three hours ago: decreasing (steadily or unsteadily). Unusual: a rise "
       "or a fall, but no change.",
       "海面気圧は3時間前と同じ：一定の下降、または変動しながら下降。要確認：上昇または下降なのに変"
       "化"
       "量が0。",
       Told::kUnusual},
      {"5/014", "5/014",
       "Pressure 1.4 hPa higher or lower than three hours ago. Not reported: characteristic of "
       "pressure tendency.",
       "海面気圧の3時間前との差は1.4hPa。通報なし：気圧変化の型。"},
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
      {"70322", "70322",
       "Present weather: clouds generally forming or developing during the past hour. Past weather "
       "(W1 and W2): cloud covering more than 1/2 of the sky throughout the appropriate period.",
       "現在天気：前1時間内に雲が全般に発生、または発達した。過去天気（W1・W2）：対象期間を通じて"
       "雲量"
       "が全天の1/2超。"},
      {"70566", "70566", "Present weather: haze. Past weather (W1 and W2): rain.",
       "現在天気：煙霧。過去天気（W1・W2）：雨。"},
      {"84531", "84531",
       "Amount of the lowest cloud: 5/10. Low cloud: Sc not formed by spreading of Cu. Middle "
       "cloud: semi-transparent Ac predominant. High cloud: Ci in the form of filaments, not "
       "invading the sky.",
       "最下層の雲量：5/"
       "10。下層雲：Cuが広がってできたものではないSc。中層雲：半透明なAcが主体。上層"
       "雲：繊維状のCi、空に広がる傾向はない。"},
      {"85800", "85800",
       "Amount of the lowest cloud: 6/10. Low cloud: Cu and Sc not formed by spreading of Cu. No "
       "CM "
       "clouds. No CH clouds.",
       "最下層の雲量：6/"
       "10。下層雲：Cuと、Cuが広がってできたものではないSc。中層雲（CM）なし。上層雲"
       "（CH）なし。"},
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
      {"22200 01021", "01021",
       "Sea surface temperature -2.1 °C (condenser intake). Unusual: outside the usual range.",
       "海面水温 -2.1°C（インテーク）。要確認：通常の範囲外。", Told::kUnusual},
      {"22200 00370", "00370", "Sea surface temperature 37.0 °C (condenser intake).",
       "海面水温 37.0°C（インテーク）。"},
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
      {"22200 10022", "10022",
       "Waves by instrument: period 0 seconds, height 11.0 m. Unusual: period 00 (no waves), but "
       "with a height. Unusual: over 10 m.",
       "波浪計による波：周期0秒、波高11.0m。要確認：周期が00（波なし）なのに波高がある。要確認：10m"
       "を超"
       "えている。",
       Told::kUnusual},
      {"22200 20101", "20101", "Wind waves: period 1 second, height 0.5 m.",
       "風浪：周期1秒、波高0.5m。"},
      {"22200 20003", "20003",
       "Wind waves: period 0 seconds, height 1.5 m. Unusual: period 00 (no waves), but with a "
       "height.",
       "風浪：周期0秒、波高1.5m。要確認：周期が00（波なし）なのに波高がある。", Told::kUnusual},
      {"22200 200//", "200//", "Wind waves: no waves. Not reported: wave height.",
       "風浪：波なし。通報なし：波高。"},
      {"22200 22503", "22503", "Wind waves: period 25 seconds, height 1.5 m.",
       "風浪：周期25秒、波高1.5m。"},
      {"22200 22603", "22603",
       "Wind waves: period 26 seconds, height 1.5 m. Unusual: over 25 seconds.",
       "風浪：周期26秒、波高1.5m。要確認：25秒を超えている。", Told::kUnusual},
      {"22200 30000", "30000", "No swell wave.", "うねりなし。"},
      {"22200 32531 40905 51103", "32531",
       "First swell from west-southwest (250°). Second swell from northwest (310°).",
       "うねり1：西南西から（250°）。うねり2：北西から（310°）。"},
      {"22200 325// 40905", "325//",
       "First swell from west-southwest (250°). Second swell: none or not observed.",
       "うねり1：西南西から（250°）。うねり2：なし、または観測せず。"},
      {"22200 32500 40905", "32500", "First swell from west-southwest (250°). No second swell.",
       "うねり1：西南西から（250°）。うねり2なし。"},
      {"22200 325// 40905 51103", "325//",
       "First swell from west-southwest (250°). Not reported: direction of the second swell.",
       "うねり1：西南西から（250°）。通報なし：うねり2の方向。"},
      {"22200 325// 4//// 5////", "4////", "Not reported: period and height of the first swell.",
       "通報なし：うねり1の周期・波高。", Told::kNotReported},
      {"22200 32531 40905 5////", "5////", "Not reported: period and height of the second swell.",
       "通報なし：うねり2の周期・波高。", Told::kNotReported},
      {"22200 300//", "300//", "No swell wave.", "うねりなし。"},
      {"22200 30031 4//// 51103", "30031",
       "First swell: no swell wave. Second swell from northwest (310°). Unusual: a second swell "
       "without a first.",
       "うねり1：うねりなし。うねり2：北西から（310°）。要確認：うねり1がないのにうねり2がある。",
       Told::kUnusual},
      {"22200 32531 40905 51103", "40905", "First swell: period 9 seconds, height 2.5 m.",
       "うねり1：周期9秒、波高2.5m。"},
      {"22200 32531 40905 51103", "51103", "Second swell: period 11 seconds, height 1.5 m.",
       "うねり2：周期11秒、波高1.5m。"},
      {"22200 61023", "61023",
       "Icing from ocean spray. Thickness of ice accretion 2 cm. Ice melting or breaking up "
       "slowly.",
       "海水のしぶきによる着氷。着氷の厚さ 2cm。着氷がゆっくり融解または剥離している。"},
      {"22200 69029", "69029",
       "Cause of ice accretion: 9 is not in the code table. Thickness of ice accretion 2 cm. "
       "Change "
       "of ice accretion: 9 is not in the code table.",
       "着氷の原因：9 は符号表にない。着氷の厚さ 2cm。着氷の変化：9 は符号表にない。",
       Told::kNotUnderstood},
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
       "Sea ice concentration less than 3/10 (3/8), open water or very open pack ice. Stage of "
       "development: new ice only (frazil ice, grease ice, slush, shuga). Ice of land origin: "
       "11-20 "
       "icebergs, no growlers or bergy bits. Principal ice edge towards south. Ice situation: ship "
       "in open water with floating ice in sight.",
       "海氷の密接度3/10（3/8）未満、開放水面または分離流氷。発達過程：新成氷のみ（晶氷、グリ"
       "ースアイス、雪泥、スポンジ氷）。陸氷：氷山11～20個、氷岩・氷山片なし。主要な氷縁は"
       "南方向。海氷の状況：船は開放水面にあり、視界内に浮氷あり。"},
      {"22200 ICE 03090", "ICE 03090",
       "No sea ice in sight. Stage of development: predominantly new and/or young ice with some "
       "first-year ice. No ice of land origin. Ice edge: not determined (ship in ice). Ice "
       "situation: ship in open water with floating ice in sight.",
       "視界内に海氷なし。発達過程：主に新成氷または板状軟氷（または両方）、一部に一年氷。陸氷なし"
       "。"
       "氷縁の方位：決定できない（船は氷の中にある）。海氷の状況：船は開放水面にあり、視界内に浮氷"
       "あ"
       "り。"},
      {"22200 ICE FAST ICE 3 MILES", "ICE FAST ICE 3 MILES", "Ice in plain language.",
       "平文の海氷報。", Told::kNoPlace},
      {"22200 ICE ////", "ICE ////", "Not reported: sea ice.", "通報なし：海氷。",
       Told::kNotReported},
      {"872xx", "872xx", "Not a group of five figures.", "5桁の群ではない。", Told::kNotUnderstood},
      {"40132 40133", "40133", "A group that is repeated.", "重複した群。", Told::kNotUnderstood},
  };
  for (const Said& row : kRows) expect_said(row, std::string("BBXX JXKV ") + kHead + row.report);
}

}  // namespace
