// What is typed into the real window outlives it: kept when the person pauses, also behind a
// message, and offered at the next start.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QTimer>
#include <functional>
#include <string>

#include "desktop/idle_timer.h"
#include "desktop_world.h"
#include "fakes/fake_files.h"
#include "mainwindow/CVelmaranDlg.h"

namespace {

constexpr const char* kDraft = "C:\\kavrel\\file\\DRAFT1.DAT";
constexpr int kLongEnough = 60'000;  ///< milliseconds; only a failing test waits for them

struct Computer {
  Computer() {
    files.add_folder("C:\\kavrel\\file");
    folders.drafts = "C:\\kavrel\\file";
    ship.call_sign = "ABCD";
  }
  [[nodiscard]] bool draft_holds(const std::string& line) const {
    return files.content(kDraft).value_or("").find("\n" + line + "\n") != std::string::npos;
  }
  fakes::FakeFiles files;
  ShipFixedData ship;
  KeyObservationItems items;
  mainwindow::Folders folders;
};

/// Runs the program in real windows; `act` is the officer once the main window is there, and the
/// window is gone after it as if the program had been killed.
void run(Computer& computer, const std::function<void(CVelmaranDlg&)>& act) {
  tests::DesktopWorld world;
  ui::Services services = world.over(computer.files);
  CVelmaranDlg screen(services, {computer.ship, computer.items, computer.folders, {}});
  bool seen = false;
  world.windows.on_shown = [&](desktop::ScreenWindow& window) {
    seen = true;
    window.activateWindow();
    QApplication::processEvents();
    act(screen);
    window.done(0);
  };
  world.windows.run_modal(screen);
  EXPECT_TRUE(seen);
  EXPECT_FALSE(screen.result().has_value());
}

void type(const char* text) {
  QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
  tests::press(Qt::Key_Tab);
}

void on_next_box(const std::function<void(QMessageBox&)>& act) {
  QTimer::singleShot(0, [act] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(nullptr, box);
    act(*box);
  });
}

TEST(DraftOnTheDesktop, HoldsWhatWasTypedAndIsTakenOverByTheNextStart) {
  Computer computer;
  run(computer, [&](CVelmaranDlg&) {
    for (const char* const text : {"2014", "11", "15", "12", "35", "20"}) type(text);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return computer.draft_holds("record.LaMin=20"); }, kLongEnough));
  });
  std::string asked;
  on_next_box([&](QMessageBox& box) {
    asked = box.text().toStdString();
    box.buttons().front()->click();
  });
  run(computer, [&](CVelmaranDlg& screen) {
    EXPECT_NE(asked.find("2014/11/15 12"), std::string::npos) << asked;
    for (const auto& [name, text] : {std::pair{"Year", "2014"},
                                     {"Month", "11"},
                                     {"YY", "15"},
                                     {"GG", "12"},
                                     {"LaDeg", "35"},
                                     {"LaMin", "20"}})
      EXPECT_EQ(screen.find(name)->content, text);
    EXPECT_TRUE(screen.unsaved());
  });
}

TEST(DraftOnTheDesktop, IsKeptWhileAMessageIsOpen) {
  Computer computer;
  run(computer, [&](CVelmaranDlg& screen) {
    type("2014");
    QTest::keyClicks(QApplication::focusWidget(), "11");
    on_next_box([&](QMessageBox& box) {
      EXPECT_TRUE(
          QTest::qWaitFor([&] { return computer.draft_holds("text.Month=11"); }, kLongEnough));
      QTest::keyClick(&box, Qt::Key_Escape);
    });
    screen.close_box();
    EXPECT_FALSE(screen.result().has_value());
  });
}

TEST(IdleTimer, TellsAfterThePauseOnceAndNotWithoutAnEvent) {
  int told = 0;
  const desktop::IdleTimer timer([&] { ++told; });
  QWidget widget;
  QTest::qWait(50);
  EXPECT_EQ(told, 0);
  QTest::keyClick(&widget, Qt::Key_A);
  EXPECT_EQ(told, 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return told == 1; }, kLongEnough));
}

TEST(IdleTimer, TellsInALongRowOfKeysToo) {
  int told = 0;
  const desktop::IdleTimer timer([&] { ++told; });
  QWidget widget;
  int keys = 0;
  for (; told == 0 && keys < 2000; ++keys) {
    QTest::keyClick(&widget, Qt::Key_A);
    QTest::qWait(30);  // never half a second of rest
  }
  EXPECT_EQ(told, 1);
}

}  // namespace
