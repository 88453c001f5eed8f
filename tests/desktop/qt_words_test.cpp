// The toolkit's own texts are in the program's language, follow it, and stay English where their
// translation is not installed.

#include <gtest/gtest.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>
#include <string>

#include "desktop/qt_words.h"
#include "desktop_world.h"
#include "fakes/sample_observation.h"

namespace {

class QtWords : public testing::Test {
 protected:
  // The toolkit speaks what the window before spoke, and a language that it speaks is not looked for.
  void SetUp() override { desktop::speak_qt(text::Language::kEnglish); }
  void TearDown() override { desktop::speak_qt(text::Language::kEnglish); }
};

// The menu that the other mouse button opens in a field, its items one after the other.
std::string menu_of(QLineEdit& field) {
  const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
  QString texts;
  for (const QAction* const action : menu->actions())
    texts += action->text().section(QLatin1Char('\t'), 0, 0) + QLatin1Char('|');
  return texts.toStdString();
}

TEST_F(QtWords, FollowTheProgramsLanguage) {
  tests::DesktopWorld world;
  fakes::SampleMainWindow screen(world.services);
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  auto& field = *qobject_cast<QLineEdit*>(window.binding("dd")->widget());
  EXPECT_NE(menu_of(field).find("&Copy|"), std::string::npos) << menu_of(field);
  world.fake.texts.language = text::Language::kJapanese;
  window.refresh();
  EXPECT_NE(menu_of(field).find("コピー(&C)|"), std::string::npos) << menu_of(field);
  EXPECT_EQ(menu_of(field).find("Paste"), std::string::npos) << menu_of(field);
  world.fake.texts.language = text::Language::kEnglish;
  window.refresh();
  EXPECT_NE(menu_of(field).find("&Copy|"), std::string::npos) << menu_of(field);
}

TEST_F(QtWords, AreThoseOfAWindowThatOpensInJapanese) {
  tests::DesktopWorld world;
  world.fake.japanese();
  world.fake.texts.language = text::Language::kJapanese;
  fakes::SampleMainWindow screen(world.services);
  screen.open();
  const desktop::ScreenWindow window(screen, nullptr);
  auto& field = *qobject_cast<QLineEdit*>(window.binding("dd")->widget());
  EXPECT_NE(menu_of(field).find("貼り付け"), std::string::npos) << menu_of(field);
}

TEST_F(QtWords, StayEnglishWithoutTheirTranslation) {
  const QTemporaryDir nothing;
  desktop::speak_qt(text::Language::kJapanese, nothing.path());
  QLineEdit field;
  EXPECT_NE(menu_of(field).find("&Copy|"), std::string::npos) << menu_of(field);
}

}  // namespace
