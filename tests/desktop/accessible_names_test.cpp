// What a screen reader reads of the widgets of every screen: all names as a whole, in both languages,
// each of them once in its window; and what a colour says.

#include <gtest/gtest.h>

#include <QFile>
#include <QLineEdit>
#include <QRadioButton>
#include <map>
#include <memory>
#include <string>

#include "desktop_world.h"
#include "fakes/all_screens.h"
#include "fakes/sample_observation.h"
#include "text/ids.h"

namespace {

// "CLASS NAME: what is said" for each control of each screen.
std::string all_names(text::Language language) {
  std::string names;
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    tests::DesktopWorld world;
    world.fake.texts.language = language;
    const auto screen = row.make(world.services);
    screen->open();
    const desktop::ScreenWindow window(*screen, nullptr);
    for (const auto& binding : window.bindings())
      names.append(row.class_name)
          .append(" ")
          .append(binding->control().name)
          .append(": ")
          .append(binding->widget()->accessibleName().toStdString())
          .append("\n");
  }
  return names;
}

QByteArray content_of(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A difference leaves the names of now beside the file; whoever has read them takes them over.
TEST(AccessibleNames, AreThoseOfTheTable) {
  for (const bool japanese : {false, true}) {
    const QString path = QStringLiteral(KAVREL_SOURCE) + "/tests/desktop/accessible_names." +
                         (japanese ? "ja" : "en") + ".txt";
    const std::string now =
        all_names(japanese ? text::Language::kJapanese : text::Language::kEnglish);
    const std::string kept = content_of(path).toStdString();
    if (kept == now) {
      QFile::remove(path + ".actual");
      continue;
    }
    QFile actual(path + ".actual");
    ASSERT_TRUE(actual.open(QIODevice::WriteOnly));
    actual.write(QByteArray::fromStdString(now));
    ADD_FAILURE() << path.toStdString() << " differs from " << path.toStdString() << ".actual";
  }
}

// What can have the focus or shows a value; a label is what the others are called by.
TEST(AccessibleNames, AreEachOnceInTheirWindowAndHaveNoAccessKey) {
  for (const auto language : {text::Language::kEnglish, text::Language::kJapanese}) {
    for (const fakes::ScreenCase& row : fakes::all_screens()) {
      tests::DesktopWorld world;
      world.fake.texts.language = language;
      const auto screen = row.make(world.services);
      screen->open();
      const desktop::ScreenWindow window(*screen, nullptr);
      std::map<std::string, std::string> by_name;
      for (const auto& binding : window.bindings()) {
        const ui::Control& control = binding->control();
        const std::string name = binding->widget()->accessibleName().toStdString();
        EXPECT_EQ(name.find('&'), std::string::npos) << row.class_name << " " << control.name;
        if (control.kind == ui::Kind::kLabel) continue;
        EXPECT_FALSE(name.empty()) << row.class_name << " " << control.name;
        const auto [at, is_new] = by_name.emplace(name, control.name);
        EXPECT_TRUE(is_new) << row.class_name << ": " << at->second << " and " << control.name
                            << " are both \"" << name << "\"";
      }
    }
  }
}

TEST(AccessibleNames, AreThoseOfWhatHasTheFocusWithinAField) {
  tests::DesktopWorld world;
  fakes::SampleMainWindow screen(world.services);
  screen.open();
  const desktop::ScreenWindow window(screen, nullptr);
  const desktop::Binding& side = *window.binding("north_south");
  const auto lines = side.widget()->findChildren<QRadioButton*>();
  ASSERT_EQ(2, lines.size());
  for (const QRadioButton* const line : lines)
    EXPECT_EQ(side.widget()->accessibleName(), line->accessibleDescription());
}

TEST(AccessibleNames, FollowTheLanguage) {
  tests::DesktopWorld world;
  fakes::SampleMainWindow screen(world.services);
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  const QString english = window.binding("ff")->widget()->accessibleName();
  world.fake.texts.language = text::Language::kJapanese;
  window.refresh();
  const QString japanese = window.binding("ff")->widget()->accessibleName();
  EXPECT_NE(english, japanese);
  EXPECT_TRUE(english.contains(QLatin1String("kn"))) << english.toStdString();
  EXPECT_TRUE(japanese.contains(QStringLiteral("、"))) << japanese.toStdString();
}

TEST(AccessibleMarks, TellWhatYellowAndRedMeanInTheLanguageOfTheMoment) {
  tests::DesktopWorld world;
  fakes::SampleMainWindow screen(world.services);
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  tests::show(window);
  const QWidget& group = *window.binding("group_Nddff")->widget();
  const QWidget& field = *window.binding("dd")->widget();
  EXPECT_EQ(group.accessibleDescription().toStdString(),
            world.fake.texts.get(text::id::kSpokenMissing));
  EXPECT_EQ(field.accessibleDescription(), QString());
  window.binding("dd")->widget()->setFocus();
  tests::type("77");
  EXPECT_EQ(1U, tests::messages_of([] { tests::press(Qt::Key_Tab); }).size());
  EXPECT_EQ(field.accessibleDescription().toStdString(),
            world.fake.texts.get(text::id::kSpokenWrong));
  world.fake.texts.language = text::Language::kJapanese;
  window.refresh();
  EXPECT_EQ(field.accessibleDescription().toStdString(),
            world.fake.texts.get(text::id::kSpokenWrong));
  EXPECT_EQ(group.accessibleDescription().toStdString(),
            world.fake.texts.get(text::id::kSpokenMissing));
}

}  // namespace
