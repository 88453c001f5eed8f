// The program's messages and questions as boxes on the screen: title, text, buttons in their order
// with their access keys, and what Escape and the close box mean.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "desktop_world.h"
#include "text/ids.h"

namespace {

using tests::DesktopWorld;

struct Seen {
  std::string title;
  std::string text;
  std::vector<std::string> buttons;  ///< from left to right
};

// Runs `ask` and, once its box is there, `act` on it.
int answered(const std::function<int()>& ask, const std::function<void(QMessageBox&)>& act,
             Seen* seen = nullptr) {
  QTimer::singleShot(0, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(nullptr, box);
    if (seen != nullptr) {
      *seen = {box->windowTitle().toStdString(), box->text().toStdString(), {}};
      auto buttons = box->buttons();
      std::sort(buttons.begin(), buttons.end(),
                [](const QAbstractButton* a, const QAbstractButton* b) { return a->x() < b->x(); });
      for (const QAbstractButton* const button : buttons)
        seen->buttons.push_back(button->text().toStdString());
    }
    act(*box);
  });
  return ask();
}

std::function<void(QMessageBox&)> click(const char* label) {
  return [label](QMessageBox& box) {
    for (QAbstractButton* const button : box.buttons())
      if (button->text().toStdString() == label) return button->click();
    ADD_FAILURE() << "no button " << label;
    box.close();
  };
}

const auto kEscape = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); };
const auto kClose = [](QMessageBox& box) { box.close(); };

TEST(MessageBoxes, AskYesAndNoInThatOrder) {
  DesktopWorld world;
  Seen seen;
  const ui::CMessageBox1 box("Save?", {}, {}, "Question");
  const auto ask = [&] { return world.messages.show(box); };
  EXPECT_EQ(ui::kYes, answered(ask, click("&YES"), &seen));
  EXPECT_EQ("Question", seen.title);
  EXPECT_EQ("Save?", seen.text);
  EXPECT_EQ((std::vector<std::string>{"&YES", "&NO"}), seen.buttons);
  EXPECT_EQ(ui::kNo, answered(ask, click("&NO")));
  EXPECT_EQ(ui::kNo, answered(ask, kEscape));
  EXPECT_EQ(ui::kNo, answered(ask, kClose));
}

// "Save success" is shorter than the name of the program above it.
TEST(MessageBoxes, AreWideEnoughForTheirTitle) {
  DesktopWorld world;
  for (const char* const title : {"KAVREL for WIN", "A title that is longer than all below it"}) {
    const ui::CMessageBox1 box("Yes?", {}, {}, title);
    answered([&] { return world.messages.show(box); },
             [&](QMessageBox& shown) {
               const QFontMetrics letters(QApplication::font());
               EXPECT_GT(shown.width(), letters.horizontalAdvance(shown.windowTitle()) + 100);
               EXPECT_LT(shown.width(), letters.horizontalAdvance(shown.windowTitle()) + 250);
               for (const QAbstractButton* const button : shown.buttons())
                 EXPECT_TRUE(shown.rect().contains(button->geometry()));
               shown.close();
             });
  }
}

TEST(MessageBoxes, GiveThreeButtonsTheCallersLabels) {
  DesktopWorld world;
  Seen seen;
  const ui::CMessageBox2 box("終了しますか？", "はい(&Y)", "いいえ(&N)", "ｷｬﾝｾﾙ(&C)", "確認");
  const auto ask = [&] { return world.messages.show(box); };
  EXPECT_EQ(ui::kOk, answered(ask, click("はい(&Y)"), &seen));
  EXPECT_EQ("確認", seen.title);
  EXPECT_EQ("終了しますか？", seen.text);
  EXPECT_EQ((std::vector<std::string>{"はい(&Y)", "いいえ(&N)", "ｷｬﾝｾﾙ(&C)"}), seen.buttons);
  EXPECT_EQ(ui::kNo, answered(ask, click("いいえ(&N)")));
  EXPECT_EQ(ui::kCancel, answered(ask, click("ｷｬﾝｾﾙ(&C)")));
  EXPECT_EQ(ui::kCancel, answered(ask, kEscape));
  EXPECT_EQ(ui::kCancel, answered(ask, kClose));
}

TEST(MessageBoxes, TurnTheOrderRoundInTheThirdBox) {
  DesktopWorld world;
  Seen seen;
  const ui::CMessageBox3 box("Overwrite?");
  const auto ask = [&] { return world.messages.show(box); };
  EXPECT_EQ(ui::kNo, answered(ask, click("&NO"), &seen));
  EXPECT_EQ(box.box().title, seen.title);
  EXPECT_EQ((std::vector<std::string>{"&NO", "&YES"}), seen.buttons);
  EXPECT_EQ(ui::kYes, answered(ask, click("&YES")));
  EXPECT_EQ(ui::kNo, answered(ask, kEscape));
}

TEST(MessageBoxes, TakeAnAccessKeyBehindJapaneseText) {
  DesktopWorld world;
  const ui::CMessageBox1 box("保存しますか？", "はい(&Y)", "いいえ(&N)");
  const auto ask = [&] { return world.messages.show(box); };
  const auto key = [](Qt::Key letter) {
    return [letter](QMessageBox& open) {
      open.activateWindow();
      QApplication::processEvents();
      QTest::keyClick(open.buttons().front(), letter, Qt::AltModifier);
      // A key that no button takes would leave the box open for ever; one that is taken shows the
      // button pressed for a moment first.
      QTimer::singleShot(2000, &open, &QMessageBox::reject);
    };
  };
  EXPECT_EQ(ui::kYes, answered(ask, key(Qt::Key_Y)));
}

TEST(MessageBoxes, AreSeenForWhatTheyAreBeforeTheyAreRead) {
  DesktopWorld world;
  const auto sign = [](const std::function<int()>& ask) {
    QMessageBox::Icon seen = QMessageBox::NoIcon;
    answered(ask, [&seen](QMessageBox& box) {
      seen = box.icon();
      box.close();
    });
    return seen;
  };
  ui::Messages& messages = world.messages;
  EXPECT_EQ(QMessageBox::Warning, sign([&] {
              messages.error(text::id::kNoValueInput);
              return 0;
            }));
  EXPECT_EQ(QMessageBox::Information, sign([&] {
              messages.information(text::id::kSaved);
              return 0;
            }));
  EXPECT_EQ(QMessageBox::Question,
            sign([&] { return messages.question(text::id::kAskExit, ui::QuestionMode::kYesNo); }));
}

TEST(MessageBoxes, ShowANoticeWithOneButtonAndItsTextAsItIs) {
  DesktopWorld world;
  Seen seen;
  const auto ask = [&] {
    world.messages.error(0, "<b>5 < 6</b>\r\nsecond line");
    return 0;
  };
  answered(ask, kEscape, &seen);
  EXPECT_EQ("<b>5 < 6</b>\nsecond line", seen.text);
  EXPECT_EQ((std::vector<std::string>{"OK"}), seen.buttons);
}

}  // namespace
