#include "text/texts.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>

#include "fakes/fake_ports.h"
#include "text/help.h"
#include "text/ids.h"
#include "text/numbers.h"

namespace {

using text::Language;

TEST(Texts, HalfBeforeTheMarkerIsEnglishAndBehindItJapanese) {
  EXPECT_EQ(text::half("Abc/*E*/", Language::kEnglish), "Abc");
  EXPECT_EQ(text::half("Abc/*E*/", Language::kJapanese), "");
  EXPECT_EQ(text::bilingual(text::id::kNoValueInput, Language::kEnglish), "No value input");
  EXPECT_EQ(text::bilingual(text::id::kNoValueInput, Language::kJapanese), "未入力です");
}

TEST(Texts, TextWithoutMarkerIsTheSameInBothLanguages) {
  EXPECT_EQ(text::half("Abc", Language::kEnglish), "Abc");
  EXPECT_EQ(text::half("Abc", Language::kJapanese), "Abc");
  EXPECT_EQ(text::bilingual(text::id::kLanguageMarker, Language::kJapanese), "/*E*/");
}

TEST(Texts, AnUnknownIdIsEmpty) {
  EXPECT_EQ(text::bilingual(text::Id{1}, Language::kEnglish), "");
  // Before the first, behind the last, and in a gap between two.
  for (const int number : {-1, 0, 15, 16, 17, 65535, 1'000'000})
    EXPECT_FALSE(text::has_entry(text::Id{number})) << number;
}

TEST(Texts, EveryTextIsFoundAndNoOther) {
  std::ifstream strings(std::string(KAVREL_SOURCE).append("/resources/strings.txt"));
  std::set<int> ids;
  for (std::string line; std::getline(strings, line);)
    if (!line.empty() && line[0] != '#') ids.insert(text::leading_int(line));
  ASSERT_GT(ids.size(), 1000U);
  for (int number = 0; number < *ids.rbegin() + 1000; ++number)
    EXPECT_EQ(text::has_entry(text::Id{number}), ids.contains(number)) << number;
}

TEST(Texts, FillPutsArgumentsInOrderAndLeavesTheRest) {
  EXPECT_EQ(text::fill("01<=DAY<=%d", {"28"}), "01<=DAY<=28");
  EXPECT_EQ(text::fill("%s and %s", {"%s"}), "%s and %s");
  EXPECT_EQ(text::fill("100%", {}), "100%");
  EXPECT_EQ(text::fill("%s%%d%", {"a", "b", "c"}), "a%b%");
  EXPECT_EQ(text::fill("%x %d", {"1"}), "%x 1");
}

TEST(Help, PathHoldsLanguageAndTopic) {
  fakes::World world;
  EXPECT_TRUE(world.help.show(text::dialog_topic("CWindDlg")));
  world.japanese();
  world.help.show(text::dialog_topic("CVosClimDlg"));
  world.help.show({"Cloud", "", ""});
  const std::vector<std::string> wanted = {"C:\\program\\help\\Kavrel_E.CHM::/Capter11-10_E.htm",
                                           "C:\\program\\help\\Kavrel_J.CHM::/Capter7_J.htm",
                                           "C:\\program\\help\\Cloud_J.CHM"};
  EXPECT_EQ(world.help_viewer.shown, wanted);
}

TEST(Help, ResultTellsWhetherAWindowOpened) {
  fakes::World world;
  world.help_viewer.opens = false;
  EXPECT_FALSE(world.help.show({"Cloud", "", ""}));
}

// Class and number of its chapter; the numbers follow the element dialogs' order in the manual.
struct TopicRow {
  const char* class_name;
  const char* chapter;
};

TEST(Help, EveryDialogHasItsTopic) {
  const TopicRow rows[] = {
      {"CUTCTimeDlg1", "11-1"},
      {"CPositionDlg", "11-2"},
      {"CDvDsDlg", "11-3"},
      {"CSeaSurfacePressureDlg", "11-4"},
      {"CPresureTendencyDlg", "11-5"},
      {"CCountDewDlg", "11-6"},
      {"CTemperatureAndDewDlg", "11-7"},
      {"CSea_SurfaceTemperatureDlg", "11-8"},
      {"CLookWindDlg", "11-9"},
      {"CWindDlg", "11-10"},
      {"CSwellWaveDlg", "11-11"},
      {"CWaveLengthDlg", "11-11-1"},
      {"CEyeShotDlg", "11-12"},
      {"CNowWeatherDlg", "11-13"},
      {"CPastWeatherDlg1", "11-14"},
      {"CCloudAgeDlg", "11-15"},
      {"CBottomLayerCloudDlg", "11-16"},
      {"CTopCloudDlg", "11-17"},
      {"CMidCloudDlg", "11-18"},
      {"CBottomCloudDlg", "11-19"},
      {"CCloudHeightDlg", "11-20"},
      {"CSeaIceDialog", "11-21"},
      {"CICECiDlg", "11-22"},
      {"CICESiBiDlg", "11-23"},
      {"CICEDiDlg", "11-24"},
      {"CNewZiDlg", "11-25"},
      {"CTrueDirWindDlg", "11-26"},
      {"CThumidityDlg", "11-27"},
      {"CSeaMapDlg", "11-28"},
      {"CPlainWordsDlg", "31"},
      {"CSaveErrorInfoDlg", "32"},
      {"CLogbookDlg", "33"},
      {"CLogbookCheckDlg", "33"},
      {"CCurvesDlg", "34"},
      {"CFixDataDlg", "4-1"},
      {"CKeyObserveDlg", "4-2"},
      {"CVosClimDlg", "7"},
      {"CTlxSelectDlg", "8"},
  };
  EXPECT_EQ(std::size(rows), text::dialog_topics().size());
  for (const TopicRow& row : rows) {
    const text::HelpTopic topic = text::dialog_topic(row.class_name);
    EXPECT_EQ(topic.base, "Kavrel") << row.class_name;
    EXPECT_EQ(topic.english, "Capter" + std::string(row.chapter) + "_E.htm") << row.class_name;
    EXPECT_EQ(topic.japanese, "Capter" + std::string(row.chapter) + "_J.htm") << row.class_name;
  }
  EXPECT_EQ(text::dialog_topic("CNoDlg").base, "");
}

}  // namespace
