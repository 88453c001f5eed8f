// A message opens beside the field that it is about and leaves it in sight, wherever the field is.

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop_world.h"
#include "elements/CLookWindDlg.h"
#include "elements/CUTCTimeDlg1.h"
#include "fakes/sample_observation.h"
#include "text/ids.h"

namespace {

QRect place_of(const QWidget& widget) {
  return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
}

// Where the boxes stood that came while it acted; each is answered with Escape.
std::vector<QRect> boxes_of(const std::function<void()>& act) {
  std::vector<QRect> seen;
  QTimer answers;
  QObject::connect(&answers, &QTimer::timeout, [&seen] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) return;
    seen.push_back(box->frameGeometry());
    QTest::keyClick(box, Qt::Key_Escape);
  });
  answers.start(1);
  QWidget* const window = QApplication::activeWindow();
  act();
  // What a window manager does when the box has gone.
  window->activateWindow();
  QApplication::processEvents();
  return seen;
}

void expect_beside(const QRect& box, const QWidget& field, const std::string& name) {
  const QRect display = field.screen()->availableGeometry();
  const QRect place = place_of(field);
  constexpr int kNear = 40;
  EXPECT_FALSE(box.intersects(place)) << name << " is hidden";
  EXPECT_TRUE(box.intersects(place.adjusted(-kNear, -kNear, kNear, kNear))) << name << " is far";
  EXPECT_TRUE(display.contains(box)) << name << ": beyond the display";
}

void click(QWidget& widget) {
  QTest::mouseClick(&widget, Qt::LeftButton);
  QApplication::processEvents();
}

struct Form {
  tests::DesktopWorld world;
  std::unique_ptr<fakes::SampleMainWindow> screen;
  std::unique_ptr<desktop::ScreenWindow> window;

  Form() {
    screen = std::make_unique<fakes::SampleMainWindow>(world.services);
    screen->open();
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
  }
};

// Fields of all its sides and corners, the window in each corner of the display.
TEST(MessagePlace, IsBesideEachFieldOfTheMainWindow) {
  Form form;
  const QRect display = form.window->screen()->availableGeometry();
  const QSize room = display.size() - form.window->size();
  const QPoint corners[] = {
      {0, 0}, {room.width(), 0}, {0, room.height()}, {room.width(), room.height()}};
  for (const QPoint corner : corners) {
    form.window->move(display.topLeft() + corner);
    for (const char* const name :
         {"YY", "LaDeg", "PPPP", "dry_bulb", "dd", "Pw1Pw1", "W2", "N", "h"}) {
      QWidget& field = *form.window->binding(name)->widget();
      click(field);
      ASSERT_EQ(name, form.screen->focused()->name);
      tests::type("x");
      const auto boxes = boxes_of([] { tests::press(Qt::Key_Tab); });
      ASSERT_EQ(1U, boxes.size()) << name;
      expect_beside(boxes.front(), field, name);
      ASSERT_EQ(name, form.screen->focused()->name);
      for (int i = 0; i < 12; ++i) tests::press(Qt::Key_Backspace);
    }
  }
}

// A menu command takes what was typed before it begins.
TEST(MessagePlace, IsBesideTheFieldThatACommandRefuses) {
  Form form;
  QWidget& field = *form.window->binding("Hw1Hw1")->widget();
  click(field);
  tests::type("x");
  const auto boxes = boxes_of([] { tests::press(Qt::Key_S, Qt::ControlModifier); });
  ASSERT_EQ(1U, boxes.size());
  expect_beside(boxes.front(), field, "Hw1Hw1");
}

// Left by Tab, and by Enter, which is OK. A field that was never left is judged by OK alone.
// The focus leads to what is missing, and the message stands beside it.
TEST(MessagePlace, IsBesideTheDateThatASaveLacks) {
  Form form;
  form.window->hand([&] { form.screen->move_focus(*form.screen->find("VV")); });
  form.window->hand([&] { form.screen->type(*form.screen->find("VV"), "97"); });
  const auto boxes = boxes_of([] { tests::press(Qt::Key_S, Qt::ControlModifier); });
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(form.screen->focused()->name, "Year");
  expect_beside(boxes.front(), *form.window->binding("Year")->widget(), "Year");
}

TEST(MessagePlace, IsBesideTheGroupThatF1IsPressedIn) {
  Form form;
  form.window->hand([&] { form.screen->move_focus(*form.screen->find("group_Nddff")); });
  const auto boxes = boxes_of([] { tests::press(Qt::Key_F1); });
  ASSERT_EQ(boxes.size(), 1U);
  expect_beside(boxes.front(), *form.window->binding("group_Nddff")->widget(), "group_Nddff");
}

TEST(MessagePlace, IsBesideTheFieldOfADialogInEachCornerOfTheDisplay) {
  tests::Shown<CLookWindDlg> shown{elements::ApparentWindTexts{}};
  const QRect display = shown.window->screen()->availableGeometry();
  const QSize room = display.size() - shown.window->size();
  for (const QPoint corner : {QPoint(0, 0), QPoint(room.width(), 0), QPoint(0, room.height()),
                              QPoint(room.width(), room.height())}) {
    shown.window->move(display.topLeft() + corner);
    for (const char* const name : {"heading", "ship_speed", "direction", "speed"}) {
      for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return}) {
        QWidget& field = *shown.window->binding(name)->widget();
        click(field);
        tests::type("x");
        const auto boxes = boxes_of([key] { tests::press(key); });
        ASSERT_EQ(1U, boxes.size()) << name;
        expect_beside(boxes.front(), field, name);
        ASSERT_EQ(name, shown.screen->focused()->name);
        for (int i = 0; i < 6; ++i) tests::press(Qt::Key_Backspace);
      }
    }
  }
}

TEST(MessagePlace, IsBesideTheFieldThatOnlyOkRefuses) {
  tests::Shown<CUTCTimeDlg1> shown{CUTCTimeDlg1::Values{"2014", "2", "30", "12"}};
  const auto boxes = boxes_of([&] { shown.screen->press(shown.screen->ok); });
  ASSERT_EQ(1U, boxes.size());
  ASSERT_NE(nullptr, shown.screen->focused());
  expect_beside(boxes.front(), *shown.window->binding(*shown.screen->focused())->widget(),
                shown.screen->focused()->name);
}

TEST(MessagePlace, IsTheWindowsMiddleForWhatIsAboutNoField) {
  Form form;
  form.window->move(0, 0);
  const auto boxes = boxes_of([&] { form.world.messages.information(text::id::kSaved); });
  ASSERT_EQ(1U, boxes.size());
  const QPoint away = boxes.front().center() - form.window->frameGeometry().center();
  constexpr int kNear = 60;
  EXPECT_LT(away.manhattanLength(), kNear);
}

}  // namespace
