#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTextBrowser>

#include "desktop/desktop_help.h"
#include "fakes/temp_folder.h"
#include "platform/posix/posix_ports.h"

namespace {

struct Viewer {
  fakes::TempFolder temp;
  platform::posix::DriveMap map{temp.path()};
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

// The pages that lie beside the program.
TEST(HelpWindow, HasAPageForTheFixedDataBesideTheProgram) {
  Viewer viewer;
  const platform::posix::DriveMap whole("/");
  const platform::posix::PosixHelp pages(whole);
  std::string folder = KAVREL_HELP;
  for (char& c : folder)
    if (c == '/') c = '\\';
  for (const char* const page : {"Kavrel_E.CHM::/Capter4-1_E.htm", "Kavrel_J.CHM::/Capter4-1_J.htm",
                                 "Kavrel_E.CHM", "Cloud_J.CHM"})
    EXPECT_TRUE(pages.page("C:" + folder + "\\" + page)) << page;
}

}  // namespace
