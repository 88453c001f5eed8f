#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <algorithm>
#include <cmath>

#include "desktop/desktop_help.h"
#include "desktop/screen_window.h"
#include "desktop_world.h"
#include "elements/CPositionDlg.h"
#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"
#include "fakes/temp_folder.h"
#include "palettes.h"
#include "platform/posix/posix_drive_map.h"
#include "platform/posix/posix_ports.h"

namespace {

struct Viewer {
  fakes::TempFolder temp;
  platform::posix::PosixDriveMap map{temp.path()};
  platform::posix::PosixHelp pages{map};
  desktop::DesktopHelp help{[this](const std::string& path) { return pages.page(path); }};

  [[nodiscard]] std::string shown() const {
    return help.window()->findChild<QTextBrowser*>()->toPlainText().toStdString();
  }
};

TEST(HelpWindow, ShowsThePageOfItsLanguage) {
  Viewer viewer;
  viewer.temp.write("p/help/Kavrel_E/A_E.htm", "<title>Wind</title><p>knots</p>");
  viewer.temp.write("p/help/Kavrel_J/A_J.htm",
                    "<meta charset=\"utf-8\"><title>風</title><p>ノット</p>");
  EXPECT_TRUE(viewer.help.show("C:\\p\\help\\Kavrel_E.CHM::/A_E.htm"));
  EXPECT_EQ(viewer.help.window()->windowTitle().toStdString(), "Wind");
  EXPECT_EQ(viewer.shown(), "knots");
  const QPointer<QDialog> first = viewer.help.window();
  EXPECT_TRUE(viewer.help.show("C:\\p\\help\\Kavrel_J.CHM::/A_J.htm"));
  EXPECT_TRUE(first.isNull()) << "one help window at a time";
  EXPECT_EQ(viewer.help.window()->windowTitle().toStdString(), "風");
  EXPECT_EQ(viewer.shown(), "ノット");
}

TEST(HelpWindow, SaysInTheLanguageOfThePathThatThereIsNoPage) {
  Viewer viewer;
  EXPECT_FALSE(viewer.help.show("C:\\p\\help\\Kavrel_E.CHM::/none.htm"));
  EXPECT_EQ(viewer.shown(), "The help page was not found.\nC:\\p\\help\\Kavrel_E.CHM::/none.htm");
  EXPECT_FALSE(viewer.help.show("C:\\p\\help\\Kavrel_J.CHM"));
  EXPECT_EQ(viewer.shown(), "ヘルプのページが見つかりません。\nC:\\p\\help\\Kavrel_J.CHM");
}

TEST(HelpWindow, ClosesWithEscapeAndLeavesTheDialogBesideItUsable) {
  Viewer viewer;
  QDialog modal;
  modal.setModal(true);
  modal.show();
  QApplication::processEvents();
  EXPECT_FALSE(viewer.help.show("C:\\p\\help\\Kavrel_E.CHM"));
  EXPECT_EQ(viewer.help.window()->parentWidget(), &modal);
  EXPECT_FALSE(viewer.help.window()->isModal());
  QTest::keyClick(viewer.help.window(), Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(viewer.help.window(), nullptr);
  EXPECT_TRUE(modal.isVisible());
}

// ---- Beside the window that asked

constexpr QRect kDisplay(0, 0, 1366, 768);
constexpr QSize kWanted(640, 700);
constexpr QSize kLeast(380, 320);

TEST(HelpPlace, IsBesideWhereASideHasTheRoom) {
  struct Row {
    QRect asking;
    QRect help;
  };
  const Row kRows[] = {
      {{100, 100, 600, 400}, {700, 68, 640, 700}},  // on its right, no lower than the display
      {{700, 0, 600, 400}, {60, 0, 640, 700}},      // on its left, where the right is too narrow
      {{433, 200, 500, 300}, {933, 68, 433, 700}},  // in the middle: narrower than wanted
      {{0, 0, 1366, 400}, {726, 400, 640, 368}},    // wide: below it
      {{0, 400, 1366, 368}, {726, 0, 640, 400}},    // and above it
  };
  for (const Row& row : kRows) {
    const desktop::HelpPlace place =
        desktop::place_help(row.asking, true, kDisplay, kWanted, kLeast);
    EXPECT_EQ(place.help, row.help) << row.asking.x() << " " << row.asking.y();
    EXPECT_EQ(place.asking, row.asking);
  }
}

TEST(HelpPlace, LetsAWindowInTheMiddleGiveWayToTheEdge) {
  const QRect asking(233, 60, 900, 600);
  const desktop::HelpPlace place = desktop::place_help(asking, true, kDisplay, kWanted, kLeast);
  EXPECT_EQ(place.asking, QRect(0, 60, 900, 600));
  EXPECT_EQ(place.help, QRect(900, 60, 466, 700));
}

TEST(HelpPlace, HidesLeastWhereTheDisplayIsTooSmall) {
  const QRect asking(80, 100, 1200, 568);
  const desktop::HelpPlace moved = desktop::place_help(asking, true, kDisplay, kWanted, kLeast);
  EXPECT_EQ(moved.asking, QRect(0, 200, 1200, 568));
  EXPECT_EQ(moved.help, QRect(986, 0, 380, 320));
  const desktop::HelpPlace stays = desktop::place_help(asking, false, kDisplay, kWanted, kLeast);
  EXPECT_EQ(stays.asking, asking);
  EXPECT_EQ(stays.help, QRect(986, 448, 380, 320)) << "86 pixels at its right, 100 below it";
}

// The main window fills the display and stays where it is.
TEST(HelpPlace, LiesOverAWindowThatFillsTheDisplay) {
  const desktop::HelpPlace place = desktop::place_help(kDisplay, false, kDisplay, kWanted, kLeast);
  EXPECT_EQ(place.asking, kDisplay);
  EXPECT_EQ(place.help, QRect(986, 448, 380, 320));
}

TEST(HelpPlace, StaysOnTheDisplayWhereverTheWindowStands) {
  for (int x = -300; x < 1500; x += 90) {
    for (int y = -200; y < 900; y += 70) {
      for (const QSize size : {QSize(200, 150), QSize(700, 500), QSize(1300, 700)}) {
        const QRect asking(QPoint(x, y), size);
        const desktop::HelpPlace place =
            desktop::place_help(asking, true, kDisplay, kWanted, kLeast);
        EXPECT_TRUE(kDisplay.contains(place.help)) << x << " " << y << " " << size.width();
        EXPECT_GE(place.help.width(), kLeast.width());
        EXPECT_GE(place.help.height(), kLeast.height());
      }
    }
  }
}

// Every dialog that has a page, opened in the middle of a display as it is aboard.
TEST(HelpPlace, HidesNothingOfAnyDialogThatLeavesTheRoom) {
  int beside = 0;
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    if (text::dialog_topic(row.class_name).base.empty()) continue;
    fakes::World world;
    const auto screen = row.make(world.services);
    screen->open();
    const desktop::ScreenWindow window(*screen, nullptr);
    QRect asking(QPoint(), window.size());
    asking.moveCenter(kDisplay.center());
    const desktop::HelpPlace place = desktop::place_help(asking, true, kDisplay, kWanted, kLeast);
    const bool room = kDisplay.width() - asking.width() >= kLeast.width() ||
                      kDisplay.height() - asking.height() >= 2 * kLeast.height();
    if (!room) continue;
    ++beside;
    EXPECT_FALSE(place.help.intersects(place.asking)) << row.class_name;
  }
  EXPECT_GT(beside, 15) << "most dialogs leave the room";
}

// ---- With the keyboard alone

constexpr const char* kTwoPages =
    "<title>One</title><a href=\"B_E.htm\">first</a>"
    "<p><a href=\"C_E.htm\">second</a>";

struct Asking {
  Viewer viewer;
  QDialog modal;
  QLineEdit* field = new QLineEdit(&modal);
  QLineEdit* other = new QLineEdit(&modal);

  Asking() {
    viewer.temp.write("p/help/Kavrel_E/A_E.htm", kTwoPages);
    viewer.temp.write("p/help/Kavrel_E/B_E.htm", "<title>Two</title>page two");
    std::string tall = "<title>Three</title>";
    for (int line = 0; line < 200; ++line) tall += "<p>line</p>";
    viewer.temp.write("p/help/Kavrel_E/C_E.htm", tall);
    modal.setModal(true);
    modal.resize(300, 200);
    modal.show();
    modal.activateWindow();
    QApplication::processEvents();
    other->setFocus();
    EXPECT_TRUE(viewer.help.show("C:\\p\\help\\Kavrel_E.CHM::/A_E.htm"));
    QApplication::processEvents();
  }
  [[nodiscard]] QTextBrowser* browser() const {
    return viewer.help.window()->findChild<QTextBrowser*>();
  }
  [[nodiscard]] std::string title() const {
    return viewer.help.window()->windowTitle().toStdString();
  }
};

TEST(HelpKeys, AreTheWindowsAtOnceAndEscapeLeadsBackToTheField) {
  Asking asking;
  ASSERT_EQ(QApplication::focusWidget(), asking.browser());
  tests::press(Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(asking.viewer.help.window(), nullptr);
  EXPECT_EQ(QApplication::activeWindow(), &asking.modal);
  EXPECT_EQ(QApplication::focusWidget(), asking.other);
}

TEST(HelpKeys, GoThroughTheLinksAndFollowThem) {
  Asking asking;
  tests::press(Qt::Key_Tab);
  EXPECT_EQ(asking.browser()->textCursor().selectedText().toStdString(), "first");
  tests::press(Qt::Key_Tab);
  EXPECT_EQ(asking.browser()->textCursor().selectedText().toStdString(), "second");
  tests::press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(asking.browser()->textCursor().selectedText().toStdString(), "first");
  tests::press(Qt::Key_Return);
  EXPECT_EQ(asking.title(), "Two");
  EXPECT_EQ(asking.viewer.shown(), "page two");
  tests::press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(asking.title(), "One");
}

TEST(HelpKeys, Scroll) {
  Asking asking;
  EXPECT_TRUE(asking.viewer.help.show("C:\\p\\help\\Kavrel_E.CHM::/C_E.htm"));
  QApplication::processEvents();
  const QScrollBar* const bar = asking.browser()->verticalScrollBar();
  ASSERT_GT(bar->maximum(), 0);
  tests::press(Qt::Key_Down);
  const int one_line = bar->value();
  EXPECT_GT(one_line, 0);
  tests::press(Qt::Key_PageDown);
  EXPECT_GT(bar->value(), 2 * one_line);
  tests::press(Qt::Key_PageUp);
  tests::press(Qt::Key_Up);
  EXPECT_EQ(bar->value(), 0);
}

TEST(HelpKeys, LeaveTheFieldUsableBesideIt) {
  Asking asking;
  EXPECT_FALSE(
      asking.viewer.help.window()->frameGeometry().intersects(asking.modal.frameGeometry()));
  asking.modal.activateWindow();
  QApplication::processEvents();
  asking.field->setFocus();
  EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == asking.field; }));
  tests::type("27");
  EXPECT_EQ(asking.field->text().toStdString(), "27");
}

TEST(HelpKeys, LetADialogThatGaveWayGoBack) {
  Viewer viewer;
  const QRect display = QApplication::primaryScreen()->availableGeometry();
  QDialog modal;
  modal.setModal(true);
  modal.resize(display.width() / 2, display.height() * 95 / 100);
  modal.move(display.width() / 4, 0);
  modal.show();
  modal.activateWindow();
  QApplication::processEvents();
  const QPoint before = modal.pos();
  for (int page = 0; page < 2; ++page) {
    EXPECT_FALSE(viewer.help.show("C:\\p\\help\\Kavrel_E.CHM"));
    QApplication::processEvents();
    EXPECT_FALSE(viewer.help.window()->frameGeometry().intersects(modal.frameGeometry()));
  }
  tests::press(Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
  EXPECT_EQ(modal.pos(), before);
}

// The whole road: F1 in a field of a dialog, the page beside it, and back into the field.
TEST(HelpKeys, LeadFromAFieldToItsPageAndBack) {
  tests::DesktopWorld world;
  desktop::DesktopHelp viewer(
      [](const std::string& path) -> std::optional<std::string> { return path; });
  text::HelpLauncher launcher(world.fake.texts, viewer, "C:\\program");
  ui::Services services{world.fake.clock,     world.fake.locale,
                        world.fake.drives,    world.fake.no_files,
                        world.fake.code_page, world.fake.printer,
                        world.windows,        world.fake.texts,
                        world.messages,       launcher};
  CPositionDlg screen(services, {"35", "12", "139", "48", "1"}, "1", CPositionDlg::LandTest{});
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  window.setModal(true);
  tests::show(window);
  tests::press(Qt::Key_Tab);
  ASSERT_EQ(screen.focused(), &screen.latitude_minutes);
  const QWidget* const field = QApplication::focusWidget();
  tests::press(Qt::Key_F1);
  ASSERT_NE(viewer.window(), nullptr);
  EXPECT_TRUE(viewer.window()->isVisible());
  EXPECT_FALSE(viewer.window()->frameGeometry().intersects(window.frameGeometry()));
  tests::press(Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
  EXPECT_EQ(viewer.window(), nullptr);
  EXPECT_TRUE(window.isVisible()) << "Escape is the help's alone";
  EXPECT_EQ(QApplication::focusWidget(), field);
  EXPECT_EQ(screen.focused(), &screen.latitude_minutes);
}

// ---- Seen

double luminance(const QColor& color) {
  const auto part = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

double contrast(const QColor& a, const QColor& b) {
  const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
  return (light + 0.05) / (dark + 0.05);
}

TEST(HelpWindow, ShowsLinksThatCanBeReadInTheLightAndInTheDark) {
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true}) {
    QApplication::setPalette(tests::palette_of(dark));
    Asking asking;
    const QTextCharFormat link =
        asking.browser()->document()->begin().begin().fragment().charFormat();
    ASSERT_TRUE(link.isAnchor());
    const QColor paper = asking.browser()->palette().color(QPalette::Base);
    EXPECT_GE(contrast(link.foreground().color(), paper), 4.5) << dark;
  }
  QApplication::setPalette(before);
}

// The pages that lie beside the program.
TEST(HelpWindow, HasAPageForTheFixedDataBesideTheProgram) {
  Viewer viewer;
  const platform::posix::PosixDriveMap whole("/");
  const platform::posix::PosixHelp pages(whole);
  std::string folder = KAVREL_HELP;
  for (char& c : folder)
    if (c == '/') c = '\\';
  for (const char* const page : {"Kavrel_E.CHM::/Capter4-1_E.htm", "Kavrel_J.CHM::/Capter4-1_J.htm",
                                 "Kavrel_E.CHM", "Cloud_J.CHM"})
    EXPECT_TRUE(pages.page("C:" + folder + "\\" + page)) << page;
}

// What an officer reads there is what the program does: 20 m of air of 15 degrees weigh 2.4 hPa.
TEST(HelpPages, TellThePressureAtSeaLevel) {
  for (const char* const page : {"Kavrel_E/Capter11-4_E.htm", "Kavrel_J/Capter11-4_J.htm"}) {
    QTextBrowser browser;
    browser.setSource(QUrl::fromLocalFile(QStringLiteral(KAVREL_HELP "/") + page));
    EXPECT_TRUE(browser.toPlainText().contains("1015.6")) << page;
    EXPECT_TRUE(browser.toPlainText().contains("40156")) << page;
  }
}

// In the narrowest window, with letters half as large again, a page is read without moving it
// sideways.
TEST(HelpPages, NeedNoSidewaysScrolling) {
  QFont large = QApplication::font();
  large.setPointSizeF(1.5 * large.pointSizeF());
  QDirIterator pages(QStringLiteral(KAVREL_HELP), {QStringLiteral("*.htm")}, QDir::Files,
                     QDirIterator::Subdirectories);
  int looked_at = 0;
  for (; pages.hasNext(); ++looked_at) {
    QTextBrowser browser;
    browser.setFont(large);
    browser.resize(48 * browser.fontMetrics().averageCharWidth(), 600);
    browser.setSource(QUrl::fromLocalFile(pages.next()));
    browser.show();
    QApplication::processEvents();
    EXPECT_EQ(browser.horizontalScrollBar()->maximum(), 0) << pages.filePath().toStdString();
  }
  EXPECT_GT(looked_at, 80);
}

// The pages go to the ship over a line that is paid by the byte.
TEST(HelpPages, AreSmall) {
  qint64 bytes = 0;
  for (QDirIterator files(QStringLiteral(KAVREL_HELP), QDir::Files, QDirIterator::Subdirectories);
       files.hasNext();) {
    files.next();
    bytes += files.fileInfo().size();
  }
  EXPECT_GT(bytes, 100000);
  EXPECT_LT(bytes, 1000000);
}

// Every picture of every page is there, as the viewer finds it from the page.
TEST(HelpPages, HaveTheirPictures) {
  int pictures = 0;
  QDirIterator pages(QStringLiteral(KAVREL_HELP), {QStringLiteral("*.htm")}, QDir::Files,
                     QDirIterator::Subdirectories);
  while (pages.hasNext()) {
    const QFileInfo page(pages.next());
    QFile file(page.filePath());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    static const QRegularExpression kPicture(QStringLiteral("<img src=\"([^\"]*)\""));
    for (auto found = kPicture.globalMatch(text); found.hasNext(); ++pictures) {
      const QString picture = page.dir().filePath(found.next().captured(1));
      EXPECT_FALSE(QImage(picture).isNull()) << picture.toStdString();
    }
  }
  EXPECT_GT(pictures, 100);
}

}  // namespace
