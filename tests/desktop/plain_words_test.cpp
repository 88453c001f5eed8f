// F2 with real keys on real widgets.

#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <memory>
#include <string>

#include "desktop_world.h"
#include "explain/CPlainWordsDlg.h"
#include "fakes/sample_observation.h"

namespace {

using tests::press;

class PlainWordsKeys : public testing::Test {
 protected:
  void SetUp() override {
    screen = std::make_unique<fakes::SampleMainWindow>(world.services);
    screen->open();
    ASSERT_TRUE(fakes::enter_sample(*screen));
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
    list = dynamic_cast<QListWidget*>(window->binding("plain_words")->widget());
    ASSERT_NE(list, nullptr);
  }
  [[nodiscard]] std::string chosen() const {
    const auto lines = list->selectedItems();
    return lines.isEmpty() ? std::string() : lines.front()->text().toStdString();
  }

  tests::DesktopWorld world;
  std::unique_ptr<fakes::SampleMainWindow> screen;
  std::unique_ptr<desktop::ScreenWindow> window;
  QListWidget* list = nullptr;
};

TEST_F(PlainWordsKeys, ShowAndHideTheWordsAndTheyFollowEachKey) {
  window->binding("PPPP")->widget()->setFocus();
  EXPECT_FALSE(list->isVisible());
  press(Qt::Key_F2);
  ASSERT_TRUE(list->isVisible());
  EXPECT_EQ(chosen(), "40132  Pressure 1013.2 hPa.");
  EXPECT_EQ(screen->focused()->name, "PPPP") << "the field keeps the focus";
  press(Qt::Key_A, Qt::ControlModifier);
  tests::type("1009.");
  EXPECT_EQ(screen->find("PPPP")->content, "1009.");
  tests::type("8");
  EXPECT_EQ(chosen(), "40098  Pressure 1009.8 hPa.");
  EXPECT_EQ(screen->form().record().PPPP, "0132") << "nothing is taken yet";
  press(Qt::Key_F2);
  EXPECT_FALSE(list->isVisible());
  EXPECT_EQ(screen->find("PPPP")->content, "1009.8") << "what is typed stays";
}

TEST_F(PlainWordsKeys, StandInWholeLines) {
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    world.fake.texts.language = language;
    window->refresh();
    if (!list->isVisible()) press(Qt::Key_F2);
    ASSERT_TRUE(list->isVisible());
    window->binding("PPPP")->widget()->setFocus();
    QApplication::processEvents();
    ASSERT_FALSE(list->horizontalScrollBar()->isVisible());
    const int above = list->viewport()->rect().top();
    const int below = list->viewport()->rect().bottom();
    int last = 0;
    for (int row = 0; row < list->count(); ++row) {
      const QRect line = list->visualItemRect(list->item(row));
      if (line.bottom() < above || line.top() > below) continue;
      EXPECT_GE(line.top(), above) << row;
      EXPECT_LE(line.bottom(), below) << row;
      last = line.bottom();
    }
    EXPECT_EQ(last, below) << "and no room is left for half of another one";
    // Nor is its frame cut by what it stands in.
    EXPECT_TRUE(list->parentWidget()->rect().contains(list->geometry()));
  }
}

TEST_F(PlainWordsKeys, F6AndTheArrowsGoThroughTheLines) {
  press(Qt::Key_F2);
  while (screen->focused()->name != "plain_words") {
    const ui::Control* const before = screen->focused();
    press(Qt::Key_F6);
    ASSERT_NE(screen->focused(), before);
  }
  EXPECT_TRUE(list->hasFocus());
  press(Qt::Key_Home);
  EXPECT_EQ(chosen(), "BBXX  Report from a ship.");
  press(Qt::Key_Down);
  EXPECT_EQ(chosen(), "JXKV  Call sign JXKV.");
  press(Qt::Key_F2);
  EXPECT_FALSE(list->isVisible());
  EXPECT_NE(screen->focused()->name, "plain_words");
}

TEST_F(PlainWordsKeys, TheFormKeepsHalfOfASmallLaptopsHeight) {
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    world.fake.texts.language = language;
    for (const QSize size : {QSize(1366, 700), QSize(1280, 652)}) {
      window->resize(size);
      if (!list->isVisible()) press(Qt::Key_F2);
      QApplication::processEvents();
      ASSERT_TRUE(list->isVisible());
      const auto* const form = window->findChild<QScrollArea*>();
      EXPECT_GE(form->height() * 2, size.height()) << size.height();
      EXPECT_GE(list->height(), list->fontMetrics().height() * 5) << size.height();
    }
  }
}

TEST(PlainWordsDialog, IsClosedByEnterAndEscapeAndF1OpensItsPage) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    tests::Shown<CPlainWordsDlg> shown("14111512.tlx", std::string(fakes::kSampleReport),
                                       explain::YearMonth{2014, 11});
    EXPECT_GT(shown.screen->words.items.size(), 15U);
    EXPECT_EQ(shown.screen->title(), "The report in plain words");
    press(Qt::Key_F1);
    ASSERT_EQ(shown.world.fake.help_viewer.shown.size(), 1U);
    EXPECT_NE(shown.world.fake.help_viewer.shown.front().find("Capter31"), std::string::npos);
    press(key);
    EXPECT_TRUE(shown.screen->result().has_value());
  }
}

TEST(PlainWordsDialog, SaysThatThereIsNoReport) {
  for (const char* const text : {"", "no report", "\xff\xfe"}) {
    tests::Shown<CPlainWordsDlg> shown("notes.tlx", text);
    ASSERT_EQ(shown.screen->words.items.size(), 1U);
    EXPECT_NE(shown.screen->words.items.front().find("no report"), std::string::npos);
  }
}

}  // namespace
