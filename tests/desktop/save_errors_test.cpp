// The list of a save by real keys and clicks: a line is chosen and the form has its field.

#include <gtest/gtest.h>

#include <QListWidget>
#include <memory>
#include <string>

#include "desktop_world.h"
#include "fakes/sample_observation.h"
#include "officer.h"

namespace {

struct Form {
  tests::DesktopWorld world;
  std::unique_ptr<fakes::SampleMainWindow> screen;
  std::unique_ptr<desktop::ScreenWindow> window;

  explicit Form(bool japanese = false) {
    if (japanese) world.fake.japanese();
    screen = std::make_unique<fakes::SampleMainWindow>(world.services);
    screen->open();
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
    for (const auto& [name, text] :
         {std::pair{"Year", "2014"}, {"Month", "11"}, {"YY", "15"}, {"GG", "12"}})
      enter(name, text);
  }
  void enter(const char* name, const char* text) const {
    window->binding(name)->widget()->setFocus();
    QApplication::processEvents();
    tests::type(text);
    tests::press(Qt::Key_Tab);
  }
  // The form is saved, and the officer acts in the list.
  void save(const std::function<void(QListWidget&)>& act) const {
    tests::Officer officer({{"CSaveErrorInfoDlg", [&act] {
                               auto* const list =
                                   QApplication::activeModalWidget()->findChild<QListWidget*>();
                               ASSERT_NE(nullptr, list);
                               act(*list);
                             }}});
    officer.begin();
    tests::press(Qt::Key_S, Qt::ControlModifier);
    officer.expect_done();
    window->activateWindow();
    QApplication::processEvents();
  }
  [[nodiscard]] std::string focus() const {
    for (const auto& binding : window->bindings())
      if (binding->owns(window->focusWidget())) return binding->control().name;
    return {};
  }
};

TEST(SaveErrorList, EnterAtOnceLeadsToTheFirstMissingField) {
  const Form form;
  form.save([](QListWidget&) { tests::press(Qt::Key_Return); });
  EXPECT_EQ("LaDeg", form.focus());
  EXPECT_EQ("LaDeg", form.screen->focused()->name);
}

TEST(SaveErrorList, ArrowsChooseALineAndEnterLeadsToItsField) {
  const Form form;
  form.save([](QListWidget& list) {
    for (int i = 0; i < 4 && !list.hasFocus(); ++i) tests::press(Qt::Key_Tab);
    ASSERT_TRUE(list.hasFocus());
    while (list.selectedItems().isEmpty() ||
           !list.selectedItems().front()->text().startsWith(QLatin1String("GroupNddff")))
      tests::press(Qt::Key_Down);
    tests::press(Qt::Key_Return);
  });
  EXPECT_EQ("dd", form.focus());
}

TEST(SaveErrorList, ADoubleClickLeadsToTheField) {
  const Form form;
  form.save([](QListWidget& list) {
    const auto found = list.findItems(QStringLiteral("Group222DsDv"), Qt::MatchStartsWith);
    ASSERT_EQ(1, found.size());
    list.scrollToItem(found.front());
    const QPoint place = list.visualItemRect(found.front()).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
  });
  EXPECT_EQ("Ds", form.focus());
}

// Fog in which one sees ten miles: the doubt leads to its field, and once it is corrected the list
// does not speak of it any more.
TEST(SaveErrorList, ADoubtIsCorrectedAndGone) {
  for (const bool japanese : {false, true}) {
    const Form form(japanese);
    form.enter("VV", "97");
    form.enter("ww", "45");
    const QString mark = japanese ? QStringLiteral("要確認：") : QStringLiteral("Doubt: ");
    form.save([&](QListWidget& list) {
      for (int i = 0; i < 4 && !list.hasFocus(); ++i) tests::press(Qt::Key_Tab);
      ASSERT_TRUE(list.hasFocus());
      // It stands below everything that is missing.
      tests::press(Qt::Key_End);
      ASSERT_EQ(1, list.selectedItems().size());
      EXPECT_TRUE(list.selectedItems().front()->text().startsWith(mark));
      EXPECT_EQ(1, list.findItems(mark, Qt::MatchStartsWith).size());
      tests::press(Qt::Key_Return);
    });
    EXPECT_EQ("VV", form.focus());
    tests::type("92");
    tests::press(Qt::Key_Tab);
    EXPECT_EQ("92", form.screen->find("VV")->content);
    form.save([&](QListWidget& list) {
      EXPECT_LT(0, list.count());
      EXPECT_TRUE(list.findItems(mark, Qt::MatchStartsWith).empty());
      tests::press(Qt::Key_Escape);
    });
  }
}

}  // namespace
