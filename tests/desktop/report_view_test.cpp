// Looking at saved reports and the logbook, and printing them, by keys: from the menu of the main
// window to the paper, which is a fake one.

#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "archive/CLogPrintDlg.h"
#include "archive/CPrintAllTLXDlg.h"
#include "archive/CQFPrintDlg.h"
#include "desktop_world.h"
#include "fakes/sample_archive.h"
#include "fakes/sample_observation.h"
#include "fakes/sample_ship.h"
#include "mainwindow/CVelmaranDlg.h"
#include "text/ids.h"
#include "widget_views.h"

namespace {

using tests::messages_of;
using tests::press;
using tests::Shown;
using Lines = std::vector<std::string>;

template <class Dialog>
class Sample : private fakes::SampleArchive, public Dialog {
 public:
  explicit Sample(ui::Services& services, const char* folder = fakes::kSampleReports)
      : SampleArchive(services), Dialog(archive_services_, folder) {}
  using SampleArchive::archive_files_;
};

// What a widget shows.
std::string shown(const desktop::ScreenWindow& window, const char* name) {
  return window.binding(name)->shown().content.toStdString();
}
std::string page_of(const desktop::ScreenWindow& window) {
  return shown(window, "page");
}

Lines printed_lines(const ui::Sheets& sheets) {
  return sheets.lines->lines(0, sheets.lines->size());
}

// Acts once a window of that name is open in front.
void once_open(QTimer& timer, const char* name,
               const std::function<void(desktop::ScreenWindow&)>& act) {
  QObject::connect(&timer, &QTimer::timeout, [&timer, name, act] {
    auto* const window = qobject_cast<desktop::ScreenWindow*>(QApplication::activeModalWidget());
    if (window == nullptr || window->objectName() != QLatin1String(name)) return;
    if (!window->isAncestorOf(QApplication::focusWidget())) return;
    timer.stop();
    act(*window);
  });
  timer.start(1);
}

// ---- From the menu

struct MainWindowWithArchive : fakes::SampleArchive {
  explicit MainWindowWithArchive(ui::Services& others) : SampleArchive(others) {}
  ShipFixedData ship = fakes::sample_ship();
  KeyObservationItems items;
  mainwindow::Folders folders{
      fakes::kSampleReports, fakes::kSampleLogbook, {}, {}, {}, "C:\\none", "C:\\none"};
  CVelmaranDlg screen{archive_services_, {ship, items, folders, {}}};
};

TEST(ReportView, IsReachedByTheMenuAndPrintsTheReportThatWasGoneTo) {
  tests::DesktopWorld world;
  MainWindowWithArchive main(world.services);
  main.screen.open();
  desktop::ScreenWindow window(main.screen, nullptr);
  tests::show(window);
  press(Qt::Key_Tab);
  QTimer timer;
  std::string seen;
  Lines boxes;
  once_open(timer, "CQFPrintDlg", [&](desktop::ScreenWindow& dialog) {
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    seen = page_of(dialog);
    boxes = messages_of([] { press(Qt::Key_Return); });
    // No window manager gives the keyboard back.
    dialog.activateWindow();
    QApplication::processEvents();
    press(Qt::Key_Escape);
  });
  QTest::keyPress(QApplication::focusWidget(), Qt::Key_Alt, Qt::AltModifier);
  QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Alt);
  QApplication::processEvents();
  // File, Print, its first line.
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return}) {
    if (QWidget* const popup = QApplication::activePopupWidget()) {
      QTest::keyClick(popup, key);
      QApplication::processEvents();
    } else {
      press(key);
    }
  }
  ASSERT_EQ(boxes, Lines({"PRINT SUCCESS"}));
  ASSERT_EQ(world.fake.printer.printed.size(), 1U);
  const Lines printed = printed_lines(world.fake.printer.printed.front());
  ASSERT_EQ(printed.size(), 7U);
  EXPECT_EQ(printed[0], "File        14111512.tlx");
  EXPECT_EQ(printed[5],
            "BBXX JXKV 15124 99357 11653 41497 62718 10152 20114 40132 52014 72582 84531");
  std::string all;
  for (const std::string& line : printed) all.append(line).append("\n");
  EXPECT_EQ(seen + "\n", all);
  EXPECT_FALSE(main.screen.unsaved());
}

// ---- Lists and pages

TEST(ReportView, ShowsEachReportAsTheListIsGoneThrough) {
  Shown<Sample<CQFPrintDlg>> s;
  EXPECT_EQ(page_of(*s.window), "");
  press(Qt::Key_Down);
  EXPECT_EQ(page_of(*s.window).substr(0, 24), "File        14111518.tlx");
  press(Qt::Key_PageDown);
  EXPECT_EQ(s.line("reports"), 10);
  press(Qt::Key_End);
  EXPECT_EQ(page_of(*s.window).substr(0, 24), "File        14110100.tlx");
  EXPECT_EQ(s.line("reports"), 59);
  // The name is found by its figures.
  tests::type("141105");
  EXPECT_EQ(page_of(*s.window).substr(0, 20), "File        14110518");
  EXPECT_EQ(tests::widget_views(*s.window), tests::control_views(*s.screen));
}

// An access key shows its button pressed for a moment first.
void press_access_key(Qt::Key letter, const std::function<bool()>& done) {
  press(letter, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor(done)) << static_cast<char>(letter);
}

TEST(ReportView, TurnsPagesByTheirButtonsAndAccessKeys) {
  Shown<Sample<CLogPrintDlg>> s(fakes::kSampleLogbook);
  s.world.fake.printer.room = {58, 92};
  press(Qt::Key_Down);
  // 2 + 3 * 60 lines
  EXPECT_EQ(shown(*s.window, "position"), "Page 1 of 4");
  s.tab_to("next_page");
  press(Qt::Key_Space);
  EXPECT_EQ(shown(*s.window, "position"), "Page 2 of 4");
  EXPECT_EQ(page_of(*s.window).substr(0, 10), "          ");
  const auto shows = [&](const char* page) {
    return [&s, page] { return shown(*s.window, "position") == page; };
  };
  press_access_key(Qt::Key_L, shows("Page 4 of 4"));
  press_access_key(Qt::Key_V, shows("Page 3 of 4"));
  press_access_key(Qt::Key_F, shows("Page 1 of 4"));
  press_access_key(Qt::Key_N, shows("Page 2 of 4"));
}

// PageDown and PageUp in the page go through all of it, line by line of what the display has room
// for, before they turn it.
TEST(ReportView, GoesThroughWholePagesByPageKeys) {
  Shown<Sample<CLogPrintDlg>> s(fakes::kSampleLogbook);
  s.world.fake.printer.room = {58, 92};
  press(Qt::Key_Down);
  s.tab_to("page");
  auto* const page = qobject_cast<QPlainTextEdit*>(s.window->binding("page")->widget());
  ASSERT_NE(page, nullptr);
  const QScrollBar& bar = *page->verticalScrollBar();
  std::vector<std::string> pages;
  for (int keys = 0; keys < 40 && pages.size() < 4; ++keys) {
    if (bar.value() == bar.maximum()) pages.push_back(shown(*s.window, "position"));
    press(Qt::Key_PageDown);
  }
  EXPECT_EQ(pages, Lines({"Page 1 of 4", "Page 2 of 4", "Page 3 of 4", "Page 4 of 4"}));
  for (int keys = 0; keys < 40; ++keys) press(Qt::Key_PageUp);
  EXPECT_EQ(shown(*s.window, "position"), "Page 1 of 4");
  EXPECT_EQ(bar.value(), bar.minimum());
}

// A line broken on the screen would be one more than on the paper, and its columns would not stand
// under the ruler.
TEST(ReportView, BreaksNoLineThatThePaperDoesNot) {
  Shown<Sample<CPrintAllTLXDlg>> s;
  auto* const page = qobject_cast<QPlainTextEdit*>(s.window->binding("page")->widget());
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(page->lineWrapMode(), QPlainTextEdit::NoWrap);
  EXPECT_FALSE(page->horizontalScrollBar()->isVisible());
  // The same letters in each column.
  const QFontMetricsF metrics(page->font());
  EXPECT_EQ(metrics.horizontalAdvance(QLatin1Char('i')),
            metrics.horizontalAdvance(QLatin1Char('W')));
}

TEST(ReportView, TicksWithSpaceAndPrintsWhatIsTicked) {
  Shown<Sample<CPrintAllTLXDlg>> s;
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Space);
  press(Qt::Key_Down);
  press(Qt::Key_Space);
  EXPECT_EQ(shown(*s.window, "chosen"), "Weather reports to print: 2 of 60");
  const auto& printer = s.world.fake.printer;
  EXPECT_EQ(
      messages_of([&] { press_access_key(Qt::Key_P, [&] { return !printer.printed.empty(); }); }),
      Lines({"PRINT SUCCESS"}));
  ASSERT_EQ(s.world.fake.printer.printed.size(), 1U);
  const Lines printed = printed_lines(s.world.fake.printer.printed.front());
  ASSERT_EQ(printed.size(), 2U + 2U + 1U + 2U);
  EXPECT_EQ(printed[2].substr(0, 16), "14111512.tlxBBXX");
  EXPECT_EQ(printed[5].substr(0, 16), "14111506.tlxBBXX");
  s.window->activateWindow();
  QApplication::processEvents();
  press_access_key(Qt::Key_A, [&] {
    return shown(*s.window, "chosen") == "Weather reports to print: 60 of 60";
  });
  EXPECT_EQ(tests::widget_views(*s.window), tests::control_views(*s.screen));
}

TEST(ReportView, SavesAPdfInTheFolderThatIsChosen) {
  tests::DesktopWorld world;
  // Whatever folder of this computer is chosen, it is the stick.
  desktop::DesktopWindows windows({[](const std::string&) { return std::string("/"); },
                                   [](const std::string&) { return std::string("C:\\usb"); }});
  ui::Messages messages(world.fake.texts, windows);
  const ui::Services& all = world.services;
  ui::Services services{all.clock,   all.locale, all.drives, all.files, all.code_page,
                        all.printer, windows,    all.texts,  messages,  all.help};
  Sample<CQFPrintDlg> screen(services);
  screen.archive_files_.add_folder("C:\\usb");
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  tests::show(window);
  press(Qt::Key_Down);
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    timer.stop();
    QTest::keyClick(dialog, Qt::Key_Return);
  });
  timer.start(1);
  const Lines boxes = messages_of([&] {
    press_access_key(Qt::Key_S,
                     [&] { return screen.archive_files_.is_file("C:\\usb\\14111518.pdf"); });
  });
  EXPECT_EQ(boxes, Lines({"Saved as C:\\usb\\14111518.pdf"}));
  EXPECT_EQ(screen.archive_files_.content("C:\\usb\\14111518.pdf").value_or("").substr(0, 24),
            "File        14111518.tlx");
}

}  // namespace
