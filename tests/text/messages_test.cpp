#include "text/messages.h"

#include <gtest/gtest.h>

#include "fakes/fake_ports.h"
#include "text/help.h"
#include "text/ids.h"

namespace {

using text::Language;
using text::QuestionMode;

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
  EXPECT_EQ(text::resolve({0, 74}, Language::kEnglish), "");
}

TEST(Texts, FillPutsArgumentsInOrderAndLeavesTheRest) {
  EXPECT_EQ(text::fill("01<=DAY<=%d", {"28"}), "01<=DAY<=28");
  EXPECT_EQ(text::fill("%s and %s", {"%s"}), "%s and %s");
  EXPECT_EQ(text::fill("100%", {}), "100%");
}

TEST(ErrorNotice, ShowsTheTextOfTheIdElseTheLiteralElseCheckError) {
  fakes::World world;
  world.windows.expect(text::id::kNoValueInput);
  world.windows.expect_text("literal");
  world.windows.expect_text("Check Error");
  world.messages.error(text::id::kNoValueInput, "ignored");
  world.messages.error(0, "literal");
  world.messages.error(0);
  for (const auto& box : world.windows.boxes) {
    EXPECT_EQ(box.title, "KAVREL for WIN");
    ASSERT_EQ(box.buttons.size(), 1U);
    EXPECT_EQ(box.buttons[0].label, "OK");
  }
}

TEST(ErrorNotice, SaysNothingWhileTheQuietFlagIsSet) {
  fakes::World world;
  world.messages.quiet = true;
  world.messages.error(text::id::kNoValueInput);
  world.messages.error_filled(text::id::kNoValueInput, {"x"});
  EXPECT_TRUE(world.windows.boxes.empty());
}

struct ModeRow {
  QuestionMode mode;
  Language language;
  std::vector<std::string> labels;
  std::vector<std::pair<std::string, int>> answers;
};

TEST(Question, HasTheLabelsAndResultsOfItsMode) {
  const ModeRow rows[] = {
      {QuestionMode::kOkCancel,
       Language::kEnglish,
       {"OK", "Cancel"},
       {{"ok", 1}, {"cancel", 2}, {"close", 2}}},
      {QuestionMode::kOkCancel,
       Language::kJapanese,
       {"はい(&Y)", "ｷｬﾝｾﾙ"},
       {{"ok", 1}, {"cancel", 2}, {"close", 2}}},
      {QuestionMode::kYesNoCancel,
       Language::kEnglish,
       {"YES", "NO", "Cancel"},
       {{"yes", 1}, {"no", 7}, {"cancel", 2}, {"close", 2}}},
      {QuestionMode::kYesNoCancel,
       Language::kJapanese,
       {"はい(&Y)", "いいえ(&N)", "ｷｬﾝｾﾙ"},
       {{"yes", 1}, {"no", 7}, {"cancel", 2}, {"close", 2}}},
      {QuestionMode::kYesNo,
       Language::kEnglish,
       {"YES", "NO"},
       {{"yes", 6}, {"no", 7}, {"close", 7}}},
      {QuestionMode::kYesNo,
       Language::kJapanese,
       {"はい(&Y)", "いいえ(&N)"},
       {{"yes", 6}, {"no", 7}, {"close", 7}}},
  };
  for (const ModeRow& row : rows) {
    fakes::World world;
    world.texts.language = row.language;
    for (const auto& [answer, result] : row.answers) {
      world.windows.expect_text("Really?", answer);
      EXPECT_EQ(world.messages.question("Really?", "Brenmoor", row.mode), result) << answer;
      const auto& box = world.windows.boxes.back();
      EXPECT_EQ(box.title, "Brenmoor");
      std::vector<std::string> labels;
      for (const auto& button : box.buttons) labels.push_back(button.label);
      EXPECT_EQ(labels, row.labels);
    }
  }
}

TEST(Question, AnyOtherModeShowsNothing) {
  fakes::World world;
  EXPECT_EQ(world.messages.question("Really?", "", static_cast<QuestionMode>(2)), 0);
  EXPECT_TRUE(world.windows.boxes.empty());
}

// Looks at the flags while the box is on the screen.
class Watching : public fakes::FakeWindows {
 public:
  text::Messages* messages = nullptr;
  std::vector<std::pair<bool, bool>> seen;
  int show_message(const platform::MessageBox& box) override {
    seen.emplace_back(messages->question_open, messages->message_box_open);
    return box.close_result;
  }
};

TEST(MessageFlags, AreSetWhileTheirBoxIsShownAndClearedAfter) {
  text::Texts texts;
  Watching windows;
  text::Messages messages(texts, windows);
  windows.messages = &messages;
  messages.question("q", "", QuestionMode::kYesNo);
  messages.question("q", "", QuestionMode::kYesNoCancel);
  messages.show(text::CMessageBox1("m"));
  messages.show(text::CMessageBox3("m"));
  const std::vector<std::pair<bool, bool>> wanted = {
      {true, true}, {true, false}, {false, true}, {false, false}};
  EXPECT_EQ(windows.seen, wanted);
  EXPECT_FALSE(messages.question_open);
  EXPECT_FALSE(messages.message_box_open);
}

TEST(MessageBoxes, HaveTheirTitlesButtonsAndResults) {
  const text::CMessageBox1 one("m");
  EXPECT_EQ(one.box().title, "KAVREL for WIN");
  EXPECT_EQ(one.box().buttons[0].label, "&YES");
  EXPECT_EQ(one.box().buttons[0].result, 6);
  EXPECT_EQ(one.box().buttons[1].label, "&NO");
  EXPECT_EQ(one.box().buttons[1].result, 7);
  EXPECT_EQ(one.box().close_result, 7);
  const text::CMessageBox2 two("m", "a", "b", "c");
  EXPECT_EQ(two.box().title, "KAVREL for WIN");
  EXPECT_EQ(two.box().buttons[0].result, 1);
  EXPECT_EQ(two.box().buttons[1].result, 7);
  EXPECT_EQ(two.box().buttons[2].result, 2);
  EXPECT_EQ(two.box().close_result, 2);
  const text::CMessageBox3 three("m");
  EXPECT_EQ(three.box().title, "KAVREL for Win");
  EXPECT_EQ(three.box().buttons[0].label, "&NO");
  EXPECT_EQ(three.box().buttons[0].result, 7);
  EXPECT_EQ(three.box().buttons[1].result, 6);
  EXPECT_EQ(three.box().close_result, 7);
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
      {"CFixDataDlg", "4-1"},
      {"CKeyObserveDlg", "4-2"},
      {"CVosClimDlg", "7"},
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
