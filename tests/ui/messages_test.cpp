#include "ui/messages.h"

#include <gtest/gtest.h>

#include "fakes/fake_ports.h"
#include "text/help.h"
#include "text/ids.h"

namespace {

using text::Language;
using ui::QuestionMode;

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

TEST(ErrorNotice, HasATitleOfItsOwnWhereOneIsGiven) {
  fakes::World world;
  world.windows.expect(text::id::kNotANumber);
  world.windows.expect(text::id::kNotANumber);
  world.messages.error_titled(text::id::kNotANumber, text::id::kSwellNumberNeededCaption);
  world.japanese();
  world.messages.error_titled(text::id::kNotANumber, text::id::kSwellNumberNeededCaption);
  EXPECT_EQ(world.windows.boxes[0].title, "Number needed!");
  EXPECT_EQ(world.windows.boxes[0].text, "No digital string");
  EXPECT_EQ(world.windows.boxes[1].title, "数字が必要です");
  EXPECT_EQ(world.windows.boxes[1].text, "数字を入力して下さい");
}

TEST(ErrorNotice, SaysNothingWhileTheQuietFlagIsSet) {
  fakes::World world;
  world.messages.quiet = true;
  world.messages.error(text::id::kNoValueInput);
  world.messages.error_filled(text::id::kNoValueInput, {"x"});
  world.messages.error_titled(text::id::kNotANumber, text::id::kWaveNumberCaption);
  EXPECT_TRUE(world.windows.boxes.empty());
}

struct ModeRow {
  QuestionMode mode;
  Language language;
  std::vector<std::string> labels;
  std::vector<std::pair<std::string, int>> answers;
};

TEST(Information, IsAnErrorNoticeWithAnotherSign) {
  fakes::World world;
  world.windows.answer_all("ok");
  world.messages.information(text::id::kSaved);
  world.messages.information_filled(text::id::kPdfSaved, {"C:\\a.pdf"}, "below");
  ASSERT_EQ(world.windows.boxes.size(), 2U);
  for (const auto& box : world.windows.boxes) {
    EXPECT_EQ(box.title, "KAVREL for WIN");
    EXPECT_EQ(box.sign, ui::Sign::kInformation);
    ASSERT_EQ(box.buttons.size(), 1U);
  }
  EXPECT_EQ(world.windows.boxes[0].text, "Save success");
  EXPECT_EQ(world.windows.boxes[1].text, "Saved as C:\\a.pdf\nbelow");
  world.messages.quiet = true;
  world.messages.information(text::id::kSaved);
  EXPECT_EQ(world.windows.boxes.size(), 2U);
}

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
  ui::Messages* messages = nullptr;
  std::vector<std::pair<bool, bool>> seen;
  int show_message(const ui::MessageBox& box) override {
    seen.emplace_back(messages->question_open, messages->message_box_open);
    return box.close_result;
  }
};

TEST(MessageFlags, AreSetWhileTheirBoxIsShownAndClearedAfter) {
  text::Texts texts;
  Watching windows;
  ui::Messages messages(texts, windows);
  windows.messages = &messages;
  messages.question("q", "", QuestionMode::kYesNo);
  messages.question("q", "", QuestionMode::kYesNoCancel);
  messages.show(ui::CMessageBox1("m"));
  messages.show(ui::CMessageBox3("m"));
  const std::vector<std::pair<bool, bool>> wanted = {
      {true, true}, {true, false}, {false, true}, {false, false}};
  EXPECT_EQ(windows.seen, wanted);
  EXPECT_FALSE(messages.question_open);
  EXPECT_FALSE(messages.message_box_open);
}

TEST(MessageBoxes, HaveTheirTitlesButtonsAndResults) {
  const ui::CMessageBox1 one("m");
  EXPECT_EQ(one.box().title, "KAVREL for WIN");
  EXPECT_EQ(one.box().buttons[0].label, "&YES");
  EXPECT_EQ(one.box().buttons[0].result, 6);
  EXPECT_EQ(one.box().buttons[1].label, "&NO");
  EXPECT_EQ(one.box().buttons[1].result, 7);
  EXPECT_EQ(one.box().close_result, 7);
  const ui::CMessageBox2 two("m", "a", "b", "c");
  EXPECT_EQ(two.box().title, "KAVREL for WIN");
  EXPECT_EQ(two.box().buttons[0].result, 1);
  EXPECT_EQ(two.box().buttons[1].result, 7);
  EXPECT_EQ(two.box().buttons[2].result, 2);
  EXPECT_EQ(two.box().close_result, 2);
  const ui::CMessageBox3 three("m");
  EXPECT_EQ(three.box().title, "KAVREL for Win");
  EXPECT_EQ(three.box().buttons[0].label, "&NO");
  EXPECT_EQ(three.box().buttons[0].result, 7);
  EXPECT_EQ(three.box().buttons[1].result, 6);
  EXPECT_EQ(three.box().close_result, 7);
}

}  // namespace
